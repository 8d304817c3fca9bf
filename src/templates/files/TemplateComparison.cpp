#include <ozm_widgets/TemplateComparison.h>

#include "templates/files/Alignment.h"
#include "templates/files/TemplateLines.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <optional>

using namespace Qt::StringLiterals;

namespace ozm {

namespace comparison {

namespace {

using Change = TemplateDifference::Change;

struct Wording
{
    Subject subject;
    const char *added;
    const char *removed;
    const char *changed;
};

// %1 is the thing, %2 the place, %3 the thing as it is now.
constexpr std::array kWordings{
    Wording{Subject::Text, QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Text added in %2: \"%1\""),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Text removed from %2: \"%1\""),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Text changed in %2: \"%1\" is now \"%3\"")},
    Wording{Subject::Line, QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Added: %2, \"%1\""),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Removed: %2, \"%1\""), ""},
    Wording{Subject::Code, QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Code %1 added in %2"),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Code %1 removed from %2"),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Code %1 replaced by %3 in %2")},
    Wording{Subject::Script, QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Script added in %2: %1"),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Script removed from %2: %1"),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Script changed in %2: %1 is now %3")},
    Wording{Subject::Instruction,
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Instruction \"%1\" added in %2"),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Instruction \"%1\" removed from %2"),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Instruction \"%1\" changed to \"%3\" in %2")},
    Wording{Subject::Image, QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Image added in %2"),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Image removed from %2"),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Image replaced in %2")},
    Wording{Subject::Markup, QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Markup added in %2: %1"),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Markup removed from %2: %1"),
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Markup changed in %2: %1 is now %3")},
    Wording{Subject::Formatting, "", "",
            QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Formatting changed in %2: \"%1\"")},
    Wording{Subject::Source, "", "",
            QT_TRANSLATE_NOOP("ozm::TemplateDifference",
                              "Only markup that formatted text does not show has changed.")},
};

// The same instruction or code can have settings that its caption does not tell.
constexpr const char *kSettings =
    QT_TRANSLATE_NOOP("ozm::TemplateDifference", "Settings of \"%1\" changed in %2");

// Longer texts are not read in a list.
constexpr qsizetype kLongest = 120;
// Between changed words, these many belong to the same change.
constexpr qsizetype kNearWords = 5;
// Lines that are less alike are different lines.
constexpr float kAlike = 0.4F;

QString shortened(const QString &text)
{
    const QString line = text.simplified();
    return line.size() <= kLongest ? line : line.first(kLongest) + u'…';
}

/// Fills the places in one pass, so that what is filled in can hold a "%2" itself.
QString sentence(const char *wording, const QString &thing, const QString &place, const QString &now)
{
    const QString form = Texts::tr(wording);
    QString text;
    for (qsizetype at = 0; at < form.size(); ++at) {
        const int which = form[at] == u'%' && at + 1 < form.size() ? form[at + 1].digitValue() : -1;
        if (which < 1 || which > 3) {
            text += form[at];
            continue;
        }
        text += which == 1 ? shortened(thing) : which == 2 ? place : shortened(now);
        ++at;
    }
    return text;
}

const char *wordingOf(const TemplateDifference &difference, const QString &shownBefore,
                      const QString &shownAfter)
{
    const auto found = std::ranges::find(kWordings, difference.subject, &Wording::subject);
    switch (difference.change) {
    case Change::Added:
        return found->added;
    case Change::Removed:
        return found->removed;
    case Change::Changed:
        break;
    }
    const bool hasSettings =
        difference.subject == Subject::Code || difference.subject == Subject::Instruction;
    return hasSettings && shownBefore == shownAfter ? kSettings : found->changed;
}

/// How much of two lines is the same, in the measure of align().
float likenessOf(const Line &before, const Line &after)
{
    if (before.key == after.key)
        return 1;
    if ((before.table > 0) != (after.table > 0))
        return 0;
    QHash<QString, int> counts;
    int words = 0;
    int common = 0;
    const auto isWord = [](const Token &token) { return token.source != u" "; };
    for (const Token &token : before.tokens) {
        if (isWord(token)) {
            ++counts[token.source];
            ++words;
        }
    }
    for (const Token &token : after.tokens) {
        if (isWord(token)) {
            ++words;
            common += counts[token.source]-- > 0 ? 1 : 0;
        }
    }
    const bool isSameCell = before.isInRowOf(after) && before.column == after.column;
    const float likeness = float(2 * common) / float(std::max(1, words)) * 0.9F;
    return isSameCell ? std::max(likeness, kAlike) : likeness >= kAlike ? likeness : 0;
}

/// Words and things of one line that stand in the place of others.
struct Hunk
{
    QString before;
    QString after;
    QList<Token> thingsBefore;
    QList<Token> thingsAfter;
};

class Comparison
{
public:
    Comparison(const QString &before, const QString &after)
        : m_before(linesOf(before))
        , m_after(linesOf(after))
    {}

    QList<TemplateDifference> differences()
    {
        pairLines(0, int(m_before.size()), 0, int(m_after.size()));
        noteRows();
        for (const Pairing &pair : m_pairs)
            compare(pair);
        return m_differences;
    }

private:
    using Counts = QHash<QString, std::pair<int, int>>;

