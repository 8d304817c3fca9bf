#include "EngineScriptRealm.h"

#include "ScriptWatchdog.h"

#include <QPointer>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

const QString kParameters = u"inputParameters"_s;
const QString kLibrary = u"templateEditorCore"_s;

// String is taken when the realm is made, before a script can change it.
const QString kToText = u"(function (toText) {"
                        "  return function (value) {"
                        "    try { return { text: toText(value) } }"
                        "    catch (error) { return { error: error } }"
                        "  }"
                        "})(String)"_s;

QString messageOf(const QJSValue &thrown)
{
    // Only errors are asked for their text: that of another object may be a script that throws again.
    if (thrown.isError() || !thrown.isObject())
        return thrown.toString();
    return u"An object was thrown."_s;
}

int lineOf(const QJSValue &result, const QStringList &stack)
{
    if (result.isError()) {
        if (const int line = result.property(u"lineNumber"_s).toInt(); line > 0)
            return line;
    }
    // Of "function:line:column:file", the outermost frame.
    return stack.isEmpty() ? 1 : qMax(1, stack.constLast().section(u':', 1, 1).toInt());
}

template <typename Visit>
void visitObjects(const QVariant &value, Visit visit)
{
    if (value.metaType().flags() & QMetaType::PointerToQObject) {
        if (QObject *object = value.value<QObject *>())
            visit(object);
    } else if (value.typeId() == QMetaType::QVariantMap) {
        for (const QVariant &each : value.toMap())
            visitObjects(each, visit);
    } else if (value.typeId() == QMetaType::QVariantList) {
        for (const QVariant &each : value.toList())
            visitObjects(each, visit);
    }
}

} // namespace

/// Keeps the engine from taking the objects it is shown for its own, for as long as it lives.
class EngineScriptRealm::GuardedObjects
{
public:
    ~GuardedObjects()
    {
        for (const auto &[object, ownership] : std::as_const(m_objects))
            if (object)
                QJSEngine::setObjectOwnership(object, ownership);
    }

    void guard(const QVariant &value)
    {
        visitObjects(value, [this](QObject *object) {
            const auto ownership = QJSEngine::objectOwnership(object);
            m_objects.append({object, ownership});
            QJSEngine::setObjectOwnership(object, QJSEngine::CppOwnership);
        });
    }

private:
    QList<std::pair<QPointer<QObject>, QJSEngine::ObjectOwnership>> m_objects;
};

EngineScriptRealm::EngineScriptRealm(const ScriptLibrary &library, ScriptDeadline deadline, QString *trouble)
    : m_deadline(deadline)
    , m_objects(std::make_unique<GuardedObjects>())
    , m_toText(m_engine.evaluate(kToText))
{
    if (library.content.isEmpty())
        return;
    if (const auto failure = load(library); failure && trouble)
        *trouble = *failure;
}

EngineScriptRealm::~EngineScriptRealm() = default;

std::optional<QString> EngineScriptRealm::load(const ScriptLibrary &library)
{
    const ScriptWatch watch(m_engine, m_deadline());
    QStringList stack;
    const QJSValue result = m_engine.evaluate(library.content, library.path, 1, &stack);
    if (result.isError() || !stack.isEmpty() || watch.barked())
        return messageOf(result);
    m_engine.globalObject().setProperty(kLibrary, result);
    return std::nullopt;
}

ScriptOutcome EngineScriptRealm::run(const QString &code)
{
    return evaluate(code);
}

ScriptOutcome EngineScriptRealm::run(const QString &code, const QMap<QString, QVariant> &parameters)
{
    for (const QVariant &value : parameters)
        m_objects->guard(value);
    QJSValue global = m_engine.globalObject();
    global.setProperty(kParameters, m_engine.toScriptValue(parameters));
    ScriptOutcome outcome = evaluate(code);
    global.deleteProperty(kParameters);
    return outcome;
}

ScriptOutcome EngineScriptRealm::evaluate(const QString &code)
{
    const ScriptWatch watch(m_engine, m_deadline());
    QStringList stack;
    const QJSValue result = m_engine.evaluate(code, {}, 1, &stack);
    if (watch.barked())
        return {code, true, lineOf(result, stack), u"The script did not end in time."_s};
    if (result.isError() || !stack.isEmpty())
        return {code, true, lineOf(result, stack), messageOf(result)};
    if (!result.isObject())
        return {result.toString()};
    const QJSValue text = m_toText.call({result});
    if (watch.barked())
        return {code, true, 1, u"The script did not end in time."_s};
    if (!text.hasProperty(u"text"_s))
        return {code, true, 1, messageOf(text.isError() ? text : text.property(u"error"_s))};
    return {text.property(u"text"_s).toString()};
}

std::unique_ptr<ScriptRealm> EngineScripts::createRealm(const ScriptLibrary &library, ScriptDeadline deadline,
                                                        QString *trouble)
{
    return std::make_unique<EngineScriptRealm>(library, deadline, trouble);
}

} // namespace ozm
