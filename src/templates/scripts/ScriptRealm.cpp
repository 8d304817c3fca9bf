#include "templates/scripts/ScriptRealm.h"

#include "support/LibraryFolder.h"
#include "support/Logging.h"
#include "support/PluginLoader.h"

#include <ozm_widgets/TemplateEditorJSEngine.h>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

class NoScripts : public ScriptRealm
{
public:
    QList<ScriptOutcome> run(const QList<ScriptTask> &tasks, const QMap<QString, QVariant> &) override
    {
        QList<ScriptOutcome> failed;
        for (const ScriptTask &task : tasks)
            failed.append({task.code, true, 1, text()});
        return failed;
    }

    static QString text() { return u"The script engine \"ozm_scripts\" is not installed."_s; }
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
    static ScriptEngineInterface *const engine = findEngine();
    if (engine)
        return engine->createRealm(library, &rulesNow, trouble);
    if (trouble)
        *trouble = NoScripts::text();
    return std::make_unique<NoScripts>();
}

} // namespace ozm
