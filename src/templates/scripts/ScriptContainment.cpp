#include "templates/scripts/ScriptContainment.h"

#include "templates/scripts/ScriptFunction.h"
#include "templates/scripts/ScriptLexer.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <functional>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using Kind = ScriptToken::Kind;

constexpr std::array kKeywords{
    "break"_L1,      "case"_L1,   "catch"_L1,   "const"_L1,  "continue"_L1, "default"_L1, "do"_L1,
    "else"_L1,       "false"_L1,  "finally"_L1, "for"_L1,    "if"_L1,       "in"_L1,      "let"_L1,
    "instanceof"_L1, "null"_L1,   "of"_L1,      "return"_L1, "switch"_L1,   "throw"_L1,   "true"_L1,
    "try"_L1,        "typeof"_L1, "var"_L1,     "void"_L1,   "while"_L1,
};

// Nothing of these can be changed, or keeps anything, by way of the members allowed below.
constexpr std::array kGlobals{
    "inputParameters"_L1,
    "templateEditorCore"_L1,
    "Array"_L1,
    "Boolean"_L1,
    "Date"_L1,
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
    "E"_L1,           "LN10"_L1,          "LN2"_L1,           "PI"_L1,
    "abs"_L1,         "ceil"_L1,          "charAt"_L1,        "charCodeAt"_L1,
    "concat"_L1,      "endsWith"_L1,      "entries"_L1,       "every"_L1,
    "exp"_L1,         "filter"_L1,        "find"_L1,          "findIndex"_L1,
    "floor"_L1,       "forEach"_L1,       "from"_L1,          "fromCharCode"_L1,
    "includes"_L1,    "indexOf"_L1,       "isArray"_L1,       "isFinite"_L1,
    "isInteger"_L1,   "isNaN"_L1,         "join"_L1,          "keys"_L1,
    "lastIndexOf"_L1, "length"_L1,        "localeCompare"_L1, "log"_L1,
    "log10"_L1,       "log2"_L1,          "map"_L1,           "max"_L1,
    "message"_L1,     "min"_L1,           "padEnd"_L1,        "padStart"_L1,
    "parse"_L1,       "parseFloat"_L1,    "parseInt"_L1,      "pop"_L1,
    "pow"_L1,         "push"_L1,          "reduce"_L1,        "repeat"_L1,
    "replace"_L1,     "reverse"_L1,       "round"_L1,         "shift"_L1,
    "sign"_L1,        "slice"_L1,         "some"_L1,          "sort"_L1,
    "split"_L1,       "sqrt"_L1,          "startsWith"_L1,    "stringify"_L1,
    "substring"_L1,   "toExponential"_L1, "toFixed"_L1,       "toLowerCase"_L1,
    "toPrecision"_L1, "toString"_L1,      "toUpperCase"_L1,   "trim"_L1,
    "trunc"_L1,       "unshift"_L1,       "values"_L1,
};
// The same of regular expressions and dates.
constexpr std::array kFurtherMembers{
    "UTC"_L1,
    "exec"_L1,
    "getDate"_L1,
    "getDay"_L1,
    "getFullYear"_L1,
    "getHours"_L1,
    "getMilliseconds"_L1,
    "getMinutes"_L1,
    "getMonth"_L1,
    "getSeconds"_L1,
    "getTime"_L1,
    "getTimezoneOffset"_L1,
    "index"_L1,
    "match"_L1,
    "now"_L1,
    "search"_L1,
    "test"_L1,
    "toISOString"_L1,
    "toLocaleDateString"_L1,
    "toLocaleString"_L1,
    "toLocaleTimeString"_L1,
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
    "super"_L1,     "this"_L1,       "unescape"_L1, "with"_L1,   "yield"_L1,
};

constexpr std::array kAssignments{"="_L1,    "+="_L1,  "-="_L1,  "*="_L1,  "/="_L1,  "%="_L1,
                                  "&="_L1,   "|="_L1,  "^="_L1,  "**="_L1, "<<="_L1, ">>="_L1,
                                  ">>>="_L1, "&&="_L1, "||="_L1, "?\?="_L1};

