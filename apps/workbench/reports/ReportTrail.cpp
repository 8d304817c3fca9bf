#include "reports/ReportTrail.h"

#include <ozm_audit_widgets/Signature.h>
#include <ozm_audit_widgets/SubjectHistory.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace workbench {

ReportTrail ReportTrail::of(const ozm::audit::Store &store, const RowNode &row)
{
    const ozm::OperationLogItemSubject subject(ozm::OperationLogItemSubject::Type::Label, row);
    const QString type = subject.typeToString();
    const QString key = QString::fromUtf8(
        QJsonDocument(subject.toJsonObject().value("key"_L1).toObject()).toJson(QJsonDocument::Compact));
    ReportTrail trail;
    QStringList lines;
    for (const ozm::audit::Entry &signature : ozm::audit::signaturesOf(store, type, key).valueOr({}))
        lines.append(ozm::audit::signatureText(signature));
    trail.signatures = lines.join(u'\n');
    const auto states = ozm::audit::subjectStates(store, type, key).valueOr({});
    trail.changes = int(std::ranges::count_if(states, [](const ozm::audit::SubjectState &state) {
        return ozm::OperationLogItemData(state.entry.record).type() == ozm::OperationLogItemType::Set;
    }));
    return trail;
}

} // namespace workbench
