#include "editor/EditorView.h"

#include "editor/CodeEdit.h"
#include "editor/RichTextView.h"
#include "templates/document/TemplateChip.h"
#include "templates/instructions/InstructionSyntax.h"
#include "templates/syntax/Codes.h"
#include "templates/syntax/HtmlScanner.h"
#include "templates/syntax/ScriptTags.h"

#include <QRegularExpression>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr Qt::TextInteractionFlags kReading = Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse;

Qt::TextInteractionFlags interaction(bool readOnly)
{
    return readOnly ? kReading : Qt::TextInteractionFlags(Qt::TextEditorInteraction);
}

QTextCursor selection(QTextCursor cursor, qsizetype from, qsizetype to)
{
    cursor.setPosition(int(from));
    cursor.setPosition(int(to), QTextCursor::KeepAnchor);
    return cursor;
}

/// The instruction or code of @p source around @p position; an empty range when there is none.
syntax::ScriptRange codeAround(const QString &source, qsizetype position)
{
    const QList<HtmlToken> tokens = scanHtml(source);
    for (const HtmlElement &element : treeOf(tokens).elements)
        if (element.name == "span"_L1 && element.start <= position && position <= element.end &&
            instructions::readInstruction(source.sliced(element.start, element.end - element.start)))
            return {element.start, element.end};
    for (const HtmlToken &token : tokens)
        if (token.kind == HtmlTokenKind::Opaque && token.start <= position && position <= token.end &&
            instructions::readInstruction(source.sliced(token.start, token.end - token.start)))
            return {token.start, token.end};
    for (const auto &[start, end] : syntax::codeRanges(source))
        if (start <= position && position <= end)
            return {start, end};
    return {};
}

/// The line that holds a mark and nothing else, or the mark itself.
struct SourceLine
{
    qsizetype start;
    qsizetype end;
    bool isAlone;
};

