#pragma once

#include "templates/document/KeptSource.h"
#include "templates/document/LinePatch.h"
#include "templates/document/TemplateReading.h"

#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace ozm::editor {

using namespace Qt::StringLiterals;

inline QStringView slice(const QString &text, qsizetype start, qsizetype end)
{
    return QStringView(text).sliced(start, end - start);
}

inline QString openOf(const WrittenSource &written, const WrittenLine &line)
{
    return slice(written.text, line.start, line.innerStart).toString();
}

inline QStringView innerOf(const WrittenSource &written, const WrittenLine &line)
{
    return slice(written.text, line.innerStart, line.innerEnd);
}

inline QString itemText(const WrittenSource &written, const WrittenItem &item)
{
    return slice(written.text, item.start, qMin(item.end, written.text.size())).trimmed().toString();
}

inline QString itemsText(const WrittenSource &written, const QList<const WrittenItem *> &items)
{
    QStringList texts;
    for (const WrittenItem *item : items)
        texts.append(itemText(written, *item));
    return texts.join(u'\n');
}

// Elements that cross one another can make of two sections what neither is alone, which only reading the whole
// shows. For larger sources that would take too long with each edit; their sections are still read again.
inline constexpr qsizetype kReadAgain = 300'000;

inline QString readAndWritten(const QString &source)
{
    QTextDocument document;
    readSource(document, source, false);
    return writeSource(document).text;
}

/// True when @p source reads as the document does that is written as @p written.
inline bool readsAs(const QString &source, const QString &written)
{
    const QString again = readAndWritten(source);
    // An edited document may be written in another way than the same one that was read.
    return again == written || again == readAndWritten(written);
}

/// The run of a line that has none is this, less its section.
inline constexpr int kOtherLine = -2;

/// The tags of tables and lists, and the runs, without lists that hold none.
inline QStringList skeleton(const WrittenSource &written, const QList<const WrittenItem *> &items,
                            const QSet<int> &runs, const QSet<int> &lines)
{
    QStringList steps;
    for (const WrittenItem *item : items) {
        for (const WrittenItem::Step &step : item->steps) {
            const int run = step.line < 0 ? -1 : written.lines.at(step.line).run;
            if (step.line < 0 && step.tag == u")" && steps.value(steps.size() - 1).startsWith(u'('))
                steps.removeLast();
            else if (step.line < 0)
                steps.append(step.tag);
            else if (runs.contains(run) && lines.contains(step.line))
                steps.append(QString::number(run));
        }
    }
    return steps;
}

/// The edits of one section, as replacements in its source.
class KeptSource::Patch
{
public:
    Patch(const KeptSource &kept, int index, const QTextDocument &document, const WrittenSource &written,
          const Section &section)
        : m_kept(kept)
        , m_firstRun(kept.m_sections.at(index).firstRun)
        , m_runs(kept.runsOf(index))
        , m_text(kept.m_around + kept.sectionText(index))
        , m_document(document)
        , m_written(written)
        , m_items(section.items)
    {}

    std::optional<QString> run()
    {
        m_split = readSource(m_before, m_text, true);
        m_beforeWritten = writeSource(m_before);
        if (m_split.runs.size() != m_runs || !collectBefore() || !collectNow() || !isSameSkeleton())
            return std::nullopt;
        for (int run = 0; run < m_runs; ++run)
            if (!patchRun(run))
                return std::nullopt;
        return applied();
    }

    /// True when @p text reads as the lines that the section has in the document.
    [[nodiscard]] bool isRight(const QString &text) const
    {
        return readsAs(m_kept.m_around + text, m_kept.m_around + itemsText(m_written, m_items));
    }

private:
    struct Replacement
    {
        qsizetype start;
        qsizetype end;
        QString text;
    };

    bool collectBefore()
    {
        m_linesBefore.fill(-1, m_runs);
        for (qsizetype index = 0; index < m_beforeWritten.lines.size(); ++index) {
            const int run = m_beforeWritten.lines.at(index).run;
            if (run < 0)
                m_others.append(innerOf(m_beforeWritten, m_beforeWritten.lines.at(index)).toString());
            else if (run >= m_runs || m_linesBefore.at(run) >= 0)
                return false;
            else
                m_linesBefore[run] = int(index);
        }
        return !m_linesBefore.contains(-1);
    }

    // Of several lines that were one before, the one that is as it was is that line.
    bool collectNow()
    {
        m_linesNow.fill(-1, m_runs);
        m_more.fill({}, m_runs);
        m_ahead.fill({}, m_runs);
        for (const WrittenItem *item : m_items)
            for (const WrittenItem::Step &step : item->steps)
                if (step.line >= 0)
                    collectLine(step.line);
        QList<int> ahead;
        QStringList others;
        int last = -1;
        for (const WrittenItem *item : m_items) {
            for (const WrittenItem::Step &step : item->steps) {
                if (step.line >= 0 && m_written.lines.at(step.line).run <= kOtherLine) {
                    others.append(innerOf(m_written, m_written.lines.at(step.line)).toString());
                    continue;
                }
                if (step.line < 0) {
                    last = -1;
                    if (!ahead.isEmpty())
                        return false;
                    continue;
                }
                const int run = m_written.lines.at(step.line).run - m_firstRun;
                if (run >= 0 && run < m_runs && m_linesNow.at(run) == step.line) {
                    last = run;
                    m_ahead[run] = std::exchange(ahead, {});
                } else {
                    (last < 0 ? ahead : m_more[last]).append(step.line);
                }
            }
        }
        return ahead.isEmpty() && others == m_others;
    }

    void collectLine(int index)
    {
        const WrittenLine &line = m_written.lines.at(index);
        const int run = line.run - m_firstRun;
        if (line.run < 0 || run < 0 || run >= m_runs)
            return;
        const bool isAsBefore = innerOf(m_written, line) ==
                                innerOf(m_beforeWritten, m_beforeWritten.lines.at(m_linesBefore.at(run)));
        if (m_linesNow.at(run) < 0 || isAsBefore)
            m_linesNow[run] = index;
    }

    bool isSameSkeleton()
    {
        QSet<int> runsNow;
        QSet<int> runsBefore;
        QSet<int> linesNow;
        QSet<int> linesBefore;
        for (int run = 0; run < m_runs; ++run) {
            linesBefore.insert(m_linesBefore.at(run));
            if (m_linesNow.at(run) < 0)
                continue;
            runsBefore.insert(run);
            runsNow.insert(run + m_firstRun);
            linesNow.insert(m_linesNow.at(run));
        }
        QList<const WrittenItem *> itemsBefore;
        for (const WrittenItem &item : m_beforeWritten.items)
            itemsBefore.append(&item);
        QStringList now = skeleton(m_written, m_items, runsNow, linesNow);
        const QStringList before = skeleton(m_beforeWritten, itemsBefore, runsBefore, linesBefore);
        for (QString &step : now) {
            bool isRun = false;
            const int run = step.toInt(&isRun);
            if (isRun)
                step = QString::number(run - m_firstRun);
        }
        return now == before || patchWidths(before, now);
    }

    static bool isCellTag(const QString &step)
    {
        return step.startsWith("<td"_L1) || (step.startsWith("<th"_L1) && !step.startsWith("<thead"_L1));
    }

    /// Writes other widths into the tags of cells; false where more than these changed.
    bool patchWidths(const QStringList &before, const QStringList &now)
    {
        QList<SourceRange> tags;
        for (const HtmlToken &token : scanHtml(m_text)) {
            const bool isCell = token.name == "td"_L1 || token.name == "th"_L1;
            if (token.kind == HtmlTokenKind::StartTag && isCell && !isInPart(token.start))
                tags.append({token.start, token.end});
        }
        if (before.size() != now.size() || tags.size() != std::ranges::count_if(before, isCellTag))
            return false;
        qsizetype cell = 0;
        for (qsizetype step = 0; step < now.size(); ++step) {
            const bool isCell = isCellTag(before.at(step));
            const SourceRange tag = isCell ? tags.at(cell++) : SourceRange{};
            if (now.at(step) == before.at(step))
                continue;
            if (!isCell || withoutWidth(now.at(step)) != withoutWidth(before.at(step)))
                return false;
            m_widths.append({tag.start, tag.end,
                             withWidthOf(slice(m_text, tag.start, tag.end).toString(), now.at(step))});
        }
        return true;
    }

    /// True in a part of the section that is shown as a whole.
    [[nodiscard]] bool isInPart(qsizetype position) const
    {
        return std::ranges::any_of(m_split.places, [position](const PartPlace &part) {
            return part.start <= position && position < part.end;
        });
    }

