#include "audit/SqlConnection.h"

#include <QCoreApplication>
#include <QDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <atomic>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

// Long enough for another program to finish a write, short enough for somebody who waits for a cell.
constexpr int kBusyTimeoutMs = 1000;

// SQLite's extended codes keep the plain one in their lowest byte.
constexpr int kPlainCode = 0xff;

struct Advice
{
    int sqliteCode;
    const char *text;
};

constexpr const char *kContext = "SqlConnection";

constexpr Advice kLocked{
    5,
    QT_TRANSLATE_NOOP("SqlConnection", "The audit trail \"%1\" is locked by another program. Nothing was "
                                       "changed. Wait a moment or close the other program, then try again.")};
constexpr Advice kReadOnly{
    8, QT_TRANSLATE_NOOP("SqlConnection", "The audit trail \"%1\" is read-only, so nothing can be recorded. "
                                          "Nothing was changed. Make the file and its folder writable, or "
                                          "start with another audit trail.")};
constexpr Advice kDamaged{
    11,
    QT_TRANSLATE_NOOP("SqlConnection", "The audit trail \"%1\" is damaged or is not an audit trail. Nothing "
                                       "was changed. Keep the file as it is and restore a copy, or start "
                                       "with another audit trail.")};
constexpr Advice kFull{
    13, QT_TRANSLATE_NOOP("SqlConnection", "The disk that holds the audit trail \"%1\" is full. Nothing was "
                                           "changed. Make room on the disk, then try again.")};
constexpr Advice kUnreachable{
    14, QT_TRANSLATE_NOOP("SqlConnection", "The audit trail \"%1\" cannot be opened. Nothing was changed. "
                                           "Check that its folder exists and that you may write there.")};
constexpr Advice kOther{
    0, QT_TRANSLATE_NOOP("SqlConnection", "The audit trail \"%1\" cannot be used. Nothing was changed. Check "
                                          "the disk that it is on.")};

Advice adviceFor(int sqliteCode)
{
    constexpr int kLockedTable = 6;
    constexpr int kNotADatabase = 26;
    if (sqliteCode == kLockedTable)
        return kLocked;
    if (sqliteCode == kNotADatabase)
        return kDamaged;
    for (const Advice &advice : {kLocked, kReadOnly, kDamaged, kFull, kUnreachable})
        if (advice.sqliteCode == sqliteCode)
            return advice;
    return kOther;
}

Error adviceError(const Advice &advice, const QString &path, const QString &detail)
{
    QString text = QCoreApplication::translate(kContext, advice.text).arg(QDir::toNativeSeparators(path));
    if (!detail.isEmpty())
        text += " ("_L1 + detail + u')';
    return Error(ErrorCode::FileAccess, text).ecatch(OZM_HERE);
}

QString nextName()
{
    static std::atomic<int> serial{0};
    return u"workbench-audit-%1"_s.arg(++serial);
}

/// A null text or byte array would be stored as NULL; a QVariant of it does not count as null.
QVariant stored(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString && value.toString().isNull())
        return u""_s;
    if (value.typeId() == QMetaType::QByteArray && value.toByteArray().isNull())
        return QByteArray("");
    return value;
}

} // namespace

Error damagedError(const QString &path, const QString &detail)
{
    return adviceError(kDamaged, path, detail);
}

SqlConnection::SqlConnection(const QString &path, Mode mode)
    : m_path(path)
    , m_name(nextName())
{
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_name);
    database.setDatabaseName(path);
    const QString timeout = u"QSQLITE_BUSY_TIMEOUT=%1"_s.arg(kBusyTimeoutMs);
    database.setConnectOptions(mode == Mode::ReadOnly ? timeout + ";QSQLITE_OPEN_READONLY"_L1 : timeout);
}

SqlConnection::~SqlConnection()
{
    QSqlDatabase::database(m_name, false).close();
    QSqlDatabase::removeDatabase(m_name);
}

ozm::Result<std::unique_ptr<SqlConnection>> SqlConnection::open(const QString &path, Mode mode)
{
    // Not make_unique: the constructor is private.
    std::unique_ptr<SqlConnection> connection(new SqlConnection(path, mode));
    QSqlDatabase database = QSqlDatabase::database(connection->m_name, false);
    if (!database.open())
        return connection->failure(database.lastError());
    return connection;
}

Error SqlConnection::run(const QString &sql, const QVariantList &values)
{
    return forEach(sql, values, [](const QSqlQuery &) {});
}

Error SqlConnection::forEach(const QString &sql, const QVariantList &values,
                             const std::function<void(const QSqlQuery &)> &row)
{
    QSqlQuery query(QSqlDatabase::database(m_name, false));
    query.setForwardOnly(true);
    if (!query.prepare(sql))
        return failure(query.lastError());
    for (const QVariant &value : values)
        query.addBindValue(stored(value));
    if (!query.exec())
        return failure(query.lastError());
    while (query.next())
        row(query);
    // A result can break off in the middle: at a damaged page, for one.
    return query.lastError().isValid() ? failure(query.lastError()) : Error();
}

ozm::Result<QVariant> SqlConnection::value(const QString &sql)
{
    QVariant first;
    Error error = forEach(sql, {}, [&first](const QSqlQuery &row) {
        if (!first.isValid())
            first = row.value(0);
    });
    if (error.hasError())
        return error;
    return first;
}

Error SqlConnection::failure(const QSqlError &error) const
{
    const int code = error.nativeErrorCode().toInt() & kPlainCode;
    return adviceError(adviceFor(code), m_path, error.databaseText());
}

} // namespace workbench
