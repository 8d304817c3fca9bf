#include "EngineScriptRealm.h"

#include <QScopedValueRollback>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

const QString kParameters = u"inputParameters"_s;
const QString kLibrary = u"templateEditorCore"_s;

const QString kLate = kLateScript.toString();
const QString kOwnScript = u"ozm_scripts"_s;

// The functions are taken when the realm is made, before a script can change them. A list writes the lists in
// it by their own join(), which the engine does on its own stack: one that holds itself, or is too deep, would
// end the process.
const QString kPrepare =
    u"(function (toText, apply, isArray) {"
    "  'use strict';"
    "  const deepest = 500, longest = 1e7;"
    "  const thrown = {};"
    "  let around = null;"
    "  function within(list, write) {"
    "    let depth = 0;"
    "    for (let at = around; at !== null; at = at.around) {"
    "      if (at.list === list) throw new TypeError('The list holds itself.');"
    "      if (++depth > deepest) throw new RangeError('The lists are nested too deeply.');"
    "    }"
    "    if (isArray(list) && list.length > longest) throw new RangeError('The list is too long.');"
    "    const outside = around;"
    "    around = { list: list, around: outside };"
    "    try { return write() } finally { around = outside }"
    "  }"
    "  const join = Array.prototype.join, toLocaleString = Array.prototype.toLocaleString;"
    "  const guarded = {"
    "    join(separator) { const all = arguments; return within(this, () => apply(join, this, all)) },"
    "    toLocaleString() { return within(this, () => apply(toLocaleString, this, [])) } };"
    "  for (const name of ['join', 'toLocaleString'])"
    "    Object.defineProperty(Array.prototype, name,"
    "      { value: guarded[name], writable: true, enumerable: false, configurable: true });"
    "  return {"
    "    forget: function () { around = null },"
    "    thrown: thrown,"
    "    call: function (piece) {"
    "      try { return piece() }"
    "      catch (error) { return thrown }"
    "    },"
    "    toText: function (value) {"
    "      try { return { text: toText(value) } }"
    "      catch (error) { return { error: error } }"
    "    } };"
    "})(String, Reflect.apply, Array.isArray)"_s;

QString messageOf(const QJSValue &thrown)
{
    // Only errors are asked for their text: that of another object may be a script that throws again.
    if (thrown.isError() || !thrown.isObject())
        return thrown.toString();
    return u"An object was thrown."_s;
}

int lineOf(const QJSValue &result, const QStringList &stack)
{
    if (result.isError() && result.property(u"fileName"_s).toString() != kOwnScript) {
        if (const int line = result.property(u"lineNumber"_s).toInt(); line > 0)
            return line;
    }
    // Of "function:line:column:file", the outermost frame.
    return stack.isEmpty() ? 1 : qMax(1, stack.constLast().section(u':', 1, 1).toInt());
}

// More than the pieces of the templates that are decoded by turns.
constexpr qsizetype kMostFunctions = 1000;

// A deadline that is made for short scripts leaves no time to read a library on a busy machine.
constexpr std::chrono::milliseconds kLibraryTime{1000};

} // namespace

EngineScriptRealm::EngineScriptRealm(const ScriptLibrary &library, ScriptRulesNow rules, QString *trouble)
    : m_library(library)
    , m_rules(rules)
{
    const QJSValue own = m_engine.evaluate(kPrepare, kOwnScript);
    m_toText = own.property(u"toText"_s);
    m_forgetLists = own.property(u"forget"_s);
    m_call = own.property(u"call"_s);
    m_thrown = own.property(u"thrown"_s);
    if (library.content.isEmpty())
        return;
    if (const auto failure = load(library); failure && trouble)
        *trouble = *failure;
}

EngineScriptRealm::~EngineScriptRealm() = default;

void EngineScriptRealm::watch(std::chrono::milliseconds deadline)
{
    const bool wasLate = isLate();
    m_watch.reset();
    if (wasLate)
        m_forgetLists.call();
    m_watch.emplace(m_engine, deadline);
}

