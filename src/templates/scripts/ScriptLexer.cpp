#include "templates/scripts/ScriptLexer.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using Kind = ScriptToken::Kind;

// The longest first, so that none is taken for the beginning of another.
constexpr std::array kOperators{
    ">>>="_L1, "..."_L1, "==="_L1, "!=="_L1, "**="_L1, "<<="_L1, ">>="_L1, ">>>"_L1, "&&="_L1, "||="_L1,
    "?\?="_L1, "=>"_L1,  "=="_L1,  "!="_L1,  "<="_L1,  ">="_L1,  "&&"_L1,  "||"_L1,  "??"_L1,  "?."_L1,
    "++"_L1,   "--"_L1,  "+="_L1,  "-="_L1,  "*="_L1,  "/="_L1,  "%="_L1,  "&="_L1,  "|="_L1,  "^="_L1,
    "<<"_L1,   ">>"_L1,  "**"_L1,  "{"_L1,   "}"_L1,   "("_L1,   ")"_L1,   "["_L1,   "]"_L1,   "."_L1,
    ";"_L1,    ","_L1,   "<"_L1,   ">"_L1,   "+"_L1,   "-"_L1,   "*"_L1,   "/"_L1,   "%"_L1,   "&"_L1,
    "|"_L1,    "^"_L1,   "!"_L1,   "~"_L1,   "?"_L1,   ":"_L1,   "="_L1,
};

// After these a slash begins a regular expression, though they look like names.
constexpr std::array kBeforeExpression{
    "return"_L1, "typeof"_L1, "case"_L1,  "in"_L1,         "of"_L1,      "do"_L1,
    "else"_L1,   "void"_L1,   "throw"_L1, "instanceof"_L1, "new"_L1,     "delete"_L1,
    "yield"_L1,  "await"_L1,  "let"_L1,   "const"_L1,      "default"_L1, "extends"_L1,
};
// With these, a closing parenthesis may stand before a regular expression.
constexpr std::array kWithParentheses{"if"_L1, "while"_L1, "for"_L1, "with"_L1};

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isNameStart(QChar character)
{
    return character == u'_' || character == u'$' || (character >= u'a' && character <= u'z') ||
           (character >= u'A' && character <= u'Z');
}

class Lexer
{
public:
    explicit Lexer(QStringView code)
        : m_code(code)
    {}

    std::optional<std::vector<ScriptToken>> all()
    {
        // Comments as in HTML are read differently by different engines.
        if (m_code.contains("<!--"_L1) || m_code.contains("-->"_L1))
            return std::nullopt;
        while (m_sure && skipBlanks())
            take();
        if (!m_sure || !m_literals.empty())
            return std::nullopt;
        return std::move(m_tokens);
    }

private:
    [[nodiscard]] QChar at(qsizetype position) const
    {
        return position < m_code.size() ? m_code[position] : QChar();
    }
    [[nodiscard]] bool follows(QLatin1StringView text) const { return m_code.sliced(m_at).startsWith(text); }

    void add(Kind kind, qsizetype end)
    {
        m_tokens.push_back({kind, m_code.sliced(m_at, end - m_at)});
        m_at = end;
    }

    /// True when there is anything left.
    bool skipBlanks()
    {
        while (m_at < m_code.size() && m_sure) {
            const QChar character = m_code[m_at];
            if (character == u' ' || character == u'\t' || isScriptLineEnd(character))
                ++m_at;
            else if (follows("//"_L1))
                m_at = std::find_if(m_code.begin() + m_at, m_code.end(), &isScriptLineEnd) - m_code.begin();
            else if (follows("/*"_L1))
                skipComment();
            else
                break;
        }
        return m_at < m_code.size();
    }

    void skipComment()
    {
        const qsizetype end = m_code.indexOf("*/"_L1, m_at + 2);
        m_sure = end >= 0;
        m_at = m_sure ? end + 2 : m_code.size();
    }

    void take()
    {
        const QChar character = m_code[m_at];
        if (isNameStart(character))
            takeName();
        else if (isDigit(character) || (character == u'.' && isDigit(at(m_at + 1))))
            takeNumber();
        else if (character == u'"' || character == u'\'')
            takeText(character);
        else if (character == u'`')
            takeLiteralPart();
        else if (character == u'}' && !m_literals.empty() && m_literals.back() == m_braces)
            endSubstitution();
        else
            takeOperator();
    }

    void takeName()
    {
        qsizetype end = m_at;
        while (isNameStart(at(end)) || isDigit(at(end)))
            ++end;
        add(Kind::Name, end);
    }

