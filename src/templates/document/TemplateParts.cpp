#include "templates/document/TemplateParts.h"

#include "templates/document/InlineHtml.h"
#include "templates/document/ParagraphClass.h"
#include "templates/document/StandingMarkup.h"
#include "templates/document/TemplateElements.h"
#include "templates/document/WholeRanges.h"
#include "templates/syntax/Codes.h"
#include "templates/syntax/HtmlScanner.h"
#include "templates/syntax/ScriptTags.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

// Elements around a line that are looked at; more of them would be no template that somebody wrote.
constexpr qsizetype kDeepest = 30;

class Splitter
{
public:
    Splitter(const QString &source, LineMarks marks)
        : m_source(source)
        , m_marks(marks)
        , m_tokens(scanHtml(source))
        , m_tree(treeOf(m_tokens))
        , m_kept(wholeRanges(source, m_tokens, m_tree))
    {
        chooseMarkers();
        findKeptBlanks();
    }

    SplitTemplate run()
    {
        qsizetype kept = 0;
        for (m_index = 0; m_index < m_tokens.size(); ++m_index) {
            const HtmlToken &token = m_tokens.at(m_index);
            while (kept < m_kept.size() && m_kept.at(kept).end <= token.start)
                ++kept;
            if (kept < m_kept.size() && token.start >= m_kept.at(kept).start) {
                if (token.start == m_kept.at(kept).start && !m_kept.at(kept).isDropped)
                    appendKept(token, m_kept.at(kept).end);
                if (m_kept.at(kept).isDropped)
                    m_runIsOpen = false;
                continue;
            }
            append(token);
        }
        finishRuns();
        return m_result;
    }

private:
    void chooseMarkers()
    {
        m_result.textMarker = characterNotIn(m_source);
        // The very character of a chip, unless there are others of them: an image is one in the document.
        const bool hasObjects =
            m_source.contains(QChar::ObjectReplacementCharacter) ||
            std::ranges::any_of(m_tokens, [](const HtmlToken &token) { return token.name == "img"_L1; });
        m_result.chipMarker = hasObjects ? characterNotIn(m_source + m_result.textMarker)
                                         : QChar(QChar::ObjectReplacementCharacter);
    }

    void append(const HtmlToken &token)
    {
        switch (token.kind) {
        case HtmlTokenKind::Text:
            appendText(token);
            break;
        case HtmlTokenKind::Script:
            appendWhole(PartKind::Script, token);
            break;
        case HtmlTokenKind::RawElement:
        case HtmlTokenKind::Opaque:
            // The page's own document type says nothing about a part of a page.
            if (!text(token).startsWith("<!doctype"_L1, Qt::CaseInsensitive))
                appendWhole(PartKind::Markup, token);
            break;
        case HtmlTokenKind::StartTag:
        case HtmlTokenKind::EndTag:
            appendTag(token);
            break;
        }
    }

    void appendTag(const HtmlToken &token)
    {
        if (const qsizetype last = emptyElementEnd(); last > m_index) {
            m_index = last;
            m_runIsOpen = false;
            m_pending = -1;
            return;
        }
        const bool opens = token.kind == HtmlTokenKind::StartTag;
        const bool isPage = token.name == "html"_L1 || token.name == "body"_L1;
        if (opens && isPage)
            m_result.around += text(token);
        if (token.name == "br"_L1 || token.name == "img"_L1) {
            beginRun(token.start);
            markLine();
        }
        if (isEdge(token)) {
            m_runIsOpen = false;
            m_pending = -1;
        } else if (!m_runIsOpen && m_pending < 0) {
            m_pending = token.start;
        }
        m_isNamed = m_isNamed || (opens && hasName(token));
        const bool opensEmptyLine = isEmptyLine();
        // The reader would leave out the mark in a line that the toolkit has written as empty.
        if (opensEmptyLine)
            m_result.html += text(token).toString().remove("-qt-paragraph-type:empty"_L1);
        else
            m_result.html += text(token);
        if (m_runIsOpen)
            m_result.runs.last().end = token.end;
        if (token.name == "hr"_L1 && opens)
            m_result.runs.append({token.start, token.end, -1, {}, {}, {}, true});
        if (opensEmptyLine) {
            beginRun(token.end);
            appendPart(PartKind::Markup, token.end, token.end);
            m_result.runs.last().end = m_tokens.at(++m_index).end;
        } else if (isEmptyCell(token)) {
            beginRun(token.end);
            markLine();
        }
    }

