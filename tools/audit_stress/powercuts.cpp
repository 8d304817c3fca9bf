// Cuts the power after each step of a program that appends: nothing it said was stored may be missing.

#include "PowerCutVfs.h"
#include "Stress.h"

#include <QTextStream>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace ozm::audit::stress {

namespace {

// The connection opened last: SQLite tells of each.
sqlite3 *lastOpened = nullptr;

int noteOpened(sqlite3 *handle, const char **, const sqlite3_api_routines *)
{
    lastOpened = handle;
    return SQLITE_OK;
}

/// Appends as an application does, with an end and a new beginning, and entries large and small.
int work(const QString &address, const QByteArray &synchronous, std::mt19937 &random)
{
    PowerCutDisk &disk = PowerCutDisk::instance();
    disk.files.clear();
    disk.steps.clear();
    for (int session = 0; session < 2; ++session) {
        auto store = Store::open(address);
        if (!store)
            return fail(store.error().errorMessage());
        if (!synchronous.isEmpty())
            sqlite3_exec(lastOpened, ("PRAGMA synchronous = " + synchronous).constData(), nullptr, nullptr,
                         nullptr);
        for (int i = 0; i < 12; ++i) {
            QList<Draft> drafts;
            for (auto n = random() % 3 + 1; n > 0; --n)
                drafts.append(draftOf(session, i, random() % 5 == 0 ? qsizetype(random() % 60'000) : 0));
            const auto first = store.value()->append(drafts);
            if (!first)
                return fail(first.error().errorMessage());
            disk.steps.push_back({DiskStep::Kind::Said, {}, first.value() + drafts.size() - 1, {}});
        }
        if (session == 0)
            (void)store.value()->makeCheckpoint();
    }
    return 0;
}

/// Counts a loss; a trail with nothing in it that was said may be anything that opens.
int check(const QString &address, const Files &files, qint64 said, const QString &where)
{
    PowerCutDisk &disk = PowerCutDisk::instance();
    disk.files = files;
    disk.steps.clear();
    const auto store = Store::open(address);
    if (!store)
        return fail(where + store.error().errorMessage());
    const auto verified = store.value()->verify();
    if (!verified || !verified.value().isWhole())
        return fail(where + (verified ? verified.value().toString() : verified.error().errorMessage()));
    if (verified.value().size < said)
        return fail(where +
                    u"%1 entries of %2 that were said to be stored"_s.arg(verified.value().size).arg(said));
    return 0;
}

} // namespace

int powerCuts(const Arguments &arguments)
{
    const int count = arguments.number(u"count"_s, 500);
    const QString sharing = arguments.text(u"sharing"_s);
    const QString address =
        u"sqlite:/trail.sqlite?vfs=powercut"_s + (sharing.isEmpty() ? QString() : u"&sharing="_s + sharing);
    const QByteArray synchronous = arguments.text(u"synchronous"_s).toLatin1();
    const bool losses = arguments.has(u"lose-syncs"_s) || !synchronous.isEmpty();
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(noteOpened));
    std::mt19937 random(std::uint32_t(arguments.number(u"seed"_s, 1)));
    int cuts = 0;
    int failures = 0;
    for (int round = 1; cuts < count; ++round) {
        PowerCutDisk::instance().losesSyncs = arguments.has(u"lose-syncs"_s);
        if (work(address, synchronous, random) != 0)
            return 1;
        PowerCutDisk::instance().losesSyncs = false;
        const std::vector<DiskStep> steps = std::exchange(PowerCutDisk::instance().steps, {});
        PowerCut cut;
        for (std::size_t i = 0; i < steps.size() && cuts < count; ++i) {
            cut.add(steps.at(i));
            for (int loss = 0; loss < int(Loss::Count) && cuts < count; ++loss, ++cuts) {
                failures += check(address, cut.after(Loss(loss), random), cut.said(),
                                  u"round %1, step %2, loss %3: "_s.arg(round).arg(i).arg(loss));
            }
        }
    }
    QTextStream(stdout) << cuts << " power cuts, " << failures << " failures" << Qt::endl;
    return losses ? (failures > 0 ? 0 : fail(u"the trial does not see losses"_s)) : failures;
}

} // namespace ozm::audit::stress
