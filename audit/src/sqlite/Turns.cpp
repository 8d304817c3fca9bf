#include "Turns.h"

#include "FileLocks.h"

#include <QThread>

#include <cstring>

namespace ozm::audit {

namespace {

// Much shorter than a write that reaches the disk.
constexpr unsigned long kPauseUs = 500;
// The number to be drawn next is at the beginning of the file; whoever draws locks the byte behind it.
constexpr qint64 kDrawing = sizeof(qint64);
// More than there can be programs. A system may keep others from reading a byte that is locked.
constexpr qint64 kSlots = 4096;
constexpr qint64 kFirstSlot = 64;
// Behind the slots, a byte for each program that has the file open.
constexpr qint64 kFirstUser = kFirstSlot + kSlots;
constexpr qint64 kUsers = 256;

qint64 slotOf(qint64 number)
{
    return kFirstSlot + (number & (kSlots - 1));
}

} // namespace

Turns::Turns(const QString &path)
    : m_file(path)
{}

Turns::~Turns() = default;

bool Turns::open()
{
    return m_file.isOpen() || m_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
}

void Turns::attend()
{
    for (qint64 byte = kFirstUser; open() && byte < kFirstUser + kUsers; ++byte) {
        if (tryLock(m_file, byte))
            return;
    }
}

bool Turns::isAttended(const QString &path)
{
    QFile file(path);
    if (!file.exists() || !file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return false;
    // Closing the file gives back what was locked.
    for (qint64 byte = kFirstUser; byte < kFirstUser + kUsers; ++byte) {
        if (!tryLock(file, byte))
            return true;
    }
    return false;
}

bool Turns::lockSoon(qint64 byte, QDeadlineTimer deadline)
{
    while (!tryLock(m_file, byte)) {
        if (deadline.hasExpired())
            return false;
        QThread::usleep(kPauseUs);
    }
    return true;
}

/// A number whose byte is locked before anybody can draw the next; -1 at the deadline.
qint64 Turns::draw(QDeadlineTimer deadline)
{
    if (!open() || !lockSoon(kDrawing, deadline))
        return -1;
    qint64 number = 0;
    m_file.seek(0);
    if (m_file.read(reinterpret_cast<char *>(&number), sizeof number) != sizeof number)
        number = 0;
    const qint64 next = (number + 1) & (kSlots * kSlots - 1);
    m_file.seek(0);
    const bool drawn = m_file.write(reinterpret_cast<const char *>(&next), sizeof next) == sizeof next &&
                       tryLock(m_file, slotOf(number));
    unlock(m_file, kDrawing);
    return drawn ? number : -1;
}

Turns::Turn::Turn(Turns *turns, QDeadlineTimer deadline)
    : m_turns(turns)
    , m_number(turns ? turns->draw(deadline) : -1)
{
    if (m_number < 0)
        return;
    const qint64 before = slotOf(m_number - 1);
    if (m_turns->lockSoon(before, deadline))
        unlock(m_turns->m_file, before);
}

Turns::Turn::~Turn()
{
    if (m_number >= 0)
        unlock(m_turns->m_file, slotOf(m_number));
}

} // namespace ozm::audit
