#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QDateTime>
#include <QList>
#include <QString>

#include <memory>

class QLockFile;

namespace ozm {

/**
 * A copy of unsaved work that outlives a crash of the program.
 *
 *     ozm::TemplateAutosave autosave(u"report-templates"_s);
 *     autosave.store(path, content);             // every now and then while there is unsaved work
 *
 *     for (const auto &rescued : ozm::TemplateAutosave::rescued(u"report-templates"_s)) {
 *         if (openAsModified(rescued))           // at the next start
 *             ozm::TemplateAutosave::discard(rescued);
 *     }
 *
 * Each object has a copy of its own, which only the user can read and which goes with the object. Copies of
 * programs that still run are never given out. GUI thread only.
 */
class OZM_WIDGETS_EXPORT TemplateAutosave
{
public:
    /// A copy that a crash left behind.
    struct Rescued
    {
        QString path;                    ///< Of the file that was edited; empty for a new template.
        QString content;                 ///< The template as it was edited.
        QDateTime when;                  ///< The time of the last copy.
        QString file;                    ///< The copy itself.
        std::shared_ptr<QLockFile> hold; ///< Nobody else is offered the copy as long as this lives.
    };

    /// Copies are kept by @p storageName in @p directory, by default the application's data folder.
    explicit TemplateAutosave(const QString &storageName, const QString &directory = {});
    ~TemplateAutosave();

    /// Replaces this object's copy. False, with a warning, when it cannot be written; the copy before it then
    /// stays.
    bool store(const QString &path, const QString &content);

    /// The copies whose program no longer runs, the oldest first; one that cannot be read is set aside as
    /// "*.damaged". They stay on the disk until they are discarded, so that a program that ends over the
    /// question loses nothing.
    [[nodiscard]] static QList<Rescued> rescued(const QString &storageName, const QString &directory = {});
    /// Removes the copy that @p rescued was read from.
    static void discard(const Rescued &rescued);

    /// The same, discarded at once.
    [[nodiscard]] static QList<Rescued> takeRescued(const QString &storageName,
                                                    const QString &directory = {});

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm
