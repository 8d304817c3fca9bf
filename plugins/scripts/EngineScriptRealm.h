#pragma once

#include "templates/scripts/ScriptRealm.h"

#include <QJSEngine>

#include <optional>

namespace ozm {

/// Qt's script engine.
class EngineScriptRealm : public ScriptRealm
{
public:
    EngineScriptRealm(const ScriptLibrary &library, ScriptDeadline deadline, QString *trouble);
    ~EngineScriptRealm() override;

    ScriptOutcome run(const QString &code, const QMap<QString, QVariant> &parameters) override;
    ScriptOutcome run(const QString &code) override;

private:
    class GuardedObjects;

    [[nodiscard]] std::optional<QString> load(const ScriptLibrary &library);
    [[nodiscard]] ScriptOutcome evaluate(const QString &code);

    const ScriptDeadline m_deadline;
    std::unique_ptr<GuardedObjects> m_objects; // outlives the engine that knows them
    QJSEngine m_engine;
    QJSValue m_toText;
};

} // namespace ozm
