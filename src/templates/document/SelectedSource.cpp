#include "templates/document/SelectedSource.h"

#include "templates/document/TemplateChip.h"
#include "templates/document/TemplateSourceWriter.h"
#include "templates/instructions/InstructionTree.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextList>
#include <QTextTable>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

/// @p line, which lost its tag, so that it is read as it was: with its blanks, and as HTML where it has entities.
QString readableByItself(const QString &line, bool keepsBlanks)
{
    const bool isHtml = instructions::isHtml(line);
    const bool isBlank = !line.isEmpty() && line.trimmed().isEmpty();
    if (!isHtml && !isBlank && !line.contains(u'&'))
        return line;
    if (!keepsBlanks && !isBlank)
        return isHtml ? line : "<span>"_L1 + line + "</span>"_L1;
    return "<span style=\"white-space:pre-wrap\">"_L1 + line + "</span>"_L1;
}

/// Makes the first line of @p part an item, as @p item is, of which it has no text.
void beginItem(QTextDocument &part, const QTextBlock &item)
{
    QTextList *next = part.begin().next().textList();
    if (next && item.next().textList() == item.textList())
        next->add(part.begin());
    else
        QTextCursor(&part).createList(item.textList()->format());
}

/// Gives the last line of @p part, which stands behind a table and would not be written, the looks of @p line.
void finishBehindTable(QTextDocument &part, const QTextBlock &line)
{
    QTextCursor last(part.lastBlock());
    const QTextBlock before = last.block().previous();
    const bool isBehindTable = before.isValid() && QTextCursor(before).currentTable();
    // The line behind a table at the end of a document is there for nothing else.
    if (!isBehindTable || last.block().length() > 1 || line.length() <= 1)
        return;
    QTextBlockFormat format = line.blockFormat();
    format.setObjectIndex(-1);
    format.setProperty(kWrittenLine, true);
    last.setBlockFormat(format);
    if (const QTextList *list = line.textList())
        last.createList(list->format());
}

/// The text of @p line that is in @p selection, with its formats.
void copyText(const QTextBlock &line, const QTextCursor &selection, QTextCursor &to)
{
    for (auto at = line.begin(); !at.atEnd(); ++at) {
        const QTextFragment fragment = at.fragment();
        const int start = qMax(fragment.position(), selection.selectionStart());
        const int end = qMin(fragment.position() + fragment.length(), selection.selectionEnd());
        if (start < end)
            to.insertText(fragment.text().sliced(start - fragment.position(), end - start),
                          fragment.charFormat());
    }
}

} // namespace

void removeEmptyLine(QTextCursor &line)
{
    const QTextBlock next = line.block().next();
    const QTextBlockFormat format = next.blockFormat();
    QTextList *list = next.textList();
    // As a selection: the end of a line that comes from behind a table cannot be deleted as a character.
    line.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    line.removeSelectedText();
    line.setBlockFormat(format);
    if (list)
        list->add(line.block());
}

QString selectedSource(const QTextCursor &selection)
{
    QTextDocument part;
    QTextCursor cursor(&part);
    const QTextBlock first = selection.document()->findBlock(selection.selectionStart());
    if (!first.contains(selection.selectionEnd())) {
        cursor.insertFragment(selection.selection());
        cursor.movePosition(QTextCursor::Start);
        // The part of an item comes in behind a line of its own.
        const bool hasItem =
            first.textList() && selection.selectionStart() < first.position() + first.length() - 1;
        if (hasItem && cursor.atBlockEnd() && !cursor.currentList() && cursor.block().next().textList())
            removeEmptyLine(cursor);
        QTextBlockFormat format = first.blockFormat();
        // A list of the other document is not one of this.
        const QTextList *list = part.begin().textList();
        format.setObjectIndex(list ? part.begin().blockFormat().objectIndex() : -1);
        QTextCursor(&part).setBlockFormat(format);
        const bool isItem = selection.selectionStart() == first.position() || first.next().textList();
        if (!list && first.textList() && isItem)
            beginItem(part, first);
        finishBehindTable(part, selection.document()->findBlock(selection.selectionEnd()));
        return writeSource(part).text;
    }
    copyText(first, selection, cursor);
    const QString line = writeSource(part).text;
    const qsizetype start = line.indexOf(u'>') + 1;
    const QString inner = line.sliced(start, qMax(qsizetype(0), line.lastIndexOf(u'<') - start));
    return readableByItself(inner, line.first(start).contains("white-space"_L1));
}

} // namespace ozm::editor
