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

/// Where the window's template comes from and goes to, and everything that is asked on the way, so that what
/// was written is never lost: neither by a wrong file, nor by a failed save, nor by the end of the program.
class EditorFiles : public QObject
{
    Q_OBJECT

public:
    struct Template
    {
        std::function<QString()> content;
        std::function<bool()> isModified;
        std::function<void(const QString &content)> show;
        /// What is shown is nowhere in this state.
        std::function<void()> setUnsaved;
        std::function<void()> setSaved;
    };

    EditorFiles(AbstractTemplateEditor *editor, const Template &shown);
    ~EditorFiles() override;

    [[nodiscard]] QString path() const { return m_file->path(); }
    void fillRecentMenu(QMenu *menu);

    void askNew();
    void askOpen();
    bool open(const QString &path);
    bool save();
    bool askSaveAs();
    /// Asks what to do with changes; false when they are to be kept.
    [[nodiscard]] bool mayDiscard();
    /// The template that is shown now is in no file.
    void setNoFile();

    /// What is not saved is given up by the user's own word.
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
    [[nodiscard]] Result<TemplateFile::Loaded> read(const QString &path);
    bool saveTo(const IFileAccessor::DestinationFileLocation &location);
    [[nodiscard]] bool mayReplaceChanged();
    void setPath(const QString &path, const QByteArray &digest);
    [[nodiscard]] bool openRescued(const TemplateAutosave::Rescued &copy);
    void remember(const QString &path);
    void storeNow();

    AbstractTemplateEditor *m_editor;
    const Template m_shown;
    std::unique_ptr<TemplateFile> m_file;
    std::unique_ptr<TemplateAutosave> m_autosave;
    QTimer m_storeTimer;
    bool m_isAsking = false;
};

/// What is said of everything that is no template.
void tellWrongFormat(QWidget *parent);

} // namespace ozm::editor
