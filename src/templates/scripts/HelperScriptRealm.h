#pragma once

#include "templates/scripts/ScriptRealm.h"

#include <ozm_common_stable/Error.h>

#include <QCoreApplication>

namespace ozm {

class ScriptHelper;

/// A realm whose engine is in the process that runs scripts. When that process ends, so does all that scripts
/// have left behind in the realm; the next run makes the realm anew.
class HelperScriptRealm : public ScriptRealm
{
    Q_DECLARE_TR_FUNCTIONS(ozm::HelperScriptRealm)

public:
    /// Waits for the library only if its trouble is asked for.
    HelperScriptRealm(ScriptLibrary library, QString *trouble);
    ~HelperScriptRealm() override;

    QList<ScriptOutcome> run(const QList<ScriptTask> &tasks,
                             const QMap<QString, QVariant> &parameters) override;
    [[nodiscard]] bool isServed() const override { return m_isServed; }

private:
    /// A question to the process, and its answer.
    struct Talk
    {
        QByteArray request = {}; ///< Empty when only the realm is to be made.
        qsizetype tasks = 0;
        QString trouble = {};
        QList<ScriptOutcome> outcomes = {};
        bool isStarted = false;
        bool isLate = false;
        Error error = {}; ///< When there was no process, or none any more.
    };

    [[nodiscard]] QByteArray creation() const;
    void hold(Talk &talk);
    /// True once all has been answered.
    [[nodiscard]] static bool listen(ScriptHelper &helper, Talk &talk);

    const ScriptLibrary m_library;
    const quint32 m_realm;
    int m_generation = 0; ///< Of the process in which this realm was made.
    bool m_isServed = true;
};

} // namespace ozm
