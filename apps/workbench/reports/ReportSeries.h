#pragma once

#include "reports/Report.h"

#include <ozm_common_stable/Error.h>
#include <ozm_common_stable/Result.h>

#include <QString>
#include <QStringList>

#include <functional>

namespace workbench {

/// Called before each report with its name, and at the end; false stops.
using ReportProgress = std::function<bool(int done, int count, const QString &name)>;

/// How the making of reports ended.
struct ReportSeries
{
    int files = 0; ///< That were written; none of them when a report in one file was canceled.
    QStringList troubles = {};
    bool isCanceled = false;
};

/// Writes all reports into the one file @p path: HTML by its extension, else PDF with a bookmark for each. The file is
/// replaced only when all of it is written.
[[nodiscard]] ozm::Result<ReportSeries> writeReportsToFile(ReportFiller &reports, const QString &path,
                                                           const ReportProgress &progress);

/// Writes each report into a PDF of its own in @p folder, which is made when it is not there. Files of the same name are
/// replaced. After an error, or when it was canceled, those that were written before are there.
[[nodiscard]] ozm::Result<ReportSeries> writeReportsToFolder(ReportFiller &reports, const QString &folder,
                                                             const ReportProgress &progress);

} // namespace workbench
