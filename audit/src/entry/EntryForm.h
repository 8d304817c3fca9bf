#pragma once

#include <ozm_audit/Entry.h>

#include <QByteArray>

#include <array>

namespace ozm::audit {

/// The form of entries that this version writes, and the newest that it reads.
inline constexpr int kEntryForm = 1;

/// The part of an entry that its writer claims, without the opening brace. The store puts its own part, see
/// storePart(), in front of it.
[[nodiscard]] QByteArray claimsOf(const Draft &draft);

/// The opening brace and the members that only the store knows.
[[nodiscard]] QByteArray storePart(const QByteArray &trail, qint64 number, qint64 parent);

/// The parent of a draft as a number, when the first draft of its append is numbered @p first.
[[nodiscard]] inline qint64 parentNumber(qint64 parent, qint64 first)
{
    return parent < 0 ? first + (-1 - parent) : parent;
}

/**
 * An entry's members as its bytes hold them: texts are UTF-8 and may point into the bytes.
 */
struct EntryMembers
{
    qint64 form = 0;
    QByteArray trail;
    qint64 number = 0;
    qint64 parent = 0;
    QByteArray serverTime;
    QByteArray serverUser;
    QByteArray serverClient;
    QByteArray id;
    QByteArray time;
    qint64 utcOffset = 0;
    QByteArray zone;
    qint64 counter = 0;
    QByteArray kind;
    QByteArray userId;
    QByteArray userName;
    QByteArray userRole;
    QByteArray session;
    QByteArray host;
    QByteArray program;
    QByteArray version;
    QByteArray context;
    qint64 outcomeCode = 0;
    QByteArray outcomeText;
    QByteArray reason;
    QByteArray authoriser;
    QByteArray subjectType;
    QByteArray subjectKey;
    QByteArray attributes; ///< Joined by line feeds.
    QByteArray record;
    QByteArray record64;

    /// False when the bytes are not an entry of a known form.
    [[nodiscard]] bool read(QByteArrayView bytes);
    [[nodiscard]] qint64 timeMs() const;
};

/// The columns beside an entry; everything in them follows from its bytes.
struct IndexRow
{
    qint64 timeMs = 0;
    QByteArray kind;
    QByteArray user;
    qint64 outcome = 0;
    qint64 parent = 0;
    QByteArray subject; ///< Type, line feed, key; empty without a subject.
    QByteArray attributes;

    [[nodiscard]] static IndexRow of(const EntryMembers &members);
    bool operator==(const IndexRow &) const = default;
};

[[nodiscard]] QByteArray subjectIndex(QByteArrayView type, QByteArrayView key);

/// "2026-11-21T21:00:00.123Z".
[[nodiscard]] QByteArray utcText(qint64 ms);
/// The reverse; -1 for a text that is not such a time.
[[nodiscard]] qint64 utcFromText(QByteArrayView text);

} // namespace ozm::audit
