#include "Database.h"

#include "../Texts.h"

#include <QDir>

#include <array>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

struct Advice
{
    int code;
    const char *text;
};

constexpr const char *kDamaged = QT_TRANSLATE_NOOP(
    "ozm::audit", "The audit trail \"%1\" is damaged, or this is not an audit trail. Nothing was "
                  "changed. Keep the file as it is and restore a copy, or start another trail.");
constexpr std::array kAdvice{
    Advice{SQLITE_BUSY,
           QT_TRANSLATE_NOOP("ozm::audit", "The audit trail \"%1\" is locked by another program. Nothing "
                                           "was changed. Wait a moment or close the other program, then "
                                           "try again.")},
    Advice{SQLITE_LOCKED,
           QT_TRANSLATE_NOOP("ozm::audit", "The audit trail \"%1\" is being read. Nothing was changed. "
                                           "Try again.")},
    Advice{SQLITE_READONLY,
           QT_TRANSLATE_NOOP("ozm::audit", "The audit trail \"%1\" is read-only, so nothing can be "
                                           "recorded. Nothing was changed. Make the file and its "
                                           "folder writable, or start another trail.")},
    Advice{SQLITE_CORRUPT, kDamaged},
    Advice{SQLITE_NOTADB, kDamaged},
    Advice{SQLITE_FULL,
           QT_TRANSLATE_NOOP("ozm::audit", "The disk that holds the audit trail \"%1\" is full. Nothing "
                                           "was changed. Make room on the disk, then try again.")},
    Advice{SQLITE_CANTOPEN,
           QT_TRANSLATE_NOOP("ozm::audit", "The audit trail \"%1\" cannot be opened. Nothing was "
                                           "changed. Check that its folder exists and that you may "
                                           "write there.")},
};
constexpr const char *kOther = QT_TRANSLATE_NOOP(
    "ozm::audit", "The audit trail \"%1\" cannot be used. Nothing was changed. Check the disk that "
                  "it is on.");

Error advise(const char *text, const QString &path, const QString &detail)
{
    QString whole = Texts::tr(text).arg(QDir::toNativeSeparators(path));
    if (!detail.isEmpty())
        whole += " ("_L1 + detail + u')';
    return Error(ErrorCode::FileAccess, whole).ecatch(OZM_HERE);
}

int flagsOf(Database::Access access)
{
    // One call at a time is the store's own rule.
    constexpr int kCommon = SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
    if (access == Database::Access::ReadOnly)
        return kCommon | SQLITE_OPEN_READONLY;
    return kCommon | SQLITE_OPEN_READWRITE | (access == Database::Access::Create ? SQLITE_OPEN_CREATE : 0);
}

} // namespace

Error damagedError(const QString &path, const QString &detail)
{
    return advise(kDamaged, path, detail);
}

Statement::Statement(Database &database, const char *sql)
    : m_database(database)
{
    if (const int code =
            sqlite3_prepare_v3(database.m_handle, sql, -1, SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr);
        code != SQLITE_OK)
        m_error = database.failure(code);
}

Statement::~Statement()
{
    sqlite3_finalize(m_statement);
}

Statement &Statement::bind(int index, qint64 number)
{
    sqlite3_bind_int64(m_statement, index, number);
    return *this;
}

Statement &Statement::bindText(int index, QByteArrayView text)
{
    // Never null, which would be stored as NULL.
    sqlite3_bind_text64(m_statement, index, text.isNull() ? "" : text.data(), sqlite3_uint64(text.size()),
                        SQLITE_STATIC, SQLITE_UTF8);
    return *this;
}

Statement &Statement::bindBlob(int index, QByteArrayView bytes)
{
    sqlite3_bind_blob64(m_statement, index, bytes.isNull() ? "" : bytes.data(), sqlite3_uint64(bytes.size()),
                        SQLITE_STATIC);
    return *this;
}

Statement &Statement::bindAll(const QVariantList &values, int first)
{
    for (const QVariant &value : values) {
        if (value.typeId() == QMetaType::QString) {
            const QByteArray text = value.toString().toUtf8();
            sqlite3_bind_text64(m_statement, first, text.constData(), sqlite3_uint64(text.size()),
                                SQLITE_TRANSIENT, SQLITE_UTF8);
        } else {
            bind(first, value.toLongLong());
        }
        ++first;
    }
    return *this;
}