    bool hasName(const HtmlToken &token) const
    {
        static const QRegularExpression name(u"\\b(?:id|name)\\s*="_s,
                                             QRegularExpression::CaseInsensitiveOption);
        const bool isBare = token.end - token.start == token.name.size() + 2;
        // A line with an image has a mark, and its tag can be long.
        return !isBare && token.name != "img"_L1 && text(token).contains(name);
    }

    // Ends the line that stands before.
    static bool isEdge(const HtmlToken &token)
    {
        return isAmong(kBlockElements, token.name) ? token.name != "br"_L1 : token.name == "hr"_L1;
    }

    // The reader drops an item without text, and a cell without any has nothing to know it by.
    bool isEmptyCell(const HtmlToken &token) const
    {
        if (token.kind != HtmlTokenKind::StartTag ||
            !(token.name == "td"_L1 || token.name == "th"_L1 || token.name == "li"_L1))
            return false;
        for (qsizetype next = m_index + 1; next < m_tokens.size(); ++next) {
            const HtmlToken &after = m_tokens.at(next);
            if (after.kind == HtmlTokenKind::Text && isBlankText(text(after)))
                continue;
            return after.kind == HtmlTokenKind::EndTag ||
                   (after.kind == HtmlTokenKind::StartTag && after.name == token.name);
        }
        return true;
    }

    void beginRun(qsizetype start)
    {
        if (std::exchange(m_runIsOpen, true))
            return;
        endLine();
        const qsizetype from = m_pending < 0 ? start : std::exchange(m_pending, -1);
        m_line = {int(m_result.runs.size()), m_result.plainText.size(), m_result.html.size(),
                  m_result.parts.size()};
        m_result.runs.append({from, from});
        if (std::exchange(m_isNamed, false) || m_marks == LineMarks::All)
            markLine();
    }

    // The mark stands where the line's first text does: a line that is not there makes none.
    void markLine()
    {
        if (m_line.run < 0)
            return;
        const qsizetype from = m_result.runs.at(m_line.run).start;
        m_result.html.insert(m_line.inHtml, m_result.textMarker);
        m_result.parts.insert(m_line.inParts, {PartKind::None, {}});
        m_result.places.insert(m_line.inParts, {from, from, m_line.run});
        m_line.run = -1;
    }

    void endLine()
    {
        if (isBlankText(QStringView(m_result.plainText).sliced(m_line.inText)))
            markLine();
        if (m_line.run >= 0)
            m_result.plainLines.append({m_line.run, m_line.inText, m_result.plainText.size()});
        else
            m_result.plainText.truncate(m_line.inText);
        m_line = {-1, m_result.plainText.size(), 0, 0};
    }

    void addPart(const TemplatePart &part, const PartPlace &place)
    {
        const bool isText = part.kind == PartKind::None || part.source.isEmpty();
        const QChar marker = isText ? m_result.textMarker : m_result.chipMarker;
        m_result.html += marker;
        m_result.plainText += marker;
        m_result.parts.append(part);
        m_result.places.append(place);
    }

    // "<p></p>": the reader makes a line of it in some places only, where a page shows none anywhere.
    qsizetype emptyElementEnd() const
    {
        const HtmlToken &token = m_tokens.at(m_index);
        if (token.kind != HtmlTokenKind::StartTag || !isAmong(kLineElements, token.name))
            return m_index;
        qsizetype next = m_index + 1;
        if (next < m_tokens.size() && m_tokens.at(next).kind == HtmlTokenKind::Text &&
            isBlankText(text(m_tokens.at(next)))) {
            if (isLineOfBlanks(next))
                return m_index;
            ++next;
        }
        const bool isEmpty = next < m_tokens.size() && m_tokens.at(next).kind == HtmlTokenKind::EndTag &&
                             m_tokens.at(next).name == token.name;
        return isEmpty ? next : m_index;
    }

