#include "../Texts.h"
#include "../tree/MerkleTree.h"

#include <ozm_audit/Checkpoint.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <openssl/evp.h>
#include <openssl/pem.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Context = std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)>;
using Bio = std::unique_ptr<BIO, decltype(&BIO_free)>;

constexpr qsizetype kKeySize = 32;
constexpr qsizetype kSignatureSize = 64;
constexpr qsizetype kHashSize = 4;
// Of the kinds of signatures in notes, Ed25519.
constexpr char kAlgorithm = 1;
constexpr auto kDash = "\xe2\x80\x94 ";
constexpr QByteArrayView kNameComment = "Name: ";

const unsigned char *raw(const QByteArray &bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData());
}

unsigned char *raw(QByteArray &bytes)
{
    return reinterpret_cast<unsigned char *>(bytes.data());
}

Key privateKey(const QByteArray &seed)
{
    return {EVP_PKEY_new_raw_private_key(EVP_PKEY_ED25519, nullptr, raw(seed), std::size_t(seed.size())),
            &EVP_PKEY_free};
}

Key publicKeyOf(const QByteArray &key)
{
    return {EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, raw(key), std::size_t(key.size())),
            &EVP_PKEY_free};
}

QByteArray pem(EVP_PKEY *key, bool secret)
{
    const Bio bio(BIO_new(BIO_s_mem()), &BIO_free);
    if (secret)
        PEM_write_bio_PrivateKey(bio.get(), key, nullptr, nullptr, 0, nullptr, nullptr);
    else
        PEM_write_bio_PUBKEY(bio.get(), key);
    char *data = nullptr;
    const long size = BIO_get_mem_data(bio.get(), &data);
    return {data, qsizetype(size)};
}

bool isName(const QString &name)
{
    return !name.isEmpty() && !name.contains(u'+') &&
           std::none_of(name.cbegin(), name.cend(), [](QChar c) { return c.isSpace(); });
}

/// Tells one key from another beside the same name.
QByteArray keyHash(const QString &name, const QByteArray &key)
{
    return sha256(name.toUtf8() + '\n' + kAlgorithm + key).left(kHashSize);
}

Error keyError(ErrorCode code, const QString &text)
{
    return Error(code, text).ecatch(OZM_HERE);
}

} // namespace

PublicKey::PublicKey(QString name, QByteArray key)
    : m_name(std::move(name))
    , m_key(std::move(key))
{}

Result<PublicKey> PublicKey::fromText(const QString &text)
{
    const QStringList parts = text.trimmed().split(u'+');
    // Base64 may hold a plus sign itself.
    const QByteArray key = QByteArray::fromBase64(parts.mid(2).join(u'+').toLatin1());
    if (parts.size() < 3 || !isName(parts.at(0)) || key.size() != kKeySize + 1 || key.at(0) != kAlgorithm ||
        keyHash(parts.at(0), key.sliced(1)).toHex() != parts.at(1).toLatin1()) {
        return keyError(ErrorCode::BadParameter,
                        Texts::tr("This is not the public key of a signer of checkpoints."));
    }
    return PublicKey(parts.at(0), key.sliced(1));
}

QString PublicKey::toText() const
{
    return m_name + u'+' + QString::fromLatin1(keyHash(m_name, m_key).toHex()) + u'+' +
           QString::fromLatin1((kAlgorithm + m_key).toBase64());
}

QByteArray PublicKey::toPem() const
{
    return pem(publicKeyOf(m_key).get(), false);
}

bool PublicKey::verifies(const QByteArray &note) const
{
    const qsizetype end = note.indexOf("\n\n");
    if (end < 0)
        return false;
    const QByteArray text = note.left(end + 1);
    const QByteArray begin = kDash + m_name.toUtf8() + ' ';
    const QList<QByteArray> lines = note.sliced(end + 2).split('\n');
    for (const QByteArray &line : lines) {
        const QByteArray signature =
            line.startsWith(begin) ? QByteArray::fromBase64(line.sliced(begin.size())) : QByteArray();
        if (signature.size() != kHashSize + kSignatureSize ||
            signature.left(kHashSize) != keyHash(m_name, m_key))
            continue;
        const Key key = publicKeyOf(m_key);
        const Context context(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
        return EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, key.get()) == 1 &&
               EVP_DigestVerify(context.get(), raw(signature) + kHashSize, kSignatureSize, raw(text),
                                std::size_t(text.size())) == 1;
    }
    return false;
}

