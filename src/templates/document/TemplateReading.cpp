#include "templates/document/TemplateReading.h"

#include "templates/document/InlineHtml.h"
#include "templates/document/KeptSource.h"
#include "templates/document/LetterSizes.h"
#include "templates/document/ParagraphClass.h"
#include "templates/document/SelectedSource.h"
#include "templates/document/TableSpaces.h"
#include "templates/document/TemplateChip.h"
#include "templates/document/TemplateElements.h"
#include "templates/document/TemplateSourceWriter.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

/// A marker in a document: what it stands for, and where.
struct Marker
{
    int part;
    int start;
    int end;
};

/// The formats of chips, of which most are alike. Documents find a format faster that they know already.
class ChipFormats
{
public:
    const QTextCharFormat &formatOf(const TemplatePart &part, const QTextCharFormat &base)
    {
        QList<Made> &made = m_made[part.source];
        for (const Made &each : std::as_const(made))
            if (each.base == base && each.kind == part.kind)
                return each.format;
        return made.emplaceBack(Made{base, part.kind, chipFormat(part, base)}).format;
    }

private:
    struct Made
    {
        QTextCharFormat base;
        PartKind kind;
        QTextCharFormat format;
    };

    QHash<QString, QList<Made>> m_made;
};

/// Of a line that comes from that run, or that has none as nobody would see a text of it.
QTextBlockFormat lineFormat(const SplitTemplate &split, int run, bool remember)
{
    QTextBlockFormat format;
    if (run < 0)
        format.setProperty(kWrittenLine, true);
    else if (remember)
        format.setProperty(kSourceRun, run);
    if (run >= 0 && !split.runs.at(run).paragraphClass.isEmpty())
        format.setProperty(kParagraphClass, split.runs.at(run).paragraphClass);
    return format;
}

/// Puts the part of @p marker in its place.
void replaceMarker(QTextCursor &cursor, const Marker &marker, const SplitTemplate &split, bool remember,
                   ChipFormats &formats)
{
    const TemplatePart &part = split.parts.at(marker.part);
    const int run = split.places.at(marker.part).run;
    const bool isOneCharacter = marker.end == marker.start + 1;
    if (part.source.isEmpty() && isOneCharacter) {
        // Without a selection, whose ends the toolkit looks up in all tables.
        cursor.setPosition(marker.end);
        cursor.deletePreviousChar();
    } else {
        cursor.setPosition(marker.start);
        cursor.setPosition(marker.end, QTextCursor::KeepAnchor);
    }
    if (part.source.isEmpty()) {
        cursor.removeSelectedText();
        cursor.mergeBlockFormat(lineFormat(split, run, remember));
        return;
    }
    const QTextCharFormat base = cursor.charFormat();
    if (part.kind == PartKind::None)
        cursor.insertText(part.source, base);
    else if (isOneCharacter && split.chipMarker == QChar::ObjectReplacementCharacter)
        cursor.setCharFormat(formats.formatOf(part, base));
    else
        cursor.insertText(QString(QChar::ObjectReplacementCharacter), formats.formatOf(part, base));
}

bool isMarker(QChar character, const SplitTemplate &split)
{
    return character == split.textMarker || character == split.chipMarker;
}

/// The markers of @p document, which has read the split HTML; nothing unless it has them all, each at its turn.
std::optional<QList<Marker>> markersInTurn(const QTextDocument &document, const SplitTemplate &split)
{
    QList<Marker> markers;
    markers.reserve(split.parts.size());
    const QString text = document.toRawText();
    qsizetype inHtml = 0;
    for (int at = 0; at < text.size(); ++at) {
        if (!isMarker(text.at(at), split))
            continue;
        while (inHtml < split.html.size() && !isMarker(split.html.at(inHtml), split))
            ++inHtml;
        if (inHtml == split.html.size() || split.html.at(inHtml++) != text.at(at))
            return std::nullopt;
        markers.append({int(markers.size()), at, at + 1});
    }
    return markers.size() == split.parts.size() ? std::optional(markers) : std::nullopt;
}

/// The split HTML with a number at each marker, between it and @p end.
QString withNumbers(const SplitTemplate &split, QChar end)
{
    QString html;
    int number = 0;
    for (const QChar character : split.html) {
        if (isMarker(character, split))
            html += split.textMarker + QString::number(number++) + end;
        else
            html += character;
    }
    return html;
}

QList<Marker> numberedMarkers(const QTextDocument &document, const SplitTemplate &split, QChar end)
{
    QList<Marker> markers;
    const QString text = document.toRawText();
    for (qsizetype last = text.indexOf(end); last >= 0; last = text.indexOf(end, last + 1)) {
        const qsizetype first = text.lastIndexOf(split.textMarker, last);
        const int part = first < 0 ? -1 : QStringView(text).sliced(first + 1, last - first - 1).toInt();
        if (part >= 0 && part < split.parts.size())
            markers.append({part, int(first), int(last) + 1});
    }
    return markers;
}

// From the end on, so that positions found before stay true.
void replaceMarkers(QTextDocument &document, const QList<Marker> &markers, const SplitTemplate &split,
                    bool remember)
{
    QTextCursor edit(&document);
    ChipFormats formats;
    edit.beginEditBlock();
    std::for_each(markers.crbegin(), markers.crend(),
                  [&](const Marker &marker) { replaceMarker(edit, marker, split, remember, formats); });
    edit.endEditBlock();
}

bool isSameCell(const QTextFrame *frame, const QTextBlock &a, const QTextBlock &b)
{
    const auto *table = qobject_cast<const QTextTable *>(frame);
    return !table || table->cellAt(a.position()) == table->cellAt(b.position());
}

