#pragma once

#include <ozm_common_stable/Result.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <libpq-fe.h>

#include <memory>
#include <optional>

namespace ozm::audit {

/// The rows of an answer; texts, bytes already decoded.
class Answer
{
public:
    explicit Answer(PGresult *result)
        : m_result(result, &PQclear)
    {}

    [[nodiscard]] int rows() const { return PQntuples(m_result.get()); }
    [[nodiscard]] bool isNull(int row, int column) const
    {
        return PQgetisnull(m_result.get(), row, column) != 0;
    }
    [[nodiscard]] qint64 number(int row, int column) const { return text(row, column).toLongLong(); }
    [[nodiscard]] QByteArray text(int row, int column) const;
    /// Of a bytea, which comes as "\x" and hexadecimal digits.
    [[nodiscard]] QByteArray bytes(int row, int column) const;

private:
    std::unique_ptr<PGresult, decltype(&PQclear)> m_result;
};

using Parameters = QList<QByteArray>;

/// A connection to a server, made again when it was lost. Errors never hold the password.
class Connection
{
public:
    /// @p shown is the address as people may see it.
    [[nodiscard]] static Result<std::unique_ptr<Connection>> open(const QByteArray &uri,
                                                                  const QString &shown);
    ~Connection();
    Q_DISABLE_COPY_MOVE(Connection)

    /// One round trip; a null parameter is NULL.
    [[nodiscard]] Result<Answer> run(const QByteArray &sql, const Parameters &parameters = {});
    /// Statements without parameters, as one transaction.
    [[nodiscard]] Error runAll(const QByteArray &sql);

    [[nodiscard]] bool isLost() const { return PQstatus(m_handle) != CONNECTION_OK; }
    [[nodiscard]] bool reconnect();
    /// Takes what the server has told of its own accord; true when there was something.
    [[nodiscard]] bool takeNotifications();

private:
    Connection(PGconn *handle, const QString &shown);
    [[nodiscard]] bool prepareSession();
    [[nodiscard]] Error failure(const QByteArray &state = {}) const;

    PGconn *m_handle;
    const QString m_shown;
};

} // namespace ozm::audit
