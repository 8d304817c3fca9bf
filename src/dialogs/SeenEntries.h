#pragma once

#include <ozm_widgets/MsSample.h>

#include <QDateTime>
#include <QHash>
#include <QMutex>

namespace ozm {

/**
 * Keeps what the entries on disk hold that a dialog has looked at: one that has not changed since, by its times and
 * its size, is not looked at again. The times of a folder change with its own entries, not with those further down.
 *
 * Safe from any thread. Asking may take as long as a share does; the GUI thread leaves it to others.
 */
class SeenEntries
{
public:
    [[nodiscard]] msreader::MsSample sampleAt(const QString &path);

private:
    struct Stamp
    {
        QDateTime written;
        QDateTime changed;
        qint64 size = 0;
        bool operator==(const Stamp &) const = default;
    };
    struct Seen
    {
        Stamp stamp;
        msreader::MsSample sample;
    };

    [[nodiscard]] static Stamp stampOf(const QString &path);

    QMutex m_mutex;
    QHash<QString, Seen> m_entries;
};

} // namespace ozm