SourceLine lineOfMark(const QString &source, qsizetype start, qsizetype end)
{
    static const QRegularExpression open(u"<(p|div|h[1-6])(?:\\s[^<>]*)?>\\s*$"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch tag = open.match(source.first(start));
    const QRegularExpression close(u"^\\s*</%1\\s*>"_s.arg(tag.captured(1)),
                                   QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch endTag = close.match(source.sliced(end));
    if (tag.hasMatch() && endTag.hasMatch())
        return {tag.capturedStart(), end + endTag.capturedEnd(), true};
    const qsizetype lineStart = source.lastIndexOf(u'\n', start - 1) + 1;
    const qsizetype lineEnd = source.indexOf(u'\n', end);
    const bool isAlone =
        (start == 0 || QStringView(source).sliced(lineStart, start - lineStart).trimmed().isEmpty()) &&
        QStringView(source)
            .sliced(end, lineEnd < 0 ? source.size() - end : lineEnd - end)
            .trimmed()
            .isEmpty();
    return {start, end, isAlone};
}

} // namespace

QWidget *FormattedView::widget() const
{
    return m_view;
}

QTextCursor FormattedView::cursor() const
{
    return m_view->textCursor();
}

void FormattedView::setCursor(const QTextCursor &cursor)
{
    m_view->setTextCursor(cursor);
    m_view->ensureCursorVisible();
}

void FormattedView::select(qsizetype offset, qsizetype /*length*/)
{
    const int position = qMax(0, m_view->templateDocument()->positionOf(offset));
    setCursor(selection(cursor(), position, position + 1));
}

void FormattedView::insertSource(const QString &source)
{
    m_view->insertSource(source);
}

void FormattedView::insertPlain(const QString &text)
{
    m_view->insertPlain(text);
}

void FormattedView::cut()
{
    m_view->cutSelection();
}

void FormattedView::copy()
{
    m_view->copy();
}

void FormattedView::paste()
{
    if (m_view->mayRemove(cursor()))
        m_view->paste();
}

void FormattedView::selectAll()
{
    m_view->selectAll();
}

void FormattedView::setReadOnly(bool readOnly)
{
    m_view->setTextInteractionFlags(interaction(readOnly));
}

bool FormattedView::mayRemove(const QTextCursor &selection) const
{
    return m_view->mayRemove(selection);
}

bool FormattedView::linkSelection(const QString &href)
{
    if (!cursor().hasSelection())
        return false;
    QTextCharFormat link;
    link.setAnchor(true);
    link.setAnchorHref(href);
    link.setFontUnderline(true);
    link.setForeground(m_view->palette().link());
    m_view->mergeFormat(link);
    return true;
}

QTextCursor FormattedView::scriptAtCursor() const
{
    const int start = cursor().selectionStart();
    for (const int position : {start, start - 1}) {
        if (m_view->templateDocument()->chipAt(position).kind == TemplateDocument::ChipKind::Script)
            return selection(cursor(), position, position + 1);
    }
    return {};
}

QTextCursor FormattedView::codeAtCursor() const
{
    const int start = cursor().selectionStart();
    for (const int position : {start, start - 1}) {
        const TemplateDocument::Chip chip = m_view->templateDocument()->chipAt(position);
        if (chip.kind == TemplateDocument::ChipKind::Code || instructions::readInstruction(chip.source))
            return selection(cursor(), position, position + 1);
    }
    return {};
}

void FormattedView::enclose(const QString &begin, const QString &end)
{
    m_view->enclose(begin, end);
}

void FormattedView::insertFirstLine(const QString &source)
{
    m_view->insertFirstLine(source);
}

void FormattedView::insertLine(const QString &source)
{
    m_view->insertOwnLine(source);
}

QList<InstructionMark> FormattedView::instructionMarks() const
{
    const TemplateDocument *document = m_view->templateDocument();
    QList<InstructionMark> marks;
    const auto next = [document](const QTextCursor &from) {
        return document->find(QString(QChar::ObjectReplacementCharacter), from);
    };
    for (QTextCursor chip = next(QTextCursor(m_view->document())); !chip.isNull(); chip = next(chip)) {
        const QString source = document->chipAt(chip.selectionStart()).source;
        if (!instructions::isInstructionComment(source))
            continue;
        if (const auto instruction = instructions::readInstruction(source))
            marks.append({chip.selectionStart(), chip.selectionEnd(), *instruction});
    }
    return marks;
}

void FormattedView::insertOtherPart(const InstructionMark &end, const QString &source)
{
    m_view->insertOtherPart(end.start, source);
}

bool FormattedView::isInRow() const
{
    return cursor().currentTable() || cursor().currentList();
}

bool FormattedView::isScript(const QTextCursor &selection) const
{
    return !selection.isNull() && selection.document() == m_view->document() && selection.hasSelection() &&
           m_view->templateDocument()->chipAt(selection.selectionStart()).kind ==
               TemplateDocument::ChipKind::Script;
}

QString FormattedView::partSource(const QTextCursor &part) const
{
    return m_view->templateDocument()->chipAt(part.selectionStart()).source;
}

void FormattedView::setPartSource(const QTextCursor &part, const QString &source)
{
    m_view->templateDocument()->setChipSource(part.selectionStart(), source);
}

QTextCursor FormattedView::insertedBeforeCursor(const QString & /*source*/) const
{
    const int end = cursor().position();
    return selection(cursor(), end - 1, end);
}

QWidget *SourceView::widget() const
{
    return m_view;
}

QTextCursor SourceView::cursor() const
{
    return m_view->textCursor();
}

void SourceView::setCursor(const QTextCursor &cursor)
{
    m_view->setTextCursor(cursor);
    m_view->centerCursor();
}

void SourceView::select(qsizetype offset, qsizetype length)
{
    setCursor(selection(cursor(), offset, offset + length));
}

void SourceView::insertSource(const QString &source)
{
    m_view->insertAtCursor(source);
}

void SourceView::insertPlain(const QString &text)
{
    m_view->insertAtCursor(text);
}

void SourceView::cut()
{
    m_view->cut();
}

void SourceView::copy()
{
    m_view->copy();
}

void SourceView::paste()
{
    m_view->paste();
}

void SourceView::selectAll()
{
    m_view->selectAll();
}

void SourceView::setReadOnly(bool readOnly)
{
    m_view->setTextInteractionFlags(interaction(readOnly));
}

bool SourceView::mayRemove(const QTextCursor & /*selection*/) const
{
    return true;
}

bool SourceView::linkSelection(const QString & /*href*/)
{
    return false;
}

QTextCursor SourceView::scriptAtCursor() const
{
    const auto script = syntax::scriptAround(m_view->toPlainText(), cursor().position());
    return script ? selection(cursor(), script->start, script->end) : QTextCursor();
}

QTextCursor SourceView::codeAtCursor() const
{
    const syntax::ScriptRange code = codeAround(m_view->toPlainText(), cursor().position());
    return code.end > code.start ? selection(cursor(), code.start, code.end) : QTextCursor();
}

void SourceView::enclose(const QString &begin, const QString &end)
{
    QTextCursor lines = cursor();
    const QTextBlock first = lines.document()->findBlock(lines.selectionStart());
    const QTextBlock last = lines.document()->findBlock(lines.selectionEnd());
    const bool isWhole = first != last || !lines.hasSelection();
    const QString lineEnd = isWhole ? QString(u'\n') : QString();
    const int start = isWhole ? first.position() : lines.selectionStart();
    const int stop = isWhole ? last.position() + last.length() - 1 : lines.selectionEnd();
    lines.beginEditBlock();
    lines.setPosition(stop);
    lines.insertText(lineEnd + end);
    lines.setPosition(start);
    lines.insertText(begin + lineEnd);
    lines.endEditBlock();
}

void SourceView::insertFirstLine(const QString &source)
{
    QTextCursor start(m_view->document());
    start.insertText(source + u'\n');
}

void SourceView::insertLine(const QString &source)
{
    QTextCursor place = cursor();
    place.movePosition(QTextCursor::EndOfBlock);
    place.insertText((place.block().text().trimmed().isEmpty() ? QString() : QString(u'\n')) + source);
    setCursor(place);
}

QList<InstructionMark> SourceView::instructionMarks() const
{
    const QString source = m_view->toPlainText();
    QList<InstructionMark> marks;
    for (const HtmlToken &token : scanHtml(source)) {
        if (token.kind != HtmlTokenKind::Opaque)
            continue;
        if (const auto instruction =
                instructions::readInstruction(source.sliced(token.start, token.end - token.start)))
            marks.append({int(token.start), int(token.end), *instruction});
    }
    return marks;
}

void SourceView::insertOtherPart(const InstructionMark &end, const QString &source)
{
    const QString content = m_view->toPlainText();
    const SourceLine line = lineOfMark(content, end.start, end.end);
    QTextCursor place = cursor();
    place.beginEditBlock();
    place.setPosition(int(line.start));
    const QString tag = content.sliced(line.start, end.start - line.start);
    const QString close = content.sliced(end.end, line.end - end.end);
    place.insertText(tag + source + close + (line.isAlone ? u"\n\n"_s : QString()));
    if (line.isAlone)
        place.movePosition(QTextCursor::PreviousCharacter);
    place.endEditBlock();
    setCursor(place);
}

bool SourceView::isInRow() const
{
    return true;
}

bool SourceView::isScript(const QTextCursor &selection) const
{
    return !selection.isNull() && selection.document() == m_view->document() &&
           syntax::isScript(selection.selectedText());
}

QString SourceView::partSource(const QTextCursor &part) const
{
    return part.selectedText().replace(QChar::ParagraphSeparator, u'\n');
}

void SourceView::setPartSource(const QTextCursor &part, const QString &source)
{
    QTextCursor(part).insertText(source);
}

QTextCursor SourceView::insertedBeforeCursor(const QString &source) const
{
    const int end = cursor().position();
    return selection(cursor(), end - source.size(), end);
}

} // namespace ozm::editor
