#pragma once

#include "templates/scripts/ScriptProtocol.h"

#include <ozm_common_stable/Error.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>

#include <optional>

namespace ozm {

/**
 * The process that runs scripts for this program.
 *
 * Started when it is first needed, and again when it has ended or is wanted otherwise; kept in between. It ends
 * with this program, however that ends. GUI thread.
 */
class ScriptHelper
{
    Q_DECLARE_TR_FUNCTIONS(ozm::ScriptHelper)

public:
    /// The one of this program. Its process ends with the application object.
    [[nodiscard]] static ScriptHelper &instance();

    ScriptHelper() = default;
    ScriptHelper(const ScriptHelper &) = delete;
    ScriptHelper &operator=(const ScriptHelper &) = delete;
    ~ScriptHelper();

    /// Sees to it that a process runs, as it is wanted now, and speaks this version of the protocol.
    [[nodiscard]] Error start();
    void stop();

    /// Counts the processes: what was made in an earlier one is gone.
    [[nodiscard]] int generation() const { return m_generation; }
    [[nodiscard]] bool isRunning() const { return m_process.state() == QProcess::Running; }

    void send(const QByteArray &frame) { m_process.write(frame); }
    /// The next answer; nothing when @p deadline passes, the process ends, or its answer is not one.
    [[nodiscard]] std::optional<scriptprotocol::Answer> receive(QDeadlineTimer deadline);

    /// The error of a process that has ended while it was needed.
    [[nodiscard]] Error endedError() const;
    /// Writes @p error to the log, unless it is the one that was written last.
    void warn(const Error &error);
    /// Errors after this are news again.
    void forgetWarning() { m_warned.clear(); }

private:
    struct Wanted
    {
        QString program;
        qint64 memory = 0;

        bool operator==(const Wanted &) const = default;
    };

    [[nodiscard]] static Error find(QString *program);
    [[nodiscard]] Error greet();
    [[nodiscard]] std::optional<QByteArray> nextFrame(QDeadlineTimer deadline);

    QProcess m_process;
    scriptprotocol::Frames m_frames;
    Wanted m_running;
    QString m_warned;
    int m_generation = 0;
};

} // namespace ozm
