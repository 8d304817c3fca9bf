#pragma once

#include "TemplateText.h"

#include <ozm_widgets/TemplateDiagnostics.h>
#include <ozm_widgets/TemplateEditorJSEngine.h>

#include <QJSEngine>

#include <memory>
#include <optional>

namespace ozm {

/// What became of a piece of script. A failed one has its code as its text.
struct ScriptOutcome
{
    QString text;
    bool failed = false;
    int line = 0; ///< At which it failed, counted from 1.
    QString message = {};
};

/// The script library as read from its file: empty where there is none to be used.
struct ScriptLibrary
{
    QString path;
    QString content;
};

/// An engine with the library in it, and with all that scripts have left behind.
class ScriptRealm
{
public:
    /// Takes what is wrong with the library, if anything is, to @p trouble.
    ScriptRealm(const ScriptLibrary &library, QString *trouble);
    ~ScriptRealm();
    ScriptRealm(const ScriptRealm &) = delete;
    ScriptRealm &operator=(const ScriptRealm &) = delete;

    [[nodiscard]] ScriptOutcome run(const QString &code, const QMap<QString, QVariant> &parameters);
    /// For code that does not look at its parameters: handing them over costs more than a short script.
    [[nodiscard]] ScriptOutcome run(const QString &code);

private:
    class GuardedObjects;

    [[nodiscard]] std::optional<QString> load(const ScriptLibrary &library);
    [[nodiscard]] ScriptOutcome evaluate(const QString &code);

    std::unique_ptr<GuardedObjects> m_objects; // outlives the engine that knows them
    QJSEngine m_engine;
    QJSValue m_toText;
};

} // namespace ozm

class TemplateEditorJSEnginePrivate
{
public:
    void initJSEngine(const QString &path);

    /// A realm in which nothing has run yet. The library's troubles have been told already.
    [[nodiscard]] std::unique_ptr<ozm::ScriptRealm> freshRealm() const;
    /// The engine's own.
    [[nodiscard]] ozm::ScriptRealm &realm() { return *m_realm; }
    [[nodiscard]] bool isValid() const { return m_valid; }

private:
    ozm::ScriptLibrary m_library;
    std::unique_ptr<ozm::ScriptRealm> m_realm;
    bool m_valid = false;
};

class TemplateEditorJSCodeReader::Private
{
public:
    [[nodiscard]] std::shared_ptr<const ozm::TemplateText> parsed(const QString &text);
    /// As readAsString(); what failed goes to @p failed unless that is null.
    [[nodiscard]] QString read(const ozm::TemplateText &parsed, const QMap<QString, QVariant> &parameters,
                               QList<ozm::FailedScript> *failed);

    TemplateEditorJSEngine engine;

private:
    [[nodiscard]] QString runPieces(const ozm::TemplateText &parsed,
                                    const QMap<QString, QVariant> &parameters,
                                    QList<ozm::FailedScript> *failed);

    ozm::TemplateCache m_cache;
};
