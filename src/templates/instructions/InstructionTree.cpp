#include "templates/instructions/InstructionTree.h"

#include "templates/syntax/HtmlScanner.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::instructions {

namespace {

using editor::HtmlElement;
using editor::HtmlToken;
using editor::HtmlTokenKind;

// Parts are filled by recursion; nobody nests them by hand as deep as this.
constexpr int kDeepest = 40;
// Elements around an instruction that are looked at.
constexpr int kHighest = 500;
constexpr qsizetype kMostColumns = 1000;

constexpr std::array kLines{"p"_L1, "div"_L1, "h1"_L1, "h2"_L1, "h3"_L1, "h4"_L1, "h5"_L1, "h6"_L1};
constexpr std::array kRows{"tr"_L1, "li"_L1};
// Shown by themselves: a line that holds one is not empty.
constexpr std::array kShown{"img"_L1, "br"_L1, "hr"_L1, "input"_L1};

template <typename Names>
bool isOneOf(const Names &names, const QString &name)
{
    return std::ranges::any_of(names, [&name](QLatin1StringView each) { return name == each; });
}

class TreeReader
{
public:
    explicit TreeReader(const QString &content)
        : m_content(content)
        , m_tokens(editor::scanHtml(content))
        , m_elements(editor::treeOf(m_tokens))
    {}

    InstructionTree run()
    {
        for (qsizetype index = 0; index < m_tokens.size(); ++index) {
            const HtmlToken &token = m_tokens.at(index);
            if (token.kind == HtmlTokenKind::Opaque && isInstructionComment(text(token)))
                takeComment(index);
            else if (token.kind == HtmlTokenKind::StartTag && isFormatTag(text(token)))
                takeFormat(index);
        }
        for (const OpenSection &open : std::as_const(m_open))
            fail(open.mark, Texts::tr("The section has no end."));
        nest();
        for (InstructedPart &part : m_tree.parts) {
            if (part.held.isEmpty() && part.otherwise.isEmpty())
                part.held = part.range;
            addCuts(part);
        }
        std::ranges::sort(m_tree.cuts, {}, &SourceRange::start);
        std::ranges::sort(m_tree.faulty, {}, &FaultyInstruction::position);
        return std::move(m_tree);
    }

private:
    struct OpenSection
    {
        Instruction instruction;
        SourceRange mark;
        SourceRange line;
        int parent;
        SourceRange otherMark = {};
        SourceRange otherLine = {};
        bool isFaulty = false; ///< Its other part is.
    };

    /// An instruction with the line that it stands in alone, or by itself.
    struct Line
    {
        SourceRange range;
        int parent;
    };

    [[nodiscard]] QStringView text(const HtmlToken &token) const
    {
        return QStringView(m_content).sliced(token.start, token.end - token.start);
    }

    void fail(const SourceRange &mark, const QString &message)
    {
        m_tree.faulty.append({m_content.sliced(mark.start, mark.end - mark.start), mark.start, message});
    }

    void takeComment(qsizetype index)
    {
        const SourceRange mark{m_tokens.at(index).start, m_tokens.at(index).end};
        const Reading reading = readComment(text(m_tokens.at(index)).toString());
        if (!reading.instruction) {
            fail(mark, reading.error);
        } else if (std::holds_alternative<End>(*reading.instruction)) {
            endSection(index, mark);
        } else if (std::holds_alternative<Else>(*reading.instruction)) {
            takeElse(index, mark);
        } else if (std::holds_alternative<Page>(*reading.instruction)) {
            takePage(index, mark, *reading.instruction);
        } else if (std::holds_alternative<Contents>(*reading.instruction)) {
            takeLine(index, mark, *reading.instruction);
        } else if (extentOf(*reading.instruction) == Extent::Row) {
            takeRow(index, mark, *reading.instruction);
        } else {
            const Line line = lineOf(index);
            m_open.append({*reading.instruction, mark, line.range, line.parent});
        }
    }