    // Where blanks are kept, they are a line by themselves; a line end between elements is none.
    bool isLineOfBlanks(qsizetype index) const
    {
        return keepsBlanks(m_tree.innermost.at(index)) && !text(m_tokens.at(index)).contains(u'\n');
    }

    // "<p><br/></p>": the reader keeps such lines or drops them depending on what stands around them.
    bool isEmptyLine() const
    {
        if (m_index + 2 >= m_tokens.size() || m_tokens.at(m_index).kind != HtmlTokenKind::StartTag)
            return false;
        const HtmlToken &inner = m_tokens.at(m_index + 1);
        const HtmlToken &end = m_tokens.at(m_index + 2);
        return isAmong(kLineElements, m_tokens.at(m_index).name) && inner.kind == HtmlTokenKind::StartTag &&
               inner.name == "br"_L1 && end.kind == HtmlTokenKind::EndTag &&
               end.name == m_tokens.at(m_index).name;
    }

    QStringView text(const HtmlToken &token) const
    {
        return QStringView(m_source).sliced(token.start, token.end - token.start);
    }

    bool isBlockEdge(qsizetype index) const
    {
        if (index < 0 || index >= m_tokens.size())
            return true;
        const HtmlToken &token = m_tokens.at(index);
        return (token.kind == HtmlTokenKind::StartTag || token.kind == HtmlTokenKind::EndTag) &&
               isAmong(kBlockElements, token.name) && !isKept(token.start);
    }

    // Parents stand before their children.
    void findKeptBlanks()
    {
        for (const HtmlElement &element : m_tree.elements) {
            const QStringView tag =
                QStringView(m_source).sliced(element.start, element.startTagEnd - element.start);
            m_keepsBlanks.append(element.name == "pre"_L1 || tag.contains("white-space"_L1) ||
                                 keepsBlanks(element.parent));
        }
    }

    bool keepsBlanks(int element) const { return element >= 0 && m_keepsBlanks.at(element); }

    void appendText(const HtmlToken &token)
    {
        qsizetype at = token.start;
        qsizetype end = token.end;
        if (!keepsBlanks(m_tree.innermost.at(m_index))) {
            while (isBlockEdge(m_index + 1) && end > at && isBlank(m_source.at(end - 1)))
                --end;
            while (isBlockEdge(m_index - 1) && at < end && isBlank(m_source.at(at)))
                ++at;
        }
        const QStringView trimmed = QStringView(m_source).sliced(at, end - at);
        const qsizetype offset = at;
        for (const auto &range : syntax::codeRanges(trimmed)) {
            const QStringView code = trimmed.sliced(range.start, range.end - range.start);
            if (code.contains(u'<') && code.contains(halfTag()))
                continue;
            appendPlain(at, offset + range.start);
            at = offset + range.end;
            appendPart(PartKind::Code, offset + range.start, at);
        }
        appendPlain(at, end);
    }

    void finishRuns()
    {
        endLine();
        findSections();
        for (SourceRun &run : m_result.runs)
            findHost(run);
        QHash<qsizetype, int> held;
        for (const SourceRun &run : std::as_const(m_result.runs))
            for (const HtmlElement &element : run.outer)
                ++held[element.start];
        qsizetype before = 0;
        for (SourceRun &run : m_result.runs) {
            const HtmlElement inner = run.outer.value(0);
            const bool isHost = !run.isRule && held.value(inner.start) == 1 &&
                                (isAmong(kLineElements, inner.name) || inner.name == "li"_L1 ||
                                 inner.name == "td"_L1 || inner.name == "th"_L1);
            if (isHost)
                run.host = run.outer.takeFirst();
            // Of the lines of an item, the first is the item's own.
            const bool isItem = inner.name == "li"_L1 && inner.start >= before;
            if (isItem || isAmong(kLineElements, run.host.name))
                run.paragraphClass = classOf(m_source.sliced(inner.start, inner.startTagEnd - inner.start));
            before = run.start;
            run.outer.removeIf([](const HtmlElement &element) { return isAmong(kTableParts, element.name); });
            run.outer.squeeze();
        }
        m_result.runs.squeeze();
        m_result.sections.squeeze();
    }

