#pragma once

#include "StoreBackend.h"

namespace ozm::audit {

/// A trail that ends with the program: for tests, and to show what a back end is.
class OZM_AUDIT_EXPORT MemoryBackend : public StoreBackend
{
public:
    explicit MemoryBackend(const QString &trail);

    [[nodiscard]] QString trail() const override { return m_trail; }
    [[nodiscard]] QString place() const override;
    [[nodiscard]] bool isExclusive() const override { return true; }
    [[nodiscard]] Result<StoredHead> head() override;
    [[nodiscard]] Result<qint64> append(const QList<NewEntry> &entries) override;
    [[nodiscard]] Error rows(qint64 first, qint64 last,
                             const std::function<bool(const StoredRow &)> &show) override;
    [[nodiscard]] Result<QList<Entry>> find(const Query &query) override;
    [[nodiscard]] Result<std::vector<Hash>> hashes(int level, qint64 first, qint64 count) override;
    [[nodiscard]] Result<qint64> lastRow() override { return m_rows.size(); }
    Error keepCheckpoint(const Checkpoint &checkpoint) override;
    [[nodiscard]] Result<QList<Checkpoint>> keptCheckpoints() override { return m_checkpoints; }
    Error setHead(const Frontier &frontier) override;
    [[nodiscard]] Result<qint64> dispose(Range range, const NewEntry &record) override;

private:
    const QString m_trail;
    QList<StoredRow> m_rows;
    QList<std::vector<Hash>> m_subtrees;
    QList<Checkpoint> m_checkpoints;
    Frontier m_frontier;
};

/// One page of the rows between two numbers that answer @p query, read one after the other.
[[nodiscard]] Result<QList<Entry>> findByReading(StoreBackend &backend, const Query &query, qint64 first,
                                                 qint64 last);

/// The name of a new trail: @p name, and digits that no other trail has.
[[nodiscard]] OZM_AUDIT_EXPORT QString newTrailName(const QString &name);

} // namespace ozm::audit
