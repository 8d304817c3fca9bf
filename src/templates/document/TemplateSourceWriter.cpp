#include "templates/document/TemplateSourceWriter.h"

#include "templates/document/InlineHtml.h"
#include "templates/document/LineStyle.h"
#include "templates/document/ParagraphClass.h"
#include "templates/document/TemplateChip.h"
#include "templates/syntax/Codes.h"

#include <QSet>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

QTextCharFormat headerCellText()
{
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    return format;
}

struct ListRow
{
    QTextListFormat::Style style;
    QLatin1StringView tag;
    QLatin1StringView type;
};

constexpr std::array kLists{
    ListRow{QTextListFormat::ListDisc, "ul"_L1, ""_L1},
    ListRow{QTextListFormat::ListCircle, "ul"_L1, " type=\"circle\""_L1},
    ListRow{QTextListFormat::ListSquare, "ul"_L1, " type=\"square\""_L1},
    ListRow{QTextListFormat::ListDecimal, "ol"_L1, ""_L1},
    ListRow{QTextListFormat::ListLowerAlpha, "ol"_L1, " type=\"a\""_L1},
    ListRow{QTextListFormat::ListUpperAlpha, "ol"_L1, " type=\"A\""_L1},
    ListRow{QTextListFormat::ListLowerRoman, "ol"_L1, " type=\"i\""_L1},
    ListRow{QTextListFormat::ListUpperRoman, "ol"_L1, " type=\"I\""_L1},
};

const ListRow &listRow(const QTextListFormat &format)
{
    const auto *found = std::ranges::find(kLists, format.style(), &ListRow::style);
    return found == kLists.end() ? kLists.front() : *found;
}

// These end a paragraph.
constexpr std::array kBlockMarkup{"<table"_L1, "<ul"_L1, "<ol"_L1, "<div"_L1, "<p"_L1};

bool hasBlockMarkup(const QTextBlock &block)
{
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextCharFormat format = at.fragment().charFormat();
        const QString markup = isChip(format) ? chipPart(format).source : QString();
        for (const QLatin1StringView tag : kBlockMarkup)
            if (markup.startsWith(tag, Qt::CaseInsensitive))
                return true;
    }
    return false;
}

bool isRuler(const QTextBlock &block)
{
    return block.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
}

bool isObject(const QTextCharFormat &format)
{
    return isChip(format) || format.isImageFormat();
}

// The character that stands for an object, where there is none.
QString plainText(const QTextFragment &fragment)
{
    return fragment.text().replace(QChar::ObjectReplacementCharacter, QChar::ReplacementCharacter);
}

} // namespace

class SourceWriting::Writer
{
public:
    explicit Writer(const QTextDocument &document)
        : m_walk(document.rootFrame()->begin(), document.rootFrame()->end())
    {}

    bool goOn(const QDeadlineTimer &deadline)
    {
        while (m_walk.at != m_walk.end) {
            writeNext(m_walk, {}, 0);
            if (deadline.hasExpired())
                break;
        }
        return m_walk.at == m_walk.end;
    }

    WrittenSource take()
    {
        closeLists(0);
        endItem();
        if (m_out.text.endsWith(u'\n')) {
            m_out.text.chop(1);
            for (WrittenLine &line : m_out.lines)
                line.end = qMin(line.end, m_out.text.size());
        }
        return std::move(m_out);
    }

private:
    void add(const QString &text) { m_out.text += text; }

    void addStructure(const QString &tag) { m_out.items.last().steps.append({tag}); }

    void beginItem()
    {
        if (m_depth > 0)
            return;
        endItem();
        m_out.items.append({m_out.text.size(), m_out.text.size(), {}});
    }

    void endItem()
    {
        if (!m_out.items.isEmpty())
            m_out.items.last().end = m_out.text.size();
    }

    WrittenLine &beginLine(const QTextBlock &block)
    {
        const QTextBlockFormat format = block.blockFormat();
        const int run = format.hasProperty(kSourceRun) ? format.intProperty(kSourceRun) : -1;
        m_out.items.last().steps.append({{}, int(m_out.lines.size())});
        m_out.lines.append({run, block.position(), m_out.text.size()});
        return m_out.lines.last();
    }

