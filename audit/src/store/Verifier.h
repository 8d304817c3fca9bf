#pragma once

#include "StoreBackend.h"

#include <ozm_audit/Verification.h>

#include <QHash>
#include <QList>

#include <optional>

namespace ozm::audit {

/**
 * Reads a trail once from beginning to end and says what is wrong with it.
 *
 * Two trees are built: one over the stored hashes, and from the first changed entry on another over the
 * bytes. Where either has the root of a checkpoint, the damage is in single entries; where neither has,
 * everything since the last good checkpoint may have been made anew.
 */
class Verifier
{
public:
    Verifier(StoreBackend &backend, const QList<Checkpoint> &outside, const PublicKey *key);

    /// Calls @p between after each page; what stands before the end of the trail may change during the call.
    [[nodiscard]] Result<Verification> run(const Progress &between);

private:
    struct Anchor
    {
        Checkpoint checkpoint;
        bool outside = true;
        std::optional<bool> matches; ///< Nothing where the tree could not be built.
    };

    void takeAnchors(const QList<Checkpoint> &checkpoints, bool outside);
    [[nodiscard]] Error readHead();
    [[nodiscard]] Error readRows(const Progress &between);
    [[nodiscard]] Error readLaterDisposals();
    void checkRow(const StoredRow &row);
    [[nodiscard]] std::optional<Damage> checkBytes(const StoredRow &row, const EntryMembers &members,
                                                   const Hash &computed, bool isEntry);
    void checkIndex(const StoredRow &row, const EntryMembers &members);
    void takeRecord(const StoredRow &row, const EntryMembers &members);
    void grow(const Hash &stored, const Hash &computed);
    void atSize();
    void judgeEnd();
    void judgeAnchors();
    void judgeHead();
    void judgeDisposals();
    void acknowledge();
    void find(Damage damage, qint64 first, qint64 last, const QString &text,
              const Checkpoint &checkpoint = {});

    StoreBackend &m_backend;
    const QList<Checkpoint> &m_outside;
    const PublicKey *m_key;
    const QByteArray m_trail;

    Verification m_result;
    StoredHead m_head;
    std::optional<bool> m_headMatches;
    qint64 m_lastRow = 0;
    qint64 m_end = 0; ///< The number up to which rows are to be there.
    qint64 m_next = 1;
    qint64 m_lastDamaged = 0; ///< The last entry that is itself damaged.
    Frontier m_stored;
    std::optional<Frontier> m_fromBytes;
    bool m_treeKnown = true;
    QList<Anchor> m_anchors; ///< By size.
    qsizetype m_nextAnchor = 0;
    QList<Range> m_disposals;
    struct Acknowledgement
    {
        qint64 number = 0;
        qint64 first = 0;
        qint64 last = 0;
        QByteArray root;
    };
    QList<Acknowledgement> m_acknowledgements;
};

/// The record of a re-anchor: what was found, and the tree from which the trail goes on.
[[nodiscard]] QByteArray reAnchorRecord(const Verification &verification, const Frontier &frontier);

} // namespace ozm::audit
