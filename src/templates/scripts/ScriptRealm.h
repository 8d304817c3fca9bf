#pragma once

#include <QMap>
#include <QString>
#include <QVariant>
#include <QtPlugin>

#include <chrono>
#include <memory>

namespace ozm {

/// The outcome of a piece of script. A failed one has its code as its text.
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

/**
 * An engine with the library in it, and with all that scripts have left behind.
 *
 * The engine is in a plug-in of its own: resolving it takes more of a program's start than all the rest of
 * this library, and most programs start without a script.
 */
class ScriptRealm
{
public:
    ScriptRealm() = default;
    ScriptRealm(const ScriptRealm &) = delete;
    ScriptRealm &operator=(const ScriptRealm &) = delete;
    virtual ~ScriptRealm() = default;

    [[nodiscard]] virtual ScriptOutcome run(const QString &code,
                                            const QMap<QString, QVariant> &parameters) = 0;
    /// For code that does not look at its parameters: handing them over costs more than a short script.
    [[nodiscard]] virtual ScriptOutcome run(const QString &code) = 0;

    /// Takes what is wrong with the library, if anything is, to @p trouble. Without the plug-in, a realm in
    /// which every script fails, and says why.
    [[nodiscard]] static std::unique_ptr<ScriptRealm> create(const ScriptLibrary &library, QString *trouble);
};

/// Asked before each script for how long it may run.
using ScriptDeadline = std::chrono::milliseconds (*)();

/// The plug-in with the script engine.
class ScriptEngineInterface
{
public:
    virtual ~ScriptEngineInterface() = default;

    /// As ScriptRealm::create(); the deadline is asked before each script.
    [[nodiscard]] virtual std::unique_ptr<ScriptRealm>
    createRealm(const ScriptLibrary &library, ScriptDeadline deadline, QString *trouble) = 0;
};

} // namespace ozm

#define OZM_SCRIPT_ENGINE_IID "ozm_widgets.ScriptEngineInterface/2"
Q_DECLARE_INTERFACE(ozm::ScriptEngineInterface, OZM_SCRIPT_ENGINE_IID)
