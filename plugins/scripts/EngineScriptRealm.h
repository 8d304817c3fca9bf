#pragma once

#include "ScriptObjects.h"
#include "ScriptWatchdog.h"
#include "templates/scripts/ScriptRealm.h"

#include <QHash>
#include <QJSEngine>

#include <functional>
#include <optional>

namespace ozm {

/// Qt's script engine.
class EngineScriptRealm : public ScriptRealm
{
public:
    EngineScriptRealm(const ScriptLibrary &library, ScriptRulesNow rules, QString *trouble);
    ~EngineScriptRealm() override;

    QList<ScriptOutcome> run(const QList<ScriptTask> &tasks,
                             const QMap<QString, QVariant> &parameters) override;
    /// The same, each outcome as soon as there is one.
    void run(const QList<ScriptTask> &tasks, const QMap<QString, QVariant> &parameters,
             const std::function<void(const ScriptOutcome &)> &ended);

private:
    [[nodiscard]] std::optional<QString> load(const ScriptLibrary &library);
    [[nodiscard]] ScriptOutcome evaluate(const QString &code);
    /// The outcome of the piece's function; nothing when it has none, or fails: what then is
    /// told of it, and where, is for evaluate() to say.
    [[nodiscard]] std::optional<ScriptOutcome> call(const ScriptTask &task);
    /// The outcome by evaluate(), in another engine, so that the piece leaves no variables in this one.
    [[nodiscard]] ScriptOutcome evaluateApart(const ScriptTask &task,
                                              const QMap<QString, QVariant> &parameters);
    [[nodiscard]] ScriptOutcome textOf(const QString &code, const QJSValue &result);
    [[nodiscard]] bool isLate() const { return m_watch && m_watch->barked(); }
    void watch(std::chrono::milliseconds deadline);

    const ScriptLibrary m_library;
    const ScriptRulesNow m_rules;
    ScriptObjects m_objects; // outlives the engine that knows them
    QJSEngine m_engine;
    QJSValue m_toText;
    QJSValue m_forgetLists;
    QJSValue m_call;
    QJSValue m_thrown; ///< The result of m_call for what throws.
    QHash<QString, QJSValue> m_functions;
    std::unique_ptr<EngineScriptRealm> m_apart; ///< As long as tasks run.
    /// Stays between two runs, for what the first has left to the event loop.
    std::optional<ScriptWatch> m_watch;
    int m_depth = 0;
};

} // namespace ozm
