#pragma once

#include <QDeadlineTimer>
#include <QFile>
#include <QString>

namespace ozm::audit {

/**
 * Lets the programs that write to one file do so in the order in which they came.
 *
 * SQLite's lock goes to whoever asks at the right moment, which is mostly the program that has just given it
 * back; others can wait for ever. Here each program draws a number and waits for the one before it. What is
 * waited for is a lock on a byte of "<file>-turn", which the system frees when its owner dies. Turns are
 * manners, not safety: SQLite's own lock keeps writers apart, so a turn that is not had in time, or a file
 * that cannot be made, only costs the order.
 *
 * One thread at a time.
 */
class Turns
{
    Q_DISABLE_COPY_MOVE(Turns)

public:
    explicit Turns(const QString &path);
    ~Turns();

    /// Lets others see that this program uses the file, until it ends.
    void attend();
    /// True when any program, this one included, attends the turns at @p path.
    [[nodiscard]] static bool isAttended(const QString &path);

    /// Has the turn, or has waited for it in vain, until it goes.
    class Turn
    {
        Q_DISABLE_COPY_MOVE(Turn)

    public:
        Turn(Turns *turns, QDeadlineTimer deadline);
        ~Turn();

    private:
        Turns *m_turns;
        qint64 m_number;
    };

private:
    [[nodiscard]] bool open();
    [[nodiscard]] qint64 draw(QDeadlineTimer deadline);
    [[nodiscard]] bool lockSoon(qint64 byte, QDeadlineTimer deadline);

    QFile m_file;
};

} // namespace ozm::audit
