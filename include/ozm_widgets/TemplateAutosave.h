#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QDateTime>
#include <QList>
#include <QString>

#include <memory>

namespace ozm {

/**
 * A copy of unsaved work that outlives a crash of the program.
 *
 *     ozm::TemplateAutosave autosave(u"report-templates"_s);
 *     autosave.store(path, content);             // every now and then while there is unsaved work
 *
 *     for (const auto &rescued : ozm::TemplateAutosave::takeRescued(u"report-templates"_s))
 *         openAsModified(rescued);               // at the next start
 *
 * Each object has a copy of its own, which only the user can read and which goes with the object. Copies of
 * programs that still run are never taken. GUI thread only.
 */
class OZM_WIDGETS_EXPORT TemplateAutosave
{
public:
    struct Rescued
    {
        QString path; ///< Of the file that was edited; empty for a new template.
        QString content;
        QDateTime when;
    };

    /// Copies are kept by @p storageName in @p directory, by default the application's data folder.
    explicit TemplateAutosave(const QString &storageName, const QString &directory = {});
    ~TemplateAutosave();

    /// Replaces this object's copy. That it cannot be written is logged; the copy before it then stays.
    void store(const QString &path, const QString &content);

    /// The copies whose program no longer runs, the oldest first. They are removed; one that cannot be read
    /// is set aside as "*.damaged".
    [[nodiscard]] static QList<Rescued> takeRescued(const QString &storageName,
                                                    const QString &directory = {});

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm
