#include "templates/document/KeptSource.h"

#include "templates/document/KeptSourcePatch.h"
#include "templates/document/TemplateChip.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

/// True for an empty line that is there only because a table or the document begins or ends beside it, and which is never
/// written.
bool isBesideFrames(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    if (block.length() > 1 || block.textList() || format.boolProperty(kWrittenLine) ||
        format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth))
        return false;
    const QTextFrame *frame = QTextCursor(block).currentFrame();
    const auto isOther = [frame](const QTextBlock &beside) {
        return !beside.isValid() || QTextCursor(beside).currentFrame() != frame;
    };
    return !qobject_cast<const QTextTable *>(frame) && isOther(block.previous()) && isOther(block.next());
}

} // namespace

KeptSource::KeptSource(const QString &source, const SplitTemplate &split)
    : m_text(source)
    , m_hasSource(!source.isNull())
    , m_endsWithReturns(source.contains(u'\r') && source.count("\r\n"_L1) == source.count(u'\n'))
    , m_around(split.around)
    , m_runs(int(split.runs.size()))
{
    m_sections.reserve(split.sections.size());
    for (const SourceSection &section : split.sections) {
        const SourceRun *last =
            section.runs > 0 ? &split.runs.at(section.firstRun + section.runs - 1) : nullptr;
        m_sections.append(
            {m_text.size(), section.firstRun, last && last->outer.isEmpty() && last->host.name.isEmpty()});
        m_text.append(slice(source, section.start, section.end));
    }
    if (m_sections.isEmpty())
        m_text.append(source);
    m_text.squeeze();
}

void KeptSource::learn(QTextDocument &document, WrittenSource written)
{
    m_isLearned = true;
    m_fingerprint = qHash(written.text);
    joinSections(written);
    rememberOtherLines(written, document);
    const auto sections = sectionsOf(written);
    m_isMapped = sections.has_value();
    if (!m_isMapped)
        return;
    for (const Section &section : *sections)
        m_fingerprints.append(fingerprint(written, section.items));
}

bool KeptSource::hasOtherLines(const QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        if (!block.blockFormat().hasProperty(kSourceRun) && !isBesideFrames(block))
            return true;
    return false;
}

// The reader may see one thing, or another order, where the source was taken for several.
void KeptSource::joinSections(const WrittenSource &written)
{
    QList<int> first(m_sections.size());
    for (int index = 0; index < first.size(); ++index)
        first[index] = index;
    const auto join = [&first](int from, int to) {
        for (int index = from + 1; index <= to; ++index)
            first[index] = qMin(first.at(index), first.at(from));
    };
    QSet<int> found;
    for (const WrittenLine &line : written.lines)
        found.insert(line.run);
    int before = 0;
    for (int run = 0; run < m_runs; ++run) {
        // The reader took it into the line before.
        const int section = sectionOf(run);
        if (!found.contains(run))
            join(before, section);
        before = section;
    }
    bool hasOthers = false;
    int last = -1;
    for (const WrittenItem &item : written.items) {
        int from = int(m_sections.size());
        int to = -1;
        for (const WrittenItem::Step &step : item.steps) {
            const int section = step.line < 0 ? -1 : sectionOf(written.lines.at(step.line).run);
            from = section < 0 ? from : qMin(from, section);
            to = qMax(to, section);
        }
        if (to < 0) {
            hasOthers = hasOthers || !item.steps.isEmpty();
            continue;
        }
        // Other lines come from something that stands between.
        if (std::exchange(hasOthers, false))
            join(qMax(0, last), from);
        join(from, qMax(to, last));
        last = qMax(to, last);
    }
    if (hasOthers)
        join(qMax(0, last), int(first.size()) - 1);
    QList<KeptSection> joined;
    for (int index = 0; index < first.size(); ++index) {
        if (first.at(index) == index)
            joined.append(m_sections.at(index));
        else if (runsOf(index) > 0)
            joined.last().endsOutside = m_sections.at(index).endsOutside;
    }
    joined.squeeze();
    m_sections = joined;
}

// Lines that the reader makes beside those of the source are not new ones.
void KeptSource::rememberOtherLines(WrittenSource &written, QTextDocument &document) const
{
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    int section = 0;
    for (WrittenLine &line : written.lines) {
        section = line.run >= 0 ? sectionOf(line.run) : section;
        if (line.run >= 0 || m_sections.isEmpty())
            continue;
        line.run = kOtherLine - section;
        QTextBlockFormat format;
        format.setProperty(kSourceRun, line.run);
        QTextCursor(document.findBlock(line.position)).mergeBlockFormat(format);
    }
    document.setUndoRedoEnabled(undo);
}

int KeptSource::sectionOf(int run) const
{
    if (run < 0 || run >= m_runs) {
        const int section = kOtherLine - run;
        return section < m_sections.size() ? section : -1;
    }
    const auto behind = std::ranges::upper_bound(m_sections, run, {}, &KeptSection::firstRun);
    return int(behind - m_sections.cbegin()) - 1;
}

