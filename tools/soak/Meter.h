#pragma once

#include <QFile>
#include <QStringList>

#include <array>
#include <optional>
#include <vector>

namespace soak {

/// Quantities that are to stay as they are, however long the program runs.
enum class Quantity
{
    Memory, ///< Resident, in kB.
    Heap,   ///< Asked for and not given back, in kB.
    Handles,
    Threads,
    Widgets,
    Objects, ///< QObjects below windows and the application.
};
constexpr std::size_t kQuantities = 6;

/// One moment of the run; a quantity that the system does not tell is negative.
struct Reading
{
    double seconds = 0;
    qint64 actions = 0;
    int session = 0;
    bool isIdle = false; ///< Taken between two sessions, with every window closed.
    qint64 entries = 0;  ///< Of the session's audit trail, whose copy in memory grows with it.
    std::array<qint64, kQuantities> values = {};
};

[[nodiscard]] std::array<qint64, kQuantities> measure();

/**
 * Keeps the readings of a run, in a CSV file too, and says in the end which quantities grew.
 *
 * The first tenth is warm-up. Of the rest, readings between sessions show what outlives its windows, and readings
 * within sessions, each against the mean of its own session, what piles up in an open window. A quantity grew when
 * its least-squares slope is above its limit and above two standard errors.
 */
class Meter
{
public:
    /// No file for an empty @p path.
    explicit Meter(const QString &path);

    [[nodiscard]] bool isOpen() const { return m_file.fileName().isEmpty() || m_file.isOpen(); }
    void take(const Reading &reading);

    /// A line for each quantity, and the names of those that grew.
    struct Verdict
    {
        QStringList lines;
        QStringList grown;
    };
    [[nodiscard]] Verdict verdict() const;

private:
    QFile m_file;
    std::vector<Reading> m_readings;
};

} // namespace soak
