#include "Connection.h"

#include "../Texts.h"

using namespace Qt::StringLiterals;

namespace ozm::audit {

QByteArray Answer::text(int row, int column) const
{
    return {PQgetvalue(m_result.get(), row, column), PQgetlength(m_result.get(), row, column)};
}

QByteArray Answer::bytes(int row, int column) const
{
    return QByteArray::fromHex(text(row, column).sliced(isNull(row, column) ? 0 : 2));
}

Connection::Connection(PGconn *handle, const QString &shown)
    : m_handle(handle)
    , m_shown(shown)
{}

Connection::~Connection()
{
    PQfinish(m_handle);
}

Result<std::unique_ptr<Connection>> Connection::open(const QByteArray &uri, const QString &shown)
{
    // Not make_unique: the constructor is private.
    std::unique_ptr<Connection> connection(new Connection(PQconnectdb(uri.constData()), shown));
    if (connection->isLost() || !connection->prepareSession())
        return connection->failure();
    return connection;
}

bool Connection::prepareSession()
{
    // Stronger levels read a head that others have moved on from.
    constexpr auto kSettings = "SET SESSION CHARACTERISTICS AS TRANSACTION ISOLATION LEVEL READ COMMITTED; "
                               "SET client_min_messages = warning; SET bytea_output = hex; "
                               "SET client_encoding = UTF8; SET synchronous_commit = on";
    PGresult *result = PQexec(m_handle, kSettings);
    const bool ok = PQresultStatus(result) == PGRES_COMMAND_OK;
    PQclear(result);
    return ok;
}

bool Connection::reconnect()
{
    PQreset(m_handle);
    return !isLost() && prepareSession();
}

Result<Answer> Connection::run(const QByteArray &sql, const Parameters &parameters)
{
    QList<const char *> values;
    for (const QByteArray &parameter : parameters)
        values.append(parameter.isNull() ? nullptr : parameter.constData());
    Answer answer(nullptr);
    PGresult *result = PQexecParams(m_handle, sql.constData(), int(values.size()), nullptr,
                                    values.constData(), nullptr, nullptr, 0);
    const ExecStatusType status = PQresultStatus(result);
    const char *state = PQresultErrorField(result, PG_DIAG_SQLSTATE);
    const QByteArray code(state ? state : "");
    answer = Answer(result);
    if (status != PGRES_TUPLES_OK && status != PGRES_COMMAND_OK)
        return failure(code);
    return answer;
}

Error Connection::runAll(const QByteArray &sql)
{
    const QByteArray whole = "BEGIN;" + sql + ";COMMIT";
    PGresult *result = PQexec(m_handle, whole.constData());
    const bool ok = PQresultStatus(result) == PGRES_COMMAND_OK;
    const char *state = PQresultErrorField(result, PG_DIAG_SQLSTATE);
    Error error = ok ? Error() : failure(state ? state : "");
    PQclear(result);
    if (!ok)
        PQclear(PQexec(m_handle, "ROLLBACK"));
    return error;
}

bool Connection::takeNotifications()
{
    bool any = false;
    PQconsumeInput(m_handle);
    while (PGnotify *notification = PQnotifies(m_handle)) {
        PQfreemem(notification);
        any = true;
    }
    return any;
}

Error Connection::failure(const QByteArray &state) const
{
    const QString detail = QString::fromUtf8(PQerrorMessage(m_handle)).simplified();
    const QString text =
        isLost()
            ? Texts::tr(
                  "The server of the audit trail \"%1\" cannot be reached. Nothing was changed. Check the "
                  "network, then try again. (%2)")
        : state.startsWith("42501")
            ? Texts::tr("You may not do this with the audit trail \"%1\". Nothing was changed. Ask the "
                        "keeper of the "
                        "server for the role ozm_audit_writer, ozm_audit_reader or ozm_audit_keeper. (%2)")
        : state.startsWith("53")
            ? Texts::tr("The server of the audit trail \"%1\" has no room left. Nothing was "
                        "changed. Tell its keeper. (%2)")
            : Texts::tr("The server refuses to work on the audit trail \"%1\". Nothing was "
                        "changed. (%2)");
    return Error(ErrorCode::FileAccess, text.arg(m_shown, detail)).ecatch(OZM_HERE);
}

} // namespace ozm::audit