    void findHost(SourceRun &run)
    {
        for (int at = innermostAt(run.start); at >= 0 && run.outer.size() < kDeepest;
             at = m_tree.elements.at(at).parent) {
            const HtmlElement &element = m_tree.elements.at(at);
            if (element.name == "html"_L1 || element.name == "body"_L1)
                break;
            if (isAmong(kBlockElements, element.name) && element.startTagEnd <= run.start)
                run.outer.append(element);
        }
        int depth = 0;
        const auto from = std::ranges::lower_bound(m_tokens, run.start, {}, &HtmlToken::start);
        for (auto token = from; token != m_tokens.end() && token->start < run.end; ++token) {
            if (isKept(token->start))
                continue;
            if (token->kind == HtmlTokenKind::StartTag && !isVoidElement(token->name))
                ++depth;
            else if (token->kind == HtmlTokenKind::EndTag && --depth < 0)
                run.isBalanced = false;
        }
        run.isBalanced = run.isBalanced && depth == 0;
    }

    /// The innermost element around @p position, which is the end of a token or the start of one.
    [[nodiscard]] int innermostAt(qsizetype position) const
    {
        const auto token = std::ranges::upper_bound(m_tokens, position, {}, &HtmlToken::end);
        const auto before = token - m_tokens.begin() - (token != m_tokens.begin() ? 1 : 0);
        if (token == m_tokens.begin() || m_tokens.isEmpty())
            return -1;
        return m_tree.innermost.at(before);
    }

    void findSections()
    {
        QList<qsizetype> starts{0};
        QList<qsizetype> ends;
        for (const HtmlToken &token : m_tokens)
            if ((token.kind == HtmlTokenKind::StartTag || token.kind == HtmlTokenKind::EndTag) &&
                isEdge(token) && !isKept(token.start))
                m_edges.append(token.start);
        for (const HtmlElement &element : m_tree.elements) {
            const bool isPage =
                element.name == "html"_L1 || element.name == "body"_L1 || element.name == "head"_L1;
            if (isPage)
                starts.append({element.start, element.startTagEnd});
            const bool isInside = (!ends.isEmpty() && element.start < ends.last()) || isKept(element.start);
            if (isPage || isInside)
                continue;
            const bool isInline = !isAmong(kBlockElements, element.name) && element.name != "hr"_L1;
            if (isInline && !holdsLines(element))
                continue;
            if (element.name == "br"_L1)
                continue;
            starts.append({element.start, element.end});
            ends.append(element.end);
        }
        std::ranges::sort(starts);
        starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
        // Elements that cross one another can end within a line.
        starts.removeIf([this](qsizetype start) {
            const auto after = std::ranges::lower_bound(m_result.runs, start, {}, &SourceRun::start);
            return after != m_result.runs.begin() && start < (after - 1)->end;
        });
        qsizetype run = 0;
        for (qsizetype i = 0; i < starts.size(); ++i) {
            const bool isLast = i + 1 == starts.size();
            SourceSection section{starts.at(i), isLast ? m_source.size() : starts.at(i + 1), int(run), 0};
            // An element that nothing closes can end with an empty line behind the last character.
            while (run < m_result.runs.size() && (isLast || m_result.runs.at(run).start < section.end)) {
                m_result.runs[run++].section = int(m_result.sections.size());
                ++section.runs;
            }
            m_result.sections.append(section);
        }
    }

    /// True in a part that is shown as a whole.
    bool isKept(qsizetype position) const
    {
        const auto after = std::ranges::upper_bound(m_kept, position, {}, &WholeRange::start);
        return after != m_kept.begin() && !(after - 1)->isDropped && position < (after - 1)->end;
    }

    bool holdsLines(const HtmlElement &inlineElement) const
    {
        const auto edge = std::ranges::upper_bound(m_edges, inlineElement.start);
        return edge != m_edges.end() && *edge < inlineElement.end;
    }

