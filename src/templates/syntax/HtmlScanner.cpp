#include "templates/syntax/HtmlScanner.h"

#include "templates/syntax/ScriptTags.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr std::array kVoidElements{"area"_L1,  "base"_L1,   "br"_L1,    "col"_L1,  "embed"_L1,
                                   "hr"_L1,    "img"_L1,    "input"_L1, "link"_L1, "meta"_L1,
                                   "param"_L1, "source"_L1, "track"_L1, "wbr"_L1};

constexpr std::array kRawElements{"script"_L1, "style"_L1, "textarea"_L1, "title"_L1, "noscript"_L1};

// An element of the first name ends an open one of the second name, as in browsers.
struct ImpliedEnd
{
    QLatin1StringView opened;
    QLatin1StringView closed;
};
constexpr std::array kImpliedEnds{
    ImpliedEnd{"li"_L1, "li"_L1},    ImpliedEnd{"td"_L1, "td"_L1}, ImpliedEnd{"td"_L1, "th"_L1},
    ImpliedEnd{"th"_L1, "td"_L1},    ImpliedEnd{"th"_L1, "th"_L1}, ImpliedEnd{"tr"_L1, "td"_L1},
    ImpliedEnd{"tr"_L1, "th"_L1},    ImpliedEnd{"tr"_L1, "tr"_L1}, ImpliedEnd{"p"_L1, "p"_L1},
    ImpliedEnd{"dt"_L1, "dd"_L1},    ImpliedEnd{"dd"_L1, "dt"_L1}, ImpliedEnd{"table"_L1, "p"_L1},
    ImpliedEnd{"div"_L1, "p"_L1},    ImpliedEnd{"ul"_L1, "p"_L1},  ImpliedEnd{"ol"_L1, "p"_L1},
    ImpliedEnd{"body"_L1, "head"_L1}};

// That are looked for one after the other.
constexpr qsizetype kMostNames = 24;