std::optional<QString> EngineScriptRealm::load(const ScriptLibrary &library)
{
    const std::chrono::milliseconds deadline = m_rules().deadline;
    watch(deadline.count() > 0 ? std::max(deadline, kLibraryTime) : deadline);
    QStringList stack;
    const QJSValue result = m_engine.evaluate(library.content, library.path, 1, &stack);
    if (result.isError() || !stack.isEmpty() || isLate())
        return messageOf(result);
    m_engine.globalObject().setProperty(kLibrary, result);
    return std::nullopt;
}

QList<ScriptOutcome> EngineScriptRealm::run(const QList<ScriptTask> &tasks,
                                            const QMap<QString, QVariant> &parameters)
{
    QList<ScriptOutcome> outcomes;
    run(tasks, parameters, [&outcomes](const ScriptOutcome &outcome) { outcomes.append(outcome); });
    return outcomes;
}

void EngineScriptRealm::run(const QList<ScriptTask> &tasks, const QMap<QString, QVariant> &parameters,
                            const std::function<void(const ScriptOutcome &)> &ended)
{
    const ScriptRules rules = m_rules();
    // A script may call the application, which may decode with the same engine: within the same deadline.
    const QScopedValueRollback depth(m_depth, m_depth + 1);
    if (m_depth == 1)
        watch(rules.deadline);
    QJSValue global = m_engine.globalObject();
    QJSValue shared;
    const auto handOut = [this, &global, &shared, &parameters, &rules](const ScriptTask &task) {
        QJSValue handed = shared;
        if (task.mayChangeParameters || shared.isUndefined())
            handed = m_objects.handOut(m_engine, parameters, rules.readOnlyObjects);
        if (!task.mayChangeParameters)
            shared = handed;
        global.setProperty(kParameters, handed);
    };
    for (const ScriptTask &task : tasks) {
        if (isLate()) {
            ended({task.code, true, 1, kLate});
            continue;
        }
        handOut(task);
        std::optional<ScriptOutcome> outcome = call(task);
        if (!outcome && task.leavesVariables) {
            outcome = evaluateApart(task, parameters);
        } else if (!outcome) {
            if (!task.function.isEmpty())
                handOut(task);
            outcome = evaluate(task.code);
        }
        global.deleteProperty(kParameters);
        ended(*outcome);
    }
    if (m_depth == 1)
        m_apart.reset();
}

std::optional<ScriptOutcome> EngineScriptRealm::call(const ScriptTask &task)
{
    if (task.function.isEmpty())
        return std::nullopt;
    QJSValue function = m_functions.value(task.function);
    if (!function.isCallable()) {
        function = m_engine.evaluate(task.function);
        if (!function.isCallable())
            return std::nullopt;
        if (m_functions.size() >= kMostFunctions)
            m_functions.clear();
        m_functions.insert(task.function, function);
    }
    const QJSValue result = m_call.call({function});
    if (isLate())
        return ScriptOutcome{task.code, true, lineOf(result, {}), kLate};
    if (result.isError() || (result.isObject() && result.strictlyEquals(m_thrown)))
        return std::nullopt;
    return textOf(task.code, result);
}

ScriptOutcome EngineScriptRealm::evaluateApart(const ScriptTask &task,
                                               const QMap<QString, QVariant> &parameters)
{
    if (!m_apart)
        m_apart = std::make_unique<EngineScriptRealm>(m_library, m_rules, nullptr);
    return m_apart->run({{task.code}}, parameters).constFirst();
}

ScriptOutcome EngineScriptRealm::evaluate(const QString &code)
{
    QStringList stack;
    const QJSValue result = m_engine.evaluate(code, {}, 1, &stack);
    if (isLate())
        return {code, true, lineOf(result, stack), kLate};
    if (result.isError() || !stack.isEmpty())
        return {code, true, lineOf(result, stack), messageOf(result)};
    return textOf(code, result);
}

ScriptOutcome EngineScriptRealm::textOf(const QString &code, const QJSValue &result)
{
    if (!result.isObject())
        return {result.toString()};
    const QJSValue text = m_toText.call({result});
    if (isLate())
        return {code, true, 1, kLate};
    if (!text.hasProperty(u"text"_s))
        return {code, true, 1, messageOf(text.isError() ? text : text.property(u"error"_s))};
    return {text.property(u"text"_s).toString()};
}

} // namespace ozm
