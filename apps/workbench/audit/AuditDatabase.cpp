#include "audit/AuditDatabase.h"

#include "audit/AuditSchema.h"
#include "audit/SqlConnection.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSqlQuery>

#include <array>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;
using ozm::OperationLogItemData;

namespace workbench {

namespace {

// In the order of AuditKind.
constexpr std::array kKinds{"command"_L1, "macro"_L1, "event"_L1, "commit"_L1};

QString kindText(AuditKind kind)
{
    return kKinds.at(static_cast<std::size_t>(kind));
}

AuditKind kindOf(const QString &text)
{
    std::size_t kind = 0;
    while (kind + 1 < kKinds.size() && text != kKinds.at(kind))
        ++kind;
    return static_cast<AuditKind>(kind);
}

Error outcomeOf(int code, const QString &text)
{
    return code == 0 ? Error() : Error(static_cast<ErrorCode>(code), text);
}

// The columns in the order of the statements below.
AuditRecord recordOf(const QSqlQuery &row)
{
    AuditRecord record;
    record.sequence = row.value(0).toLongLong();
    record.kind = kindOf(row.value(1).toString());
    record.item = row.value(2).toLongLong();
    record.parent = row.value(3).toLongLong();
    record.timeMs = row.value(4).toLongLong();
    record.utcOffset = row.value(5).toInt();
    record.user = row.value(6).toString();
    record.context = OperationLogItemData::stringToUndoContext(row.value(7).toString());
    record.outcome = outcomeOf(row.value(8).toInt(), row.value(9).toString());
    record.json = row.value(10).toByteArray();
    return record;
}

constexpr auto kSelect = "SELECT sequence, kind, item, parent, time_ms, utc_offset_s, user, undo_context, "
                         "outcome_code, outcome_text, record FROM audit_trail WHERE sequence > ? "
                         "ORDER BY sequence"_L1;

constexpr auto kInsert = "INSERT INTO audit_trail (sequence, kind, item, parent, time_ms, utc_offset_s, "
                         "user, undo_context, outcome_code, outcome_text, record) "
                         "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_L1;

constexpr auto kLastSequence =
    "SELECT coalesce(max(seq), 0) FROM sqlite_sequence WHERE name = 'audit_trail'"_L1;

} // namespace

AuditDatabase::AuditDatabase(std::unique_ptr<SqlConnection> connection)
    : m_connection(std::move(connection))
{}

AuditDatabase::~AuditDatabase() = default;

ozm::Result<std::unique_ptr<AuditDatabase>> AuditDatabase::open(const QString &path)
{
    // Absolute: the file is looked up again later, when the working folder may be another.
    auto connection = SqlConnection::open(QFileInfo(path).absoluteFilePath(), SqlConnection::Mode::ReadWrite);
    if (!connection)
        return connection.error();
    if (Error error = openAuditSchema(*connection.value()); error.hasError())
        return error;
    // Not make_unique: the constructor is private.
    return std::unique_ptr<AuditDatabase>(new AuditDatabase(std::move(connection).value()));
}

QString AuditDatabase::path() const
{
    return m_connection->path();
}

QString AuditDatabase::connectionName() const
{
    return m_connection->name();
}

ozm::Result<QList<AuditRecord>> AuditDatabase::recordsAfter(qint64 sequence)
{
    QList<AuditRecord> records;
    Error error = m_connection->forEach(kSelect, {sequence},
                                        [&records](const QSqlQuery &row) { records.append(recordOf(row)); });
    if (error.hasError())
        return error;
    return records;
}

ozm::Result<QList<AuditRecord>> AuditDatabase::append(QList<AuditRecord> records)
{
    // IMMEDIATE: the numbers that are read next stay free until they are used.
    Error error = m_connection->run(u"BEGIN IMMEDIATE"_s);
    if (error.hasError())
        return error;
    error = insertAll(records);
    if (!error.hasError())
        error = m_connection->run(u"COMMIT"_s);
    if (error.hasError()) {
        // Fails when SQLite has rolled back by itself, as it does on a full disk; nothing is lost by it.
        m_connection->run(u"ROLLBACK"_s);
        return error;
    }
    return records;
}

Error AuditDatabase::insertAll(QList<AuditRecord> &records)
{
    const auto last = m_connection->value(kLastSequence);
    if (!last)
        return last.error();
    const qint64 lastSequence = last.value().toLongLong();
    if (Error error = checkStillThere(lastSequence); error.hasError())
        return error;

    for (qsizetype i = 0; i < records.size(); ++i) {
        AuditRecord &record = records[i];
        record.sequence = lastSequence + 1 + i;
        if (record.item == 0)
            record.item = record.sequence;
        if (record.parent < 0)
            record.parent = records.at(-1 - record.parent).item;
        if (Error error = insert(record); error.hasError())
            return error;
    }
    return {};
}

Error AuditDatabase::insert(const AuditRecord &record)
{
    return m_connection->run(
        kInsert, {record.sequence, kindText(record.kind), record.item,
                  record.parent ? QVariant(record.parent) : QVariant(), record.timeMs, record.utcOffset,
                  record.user, OperationLogItemData::undoContextToString(record.context),
                  static_cast<int>(record.outcome.errorCode()), record.outcome.errorMessage(), record.json});
}

/// An open file can be deleted or replaced without the connection noticing; what is then written to it is
/// lost. A fresh look by path finds out.
Error AuditDatabase::checkStillThere(qint64 lastSequence) const
{
    auto fresh = SqlConnection::open(path(), SqlConnection::Mode::ReadOnly);
    if (!fresh)
        return fresh.error();
    if (Error error = checkAuditMark(*fresh.value()); error.hasError())
        return error;
    const auto last = fresh.value()->value(kLastSequence);
    if (!last)
        return last.error();
    if (last.value().toLongLong() != lastSequence) {
        return damagedError(path(), QCoreApplication::translate("AuditDatabase",
                                                                "the file was replaced while it was in use"));
    }
    return {};
}

} // namespace workbench
