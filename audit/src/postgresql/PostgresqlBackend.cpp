#include "../Texts.h"
#include "../store/MemoryBackend.h"
#include "../store/QueryFilter.h"
#include "../store/StoreBackend.h"
#include "Connection.h"
#include "Schema.h"

#include <QUrlQuery>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

QByteArray bytea(const QByteArray &bytes)
{
    return "\\x" + bytes.toHex();
}

/// An array's text; none of the elements holds quotes or backslashes but a bytea's own.
QByteArray arrayOf(const QList<QByteArray> &elements)
{
    QByteArray text = "{";
    for (const QByteArray &element : elements) {
        QByteArray quoted = element;
        text += '"' + quoted.replace('\\', "\\\\") + "\",";
    }
    return (elements.isEmpty() ? text : text.chopped(1)) + '}';
}

constexpr qsizetype kHashSize = 32;

class PostgresqlBackend : public StoreBackend
{
public:
    PostgresqlBackend(std::unique_ptr<Connection> connection, const QByteArray &schema, const QString &trail,
                      const QString &place)
        : m_connection(std::move(connection))
        , m_schema(schema)
        , m_trail(trail)
        , m_place(place)
    {}

    [[nodiscard]] QString trail() const override { return m_trail; }
    [[nodiscard]] QString place() const override { return m_place; }
    [[nodiscard]] Result<StoredHead> head() override;
    [[nodiscard]] Result<qint64> append(const QList<NewEntry> &entries) override;
    [[nodiscard]] Error rows(qint64 first, qint64 last,
                             const std::function<bool(const StoredRow &)> &show) override;
    [[nodiscard]] Result<QList<Entry>> find(const Query &query) override;
    [[nodiscard]] Result<std::vector<Hash>> hashes(int level, qint64 first, qint64 count) override;
    [[nodiscard]] Result<qint64> lastRow() override;
    Error keepCheckpoint(const Checkpoint &checkpoint) override;
    [[nodiscard]] Result<QList<Checkpoint>> keptCheckpoints() override;
    Error setHead(const Frontier &frontier) override;
    [[nodiscard]] Result<qint64> dispose(Range range, const NewEntry &record) override;
    [[nodiscard]] Result<bool> hasChanged(qint64 known) override;

private:
    /// Runs a statement, once more over a new connection when the old one turns out to be lost. All are safe to
    /// be run twice: what was stored by the first is found by its id.
    [[nodiscard]] Result<Answer> run(const QByteArray &sql, const Parameters &parameters = {});
    [[nodiscard]] Result<qint64> number(const QByteArray &sql, const Parameters &parameters = {});

    const std::unique_ptr<Connection> m_connection;
    const QByteArray m_schema;
    const QString m_trail;
    const QString m_place;
    bool m_listening = false;
};

Result<Answer> PostgresqlBackend::run(const QByteArray &sql, const Parameters &parameters)
{
    QByteArray own = sql;
    own.replace("@S", m_schema);
    auto answer = m_connection->run(own, parameters);
    if (answer || !m_connection->isLost())
        return answer;
    m_listening = false;
    return m_connection->reconnect() ? m_connection->run(own, parameters) : std::move(answer);
}

Result<qint64> PostgresqlBackend::number(const QByteArray &sql, const Parameters &parameters)
{
    const auto answer = run(sql, parameters);
    if (!answer)
        return answer.error();
    return answer.value().rows() == 0 ? 0 : answer.value().number(0, 0);
}

Result<StoredHead> PostgresqlBackend::head()
{
    const auto answer =
        run("SELECT size, array_to_string(ARRAY(SELECT encode(f, 'hex') FROM unnest(frontier) WITH "
            "ORDINALITY u(f, o) ORDER BY o), '') FROM @S.head");
    if (!answer)
        return answer.error();
    if (answer.value().rows() != 1)
        return StoredHead();
    const qint64 size = answer.value().number(0, 0);
    return StoredHead{size, QByteArray::fromHex(answer.value().text(0, 1)), size};
}

Result<qint64> PostgresqlBackend::append(const QList<NewEntry> &entries)
{
    QList<QByteArray> claims;
    QList<QByteArray> ids;
    QList<QByteArray> parents;
    for (const NewEntry &entry : entries) {
        claims.append(bytea(entry.claims));
        ids.append(entry.id);
        parents.append(QByteArray::number(entry.parent));
    }
    return number("SELECT @S.append($1, $2, $3)", {arrayOf(claims), arrayOf(ids), arrayOf(parents)});
}

