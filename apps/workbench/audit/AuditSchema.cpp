#include "audit/AuditSchema.h"

#include "audit/SqlConnection.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

// "OZMW": tells an audit trail from other SQLite files.
constexpr int kApplicationId = 0x4F5A4D57;
constexpr int kVersion = 1;

// The table, its index and its three triggers.
constexpr int kObjects = 5;

QString translated(const char *text)
{
    return QCoreApplication::translate("AuditSchema", text);
}

QStringList schema()
{
    return {
        u"CREATE TABLE audit_trail ("
        "sequence INTEGER PRIMARY KEY AUTOINCREMENT, "
        "kind TEXT NOT NULL CHECK (kind IN ('command', 'macro', 'event', 'commit')), "
        "item INTEGER NOT NULL, "
        "parent INTEGER, "
        "time_ms INTEGER NOT NULL, "
        "utc_offset_s INTEGER NOT NULL, "
        "user TEXT NOT NULL, "
        "undo_context TEXT NOT NULL, "
        "outcome_code INTEGER NOT NULL, "
        "outcome_text TEXT NOT NULL, "
        "record BLOB NOT NULL)"_s,
        u"CREATE INDEX audit_trail_item ON audit_trail (item)"_s,
        u"CREATE TRIGGER audit_trail_no_update BEFORE UPDATE ON audit_trail "
        "BEGIN SELECT RAISE(ABORT, 'audit records cannot be changed'); END"_s,
        u"CREATE TRIGGER audit_trail_no_delete BEFORE DELETE ON audit_trail "
        "BEGIN SELECT RAISE(ABORT, 'audit records cannot be deleted'); END"_s,
        // INSERT OR REPLACE takes the row that is in its way without asking the trigger for deletions.
        u"CREATE TRIGGER audit_trail_no_replace BEFORE INSERT ON audit_trail "
        "WHEN EXISTS (SELECT 1 FROM audit_trail WHERE sequence = NEW.sequence) "
        "BEGIN SELECT RAISE(ABORT, 'audit records cannot be replaced'); END"_s,
        u"PRAGMA application_id = %1"_s.arg(kApplicationId),
        u"PRAGMA user_version = %1"_s.arg(kVersion),
    };
}

ozm::Result<bool> isEmpty(SqlConnection &connection)
{
    const auto objects = connection.value(u"SELECT count(*) FROM sqlite_master"_s);
    const auto mark = connection.value(u"PRAGMA application_id"_s);
    if (objects.hasError() || mark.hasError())
        return objects.hasError() ? objects.error() : mark.error();
    return objects.value().toInt() == 0 && mark.value().toInt() == 0;
}

Error runAll(SqlConnection &connection, const QStringList &statements)
{
    for (const QString &statement : statements)
        if (Error error = connection.run(statement); error.hasError())
            return error;
    return {};
}

/// Two programs may start on one new file: who comes second finds it filled once the lock is his.
Error createIfStillEmpty(SqlConnection &connection)
{
    const auto empty = isEmpty(connection);
    if (!empty || !empty.value())
        return empty.hasError() ? empty.error() : Error();
    return runAll(connection, schema());
}

Error createSchema(SqlConnection &connection)
{
    Error error = connection.run(u"BEGIN IMMEDIATE"_s);
    if (error.hasError())
        return error;
    error = createIfStillEmpty(connection);
    if (!error.hasError())
        error = connection.run(u"COMMIT"_s);
    if (error.hasError())
        connection.run(u"ROLLBACK"_s);
    return error;
}

Error checkGuards(SqlConnection &connection)
{
    const auto objects =
        connection.value(u"SELECT count(*) FROM sqlite_master WHERE name LIKE 'audit_trail%'"_s);
    if (!objects)
        return objects.error();
    if (objects.value().toInt() != kObjects)
        return damagedError(connection.path(), translated("its table is not guarded against changes"));
    return {};
}

Error checkPages(SqlConnection &connection)
{
    const auto found = connection.value(u"PRAGMA quick_check(1)"_s);
    if (!found)
        return found.error();
    if (found.value().toString() != "ok"_L1)
        return damagedError(connection.path(), found.value().toString());
    return {};
}

} // namespace

Error checkAuditMark(SqlConnection &connection)
{
    const auto mark = connection.value(u"PRAGMA application_id"_s);
    if (!mark)
        return mark.error();
    const QString shown = QDir::toNativeSeparators(connection.path());
    if (mark.value().toInt() != kApplicationId) {
        return Error(ErrorCode::FileAccess,
                     translated("\"%1\" is a database, but no audit trail. Choose another file.").arg(shown))
            .ecatch(OZM_HERE);
    }
    const auto version = connection.value(u"PRAGMA user_version"_s);
    if (!version)
        return version.error();
    if (version.value().toInt() > kVersion) {
        return Error(ErrorCode::FileAccess,
                     translated("The audit trail \"%1\" was written by a newer version of this program (form "
                                "%2; this version knows form %3). Use the newer version.")
                         .arg(shown)
                         .arg(version.value().toInt())
                         .arg(kVersion))
            .ecatch(OZM_HERE);
    }
    return {};
}

Error openAuditSchema(SqlConnection &connection)
{
    const auto empty = isEmpty(connection);
    if (!empty)
        return empty.error();
    if (empty.value()) {
        if (Error error = createSchema(connection); error.hasError())
            return error;
    }
    for (const auto check : {checkAuditMark, checkPages, checkGuards})
        if (Error error = check(connection); error.hasError())
            return error;
    // After the table is made, so that the marks are in the file itself and not in a log beside it. Where
    // the file system cannot do it, the older kind of journal stays, which is as safe.
    return runAll(connection, {u"PRAGMA journal_mode = WAL"_s, u"PRAGMA synchronous = FULL"_s});
}

} // namespace workbench