    bool patchRun(int run)
    {
        const SourceRun &source = m_split.runs.at(run);
        if (m_linesNow.at(run) < 0) {
            removeRun(run);
            return true;
        }
        const WrittenLine &before = m_beforeWritten.lines.at(m_linesBefore.at(run));
        const WrittenLine &now = m_written.lines.at(m_linesNow.at(run));
        const QString openBefore = openOf(m_beforeWritten, before);
        const QString openNow = openOf(m_written, now);
        const bool isSameText = innerOf(m_beforeWritten, before) == innerOf(m_written, now);
        const bool isOne = m_more.at(run).isEmpty() && m_ahead.at(run).isEmpty();
        if (isSameText && openBefore == openNow && isOne)
            return true;
        if (source.isRule || !source.isBalanced)
            return false;
        const bool isInTag = hasOwnTag(source) || (isCell(source) && isOne && !openNow.startsWith(u'<') &&
                                                   !openBefore.startsWith(u'<'));
        if (isInTag && openBefore != openNow && !patchHost(source, openBefore, openNow))
            return false;
        QString inner =
            isSameText ? sourceOf(source) : m_kept.withLineEnds(innerNow(run, openBefore, openNow));
        if (!isInTag && (!isOne || openBefore != openNow)) {
            const QString open = openNow.startsWith(u'<') ? openNow : "<div"_L1 + openNow;
            inner = open + inner + "</"_L1 + tagName(open) + u'>';
            for (qsizetype each = m_ahead.at(run).size() - 1; each >= 0; --each)
                inner.prepend(m_kept.withLineEnds(wholeLine(m_ahead.at(run).at(each)) + u'\n'));
            for (const int line : m_more.at(run))
                inner += m_kept.withLineEnds(u'\n' + wholeLine(line));
        } else if (!isOne) {
            const QString more = partedLines(run, m_more.at(run));
            const QString ahead = partedLines(run, m_ahead.at(run));
            replace(source.host.start, source.host.start,
                    m_kept.withLineEnds(ahead + (ahead.isEmpty() ? u""_s : u"\n"_s)));
            replace(source.host.end, source.host.end,
                    m_kept.withLineEnds((more.isEmpty() ? u""_s : u"\n"_s) + more));
        }
        replace(source.start, source.end, inner);
        return true;
    }

    static bool isCell(const SourceRun &source)
    {
        return source.host.name == "td"_L1 || source.host.name == "th"_L1;
    }

    static bool hasOwnTag(const SourceRun &source) { return !source.host.name.isEmpty() && !isCell(source); }

    bool patchHost(const SourceRun &source, const QString &before, const QString &now)
    {
        const qsizetype tag = source.host.start;
        const QString text = slice(m_text, tag, source.host.startTagEnd).toString();
        const QString shared = isCell(source) ? u'<' + source.host.name : QString();
        replace(tag, source.host.startTagEnd, patchedTag(text, shared + before, shared + now));
        if (isCell(source))
            return true;
        const qsizetype close = closeStart(source.host);
        if (tagName(before) != tagName(now) && close >= 0)
            replace(close, source.host.end, "</"_L1 + tagName(now) + u'>');
        return tagName(before) == tagName(now) || close >= 0;
    }

    /// Where the end tag of @p host begins; -1 when it has none.
    [[nodiscard]] qsizetype closeStart(const HtmlElement &host) const
    {
        const QStringView text = slice(m_text, host.startTagEnd, host.end);
        const qsizetype close = text.lastIndexOf(u"</");
        const bool isOwn = close >= 0 && text.sliced(close + 2).startsWith(host.name, Qt::CaseInsensitive) &&
                           text.endsWith(u'>');
        return isOwn ? host.startTagEnd + close : -1;
    }

    [[nodiscard]] QString sourceOf(const SourceRun &source) const
    {
        return slice(m_text, source.start, source.end).toString();
    }

    [[nodiscard]] QString innerNow(int run, const QString &openBefore, const QString &openNow) const
    {
        const WrittenLine &now = m_written.lines.at(m_linesNow.at(run));
        const int position = m_beforeWritten.lines.at(m_linesBefore.at(run)).position;
        Blanks blanks = Blanks::Fold;
        if (keepsBlanks(m_split.runs.at(run)))
            blanks = Blanks::Count;
        else if (openNow.contains("white-space"_L1) && !openBefore.contains("white-space"_L1))
            blanks = Blanks::CountFromNow;
        const auto patched =
            patchedLine(sourceOf(m_split.runs.at(run)), objectsOf(run), m_before.findBlock(position),
                        m_document.findBlock(now.position), blanks);
        return patched ? *patched : innerOf(m_written, now).toString();
    }

