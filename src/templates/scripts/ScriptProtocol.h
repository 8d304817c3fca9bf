#pragma once

#include "templates/scripts/ScriptRealm.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

#include <optional>
#include <tuple>
#include <utility>
#include <variant>

namespace ozm {

/// Types that say of what they consist.
template <typename Message>
concept MadeOfFields = requires(Message &message)
{
    Message::fields(message);
};

template <MadeOfFields Message>
QDataStream &operator<<(QDataStream &stream, const Message &message)
{
    return std::apply([&stream](const auto &...field) -> QDataStream & { return (stream << ... << field); },
                      Message::fields(message));
}

template <MadeOfFields Message>
QDataStream &operator>>(QDataStream &stream, Message &message)
{
    return std::apply([&stream](auto &...field) -> QDataStream & { return (stream >> ... >> field); },
                      Message::fields(message));
}

/**
 * The messages between an application and the process that runs its scripts, over that process's standard
 * input and output. A message is a frame: four bytes of length, the highest first, then as many bytes.
 *
 * The first frame is the process's greeting, which is the same in all versions. Requests are answered in their
 * order: CreateRealm by Created; RunScripts by Started, a ScriptOutcome for each piece as it ends, and Ended.
 */
namespace scriptprotocol {

// Goes up with every change of a message.
constexpr quint32 kVersion = 2;

// A length beyond this one does not come from a process that keeps to the rules.
constexpr quint32 kLongestFrame = 1U << 30U;

// With which the process is started; behind it the memory that it may take, in bytes.
inline constexpr QLatin1StringView kMemoryOption("--memory");

struct CreateRealm
{
    quint32 realm = 0;
    ScriptLibrary library = {};
    qint64 deadline = 0; ///< In milliseconds.

    static auto fields(auto &self)
    {
        return std::tie(self.realm, self.library.path, self.library.content, self.deadline);
    }
};

struct RunScripts
{
    quint32 realm = 0;
    qint64 deadline = 0; ///< In milliseconds.
    QString locale = {}; ///< The application's own; empty when that is the system's.
    QList<ScriptTask> tasks = {};
    QMap<QString, QVariant> parameters = {};

    static auto fields(auto &self)
    {
        return std::tie(self.realm, self.deadline, self.locale, self.tasks, self.parameters);
    }
};

struct DropRealm
{
    quint32 realm = 0;

    static auto fields(auto &self) { return std::tie(self.realm); }
};

struct Created
{
    QString trouble = {}; ///< Null without any.

    static auto fields(auto &self) { return std::tie(self.trouble); }
};

struct Started
{
    static auto fields(auto &) { return std::tie(); }
};

struct Ended
{
    static auto fields(auto &) { return std::tie(); }
};

using Request = std::variant<CreateRealm, RunScripts, DropRealm>;
using Answer = std::variant<Created, Started, ScriptOutcome, Ended>;

constexpr QDataStream::Version kStreamVersion = QDataStream::Qt_6_4;

/// The frame of a message; empty when it would be too long.
template <typename... Kind>
[[nodiscard]] QByteArray framed(const std::variant<Kind...> &message)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(kStreamVersion);
    stream << quint32(0) << static_cast<quint8>(message.index());
    std::visit([&stream](const auto &each) { stream << each; }, message);
    const qsizetype length = bytes.size() - qsizetype(sizeof(quint32));
    if (stream.status() != QDataStream::Ok || length > qsizetype(kLongestFrame))
        return {};
    stream.device()->seek(0);
    stream << static_cast<quint32>(length);
    return bytes;
}

template <typename Message, std::size_t... Index>
[[nodiscard]] std::optional<Message> unframed(const QByteArray &payload, std::index_sequence<Index...>)
{
    QDataStream stream(payload);
    stream.setVersion(kStreamVersion);
    quint8 kind = 0;
    stream >> kind;
    Message message;
    const auto readAs = [&stream](auto &each) { return (stream >> each).status() == QDataStream::Ok; };
    const bool read = ((kind == Index && readAs(message.template emplace<Index>())) || ...);
    return read && stream.atEnd() ? std::optional<Message>(std::move(message)) : std::nullopt;
}

/// The message in a frame; nothing when it is none of those that @p Message may be.
template <typename Message>
[[nodiscard]] std::optional<Message> unframed(const QByteArray &payload)
{
    return unframed<Message>(payload, std::make_index_sequence<std::variant_size_v<Message>>());
}

/// The frame with which the process begins.
[[nodiscard]] QByteArray greeting();
/// The version in a greeting; nothing when @p payload is not one.
[[nodiscard]] std::optional<quint32> greetedVersion(const QByteArray &payload);

/// Takes bytes as they come, and gives what is in the frames.
class Frames
{
public:
    void append(const QByteArray &bytes) { m_bytes.append(bytes); }
    /// The next one, once it is there as a whole.
    [[nodiscard]] std::optional<QByteArray> next();
    /// True when what comes next cannot be a frame.
    [[nodiscard]] bool isBroken() const { return m_broken; }

private:
    QByteArray m_bytes;
    qsizetype m_read = 0;
    bool m_broken = false;
};

} // namespace scriptprotocol

} // namespace ozm
