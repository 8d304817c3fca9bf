#pragma once

#include <ozm_audit/Store.h>
#include <ozm_audit_widgets/NumberSet.h>

#include <QStringList>

namespace ozm::audit {

/**
 * Entries as they are about to be signed: which, about what, and the hashes that bind the signature to them.
 *
 *     const auto content = ozm::audit::SignedContent::of(*store, entries);
 *     const Draft draft = content.value().signature(signer, u"Approved"_s, {u"id"_s, u"password"_s});
 *     error = logger.record(draft);
 *
 * The hashes are the leaf hashes of the trail's tree, so that a signature cannot be moved to other entries; the
 * digest is the SHA-256 of them one after the other.
 */
struct OZM_AUDIT_WIDGETS_EXPORT SignedContent
{
    NumberSet entries;        ///< The numbers of the entries that are signed.
    QStringList subjects;     ///< Type, line feed, key.
    QList<QByteArray> leaves; ///< The leaf hash of each entry, 32 bytes, in the order of the numbers.
    QByteArray digest;        ///< The SHA-256 of the leaves, which stands in the signature.

    /// NotAllowed for more than 10,000 entries, or one whose content was disposed of.
    [[nodiscard]] static Result<SignedContent> of(const Store &store, const NumberSet &entries);

    /// How many entries, which, and about what.
    [[nodiscard]] QString inWords() const;
    /// The entry that records the signature of @p signer, ready for Logger::record().
    [[nodiscard]] Draft signature(const Person &signer, const QString &meaning,
                                  const QStringList &components) const;
};

/// No error when what @p signature signs is in @p store as it was signed.
[[nodiscard]] OZM_AUDIT_WIDGETS_EXPORT Error checkSignature(const Store &store, const Entry &signature);

/// The block that is shown wherever a signature is: meaning, printed name, and time with its zone.
[[nodiscard]] OZM_AUDIT_WIDGETS_EXPORT QString signatureText(const Entry &signature);

/// The signatures over entries about a subject, newest last.
[[nodiscard]] OZM_AUDIT_WIDGETS_EXPORT Result<QList<Entry>>
signaturesOf(const Store &store, const QString &subjectType, const QString &subjectKey);

} // namespace ozm::audit
