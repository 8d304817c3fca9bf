#pragma once

#include <ozm_audit/ozm_audit_export.h>
#include <ozm_common_stable/Result.h>

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

namespace ozm::audit {

/// Kinds of entries. The stored texts are those of kindToString() and never change.
enum class Kind
{
    Command,   ///< A step of an undo stack.
    Macro,     ///< Several steps under one name; complete once a Commit names it.
    Commit,    ///< The entry named by its parent is complete.
    Event,     ///< Something that cannot be undone: a load, a save, an import.
    Session,   ///< A session begins or ends, or a sign-in fails.
    Clock,     ///< The wall clock jumped against the monotonic one.
    Setting,   ///< A setting or a right was changed.
    Reason,    ///< A reason given later for an earlier entry.
    Signature, ///< A person signed entries, with a meaning.
    Review,    ///< A person reviewed entries.
    Export,    ///< Entries left the store as a copy.
    Archive,   ///< A range of entries was written to an archive.
    Disposal,  ///< The bytes of a range were removed; their hashes stay.
    Redaction, ///< The bytes of one entry were removed; its hash stays.
    Gap,       ///< Something may be missing: a session that did not end, a queue that was lost.
    ReAnchor,  ///< A damage was found, is recorded, and the trail goes on from here.
};

/// "command", ..., "re-anchor"; empty for a value outside the enumeration.
[[nodiscard]] OZM_AUDIT_EXPORT QString kindToString(Kind kind);
/// Event for a text that is not a kind's.
[[nodiscard]] OZM_AUDIT_EXPORT Kind kindFromString(const QString &text);

/// A person with name and role as they are at the time. Ids are never given to somebody else.
struct Person
{
    QString id = {};   ///< The account; signatures and filters go by it.
    QString name = {}; ///< The name to print.
    QString role = {}; ///< The role in which the person acts, such as "analyst".
};

/**
 * All that an entry claims, before the store has given it a place.
 *
 *     ozm::audit::Draft draft;
 *     draft.kind = ozm::audit::Kind::Setting;
 *     draft.user = {u"jdoe"_s, u"Jane Doe"_s, u"analyst"_s};
 *     draft.record = R"({"setting":"tolerance","value":5})";
 *     const auto number = store->append({draft});
 *
 * Members left at their defaults are left out of the entry, but for id and time, which are made up then.
 */
struct Draft
{
    Kind kind = Kind::Event; ///< What sort of act it was.

    /// Names the entry for ever; 32 hexadecimal digits. A store of several writers uses it to find out
    /// whether an append that broke off was stored.
    QByteArray id = {};
    /// Number of the entry that this one belongs to; 0 for none; below() for one of the same append.
    qint64 parent = 0;

    qint64 timeMs = 0;  ///< Milliseconds since 1970-01-01 UTC.
    int utcOffset = 0;  ///< Seconds east of UTC that the user's clock showed.
    QString zone = {};  ///< "Europe/Vienna".
    qint64 counter = 0; ///< Microseconds of a clock that never goes back, since the session began.

    Person user = {};     ///< Who did it.
    QString session = {}; ///< Names the run of the program; its entries share it.
    QString host = {};    ///< The machine's name.
    QString program = {}; ///< The application that recorded it.
    QString version = {}; ///< The application's version.

    QString context = {};     ///< "New", "Undo", "Redo"; empty for what is not a step.
    int outcomeCode = 0;      ///< 0 when the step was made; otherwise the code of its error.
    QString outcomeText = {}; ///< The error's message.
    QString reason = {};      ///< The user's own words.
    QString authoriser = {};  ///< Id of the second person whose word it took; empty when none was asked for.

    QString subjectType = {};    ///< The kind of object, such as "Label".
    QString subjectKey = {};     ///< The same text for the same subject; histories go by it.
    QStringList attributes = {}; ///< The attributes that the step changed.

    QByteArray record = {}; ///< Kept byte for byte, JSON or not.

    /// The parent of a draft that belongs to the one at @p index of the same append.
    [[nodiscard]] static constexpr qint64 below(qsizetype index) { return -1 - index; }
};

/**
 * An entry as a store holds it: the exact bytes, and the claims that they make.
 *
 * The bytes are JSON in UTF-8, form 1, described in docs/audit-store.md. They are hashed, never rewritten,
 * and everything else follows from them. An entry whose bytes were disposed of has none, and only a number.
 */
struct OZM_AUDIT_EXPORT Entry : Draft
{
    QString trail = {};    ///< The name of the trail that holds it.
    qint64 number = 0;     ///< Counts from 1 without gaps.
    QByteArray bytes = {}; ///< The entry itself; empty once it was disposed of.

    // Facts that a server added when it stored the entry; empty for a store without one.
    QString serverTime = {};   ///< The server's own clock, ISO 8601.
    QString serverUser = {};   ///< The account that the server knows the program by.
    QString serverClient = {}; ///< The address from which the server was asked.

    /// BadParameter when @p bytes are not an entry of a form that this version knows.
    [[nodiscard]] static Result<Entry> fromBytes(const QByteArray &bytes);

    /// The time as the clock on the wall showed it to the user.
    [[nodiscard]] QDateTime dateTime() const;
    /// The record as one line for people, or its bytes when it is not a record that this version knows.
    [[nodiscard]] QString text() const;
    /// True when only the entry's number and hash are left.
    [[nodiscard]] bool isDisposed() const { return bytes.isEmpty(); }
};

} // namespace ozm::audit
