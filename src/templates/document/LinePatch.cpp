#include "templates/document/LinePatch.h"

#include "templates/document/InlineHtml.h"
#include "templates/document/ParagraphClass.h"
#include "templates/document/TemplateChip.h"
#include "templates/syntax/HtmlScanner.h"

#include <QHash>
#include <QMap>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocumentFragment>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

// Beyond this many characters on both sides, an edit is taken for one.
constexpr qsizetype kComparedPairs = 1'000'000;

constexpr qsizetype kLongestEntity = 40;

/// A character of a line: its source, and the tags that make its format.
struct Cell
{
    QString source;
    QString format;
    QString endOfFormat;

    bool operator==(const Cell &other) const = default;
};

QList<Cell> cellsOf(const QTextBlock &block)
{
    QList<Cell> cells;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextCharFormat format = at.fragment().charFormat();
        const InlineTags tags = inlineTags(format, {});
        for (const QChar character : at.fragment().text()) {
            const bool isObject =
                character == QChar::ObjectReplacementCharacter && (isChip(format) || format.isImageFormat());
            cells.append({!isObject        ? escaped(character)
                          : isChip(format) ? chipPart(format).source
                                           : imageTag(format.toImageFormat()),
                          tags.open, tags.close});
        }
    }
    return cells;
}

struct SourceRange
{
    qsizetype start;
    qsizetype end;
};

/// Where the characters of a line are in its source. Blanks are folded as the reader does it, unless they count.
class CharacterMap
{
public:
    CharacterMap(const QString &run, const QList<LineObject> &objects, bool folds)
        : m_run(run)
        , m_folds(folds)
    {
        qsizetype at = 0;
        for (const LineObject &object : objects) {
            takeMarkup(at, object.start);
            add(object.character, object.start, object.end);
            at = object.end;
        }
        takeMarkup(at, run.size());
    }

    /// Nothing unless the characters are those of @p text, less the blanks that the reader leaves out.
    [[nodiscard]] std::optional<QList<SourceRange>> of(const QString &text)
    {
        QList<SourceRange> ranges;
        qsizetype at = 0;
        for (const QChar character : text) {
            for (; at < m_text.size() && m_text.at(at) == u' ' && character != u' '; ++at)
                m_dropped.append(m_ranges.at(at));
            if (at == m_text.size() || m_text.at(at) != character)
                return std::nullopt;
            ranges.append(m_ranges.at(at++));
        }
        m_dropped += m_ranges.sliced(at);
        const bool isAll = QStringView(m_text).sliced(at).trimmed().isEmpty();
        return isAll ? std::optional(ranges) : std::nullopt;
    }

    /// Blanks in the source that are none of the text's, once that is known.
    [[nodiscard]] const QList<SourceRange> &dropped() const { return m_dropped; }

private:
    void add(QChar character, qsizetype start, qsizetype end)
    {
        m_text += character;
        m_ranges.append({start, end});
    }

    void takeMarkup(qsizetype from, qsizetype to)
    {
        for (const HtmlToken &token : scanHtml(m_run.sliced(from, qMax(qsizetype(0), to - from)))) {
            const SourceRange range{from + token.start, from + token.end};
            if (token.kind == HtmlTokenKind::Text)
                takePlain(range.start, range.end);
            else if (token.kind == HtmlTokenKind::StartTag && token.name == "br"_L1)
                add(QChar::LineSeparator, range.start, range.end);
            else if (token.kind == HtmlTokenKind::StartTag && token.name == "img"_L1)
                add(QChar::ObjectReplacementCharacter, range.start, range.end);
        }
    }

    void takePlain(qsizetype at, qsizetype end)
    {
        while (at < end) {
            const QChar c = m_run.at(at);
            const bool folds = m_folds && (c == u' ' || c == u'\n' || c == u'\r' || c == u'\t');
            if (folds && !m_text.endsWith(u' '))
                add(u' ', at, at + 1);
            else if (folds && m_ranges.last().end == at)
                m_ranges.last().end = at + 1;
            else if (c == u'&')
                at = takeEntity(at, end) - 1;
            else if (!folds)
                add(c == u'\n' ? QChar(QChar::LineSeparator) : c, at, at + 1);
            else
                m_dropped.append({at, at + 1});
            ++at;
        }
    }