    static Extent extentOf(const Instruction &instruction)
    {
        if (const auto *repeat = std::get_if<Repeat>(&instruction))
            return repeat->extent;
        const auto *condition = std::get_if<Condition>(&instruction);
        return condition ? condition->extent : Extent::Section;
    }

    /// Where it cannot be followed, its section cannot, either: both parts would be shown.
    void takeElse(qsizetype index, const SourceRange &mark)
    {
        if (m_open.isEmpty()) {
            fail(mark, Texts::tr("No section has another part here."));
            return;
        }
        OpenSection &open = m_open.last();
        const Line line = lineOf(index);
        const auto *repeat = std::get_if<Repeat>(&open.instruction);
        QString error;
        if (!open.otherMark.isEmpty())
            error = Texts::tr("The section has another part already.");
        else if (open.parent != line.parent)
            error = Texts::tr("The other part begins in another element than the section.");
        else if (repeat && !repeat->empty.isEmpty())
            error = Texts::tr("The section has a text for no rows already.");
        open.otherMark = mark;
        open.otherLine = line.range;
        if (error.isNull())
            return;
        open.isFaulty = true;
        fail(mark, error);
    }

    void endSection(qsizetype index, const SourceRange &mark)
    {
        if (m_open.isEmpty()) {
            fail(mark, Texts::tr("No section ends here."));
            return;
        }
        const OpenSection open = m_open.takeLast();
        const Line line = lineOf(index);
        if (open.parent != line.parent) {
            fail(open.mark, Texts::tr("The section ends in another element than it begins in."));
            fail(mark, Texts::tr("The section ends in another element than it begins in."));
            return;
        }
        if (open.isFaulty) {
            fail(open.mark, Texts::tr("The section cannot be followed for its other part."));
            fail(mark, Texts::tr("The section cannot be followed for its other part."));
            return;
        }
        InstructedPart part{open.instruction, {open.line.start, line.range.end}, open.mark};
        if (!open.otherLine.isEmpty()) {
            part.held = {part.range.start, open.otherLine.start};
            part.otherwise = {open.otherLine.end, part.range.end};
        }
        m_tree.parts.append(part);
        m_lines.append({open.line, line.range});
    }

    void takePage(qsizetype index, const SourceRange &mark, const Instruction &page)
    {
        if (std::exchange(m_hasPage, true)) {
            fail(mark, Texts::tr("The pages are set up already."));
            return;
        }
        takeLine(index, mark, page);
    }

    void takeLine(qsizetype index, const SourceRange &mark, const Instruction &instruction)
    {
        m_tree.parts.append({instruction, lineOf(index).range, mark});
        m_lines.emplaceBack();
    }

    void takeRow(qsizetype index, const SourceRange &mark, const Instruction &instruction)
    {
        const int row = rowAround(index);
        if (row < 0) {
            fail(mark, Texts::tr("This is neither in a table row nor in a list item."));
            return;
        }
        const HtmlElement &element = m_elements.elements.at(row);
        const bool isRepeat = std::holds_alternative<Repeat>(instruction);
        if (isRepeat && m_repeatedRows.contains(row)) {
            fail(mark, Texts::tr("This row repeats already."));
            return;
        }
        if (isRepeat)
            m_repeatedRows.insert(row);
        m_tree.parts.append({instruction, {element.start, element.end}, mark});
        m_lines.append({lineOf(index).range, {}});
    }

    void takeFormat(qsizetype index)
    {
        const HtmlElement &span = m_elements.elements.at(m_elements.innermost.at(index));
        const HtmlToken &tag = m_tokens.at(index);
        QString inner = m_content.sliced(tag.end, span.end - tag.end);
        inner.truncate(inner.lastIndexOf("</"_L1));
        const Reading reading = readFormat(text(tag).toString(), inner);
        if (!reading.instruction) {
            fail({span.start, span.end}, reading.error);
            return;
        }
        m_tree.parts.append({*reading.instruction, {span.start, span.end}, {span.start, span.end}});
        m_lines.emplaceBack();
    }

