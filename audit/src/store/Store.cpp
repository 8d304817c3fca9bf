#include "MemoryBackend.h"
#include "StoreBackend.h"
#include "Verifier.h"

#include "../Texts.h"
#include "../entry/LocalTime.h"
#include "../sqlite/SqliteBackend.h"
#include "PluginBackend.h"

#include <QThread>
#include <QUuid>

#include <algorithm>
#include <mutex>

using namespace Qt::StringLiterals;

namespace ozm::audit {

class Store::Private
{
public:
    explicit Private(std::unique_ptr<StoreBackend> made)
        : backend(std::move(made))
    {}

    [[nodiscard]] Result<Frontier> frontier();
    [[nodiscard]] ProofMaker proofs();
    [[nodiscard]] Error checkHead();

    std::unique_ptr<StoreBackend> backend;
    mutable std::recursive_mutex mutex;
    /// Set when the head does not follow from the entries: appending would hide it.
    Error damage;
};

namespace {

Draft completed(Draft draft)
{
    if (draft.id.isEmpty())
        draft.id = QUuid::createUuid().toByteArray(QUuid::Id128);
    if (draft.timeMs == 0) {
        draft.timeMs = QDateTime::currentMSecsSinceEpoch();
        const LocalTime local = LocalTime::at(draft.timeMs);
        draft.utcOffset = local.utcOffset;
        draft.zone = local.zone;
    }
    return draft;
}

NewEntry newEntry(const Draft &draft)
{
    const Draft whole = completed(draft);
    return {whole.id, claimsOf(whole), whole.parent};
}

Error badParameter(const QString &text)
{
    return Error(ErrorCode::BadParameter, text).ecatch(OZM_HERE);
}

} // namespace

Result<Frontier> Store::Private::frontier()
{
    const auto head = backend->head();
    if (!head)
        return head.error();
    const auto read = Frontier::fromBytes(head.value().size, head.value().frontier);
    if (!read)
        return Error(ErrorCode::FileAccess, Texts::tr("The head of the audit trail is damaged."))
            .ecatch(OZM_HERE);
    return *read;
}

ProofMaker Store::Private::proofs()
{
    return ProofMaker([this](int level, qint64 first, qint64 count) -> Result<std::vector<Hash>> {
        auto hashes = backend->hashes(level, first, count);
        if (hashes && hashes.value().size() != std::size_t(count))
            return badParameter(Texts::tr("The audit trail has no hash for each entry that was asked for."));
        return hashes;
    });
}

/// A head that the last entries do not lead to is found before anything is added to it.
Error Store::Private::checkHead()
{
    // In this order: what others store in between is counted by the head, and its rows are there.
    const auto last = backend->lastRow();
    const auto head = frontier();
    if (head && last && last.value() <= head.value().size()) {
        const auto root = proofs().root(head.value().size());
        if (root && root.value() == head.value().root())
            return {};
    }
    return Error(ErrorCode::NotAllowed,
                 Texts::tr(
                     "The audit trail \"%1\" is damaged: its last entries and its head do not fit together. "
                     "Nothing is recorded in it until it was verified and the damage is recorded.")
                     .arg(backend->place()))
        .ecatch(OZM_HERE);
}

Result<std::unique_ptr<Store>> Store::open(const QString &address, Mode mode)
{
    const auto where = Address::parse(address);
    if (!where)
        return where.error();
    const QString scheme = where.value().scheme;
    Result<std::unique_ptr<StoreBackend>> backend =
        scheme == "memory"_L1 ? Result<std::unique_ptr<StoreBackend>>(
                                    std::make_unique<MemoryBackend>(newTrailName(u"memory"_s)))
        : scheme == "sqlite"_L1 ? openSqlite(where.value(), mode)
                                : openByPlugin(where.value(), mode);
    if (!backend)
        return backend.error();
    auto store = std::make_unique<Store>(std::move(backend).value());
    if (mode != Mode::ReadOnly)
        store->d->damage = store->d->checkHead();
    return store;
}

Store::Store(std::unique_ptr<StoreBackend> backend)
    : d(std::make_unique<Private>(std::move(backend)))
{}

Store::~Store() = default;

QString Store::trail() const
{
    return d->backend->trail();
}

QString Store::place() const
{
    return d->backend->place();
}

StoreBackend &Store::backend() const
{
    return *d->backend;
}

std::unique_lock<std::recursive_mutex> Store::locked() const
{
    return std::unique_lock(d->mutex);
}

Result<qint64> Store::size() const
{
    const std::lock_guard lock(d->mutex);
    const auto head = d->backend->head();
    if (!head)
        return head.error();
    return head.value().size;
}

Result<qint64> Store::append(const QList<Draft> &drafts)
{
    if (drafts.isEmpty())
        return badParameter(Texts::tr("There is nothing to be recorded."));
    QList<NewEntry> entries;
    entries.reserve(drafts.size());
    std::ranges::transform(drafts, std::back_inserter(entries), newEntry);
    const std::lock_guard lock(d->mutex);
    if (d->damage.hasError())
        return d->damage;
    return d->backend->append(entries);
}

Result<QList<Entry>> Store::find(const Query &query) const
{
    const std::lock_guard lock(d->mutex);
    return d->backend->find(query);
}

Result<QList<qint64>> Store::findNumbers(const Query &query) const
{
    const std::lock_guard lock(d->mutex);
    return d->backend->findNumbers(query);
}

Result<Entry> Store::entry(qint64 number) const
{
    std::optional<Entry> found;
    Error error = forEach(number, number, [&found](const Entry &entry) {
        found = entry;
        return true;
    });
    if (error.hasError())
        return error;
    if (!found)
        return badParameter(Texts::tr("The audit trail has no entry %1.").arg(number));
    return *found;
}

Error Store::forEach(qint64 first, qint64 last, const std::function<bool(const Entry &)> &show) const
{
    // Read in pages, so that others need not wait for the end.
    constexpr qint64 kPage = 1000;
    bool more = true;
    for (qint64 begin = first; more && begin <= last; begin += kPage) {
        QList<Entry> page;
        {
            const std::lock_guard lock(d->mutex);
            Error error =
                d->backend->rows(begin, qMin(last, begin + kPage - 1), [&page](const StoredRow &row) {
                    auto read = Entry::fromBytes(row.bytes);
                    page.append(read ? std::move(read).value() : Entry());
                    page.last().number = row.number;
                    page.last().bytes = row.bytes;
                    return true;
                });
            if (error.hasError())
                return error;
            more = page.size() == kPage;
        }
        for (const Entry &entry : std::as_const(page)) {
            if (!show(entry))
                return {};
        }
    }
    return {};
}

bool Store::waitForEntries(qint64 known, QDeadlineTimer deadline) const
{
    // Soon enough for eyes, and next to no work for a server that tells of its own accord.
    constexpr unsigned long kPauseMs = 100;
    while (true) {
        {
            const std::lock_guard lock(d->mutex);
            const auto changed = d->backend->hasChanged(known);
            if (changed && changed.value())
                return true;
        }
        if (deadline.hasExpired())
            return false;
        QThread::msleep(kPauseMs);
    }
}

Result<Checkpoint> Store::makeCheckpoint(const SigningKey *key)
{
    const std::lock_guard lock(d->mutex);
    if (d->damage.hasError())
        return d->damage;
    const auto frontier = d->frontier();
    if (!frontier)
        return frontier.error();
    Checkpoint checkpoint =
        Checkpoint::of(trail(), frontier.value().size(), toBytes(frontier.value().root()));
    if (key) {
        if (Error error = key->sign(checkpoint); error.hasError())
            return error;
    }
    if (Error error = d->backend->keepCheckpoint(checkpoint); error.hasError())
        return error;
    return checkpoint;
}

Result<QList<Checkpoint>> Store::keptCheckpoints() const
{
    const std::lock_guard lock(d->mutex);
    return d->backend->keptCheckpoints();
}

Result<Verification> Store::verify(const QList<Checkpoint> &outside, const PublicKey *key,
                                   const Progress &progress) const
{
    auto lock = locked();
    return Verifier(*d->backend, outside, key).run([&lock, &progress](qint64 done, qint64 total) {
        lock.unlock();
        const bool goOn = !progress || progress(done, total);
        lock.lock();
        return goOn;
    });
}

Result<qint64> Store::reAnchor(const Verification &verification, const Draft &draft)
{
    const std::lock_guard lock(d->mutex);
    if (verification.isWhole())
        return badParameter(Texts::tr("The audit trail is whole: there is nothing to be recorded."));
    if (draft.reason.isEmpty() || draft.user.id.isEmpty())
        return badParameter(Texts::tr("Say who records the damage, and why the trail goes on."));
    auto frontier = d->frontier();
    const auto last = d->backend->lastRow();
    if (!last)
        return last.error();
    if (!frontier || frontier.value().size() < last.value()) {
        // The head itself is damaged: it follows from the stored hashes, if all of them are there.
        Frontier rebuilt;
        Error error = d->backend->rows(1, last.value(), [&rebuilt](const StoredRow &row) {
            rebuilt.append(toHash(row.hash).value_or(Hash()));
            return true;
        });
        if (!error.hasError() && rebuilt.size() != last.value())
            error = Error(ErrorCode::Failed,
                          Texts::tr("Head and entries are both damaged. Restore a copy of the trail."));
        if (!error.hasError())
            error = d->backend->setHead(rebuilt);
        if (error.hasError())
            return error;
        frontier = rebuilt;
    }
    Draft whole = draft;
    whole.kind = Kind::ReAnchor;
    whole.record = reAnchorRecord(verification, frontier.value());
    auto number = d->backend->append({newEntry(whole)});
    if (number)
        d->damage = {};
    return number;
}

Result<Proof> Store::proof(qint64 number, const Checkpoint &checkpoint) const
{
    const std::lock_guard lock(d->mutex);
    if (number < 1 || number > checkpoint.size)
        return badParameter(Texts::tr("The checkpoint does not count entry %1.").arg(number));
    auto hashes = d->proofs().inclusion(number - 1, checkpoint.size);
    if (!hashes)
        return hashes.error();
    return Proof{number, std::move(hashes).value(), checkpoint};
}

Result<QList<QByteArray>> Store::consistencyProof(qint64 olderSize, qint64 newerSize) const
{
    const std::lock_guard lock(d->mutex);
    if (olderSize < 0 || olderSize > newerSize)
        return badParameter(Texts::tr("The older checkpoint must count fewer entries."));
    return d->proofs().consistency(olderSize, newerSize);
}

Result<QByteArray> Store::root(qint64 size) const
{
    const std::lock_guard lock(d->mutex);
    const auto root = d->proofs().root(size);
    if (!root)
        return root.error();
    return toBytes(root.value());
}

Result<qint64> Store::dispose(Range range, Draft draft)
{
    const std::lock_guard lock(d->mutex);
    if (d->damage.hasError())
        return d->damage;
    if (draft.user.id.isEmpty() || draft.authoriser.isEmpty() || draft.authoriser == draft.user.id)
        return Error(ErrorCode::NotAllowed,
                     Texts::tr("Two different people must be named: who disposes, and who authorises it."));
    if (draft.reason.isEmpty())
        return Error(ErrorCode::NotAllowed, Texts::tr("Say why the entries are disposed of."));
    const auto size = this->size();
    if (!size || range.first < 1 || range.last < range.first || range.last > size.value())
        return badParameter(Texts::tr("There are no such entries to be disposed of."));
    bool evidence = false;
    Error error = forEach(range.first, range.last, [&evidence](const Entry &entry) {
        evidence = evidence || entry.kind == Kind::Disposal || entry.kind == Kind::Redaction ||
                   entry.kind == Kind::ReAnchor || entry.kind == Kind::Archive;
        return !evidence;
    });
    if (error.hasError())
        return error;
    if (evidence)
        return Error(ErrorCode::NotAllowed,
                     Texts::tr("Entries that record disposals, archives and damages stay."));
    draft.kind = range.first == range.last ? Kind::Redaction : Kind::Disposal;
    draft.record =
        "{\"first\":" + QByteArray::number(range.first) + ",\"last\":" + QByteArray::number(range.last) + '}';
    return d->backend->dispose(range, newEntry(draft));
}

} // namespace ozm::audit
