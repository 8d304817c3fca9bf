#include "Schema.h"

#include "../tree/MerkleTree.h"

#include <QCryptographicHash>

namespace ozm::audit {

namespace {

// Roles are the server's, not a database's: a second trail finds them.
constexpr auto kRoles = R"(
DO $$
DECLARE role text;
BEGIN
    PERFORM pg_advisory_xact_lock(20344910);
    FOREACH role IN ARRAY ARRAY['ozm_audit_owner', 'ozm_audit_writer', 'ozm_audit_reader', 'ozm_audit_keeper'] LOOP
        IF NOT EXISTS (SELECT FROM pg_roles WHERE rolname = role) THEN
            EXECUTE format('CREATE ROLE %I NOLOGIN', role);
        END IF;
    END LOOP;
END $$;
)";

constexpr auto kTables = R"(
CREATE SCHEMA @S AUTHORIZATION ozm_audit_owner;
SET LOCAL ROLE ozm_audit_owner;
SET LOCAL search_path = @S;
CREATE TABLE schema_step(
    version integer PRIMARY KEY, at timestamptz NOT NULL DEFAULT clock_timestamp(),
    by text NOT NULL DEFAULT session_user, program text NOT NULL, sha256 text NOT NULL);
CREATE TABLE head(
    id integer PRIMARY KEY CHECK (id = 1), trail text NOT NULL, size bigint NOT NULL, frontier bytea[] NOT NULL);
CREATE TABLE entry(
    number bigint PRIMARY KEY, id text NOT NULL UNIQUE, hash bytea NOT NULL, bytes bytea,
    time_ms bigint, kind text, "user" text, outcome bigint, parent bigint,
    subject text COLLATE "C", attributes text);
CREATE INDEX entry_time ON entry(time_ms);
CREATE INDEX entry_kind ON entry(kind, number);
CREATE INDEX entry_user ON entry("user", number);
CREATE INDEX entry_subject ON entry USING hash (subject);
CREATE TABLE subtree(level integer, position bigint, hash bytea NOT NULL, PRIMARY KEY (level, position));
CREATE TABLE checkpoint(id bigint GENERATED ALWAYS AS IDENTITY PRIMARY KEY, size bigint NOT NULL, note bytea NOT NULL);
CREATE TABLE disposal(first bigint NOT NULL, last bigint NOT NULL, number bigint NOT NULL);
)";

// Number, server's time, session's user and client are given here, under the head's lock, and hashed with the
// rest: a client can claim neither.
constexpr auto kAppend = R"(
CREATE FUNCTION append(claims bytea[], ids text[], parents bigint[]) RETURNS bigint
LANGUAGE plpgsql SECURITY DEFINER SET search_path = @S, pg_temp AS $f$
DECLARE
    h head; n bigint; first bigint; up bigint; own json; bytes bytea; node bytea; edge bytea[]; rest bigint; lvl integer;
BEGIN
    IF current_setting('transaction_isolation') <> 'read committed' THEN
        RAISE EXCEPTION 'audit entries are appended at READ COMMITTED only';
    END IF;
    SELECT * INTO h FROM head FOR UPDATE;
    SELECT number INTO n FROM entry WHERE id = ids[1];
    IF FOUND THEN
        RETURN n;
    END IF;
    n := h.size;
    first := n + 1;
    edge := h.frontier;
    FOR i IN 1 .. array_length(claims, 1) LOOP
        IF EXISTS (SELECT FROM json_object_keys(convert_from('{'::bytea || substr(claims[i], 2), 'UTF8')::json) k
                   WHERE k IN ('form', 'trail', 'number', 'parent', 'stored')) THEN
            RAISE EXCEPTION 'an audit entry claims what only the store can say';
        END IF;
        up := CASE WHEN parents[i] < 0 THEN first - 1 - parents[i] ELSE parents[i] END;
        bytes := convert_to('{"form":1,"trail":' || to_json(h.trail) || ',"number":' || n + 1
            || CASE WHEN up <> 0 THEN ',"parent":' || up ELSE '' END
            || ',"stored":{"time":"' || to_char(clock_timestamp() AT TIME ZONE 'UTC', 'YYYY-MM-DD"T"HH24:MI:SS.MS"Z"')
            || '","user":' || to_json(session_user::text)
            || ',"client":' || to_json(coalesce(host(inet_client_addr()), 'local')) || '}', 'UTF8') || claims[i];
        own := convert_from(bytes, 'UTF8')::json;
        node := sha256('\x00'::bytea || bytes);
        INSERT INTO entry VALUES (n + 1, ids[i], node, bytes,
            (extract(epoch FROM (own ->> 'time')::timestamptz) * 1000)::bigint, coalesce(own ->> 'kind', ''),
            coalesce(own -> 'user' ->> 'id', ''), coalesce((own -> 'outcome' ->> 'code')::bigint, 0), up,
            CASE WHEN own -> 'subject' IS NULL THEN ''
                ELSE coalesce(own -> 'subject' ->> 'type', '') || E'\n' || coalesce(own -> 'subject' ->> 'key', '') END,
            coalesce((SELECT string_agg(value, E'\n' ORDER BY ordinality)
                      FROM json_array_elements_text(own -> 'attributes') WITH ORDINALITY), ''));
        rest := n;
        lvl := 0;
        WHILE rest & 1 = 1 LOOP
            node := sha256('\x01'::bytea || edge[array_upper(edge, 1)] || node);
            edge := edge[1 : array_upper(edge, 1) - 1];
            rest := rest >> 1;
            lvl := lvl + 1;
            IF lvl % 8 = 0 THEN
                INSERT INTO subtree VALUES (lvl, n >> lvl, node);
            END IF;
        END LOOP;
        edge := array_append(edge, node);
        n := n + 1;
    END LOOP;
    UPDATE head SET size = n, frontier = edge;
    PERFORM pg_notify('@S', n::text);
    RETURN first;