Error PostgresqlBackend::rows(qint64 first, qint64 last, const std::function<bool(const StoredRow &)> &show)
{
    constexpr qint64 kPage = 1000;
    for (qint64 begin = first; begin <= last; begin += kPage) {
        const auto answer =
            run("SELECT number, hash, bytes, time_ms, kind, \"user\", outcome, parent, subject, attributes "
                "FROM @S.entry "
                "WHERE number BETWEEN $1 AND $2 ORDER BY number",
                {QByteArray::number(begin), QByteArray::number(qMin(last, begin + kPage - 1))});
        if (!answer)
            return answer.error();
        const Answer &page = answer.value();
        for (int i = 0; i < page.rows(); ++i) {
            StoredRow row{page.number(i, 0), page.bytes(i, 1), page.bytes(i, 2), {}};
            if (!page.isNull(i, 3)) {
                row.index = IndexRow{page.number(i, 3), page.text(i, 4), page.text(i, 5), page.number(i, 6),
                                     page.number(i, 7), page.text(i, 8), page.text(i, 9)};
            }
            if (!show(row))
                return {};
        }
        // The last page of a trail whose head says more.
        if (page.rows() == 0 && begin > first)
            break;
    }
    return {};
}

Result<QList<Entry>> PostgresqlBackend::find(const Query &query)
{
    const bool backwards = query.order == Query::Order::NewestFirst;
    const QueryClauses clauses(query, "convert_from(i.bytes, 'UTF8') ILIKE ? ESCAPE '\\'");
    QByteArray sql = "SELECT i.bytes FROM @S.entry i WHERE i.bytes IS NOT NULL" + clauses.condition;
    Parameters parameters;
    for (const QVariant &value : clauses.values)
        parameters.append(value.toString().toUtf8());
    if (query.after != 0) {
        sql += backwards ? " AND i.number < ?" : " AND i.number > ?";
        parameters.append(QByteArray::number(query.after));
    }
    sql += QByteArray(" ORDER BY i.number ") + (backwards ? "DESC" : "ASC") + " LIMIT ?";
    parameters.append(QByteArray::number(query.pageSize));
    for (int i = 1; sql.contains('?'); ++i)
        sql.replace(sql.indexOf('?'), 1, '$' + QByteArray::number(i));
    const auto answer = run(sql, parameters);
    if (!answer)
        return answer.error();
    QList<Entry> page;
    for (int i = 0; i < answer.value().rows(); ++i) {
        if (auto entry = Entry::fromBytes(answer.value().bytes(i, 0)))
            page.append(std::move(entry).value());
    }
    return page;
}

Result<std::vector<Hash>> PostgresqlBackend::hashes(int level, qint64 first, qint64 count)
{
    const QByteArray sql =
        level == 0 ? QByteArray("SELECT hash FROM @S.entry WHERE number BETWEEN $1 + 1 AND $2 + 1 "
                                "ORDER BY number")
                   : "SELECT hash FROM @S.subtree WHERE position BETWEEN $1 AND $2 AND level = " +
                         QByteArray::number(level) + " ORDER BY position";
    const auto answer = run(sql, {QByteArray::number(first), QByteArray::number(first + count - 1)});
    if (!answer)
        return answer.error();
    std::vector<Hash> hashes;
    hashes.reserve(std::size_t(answer.value().rows()));
    for (int i = 0; i < answer.value().rows(); ++i)
        hashes.push_back(toHash(answer.value().bytes(i, 0)).value_or(Hash()));
    return hashes;
}

Result<qint64> PostgresqlBackend::lastRow()
{
    return number("SELECT coalesce(max(number), 0) FROM @S.entry");
}

Error PostgresqlBackend::keepCheckpoint(const Checkpoint &checkpoint)
{
    const auto answer = run("SELECT @S.keep_checkpoint($1, $2)",
                            {QByteArray::number(checkpoint.size), bytea(checkpoint.note)});
    return answer ? Error() : answer.error();
}

Result<QList<Checkpoint>> PostgresqlBackend::keptCheckpoints()
{
    const auto answer = run("SELECT size, note FROM @S.checkpoint ORDER BY size, id");
    if (!answer)
        return answer.error();
    QList<Checkpoint> checkpoints;
    for (int i = 0; i < answer.value().rows(); ++i) {
        const QByteArray note = answer.value().bytes(i, 1);
        auto checkpoint = Checkpoint::fromNote(note);
        checkpoints.append(checkpoint ? std::move(checkpoint).value()
                                      : Checkpoint{{}, answer.value().number(i, 0), {}, note});
    }
    return checkpoints;
}

Error PostgresqlBackend::setHead(const Frontier &frontier)
{
    QList<QByteArray> edge;
    const QByteArray bytes = frontier.toBytes();
    for (qsizetype at = 0; at < bytes.size(); at += kHashSize)
        edge.append(bytea(bytes.sliced(at, kHashSize)));
    const auto answer =
        run("SELECT @S.set_head($1, $2)", {QByteArray::number(frontier.size()), arrayOf(edge)});
    return answer ? Error() : answer.error();
}