void collectLinesAfterTables(QTextFrame *frame, QList<QTextCursor> &lines)
{
    for (auto at = frame->begin(); at != frame->end();) {
        QTextFrame *child = at.currentFrame();
        ++at;
        if (!child || at == frame->end())
            continue;
        collectLinesAfterTables(child, lines);
        auto next = at;
        ++next;
        if (at.currentBlock().isValid() && at.currentBlock().length() <= 1 && next.currentBlock().isValid() &&
            isSameCell(frame, at.currentBlock(), next.currentBlock()))
            lines.append(QTextCursor(at.currentBlock()));
    }
}

// Reading HTML leaves an empty line behind each table that more text follows.
void removeLinesAfterTables(QTextDocument &document)
{
    QList<QTextCursor> lines;
    collectLinesAfterTables(document.rootFrame(), lines);
    QTextCursor edit(&document);
    edit.beginEditBlock();
    for (QTextCursor &line : lines)
        removeEmptyLine(line);
    edit.endEditBlock();
}

void readHtml(QTextDocument &document, const QString &html)
{
    document.setHtml(html);
    sizeLettersInPoints(document);
    removeLinesAfterTables(document);
    spaceTables(document);
}

/// Finds the markers of @p split, whose HTML @p document has read, or has it read once more.
QList<Marker> findMarkers(QTextDocument &document, const SplitTemplate &split)
{
    if (const auto inTurn = markersInTurn(document, split))
        return *inTurn;
    // The reader left some of them out, or moved them: with a number, each can be told.
    const QChar end = characterNotIn(split.html);
    readHtml(document, withNumbers(split, end));
    return numberedMarkers(document, split, end);
}

/// True when they differ by blanks at most, which the reader folds.
bool isSameButBlanks(QStringView a, QStringView b)
{
    for (;;) {
        while (!a.isEmpty() && !b.isEmpty() && a.front() == b.front()) {
            a = a.sliced(1);
            b = b.sliced(1);
        }
        if (!a.isEmpty() && isBlank(a.front()))
            a = a.sliced(1);
        else if (!b.isEmpty() && isBlank(b.front()))
            b = b.sliced(1);
        else
            return a.isEmpty() && b.isEmpty();
    }
}

/// Where in @p document the lines begin that have no mark; nothing unless each has its text, at its turn.
std::optional<QList<int>> plainLinesInTurn(const QTextDocument &document, const SplitTemplate &split,
                                           const QList<Marker> &markers)
{
    QList<int> positions;
    positions.reserve(split.plainLines.size());
    const QString text = document.toRawText();
    auto marker = markers.cbegin();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const int start = block.position();
        const int end = start + block.length() - 1;
        bool isMarked = false;
        for (; marker != markers.cend() && marker->start < end; ++marker)
            isMarked = isMarked || split.parts.at(marker->part).source.isEmpty();
        const QStringView line = QStringView(text).sliced(start, end - start);
        if (isMarked || isBlankText(line))
            continue;
        if (positions.size() == split.plainLines.size())
            return std::nullopt;
        const PlainLine &plain = split.plainLines.at(positions.size());
        if (!isSameButBlanks(line, QStringView(split.plainText).sliced(plain.start, plain.end - plain.start)))
            return std::nullopt;
        positions.append(start);
    }
    return positions.size() == split.plainLines.size() ? std::optional(positions) : std::nullopt;
}

void formatPlainLines(QTextDocument &document, const QList<int> &positions, const SplitTemplate &split,
                      bool remember)
{
    QTextCursor line(&document);
    line.beginEditBlock();
    for (qsizetype index = 0; index < positions.size(); ++index) {
        line.setPosition(positions.at(index));
        line.mergeBlockFormat(lineFormat(split, split.plainLines.at(index).run, remember));
    }
    line.endEditBlock();
}

// A rule has no text in which a mark could stand.
void rememberRules(QTextDocument &document, const SplitTemplate &split)
{
    QList<QTextBlock> rules;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        if (block.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth))
            rules.append(block);
    QList<int> runs;
    for (int run = 0; run < split.runs.size(); ++run)
        if (split.runs.at(run).isRule)
            runs.append(run);
    for (qsizetype index = 0; runs.size() == rules.size() && index < rules.size(); ++index) {
        QTextBlockFormat line;
        line.setProperty(kSourceRun, runs.at(index));
        QTextCursor(rules.at(index)).mergeBlockFormat(line);
    }
}

/// Nothing is laid out while this lives. Each change would be otherwise, and a table in a table twice as often as the table
/// around it.
class LayoutPause
{
public:
    explicit LayoutPause(QTextDocument &document)
        : m_document(document)
        , m_pageSize(document.pageSize())
    {
        document.setPageSize({0, 0});
    }
    ~LayoutPause() { m_document.setPageSize(m_pageSize); }
    Q_DISABLE_COPY_MOVE(LayoutPause)

private:
    QTextDocument &m_document;
    const QSizeF m_pageSize;
};

} // namespace

SplitTemplate readSource(QTextDocument &document, const QString &source, bool remember)
{
    SplitTemplate split = splitTemplate(source, LineMarks::WhereNeeded);
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    const LayoutPause pause(document);
    readHtml(document, split.html);
    auto markers = markersInTurn(document, split);
    auto plainLines = markers ? plainLinesInTurn(document, split, *markers) : std::nullopt;
    if (!plainLines) {
        split = splitTemplate(source, LineMarks::All);
        readHtml(document, split.html);
        markers = findMarkers(document, split);
        plainLines.emplace();
    }
    formatPlainLines(document, *plainLines, split, remember);
    replaceMarkers(document, *markers, split, remember);
    if (remember)
        rememberRules(document, split);
    document.setUndoRedoEnabled(undo);
    return split;
}

} // namespace ozm::editor
