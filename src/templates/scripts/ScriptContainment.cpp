#include "templates/scripts/ScriptContainment.h"

#include "templates/scripts/ScriptLexer.h"

#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using Kind = ScriptToken::Kind;

constexpr std::array kKeywords{
    "break"_L1,      "case"_L1,   "catch"_L1,   "const"_L1,  "continue"_L1, "default"_L1, "do"_L1,
    "else"_L1,       "false"_L1,  "finally"_L1, "for"_L1,    "if"_L1,       "in"_L1,      "let"_L1,
    "instanceof"_L1, "null"_L1,   "of"_L1,      "return"_L1, "switch"_L1,   "throw"_L1,   "true"_L1,
    "try"_L1,        "typeof"_L1, "void"_L1,    "while"_L1,
};

// Nothing of these can be changed, or keeps anything, by way of the members allowed below.
constexpr std::array kGlobals{
    "inputParameters"_L1,
    "templateEditorCore"_L1,
    "Array"_L1,
    "Boolean"_L1,
    "Infinity"_L1,
    "JSON"_L1,
    "Math"_L1,
    "NaN"_L1,
    "Number"_L1,
    "Object"_L1,
    "String"_L1,
    "isFinite"_L1,
    "isNaN"_L1,
    "parseFloat"_L1,
    "parseInt"_L1,
    "undefined"_L1,
};

// These methods return a new value, or change a list that the script itself has made.
constexpr std::array kMembers{
    "E"_L1,         "LN10"_L1,          "LN2"_L1,        "PI"_L1,           "abs"_L1,
    "ceil"_L1,      "charAt"_L1,        "charCodeAt"_L1, "concat"_L1,       "endsWith"_L1,
    "entries"_L1,   "every"_L1,         "exp"_L1,        "filter"_L1,       "find"_L1,
    "findIndex"_L1, "floor"_L1,         "forEach"_L1,    "fromCharCode"_L1, "localeCompare"_L1,
    "from"_L1,      "includes"_L1,      "indexOf"_L1,    "isArray"_L1,      "isFinite"_L1,
    "isInteger"_L1, "isNaN"_L1,         "join"_L1,       "keys"_L1,         "lastIndexOf"_L1,
    "length"_L1,    "log"_L1,           "log10"_L1,      "log2"_L1,         "map"_L1,
    "max"_L1,       "message"_L1,       "min"_L1,        "padEnd"_L1,       "padStart"_L1,
    "parse"_L1,     "parseFloat"_L1,    "parseInt"_L1,   "pop"_L1,          "pow"_L1,
    "push"_L1,      "reduce"_L1,        "repeat"_L1,     "replace"_L1,      "reverse"_L1,
    "round"_L1,     "shift"_L1,         "sign"_L1,       "slice"_L1,        "some"_L1,
    "sort"_L1,      "split"_L1,         "sqrt"_L1,       "startsWith"_L1,   "stringify"_L1,
    "substring"_L1, "toExponential"_L1, "toFixed"_L1,    "toLowerCase"_L1,  "toPrecision"_L1,
    "toString"_L1,  "toUpperCase"_L1,   "trim"_L1,       "trunc"_L1,        "unshift"_L1,
    "values"_L1,
};

// Ways from any object to what all objects share.
constexpr std::array kForbiddenMembers{
    "apply"_L1,  "arguments"_L1,   "bind"_L1,           "call"_L1,      "callee"_L1,
    "caller"_L1, "constructor"_L1, "hasOwnProperty"_L1, "prototype"_L1, "valueOf"_L1,
};

// The meaning of a free name of this kind where no declaration is in force.
constexpr std::array kForbiddenNames{
    "arguments"_L1, "async"_L1,      "await"_L1,    "class"_L1,  "console"_L1, "debugger"_L1, "delete"_L1,
    "enum"_L1,      "escape"_L1,     "eval"_L1,     "export"_L1, "extends"_L1, "function"_L1, "gc"_L1,
    "get"_L1,       "globalThis"_L1, "import"_L1,   "new"_L1,    "print"_L1,   "set"_L1,      "static"_L1,
    "super"_L1,     "this"_L1,       "unescape"_L1, "var"_L1,    "with"_L1,    "yield"_L1,
};

constexpr std::array kAssignments{"="_L1,    "+="_L1,  "-="_L1,  "*="_L1,  "/="_L1,  "%="_L1,
                                  "&="_L1,   "|="_L1,  "^="_L1,  "**="_L1, "<<="_L1, ">>="_L1,
                                  ">>>="_L1, "&&="_L1, "||="_L1, "?\?="_L1};

// After these, an opening bracket begins a list; after any other name it asks for a member.
constexpr std::array kBeforeList{"return"_L1, "of"_L1,    "in"_L1,   "typeof"_L1, "case"_L1,
                                 "else"_L1,   "throw"_L1, "void"_L1, "do"_L1};

/**
 * Reads the tokens of a script and doubts all that it does not know.
 *
 * A name is known when it is declared in the script, or one of a few globals; a member, when it is one of a
 * list; members are asked for by a constant. Only names are assigned to, and only where their declaration
 * is in force: elsewhere that would make a global variable.
 */
class Reading
{
public:
    explicit Reading(std::vector<ScriptToken> tokens)
        : m_tokens(std::move(tokens))
    {}

