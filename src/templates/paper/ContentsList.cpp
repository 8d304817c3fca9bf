#include "templates/paper/ContentsList.h"

#include "templates/instructions/InstructionTree.h"

#include <QAbstractTextDocumentLayout>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::paper {

namespace {

using instructions::Contents;
using instructions::InstructedPart;

constexpr auto kContentsStart = "<!--ozm:contents"_L1;
constexpr char16_t kFirstMark = 0xE000;
constexpr char16_t kLastMark = 0xF8FF;

/// A character that @p text has not.
QChar freeMark(const QString &text)
{
    char16_t mark = kFirstMark;
    while (mark < kLastMark && text.contains(QChar(mark)))
        ++mark;
    return QChar(mark);
}

QList<InstructedPart> contentsIn(const QString &decoded)
{
    QList<InstructedPart> parts = instructions::instructionsOf(decoded).parts;
    parts.removeIf(
        [](const InstructedPart &part) { return !std::holds_alternative<Contents>(part.instruction); });
    std::ranges::sort(parts, {}, [](const InstructedPart &part) { return part.range.start; });
    return parts;
}

QString listOf(const Contents &contents, const QList<Heading> &headings, QChar mark)
{
    QString html;
    if (!contents.title.isEmpty())
        html += "<p class=\"report-contents-title\">"_L1 + contents.title.toHtmlEscaped() + "</p>"_L1;
    QString rows;
    for (qsizetype index = 0; index < headings.size(); ++index) {
        const Heading &heading = headings.at(index);
        if (heading.level > contents.levels)
            continue;
        rows +=
            u"<tr><td><p class=\"report-contents-%1\">"_s.arg(heading.level) + heading.text.toHtmlEscaped() +
            "</p></td><td width=\"40\" valign=\"bottom\"><p class=\"report-contents-page\" align=\"right\">"_L1 +
            mark + QString::number(index) + "</p></td></tr>"_L1;
    }
    if (!rows.isEmpty())
        html += "<table border=\"0\" width=\"100%\" cellspacing=\"0\" cellpadding=\"1\">"_L1 + rows +
                "</table>"_L1;
    return html;
}

} // namespace

QList<Heading> headingsOf(const QTextDocument &document)
{
    QList<Heading> headings;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        const QString text =
            level > 0 ? block.text().remove(QChar::ObjectReplacementCharacter).simplified() : QString();
        if (!text.isEmpty())
            headings.append({text, level, block});
    }
    return headings;
}

bool asksForContents(const QString &decoded)
{
    return decoded.contains(kContentsStart);
}

ContentsList::ContentsList(const QString &decoded, QTextDocument &document)
    : m_document(document)
{
    const QList<Heading> headings = headingsOf(document);
    const QChar mark = freeMark(decoded);
    QString html = decoded;
    const QList<InstructedPart> parts = contentsIn(decoded);
    // From the last one on, so that the places of those before hold.
    for (qsizetype index = parts.size(); index-- > 0;) {
        const InstructedPart &part = parts.at(index);
        html.replace(part.range.start, part.range.end - part.range.start,
                     listOf(std::get<Contents>(part.instruction), headings, mark));
    }
    document.setHtml(html);
    for (QTextCursor found = document.find(QString(mark)); !found.isNull();
         found = document.find(QString(mark), found)) {
        found.removeSelectedText();
        m_numbers.append({found.block().text().toInt(), found});
    }
}

QList<ContentsList::Entry> ContentsList::entries() const
{
    const QAbstractTextDocumentLayout &layout = *m_document.documentLayout();
    QList<Entry> entries;
    for (const Number &number : m_numbers) {
        const QTextTable *table = number.place.currentTable();
        const int row = table ? table->cellAt(number.place).row() : 0;
        QRectF area = layout.blockBoundingRect(number.place.block());
        for (int column = 0; table && column < table->columns(); ++column)
            area |= layout.blockBoundingRect(table->cellAt(row, column).firstCursorPosition().block());
        entries.append({number.heading, area});
    }
    return entries;
}

bool ContentsList::setNumbers(const std::function<int(const Heading &heading)> &pageOf)
{
    const QList<Heading> headings = headingsOf(m_document);
    bool isChanged = false;
    for (Number &number : m_numbers) {
        number.place.movePosition(QTextCursor::StartOfBlock);
        number.place.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        const QString page = QString::number(pageOf(headings.at(number.heading)));
        if (number.place.selectedText() == page)
            continue;
        isChanged = true;
        number.place.insertText(page, number.place.charFormat());
    }
    return isChanged;
}

} // namespace ozm::paper