// After these, an opening bracket begins a list; after any other name it asks for a member.
constexpr std::array kBeforeList{"return"_L1, "of"_L1,    "in"_L1,   "typeof"_L1, "case"_L1,
                                 "else"_L1,   "throw"_L1, "void"_L1, "do"_L1};

bool isKnownMember(QStringView name)
{
    return isOneOf(name, kMembers) || isOneOf(name, kFurtherMembers);
}

/**
 * Reads the tokens of a script and doubts all that it does not know.
 *
 * A name is known when it is declared in the script, or one of a few globals; a member, when it is one of a
 * list; members are asked for by a constant, or by a variable that is sure to be a number. Only names are assigned to,
 * and only where their declaration is in force: elsewhere that would make a global variable.
 */
class Reading
{
public:
    explicit Reading(const std::vector<ScriptToken> &tokens)
        : m_tokens(tokens)
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

    /// The names that a script, run as one, leaves behind as global variables.
    [[nodiscard]] const QSet<QString> &variables() const { return m_variables; }

private:
    struct Scope
    {
        QSet<QStringView> names = {};
        bool isFunction = false;
    };

    [[nodiscard]] std::size_t size() const { return m_tokens.size(); }
    /// The token at a distance from the present one; an empty operator beyond the ends.
    [[nodiscard]] ScriptToken at(qsizetype distance) const
    {
        const auto index = static_cast<qsizetype>(m_at) + distance;
        return index >= 0 && index < std::ssize(m_tokens) ? m_tokens[static_cast<std::size_t>(index)]
                                                          : ScriptToken{Kind::Operator, {}};
    }
    [[nodiscard]] bool isDeclaring(qsizetype distance) const
    {
        return at(distance) == u"let" || at(distance) == u"const" || at(distance) == u"var";
    }
    [[nodiscard]] bool isMember(qsizetype distance) const
    {
        return at(distance - 1) == u"." || at(distance - 1) == u"?.";
    }

    bool collectDeclaration()
    {
        if (isDeclaring(0))
            return declare(at(1)) && !(at(0) == u"var" && isOneOf(at(1).text, kGlobals));
        if (at(0) == u"catch" && at(1) == u"(")
            return declare(at(2));
        if (at(0) == u"function" && !isMember(0))
            return declareFunction();
        return !(at(0) == u"=>") || declareParameters();
    }

