#pragma once

#include "templates/decoding/TemplateText.h"
#include "templates/scripts/ScriptRealm.h"

#include <ozm_widgets/TemplateDiagnostics.h>
#include <ozm_widgets/TemplateEditorJSEngine.h>

#include <memory>

class TemplateEditorJSEnginePrivate
{
public:
    void initJSEngine(const QString &path);

    /// A realm in which nothing has run yet. The library's troubles have been told already.
    [[nodiscard]] std::unique_ptr<ozm::ScriptRealm> freshRealm() const;
    /// The engine's own, where scripts run now.
    [[nodiscard]] ozm::ScriptRealm &realm();
    [[nodiscard]] bool isValid() const { return m_valid; }
    /// True when the library has a name like one of these variables of scripts, which it might then ask for.
    [[nodiscard]] bool doesLibraryName(const QSet<QString> &variables) const
    {
        return m_libraryNames.intersects(variables);
    }

private:
    ozm::ScriptLibrary m_library;
    QSet<QString> m_libraryNames;
    TemplateEditorJSEngine::ScriptPlace m_place = TemplateEditorJSEngine::scriptPlace();
    std::unique_ptr<ozm::ScriptRealm> m_realm;
    bool m_valid = false;
};

class TemplateEditorJSCodeReader::Private
{
public:
    [[nodiscard]] std::shared_ptr<const ozm::TemplateText> parsed(const QString &text);
    /// As readAsString(); what failed and what values brought in goes to @p report unless that is null. Scripts
    /// that are not run have failed.
    [[nodiscard]] QString read(const ozm::TemplateText &parsed, const QMap<QString, QVariant> &parameters,
                               ozm::TemplateReport *report, bool runsScripts = true);

    TemplateEditorJSEngine engine;

private:
    /// In the order of the pieces.
    [[nodiscard]] QList<ozm::ScriptOutcome> runPieces(const ozm::TemplateText &parsed,
                                                      const QMap<QString, QVariant> &parameters);

    ozm::TemplateCache m_cache;
};
