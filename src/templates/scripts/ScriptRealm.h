#pragma once

#include <QDataStream>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QtPlugin>

#include <chrono>
#include <memory>
#include <tuple>

namespace ozm {

/// A piece of script to be run.
struct ScriptTask
{
    QString code;
    /// False only when it is certain that the piece cannot change its parameters: others then get the same.
    bool mayChangeParameters = true;
    /// An expression for a function that does the same, without the global variables; empty without one. Of a piece
    /// that leaves nothing else behind.
    QString function = {};
    bool leavesVariables = false; ///< It does without the function.

    static auto fields(auto &self)
    {
        return std::tie(self.code, self.mayChangeParameters, self.function, self.leavesVariables);
    }
};

/// The outcome of a piece of script. A failed one has its code as its text.
struct ScriptOutcome
{
    QString text = {};
    bool failed = false;
    int line = 0; ///< At which it failed, counted from 1.
    QString message = {};
    /// True when it failed for want of an engine, or of the process with the engine.
    bool isUnserved = false;

    static auto fields(auto &self) { return std::tie(self.text, self.failed, self.line, self.message); }
};

/// The message of those that the deadline has stopped.
inline constexpr QStringView kLateScript = u"The script did not end in time.";

/// Stands for a value that scripts do not get. Any use that a script makes of it throws the message.
struct WithheldValue
{
    QString message;

    friend QDataStream &operator<<(QDataStream &stream, const WithheldValue &value)
    {
        return stream << value.message;
    }
    friend QDataStream &operator>>(QDataStream &stream, WithheldValue &value)
    {
        return stream >> value.message;
    }
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
    /// False when it was made without an engine.
    [[nodiscard]] virtual bool isServed() const { return true; }

    /// A realm at the place where scripts run now. Takes what is wrong with the library, if anything is, to
    /// @p trouble. Without an engine, a realm in which every script fails, and says why.
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

#define OZM_SCRIPT_ENGINE_IID "ozm_widgets.ScriptEngineInterface/5"
Q_DECLARE_INTERFACE(ozm::ScriptEngineInterface, OZM_SCRIPT_ENGINE_IID)
Q_DECLARE_METATYPE(ozm::WithheldValue)
