#pragma once

#include "templates/scripts/ScriptRealm.h"

#include <QObject>

namespace ozm {

class EngineScripts : public QObject, public ScriptEngineInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID OZM_SCRIPT_ENGINE_IID)
    Q_INTERFACES(ozm::ScriptEngineInterface)

public:
    [[nodiscard]] std::unique_ptr<ScriptRealm> createRealm(const ScriptLibrary &library, ScriptRulesNow rules,
                                                           QString *trouble) override;
};

} // namespace ozm