    bool declare(const ScriptToken &token)
    {
        // A name like that of a global would hide, where it is in force, that it is used where it is not.
        if (token.kind != Kind::Name || !(token.text.front().isLower() || token.text.front() == u'_') ||
            isOneOf(token.text, kKeywords) || isOneOf(token.text, kForbiddenNames) ||
            token.text.startsWith("__"_L1) || token.text.contains("URI"_L1))
            return false;
        ++m_declared[token.text];
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

    bool declareFunction()
    {
        int distance = 1;
        if (at(distance).kind == Kind::Name && (!declare(at(distance++)) || isOneOf(at(1).text, kGlobals)))
            return false;
        if (!(at(distance) == u"("))
            return false;
        for (++distance; !(at(distance) == u")"); ++distance) {
            if (!(at(distance) == u",") && !declare(at(distance)))
                return false;
        }
        m_bodies.insert(m_at + static_cast<std::size_t>(distance) + 1);
        return at(distance + 1) == u"{";
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
        if (isMember(0))
            return acceptMember(name);
        const bool isKey = at(1) == u":" && (at(-1) == u"{" || at(-1) == u",");
        if (isKey)
            return !name.startsWith("__"_L1);
        if (name == "for"_L1)
            return at(1) == u"(" && (isDeclaring(2) || at(2) == u";");
        if (name == "function"_L1)
            return acceptFunction();
        if (name == "new"_L1)
            return at(1) == u"Date";
        if (name == "return"_L1)
            return std::ranges::any_of(m_scopes, &Scope::isFunction);
        if (at(-1) == u"var")
            declareVariable(name);
        else if (isDeclaring(-1))
            m_scopes.back().names.insert(name);
        return isOneOf(name, kKeywords) || isOneOf(name, kGlobals) || m_declared.contains(name);
    }

    /// A name that is in force in the whole function around it, or outside of all.
    void declareVariable(QStringView name)
    {
        const auto around = std::find_if(m_scopes.rbegin(), m_scopes.rend(), std::mem_fn(&Scope::isFunction));
        const bool isGlobal = around == m_scopes.rend();
        (isGlobal ? m_scopes.front() : *around).names.insert(name);
        if (isGlobal)
            m_variables.insert(name.toString());
    }

    bool acceptFunction()
    {
        const ScriptToken before = at(-1);
        const bool isStatement = before == u";" || before == u"}" || before == u"{" ||
                                 before.kind != Kind::Operator || before.text.isEmpty();
        if (!isStatement || before == u"return")
            return !(before == u")") && !(before == u"]");
        // In a block, a declaration is in force where engines do not agree on.
        const bool isInBody = m_scopes.back().isFunction || m_scopes.size() == 1;
        if (!isInBody || at(1).kind != Kind::Name ||
            (before.kind == Kind::Name && isOneOf(before.text, kKeywords)))
            return false;
        declareVariable(at(1).text);
        return true;
    }

    [[nodiscard]] bool acceptMember(QStringView name) const
    {
        if (at(-2) == u"templateEditorCore")
            return !name.startsWith("__"_L1) && !isOneOf(name, kForbiddenMembers);
        return isKnownMember(name);
    }

    bool acceptOperator(const ScriptToken &token)
    {
        if (token == u"{" || token == u"(" || token == u"${") {
            const bool isBody = token == u"{" && (at(-1) == u"=>" || m_bodies.contains(m_at));
            m_scopes.push_back({{}, isBody});
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
        if (!(at(2) == u"]") || member.kind == Kind::Operator)
            return false;
        if (member.kind == Kind::Number)
            return true;
        if (member.kind == Kind::Name)
            return isCounter(member.text);
        const QStringView name = member.text.sliced(1).chopped(1);
        return !name.contains(u'\\') && (name.startsWith(u'[') || isKnownMember(name));
    }

    /// True for a variable that is declared once and has never anything but a number.
    [[nodiscard]] bool isCounter(QStringView name) const
    {
        if (m_declared.value(name) != 1)
            return false;
        bool isNumber = false;
        for (std::size_t index = 0; index < size(); ++index) {
            const qsizetype place = static_cast<qsizetype>(index) - static_cast<qsizetype>(m_at);
            const auto near = [this, place](int distance) { return at(place + distance); };
            if (!(near(0) == name) || isMember(place))
                continue;
            const bool isDeclaration = isDeclaring(place - 1);
            if (!isDeclaration && !isOneOf(near(1).text, kAssignments))
                continue;
            const bool isSet = near(1) == u"=" || near(1) == u"+=" || near(1) == u"-=";
            if (!isSet || near(2).kind != Kind::Number || !(near(3) == u";" || near(3) == u")"))
                return false;
            isNumber = isNumber || isDeclaration;
        }
        return isNumber;
    }

    /// True when what stands there is a variable whose declaration is in force.
    [[nodiscard]] bool isAssignable(int distance) const
    {
        const ScriptToken target = at(distance);
        return target.kind == Kind::Name && !isMember(distance) &&
               std::ranges::any_of(
                   m_scopes, [&target](const Scope &scope) { return scope.names.contains(target.text); });
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

    const std::vector<ScriptToken> &m_tokens;
    std::size_t m_at = 0;
    QHash<QStringView, int> m_declared; ///< How often.
    std::vector<Scope> m_scopes;
    QSet<std::size_t> m_bodies; ///< The brackets with which those of functions begin.
    QSet<QString> m_variables;
};

} // namespace

ScriptReading readScript(const QString &code)
{
    ScriptReading read;
    const auto tokens = scriptTokens(code);
    if (!tokens)
        return read;
    Reading reading(*tokens);
    if (!reading.isContained())
        return read;
    for (const ScriptToken &token : *tokens)
        if (token.kind == Kind::Name)
            read.names.insert(token.text.toString());
    read.variables = reading.variables();
    read.function = functionOf(code, *tokens);
    read.isContained = read.variables.isEmpty() || !read.function.isEmpty();
    return read;
}

} // namespace ozm
