#pragma once

#include <ozm_audit/Store.h>

#include <QString>

#include <optional>

namespace ozm::audit {

/// The content of an inspection copy, and who makes it.
struct CopyOptions
{
    Query query = {}; ///< Which entries; all of them when nothing narrows it.

    /// These entries, in ascending order, in place of those that the query finds: for a choice that is no query.
    std::optional<QList<Range>> ranges = {};
    QString choice = {};             ///< In words, why these: the entry about the copy and README hold it.
    Person user = {};                ///< Who makes the copy.
    QString reason = {};             ///< Why the copy is made; recorded with it.
    const SigningKey *key = nullptr; ///< Signs the checkpoint of the copy.
    bool archived = false;           ///< Records the copy as an archive instead of an export.
    Progress progress = {};          ///< Told of entries read and written; false cancels.
    QString verifier = {};           ///< The verifier in Python, copied along when it is there.
};

/**
 * Writes an inspection copy of @p store to the new folder @p folder: the entries byte for byte, checkpoints,
 * a proof for each entry of a filtered copy, and what a person reads: PDF, CSV, README. A name that ends with
 * ".zip" is a file that all of it is packed into.
 *
 *     trail.sqlite      a store like any other, for the whole of a trail
 *     entries.ndjson    number, hash, and the exact bytes in Base64, one entry a line
 *     proofs/           a tlog-proof for each entry, for a part of a trail
 *     checkpoints/      those kept in the store, and the one of this copy
 *     trail.csv, trail.pdf, README.txt, key.pub, key.pem, ozm_audit_verify.py
 *
 * The copy is itself an entry, made before it, and in it. A copy that fails or is cancelled is removed, and a
 * further entry says so. Memory does not grow with the trail. Runs on any thread; the store is free for others
 * most of the time. FileAccess when @p folder is there already or cannot be written. Needs a QGuiApplication for
 * the PDF, and leaves it out without one.
 */
[[nodiscard]] OZM_AUDIT_EXPORT Error writeInspectionCopy(Store &store, const QString &folder,
                                                         const CopyOptions &options);

/**
 * Appends the entries of a trail in the form that the workbench wrote before ("audit_trail" in SQLite), each
 * record byte for byte, after an entry that says which file they came from and its SHA-256: all of it, or nothing.
 * They are one append, whoever else writes, and are in memory until it ends. Returns how many rows there were.
 */
[[nodiscard]] OZM_AUDIT_EXPORT Result<qint64> importFormerTrail(Store &store, const QString &path,
                                                                const Draft &importedBy);

} // namespace ozm::audit