    qsizetype takeEntity(qsizetype at, qsizetype end)
    {
        static const QRegularExpression entity(u"\\G&#?[a-zA-Z0-9]{1,30};"_s);
        const auto match = entity.match(m_run, at);
        const QString text =
            match.hasMatch() && match.capturedEnd() <= end ? entityText(match.captured()) : QString();
        const bool isNone = text.isEmpty() || (text.size() > 1 && text.startsWith(u'&'));
        if (isNone) {
            add(u'&', at, at + 1);
            return at + 1;
        }
        add(text.front(), at, match.capturedEnd());
        // The other half of a pair has no place of its own.
        for (const QChar more : QStringView(text).sliced(1))
            add(more, match.capturedEnd(), match.capturedEnd());
        return match.capturedEnd();
    }

    static QString entityText(const QString &entity)
    {
        static QHash<QString, QString> known;
        auto text = known.constFind(entity);
        if (text == known.cend())
            text = known.insert(entity, QTextDocumentFragment::fromHtml(u'x' + entity).toRawText().sliced(1));
        return *text;
    }

    const QString &m_run;
    const bool m_folds;
    QString m_text;
    QList<SourceRange> m_ranges;
    QList<SourceRange> m_dropped;
};

struct Change
{
    qsizetype from; ///< In the line before.
    qsizetype to;
    qsizetype first; ///< In the line as it is.
    qsizetype last;
};

/// The changes between two parts of lines, by their longest common subsequence.
QList<Change> comparedParts(const QList<Cell> &before, const QList<Cell> &now, const Change &whole)
{
    const qsizetype rows = whole.to - whole.from;
    const qsizetype columns = whole.last - whole.first;
    const auto at = [columns](qsizetype row, qsizetype column) {
        return std::size_t(row * (columns + 1) + column);
    };
    std::vector<quint16> common(at(rows, columns) + 1, 0);
    const auto same = [&](qsizetype row, qsizetype column) {
        return before.at(whole.from + row) == now.at(whole.first + column);
    };
    for (qsizetype row = rows - 1; row >= 0; --row)
        for (qsizetype column = columns - 1; column >= 0; --column)
            common[at(row, column)] = same(row, column)
                                          ? quint16(common[at(row + 1, column + 1)] + 1)
                                          : qMax(common[at(row + 1, column)], common[at(row, column + 1)]);
    QList<Change> changes;
    qsizetype row = 0;
    qsizetype column = 0;
    while (row < rows || column < columns) {
        const qsizetype fromRow = row;
        const qsizetype fromColumn = column;
        while ((row < rows || column < columns) && !(row < rows && column < columns && same(row, column))) {
            const bool down = column == columns ||
                              (row < rows && common[at(row + 1, column)] >= common[at(row, column + 1)]);
            ++(down ? row : column);
        }
        if (row > fromRow || column > fromColumn)
            changes.append(
                {whole.from + fromRow, whole.from + row, whole.first + fromColumn, whole.first + column});
        while (row < rows && column < columns && same(row, column)) {
            ++row;
            ++column;
        }
    }
    return changes;
}

QList<Change> changesBetween(const QList<Cell> &before, const QList<Cell> &now)
{
    Change whole{0, before.size(), 0, now.size()};
    while (whole.from < whole.to && whole.first < whole.last &&
           before.at(whole.from) == now.at(whole.first)) {
        ++whole.from;
        ++whole.first;
    }
    while (whole.from < whole.to && whole.first < whole.last &&
           before.at(whole.to - 1) == now.at(whole.last - 1)) {
        --whole.to;
        --whole.last;
    }
    if (whole.from == whole.to && whole.first == whole.last)
        return {};
    const bool isSmall = (whole.to - whole.from) * (whole.last - whole.first) <= kComparedPairs;
    return isSmall ? comparedParts(before, now, whole) : QList<Change>{whole};
}

struct Insertion
{
    qsizetype place;
    QString source;
};

