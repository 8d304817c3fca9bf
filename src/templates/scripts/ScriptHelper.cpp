#include "templates/scripts/ScriptHelper.h"

#include "support/LibraryFolder.h"
#include "support/Logging.h"

#include <ozm_widgets/TemplateEditorJSEngine.h>
#include <platform/Errors.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace ozm {

namespace {

// A machine that is busy starts a program in a second; one that takes longer has other troubles.
constexpr std::chrono::milliseconds kHelperStartTime = 10s;
constexpr int kHelperEndTimeMs = 5000;

} // namespace

ScriptHelper &ScriptHelper::instance()
{
    // A later application object in the same process begins anew.
    static std::unique_ptr<ScriptHelper> helper;
    if (!helper) {
        helper = std::make_unique<ScriptHelper>();
        qAddPostRoutine([] { helper.reset(); });
    }
    return *helper;
}

ScriptHelper::~ScriptHelper()
{
    stop();
}

Error ScriptHelper::start()
{
    const Wanted wanted{TemplateEditorJSEngine::helperProgram(), TemplateEditorJSEngine::helperMemory()};
    if (isRunning() && m_running == wanted)
        return {};
    stop();
    QString program;
    if (Error error = find(&program); error.hasError())
        return error;
    m_running = wanted;
    ++m_generation;
    // The scripts' own process has nothing to say but to this one; what the system says of it is for the log of both.
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program,
                    {scriptprotocol::kMemoryOption, QString::number(std::max<qint64>(0, wanted.memory))});
    Error error =
        m_process.waitForStarted(int(kHelperStartTime.count()))
            ? greet()
            : Error(codes::FileAccess, tr("The program \"%1\", which runs scripts, cannot be started: %2")
                                           .arg(QDir::toNativeSeparators(program), m_process.errorString()));
    if (error.hasError())
        stop();
    return error;
}

Error ScriptHelper::find(QString *program)
{
    const QString wanted = TemplateEditorJSEngine::helperProgram();
    const QStringList places =
        wanted.isEmpty() ? helperPrograms("ozm_script_helper"_L1) : QStringList{wanted};
    const auto found =
        std::ranges::find_if(places, [](const QString &place) { return QFileInfo(place).isFile(); });
    if (found == places.cend())
        return Error(codes::FileAccess,
                     tr("The program that runs scripts was not found. It should be here: %1")
                         .arg(QDir::toNativeSeparators(places.join("; "_L1))));
    *program = *found;
    return {};
}

Error ScriptHelper::greet()
{
    const QString program = QDir::toNativeSeparators(m_process.program());
    const auto greeting = nextFrame(QDeadlineTimer(kHelperStartTime));
    const auto version = greeting ? scriptprotocol::greetedVersion(*greeting) : std::nullopt;
    if (!version)
        return Error(codes::Failed,
                     tr("The program \"%1\" was started to run scripts, and does not answer.").arg(program));
    if (*version != scriptprotocol::kVersion)
        return Error(codes::Failed,
                     tr("The program \"%1\", which runs scripts, is of another version: %2 instead of %3.")
                         .arg(program)
                         .arg(*version)
                         .arg(scriptprotocol::kVersion));
    return {};
}

void ScriptHelper::stop()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(kHelperEndTimeMs);
    }
    m_process.close();
    m_frames = {};
}

std::optional<QByteArray> ScriptHelper::nextFrame(QDeadlineTimer deadline)
{
    while (true) {
        if (m_process.bytesAvailable() > 0)
            m_frames.append(m_process.readAllStandardOutput());
        if (auto frame = m_frames.next())
            return frame;
        if (m_frames.isBroken() || !m_process.waitForReadyRead(int(deadline.remainingTime())))
            return std::nullopt;
    }
}

std::optional<scriptprotocol::Answer> ScriptHelper::receive(QDeadlineTimer deadline)
{
    const auto frame = nextFrame(deadline);
    return frame ? scriptprotocol::unframed<scriptprotocol::Answer>(*frame) : std::nullopt;
}

Error ScriptHelper::endedError() const
{
    constexpr qint64 kMiB = qint64(1024) * 1024;
    return Error(codes::Failed,
                 m_running.memory > 0
                     ? tr("The process that runs scripts has ended. It may take up to %1 MiB of memory.")
                           .arg(m_running.memory / kMiB)
                     : tr("The process that runs scripts has ended."));
}

void ScriptHelper::warn(const Error &error)
{
    if (m_warned == error.errorMessage())
        return;
    m_warned = error.errorMessage();
    qCWarning(lcOzmWidgets).noquote() << m_warned;
}

} // namespace ozm
