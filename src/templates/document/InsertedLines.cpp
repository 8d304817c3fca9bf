#include "templates/document/InsertedLines.h"

#include "templates/document/LineStyle.h"
#include "templates/document/ParagraphClass.h"
#include "templates/document/TemplateChip.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextList>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

using NextLine = QTextBlock (QTextBlock::*)() const;

bool isSameKind(const QTextList &a, const QTextList &b)
{
    return a.format().style() == b.format().style() && a.format().indent() == b.format().indent();
}

/// True where nothing says which kind of line @p line is.
bool isPartOfLine(const QTextBlock &line)
{
    const QTextBlockFormat format = line.blockFormat();
    return !line.textList() && !format.boolProperty(kWrittenLine) &&
           !format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth) &&
           format.headingLevel() == 0 && format.topMargin() == 0 && format.bottomMargin() == 0 &&
           paragraphClass(line).isEmpty() &&
           std::ranges::all_of(blockDeclarations(line, {}),
                               [](const QString &each) { return each.startsWith("white-space"_L1); });
}

/// The list of the same kind as @p list that its items would go on with, from @p beside on in the direction of @p step.
QTextList *listBeside(QTextBlock beside, NextLine step, const QTextList &list)
{
    for (; QTextList *other = beside.textList(); beside = (beside.*step)())
        if (other->format().indent() <= list.format().indent())
            return isSameKind(*other, list) ? other : nullptr;
    return nullptr;
}

void moveItems(QTextList &from, QTextList &to)
{
    // The list goes with its last item.
    for (int left = from.count(); left > 0; --left)
        to.add(from.item(0));
}

/// Joins the lists from @p line to @p last with those that stand beside it, in the direction that @p step leads away from.
void joinLists(QTextBlock line, const QTextBlock &last, NextLine away, NextLine step)
{
    const QTextBlock beside = (line.*step)();
    int lowest = std::numeric_limits<int>::max();
    for (; QTextList *list = line.textList(); line = (line.*away)()) {
        const bool isOuter = list->format().indent() < lowest;
        lowest = qMin(lowest, list->format().indent());
        if (QTextList *other = isOuter ? listBeside(beside, step, *list) : nullptr; other && other != list)
            moveItems(*list, *other);
        if (line == last)
            break;
    }
}

/// Gives @p item the spaces that the reader gives it: only around a list that is in no other.
void spaceItem(const QTextBlock &item)
{
    const QTextList *list = item.textList();
    if (!list || !paragraphClass(item).isEmpty())
        return;
    const QTextBlockFormat usual =
        list->format().indent() > 1 ? QTextBlockFormat() : paragraphDefaults().block;
    const int number = list->itemNumber(item);
    QTextBlockFormat spaces;
    spaces.setTopMargin(number == 0 ? usual.topMargin() : 0);
    spaces.setBottomMargin(number + 1 == list->count() ? usual.bottomMargin() : 0);
    QTextCursor(item).mergeBlockFormat(spaces);
}

/// Lines on their way into another document.
class LinesOnTheirWay
{
public:
    LinesOnTheirWay(QTextCursor &cursor, const QTextDocument &lines)
        : m_cursor(cursor)
        , m_document(*cursor.document())
        , m_lines(lines)
        , m_first(lines.begin())
    {}

    void run()
    {
        const bool isEmptyLine = m_cursor.block().length() <= 1;
        const bool isOneLine = m_lines.blockCount() == 1;
        const QTextBlockFormat old = m_cursor.blockFormat();
        const bool hasRest = !m_cursor.atBlockEnd();
        const bool hasLooks = m_cursor.atBlockStart() &&
                              (!isOneLine || m_first.textList() || (isEmptyLine && !isPartOfLine(m_first)));
        const int number = m_cursor.blockNumber();
        if (hasLooks)
            takeLooks();
        insertText();
        const QTextBlock line = m_document.findBlockByNumber(number);
        const QTextBlock last = m_cursor.block();
        if (hasLooks && hasRest && last != line)
            moveRun(old, line, last);
        if (m_first.textList() && line.textList() && isSameKind(*m_first.textList(), *line.textList()))
            goOn(line);
        if (hasLooks)
            joinLists(line, last, &QTextBlock::next, &QTextBlock::previous);
        else if (line != last)
            joinLists(line.next(), last, &QTextBlock::next, &QTextBlock::previous);
        if (line != last)
            joinLists(last, line, &QTextBlock::previous, &QTextBlock::next);
        const QTextBlock end = last.next().next();
        for (QTextBlock item = line.previous().isValid() ? line.previous() : line;
             item.isValid() && item != end; item = item.next())
            spaceItem(item);
    }

private:
    void takeLooks()
    {
        QTextList *own = m_cursor.currentList();
        const QTextList *list = m_first.textList();
        const bool staysItem = own && list && isSameKind(*own, *list);
        QTextBlockFormat format = m_first.blockFormat();
        format.setObjectIndex(staysItem ? m_cursor.blockFormat().objectIndex() : -1);
        if (m_cursor.blockFormat().hasProperty(kSourceRun))
            format.setProperty(kSourceRun, m_cursor.blockFormat().property(kSourceRun));
        m_cursor.setBlockFormat(format);
        if (list && !staysItem)
            m_cursor.createList(list->format());
    }

    // At the very beginning of a document, the toolkit would give the line the looks of the first one in any case.
    void insertText()
    {
        const bool isBeginning = m_cursor.position() == 0;
        if (isBeginning)
            m_cursor.insertText(u"x"_s);
        m_cursor.insertFragment(QTextDocumentFragment(&m_lines));
        if (isBeginning)
            QTextCursor(&m_document).deleteChar();
    }

    // The rest of the line that was parted is what the source has of it.
    static void moveRun(const QTextBlockFormat &old, const QTextBlock &line, const QTextBlock &last)
    {
        if (!old.hasProperty(kSourceRun))
            return;
        QTextBlockFormat format = line.blockFormat();
        format.clearProperty(kSourceRun);
        QTextCursor(line).setBlockFormat(format);
        QTextBlockFormat run;
        run.setProperty(kSourceRun, old.property(kSourceRun));
        QTextCursor(last).mergeBlockFormat(run);
    }

    /// Makes the further items of the list that begins with the first line items of the list that @p line is in.
    void goOn(const QTextBlock &line)
    {
        for (QTextBlock each = m_first.next(); each.isValid(); each = each.next())
            if (each.textList() == m_first.textList())
                line.textList()->add(m_document.findBlockByNumber(line.blockNumber() + each.blockNumber()));
    }

    QTextCursor &m_cursor;
    QTextDocument &m_document;
    const QTextDocument &m_lines;
    const QTextBlock m_first;
};

} // namespace

void insertLines(QTextCursor &cursor, const QTextDocument &lines)
{
    LinesOnTheirWay(cursor, lines).run();
}

} // namespace ozm::editor