/// The cells that @p change puts in: beside a character of their own format, or in tags of their own where none
/// are open.
Insertion insertionOf(const Change &change, const QList<Cell> &before, const QList<Cell> &now,
                      const QList<SourceRange> &places, qsizetype end)
{
    const QList<Cell> put = now.sliced(change.first, change.last - change.first);
    const auto joined = [&put](bool tagged) {
        QString source;
        for (qsizetype index = 0; index < put.size(); ++index) {
            const bool opens = index == 0 || put.at(index - 1).format != put.at(index).format;
            const bool closes = index + 1 == put.size() || put.at(index + 1).format != put.at(index).format;
            source += (tagged && opens ? put.at(index).format : QString()) + put.at(index).source +
                      (tagged && closes ? put.at(index).endOfFormat : QString());
        }
        return source;
    };
    if (put.isEmpty())
        return Insertion{0, {}};
    const QString &format = put.constFirst().format;
    const bool isOne =
        std::ranges::all_of(put, [&format](const Cell &cell) { return cell.format == format; });
    const bool isAfter = change.from > 0;
    const bool isBefore = change.from < before.size();
    if (isOne && isAfter && before.at(change.from - 1).format == format)
        return Insertion{places.at(change.from - 1).end, joined(false)};
    if (isOne && isBefore && before.at(change.from).format == format)
        return Insertion{places.at(change.from).start, joined(false)};
    if (isAfter && before.at(change.from - 1).format.isEmpty())
        return Insertion{places.at(change.from - 1).end, joined(true)};
    if (isBefore && before.at(change.from).format.isEmpty())
        return Insertion{places.at(change.from).start, joined(true)};
    if (!isAfter || !isBefore)
        return Insertion{isAfter ? end : 0, joined(true)};
    // Within the tags of another format, which those of the own one may add to.
    return Insertion{places.at(change.from - 1).end, joined(true)};
}

/// A part of the source that gives way to a text.
struct Edit
{
    qsizetype start;
    qsizetype end;
    QString text;
};

QString edited(QString source, QList<Edit> edits)
{
    // From the last one on, so that the places of those before hold.
    std::ranges::stable_sort(edits, std::ranges::greater(),
                             [](const Edit &each) { return std::pair(each.start, each.end); });
    for (qsizetype index = 0; index < edits.size(); ++index) {
        const Edit &each = edits.at(index);
        // The first edit of a place counts.
        if (index == 0 || each.end == each.start || edits.at(index - 1).start != each.start)
            source.replace(each.start, each.end - each.start, each.text);
    }
    return source;
}

/// A "<" or "&" at @p place is text by what comes behind it, and must be so with @p behind.
void escapeSign(const QString &run, const SourceRange &place, const QString &behind, QList<Edit> &edits)
{
    static const QRegularExpression markup(u"^(?:<[a-zA-Z/!?]|&#?[a-zA-Z0-9]{1,30};)"_s);
    const QChar sign = place.end == place.start + 1 ? run.at(place.start) : QChar();
    if ((sign == u'<' || sign == u'&') && markup.match(sign + behind).hasMatch())
        edits.append({place.start, place.end, escaped(sign)});
}

/// For a line whose blanks begin to count: each that it shows is one in its source.
void unfold(const QString &run, const QString &text, const QList<SourceRange> &places,
            const QList<SourceRange> &dropped, QList<Edit> &edits)
{
    for (qsizetype index = 0; index < text.size(); ++index) {
        const SourceRange &place = places.at(index);
        if (text.at(index) == u' ' && run.at(place.start) != u'&')
            edits.append({place.start, place.end, u" "_s});
    }
    for (const SourceRange &place : dropped)
        edits.append({place.start, place.end, {}});
}