bool Statement::step()
{
    if (!m_statement)
        return false;
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW)
        return true;
    m_error = code == SQLITE_DONE ? Error() : m_database.failure(code);
    sqlite3_reset(m_statement);
    return false;
}

Error Statement::run()
{
    while (step()) {
    }
    return m_error;
}

void Statement::reset()
{
    sqlite3_reset(m_statement);
}

qint64 Statement::number(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

QByteArray Statement::bytesHere(int column) const
{
    const auto *data = static_cast<const char *>(sqlite3_column_blob(m_statement, column));
    return QByteArray::fromRawData(data, sqlite3_column_bytes(m_statement, column));
}

QByteArray Statement::text(int column) const
{
    const QByteArray here = bytesHere(column);
    return {here.constData(), here.size()};
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(m_statement, column) == SQLITE_NULL;
}

Database::Database(const QString &path, sqlite3 *handle, int patienceMs)
    : m_path(path)
    , m_handle(handle)
    , m_patienceMs(patienceMs)
{}

Database::~Database()
{
    m_begin.reset();
    m_commit.reset();
    sqlite3_close_v2(m_handle);
}

Result<std::unique_ptr<Database>> Database::open(const QString &path, Access access, int patienceMs,
                                                 const QString &vfs)
{
    sqlite3 *handle = nullptr;
    const QByteArray vfsName = vfs.toUtf8();
    const int code = sqlite3_open_v2(path.toUtf8().constData(), &handle, flagsOf(access),
                                     vfs.isEmpty() ? nullptr : vfsName.constData());
    // Not make_unique: the constructor is private.
    std::unique_ptr<Database> database(new Database(path, handle, patienceMs));
    if (code != SQLITE_OK)
        return database->failure(code);
    sqlite3_busy_timeout(handle, patienceMs);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    if (Error error = database->run("PRAGMA recursive_triggers = ON; PRAGMA cell_size_check = ON");
        error.hasError())
        return error;
    return database;
}

Error Database::run(const char *sql)
{
    const int code = sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr);
    return code == SQLITE_OK ? Error() : failure(code);
}

Result<qint64> Database::number(const char *sql)
{
    Statement statement(*this, sql);
    const qint64 value = statement.step() ? statement.number(0) : 0;
    if (statement.error().hasError())
        return statement.error();
    return value;
}

Result<QByteArray> Database::text(const char *sql)
{
    Statement statement(*this, sql);
    QByteArray value = statement.step() ? statement.text(0) : QByteArray();
    if (statement.error().hasError())
        return statement.error();
    return value;
}

Error Database::transact(const std::function<Error()> &work)
{
    const Turns::Turn turn(m_turns.get(), QDeadlineTimer(m_patienceMs));
    if (!m_begin) {
        m_begin = std::make_unique<Statement>(*this, "BEGIN IMMEDIATE");
        m_commit = std::make_unique<Statement>(*this, "COMMIT");
    }
    if (Error error = m_begin->run(); error.hasError())
        return error;
    Error error = work();
    if (!error.hasError())
        error = m_commit->run();
    // SQLite has rolled back by itself when the disk is full.
    if (error.hasError() && sqlite3_get_autocommit(m_handle) == 0)
        (void)run("ROLLBACK");
    return error;
}

void Database::takeTurns()
{
    m_turns = std::make_unique<Turns>(turnsFile());
    m_turns->attend();
}

Error Database::checkNotShared() const
{
    return Turns::isAttended(turnsFile()) ? failure(SQLITE_BUSY) : Error();
}

QString Database::turnsFile() const
{
    return m_path + "-turn"_L1;
}

bool Database::hasMoved() const
{
    int moved = 0;
    return sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK && moved != 0;
}

Error Database::failure(int code) const
{
    constexpr int kPlainCode = 0xff;
    const QString detail = QString::fromUtf8(sqlite3_errmsg(m_handle));
    for (const Advice &advice : kAdvice) {
        if (advice.code == (code & kPlainCode))
            return advise(advice.text, m_path, detail);
    }
    return advise(kOther, m_path, detail);
}

} // namespace ozm::audit
