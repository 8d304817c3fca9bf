#include "templates/scripts/ScriptRealm.h"

#include "support/LibraryFolder.h"
#include "support/Logging.h"
#include "support/PluginLoader.h"
#include "templates/scripts/HelperScriptRealm.h"

#include <ozm_widgets/TemplateEditorJSEngine.h>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

class NoScripts : public ScriptRealm
{
    Q_DECLARE_TR_FUNCTIONS(ozm::ScriptRealm)

public:
    QList<ScriptOutcome> run(const QList<ScriptTask> &tasks, const QMap<QString, QVariant> &) override
    {
        QList<ScriptOutcome> failed;
        for (const ScriptTask &task : tasks)
            failed.append(
                {task.code, true, 1, tr("The script engine \"ozm_scripts\" is not installed."), true});
        return failed;
    }
    [[nodiscard]] bool isServed() const override { return false; }
};

ScriptRules rulesNow()
{
    return {TemplateEditorJSEngine::deadline(),
            TemplateEditorJSEngine::objectAccess() == TemplateEditorJSEngine::ObjectAccess::ReadOnly};
}

ScriptEngineInterface *findEngine()
{
    auto *engine = loadPlugin<ScriptEngineInterface>(u"ozm_scripts"_s);
    if (!engine)
        OZM_WIDGETS_WARNING() << "Scripts cannot run: \"ozm_scripts\" was not found in" << pluginFolders();
    return engine;
}

} // namespace

std::unique_ptr<ScriptRealm> ScriptRealm::create(const ScriptLibrary &library, QString *trouble)
{
    if (TemplateEditorJSEngine::scriptPlace() == TemplateEditorJSEngine::ScriptPlace::HelperProcess)
        return std::make_unique<HelperScriptRealm>(library, trouble);
    static ScriptEngineInterface *const engine = findEngine();
    if (engine)
        return engine->createRealm(library, &rulesNow, trouble);
    return std::make_unique<NoScripts>();
}

} // namespace ozm