    [[nodiscard]] int rowAround(qsizetype index) const
    {
        int at = m_elements.innermost.at(index);
        for (int steps = 0; at >= 0 && steps < kHighest; ++steps) {
            if (isOneOf(kRows, m_elements.elements.at(at).name))
                return at;
            at = m_elements.elements.at(at).parent;
        }
        return -1;
    }

    /// A line that holds nothing but the instruction goes with it: the reader of the report would wonder.
    [[nodiscard]] Line lineOf(qsizetype index) const
    {
        Line line{{m_tokens.at(index).start, m_tokens.at(index).end}, m_elements.innermost.at(index)};
        for (int at = line.parent, steps = 0; at >= 0 && steps < kHighest; ++steps) {
            const HtmlElement &element = m_elements.elements.at(at);
            if (isOneOf(kLines, element.name)) {
                if (holdsNothingBut(index, element))
                    line = {{element.start, element.end}, element.parent};
                break;
            }
            at = element.parent;
        }
        takeRestOfLine(line.range);
        return line;
    }

    /// A line of the source goes as a whole where nothing else stands on it.
    void takeRestOfLine(SourceRange &range) const
    {
        const auto isBlank = [this](qsizetype at) {
            return m_content.at(at).isSpace() && m_content.at(at) != u'\n';
        };
        qsizetype start = range.start;
        while (start > 0 && isBlank(start - 1))
            --start;
        qsizetype end = range.end;
        while (end < m_content.size() && isBlank(end))
            ++end;
        const bool beginsLine = start == 0 || m_content.at(start - 1) == u'\n';
        if (beginsLine && end < m_content.size() && m_content.at(end) == u'\n')
            range.end = end + 1;
    }

    [[nodiscard]] bool holdsNothingBut(qsizetype index, const HtmlElement &element) const
    {
        const auto isNothing = [this](const HtmlToken &token) {
            if (token.kind == HtmlTokenKind::Text)
                return text(token).trimmed().isEmpty();
            return (token.kind == HtmlTokenKind::StartTag && !isOneOf(kShown, token.name)) ||
                   token.kind == HtmlTokenKind::EndTag;
        };
        qsizetype first = index;
        while (first > 0 && m_tokens.at(first - 1).start >= element.startTagEnd &&
               isNothing(m_tokens.at(first - 1)))
            --first;
        qsizetype last = index + 1;
        while (last < m_tokens.size() && m_tokens.at(last).end <= element.end && isNothing(m_tokens.at(last)))
            ++last;
        return m_tokens.at(first).start == element.startTagEnd &&
               (last == m_tokens.size() || m_tokens.at(last).start >= element.end);
    }

    /// Puts each part into the one around it. Parts that cross others are taken out.
    void nest()
    {
        QList<int> order(m_tree.parts.size());
        std::iota(order.begin(), order.end(), 0);
        // A row that repeats under a condition asks for each of its rows of data.
        std::ranges::stable_sort(order, [this](int a, int b) {
            const InstructedPart &first = m_tree.parts.at(a);
            const InstructedPart &second = m_tree.parts.at(b);
            if (first.range.start != second.range.start)
                return first.range.start < second.range.start;
            if (first.range.end != second.range.end)
                return first.range.end > second.range.end;
            return first.instruction.index() < second.instruction.index();
        });
        QList<int> around;
        for (const int index : std::as_const(order)) {
            const InstructedPart &part = m_tree.parts.at(index);
            while (!around.isEmpty() && m_tree.parts.at(around.constLast()).range.end <= part.range.start)
                around.removeLast();
            if (!around.isEmpty() && !m_tree.parts.at(around.constLast()).range.holds(part.range)) {
                fail(part.mark, Texts::tr("The section crosses another one."));
                m_crossing.insert(index);
            } else if (around.size() >= kDeepest) {
                fail(part.mark, Texts::tr("There are too many sections within one another."));
                m_crossing.insert(index);
            } else {
                (around.isEmpty() ? m_tree.roots : m_tree.parts[around.constLast()].children).append(index);
                around.append(index);
            }
        }
    }

