#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QtPlugin>

#include <chrono>
#include <memory>

namespace ozm {

/// A piece of script to be run.
struct ScriptTask
{
    QString code;
    /// False only when it is certain that the piece cannot change its parameters: others then get the same.
    bool mayChangeParameters = true;
};

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

    /// Runs @p tasks in their order, all of them within one deadline. Once it has passed, the rest fail, and
    /// whatever they left to be done later is not done.
    [[nodiscard]] virtual QList<ScriptOutcome> run(const QList<ScriptTask> &tasks,
                                                   const QMap<QString, QVariant> &parameters) = 0;

    /// Takes what is wrong with the library, if anything is, to @p trouble. Without the plug-in, a realm in
    /// which every script fails, and says why.
    [[nodiscard]] static std::unique_ptr<ScriptRealm> create(const ScriptLibrary &library, QString *trouble);
};

struct ScriptRules
{
    std::chrono::milliseconds deadline; ///< None when zero or less.
    bool readOnlyObjects = false;
};

/// Asked before each decoding.
using ScriptRulesNow = ScriptRules (*)();

/// The plug-in with the script engine.
class ScriptEngineInterface
{
public:
    virtual ~ScriptEngineInterface() = default;

    /// As ScriptRealm::create().
    [[nodiscard]] virtual std::unique_ptr<ScriptRealm>
    createRealm(const ScriptLibrary &library, ScriptRulesNow rules, QString *trouble) = 0;
};

} // namespace ozm

#define OZM_SCRIPT_ENGINE_IID "ozm_widgets.ScriptEngineInterface/3"
Q_DECLARE_INTERFACE(ozm::ScriptEngineInterface, OZM_SCRIPT_ENGINE_IID)