    void beginInner() { m_out.lines.last().innerStart = m_out.text.size(); }

    void endInner()
    {
        m_out.lines.last().innerEnd = m_out.text.size();
        m_out.lines.last().end = m_out.text.size();
    }

    /// The parts of a frame, and how far they are written.
    struct Walk
    {
        Walk(const QTextFrame::iterator &first, const QTextFrame::iterator &last)
            : at(first)
            , end(last)
        {}

        QTextFrame::iterator at;
        QTextFrame::iterator end;
        bool afterFrame = true;
    };

    void writeBlocks(const QTextFrame::iterator &first, const QTextFrame::iterator &last,
                     const Surroundings &around)
    {
        const qsizetype listsOutside = m_lists.size();
        Walk walk(first, last);
        while (walk.at != walk.end)
            writeNext(walk, around, listsOutside);
        closeLists(listsOutside);
    }

    void writeNext(Walk &walk, const Surroundings &around, qsizetype listsOutside)
    {
        QTextFrame *child = walk.at.currentFrame();
        const QTextBlock block = walk.at.currentBlock();
        ++walk.at;
        const bool beforeFrame = walk.at == walk.end || walk.at.currentFrame();
        if (child) {
            closeLists(listsOutside);
            beginItem();
            writeFrame(child, around);
        } else if (!(walk.afterFrame && beforeFrame && isEmpty(block))) {
            // An empty block alone between frames is there because a frame needs one at its edges.
            writeBlock(block, around, listsOutside);
        }
        walk.afterFrame = child;
    }

    static bool isEmpty(const QTextBlock &block)
    {
        return block.length() <= 1 && !isRuler(block) && !block.textList() &&
               !block.blockFormat().boolProperty(kWrittenLine);
    }

    void writeFrame(QTextFrame *frame, const Surroundings &around)
    {
        if (auto *table = qobject_cast<QTextTable *>(frame))
            writeTable(*table, around);
        else
            writeBlocks(frame->begin(), frame->end(), around);
    }

    void writeBlock(const QTextBlock &block, const Surroundings &around, qsizetype listsOutside)
    {
        if (QTextList *list = block.textList()) {
            enterList(list, listsOutside);
            // An item hands its alignment, margins and colour down to the lists in it.
            const bool isInner = m_lists.size() > listsOutside + 1;
            const Surroundings own = isInner ? m_listItems.at(m_lists.size() - 2) : around;
            const QTextBlockFormat format = block.blockFormat();
            m_listItems.resize(m_lists.size());
            m_listItems.last() = {around.text,
                                  format.hasProperty(QTextFormat::BlockAlignment)
                                      ? format.alignment() & Qt::AlignHorizontal_Mask
                                      : Qt::Alignment(Qt::AlignLeft),
                                  format.leftMargin(), format.rightMargin(),
                                  own.isColoured || format.background().style() != Qt::NoBrush};
            const QStringList css = blockDeclarations(block, own);
            // The reader makes no line of an item in which a list comes first.
            const bool hasLine = block.length() <= 1 && isListBelow(block.next(), *list);
            const QString itsClass = classAttribute(paragraphClass(block));
            beginLine(block);
            add("<li"_L1 + (hasLine ? QString() : itsClass) + styleAttribute(css) + u'>');
            beginInner();
            if (hasLine)
                add("<div"_L1 + itsClass + "><br/></div>"_L1);
            writeText(block, around.text);
            endInner();
            return;
        }
        closeLists(listsOutside);
        beginItem();
        if (isRuler(block))
            writeRuler(block);
        // Text that was typed on a rule is a line behind it.
        if (!isRuler(block) || block.length() > 1)
            writeParagraph(block, around);
    }

    static bool isListBelow(const QTextBlock &block, const QTextList &list)
    {
        return block.isValid() && block.textList() &&
               block.textList()->format().indent() > list.format().indent();
    }

    void writeRuler(const QTextBlock &block)
    {
        const QTextLength width =
            block.blockFormat().lengthProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
        beginLine(block);
        beginInner();
        endInner();
        add("<hr"_L1 + widthAttribute(width) + "/>\n"_L1);
        m_out.lines.last().end = m_out.text.size();
    }

