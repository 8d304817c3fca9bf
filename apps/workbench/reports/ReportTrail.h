#pragma once

#include <ozm_common_core_mini/RowNode.h>

#include <QString>

namespace ozm::audit {
class Store;
}

namespace workbench {

/// The audit trail of one sample, for its report.
struct ReportTrail
{
    QString signatures; ///< Meaning, printed name and time of each, in lines.
    int changes = 0;    ///< Since the sample was entered.

    [[nodiscard]] static ReportTrail of(const ozm::audit::Store &store, const RowNode &row);
};

} // namespace workbench