Result<qint64> PostgresqlBackend::dispose(Range range, const NewEntry &record)
{
    return number(
        "SELECT @S.dispose($1, $2, $3, $4)",
        {QByteArray::number(range.first), QByteArray::number(range.last), bytea(record.claims), record.id});
}

Result<bool> PostgresqlBackend::hasChanged(qint64 known)
{
    if (m_listening)
        return m_connection->takeNotifications();
    // From now on the server tells; only what came before has to be looked for.
    const auto listening = run("LISTEN @S");
    if (!listening)
        return listening.error();
    m_listening = true;
    return StoreBackend::hasChanged(known);
}

struct Place
{
    QByteArray uri;
    QByteArray name;
    QByteArray schema;
};

Result<Place> placeOf(const Address &address)
{
    QUrlQuery query(address.url);
    const QString name = query.queryItemValue(u"trail"_s);
    const bool good =
        !name.isEmpty() && name.size() < 40 && std::all_of(name.cbegin(), name.cend(), [](QChar c) {
            return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'_';
        });
    if (!good) {
        return Error(ErrorCode::BadParameter,
                     Texts::tr("\"%1\" does not name a trail: add ?trail= and small letters and digits.")
                         .arg(address.shown()))
            .ecatch(OZM_HERE);
    }
    query.removeQueryItem(u"trail"_s);
    QUrl url = address.url;
    url.setQuery(query);
    // An empty authority has to be written, too.
    QByteArray uri = url.toEncoded();
    if (uri.startsWith("postgresql:/") && !uri.startsWith("postgresql://"))
        uri.insert(11, "//");
    return Place{uri, name.toLatin1(), "ozm_audit_" + name.toLatin1()};
}

Error makeTrail(Connection &connection, const Place &place)
{
    const QByteArray trail = newTrailName(QString::fromLatin1(place.name)).toLatin1();
    Error error = connection.runAll(postgresqlSchema(place.schema, trail));
    // Two programs may begin at once: the second finds it made.
    const auto there = connection.run("SELECT to_regclass('" + place.schema + ".head') IS NOT NULL");
    return there && there.value().text(0, 0) == "t" ? Error() : error;
}

Error checkForm(Connection &connection, const Place &place, const QString &shown)
{
    const auto form = connection.run("SELECT max(version) FROM " + place.schema + ".schema_step");
    if (!form)
        return form.error();
    if (form.value().number(0, 0) <= kPostgresqlForm)
        return {};
    return Error(ErrorCode::NotAllowed, Texts::tr("The audit trail \"%1\" was made by a newer version of "
                                                  "this program. Use the newer version.")
                                            .arg(shown))
        .ecatch(OZM_HERE);
}

Result<std::unique_ptr<StoreBackend>> openPostgresql(const Address &address, Store::Mode mode)
{
    const auto place = placeOf(address);
    if (!place)
        return place.error();
    auto connection = Connection::open(place.value().uri, address.shown());
    if (!connection)
        return connection.error();
    const auto there =
        connection.value()->run("SELECT to_regnamespace('" + place.value().schema + "') IS NOT NULL");
    if (!there)
        return there.error();
    const bool exists = there.value().text(0, 0) == "t";
    const bool mayMake = mode == Store::Mode::Use || mode == Store::Mode::Create;
    if (exists ? mode == Store::Mode::Create : !mayMake) {
        return Error(ErrorCode::FileAccess,
                     exists ? Texts::tr("There is a trail \"%1\" already.").arg(address.shown())
                            : Texts::tr("The trail \"%1\" does not exist.").arg(address.shown()))
            .ecatch(OZM_HERE);
    }
    Error error = exists ? Error() : makeTrail(*connection.value(), place.value());
    if (!error.hasError())
        error = checkForm(*connection.value(), place.value(), address.shown());
    if (error.hasError())
        return error;
    const auto trail = connection.value()->run("SELECT trail FROM " + place.value().schema + ".head");
    if (!trail)
        return trail.error();
    const QString name = QString::fromUtf8(trail.value().text(0, 0));
    return std::unique_ptr<StoreBackend>(std::make_unique<PostgresqlBackend>(
        std::move(connection).value(), place.value().schema, name, address.shown()));
}

} // namespace

} // namespace ozm::audit

extern "C" Q_DECL_EXPORT ozm::Result<std::unique_ptr<ozm::audit::StoreBackend>>
ozm_audit_open(const ozm::audit::Address &address, ozm::audit::Store::Mode mode)
{
    return ozm::audit::openPostgresql(address, mode);
}
