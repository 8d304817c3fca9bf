#pragma once

#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/TemplateDocument.h>

#include <QTextCursor>
#include <QUndoStack>

#include <memory>

namespace ozm::editor {

/// One stay in a mode: the source it began with, and the document in which that is edited.
class EditorSession
{
public:
    using Mode = AbstractTemplateEditor::Mode;

    /// In characters, embedded images among them.
    static constexpr qsizetype kLargestRich = 8'000'000;

    EditorSession(Mode mode, const QString &source);
    ~EditorSession();
    Q_DISABLE_COPY_MOVE(EditorSession)

    [[nodiscard]] Mode mode() const { return m_mode; }
    [[nodiscard]] QTextDocument *document() const { return m_document.get(); }
    /// Null in plain mode.
    [[nodiscard]] TemplateDocument *richDocument() const;

    /// To the letter what the session began with, as long as nothing of it is edited.
    [[nodiscard]] QString source() const;
    /// Does a part of what source() takes; false when all is done, and source() takes no time.
    bool prepareSource() const;
    /// As the document's positions count, which for a session that is not edited may be another.
    [[nodiscard]] QString documentSource() const;
    /// Too long for formatted text, which takes its time over each character.
    [[nodiscard]] bool isLarge() const { return m_isLarge; }
    [[nodiscard]] bool isEdited() const { return m_document->availableUndoSteps() > 0; }

private:
    const Mode m_mode;
    const bool m_isLarge;
    const QString m_plainSource; ///< Rich documents keep their own.
    std::unique_ptr<QTextDocument> m_document;
};

/**
 * The history of a template, over all changes of mode.
 *
 * Documents keep their own histories, in which only they can go back; the steps here say which of them is to
 * do so. A change of mode is a step, too, and keeps alive the documents on both sides of it.
 */
class EditorHistory : public QObject
{
    Q_OBJECT

public:
    using Mode = EditorSession::Mode;
    using SessionPointer = std::shared_ptr<EditorSession>;

    explicit EditorHistory(QObject *parent);
    ~EditorHistory() override;

    [[nodiscard]] const EditorSession &session() const { return *m_session; }
    [[nodiscard]] QUndoStack &stack() { return m_stack; }
    [[nodiscard]] const QUndoStack &stack() const { return m_stack; }

    /// True when there were edits since the template was clean; a change of mode is none.
    [[nodiscard]] bool isModified() const;

    /// Forgets everything, and begins with @p source.
    void start(Mode mode, const QString &source);
    void switchTo(Mode mode);
    void undo();
    void redo();
    void setClean();
    /// Has the next edit be a step of its own.
    void endStep();

Q_SIGNALS:
    void sessionChanged();
    void edited();
    /// Where the document was changed by undo or redo.
    void went(const QTextCursor &cursor);

private:
    class EditStep;
    class ModeStep;

    [[nodiscard]] SessionPointer newSession(Mode mode, const QString &source);
    void show(const SessionPointer &session);
    void go(void (QUndoStack::*step)());

    SessionPointer m_session;
    QUndoStack m_stack;
    bool m_going = false;
};

} // namespace ozm::editor