    /// Lines that are in both texts just once hold the others apart.
    void pairLines(int before, int beforeEnd, int after, int afterEnd)
    {
        while (before < beforeEnd && after < afterEnd && m_before[before].key == m_after[after].key)
            m_pairs.push_back({before++, after++});
        int same = 0;
        while (before < beforeEnd - same && after < afterEnd - same &&
               m_before[beforeEnd - same - 1].key == m_after[afterEnd - same - 1].key)
            ++same;
        const std::vector<Pairing> anchors = anchorsIn(before, beforeEnd - same, after, afterEnd - same);
        if (anchors.empty()) {
            pairAlike(before, beforeEnd - same, after, afterEnd - same);
        } else {
            for (const Pairing &anchor : anchors) {
                pairLines(before, anchor.before, after, anchor.after);
                m_pairs.push_back(anchor);
                before = anchor.before + 1;
                after = anchor.after + 1;
            }
            pairLines(before, beforeEnd - same, after, afterEnd - same);
        }
        for (; same > 0; --same)
            m_pairs.push_back({beforeEnd - same, afterEnd - same});
    }

    [[nodiscard]] std::vector<Pairing> anchorsIn(int before, int beforeEnd, int after, int afterEnd) const
    {
        struct Places
        {
            int countBefore = 0;
            int countAfter = 0;
            int after = -1;
        };
        QHash<QString, Places> places;
        for (int i = before; i < beforeEnd; ++i)
            ++places[m_before[i].key].countBefore;
        for (int j = after; j < afterEnd; ++j) {
            Places &place = places[m_after[j].key];
            ++place.countAfter;
            place.after = j;
        }
        std::vector<Pairing> unique;
        for (int i = before; i < beforeEnd; ++i)
            if (const Places place = places.value(m_before[i].key);
                place.countBefore == 1 && place.countAfter == 1)
                unique.push_back({i, place.after});
        return longestRising(unique);
    }

    /// The most of @p pairs whose second lines are in order, as their first ones are.
    [[nodiscard]] static std::vector<Pairing> longestRising(const std::vector<Pairing> &pairs)
    {
        std::vector<std::size_t> ends; // of the chains of each length, that with the lowest end
        std::vector<std::optional<std::size_t>> previous(pairs.size());
        for (std::size_t index = 0; index < pairs.size(); ++index) {
            const auto place = std::ranges::lower_bound(
                ends, pairs[index].after, {}, [&pairs](std::size_t end) { return pairs[end].after; });
            if (place != ends.begin())
                previous[index] = *std::prev(place);
            if (place == ends.end())
                ends.push_back(index);
            else
                *place = index;
        }
        std::vector<Pairing> chain;
        auto at = ends.empty() ? std::nullopt : std::optional(ends.back());
        for (; at; at = previous[*at])
            chain.push_back(pairs[*at]);
        std::ranges::reverse(chain);
        return chain;
    }

    void pairAlike(int before, int beforeEnd, int after, int afterEnd)
    {
        const bool isOnly = beforeEnd - before == 1 && afterEnd - after == 1;
        const auto likeness = [&](int i, int j) {
            const float alike = likenessOf(m_before[before + i], m_after[after + j]);
            const bool areBothIn = (m_before[before + i].table > 0) == (m_after[after + j].table > 0);
            return isOnly && areBothIn ? std::max(alike, kAlike) : alike;
        };
        for (const Pairing &pair : align(beforeEnd - before, afterEnd - after, likeness))
            m_pairs.push_back(
                {pair.before < 0 ? -1 : before + pair.before, pair.after < 0 ? -1 : after + pair.after});
    }

    /// Remembers the rows of tables in which a line has a partner.
    void noteRows()
    {
        for (const Pairing &pair : m_pairs) {
            if (pair.before < 0 || pair.after < 0)
                continue;
            m_keptBefore[rowOf(m_before[pair.before])] = true;
            m_keptAfter[rowOf(m_after[pair.after])] = true;
        }
    }

    using Row = std::pair<int, int>;
    [[nodiscard]] static Row rowOf(const Line &line) { return {line.table, line.row}; }

    void compare(const Pairing &pair)
    {
        if (pair.before < 0)
            tellLine(m_after, pair.after, m_keptAfter, Change::Added);
        else if (pair.after < 0)
            tellLine(m_before, pair.before, m_keptBefore, Change::Removed);
        else
            compareLines(m_before[pair.before], m_after[pair.after]);
    }

    void tellLine(const QList<Line> &lines, int index, std::map<Row, bool> &kept, Change change)
    {
        const Line &line = lines[index];
        if (line.table > 0 && !kept[rowOf(line)]) {
            tellRow(lines, index, change);
        } else if (line.table > 0 || line.tokens.size() == 1) {
            // The cell, or the thing in a line of its own, is what has come or gone.
            Hunk hunk;
            for (const Token &token : line.tokens)
                take(hunk, token, change == Change::Added);
            tell(hunk, line, line, change);
        } else {
            tell(Subject::Line, change, line.shown(), line, line);
        }
    }

