#pragma once

#include "audit/AuditRecord.h"

#include <ozm_common_stable/Result.h>

#include <QList>

#include <memory>

namespace workbench {

class SqlConnection;

/**
 * The audit trail on disk: an SQLite file with one table to which rows can only be added.
 *
 *     auto opened = AuditDatabase::open(path);
 *     if (!opened)
 *         return report(opened.error());
 *     auto stored = opened.value()->append({record}); // on the disk once this returns
 *
 * Several programs may use one file at a time: each append is a transaction that takes its numbers while it
 * holds the file's write lock. Errors are texts for the user, code FileAccess. One thread.
 */
class AuditDatabase
{
public:
    /// Opens the trail at @p path, or makes a new one there. An existing file is checked first.
    [[nodiscard]] static ozm::Result<std::unique_ptr<AuditDatabase>> open(const QString &path);
    ~AuditDatabase();
    Q_DISABLE_COPY_MOVE(AuditDatabase)

    [[nodiscard]] QString path() const;
    /// The connection's name in QSqlDatabase.
    [[nodiscard]] QString connectionName() const;

    /// All rows after the one numbered @p sequence, in order.
    [[nodiscard]] ozm::Result<QList<AuditRecord>> recordsAfter(qint64 sequence);

    /// Adds @p records, all of them or none, and returns them with their numbers once they are on the disk.
    [[nodiscard]] ozm::Result<QList<AuditRecord>> append(QList<AuditRecord> records);

private:
    explicit AuditDatabase(std::unique_ptr<SqlConnection> connection);

    [[nodiscard]] ozm::Error insertAll(QList<AuditRecord> &records);
    [[nodiscard]] ozm::Error insert(const AuditRecord &record);
    [[nodiscard]] ozm::Error checkStillThere(qint64 lastSequence) const;

    const std::unique_ptr<SqlConnection> m_connection;
};

} // namespace workbench
