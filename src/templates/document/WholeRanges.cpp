#include "templates/document/WholeRanges.h"

#include "templates/document/TemplateElements.h"
#include "templates/instructions/InstructionSyntax.h"
#include "templates/syntax/Codes.h"
#include "templates/syntax/ScriptTags.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

class WholeFinder
{
public:
    WholeFinder(const QString &source, const QList<HtmlToken> &tokens, const HtmlTree &tree)
        : m_source(source)
        , m_tokens(tokens)
        , m_tree(tree)
    {}

    QList<WholeRange> take()
    {
        findElements();
        findMisplacedParts();
        std::ranges::sort(m_ranges, [](const WholeRange &a, const WholeRange &b) {
            return a.start != b.start ? a.start < b.start : a.end > b.end;
        });
        QList<WholeRange> outermost;
        for (const WholeRange &range : std::as_const(m_ranges))
            if (outermost.isEmpty() || range.start >= outermost.last().end)
                outermost.append(range);
        return outermost;
    }

private:
    void findElements()
    {
        QSet<int> tablesWithCells;
        for (const HtmlElement &element : m_tree.elements)
            for (int at = element.name == "td"_L1 || element.name == "th"_L1 ? element.parent : -1;
                 at >= 0 && isAmong(kStructureElements, m_tree.elements.at(at).name);
                 at = m_tree.elements.at(at).parent)
                tablesWithCells.insert(at);
        for (int i = 0; i < m_tree.elements.size(); ++i) {
            const HtmlElement &element = m_tree.elements.at(i);
            if (element.name == "head"_L1)
                keepHead(element);
            else if (isAmong(kMarkupElements, element.name) || isAmong(kKeepWholeElements, element.name) ||
                     isFormat(element) || losesAttributes(element) ||
                     (element.name == "table"_L1 && !tablesWithCells.contains(i)))
                keep(i);
        }
    }

    // A head without anything that the reader of the report would miss is left out, as for any page.
    void keepHead(const HtmlElement &head)
    {
        const bool matters = std::any_of(m_tokens.begin(), m_tokens.end(), [&](const HtmlToken &token) {
            const bool raw = token.kind == HtmlTokenKind::RawElement && token.name != "title"_L1;
            return token.start >= head.start && token.end <= head.end &&
                   token.kind != HtmlTokenKind::EndTag &&
                   (raw || token.kind == HtmlTokenKind::Script || syntax::hasCode(text(token)));
        });
        m_ranges.append({head.start, head.end, !matters});
    }

    // A code with its format is one part, as a code without is.
    bool isFormat(const HtmlElement &element) const
    {
        const QStringView source = QStringView(m_source).sliced(element.start, element.end - element.start);
        return element.name == "span"_L1 &&
               instructions::isFormatTag(source.first(element.startTagEnd - element.start)) &&
               instructions::readInstruction(source.toString());
    }

    // Only these attributes survive rich text as they are written; codes in others would be lost.
    bool losesAttributes(const HtmlElement &element) const
    {
        const QStringView tag =
            QStringView(m_source).sliced(element.start, element.startTagEnd - element.start);
        if (element.name == "html"_L1 || element.name == "body"_L1)
            return false;
        if (element.name == "img"_L1) {
            static const QRegularExpression floats(u"\\balign\\s*=|float\\s*:|\\bclass\\s*=|\\busemap\\b"_s,
                                                   QRegularExpression::CaseInsensitiveOption);
            return tag.contains(floats) || hasCode(tag, u"src|alt"_s);
        }
        return hasCode(tag, element.name == "a"_L1 ? u"href"_s : QString());
    }

    static bool hasCode(QStringView tag, const QString &allowedAttributes)
    {
        if (!syntax::hasCode(tag))
            return syntax::hasScript(tag);
        if (allowedAttributes.isEmpty())
            return true;
        QString rest = tag.toString();
        rest.remove(QRegularExpression(u"\\b(%1)\\s*=\\s*(\"[^\"]*\"|'[^']*')"_s.arg(allowedAttributes),
                                       QRegularExpression::CaseInsensitiveOption));
        return syntax::hasCode(rest);
    }

    void findMisplacedParts()
    {
        for (int i = 0; i < m_tokens.size(); ++i) {
            const HtmlToken &token = m_tokens.at(i);
            const int parent = m_tree.innermost.at(i);
            if (parent >= 0 && isAmong(kStructureElements, m_tree.elements.at(parent).name) && isPart(token))
                keep(parent);
        }
    }

    bool isPart(const HtmlToken &token) const
    {
        if (token.kind == HtmlTokenKind::Text)
            return !isBlankText(text(token));
        return token.kind != HtmlTokenKind::StartTag && token.kind != HtmlTokenKind::EndTag;
    }

    // Parts of a table or list are kept with the whole of it.
    void keep(int index)
    {
        for (;;) {
            const HtmlElement &element = m_tree.elements.at(index);
            const bool cell = isAmong(kTableParts, element.name);
            if (element.parent < 0 || !(cell || element.name == "li"_L1))
                break;
            const QString &parent = m_tree.elements.at(element.parent).name;
            if (!isAmong(kStructureElements, parent))
                break;
            index = element.parent;
        }
        m_ranges.append({m_tree.elements.at(index).start, m_tree.elements.at(index).end});
    }

    QStringView text(const HtmlToken &token) const
    {
        return QStringView(m_source).sliced(token.start, token.end - token.start);
    }

    const QString &m_source;
    const QList<HtmlToken> &m_tokens;
    const HtmlTree &m_tree;
    QList<WholeRange> m_ranges;
};

} // namespace

QList<WholeRange> wholeRanges(const QString &source, const QList<HtmlToken> &tokens, const HtmlTree &tree)
{
    return WholeFinder(source, tokens, tree).take();
}

} // namespace ozm::editor
