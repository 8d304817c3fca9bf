#include "audit/AuditTrailJson.h"

#include "audit/AuditTrail.h"

#include <ozm_widgets/WholeFile.h>

#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

QByteArray listOf(const std::vector<AuditEntry *> &entries);

/// True when the bytes may stand inside a JSON document. A byte-order mark is let pass by readers at the
/// beginning of a document only.
bool isEmbeddableJson(const QByteArray &bytes)
{
    return !bytes.startsWith("\xEF\xBB\xBF") && !QJsonDocument::fromJson(bytes).isNull();
}

QJsonObject errorJson(const Error &error)
{
    return {{u"code"_s, static_cast<int>(error.errorCode())}, {u"message"_s, error.errorMessage()}};
}

/// All of an entry that can be put together as objects: known records have nothing that would be lost.
QJsonObject headOf(const AuditEntry &entry)
{
    QJsonObject head;
    if (entry.known)
        head = QJsonDocument::fromJson(entry.record.record).object();
    head.insert("id"_L1, entry.record.number);
    head.insert("kind"_L1, ozm::audit::kindToString(entry.record.kind));
    head.insert("time"_L1, entry.record.dateTime().toString(Qt::ISODateWithMs));
    head.insert("user"_L1, entry.record.user.id);
    if (entry.record.outcomeCode != 0)
        head.insert("error"_L1, errorJson(entry.outcome()));
    if (entry.isUnfinished())
        head.insert("finished"_L1, false);
    if (!entry.known && !isEmbeddableJson(entry.record.record))
        head.insert("recordBase64"_L1, QString::fromLatin1(entry.record.record.toBase64()));
    return head;
}

QByteArray entryJson(const AuditEntry &entry)
{
    QByteArray json = QJsonDocument(headOf(entry)).toJson(QJsonDocument::Compact);
    json.chop(1);
    if (!entry.known && isEmbeddableJson(entry.record.record))
        json += ",\"record\":" + entry.record.record;
    if (!entry.children.empty())
        json += ",\"children\":" + listOf(entry.children);
    return json + '}';
}

QByteArray listOf(const std::vector<AuditEntry *> &entries)
{
    QByteArray json = "[";
    for (const AuditEntry *entry : entries) {
        json += json.size() > 1 ? ",\n" : "\n";
        json += entryJson(*entry);
    }
    return json + "\n]";
}

} // namespace

QByteArray auditTrailJson(const AuditTrail &trail)
{
    return listOf(trail.entries()) + '\n';
}

Error writeAuditTrailJson(const AuditTrail &trail, const QString &path)
{
    const Error error = ozm::writeWhole(path, auditTrailJson(trail));
    if (!error.hasError())
        return {};
    return Error(ErrorCode::FileAccess,
                 QCoreApplication::translate("AuditTrailJson", "\"%1\" cannot be written: %2.")
                     .arg(QDir::toNativeSeparators(path), error.errorMessage()))
        .ecatch(OZM_HERE);
}

} // namespace workbench
