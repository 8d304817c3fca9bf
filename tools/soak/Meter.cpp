#include "Meter.h"

#include <QApplication>
#include <QDir>
#include <QWidget>

#include <cmath>
#include <map>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace soak {

namespace {

constexpr double kPerActions = 10000;
constexpr double kWarmUp = 0.1;
// Fewer say nothing.
constexpr std::size_t kLeastReadings = 5;
constexpr double kNoLimit = -1;

struct QuantityRow
{
    QLatin1StringView name;
    double idleLimit; ///< Per 10,000 actions, between sessions.
    double openLimit; ///< The same within a session; none where the audit trail in memory is part of it.
};

// In the order of the enumeration. A dialog that is left over each time it opens makes hundreds of objects.
constexpr std::array<QuantityRow, kQuantities> kRows{{
    {"memory (kB)"_L1, 1024, kNoLimit},
    {"heap (kB)"_L1, 512, kNoLimit},
    {"handles"_L1, 2, 20},
    {"threads"_L1, 2, 20},
    {"widgets"_L1, 2, 200},
    {"objects"_L1, 10, 400},
}};

struct Line
{
    double slope = 0;
    double error = 0;
    std::size_t count = 0;
};

struct Point
{
    double x;
    double y;
};

Line fitLine(const std::vector<Point> &points)
{
    const auto count = static_cast<double>(points.size());
    Point mean{0, 0};
    for (const Point &point : points)
        mean = {mean.x + point.x / count, mean.y + point.y / count};
    double xx = 0;
    double xy = 0;
    for (const Point &point : points) {
        xx += (point.x - mean.x) * (point.x - mean.x);
        xy += (point.x - mean.x) * (point.y - mean.y);
    }
    Line line{.slope = xx > 0 ? xy / xx : 0, .count = points.size()};
    double rest = 0;
    for (const Point &point : points)
        rest += std::pow(point.y - mean.y - line.slope * (point.x - mean.x), 2);
    if (xx > 0 && points.size() > 2)
        line.error = std::sqrt(rest / (count - 2) / xx);
    return line;
}

/// The points of each session moved to their common mean, so that only what happens within sessions is left.
std::vector<Point> centred(const std::map<int, std::vector<Point>> &sessions)
{
    std::vector<Point> points;
    for (const auto &[session, own] : sessions) {
        Point mean{0, 0};
        for (const Point &point : own) {
            const auto count = static_cast<double>(own.size());
            mean = {mean.x + point.x / count, mean.y + point.y / count};
        }
        for (const Point &point : own)
            points.push_back({point.x - mean.x, point.y - mean.y});
    }
    return points;
}

qint64 entriesIn(const QString &folder)
{
    const QDir dir(folder);
    return dir.exists() ? dir.entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).size() : -1;
}

qint64 residentKb()
{
    // Linux only. Elsewhere a tool of the system has to watch the process.
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray text = status.readAll();
    const qsizetype at = text.indexOf("VmRSS:");
    return at < 0 ? -1 : text.mid(at + 6, text.indexOf("kB", at) - at - 6).trimmed().toLongLong();
}

qint64 heapKb()
{
#if defined(__GLIBC__) && (__GLIBC__ > 2 || __GLIBC_MINOR__ >= 33)
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>((info.uordblks + info.hblkhd) / 1024);
#else
    return -1;
#endif
}

qint64 liveObjects()
{
    qint64 count = qApp->findChildren<QObject *>().size();
    for (const QWidget *window : QApplication::topLevelWidgets())
        count += window->parent() ? 0 : 1 + window->findChildren<QObject *>().size();
    return count;
}

} // namespace

std::array<qint64, kQuantities> measure()
{
    return {residentKb(),
            heapKb(),
            entriesIn(u"/proc/self/fd"_s),
            entriesIn(u"/proc/self/task"_s),
            QApplication::allWidgets().size(),
            liveObjects()};
}

Meter::Meter(const QString &path)
    : m_file(path)
{
    if (!path.isEmpty() && m_file.open(QIODevice::WriteOnly))
        m_file.write("seconds,actions,session,windows,trail entries,resident kB,heap kB,handles,threads,"
                     "widgets,objects\n");
}

void Meter::take(const Reading &reading)
{
    m_readings.push_back(reading);
    if (!m_file.isOpen())
        return;
    QStringList cells{QString::number(reading.seconds, 'f', 1), QString::number(reading.actions),
                      QString::number(reading.session), reading.isIdle ? u"closed"_s : u"open"_s,
                      QString::number(reading.entries)};
    for (const qint64 value : reading.values)
        cells.append(value < 0 ? QString() : QString::number(value));
    m_file.write(cells.join(u',').toUtf8() + '\n');
    m_file.flush();
}

Meter::Verdict Meter::verdict() const
{
    Verdict verdict;
    const double begin = m_readings.empty() ? 0 : kWarmUp * m_readings.back().seconds;
    for (std::size_t which = 0; which < kQuantities; ++which) {
        std::vector<Point> idle;
        std::map<int, std::vector<Point>> open;
        for (const Reading &reading : m_readings) {
            const qint64 value = reading.values.at(which);
            if (reading.seconds < begin || value < 0)
                continue;
            const Point point{static_cast<double>(reading.actions) / kPerActions, static_cast<double>(value)};
            (reading.isIdle ? idle : open[reading.session]).push_back(point);
        }
        const QuantityRow &row = kRows.at(which);
        const auto judge = [&](const Line &line, double limit, const QString &where) {
            const bool isKnown = line.count >= kLeastReadings;
            const bool grew = isKnown && limit != kNoLimit && line.slope > qMax(limit, 2 * line.error);
            const QString of = limit == kNoLimit ? u"no limit"_s : u"limit %1"_s.arg(limit);
            verdict.lines.append(u"%1 %2 %3 ± %4 per 10,000 actions (%5, %6 readings) %7"_s.arg(
                QString(row.name).leftJustified(12), where,
                QString::number(line.slope, 'f', 1).rightJustified(10), QString::number(line.error, 'f', 1),
                of, QString::number(line.count),
                !isKnown ? u"not enough"_s
                : grew   ? u"GREW"_s
                         : u""_s));
            if (grew)
                verdict.grown.append(row.name + u' ' + where);
        };
        judge(fitLine(idle), row.idleLimit, u"between sessions"_s);
        judge(fitLine(centred(open)), row.openLimit, u"within a session"_s);
    }
    return verdict;
}

} // namespace soak