    // A "<" that opens no tag would still be taken for one by the rich-text reader.
    void appendPlain(qsizetype start, qsizetype end)
    {
        if (start == end)
            return;
        const QStringView plainText = QStringView(m_source).sliced(start, end - start);
        if (!m_runIsOpen && !isLineOfBlanks(m_index) && isBlankText(plainText)) {
            m_result.html += plainText;
            return;
        }
        beginRun(start);
        m_result.runs.last().end = end;
        const bool isAsWritten = std::ranges::none_of(plainText, isRare);
        // Behind a mark, a blank stays that the reader leaves out at the beginning of a line.
        const bool beginsWithBlank = m_result.plainText.size() == m_line.inText && isBlank(plainText.front());
        if (!isAsWritten || beginsWithBlank || keepsBlanks(m_tree.innermost.at(m_index)))
            markLine();
        if (isAsWritten) {
            m_result.html += plainText;
            m_result.plainText += plainText;
            return;
        }
        // The reader takes all of these for blanks, and several for one.
        static const QRegularExpression wide(
            uR"([\x{0B}\x{0C}\x{85}\x{1680}\x{2000}-\x{200A}\x{202F}\x{205F}\x{3000}])"
            uR"(|&(?:thinsp|ensp|emsp|hairsp|numsp|puncsp);|&#(?:819[2-9]|820[0-2]|8239|8287|12288);)"
            uR"(|&#[xX](?:200[0-9aA]|202[fF]|205[fF]|3000);)"_s);
        const QString plain = plainText.toString();
        qsizetype at = 0;
        for (auto spaces = wide.globalMatch(plain); spaces.hasNext();) {
            const QRegularExpressionMatch space = spaces.next();
            m_result.html += plain.sliced(at, space.capturedStart() - at).replace(u'<', "&lt;"_L1);
            at = space.capturedEnd();
            addPart({PartKind::None, spaceOf(space.captured())},
                    {start + space.capturedStart(), start + space.capturedEnd()});
        }
        m_result.html += plain.sliced(at).replace(u'<', "&lt;"_L1);
    }

    // Most text has nothing of the kind, which is seen at once.
    static bool isRare(QChar c) { return c == u'<' || c == u'&' || c == u'\v' || c == u'\f' || c >= u'\x85'; }

    void appendPart(PartKind kind, qsizetype start, qsizetype end)
    {
        beginRun(start);
        if (start == end)
            markLine();
        addPart({kind, m_source.sliced(start, end - start)}, {start, end});
        m_result.runs.last().end = qMax(m_result.runs.last().end, end);
    }

    void appendWhole(PartKind kind, const HtmlToken &token)
    {
        appendPart(kind, token.start, token.end);
        m_result.parts.last().source += missingEnd(m_source, token);
    }

    void appendKept(const HtmlToken &token, qsizetype end)
    {
        appendPart(PartKind::Markup, token.start, end);
        m_result.parts.last().source = standingMarkup(m_source, m_tokens, m_tree, m_index, end);
    }

    const QString &m_source;
    const LineMarks m_marks;
    const QList<HtmlToken> m_tokens;
    const HtmlTree m_tree;
    const QList<WholeRange> m_kept;
    QList<bool> m_keepsBlanks;
    qsizetype m_index = 0;
    bool m_runIsOpen = false;
    /// The reader gives the name of an element to the next character, which is not to be the line's own.
    bool m_isNamed = false;
    qsizetype m_pending = -1; ///< The first tag behind the last edge that may belong to a line.
    QList<qsizetype> m_edges;
    /// The line that is being written and has no mark yet.
    struct
    {
        int run = -1;
        qsizetype inText = 0;
        qsizetype inHtml = 0;
        qsizetype inParts = 0;
    } m_line;
    SplitTemplate m_result;
};

} // namespace

SplitTemplate splitTemplate(const QString &source, LineMarks marks)
{
    return Splitter(source, marks).run();
}

TemplatePart partOf(const QString &text)
{
    const QList<HtmlToken> tokens = scanHtml(text);
    if (tokens.size() != 1)
        return {PartKind::Markup, text};
    const HtmlTokenKind kind = tokens.constFirst().kind;
    if (kind == HtmlTokenKind::Text && syntax::isCode(text) && !text.contains(halfTag()))
        return {PartKind::Code, text};
    return {kind == HtmlTokenKind::Script ? PartKind::Script : PartKind::Markup,
            text + missingEnd(text, tokens.constFirst())};
}

} // namespace ozm::editor
