#pragma once

#include "templates/scripts/ScriptRealm.h"

#include <QJSEngine>
#include <QObject>

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

class EngineScripts : public QObject, public ScriptEngineInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID OZM_SCRIPT_ENGINE_IID)
    Q_INTERFACES(ozm::ScriptEngineInterface)

public:
    [[nodiscard]] std::unique_ptr<ScriptRealm>
    createRealm(const ScriptLibrary &library, ScriptDeadline deadline, QString *trouble) override;
};

} // namespace ozm
