#pragma once

#include <ozm_audit/Checkpoint.h>
#include <ozm_audit/Entry.h>
#include <ozm_audit/Proof.h>
#include <ozm_audit/Query.h>
#include <ozm_audit/Verification.h>
#include <ozm_audit/ozm_audit_export.h>

#include <QDeadlineTimer>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <mutex>

namespace ozm::audit {

class StoreBackend;

/**
 * An audit trail on disk or on a server: entries are appended, read and verified, never changed.
 *
 *     auto opened = ozm::audit::Store::open(u"sqlite:/data/trail.sqlite"_s);
 *     if (!opened)
 *         return show(opened.error());
 *     ozm::audit::Logger logger(*opened.value(), {.user = {u"jdoe"_s, u"Jane Doe"_s, u"analyst"_s}});
 *     stack.setLogging(&logger);
 *
 * Addresses:
 *
 *   - "sqlite:/path/trail.sqlite": a file on a local disk, for one program at a time. The bare path will do.
 *     With "?sharing=processes" several programs on one machine may use it at once; each append then takes
 *     about three times as long.
 *   - "postgresql://user@host/database?trail=lab3": a trail that a lab shares (plug-in
 *     "ozm_audit_postgresql"). Passwords belong into the user's password file, and are never logged.
 *   - "memory:": for tests; gone with the store.
 *
 * Safe to use from several threads; calls wait for each other. Errors are texts for the user: FileAccess when
 * the store is locked, full, read-only, damaged, replaced or out of reach, NotAllowed when it is of a newer
 * form or on a file system that cannot be trusted with it. After an error nothing is stored; a disk that fails
 * once an entry is in a shared trail is the one exception, and its text says so.
 */
class OZM_AUDIT_EXPORT Store
{
public:
    /// How a trail is opened, and what becomes of one that is not there.
    enum class Mode
    {
        Use,      ///< Opens the trail, or makes a new one where there is none.
        Existing, ///< Opens a trail that has to be there.
        Create,   ///< Makes a new trail; there must be none.
        ReadOnly,
    };

    /// Opens the trail at @p address. BadParameter for an address that cannot be read, FileAccess when the
    /// trail cannot.
    [[nodiscard]] static Result<std::unique_ptr<Store>> open(const QString &address, Mode mode = Mode::Use);
    /// For back ends from elsewhere.
    explicit Store(std::unique_ptr<StoreBackend> backend);
    ~Store();
    Q_DISABLE_COPY_MOVE(Store)

    /// The name of the trail, unique in the world; checkpoints call it their origin.
    [[nodiscard]] QString trail() const;
    /// Where the trail is, in a form that may be shown and logged.
    [[nodiscard]] QString place() const;
    /// The number of the last entry.
    [[nodiscard]] Result<qint64> size() const;

    /// Stores @p drafts, all or none, and returns the number of the first once they are durable; the others
    /// follow it without a gap.
    [[nodiscard]] Result<qint64> append(const QList<Draft> &drafts);

    /// One page of entries.
    [[nodiscard]] Result<QList<Entry>> find(const Query &query) const;
    /// The numbers of one page of entries, which take much less time and room.
    [[nodiscard]] Result<QList<qint64>> findNumbers(const Query &query) const;
    /// BadParameter when there is no such entry.
    [[nodiscard]] Result<Entry> entry(qint64 number) const;
    /// Shows each entry from @p first to @p last in order, until @p show returns false.
    [[nodiscard]] Error forEach(qint64 first, qint64 last,
                                const std::function<bool(const Entry &)> &show) const;

    /// Waits until there may be entries after the one numbered @p known, written by anybody; false at the
    /// deadline. Others use the store meanwhile.
    [[nodiscard]] bool waitForEntries(qint64 known, QDeadlineTimer deadline) const;

    /// States the trail as it is now, signed by @p key unless that is null, and keeps a copy in the store.
    [[nodiscard]] Result<Checkpoint> makeCheckpoint(const SigningKey *key = nullptr);
    /// The copies kept in the store. They show damage by accident only: keep others outside.
    [[nodiscard]] Result<QList<Checkpoint>> keptCheckpoints() const;

    /**
     * Checks every entry, what is beside them, and all of it against @p outside, the checkpoints from outside
     * the store. With @p key, those that it did not sign are findings.
     *
     * An error says that the store could not be read, or that @p progress ended the work. Entries appended
     * meanwhile are not looked at; other threads use the store between pages.
     */
    [[nodiscard]] Result<Verification> verify(const QList<Checkpoint> &outside = {},
                                              const PublicKey *key = nullptr,
                                              const Progress &progress = {}) const;
    /// Records the findings of @p verification with @p draft, which says who and why, so that the trail goes
    /// on from what is there. Nothing is repaired. Returns the number of the entry.
    [[nodiscard]] Result<qint64> reAnchor(const Verification &verification, const Draft &draft);

    /// The proof that the entry is in the trail of @p checkpoint.
    [[nodiscard]] Result<Proof> proof(qint64 number, const Checkpoint &checkpoint) const;
    /// The proof that the trail of @p newer goes on from that of the first @p olderSize entries.
    [[nodiscard]] Result<QList<QByteArray>> consistencyProof(qint64 olderSize, qint64 newerSize) const;
    /// The root over the first @p size entries.
    [[nodiscard]] Result<QByteArray> root(qint64 size) const;

    /**
     * Removes the bytes of a range for good and keeps their hashes; of one entry it is a redaction.
     *
     * @p draft says who disposes and why; @p draft.authoriser must name another person. The range must not
     * hold entries that record disposals, re-anchors, redactions or archives.
     */
    [[nodiscard]] Result<qint64> dispose(Range range, Draft draft);

    /// For the parts of this library.
    [[nodiscard]] StoreBackend &backend() const;
    /// Keeps other threads from the store while the back end is used.
    [[nodiscard]] std::unique_lock<std::recursive_mutex> locked() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm::audit
