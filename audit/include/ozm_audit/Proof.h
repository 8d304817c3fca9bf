#pragma once

#include <ozm_audit/Checkpoint.h>

#include <QByteArray>
#include <QList>

namespace ozm::audit {

/**
 * Lets one entry be checked alone, with nothing but its bytes and a checkpoint that one trusts.
 *
 *     const auto proof = ozm::audit::Proof::fromText(text);
 *     if (proof && proof.value().proves(bytes) && key.verifies(proof.value().checkpoint.note))
 *         accept(bytes);
 *
 * As text it is a C2SP tlog-proof.
 */
struct OZM_AUDIT_EXPORT Proof
{
    qint64 number = 0;        ///< Of the entry; one more than the leaf's index.
    QList<QByteArray> hashes; ///< The inclusion proof of RFC 6962.
    Checkpoint checkpoint;    ///< The checkpoint against which the proof holds.

    /// BadParameter when @p text is not a proof.
    [[nodiscard]] static Result<Proof> fromText(const QByteArray &text);
    /// As a file that other programs check (tlog-proof).
    [[nodiscard]] QByteArray toText() const;
    /// Tells whether the trail of the checkpoint holds @p bytes as the entry of this number.
    [[nodiscard]] bool proves(const QByteArray &bytes) const;
};

/// Tells whether the trail of @p newer goes on from that of @p older, by a consistency proof of RFC 6962.
[[nodiscard]] OZM_AUDIT_EXPORT bool provesConsistency(const QList<QByteArray> &hashes,
                                                      const Checkpoint &older, const Checkpoint &newer);

} // namespace ozm::audit
