#pragma once

#include "editor/SectionPlaces.h"

#include <QTextCursor>

class QWidget;

namespace ozm::editor {

class CodeEdit;
class RichTextView;

/// One way to look at a template and to edit it: as formatted text, or as its source.
class EditorView
{
public:
    EditorView() = default;
    virtual ~EditorView() = default;
    EditorView(const EditorView &) = delete;
    EditorView &operator=(const EditorView &) = delete;

    [[nodiscard]] virtual QWidget *widget() const = 0;
    [[nodiscard]] virtual QTextCursor cursor() const = 0;
    /// Scrolls there, too.
    virtual void setCursor(const QTextCursor &cursor) = 0;

    /// Selects @p length characters of the source, or the chip that they are shown as.
    virtual void select(qsizetype offset, qsizetype length) = 0;

    virtual void insertSource(const QString &source) = 0;
    virtual void insertPlain(const QString &text) = 0;
    virtual void cut() = 0;
    virtual void copy() = 0;
    virtual void paste() = 0;
    virtual void selectAll() = 0;
    virtual void setReadOnly(bool readOnly) = 0;

    /// False when the selection holds a code that may not be removed.
    [[nodiscard]] virtual bool mayRemove(const QTextCursor &selection) const = 0;
    /// Makes the selection a link; false when there is none, or when the view has no links.
    virtual bool linkSelection(const QString &href) = 0;

    /// The script at the cursor as a selection; null when there is none.
    [[nodiscard]] virtual QTextCursor scriptAtCursor() const = 0;
    [[nodiscard]] virtual bool isScript(const QTextCursor &selection) const = 0;
    /// The code or instruction at the cursor as a selection; null when there is none.
    [[nodiscard]] virtual QTextCursor codeAtCursor() const = 0;
    /// The source of what scriptAtCursor() or codeAtCursor() gave, with its tags or brackets.
    [[nodiscard]] virtual QString partSource(const QTextCursor &part) const = 0;
    virtual void setPartSource(const QTextCursor &part, const QString &source) = 0;
    /// Puts @p begin and @p end around the selected lines.
    virtual void enclose(const QString &begin, const QString &end) = 0;
    /// Puts @p source into a line of its own at the beginning; the cursor stays at its place.
    virtual void insertFirstLine(const QString &source) = 0;
    /// Puts @p source into a line of its own, below that of the cursor unless that one is empty.
    virtual void insertLine(const QString &source) = 0;
    /// The instructions in comments, in their order.
    [[nodiscard]] virtual QList<InstructionMark> instructionMarks() const = 0;
    /// Begins the other part of the section that @p end ends with @p source, right before that, and puts the cursor
    /// into it. Where @p end has a line of its own, so has @p source, with an empty line for the part.
    virtual void insertOtherPart(const InstructionMark &end, const QString &source) = 0;
    /// True when the cursor may stand in a table row or list item.
    [[nodiscard]] virtual bool isInRow() const = 0;
    /// The @p source that was just inserted before the cursor, as a selection.
    [[nodiscard]] virtual QTextCursor insertedBeforeCursor(const QString &source) const = 0;
};

class FormattedView : public EditorView
{
public:
    explicit FormattedView(RichTextView *view)
        : m_view(view)
    {}

    [[nodiscard]] QWidget *widget() const override;
    [[nodiscard]] QTextCursor cursor() const override;
    void setCursor(const QTextCursor &cursor) override;
    void select(qsizetype offset, qsizetype length) override;
    void insertSource(const QString &source) override;
    void insertPlain(const QString &text) override;
    void cut() override;
    void copy() override;
    void paste() override;
    void selectAll() override;
    void setReadOnly(bool readOnly) override;
    [[nodiscard]] bool mayRemove(const QTextCursor &selection) const override;
    bool linkSelection(const QString &href) override;
    [[nodiscard]] QTextCursor scriptAtCursor() const override;
    [[nodiscard]] bool isScript(const QTextCursor &selection) const override;
    [[nodiscard]] QTextCursor codeAtCursor() const override;
    [[nodiscard]] QString partSource(const QTextCursor &part) const override;
    void setPartSource(const QTextCursor &part, const QString &source) override;
    void enclose(const QString &begin, const QString &end) override;
    void insertFirstLine(const QString &source) override;
    void insertLine(const QString &source) override;
    [[nodiscard]] QList<InstructionMark> instructionMarks() const override;
    void insertOtherPart(const InstructionMark &end, const QString &source) override;
    [[nodiscard]] bool isInRow() const override;
    [[nodiscard]] QTextCursor insertedBeforeCursor(const QString &source) const override;

private:
    RichTextView *const m_view;
};

class SourceView : public EditorView
{
public:
    explicit SourceView(CodeEdit *view)
        : m_view(view)
    {}

    [[nodiscard]] QWidget *widget() const override;
    [[nodiscard]] QTextCursor cursor() const override;
    void setCursor(const QTextCursor &cursor) override;
    void select(qsizetype offset, qsizetype length) override;
    void insertSource(const QString &source) override;
    void insertPlain(const QString &text) override;
    void cut() override;
    void copy() override;
    void paste() override;
    void selectAll() override;
    void setReadOnly(bool readOnly) override;
    [[nodiscard]] bool mayRemove(const QTextCursor &selection) const override;
    bool linkSelection(const QString &href) override;
    [[nodiscard]] QTextCursor scriptAtCursor() const override;
    [[nodiscard]] bool isScript(const QTextCursor &selection) const override;
    [[nodiscard]] QTextCursor codeAtCursor() const override;
    [[nodiscard]] QString partSource(const QTextCursor &part) const override;
    void setPartSource(const QTextCursor &part, const QString &source) override;
    void enclose(const QString &begin, const QString &end) override;
    void insertFirstLine(const QString &source) override;
    void insertLine(const QString &source) override;
    [[nodiscard]] QList<InstructionMark> instructionMarks() const override;
    void insertOtherPart(const InstructionMark &end, const QString &source) override;
    [[nodiscard]] bool isInRow() const override;
    [[nodiscard]] QTextCursor insertedBeforeCursor(const QString &source) const override;

private:
    CodeEdit *const m_view;
};

} // namespace ozm::editor