    void takeNumber()
    {
        qsizetype end = m_at;
        const auto digits = [this, &end] {
            while (isDigit(at(end)))
                ++end;
        };
        digits();
        if (at(end) == u'.') {
            ++end;
            digits();
        }
        if ((at(end) == u'e' || at(end) == u'E') && end > m_at) {
            ++end;
            if (at(end) == u'+' || at(end) == u'-')
                ++end;
            digits();
        }
        // Other bases and sizes are not worth a rule.
        m_sure = !isNameStart(at(end));
        add(Kind::Number, end);
    }

    void takeText(QChar quote)
    {
        qsizetype end = m_at + 1;
        while (end < m_code.size() && m_code[end] != quote && !isScriptLineEnd(m_code[end]))
            end += m_code[end] == u'\\' ? 2 : 1;
        m_sure = at(end) == quote && end < m_code.size();
        add(Kind::Text, std::min(end + 1, m_code.size()));
    }

    /// From the quote or the end of a substitution to the next substitution or the closing quote.
    void takeLiteralPart()
    {
        qsizetype end = m_at + 1;
        while (end < m_code.size() && m_code[end] != u'`' && !m_code.sliced(end).startsWith("${"_L1))
            end += m_code[end] == u'\\' ? 2 : 1;
        m_sure = end < m_code.size();
        if (!m_sure)
            return;
        if (m_code[end] == u'`') {
            add(Kind::Text, end + 1);
            return;
        }
        add(Kind::Text, end);
        add(Kind::Operator, end + 2);
        m_literals.push_back(++m_braces);
    }

    void endSubstitution()
    {
        m_literals.pop_back();
        --m_braces;
        m_tokens.push_back({Kind::Operator, m_code.sliced(m_at, 1)});
        takeLiteralPart();
    }

    void takeOperator()
    {
        const auto found =
            std::ranges::find_if(kOperators, [this](QLatin1StringView each) { return follows(each); });
        if (m_code[m_at] == u'/' && isBeforeExpression()) {
            takeRegularExpression();
            return;
        }
        m_sure = found != kOperators.end() && (m_code[m_at] != u'/' || isDivision());
        if (!m_sure)
            return;
        if (*found == "{"_L1)
            ++m_braces;
        else if (*found == "}"_L1)
            --m_braces;
        add(Kind::Operator, m_at + found->size());
    }

    void takeRegularExpression()
    {
        qsizetype end = m_at + 1;
        for (bool isInClass = false; end < m_code.size() && (m_code[end] != u'/' || isInClass); ++end) {
            if (isScriptLineEnd(m_code[end]))
                break;
            if (m_code[end] == u'[' || m_code[end] == u']')
                isInClass = m_code[end] == u'[';
            else if (m_code[end] == u'\\' && !isScriptLineEnd(at(end + 1)))
                ++end;
        }
        m_sure = at(end) == u'/';
        do
            ++end;
        while (isNameStart(at(end)) || isDigit(at(end)));
        add(Kind::Text, std::min(end, m_code.size()));
    }

    /// True when what stands before cannot be divided.
    [[nodiscard]] bool isBeforeExpression() const
    {
        if (m_tokens.empty())
            return true;
        const ScriptToken &before = m_tokens.back();
        if (before.kind == Kind::Name)
            return isKeywordBeforeExpression();
        return before.kind == Kind::Operator && !(before == u")") && !(before == u"]") && !(before == u"}") &&
               !(before == u"++") && !(before == u"--");
    }

    [[nodiscard]] bool isKeywordBeforeExpression() const
    {
        const bool isMember =
            m_tokens.size() > 1 && (m_tokens.end()[-2] == u"." || m_tokens.end()[-2] == u"?.");
        return !isMember && isOneOf(m_tokens.back().text, kBeforeExpression);
    }

    [[nodiscard]] bool isDivision() const
    {
        if (m_tokens.empty())
            return false;
        const ScriptToken &before = m_tokens.back();
        if (before.kind == Kind::Name)
            return !isKeywordBeforeExpression();
        if (before == u")") {
            return std::ranges::none_of(
                m_tokens, [](const ScriptToken &token) { return isOneOf(token.text, kWithParentheses); });
        }
        return before.kind == Kind::Number || before == u"]";
    }

    const QStringView m_code;
    qsizetype m_at = 0;
    bool m_sure = true;
    int m_braces = 0;
    std::vector<int> m_literals; ///< The depths of braces at which substitutions are open.
    std::vector<ScriptToken> m_tokens;
};

} // namespace

std::optional<std::vector<ScriptToken>> scriptTokens(QStringView code)
{
    return Lexer(code).all();
}

} // namespace ozm
