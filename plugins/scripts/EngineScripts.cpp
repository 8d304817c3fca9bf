#include "EngineScripts.h"

#include "EngineScriptRealm.h"

namespace ozm {

std::unique_ptr<ScriptRealm> EngineScripts::createRealm(const ScriptLibrary &library, ScriptRulesNow rules,
                                                        QString *trouble)
{
    return std::make_unique<EngineScriptRealm>(library, rules, trouble);
}

} // namespace ozm