    void writeParagraph(const QTextBlock &block, const Surroundings &around)
    {
        const QTextBlockFormat format = block.blockFormat();
        const int level = format.headingLevel();
        const TagDefaults &defaults = level > 0 ? headingDefaults(level) : paragraphDefaults();
        QString tag = level > 0 ? u"h%1"_s.arg(level) : u"p"_s;
        QStringList css = blockDeclarations(block, around);
        const bool hasMargins = format.topMargin() != 0 || format.bottomMargin() != 0;
        if (level == 0 && (!hasMargins || hasBlockMarkup(block)))
            tag = u"div"_s;
        if (tag == "div"_L1 ? hasMargins
                            : format.topMargin() != defaults.block.topMargin() ||
                                  format.bottomMargin() != defaults.block.bottomMargin()) {
            css.append("margin-top:"_L1 + px(format.topMargin()));
            css.append("margin-bottom:"_L1 + px(format.bottomMargin()));
        }
        const bool empty = block.length() <= 1;
        beginLine(block);
        add(u'<' + tag + classAttribute(paragraphClass(block)) + styleAttribute(css) + u'>');
        beginInner();
        // A break by itself would be read as an empty line.
        const bool isBreak = block.text() == QChar::LineSeparator;
        if (empty || isBreak)
            add(isBreak ? u"<span>"_s : u"<br/>"_s);
        QTextCharFormat base = around.text;
        if (level > 0)
            base.merge(defaults.text);
        writeText(block, base);
        if (isBreak)
            add(u"</span>"_s);
        endInner();
        add("</"_L1 + tag + ">\n"_L1);
        m_out.lines.last().end = m_out.text.size();
    }

    // The reader hands a block's colour down to its text.
    static QTextCharFormat withBackground(QTextCharFormat base, const QTextFormat &outer)
    {
        if (outer.background().style() != Qt::NoBrush)
            base.setBackground(outer.background());
        return base;
    }

