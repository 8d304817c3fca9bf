#pragma once

#include <ozm_widgets/IFileAccessor.h>
#include <ozm_widgets/TemplateAutosave.h>
#include <ozm_widgets/TemplateFile.h>

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class AbstractTemplateEditor;
class QMenu;

namespace ozm::editor {

/// Opens and saves the window's template and asks what has to be asked on the way, so that no work is lost:
/// neither by a wrong file, nor by a failed save, nor by the end of the program.
class EditorFiles : public QObject
{
    Q_OBJECT

public:
    struct Template
    {
        /// Does a part of what content() takes; false when there is none left.
        std::function<bool()> prepare;
        std::function<QString()> content;
        std::function<bool()> isModified;
        std::function<void(const QString &content)> show;
        /// From now on the window holds unsaved work.
        std::function<void()> setUnsaved;
        std::function<void()> setSaved;
    };

    EditorFiles(AbstractTemplateEditor *editor, const Template &shown);
    ~EditorFiles() override;

    /// Where the template is, for people and for file functions; empty for one that is nowhere yet.
    [[nodiscard]] QString path() const { return m_location.toString(); }
    void fillRecentMenu(QMenu *menu);

    void askNew();
    void askOpen();
    bool open(const QString &path);
    bool save();
    bool askSaveAs();
    /// Shows how the template differs from its file, or from one that is asked for.
    void compareWithSaved() { compareWith(path()); }
    void askCompare();
    /// Asks what to do with changes; false when they are to be kept.
    [[nodiscard]] bool mayDiscard();
    /// The template that is shown now is in no file.
    void setNoFile();

    /// Drops the kept copy: the work is saved, or the user has given it up.
    void giveUp();

    void storeSoon();
    void offerRescued();
    void checkDisk();

Q_SIGNALS:
    void pathChanged();
    void saved(const QString &path);
    void told(const QString &text);

private:
    void openChosen(const QString &path);
    void compareWith(const QString &path);
    void tellNotOpened(const QString &path, const Error &error);
    [[nodiscard]] Result<TemplateFile::Loaded> read(const QString &path);
    bool saveTo(const IFileAccessor::DestinationFileLocation &location);
    [[nodiscard]] bool mayReplaceChanged();
    void setLocation(const IFileAccessor::DestinationFileLocation &location, const QByteArray &digest);
    [[nodiscard]] bool openRescued(const TemplateAutosave::Rescued &copy);
    void remember(const QString &path);
    bool storeNow();
    [[nodiscard]] bool isRescuedWanted(const TemplateAutosave::Rescued &copy);

    AbstractTemplateEditor *m_editor;
    const Template m_shown;
    IFileAccessor::DestinationFileLocation m_location; ///< As the accessor gave it, which takes it back.
    std::unique_ptr<TemplateFile> m_file;              ///< Watches a local file; follows no other.
    std::unique_ptr<TemplateAutosave> m_autosave;
    QTimer m_storeTimer;
    bool m_isAsking = false;
};

/// Tells that a text is not a template.
void tellWrongFormat(QWidget *parent);

} // namespace ozm::editor
