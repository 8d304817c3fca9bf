#include "templates/scripts/ScriptRealm.h"

#include "support/LibraryFolder.h"
#include "support/Logging.h"

#include <ozm_widgets/TemplateEditorJSEngine.h>

#include <QDir>
#include <QLibrary>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

class NoScripts : public ScriptRealm
{
public:
    ScriptOutcome run(const QString &code, const QMap<QString, QVariant> &) override { return run(code); }
    ScriptOutcome run(const QString &code) override { return {code, true, 1, text()}; }

    static QString text() { return u"The script engine \"ozm_scripts\" is not installed."_s; }
};

ScriptRealmFactory findFactory()
{
    const QStringList folders = pluginFolders();
    for (const QString &folder : folders) {
        const QStringList names = QDir(folder).entryList({u"*ozm_scripts*"_s}, QDir::Files);
        for (const QString &name : names)
            if (auto *found = QLibrary::resolve(folder + u'/' + name, kScriptRealmFactory))
                return reinterpret_cast<ScriptRealmFactory>(found);
    }
    OZM_WIDGETS_WARNING() << "Scripts cannot run: \"ozm_scripts\" was not found in" << folders;
    return nullptr;
}

} // namespace

std::unique_ptr<ScriptRealm> ScriptRealm::create(const ScriptLibrary &library, QString *trouble)
{
    static const ScriptRealmFactory factory = findFactory();
    if (factory)
        return std::unique_ptr<ScriptRealm>(factory(library, &TemplateEditorJSEngine::deadline, trouble));
    if (trouble)
        *trouble = NoScripts::text();
    return std::make_unique<NoScripts>();
}

} // namespace ozm
