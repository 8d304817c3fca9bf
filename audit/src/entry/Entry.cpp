#include "EntryForm.h"

#include "../Texts.h"

#include <ozm_audit/Entry.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <array>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// In the order of Kind.
constexpr std::array kKinds{
    "command"_L1,  "macro"_L1,     "commit"_L1,    "event"_L1,     "session"_L1, "clock"_L1,
    "setting"_L1,  "reason"_L1,    "signature"_L1, "review"_L1,    "export"_L1,  "archive"_L1,
    "disposal"_L1, "redaction"_L1, "gap"_L1,       "re-anchor"_L1,
};

QString textOf(const QByteArray &utf8)
{
    return QString::fromUtf8(utf8);
}

/// Entries outlive the bytes that they were read from.
QByteArray deep(const QByteArray &bytes)
{
    return {bytes.constData(), bytes.size()};
}

void takeClaims(Entry &entry, const EntryMembers &read)
{
    entry.id = deep(read.id);
    entry.kind = kindFromString(textOf(read.kind));
    entry.parent = read.parent;
    entry.timeMs = read.timeMs();
    entry.utcOffset = int(read.utcOffset);
    entry.zone = textOf(read.zone);
    entry.counter = read.counter;
    entry.user = {textOf(read.userId), textOf(read.userName), textOf(read.userRole)};
    entry.session = textOf(read.session);
    entry.host = textOf(read.host);
    entry.program = textOf(read.program);
    entry.version = textOf(read.version);
    entry.context = textOf(read.context);
    entry.outcomeCode = int(read.outcomeCode);
    entry.outcomeText = textOf(read.outcomeText);
    entry.reason = textOf(read.reason);
    entry.authoriser = textOf(read.authoriser);
    entry.subjectType = textOf(read.subjectType);
    entry.subjectKey = textOf(read.subjectKey);
    if (!read.attributes.isEmpty())
        entry.attributes = textOf(read.attributes).split(u'\n');
    entry.record = read.record64.isEmpty() ? deep(read.record) : QByteArray::fromBase64(read.record64);
}

} // namespace

QString kindToString(Kind kind)
{
    const auto index = static_cast<std::size_t>(kind);
    return index < kKinds.size() ? QString(kKinds.at(index)) : QString();
}

Kind kindFromString(const QString &text)
{
    const auto *found = std::find(kKinds.begin(), kKinds.end(), text);
    return found == kKinds.end() ? Kind::Event : static_cast<Kind>(found - kKinds.begin());
}

Result<Entry> Entry::fromBytes(const QByteArray &bytes)
{
    EntryMembers read;
    if (!read.read(bytes)) {
        return Error(ErrorCode::BadParameter,
                     Texts::tr("This is not an entry of a form that this version knows."))
            .ecatch(OZM_HERE);
    }
    Entry entry;
    takeClaims(entry, read);
    entry.trail = textOf(read.trail);
    entry.number = read.number;
    entry.bytes = bytes;
    entry.serverTime = textOf(read.serverTime);
    entry.serverUser = textOf(read.serverUser);
    entry.serverClient = textOf(read.serverClient);
    return entry;
}

QDateTime Entry::dateTime() const
{
    return QDateTime::fromMSecsSinceEpoch(timeMs, Qt::OffsetFromUTC, utcOffset);
}

QString Entry::text() const
{
    bool parsed = false;
    const OperationLogItemData data(record, &parsed);
    return parsed && data.isValid() ? data.toString() : QString::fromUtf8(record);
}

} // namespace ozm::audit