SigningKey::SigningKey(QString name, QByteArray seed)
    : m_name(std::move(name))
    , m_seed(std::move(seed))
{}

Result<SigningKey> SigningKey::generate(const QString &name)
{
    if (!isName(name)) {
        return keyError(ErrorCode::BadParameter,
                        Texts::tr("\"%1\" cannot name a key: use letters, digits and points.").arg(name));
    }
    const Key key(EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519"), &EVP_PKEY_free);
    QByteArray seed(kKeySize, '\0');
    std::size_t size = kKeySize;
    if (!key || EVP_PKEY_get_raw_private_key(key.get(), raw(seed), &size) != 1)
        return keyError(ErrorCode::Failed, Texts::tr("No key could be made."));
    return SigningKey(name, seed);
}

Result<SigningKey> SigningKey::load(const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return keyError(ErrorCode::FileAccess,
                        Texts::tr("The key \"%1\" cannot be read: %2").arg(shown, file.errorString()));
    }
#ifdef Q_OS_UNIX
    constexpr auto kOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    if ((file.permissions() & kOthers) != 0) {
        return keyError(ErrorCode::NotAllowed,
                        Texts::tr("The key \"%1\" can be read or written by others than its "
                                  "owner. Take their rights away (chmod 600), and consider "
                                  "making a new key.")
                            .arg(shown));
    }
#endif
    const QByteArray text = file.readAll();
    const Bio bio(BIO_new_mem_buf(text.constData(), int(text.size())), &BIO_free);
    const Key key(PEM_read_bio_PrivateKey(bio.get(), nullptr, nullptr, nullptr), &EVP_PKEY_free);
    QByteArray seed(kKeySize, '\0');
    std::size_t size = kKeySize;
    const QString name = QString::fromUtf8(text.left(text.indexOf('\n')).mid(kNameComment.size()));
    if (!text.startsWith(kNameComment) || !isName(name) || !key ||
        EVP_PKEY_get_raw_private_key(key.get(), raw(seed), &size) != 1) {
        return keyError(ErrorCode::FileAccess,
                        Texts::tr("\"%1\" is not a key that signs checkpoints.").arg(shown));
    }
    return SigningKey(name, seed);
}

Error SigningKey::save(const QString &path) const
{
    const QByteArray text =
        kNameComment.toByteArray() + m_name.toUtf8() + '\n' + pem(privateKey(m_seed).get(), true);
    QFile file(path);
    constexpr auto kOwner = QFile::ReadOwner | QFile::WriteOwner;
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, kOwner) || file.write(text) != text.size() ||
        !file.flush()) {
        return keyError(ErrorCode::FileAccess, Texts::tr("The key \"%1\" cannot be written: %2")
                                                   .arg(QDir::toNativeSeparators(path), file.errorString()));
    }
    return {};
}

PublicKey SigningKey::publicKey() const
{
    QByteArray key(kKeySize, '\0');
    std::size_t size = kKeySize;
    EVP_PKEY_get_raw_public_key(privateKey(m_seed).get(), raw(key), &size);
    return {m_name, key};
}

Error SigningKey::sign(Checkpoint &checkpoint) const
{
    const QByteArray text = checkpoint.text();
    const Key key = privateKey(m_seed);
    const Context context(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    QByteArray signature(kSignatureSize, '\0');
    std::size_t size = kSignatureSize;
    if (EVP_DigestSignInit(context.get(), nullptr, nullptr, nullptr, key.get()) != 1 ||
        EVP_DigestSign(context.get(), raw(signature), &size, raw(text), std::size_t(text.size())) != 1) {
        return keyError(ErrorCode::Failed, Texts::tr("The checkpoint could not be signed."));
    }
    checkpoint.note.append(kDash + m_name.toUtf8() + ' ' +
                           (keyHash(m_name, publicKey().m_key) + signature).toBase64() + '\n');
    return {};
}

} // namespace ozm::audit