std::optional<QString> KeptSource::write(const QTextDocument &document, const WrittenSource &written) const
{
    if (!m_hasSource)
        return std::nullopt;
    if (qHash(written.text) == m_fingerprint)
        return source();
    if (!m_isMapped)
        return std::nullopt;
    const auto sections = sectionsOf(written);
    if (!sections)
        return std::nullopt;
    for (const bool anew : {false, true}) {
        QString result = joined(*sections, document, written, anew);
        if (result.size() > kReadAgain || readsAs(result, written.text))
            return result;
    }
    return std::nullopt;
}

QString KeptSource::joined(const QList<Section> &sections, const QTextDocument &document,
                           const WrittenSource &written, bool anew) const
{
    const QList<bool> changed = changedSections(sections, written, anew);
    QString result;
    for (int index = 0; index < m_sections.size(); ++index) {
        const Section &section = sections.at(index);
        result += section.before;
        if (!changed.at(index))
            result += sectionText(index);
        else if (!section.items.isEmpty())
            result += edited(index, document, written, section, anew);
        if (!section.after.isEmpty() && !result.isEmpty() && !result.endsWith(u'\n'))
            result += withLineEnds(u"\n"_s);
        result += section.after;
    }
    return result;
}

QList<bool> KeptSource::changedSections(const QList<Section> &sections, const WrittenSource &written,
                                        bool withNeighbours) const
{
    QList<bool> changed;
    for (int index = 0; index < m_sections.size(); ++index)
        changed.append(fingerprint(written, sections.at(index).items) != m_fingerprints.at(index));
    if (!withNeighbours)
        return changed;
    // Texts outside of any element run together once the element between them is gone.
    const auto isOutside = [&](int index) {
        return !sections.at(index).items.isEmpty() && m_sections.at(index).endsOutside;
    };
    QList<bool> all = changed;
    int last = -1;
    for (int index = 0; index < changed.size(); ++index) {
        if (runsOf(index) == 0)
            continue;
        if (last >= 0 && changed.at(index) && isOutside(last))
            all[last] = true;
        if (last >= 0 && changed.at(last) && isOutside(index))
            all[index] = true;
        last = index;
    }
    return all;
}

std::optional<QList<KeptSource::Section>> KeptSource::sectionsOf(const WrittenSource &written) const
{
    QList<Section> sections(m_sections.size());
    int last = -1;
    QString before;
    for (const WrittenItem &item : written.items) {
        int own = -1;
        for (const WrittenItem::Step &step : item.steps) {
            const int section = step.line < 0 ? -1 : sectionOf(written.lines.at(step.line).run);
            if (own >= 0 && section >= 0 && section != own)
                return std::nullopt;
            own = qMax(own, section);
        }
        if (item.steps.isEmpty())
            continue;
        const bool isNew = own < 0 || own < last || (own == last && !sections.at(own).after.isEmpty());
        if (!isNew) {
            last = own;
            sections[own].before += std::exchange(before, {});
            sections[own].items.append(&item);
        } else if (last < 0) {
            before += withLineEnds(newItem(written, item) + u'\n');
        } else {
            sections[last].after += withLineEnds(newItem(written, item) + u'\n');
        }
    }
    if (!before.isEmpty()) {
        if (sections.isEmpty())
            return std::nullopt;
        sections.last().after += before;
    }
    return sections;
}

size_t KeptSource::fingerprint(const WrittenSource &written, const QList<const WrittenItem *> &items) const
{
    size_t hash = 1;
    for (const WrittenItem *item : items) {
        for (const WrittenItem::Step &step : item->steps) {
            hash = qHashMulti(hash, step.tag);
            if (step.line < 0)
                continue;
            const WrittenLine &line = written.lines.at(step.line);
            hash = qHashMulti(hash, line.run, slice(written.text, line.start, line.innerEnd));
        }
    }
    return hash;
}

QString KeptSource::sectionText(int index) const
{
    const bool isLast = index + 1 == m_sections.size();
    return m_text.sliced(m_sections.at(index).start, isLast ? m_text.size() : m_sections.at(index + 1).start);
}

int KeptSource::runsOf(int index) const
{
    const bool isLast = index + 1 == m_sections.size();
    return (isLast ? m_runs : m_sections.at(index + 1).firstRun) - m_sections.at(index).firstRun;
}

QString KeptSource::withLineEnds(QString text) const
{
    return m_endsWithReturns ? text.replace("\r\n"_L1, "\n"_L1).replace(u'\n', "\r\n"_L1) : text;
}

QString KeptSource::newItem(const WrittenSource &written, const WrittenItem &item) const
{
    return itemText(written, item);
}

QString KeptSource::edited(int index, const QTextDocument &document, const WrittenSource &written,
                           const Section &section, bool anew) const
{
    if (!anew) {
        Patch patch(*this, index, document, written, section);
        if (auto text = patch.run(); text && patch.isRight(*text))
            return *std::move(text);
    }
    // The blanks at its edges belong to what stands beside it.
    const QString old = sectionText(index);
    const auto isText = [](QChar c) { return !c.isSpace(); };
    const auto first = std::ranges::find_if(old, isText) - old.cbegin();
    const auto last = std::find_if(old.crbegin(), old.crend(), isText).base() - old.cbegin();
    return old.first(first) + withLineEnds(itemsText(written, section.items)) + old.sliced(qMax(first, last));
}

} // namespace ozm::editor
