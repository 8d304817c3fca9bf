#include "audit/AuditTrailCsv.h"

#include "audit/AuditTrail.h"

#include <ozm_common_core_mini/CsvWriter.h>

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

using Rows = QList<QList<QString>>;

void append(Rows &rows, const AuditEntry &entry)
{
    rows.append({QString::number(entry.record.number),
                 entry.parent ? QString::number(entry.parent->record.number) : QString(),
                 entry.record.dateTime().toString(Qt::ISODateWithMs), entry.record.user.id, entry.text,
                 entry.record.outcomeText});
    for (const AuditEntry *child : entry.children)
        append(rows, *child);
}

} // namespace

Error writeAuditTrailCsv(const AuditTrail &trail, const QString &path)
{
    Rows rows{{u"Id"_s, u"Parent"_s, u"Time"_s, u"User"_s, u"Text"_s, u"Error"_s}};
    for (const AuditEntry *entry : trail.entries())
        append(rows, *entry);
    if (ozm::CsvWriter::writeFile(path, rows))
        return {};
    return Error(ErrorCode::FileAccess,
                 QCoreApplication::translate("AuditTrailCsv", "\"%1\" cannot be written.")
                     .arg(QDir::toNativeSeparators(path)))
        .ecatch(OZM_HERE);
}

} // namespace workbench