    [[nodiscard]] bool keepsBlanks(const SourceRun &source) const
    {
        const auto keeps = [this](const HtmlElement &element) {
            return element.name == "pre"_L1 ||
                   slice(m_text, element.start, element.startTagEnd).contains("white-space"_L1);
        };
        return (!source.host.name.isEmpty() && keeps(source.host)) ||
               std::ranges::any_of(source.outer, keeps);
    }

    [[nodiscard]] QList<LineObject> objectsOf(int run) const
    {
        const SourceRun &source = m_split.runs.at(run);
        QList<LineObject> objects;
        for (qsizetype index = 0; index < m_split.parts.size(); ++index) {
            const PartPlace &place = m_split.places.at(index);
            const TemplatePart &part = m_split.parts.at(index);
            if (place.start < source.start || place.end > source.end || part.source.isEmpty())
                continue;
            const bool isText = part.kind == PartKind::None;
            objects.append({place.start - source.start, place.end - source.start,
                            isText ? part.source.front() : QChar(QChar::ObjectReplacementCharacter)});
        }
        return objects;
    }

    [[nodiscard]] QString wholeLine(int index) const
    {
        const WrittenLine &line = m_written.lines.at(index);
        return slice(m_written.text, line.start, line.end).trimmed().toString();
    }

    // A line that was parted from another is of the same kind, with all that the source says about it.
    [[nodiscard]] QString partedLines(int run, const QList<int> &lines) const
    {
        const SourceRun &source = m_split.runs.at(run);
        const QString before = openOf(m_beforeWritten, m_beforeWritten.lines.at(m_linesBefore.at(run)));
        const QString tag = slice(m_text, source.host.start, source.host.startTagEnd).toString();
        QStringList parted;
        for (const int index : lines) {
            const WrittenLine &line = m_written.lines.at(index);
            const QString open = patchedTag(tag, before, openOf(m_written, line));
            parted.append(open + innerOf(m_written, line).toString() + "</"_L1 + tagName(open) + u'>');
        }
        return parted.join(u'\n');
    }

    void removeRun(int run)
    {
        const SourceRun &source = m_split.runs.at(run);
        SourceRange range{source.start, source.end};
        if (hasOwnTag(source))
            range = {source.host.start, source.host.end};
        for (const HtmlElement &outer : source.outer) {
            if (!isEmptied(outer))
                break;
            range = {outer.start, outer.end};
        }
        const auto isInside = [&range](const Replacement &each) {
            return each.start >= range.start && each.end <= range.end;
        };
        m_replacements.removeIf(isInside);
        replace(range.start, range.end, {});
    }

    [[nodiscard]] bool isEmptied(const HtmlElement &element) const
    {
        for (int run = 0; run < m_runs; ++run)
            if (m_linesNow.at(run) >= 0 && m_split.runs.at(run).start >= element.start &&
                m_split.runs.at(run).end <= element.end)
                return false;
        return true;
    }

    void replace(qsizetype start, qsizetype end, const QString &text)
    {
        m_replacements.append({start, end, text});
    }

    std::optional<QString> applied()
    {
        m_replacements += m_widths;
        std::ranges::stable_sort(m_replacements, {}, &Replacement::start);
        QString result;
        qsizetype at = m_kept.m_around.size();
        for (const Replacement &each : std::as_const(m_replacements)) {
            // Two that are in one another's way.
            if (each.start < at)
                return std::nullopt;
            result += slice(m_text, at, each.start);
            result += each.text;
            at = each.end;
        }
        return result.append(slice(m_text, at, m_text.size()));
    }

    struct SourceRange
    {
        qsizetype start;
        qsizetype end;
    };

    const KeptSource &m_kept;
    const int m_firstRun;
    const int m_runs;
    const QString m_text; ///< Of the section, behind the tags around it.
    const QTextDocument &m_document;
    const WrittenSource &m_written;
    const QList<const WrittenItem *> &m_items;
    QTextDocument m_before;
    SplitTemplate m_split;
    WrittenSource m_beforeWritten;
    QStringList m_others;      ///< Lines that the reader makes beside those of the source.
    QList<int> m_linesBefore;  ///< By run.
    QList<int> m_linesNow;     ///< By run; -1 where the line is gone.
    QList<QList<int>> m_more;  ///< By run: new lines behind it.
    QList<QList<int>> m_ahead; ///< By run: new lines before it.
    QList<Replacement> m_replacements;
    QList<Replacement> m_widths; ///< Of columns, in the tags of cells.
};

} // namespace ozm::editor
