#pragma once

#include <ozm_widgets/TemplateDocument.h>

#include <QTextEdit>

#include <memory>

namespace ozm::editor {

class CodeCompleter;
class CodeModel;
class ColumnDragging;

/// Paper is white, whatever the desktop is.
void setPaperColors(QWidget *widget);

/// Inserts @p text at @p cursor; codes in it become chips, tags stay text.
void insertWithCodes(TemplateDocument &document, QTextCursor &cursor, const QString &text);

/// Shows a TemplateDocument for editing. What is copied carries its source along, so that codes and scripts
/// come whole through the clipboard; codes that may not be removed stay.
class RichTextView : public QTextEdit
{
    Q_OBJECT

public:
    RichTextView(CodeModel *codes, QWidget *parent);
    ~RichTextView() override;

    /// Null shows nothing.
    void showDocument(TemplateDocument *document);
    [[nodiscard]] TemplateDocument *templateDocument() const;
    /// How far the document is scrolled to the left and up; in windows from right to left, bars count from the right.
    [[nodiscard]] QPointF scrolled() const;

    /// All of these replace the selection; a code in it that may not go keeps them from it.
    void insertSource(const QString &source);
    /// Codes in it become chips, tags stay text.
    void insertPlain(const QString &text);
    void insertImage(const QImage &image);
    void cutSelection();

    /// False, said by removalRefused(), when the selection holds a code that may not be removed.
    [[nodiscard]] bool mayRemove(const QTextCursor &selection);

    /// Puts @p begin and @p end into lines of their own around the selected ones, or around the tables that the
    /// selection begins or ends in.
    void enclose(const QString &begin, const QString &end);
    /// Puts @p source before the chip at @p position and the cursor behind it; into a line of its own, with an empty
    /// one behind it for the cursor, where the chip has its own, too.
    void insertOtherPart(int position, const QString &source);
    /// Puts @p source into a line of its own, below that of the cursor unless that one is empty.
    void insertOwnLine(const QString &source);
    /// Puts @p source into a line of its own before all others.
    void insertFirstLine(const QString &source);
    /// Merges, as chips would not outlive a format that is set.
    void mergeFormat(const QTextCharFormat &format);

Q_SIGNALS:
    void scriptActivated(int position);
    /// The cursor has it selected.
    void instructionActivated();
    void removalRefused(const QString &code);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    [[nodiscard]] QMimeData *createMimeDataFromSelection() const override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    [[nodiscard]] int chipAtPoint(const QPoint &point) const;
    [[nodiscard]] QString toolTipOf(const TemplateDocument::Chip &chip) const;
    [[nodiscard]] QTextCursor removedBy(const QKeyEvent &event) const;
    /// Tab and Shift+Tab in a table; false where they mean something else.
    bool goesToCell(const QKeyEvent &event);
    void leaveHeading();
    void closeCode();
    void replace(QTextCursor cursor, const QString &code);
    /// An empty @p source makes an empty line.
    void insertLine(const QTextBlock &block, bool isBehind, const QString &source);

    CodeModel *m_codes;
    CodeCompleter *m_completer;
    TemplateDocument *m_nothing;
    std::unique_ptr<ColumnDragging> m_columns; ///< Goes before what it watches.
};

} // namespace ozm::editor
