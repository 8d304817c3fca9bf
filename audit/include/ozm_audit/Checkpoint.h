#pragma once

#include <ozm_audit/ozm_audit_export.h>
#include <ozm_common_stable/Result.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>

namespace ozm::audit {

/**
 * A statement of how long a trail is and of the hash over all of it, to be kept where those who can write to
 * the store cannot: another folder, a printout, a mailbox.
 *
 * Its text is a signed note (C2SP tlog-checkpoint): the trail, the number of entries, the root of their
 * RFC 6962 tree in Base64, an empty line, and one line for each signature. Without signatures it is worth as
 * much as the place where it is kept.
 */
struct OZM_AUDIT_EXPORT Checkpoint
{
    QString origin;  ///< The trail.
    qint64 size = 0; ///< How many entries the trail had.
    QByteArray root; ///< 32 bytes.
    QByteArray note; ///< The whole text, signatures and all.

    /// Without signatures.
    [[nodiscard]] static Checkpoint of(const QString &origin, qint64 size, const QByteArray &root);
    /// BadParameter when @p note is not a checkpoint.
    [[nodiscard]] static Result<Checkpoint> fromNote(const QByteArray &note);
    /// All checkpoints in the files of @p folder; files that hold none are passed over.
    [[nodiscard]] static Result<QList<Checkpoint>> inFolder(const QString &folder);

    /// The part of the note that is signed.
    [[nodiscard]] QByteArray text() const;
};

/// An Ed25519 key that checks the signatures of checkpoints. As text: "name+hash+key".
class OZM_AUDIT_EXPORT PublicKey
{
public:
    /// BadParameter when @p text is not a key.
    [[nodiscard]] static Result<PublicKey> fromText(const QString &text);

    /// As fromText() reads it.
    [[nodiscard]] QString toText() const;
    /// The name that signatures by this key carry.
    [[nodiscard]] QString name() const { return m_name; }
    /// For `openssl pkeyutl`.
    [[nodiscard]] QByteArray toPem() const;
    /// Tells whether @p note carries a signature of this key that is right.
    [[nodiscard]] bool verifies(const QByteArray &note) const;

private:
    friend class SigningKey;
    PublicKey(QString name, QByteArray key);

    QString m_name;
    QByteArray m_key;
};

/**
 * An Ed25519 key that signs checkpoints, kept in a file (PEM) that only its owner may read.
 *
 * Whoever has the key can sign another trail: keep it on a machine, or under an account, other than the
 * store's where that matters.
 */
class OZM_AUDIT_EXPORT SigningKey
{
public:
    /// @p name goes into each signature; without spaces and '+'.
    [[nodiscard]] static Result<SigningKey> generate(const QString &name);
    /// NotAllowed when anybody but the owner may read the file; FileAccess when it cannot be read.
    [[nodiscard]] static Result<SigningKey> load(const QString &path);
    /// Writes a new file that only its owner may read; FileAccess when there is one already.
    Error save(const QString &path) const;

    /// The half that checks signatures and may be given away.
    [[nodiscard]] PublicKey publicKey() const;
    /// Adds a signature to @p checkpoint.
    Error sign(Checkpoint &checkpoint) const;

private:
    SigningKey(QString name, QByteArray seed);

    QString m_name;
    QByteArray m_seed;
};

/// A place outside the store where checkpoints go. Called on the thread that writes the store.
class OZM_AUDIT_EXPORT CheckpointSink
{
public:
    virtual ~CheckpointSink();
    /// Keeps @p checkpoint where the store's own damage cannot reach it.
    virtual Error write(const Checkpoint &checkpoint) = 0;
};

/// One file for each checkpoint in @p folder, "<trail>-<size>.checkpoint"; a file is never written over.
[[nodiscard]] OZM_AUDIT_EXPORT std::unique_ptr<CheckpointSink> folderSink(const QString &folder);
/// Runs @p program with each checkpoint on its standard input; an exit code other than 0 is an error.
[[nodiscard]] OZM_AUDIT_EXPORT std::unique_ptr<CheckpointSink> commandSink(const QString &program,
                                                                           const QStringList &arguments = {});

} // namespace ozm::audit
