#include "templates/scripts/ScriptFunction.h"

#include <QSet>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using Kind = ScriptToken::Kind;

// No expression begins with one of these, or goes on with one that stands behind a value.
constexpr std::array kStatements{
    "break"_L1, "case"_L1,   "catch"_L1,   "class"_L1,  "const"_L1, "continue"_L1, "debugger"_L1,
    "do"_L1,    "else"_L1,   "finally"_L1, "for"_L1,    "if"_L1,    "default"_L1,  "function"_L1,
    "let"_L1,   "return"_L1, "switch"_L1,  "throw"_L1,  "try"_L1,   "var"_L1,      "while"_L1,
    "with"_L1,  "async"_L1,  "import"_L1,  "export"_L1,
};
constexpr std::array kBinary{"in"_L1, "instanceof"_L1, "of"_L1};
// Behind these the expression is still to come.
constexpr std::array kPrefixes{"typeof"_L1, "void"_L1, "new"_L1, "delete"_L1, "await"_L1, "yield"_L1};
// The statement behind their parentheses belongs to them.
constexpr std::array kWithHead{"if"_L1, "for"_L1, "while"_L1, "with"_L1, "switch"_L1, "catch"_L1};

class StatementReading
{
public:
    StatementReading(QStringView code, const std::vector<ScriptToken> &tokens)
        : m_code(code)
        , m_tokens(tokens)
        , m_open(1)
    {
        for (std::size_t index = 0; index < m_tokens.size(); ++index)
            read(index);
    }

    /// The index of the token with which the last statement begins.
    [[nodiscard]] std::size_t lastStatement() const { return m_lastStatement; }
    /// True when a variable may be used before it is initialized. The engine does not notice that in each function.
    [[nodiscard]] bool isUsedEarly() const { return m_isUsedEarly; }

    [[nodiscard]] qsizetype placeOf(std::size_t index) const
    {
        return m_tokens[index].text.data() - m_code.data();
    }
    [[nodiscard]] qsizetype endOf(std::size_t index) const
    {
        return placeOf(index) + m_tokens[index].text.size();
    }

private:
    struct Bracket
    {
        std::size_t index = 0;
        QSet<QStringView> used = {};         ///< The names within, so far.
        QSet<QStringView> initializing = {}; ///< The variables of the statement that is being read.
    };

    void read(std::size_t index)
    {
        const ScriptToken &token = m_tokens[index];
        if (index > 0 && beginsStatement(index)) {
            m_open.back().initializing.clear();
            if (m_open.size() == 1)
                m_lastStatement = index;
        }
        if (token == u"(" || token == u"[" || token == u"{" || token == u"${") {
            m_open.push_back({index});
        } else if (token == u")" || token == u"]" || token == u"}") {
            m_closed = m_open.back().index;
            if (m_open.size() > 1)
                m_open.pop_back();
        } else if (token.kind == Kind::Name) {
            readName(index);
        }
    }

    void readName(std::size_t index)
    {
        const QStringView name = m_tokens[index].text;
        const ScriptToken before = index > 0 ? m_tokens[index - 1] : ScriptToken{Kind::Operator, {}};
        // Between the cases of a switch, control jumps past what stands before.
        m_isUsedEarly = m_isUsedEarly || name == "switch"_L1;
        if (before == u"." || before == u"?.")
            return;
        if (before == u"let" || before == u"const" || before == u"var") {
            m_isUsedEarly = m_isUsedEarly || m_open.back().used.contains(name);
            m_open.back().initializing.insert(name);
            return;
        }
        for (Bracket &bracket : m_open) {
            m_isUsedEarly = m_isUsedEarly || bracket.initializing.contains(name);
            bracket.used.insert(name);
        }
    }

    [[nodiscard]] bool beginsStatement(std::size_t index) const
    {
        const ScriptToken &before = m_tokens[index - 1];
        if (before == u";")
            return true;
        return beginsValue(m_tokens[index]) && endsValue(index - 1) &&
               (before == u"}" || isLineEndBetween(index - 1, index));
    }

    /// True when @p token cannot go on with what stands before it.
    [[nodiscard]] static bool beginsValue(const ScriptToken &token)
    {
        switch (token.kind) {
        case Kind::Name:
            return !isOneOf(token.text, kBinary);
        case Kind::Number:
            return true;
        case Kind::Text:
            // Template literals have tags before them, and parts behind their substitutions.
            return token.text.front() != u'`' && token.text.front() != u'}';
        case Kind::Operator:
            break;
        }
        return false;
    }

    [[nodiscard]] bool endsValue(std::size_t index) const
    {
        const ScriptToken &token = m_tokens[index];
        if (token.kind == Kind::Name)
            return !isOneOf(token.text, kStatements) && !isOneOf(token.text, kBinary) &&
                   !isOneOf(token.text, kPrefixes);
        if (token.kind != Kind::Operator)
            return true;
        if (token == u"++" || token == u"--")
            return index > 0 && endsValue(index - 1) && !isLineEndBetween(index - 1, index);
        if (token == u")")
            return m_closed == 0 || m_tokens[m_closed - 1].kind != Kind::Name ||
                   !isOneOf(m_tokens[m_closed - 1].text, kWithHead);
        return token == u"]" || token == u"}";
    }

    [[nodiscard]] bool isLineEndBetween(std::size_t index, std::size_t next) const
    {
        const QStringView between = m_code.sliced(endOf(index), placeOf(next) - endOf(index));
        return std::ranges::any_of(between, &isScriptLineEnd);
    }

    const QStringView m_code;
    const std::vector<ScriptToken> &m_tokens;
    std::vector<Bracket> m_open; ///< Those around the present token; the first stands for the whole.
    std::size_t m_closed = 0;    ///< Where the one was opened whose counterpart came last.
    std::size_t m_lastStatement = 0;
    bool m_isUsedEarly = false;
};

} // namespace

QString functionOf(const QString &code, const std::vector<ScriptToken> &tokens)
{
    std::size_t count = tokens.size();
    while (count > 0 && tokens[count - 1] == u";")
        --count;
    if (count == 0)
        return {};
    const std::vector<ScriptToken> kept(tokens.cbegin(), tokens.cbegin() + static_cast<qsizetype>(count));
    const StatementReading reading(code, kept);
    const std::size_t begin = reading.lastStatement();
    const ScriptToken &first = kept[begin];
    const bool isLabel = begin + 1 < count && kept[begin + 1] == u":";
    if (reading.isUsedEarly() || first == u"{" || isLabel ||
        (first.kind == Kind::Name && isOneOf(first.text, kStatements)))
        return {};
    const qsizetype start = reading.placeOf(begin);
    const qsizetype end = reading.endOf(count - 1);
    QString function = u"(function () {"_s;
    function.append(QStringView(code).first(start)).append("return ("_L1);
    return function.append(QStringView(code).sliced(start, end - start)).append(")})"_L1);
}

} // namespace ozm
