#pragma once

#include <QPlainTextEdit>

namespace ozm::editor {

class CodeCompleter;
class CodeModel;

/// A field for source text, with line numbers, one of which can be marked as wrong. Its documents keep their
/// history themselves, or leave it to the window.
class CodeEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit CodeEdit(QWidget *parent);

    /// True when the window undoes, rather than the field itself.
    void setUndoneOutside(bool outside) { m_isUndoneOutside = outside; }
    /// Null shows nothing.
    void showDocument(QTextDocument *document);
    void setCompletion(CodeModel *codes);
    /// Counted from 1; 0 marks none.
    void markLine(int line);
    void insertAtCursor(const QString &text);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    class Margin;

    [[nodiscard]] int marginWidth() const;
    void placeMargin();
    void paintMargin(QPaintEvent *event);

    // Declared before the margin, whose constructor already sends this widget an event.
    bool m_isUndoneOutside = false;
    int m_markedLine = 0;
    CodeCompleter *m_completer = nullptr;
    Margin *m_margin;
};

} // namespace ozm::editor
