#pragma once

#include <QByteArray>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace ozm::audit::stress {

/// The files of a disk in memory, by path.
using Files = std::map<std::string, QByteArray>;

/// Something that a program did to the disk, in order.
struct DiskStep
{
    enum class Kind
    {
        Write,
        Truncate,
        Sync, ///< What was done to the file before is durable.
        Create,
        Remove,
        SyncFolder, ///< Created and removed names are durable.
        Said,       ///< The program said that the entry of the number `offset` is stored.
    };
    Kind kind;
    std::string file;
    qint64 offset = 0; ///< Also the size, for Truncate.
    QByteArray bytes;
};

/// How much of what was not synced reaches the disk when the power goes.
enum class Loss
{
    Nothing,  ///< All of it got there in time.
    All,      ///< Only what was synced is there.
    Sectors,  ///< Any sectors, in any order.
    TornLast, ///< All but the end of the last write, whose sector is half old and half new.
    Count,
};

/**
 * A file system for SQLite, named "powercut", that lives in memory and keeps a list of all that is done to it.
 */
class PowerCutDisk
{
public:
    /// The one that the VFS uses; registers it.
    static PowerCutDisk &instance();

    Files files;
    std::vector<DiskStep> steps;
    /// Drops syncs, as hardware that lies does.
    bool losesSyncs = false;
};

/// Replays steps and says what is on the disk when the power goes after them.
class PowerCut
{
public:
    void add(const DiskStep &step);
    [[nodiscard]] Files after(Loss loss, std::mt19937 &random) const;
    [[nodiscard]] qint64 said() const { return m_said; }

private:
    struct Name
    {
        std::string file;
        bool created = false;
        QByteArray before; ///< Of a removed file.
    };

    Files m_durable;
    std::vector<DiskStep> m_pending;
    std::vector<Name> m_names;
    qint64 m_said = 0;
};

} // namespace ozm::audit::stress
