#include "SqliteSchema.h"

#include "../Texts.h"
#include "Database.h"

#include <QDir>

namespace ozm::audit {

namespace {

// "OZAU": tells a store from other SQLite files.
constexpr int kApplicationId = 0x4F5A4155;
// "OZMW": the workbench's former trail.
constexpr int kFormerApplicationId = 0x4F5A4D57;

constexpr const char *kSchema = R"(
CREATE TABLE head(
    id INTEGER PRIMARY KEY CHECK (id = 1),
    trail TEXT NOT NULL,
    size INTEGER NOT NULL,
    frontier BLOB NOT NULL,
    indexed INTEGER NOT NULL) STRICT;
CREATE TABLE entry(
    number INTEGER PRIMARY KEY,
    hash BLOB NOT NULL,
    bytes BLOB) STRICT;
CREATE TABLE entry_index(
    number INTEGER PRIMARY KEY,
    time_ms INTEGER NOT NULL,
    kind TEXT NOT NULL,
    user TEXT NOT NULL,
    outcome INTEGER NOT NULL,
    parent INTEGER NOT NULL,
    subject TEXT NOT NULL,
    attributes TEXT NOT NULL) STRICT;
CREATE INDEX entry_index_time ON entry_index(time_ms);
CREATE INDEX entry_index_kind ON entry_index(kind);
CREATE INDEX entry_index_user ON entry_index(user);
CREATE INDEX entry_index_subject ON entry_index(subject);
CREATE TABLE subtree(
    level INTEGER NOT NULL,
    position INTEGER NOT NULL,
    hash BLOB NOT NULL,
    PRIMARY KEY (level, position)) STRICT, WITHOUT ROWID;
CREATE TABLE checkpoint(
    id INTEGER PRIMARY KEY,
    size INTEGER NOT NULL,
    note BLOB NOT NULL) STRICT;
CREATE TABLE disposal(first INTEGER NOT NULL, last INTEGER NOT NULL, number INTEGER NOT NULL) STRICT;

CREATE TRIGGER entry_no_delete BEFORE DELETE ON entry
BEGIN SELECT RAISE(ABORT, 'audit entries cannot be deleted'); END;
CREATE TRIGGER entry_no_update BEFORE UPDATE ON entry
WHEN NEW.bytes IS NOT NULL OR NEW.hash IS NOT OLD.hash OR NEW.number IS NOT OLD.number
    OR NOT EXISTS (SELECT 1 FROM disposal WHERE OLD.number BETWEEN first AND last)
BEGIN SELECT RAISE(ABORT, 'audit entries cannot be changed'); END;
CREATE TRIGGER entry_no_replace BEFORE INSERT ON entry
WHEN EXISTS (SELECT 1 FROM entry WHERE number = NEW.number)
BEGIN SELECT RAISE(ABORT, 'audit entries cannot be replaced'); END;
CREATE TRIGGER checkpoint_no_update BEFORE UPDATE ON checkpoint
BEGIN SELECT RAISE(ABORT, 'checkpoints cannot be changed'); END;
CREATE TRIGGER checkpoint_no_delete BEFORE DELETE ON checkpoint
BEGIN SELECT RAISE(ABORT, 'checkpoints cannot be deleted'); END;
)";
constexpr int kTriggers = 5;

Error notAllowed(const QString &text)
{
    return Error(ErrorCode::NotAllowed, text).ecatch(OZM_HERE);
}

} // namespace

Result<bool> isEmptyStore(Database &database)
{
    const auto mark = database.number("PRAGMA application_id");
    if (!mark)
        return mark.error();
    const auto version = database.number("PRAGMA user_version");
    if (!version)
        return version.error();
    const auto objects = database.number("SELECT count(*) FROM sqlite_schema");
    if (!objects)
        return objects.error();
    if (mark.value() == 0 && objects.value() == 0)
        return true;
    const QString shown = QDir::toNativeSeparators(database.path());
    if (mark.value() == kFormerApplicationId) {
        return notAllowed(
            Texts::tr("\"%1\" is an audit trail in the form of earlier versions. Import it into a new "
                      "trail: ozm-audit import TRAIL FILE.")
                .arg(shown));
    }
    if (mark.value() != kApplicationId)
        return notAllowed(
            Texts::tr("\"%1\" is a database of something else. Choose another file.").arg(shown));
    if (version.value() > kSqliteForm) {
        return notAllowed(
            Texts::tr("The audit trail \"%1\" was written by a newer version of this program (form %2; "
                      "this version knows form %3). Use the newer version.")
                .arg(shown)
                .arg(version.value())
                .arg(kSqliteForm));
    }
    return false;
}

Error createStore(Database &database, const QByteArray &trail)
{
    if (Error error = database.run(kSchema); error.hasError())
        return error;
    Statement head(database, "INSERT INTO head VALUES (1, ?, 0, x'', 0)");
    if (Error error = head.bindText(1, trail).run(); error.hasError())
        return error;
    const QByteArray marks = "PRAGMA application_id = " + QByteArray::number(kApplicationId) +
                             "; PRAGMA user_version = " + QByteArray::number(kSqliteForm);
    return database.run(marks.constData());
}

Error checkGuards(Database &database)
{
    const auto triggers =
        database.number("SELECT count(*) FROM sqlite_schema WHERE type = 'trigger' AND name IN "
                        "('entry_no_delete', 'entry_no_update', 'entry_no_replace', 'checkpoint_no_update', "
                        "'checkpoint_no_delete')");
    if (!triggers)
        return triggers.error();
    if (triggers.value() != kTriggers)
        return damagedError(database.path(), Texts::tr("its guards against changes were taken away"));
    return {};
}

} // namespace ozm::audit
