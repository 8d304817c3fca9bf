#pragma once

#include "reports/Report.h"

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/ReportBook.h>
#include <ozm_widgets/ReportPaper.h>

namespace workbench {

/// How each report looks: on paper, in the report dialog and in the template editor.
[[nodiscard]] ozm::ReportPaperOptions reportPaperOptions();

/// The facts that the PDF of a report carries about itself.
[[nodiscard]] ozm::ReportBookOptions bookOptions(const ReportContext &context);

/// Adds each page of @p report to @p book, with a bookmark.
ozm::Error addSheets(const ReportPages &report, ozm::ReportBook &book);

} // namespace workbench
