#pragma once

#include "reports/ReportContext.h"

#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_stable/Error.h>
#include <ozm_common_stable/Result.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

namespace workbench {

/// A template of the workbench's own.
struct ReportTemplate
{
    QString title;
    QString path;
    bool forGroup; ///< Made for all samples together, rather than for each.
};

/// The content of a report: pages that stand by themselves, and what could not be filled in.
struct ReportPages
{
    QStringList pages;
    QStringList troubles;

    void append(const ReportPages &other);
};

[[nodiscard]] const QList<ReportTemplate> &reportTemplates();

/// Fills the template in the file @p path with each of @p rows, or, as a group, with all of them.
[[nodiscard]] ozm::Result<ReportPages>
fillReport(const QString &path, bool asGroup, const std::vector<RowNode> &rows, const ReportContext &context);

/// The pages as one HTML document, in which each begins on a new sheet; or with lines between them.
enum class PageEnd
{
    Sheet,
    Line
};
[[nodiscard]] QString reportHtml(const ReportPages &report, PageEnd end = PageEnd::Sheet);

[[nodiscard]] ozm::Error saveReportHtml(const ReportPages &report, const QString &path);
/// On A4, with the number of each sheet at its foot.
[[nodiscard]] ozm::Error saveReportPdf(const ReportPages &report, const QString &path);

} // namespace workbench