    void addCuts(const InstructedPart &part)
    {
        const int index = int(&part - m_tree.parts.constData());
        if (m_crossing.contains(index))
            return;
        for (const SourceRange &line : {m_lines.at(index).first, m_lines.at(index).second})
            if (!line.isEmpty())
                m_tree.cuts.append(line);
    }

    const QString &m_content;
    const QList<HtmlToken> m_tokens;
    const editor::HtmlTree m_elements;
    QList<OpenSection> m_open;
    QSet<int> m_repeatedRows;
    QSet<int> m_crossing;
    bool m_hasPage = false;
    QList<std::pair<SourceRange, SourceRange>> m_lines; ///< Of the parts, in their order.
    InstructionTree m_tree;
};

bool hasTags(const QString &source, const QList<HtmlToken> &tokens)
{
    using Kind = HtmlTokenKind;
    // A code with a format does not make a plain text a page.
    bool isInFormat = false;
    return std::any_of(tokens.begin(), tokens.end(), [&](const HtmlToken &token) {
        if (token.kind == Kind::StartTag &&
            isFormatTag(QStringView(source).sliced(token.start, token.end - token.start))) {
            isInFormat = true;
            return false;
        }
        if (isInFormat && token.kind == Kind::EndTag)
            return std::exchange(isInFormat, false) && token.name != "span"_L1;
        return token.kind == Kind::StartTag || token.kind == Kind::EndTag || token.kind == Kind::RawElement;
    });
}

} // namespace

InstructionTree instructionsOf(const QString &content)
{
    // Most templates have none, and need not be scanned.
    if (!content.contains("<!--ozm:"_L1) && !content.contains("data-format"_L1, Qt::CaseInsensitive))
        return {};
    return TreeReader(content).run();
}

std::optional<Page> pageOf(const QString &content)
{
    if (!content.contains("<!--ozm:"_L1))
        return std::nullopt;
    for (const HtmlToken &token : editor::scanHtml(content)) {
        const QStringView text = QStringView(content).sliced(token.start, token.end - token.start);
        if (token.kind != HtmlTokenKind::Opaque || !isInstructionComment(text))
            continue;
        const auto instruction = readComment(text.toString()).instruction;
        if (const auto *page = instruction ? std::get_if<Page>(&*instruction) : nullptr)
            return *page;
    }
    return std::nullopt;
}

bool isHtml(const QString &source)
{
    // Most pages show at once that they are one.
    constexpr qsizetype kFirst = 16;
    return hasTags(source, editor::scanHtmlStart(source, kFirst)) ||
           hasTags(source, editor::scanHtml(source));
}

QString rowWithText(const QString &content, const SourceRange &range, const QString &text)
{
    const QString source = content.sliced(range.start, range.end - range.start);
    const editor::HtmlTree tree = editor::treeOf(editor::scanHtml(source));
    const HtmlElement row = tree.elements.value(0);
    const QString tag = source.first(row.startTagEnd);
    if (row.name != "tr"_L1)
        return tag + text + "</"_L1 + row.name + u'>';
    qsizetype columns = 0;
    for (const HtmlElement &cell : tree.elements) {
        if (cell.parent != 0)
            continue;
        const QString span =
            attribute(source.sliced(cell.start, cell.startTagEnd - cell.start), "colspan"_L1);
        columns += std::clamp<qsizetype>(span.toInt(), 1, kMostColumns);
    }
    return tag + u"<td colspan=\"%1\">"_s.arg(columns) + text + "</td></tr>"_L1;
}

} // namespace ozm::instructions