    /// All of its cells at once, with the first of them.
    void tellRow(const QList<Line> &lines, int index, Change change)
    {
        if (index > 0 && lines[index].isInRowOf(lines[index - 1]))
            return;
        QStringList cells;
        for (int each = index; each < lines.size() && lines[each].isInRowOf(lines[index]); ++each)
            cells.append(lines[each].shown());
        tell(Subject::Line, change, cells.join(u" | "_s), lines[index], lines[index]);
    }

    void compareLines(const Line &before, const Line &after)
    {
        if (before.key == after.key) {
            if (before.formats != after.formats || before.lengths != after.lengths)
                tell({Subject::Formatting, {}, before.shown()}, {Subject::Formatting, {}, after.shown()},
                     before, after, Change::Changed);
            return;
        }
        const auto likeness = [&](int i, int j) { return before.tokens[i] == after.tokens[j] ? 1.0F : 0.0F; };
        Hunk hunk;
        QList<Token> same;
        const auto close = [&] {
            tell(hunk, before, after, Change::Changed);
            hunk = {};
            same.clear();
        };
        for (const Pairing &pair : align(int(before.tokens.size()), int(after.tokens.size()), likeness)) {
            if (pair.before >= 0 && pair.after >= 0) {
                same.append(before.tokens[pair.before]);
                if (same.constLast().subject != Subject::Text || same.size() > kNearWords)
                    close();
                continue;
            }
            if (!hunk.before.isEmpty() || !hunk.after.isEmpty()) {
                for (const Token &token : std::as_const(same)) {
                    hunk.before += token.shown;
                    hunk.after += token.shown;
                }
            }
            same.clear();
            take(hunk, pair.before >= 0 ? before.tokens[pair.before] : after.tokens[pair.after],
                 pair.after >= 0);
        }
        close();
    }

    static void take(Hunk &hunk, const Token &token, bool isAfter)
    {
        if (token.subject == Subject::Text)
            (isAfter ? hunk.after : hunk.before) += token.shown;
        else
            (isAfter ? hunk.thingsAfter : hunk.thingsBefore).append(token);
    }

    void tell(Hunk hunk, const Line &before, const Line &after, Change change)
    {
        for (const Token &thing : std::as_const(hunk.thingsBefore)) {
            const auto partner = std::ranges::find(hunk.thingsAfter, thing.subject, &Token::subject);
            const Token now = partner != hunk.thingsAfter.end() ? *partner : Token{thing.subject, {}, {}};
            if (partner != hunk.thingsAfter.end())
                hunk.thingsAfter.erase(partner);
            tell(thing, now, before, after, change);
        }
        for (const Token &thing : std::as_const(hunk.thingsAfter))
            tell({thing.subject, {}, {}}, thing, before, after, change);
        const QString was = hunk.before.trimmed();
        const QString now = hunk.after.trimmed();
        if (was != now)
            tell({Subject::Text, was, was}, {Subject::Text, now, now}, before, after, change);
    }

    void tell(Subject subject, Change change, const QString &text, const Line &before, const Line &after)
    {
        const Token thing{subject, text, text};
        const Token nothing{subject, {}, {}};
        tell(change == Change::Added ? nothing : thing, change == Change::Added ? thing : nothing, before,
             after, change);
    }

    /// @p lines says which of the lines are there.
    void tell(const Token &was, const Token &now, const Line &before, const Line &after, Change lines)
    {
        TemplateDifference difference;
        difference.subject = was.subject;
        if (was.subject != Subject::Formatting && was.source.isEmpty())
            difference.change = Change::Added;
        else if (was.subject != Subject::Formatting && now.source.isEmpty())
            difference.change = Change::Removed;
        difference.before = was.source.isEmpty() ? was.shown : was.source;
        difference.after = now.source.isEmpty() ? now.shown : now.source;
        difference.positionBefore = lines == Change::Added ? -1 : before.position;
        difference.positionAfter = lines == Change::Removed ? -1 : after.position;
        const bool isGone = difference.change == Change::Removed;
        difference.text = sentence(wordingOf(difference, was.shown, now.shown),
                                   difference.change == Change::Added ? now.shown : was.shown,
                                   isGone ? before.place : after.place, now.shown);
        m_differences.append(difference);
    }

    const QList<Line> m_before;
    const QList<Line> m_after;
    std::vector<Pairing> m_pairs;
    std::map<Row, bool> m_keptBefore;
    std::map<Row, bool> m_keptAfter;
    QList<TemplateDifference> m_differences;
};

} // namespace

} // namespace comparison

QList<TemplateDifference> compareTemplates(const QString &before, const QString &after)
{
    if (before == after)
        return {};
    QList<TemplateDifference> differences = comparison::Comparison(before, after).differences();
    if (differences.isEmpty()) {
        TemplateDifference difference{TemplateDifference::Change::Changed,
                                      TemplateDifference::Subject::Source, before, after};
        difference.text = comparison::Texts::tr("Only markup that formatted text does not show has changed.");
        differences.append(difference);
    }
    return differences;
}

} // namespace ozm
