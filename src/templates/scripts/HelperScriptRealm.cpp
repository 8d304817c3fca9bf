#include "templates/scripts/HelperScriptRealm.h"

#include "templates/scripts/ScriptHelper.h"
#include "templates/scripts/ScriptValues.h"

#include <ozm_widgets/TemplateEditorJSEngine.h>
#include <platform/Errors.h>

#include <QLocale>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace ozm {

namespace {

// The process interrupts late scripts by itself. It is ended when a function built into the engine does not let it.
constexpr std::chrono::milliseconds kGrace = 500ms;
// For a gigabyte of values on a busy machine.
constexpr std::chrono::milliseconds kTransferTime = 60s;

quint32 nextRealm()
{
    static quint32 realm = 0;
    return ++realm;
}

QDeadlineTimer timeWithin(std::chrono::milliseconds more)
{
    const std::chrono::milliseconds deadline = TemplateEditorJSEngine::deadline();
    return deadline.count() > 0 ? QDeadlineTimer(deadline + more) : QDeadlineTimer(QDeadlineTimer::Forever);
}

QByteArray runRequest(quint32 realm, const QList<ScriptTask> &tasks,
                      const QMap<QString, QVariant> &parameters)
{
    const QLocale locale;
    return scriptprotocol::framed(scriptprotocol::Request(scriptprotocol::RunScripts{
        realm, TemplateEditorJSEngine::deadline().count(),
        locale == QLocale::system() ? QString() : locale.name(), tasks, crossing(parameters)}));
}

} // namespace

HelperScriptRealm::HelperScriptRealm(ScriptLibrary library, QString *trouble)
    : m_library(std::move(library))
    , m_realm(nextRealm())
{
    if (!trouble)
        return;
    Talk talk;
    hold(talk);
    m_isServed = !talk.error.hasError();
    *trouble = talk.isLate ? kLateScript.toString() : talk.trouble;
}

HelperScriptRealm::~HelperScriptRealm()
{
    ScriptHelper &helper = ScriptHelper::instance();
    if (helper.isRunning() && helper.generation() == m_generation)
        helper.send(scriptprotocol::framed(scriptprotocol::Request(scriptprotocol::DropRealm{m_realm})));
}

QList<ScriptOutcome> HelperScriptRealm::run(const QList<ScriptTask> &tasks,
                                            const QMap<QString, QVariant> &parameters)
{
    Talk talk{runRequest(m_realm, tasks, parameters), tasks.size()};
    if (talk.request.isEmpty())
        talk.error =
            Error(codes::BadParameter, tr("The values are too large for scripts in a process of their own."));
    else
        hold(talk);
    QList<ScriptOutcome> outcomes = std::move(talk.outcomes);
    QString message = talk.isLate ? kLateScript.toString() : talk.error.errorMessage();
    while (outcomes.size() < tasks.size()) {
        outcomes.append({tasks.at(outcomes.size()).code, true, 1, message, talk.error.hasError()});
        if (talk.isStarted && !talk.isLate)
            message = tr("The process that runs scripts had ended before this script.");
    }
    return outcomes;
}

QByteArray HelperScriptRealm::creation() const
{
    return scriptprotocol::framed(scriptprotocol::Request(
        scriptprotocol::CreateRealm{m_realm, m_library, TemplateEditorJSEngine::deadline().count()}));
}

void HelperScriptRealm::hold(Talk &talk)
{
    ScriptHelper &helper = ScriptHelper::instance();
    bool isAnswered = false;
    // A process that ended while it was idle, as when the system takes its memory, is no fault of these scripts.
    for (int attempt = 0; attempt < 2 && !isAnswered && !talk.isStarted && !talk.isLate; ++attempt) {
        talk.error = helper.start();
        if (talk.error.hasError())
            break;
        if (std::exchange(m_generation, helper.generation()) != helper.generation())
            helper.send(creation());
        helper.send(talk.request);
        isAnswered = listen(helper, talk);
        if (!isAnswered)
            helper.stop();
    }
    if (isAnswered) {
        helper.forgetWarning();
    } else if (!talk.isLate) {
        if (!talk.error.hasError())
            talk.error = helper.endedError();
        helper.warn(talk.error);
    }
}

bool HelperScriptRealm::listen(ScriptHelper &helper, Talk &talk)
{
    QDeadlineTimer patience = timeWithin(kTransferTime);
    while (const auto answer = helper.receive(patience)) {
        if (const auto *created = std::get_if<scriptprotocol::Created>(&*answer)) {
            talk.trouble = created->trouble;
            if (talk.request.isEmpty())
                return true;
        } else if (std::holds_alternative<scriptprotocol::Started>(*answer)) {
            talk.isStarted = true;
            patience = timeWithin(kGrace);
        } else if (const auto *outcome = std::get_if<ScriptOutcome>(&*answer)) {
            talk.outcomes.append(*outcome);
        }
        if (talk.outcomes.size() > talk.tasks)
            return false;
        if (std::holds_alternative<scriptprotocol::Ended>(*answer))
            return talk.outcomes.size() == talk.tasks;
    }
    talk.isLate = helper.isRunning() && patience.remainingTime() == 0;
    return false;
}

} // namespace ozm
