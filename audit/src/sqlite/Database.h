#pragma once

#include "Turns.h"

#include <ozm_common_stable/Result.h>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QVariantList>

#include <functional>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace ozm::audit {

class Database;

/// A prepared statement, kept for many runs. Texts and bytes that are bound must live until it is run.
class Statement
{
public:
    Statement(Database &database, const char *sql);
    ~Statement();
    Q_DISABLE_COPY_MOVE(Statement)

    Statement &bind(int index, qint64 number);
    Statement &bindText(int index, QByteArrayView text);
    Statement &bindBlob(int index, QByteArrayView bytes);
    Statement &bindAll(const QVariantList &values, int first = 1);

    /// True for each row, false at the end or on an error, which error() then tells; the end also resets.
    [[nodiscard]] bool step();
    /// Runs a statement without rows.
    [[nodiscard]] Error run();
    /// Makes the statement ready to be run again.
    void reset();
    [[nodiscard]] Error error() const { return m_error; }

    [[nodiscard]] qint64 number(int column) const;
    [[nodiscard]] QByteArray text(int column) const;
    /// Valid until the next step.
    [[nodiscard]] QByteArray bytesHere(int column) const;
    [[nodiscard]] bool isNull(int column) const;

private:
    Database &m_database;
    sqlite3_stmt *m_statement = nullptr;
    Error m_error;
};

/**
 * A connection to an SQLite file that trusts nothing in it.
 *
 * Every failure becomes a text that tells the user what is wrong with the file and what to do about it.
 */
class Database
{
    friend class Statement;

public:
    enum class Access
    {
        ReadOnly,
        ReadWrite,
        Create, ///< Makes the file when there is none.
    };

    [[nodiscard]] static Result<std::unique_ptr<Database>> open(const QString &path, Access access,
                                                                int patienceMs, const QString &vfs = {});
    ~Database();
    Q_DISABLE_COPY_MOVE(Database)

    [[nodiscard]] QString path() const { return m_path; }
    [[nodiscard]] Error run(const char *sql);
    /// The first value of the first row; 0 without rows.
    [[nodiscard]] Result<qint64> number(const char *sql);
    [[nodiscard]] Result<QByteArray> text(const char *sql);

    /// Runs @p work in a transaction that holds the write lock from its beginning; an error undoes it.
    [[nodiscard]] Error transact(const std::function<Error()> &work);
    /// From now on, transactions of all programs that say so come in turn.
    void takeTurns();
    /// FileAccess when a program that takes turns has the file open.
    [[nodiscard]] Error checkNotShared() const;

    /// True when the file was deleted or replaced under the connection.
    [[nodiscard]] bool hasMoved() const;

    [[nodiscard]] Error failure(int code) const;

private:
    Database(const QString &path, sqlite3 *handle, int patienceMs);

    [[nodiscard]] QString turnsFile() const;

    const QString m_path;
    sqlite3 *m_handle;
    const int m_patienceMs;
    std::unique_ptr<Turns> m_turns;
    std::unique_ptr<Statement> m_begin;
    std::unique_ptr<Statement> m_commit;
};

/// The error of a file that is not what it was written as; @p detail says what was found.
[[nodiscard]] Error damagedError(const QString &path, const QString &detail);

} // namespace ozm::audit
