#include "audit/DemonstrationAuthenticator.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QMessageAuthenticationCode>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

constexpr int kRounds = 200'000;
constexpr qint64 kMostBytes = 1 << 20;

enum Field
{
    Id,
    Name,
    Role,
    Salt,
    Key,
    FieldCount,
};

QString text(const char *source)
{
    return QCoreApplication::translate("workbench::DemonstrationAuthenticator", source);
}

/// PBKDF2 with HMAC-SHA-256, of one block.
QByteArray keyOf(const QByteArray &password, const QByteArray &salt)
{
    QMessageAuthenticationCode code(QCryptographicHash::Sha256, password);
    code.addData(salt + QByteArray("\0\0\0\1", 4));
    QByteArray block = code.result();
    QByteArray key = block;
    for (int round = 1; round < kRounds; ++round) {
        code.reset();
        code.addData(block);
        block = code.result();
        for (qsizetype i = 0; i < key.size(); ++i)
            key[i] = char(key.at(i) ^ block.at(i));
    }
    return key;
}

ozm::Error refused()
{
    return ozm::Error(ozm::ErrorCode::NotAllowed,
                      text(QT_TRANSLATE_NOOP("workbench::DemonstrationAuthenticator",
                                             "User id or password is wrong.")))
        .ecatch(OZM_HERE);
}

} // namespace

DemonstrationAuthenticator::DemonstrationAuthenticator(const QString &path)
    : m_path(path)
{}

ozm::Result<ozm::audit::Person> DemonstrationAuthenticator::authenticate(const QString &id,
                                                                         const QString &secret)
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        return ozm::Error(
                   ozm::ErrorCode::FileAccess,
                   text(QT_TRANSLATE_NOOP("workbench::DemonstrationAuthenticator",
                                          "The demonstration's signers cannot be read from \"%1\": %2"))
                       .arg(QDir::toNativeSeparators(m_path), file.errorString()))
            .ecatch(OZM_HERE);
    }
    const QStringList lines = QString::fromUtf8(file.read(kMostBytes)).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QStringList fields = line.trimmed().split(u':');
        if (fields.size() != FieldCount || fields.at(Id) != id)
            continue;
        const QByteArray key = keyOf(secret.toUtf8(), QByteArray::fromHex(fields.at(Salt).toLatin1()));
        if (key == QByteArray::fromHex(fields.at(Key).toLatin1()))
            return ozm::audit::Person{fields.at(Id), fields.at(Name), fields.at(Role)};
        return refused();
    }
    return refused();
}

} // namespace workbench
