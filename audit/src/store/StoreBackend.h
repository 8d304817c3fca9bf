#pragma once

#include "../entry/EntryForm.h"
#include "../tree/MerkleTree.h"

#include <ozm_audit/Query.h>
#include <ozm_audit/Store.h>

#include <QByteArray>
#include <QList>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace ozm::audit {

/// One entry as a back end holds it.
struct StoredRow
{
    qint64 number = 0;
    QByteArray hash;
    QByteArray bytes; ///< Empty when they were disposed of.
    std::optional<IndexRow> index;
};

/// The head as a back end holds it, damaged or not.
struct StoredHead
{
    qint64 size = 0;
    QByteArray frontier;
    qint64 indexed = 0; ///< Entries up to here have their columns.
};

/// An entry about to be stored: the claims, and the parent as Draft counts it.
struct NewEntry
{
    QByteArray id;
    QByteArray claims;
    qint64 parent = 0;
};

/// Says where a trail is and how it is to be opened.
struct OZM_AUDIT_EXPORT Address
{
    QString scheme;
    QString path; ///< Of a file.
    QUrl url;
    QString sharing;
    QString vfs; ///< Of SQLite; for tests.

    [[nodiscard]] static Result<Address> parse(const QString &text);
    /// Without a password.
    [[nodiscard]] QString shown() const;
};

/**
 * The work of one kind of store; Store does the rest. One call at a time.
 */
class StoreBackend
{
public:
    StoreBackend() = default;
    virtual ~StoreBackend() = default;
    Q_DISABLE_COPY_MOVE(StoreBackend)

    [[nodiscard]] virtual QString trail() const = 0;
    [[nodiscard]] virtual QString place() const = 0;

    /// True when nobody else can be writing.
    [[nodiscard]] virtual bool isExclusive() const { return false; }

    [[nodiscard]] virtual Result<StoredHead> head() = 0;
    /// All or none, durable on return; the number of the first. Ids stored already are found, not repeated.
    [[nodiscard]] virtual Result<qint64> append(const QList<NewEntry> &entries) = 0;
    /// Rows from @p first to @p last that exist, in order, until @p show returns false.
    [[nodiscard]] virtual Error rows(qint64 first, qint64 last,
                                     const std::function<bool(const StoredRow &)> &show) = 0;
    [[nodiscard]] virtual Result<QList<Entry>> find(const Query &query) = 0;
    /// The numbers of what find() gives, for less.
    [[nodiscard]] virtual Result<QList<qint64>> findNumbers(const Query &query)
    {
        const auto page = find(query);
        if (!page)
            return page.error();
        QList<qint64> numbers;
        for (const Entry &entry : page.value())
            numbers.append(entry.number);
        return numbers;
    }
    /// Kept hashes of a level, 0 for leaves; those that exist from a position on.
    [[nodiscard]] virtual Result<std::vector<Hash>> hashes(int level, qint64 first, qint64 count) = 0;
    /// False when @p row, which rows() shows at this moment, or its columns are not found by the number.
    [[nodiscard]] virtual bool isFound(const StoredRow & /*row*/) { return true; }
    /// Number of the last row, whatever the head says.
    [[nodiscard]] virtual Result<qint64> lastRow() = 0;

    /// Tells whether there may be entries after the one numbered @p known.
    [[nodiscard]] virtual Result<bool> hasChanged(qint64 known)
    {
        const auto last = head();
        if (!last)
            return last.error();
        return last.value().size > known;
    }

    virtual Error keepCheckpoint(const Checkpoint &checkpoint) = 0;
    [[nodiscard]] virtual Result<QList<Checkpoint>> keptCheckpoints() = 0;

    /// Puts the head right before a damage is recorded.
    virtual Error setHead(const Frontier &frontier) = 0;

    /// Appends @p record and removes the bytes and columns of @p range, as one.
    [[nodiscard]] virtual Result<qint64> dispose(Range range, const NewEntry &record) = 0;
};

/// The function that a plug-in with a back end exports, by the name "ozm_audit_open".
using OpenBackend = Result<std::unique_ptr<StoreBackend>> (*)(const Address &address, Store::Mode mode);

} // namespace ozm::audit