    bool isContained()
    {
        for (m_at = 0; m_at < size(); ++m_at)
            if (!collectDeclaration())
                return false;
        m_scopes.emplace_back();
        for (m_at = 0; m_at < size(); ++m_at)
            if (!accept(m_tokens[m_at]))
                return false;
        return true;
    }

private:
    [[nodiscard]] std::size_t size() const { return m_tokens.size(); }
    /// The token at a distance from the present one; an empty operator beyond the ends.
    [[nodiscard]] ScriptToken at(int distance) const
    {
        const auto index = static_cast<qsizetype>(m_at) + distance;
        return index >= 0 && index < std::ssize(m_tokens) ? m_tokens[static_cast<std::size_t>(index)]
                                                          : ScriptToken{Kind::Operator, {}};
    }
    [[nodiscard]] bool isDeclaring(int distance) const
    {
        return at(distance) == u"let" || at(distance) == u"const";
    }

    bool collectDeclaration()
    {
        if (isDeclaring(0))
            return declare(at(1));
        if (at(0) == u"catch" && at(1) == u"(")
            return declare(at(2));
        return !(at(0) == u"=>") || declareParameters();
    }

    bool declare(const ScriptToken &token)
    {
        // A name like that of a global would hide, where it is in force, that it is used where it is not.
        if (token.kind != Kind::Name || !(token.text.front().isLower() || token.text.front() == u'_') ||
            isOneOf(token.text, kKeywords) || isOneOf(token.text, kForbiddenNames) ||
            token.text.startsWith("__"_L1) || token.text.contains("URI"_L1))
            return false;
        m_declared.insert(token.text);
        return true;
    }

    bool declareParameters()
    {
        if (at(-1).kind == Kind::Name)
            return declare(at(-1));
        int distance = -2;
        for (; !(at(distance) == u"("); --distance) {
            if (at(distance) == u",")
                continue;
            if (!declare(at(distance)))
                return false;
        }
        return at(-1) == u")";
    }

    bool accept(const ScriptToken &token)
    {
        switch (token.kind) {
        case Kind::Name:
            return acceptName(token.text);
        case Kind::Operator:
            return acceptOperator(token);
        case Kind::Number:
        case Kind::Text:
            return true;
        }
        return false;
    }

    bool acceptName(QStringView name)
    {
        if (at(-1) == u"." || at(-1) == u"?.")
            return acceptMember(name);
        if (name == "for"_L1)
            return at(1) == u"(" && (at(2) == u"let" || at(2) == u"const" || at(2) == u";");
        if (isDeclaring(-1))
            m_scopes.back().insert(name);
        const bool isKey = at(1) == u":" && (at(-1) == u"{" || at(-1) == u",");
        if (isKey)
            return !name.startsWith("__"_L1);
        return isOneOf(name, kKeywords) || isOneOf(name, kGlobals) || m_declared.contains(name);
    }

    [[nodiscard]] bool acceptMember(QStringView name) const
    {
        if (at(-2) == u"templateEditorCore")
            return !name.startsWith("__"_L1) && !isOneOf(name, kForbiddenMembers);
        return isOneOf(name, kMembers);
    }

    bool acceptOperator(const ScriptToken &token)
    {
        if (token == u"{" || token == u"(" || token == u"${") {
            m_scopes.emplace_back();
        } else if (token == u"}" || token == u")") {
            m_scopes.pop_back();
            return !m_scopes.empty();
        } else if (token == u"[") {
            return !asksForMember() || isConstantMember();
        } else if (token == u"++" || token == u"--") {
            return isStep();
        } else if (isOneOf(token.text, kAssignments)) {
            return isAssignable(-1);
        }
        return true;
    }

    [[nodiscard]] bool asksForMember() const
    {
        const ScriptToken before = at(-1);
        if (before.kind == Kind::Name)
            return !isOneOf(before.text, kBeforeList);
        return before.kind != Kind::Operator || before == u")" || before == u"]" || before == u"}" ||
               before == u"?.";
    }

    [[nodiscard]] bool isConstantMember() const
    {
        const ScriptToken member = at(1);
        if (!(at(2) == u"]") || (member.kind != Kind::Number && member.kind != Kind::Text))
            return false;
        if (member.kind == Kind::Number)
            return true;
        const QStringView name = member.text.sliced(1).chopped(1);
        return !name.contains(u'\\') && (name.startsWith(u'[') || isOneOf(name, kMembers));
    }

    /// True when what stands there is a variable whose declaration is in force.
    [[nodiscard]] bool isAssignable(int distance) const
    {
        const ScriptToken target = at(distance);
        return target.kind == Kind::Name && !(at(distance - 1) == u".") && !(at(distance - 1) == u"?.") &&
               std::ranges::any_of(m_scopes, [&target](const QSet<QStringView> &scope) {
                   return scope.contains(target.text);
               });
    }

    /// True when a "++" or "--" is of such a variable, on whichever side a line break may put it.
    [[nodiscard]] bool isStep() const
    {
        const bool after = isAssignable(-1);
        const bool before = isAssignable(1) && !continues(2);
        const bool onlyOne = at(after ? 1 : -1).kind != Kind::Name && !(at(-1) == u")") && !(at(-1) == u"]");
        return (after || before) && onlyOne;
    }

    [[nodiscard]] bool continues(int distance) const
    {
        const ScriptToken next = at(distance);
        return next == u"." || next == u"?." || next == u"[" || next == u"(" || next.kind == Kind::Text;
    }

    const std::vector<ScriptToken> m_tokens;
    std::size_t m_at = 0;
    QSet<QStringView> m_declared;
    std::vector<QSet<QStringView>> m_scopes;
};

} // namespace

bool isContainedScript(const QString &code)
{
    auto tokens = scriptTokens(code);
    return tokens && Reading(*std::move(tokens)).isContained();
}

} // namespace ozm
