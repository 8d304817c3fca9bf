#include "reports/ReportContext.h"

#include "data/DataColumns.h"
#include "reports/StickPlot.h"
#include "samples/SampleTable.h"

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/RowNode.h>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

QVariantMap sampleOf(const RowNode &row)
{
    QVariantMap sample;
    for (const QString &column : SampleTable::columns())
        sample.insert(column.toLower(), row.getDataAt(column).toString());
    return sample;
}

} // namespace

ReportContext::ReportContext(const QString &userName, const QString &sourceFile,
                             const std::vector<RowNode> &rows)
    : user(userName)
    , source(sourceFile)
{
    for (const RowNode &row : rows)
        samples.append(sampleOf(row));
}

ReportContext ReportContext::about(const RowNode &row) const
{
    ReportContext context = *this;
    context.number = u"%1"_s.arg(SampleTable::idOf(row), 4, 10, QChar(u'0'));
    context.format = row.getDataAt(kFormat).toString();
    context.description = row.getDataAt(kDescription).toString();
    context.kind = row.getDataAt(kKind).toString();
    context.size = row.getDataAt(kSize).toString();
    context.path = row.getDataAt(kPath).toString();
    context.mass = row.getDataAt(kMass).toDouble();
    context.charge = row.getDataAt(kCharge).toInt();
    if (trailOf) {
        const ReportTrail trail = trailOf(row);
        context.signatures = trail.signatures;
        context.changedSinceEntry = trail.changes;
    }
    return context;
}

QByteArray ReportContext::ionPlot() const
{
    return stickPlot(mass, charge);
}

} // namespace workbench