bool isNameStart(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

class Scanner
{
public:
    explicit Scanner(const QString &source)
        : m_source(source)
    {}

    QList<HtmlToken> run(qsizetype most = std::numeric_limits<qsizetype>::max())
    {
        while (m_at < m_source.size() && m_tokens.size() < most) {
            const qsizetype next = m_source.indexOf(u'<', m_at);
            if (next < 0)
                break;
            m_at = next;
            if (!takeMarkup())
                ++m_at;
        }
        if (m_tokens.size() < most)
            flushText(m_source.size());
        return m_tokens;
    }

private:
    void flushText(qsizetype end)
    {
        if (end > m_textStart)
            m_tokens.append({HtmlTokenKind::Text, m_textStart, end, {}});
    }

    /// Up to @p end; to the end of the source when that is negative.
    bool take(HtmlTokenKind kind, qsizetype end, const QString &name = {})
    {
        flushText(m_at);
        const bool isOpen = end < 0;
        m_tokens.append({kind, m_at, isOpen ? m_source.size() : end, name, isOpen});
        m_at = m_tokens.constLast().end;
        m_textStart = m_at;
        return true;
    }

    qsizetype after(QStringView text, qsizetype from) const
    {
        const qsizetype found = from < 0 ? -1 : m_source.indexOf(text, from);
        return found < 0 ? -1 : found + text.size();
    }

    bool takeMarkup()
    {
        if (const auto tag = syntax::scriptTagAt(m_source, m_at))
            return tag->opening ? takeScript(*tag) : take(HtmlTokenKind::Opaque, m_at + tag->length);
        const QStringView rest = QStringView(m_source).sliced(m_at + 1);
        if (rest.startsWith("!--"_L1))
            return take(HtmlTokenKind::Opaque, after(u"-->", m_at + 2));
        if (rest.startsWith(u'!') || rest.startsWith(u'?'))
            return take(HtmlTokenKind::Opaque, after(u">", m_at));
        const bool closing = rest.startsWith(u'/');
        const qsizetype nameStart = m_at + (closing ? 2 : 1);
        if (nameStart >= m_source.size() || !isNameStart(m_source.at(nameStart)))
            return false;
        return takeTag(closing, nameStart);
    }

    bool takeScript(const syntax::ScriptTag &opening)
    {
        const qsizetype end = syntax::scriptFrom(m_source, m_at).end;
        const bool runs = end > m_at + opening.length;
        return take(runs ? HtmlTokenKind::Script : HtmlTokenKind::Opaque, end);
    }

    qsizetype tagEnd(qsizetype from) const
    {
        QChar quote;
        for (qsizetype at = from; at < m_source.size(); ++at) {
            const QChar c = m_source.at(at);
            if (!quote.isNull())
                quote = c == quote ? QChar() : quote;
            else if ((c == u'"' || c == u'\'') && m_source.at(at - 1) == u'=')
                quote = c;
            else if (c == u'>')
                return at + 1;
        }
        return -1;
    }

    bool takeTag(bool closing, qsizetype nameStart)
    {
        const qsizetype end = tagEnd(nameStart);
        if (end < 0)
            return false;
        qsizetype nameEnd = nameStart;
        while (m_source.at(nameEnd).isLetterOrNumber() || m_source.at(nameEnd) == u'-' ||
               m_source.at(nameEnd) == u':')
            ++nameEnd;
        // "[a<b]" is a code, though browsers would see a tag of the name "b]" in it.
        if (const QChar after = m_source.at(nameEnd); !after.isSpace() && after != u'>' && after != u'/')
            return false;
        const QString name = sharedName(QStringView(m_source).sliced(nameStart, nameEnd - nameStart));
        if (closing)
            return take(HtmlTokenKind::EndTag, end, name);
        if (isAmong(kRawElements, name)) {
            const qsizetype close = m_source.indexOf(u"</"_s + name, end, Qt::CaseInsensitive);
            return take(HtmlTokenKind::RawElement, after(u">", close), name);
        }
        return take(HtmlTokenKind::StartTag, end, name);
    }

    /// In lower case. Tokens of one name share its text: a page has few names, and many tags.
    QString sharedName(QStringView name)
    {
        const auto known =
            std::ranges::find_if(m_names, [name](const QString &each) { return each == name; });
        if (known != m_names.cend())
            return *known;
        QString lower = name.toString().toLower();
        if (m_names.size() < kMostNames)
            m_names.append(lower);
        return lower;
    }

    const QString &m_source;
    QList<HtmlToken> m_tokens;
    QStringList m_names;
    qsizetype m_at = 0;
    qsizetype m_textStart = 0;
};

class ElementStack
{
public:
    void open(const HtmlToken &token)
    {
        closeImplied(token);
        m_elements.append({token.name, token.start, token.end, -1, m_open.isEmpty() ? -1 : m_open.last()});
        if (isVoidElement(token.name))
            m_elements.last().end = token.end;
        else
            m_open.append(int(m_elements.size()) - 1);
    }

    void close(const HtmlToken &token)
    {
        for (qsizetype i = m_open.size() - 1; i >= 0; --i) {
            const QString &name = m_elements.at(m_open.at(i)).name;
            if (name == token.name) {
                endFrom(i, token.start);
                m_elements[m_lastEnded].end = token.end;
                return;
            }
            // An end tag in a cell closes nothing outside of it.
            if (isCell(name) && !isTablePart(token.name))
                return;
        }
    }

    int innermost() const { return m_open.isEmpty() ? -1 : m_open.last(); }

    QList<HtmlElement> finish(qsizetype end)
    {
        endFrom(0, end);
        return m_elements;
    }

private:
    static bool isCell(const QString &name) { return name == "td"_L1 || name == "th"_L1; }
    static bool isTablePart(const QString &name)
    {
        return name == "tr"_L1 || name == "table"_L1 || name == "tbody"_L1 || name == "thead"_L1 ||
               name == "tfoot"_L1;
    }

    void closeImplied(const HtmlToken &token)
    {
        for (bool again = true; again && !m_open.isEmpty();) {
            const QString &innermost = m_elements.at(m_open.last()).name;
            again = std::any_of(kImpliedEnds.begin(), kImpliedEnds.end(), [&](const ImpliedEnd &rule) {
                return isName(token.name, rule.opened) && isName(innermost, rule.closed);
            });
            if (again)
                endFrom(m_open.size() - 1, token.start);
        }
    }

    void endFrom(qsizetype first, qsizetype end)
    {
        for (qsizetype i = first; i < m_open.size(); ++i)
            m_elements[m_open.at(i)].end = end;
        if (first < m_open.size()) {
            m_lastEnded = m_open.at(first);
            m_open.resize(first);
        }
    }

    QList<HtmlElement> m_elements;
    QList<int> m_open;
    int m_lastEnded = 0;
};

} // namespace

QList<HtmlToken> scanHtml(const QString &source)
{
    return Scanner(source).run();
}

QList<HtmlToken> scanHtmlStart(const QString &source, qsizetype count)
{
    return Scanner(source).run(count);
}

QString missingEnd(const QString &source, const HtmlToken &token)
{
    const QStringView text = QStringView(source).sliced(token.start, token.end - token.start);
    if (syntax::beginsWithScript(text) && token.kind != HtmlTokenKind::RawElement) {
        qsizetype open = 0;
        for (const syntax::ScriptTag &tag : syntax::scriptTags(text))
            open += tag.opening ? 1 : -1;
        return QString(syntax::kScriptClose).repeated(open);
    }
    if (!token.isOpen)
        return {};
    if (token.kind == HtmlTokenKind::RawElement)
        return "</"_L1 + token.name + u'>';
    return text.startsWith("<!--"_L1) ? u"-->"_s : u">"_s;
}

const QRegularExpression &halfTag()
{
    static const QRegularExpression pattern(uR"(<(?=/?(?:[a-zA-Z][\p{L}\p{N}:-]*(?:[\s/>]|$)|$)))"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    return pattern;
}

bool isVoidElement(const QString &name)
{
    return isAmong(kVoidElements, name);
}

HtmlTree treeOf(const QList<HtmlToken> &tokens)
{
    HtmlTree tree;
    tree.innermost.reserve(tokens.size());
    ElementStack stack;
    for (const HtmlToken &token : tokens) {
        if (token.kind == HtmlTokenKind::EndTag)
            stack.close(token);
        else if (token.kind == HtmlTokenKind::StartTag)
            stack.open(token);
        tree.innermost.append(stack.innermost());
    }
    tree.elements = stack.finish(tokens.isEmpty() ? 0 : tokens.last().end);
    return tree;
}

} // namespace ozm::editor
