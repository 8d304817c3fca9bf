#pragma once

#include "editor/EditorView.h"

#include <QObject>

#include <memory>

class QStackedWidget;

namespace ozm::editor {

class CodeModel;
class EditorSession;

/// Both views of the window, of which one is shown.
class EditorViews : public QObject
{
    Q_OBJECT

public:
    EditorViews(CodeModel *codes, QWidget *window);
    ~EditorViews() override;

    [[nodiscard]] EditorView &current() const;
    [[nodiscard]] QStackedWidget *widget() const { return m_stack; }
    [[nodiscard]] RichTextView *rich() const { return m_rich; }
    [[nodiscard]] CodeEdit *plain() const { return m_plain; }

    void show(const EditorSession &session);
    /// Before the documents that they show are destroyed.
    void showNothing();
    /// Shows what @p session holds anew, as codes may be called otherwise now.
    void refresh(const EditorSession &session);

    [[nodiscard]] bool isReadOnly() const { return m_isReadOnly; }
    void setReadOnly(bool readOnly);

private:
    CodeModel *m_codes;
    QStackedWidget *m_stack;
    RichTextView *m_rich;
    CodeEdit *m_plain;
    const std::unique_ptr<EditorView> m_formattedView;
    const std::unique_ptr<EditorView> m_sourceView;
    bool m_isReadOnly = false;
};

} // namespace ozm::editor
