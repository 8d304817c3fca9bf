#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_common_stable/Result.h>

#include <QString>
#include <QVariant>

#include <functional>
#include <memory>

class QSqlError;
class QSqlQuery;

namespace workbench {

/**
 * A connection to one SQLite file, closed and taken off Qt's list when it goes.
 *
 * Every failure comes back as an ozm::Error (code FileAccess) that tells the user what is wrong with the
 * file (locked, full, read-only, damaged, out of reach) and what to do about it. One thread.
 *
 * The file must not be opened by other means while a connection lives: closing any other handle to it would
 * take this process's locks away.
 */
class SqlConnection
{
public:
    enum class Mode
    {
        ReadWrite, ///< Creates the file when there is none.
        ReadOnly,
    };

    [[nodiscard]] static ozm::Result<std::unique_ptr<SqlConnection>> open(const QString &path, Mode mode);
    ~SqlConnection();
    Q_DISABLE_COPY_MOVE(SqlConnection)

    /// The connection's name in QSqlDatabase.
    [[nodiscard]] QString name() const { return m_name; }
    [[nodiscard]] QString path() const { return m_path; }

    /// Runs one statement; @p values fill its question marks.
    ozm::Error run(const QString &sql, const QVariantList &values = {});
    /// Runs one statement and shows each row of its result to @p row.
    ozm::Error forEach(const QString &sql, const QVariantList &values,
                       const std::function<void(const QSqlQuery &)> &row);
    /// The first value of the first row; invalid when there are no rows.
    [[nodiscard]] ozm::Result<QVariant> value(const QString &sql);

private:
    SqlConnection(const QString &path, Mode mode);

    [[nodiscard]] ozm::Error failure(const QSqlError &error) const;

    const QString m_path;
    const QString m_name;
};

/// The error of a file that is not what it was written as; @p detail says what was found.
[[nodiscard]] ozm::Error damagedError(const QString &path, const QString &detail);

} // namespace workbench