    void writeText(const QTextBlock &block, const QTextCharFormat &around)
    {
        const QTextCharFormat base = withBackground(around, block.blockFormat());
        findLooseBrackets(block);
        InlineTags open;
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextFragment fragment = at.fragment();
            const InlineTags tags = inlineTags(fragment.charFormat(), base);
            if (!(tags == open)) {
                add(open.close + tags.open);
                open = tags;
            }
            writeFragment(fragment);
        }
        add(open.close);
    }

    // Brackets that are not a chip would become a code once they are written side by side.
    void findLooseBrackets(const QTextBlock &block)
    {
        m_looseBrackets.clear();
        QString text;
        for (auto at = block.begin(); !at.atEnd(); ++at)
            text += isObject(at.fragment().charFormat()) ? at.fragment().text() : plainText(at.fragment());
        for (const auto &[start, end] : syntax::codeRanges(text))
            if (!QStringView(text).sliced(start, end - start).contains(QChar::ObjectReplacementCharacter))
                m_looseBrackets.insert(block.position() + int(start));
    }

    void addText(const QString &text, int position)
    {
        if (m_looseBrackets.isEmpty() || !text.contains(u'[')) {
            add(escaped(text));
            return;
        }
        for (int i = 0; i < text.size(); ++i)
            add(m_looseBrackets.contains(position + i) ? u"&#91;"_s : escaped(text.at(i)));
    }

    void writeFragment(const QTextFragment &fragment)
    {
        const QTextCharFormat format = fragment.charFormat();
        const QString text = fragment.text();
        if (!isObject(format) || !text.contains(QChar::ObjectReplacementCharacter)) {
            addText(plainText(fragment), fragment.position());
            return;
        }
        // Neighbours of the same format, as two of the same code are, come as one fragment.
        for (int i = 0; i < text.size(); ++i) {
            if (text.at(i) != QChar::ObjectReplacementCharacter) {
                add(escaped(text.at(i)));
            } else if (isChip(format)) {
                const qsizetype start = m_out.text.size();
                add(chipPart(format).source);
                m_out.chips.append({start, m_out.text.size(), fragment.position() + i});
            } else {
                add(imageTag(format.toImageFormat()));
            }
        }
    }

    void enterList(QTextList *list, qsizetype listsOutside)
    {
        const qsizetype known = m_lists.indexOf(list);
        if (known >= listsOutside) {
            closeLists(known + 1);
            add(u"</li>\n"_s);
            return; // in the item that the list began
        }
        const int indent = list->format().indent();
        while (m_lists.size() > listsOutside && m_lists.last()->format().indent() >= indent)
            closeLists(m_lists.size() - 1);
        if (m_lists.isEmpty())
            beginItem();
        const ListRow &row = listRow(list->format());
        addStructure(u'(' + row.tag + row.type);
        add(u'<' + row.tag + row.type + ">\n"_L1);
        m_lists.append(list);
    }

    void closeLists(qsizetype keep)
    {
        while (m_lists.size() > keep) {
            addStructure(u")"_s);
            add("</li>\n</"_L1 + listRow(m_lists.last()->format()).tag + ">\n"_L1);
            m_lists.removeLast();
        }
    }

    static QString widthAttribute(const QTextLength &width)
    {
        if (width.type() == QTextLength::FixedLength && width.rawValue() > 0)
            return u" width=\"%1\""_s.arg(width.rawValue());
        return width.type() == QTextLength::PercentageLength ? u" width=\"%1%\""_s.arg(width.rawValue())
                                                             : QString();
    }

    void writeTable(QTextTable &table, const Surroundings &around)
    {
        const QTextTableFormat format = table.format();
        QStringList css;
        if (format.borderCollapse())
            css.append(u"border-collapse:collapse"_s);
        if (format.background().style() == Qt::SolidPattern)
            css.append("background-color:"_L1 + cssColor(format.background().color()));
        const Qt::Alignment alignment = format.alignment() & Qt::AlignHorizontal_Mask;
        const qsizetype start = m_out.text.size();
        add(u"<table border=\"%1\" cellspacing=\"%2\" cellpadding=\"%3\""_s.arg(
                QString::number(format.border()), QString::number(format.cellSpacing()),
                QString::number(format.cellPadding())) +
            widthAttribute(format.width()) +
            (alignment & Qt::AlignHCenter          ? u" align=\"center\""_s
             : alignment & Qt::AlignRight          ? u" align=\"right\""_s
             : around.alignment & Qt::AlignHCenter ? u" align=\"left\""_s
                                                   : QString()) +
            styleAttribute(css) + ">\n"_L1);
        addStructure(m_out.text.sliced(start));
        ++m_depth;
        // Letters look as around the table, on the colour of their own cell.
        QTextCharFormat text = around.text;
        text.clearBackground();
        writeRows(table, text);
        --m_depth;
        add(u"</table>\n"_s);
    }

    void writeRows(QTextTable &table, const QTextCharFormat &text)
    {
        const int headers = qMin(table.format().headerRowCount(), table.rows());
        for (int row = 0; row < table.rows(); ++row) {
            add(row == 0 && headers > 0 ? u"<thead><tr>"_s : u"<tr>"_s);
            addStructure(row < headers ? u"<thead>"_s : u"<tr>"_s);
            for (int column = 0; column < table.columns(); ++column) {
                const QTextTableCell cell = table.cellAt(row, column);
                if (cell.row() == row && cell.column() == column)
                    writeCell(table, cell, row < headers, text);
            }
            add(row + 1 == headers ? u"</tr></thead>\n"_s : u"</tr>\n"_s);
        }
    }

    void writeCell(const QTextTable &table, const QTextTableCell &cell, bool header,
                   const QTextCharFormat &text)
    {
        const QString tag = header ? u"th"_s : u"td"_s;
        add(u'<' + tag + cellAttributes(table, cell));
        addStructure(u'<' + tag + cellAttributes(table, cell) +
                     styleAttribute(cellDeclarations(table, cell)));
        Surroundings around{text};
        if (header)
            around = {headerCellText(), Qt::AlignHCenter};
        around.text = withBackground(around.text, cell.format());
        const QTextBlock first = cell.firstCursorPosition().block();
        const bool single = first == cell.lastCursorPosition().block() && !first.textList() &&
                            !isRuler(first) && cell.begin().currentFrame() == nullptr;
        if (single && isPlain(first)) {
            beginLine(first);
            add(styleAttribute(blockDeclarations(first, around) + cellDeclarations(table, cell)) + u'>');
            beginInner();
            writeText(first, around.text);
            endInner();
        } else {
            add(styleAttribute(cellDeclarations(table, cell)) + u'>');
            writeBlocks(cell.begin(), cell.end(), around);
        }
        add("</"_L1 + tag + u'>');
    }

    // Nothing but an alignment, which the cell can carry, and blanks that count.
    static bool isPlain(const QTextBlock &block)
    {
        QTextBlockFormat rest = block.blockFormat();
        return paragraphClass(block).isEmpty() && rest.headingLevel() == 0 && rest.topMargin() == 0 &&
               rest.bottomMargin() == 0 && rest.leftMargin() == 0 && rest.rightMargin() == 0 &&
               rest.textIndent() == 0 && rest.indent() == 0 && rest.background().style() == Qt::NoBrush &&
               rest.pageBreakPolicy() == QTextFormat::PageBreak_Auto &&
               (rest.lineHeightType() == QTextBlockFormat::SingleHeight || rest.lineHeight() == 100);
    }

    static QLatin1StringView verticalAlignment(const QTextCharFormat &cell)
    {
        switch (cell.verticalAlignment()) {
        case QTextCharFormat::AlignMiddle:
            return "middle"_L1;
        case QTextCharFormat::AlignBottom:
            return "bottom"_L1;
        case QTextCharFormat::AlignTop:
            return "top"_L1;
        default:
            return ""_L1;
        }
    }

    /// The first cell of its column that spans no others.
    static bool saysWidth(const QTextTable &table, const QTextTableCell &cell)
    {
        for (int row = 0; row < cell.row(); ++row)
            if (table.cellAt(row, cell.column()).columnSpan() == 1)
                return false;
        return cell.columnSpan() == 1;
    }

    static QString cellAttributes(const QTextTable &table, const QTextTableCell &cell)
    {
        QString attributes;
        if (cell.columnSpan() > 1)
            attributes += u" colspan=\"%1\""_s.arg(cell.columnSpan());
        if (cell.rowSpan() > 1)
            attributes += u" rowspan=\"%1\""_s.arg(cell.rowSpan());
        const QList<QTextLength> widths = table.format().columnWidthConstraints();
        if (cell.column() < widths.size() && saysWidth(table, cell))
            attributes += widthAttribute(widths.at(cell.column()));
        return attributes;
    }

    static QStringList cellDeclarations(const QTextTable &table, const QTextTableCell &cell)
    {
        const QTextCharFormat format = cell.format();
        QStringList css;
        if (format.background().style() == Qt::SolidPattern)
            css.append("background-color:"_L1 + cssColor(format.background().color()));
        const QLatin1StringView vertical = verticalAlignment(format);
        // A cell hands its alignment down to those of tables in it.
        const auto *outer = qobject_cast<QTextTable *>(table.parentFrame());
        if (!vertical.isEmpty())
            css.append("vertical-align:"_L1 + vertical);
        else if (outer && !verticalAlignment(outer->cellAt(table.firstPosition()).format()).isEmpty())
            css.append(u"vertical-align:baseline"_s);
        return css;
    }

    Walk m_walk;
    WrittenSource m_out;
    QSet<int> m_looseBrackets;
    QList<QTextList *> m_lists;
    QList<Surroundings> m_listItems; ///< The last item of each of them.
    int m_depth = 0;                 ///< Of tables.
};

SourceWriting::SourceWriting(const QTextDocument &document)
    : m_writer(std::make_unique<Writer>(document))
{}

SourceWriting::~SourceWriting() = default;

bool SourceWriting::goOn(const QDeadlineTimer &deadline)
{
    return m_writer->goOn(deadline);
}

WrittenSource SourceWriting::take()
{
    return m_writer->take();
}

WrittenSource writeSource(const QTextDocument &document)
{
    SourceWriting writing(document);
    (void)writing.goOn(QDeadlineTimer(QDeadlineTimer::Forever));
    return writing.take();
}

} // namespace ozm::editor