END $f$;
)";

constexpr auto kKeeping = R"(
CREATE FUNCTION keep_checkpoint(size bigint, note bytea) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path = @S, pg_temp
AS 'INSERT INTO checkpoint(size, note) VALUES ($1, $2)';

CREATE FUNCTION set_head(new_size bigint, new_frontier bytea[]) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path = @S, pg_temp
AS 'UPDATE head SET size = $1, frontier = $2';

CREATE FUNCTION dispose(lowest bigint, highest bigint, claims bytea, own_id text) RETURNS bigint
LANGUAGE plpgsql SECURITY DEFINER SET search_path = @S, pg_temp AS $f$
DECLARE n bigint;
BEGIN
    n := append(ARRAY[claims], ARRAY[own_id], ARRAY[0::bigint]);
    INSERT INTO disposal VALUES (lowest, highest, n);
    UPDATE entry SET bytes = NULL, time_ms = NULL, kind = NULL, "user" = NULL, outcome = NULL, parent = NULL,
        subject = NULL, attributes = NULL WHERE number BETWEEN lowest AND highest;
    RETURN n;
END $f$;

CREATE FUNCTION refuse() RETURNS trigger LANGUAGE plpgsql SET search_path = @S, pg_temp AS $f$
BEGIN
    IF TG_OP = 'UPDATE' AND NEW.bytes IS NULL AND NEW.hash = OLD.hash AND NEW.number = OLD.number AND NEW.id = OLD.id
        AND EXISTS (SELECT FROM disposal WHERE OLD.number BETWEEN first AND last) THEN
        RETURN NEW;
    END IF;
    RAISE EXCEPTION 'audit entries cannot be changed';
END $f$;
CREATE TRIGGER entry_guard BEFORE UPDATE OR DELETE ON entry FOR EACH ROW EXECUTE FUNCTION refuse();
CREATE TRIGGER entry_guard_truncate BEFORE TRUNCATE ON entry EXECUTE FUNCTION refuse();

REVOKE ALL ON ALL FUNCTIONS IN SCHEMA @S FROM PUBLIC;
GRANT USAGE ON SCHEMA @S TO ozm_audit_writer, ozm_audit_reader, ozm_audit_keeper;
GRANT SELECT ON ALL TABLES IN SCHEMA @S TO ozm_audit_writer, ozm_audit_reader, ozm_audit_keeper;
GRANT EXECUTE ON FUNCTION append, keep_checkpoint TO ozm_audit_writer, ozm_audit_keeper;
GRANT EXECUTE ON FUNCTION dispose, set_head TO ozm_audit_keeper;
)";

} // namespace

QByteArray postgresqlSchema(const QByteArray &schema, const QByteArray &trail)
{
    QByteArray statements = QByteArray(kRoles) + kTables + kAppend + kKeeping;
    const QByteArray step = QCryptographicHash::hash(statements, QCryptographicHash::Sha256).toHex();
    statements += "INSERT INTO head VALUES (1, '" + trail +
                  "', 0, ARRAY[]::bytea[]);"
                  "INSERT INTO schema_step(version, program, sha256) VALUES (" +
                  QByteArray::number(kPostgresqlForm) + ", 'ozm_audit', '" + step + "');RESET ROLE";
    return statements.replace("@S", schema);
}

} // namespace ozm::audit