QMap<QString, QString> declarationsOf(const QString &tag)
{
    static const QRegularExpression style(u"\\sstyle\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)')"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    const auto match = style.match(tag);
    QMap<QString, QString> all;
    for (const QString &each : (match.captured(1) + match.captured(2)).split(u';', Qt::SkipEmptyParts))
        all.insert(each.section(u':', 0, 0).trimmed().toLower(), each.section(u':', 1).trimmed());
    return all;
}

QString withDeclarations(QString tag, const QMap<QString, QString> &changed)
{
    static const QRegularExpression style(u"\\s+style\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)')"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression align(u"\\s+align\\s*=\\s*(?:\"[^\"]*\"|'[^']*'|[^\\s>]+)"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    const auto match = style.match(tag);
    QStringList css;
    for (const QString &each : (match.captured(1) + match.captured(2)).split(u';', Qt::SkipEmptyParts))
        if (!changed.contains(each.section(u':', 0, 0).trimmed().toLower()))
            css.append(each.trimmed());
    for (auto each = changed.cbegin(); each != changed.cend(); ++each)
        if (!each->isEmpty())
            css.append(each.key() + u':' + *each);
    if (changed.contains(u"text-align"_s))
        tag.remove(align);
    tag.remove(style);
    const qsizetype end = tag.endsWith("/>"_L1) ? tag.size() - 2 : tag.size() - 1;
    return tag.insert(end, styleAttribute(css));
}

} // namespace

QString tagName(QStringView tag)
{
    qsizetype end = 1;
    while (end < tag.size() && tag[end].isLetterOrNumber())
        ++end;
    return tag.sliced(qMin(tag.size(), qsizetype(1)), qMax(qsizetype(0), end - 1)).toString().toLower();
}

std::optional<QString> patchedLine(const QString &run, const QList<LineObject> &objects,
                                   const QTextBlock &before, const QTextBlock &now, Blanks blanks)
{
    CharacterMap map(run, objects, blanks != Blanks::Count);
    const auto places = map.of(before.text());
    const QList<Cell> cellsBefore = cellsOf(before);
    const QList<Cell> cellsNow = cellsOf(now);
    if (!places || cellsBefore.size() != places->size())
        return std::nullopt;
    QList<Edit> edits;
    for (const Change &change : changesBetween(cellsBefore, cellsNow)) {
        for (qsizetype index = change.from; index < change.to; ++index)
            edits.append({places->at(index).start, places->at(index).end, {}});
        const Insertion insertion = insertionOf(change, cellsBefore, cellsNow, *places, run.size());
        edits.append({insertion.place, insertion.place, insertion.source});
        // Blanks behind a blank would be seen behind anything else.
        const qsizetype start = insertion.source.isEmpty() ? places->at(change.from).start : insertion.place;
        for (const SourceRange &blank : map.dropped())
            if (blank.start >= start && change.to < places->size() &&
                blank.end <= places->at(change.to).start)
                edits.append({blank.start, blank.end, {}});
        if (change.from > 0) {
            const qsizetype rest = places->at(qMax(change.from, change.to) - 1).end;
            escapeSign(run, places->at(change.from - 1),
                       insertion.source + run.sliced(rest, qMin(kLongestEntity, run.size() - rest)), edits);
        }
    }
    if (blanks == Blanks::CountFromNow)
        unfold(run, before.text(), *places, map.dropped(), edits);
    return edited(run, edits);
}

QString withoutWidth(QString tag)
{
    static const QRegularExpression width(u"\\swidth\\s*=\\s*(?:\"[^\"]*\"|'[^']*'|[^\\s>]+)"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return tag.remove(width);
}

QString withWidthOf(QString tag, const QString &now)
{
    static const QRegularExpression width(u"\\swidth=\"[^\"]*\""_s);
    tag = withoutWidth(tag);
    return tag.insert(1 + tagName(tag).size(), width.match(now).captured());
}

QString patchedTag(const QString &tag, const QString &before, const QString &now)
{
    if (before == now)
        return tag;
    QMap<QString, QString> changed;
    const QMap<QString, QString> old = declarationsOf(before);
    const QMap<QString, QString> fresh = declarationsOf(now);
    for (auto each = old.cbegin(); each != old.cend(); ++each)
        if (fresh.value(each.key()) != *each)
            changed.insert(each.key(), fresh.value(each.key()));
    for (auto each = fresh.cbegin(); each != fresh.cend(); ++each)
        if (old.value(each.key()) != *each)
            changed.insert(each.key(), *each);
    QString result = withDeclarations(tag, changed);
    if (classOf(before) != classOf(now))
        result = withClass(result, classOf(now));
    if (tagName(before) != tagName(now))
        result.replace(1, tagName(tag).size(), tagName(now));
    return result;
}

} // namespace ozm::editor
