#pragma once

#include "reports/SequenceCoverage.h"

#include <ozm_common_core_mini/RowNode.h>

#include <QList>
#include <QMap>
#include <QString>

#include <memory>
#include <vector>

namespace workbench {

/// The charges of a molecule that a report shows: those around @p charge.
[[nodiscard]] int highestCharge(int charge);
/// The m/z of a protonated molecule of @p mass, in dalton.
[[nodiscard]] double mzOf(double mass, int charge);

/**
 * Rows that a part of a report can repeat for: "Samples", all samples of the report; "ChargeStates", the ions of the one
 * sample that a page is about, each with its charge and m/z; "Peptides" and "Blocks", the coverage of its sequence by
 * the other samples.
 */
class ReportLists
{
public:
    /// @p samples must outlive this.
    explicit ReportLists(const std::vector<RowNode> &samples);

    /// The lists of a page about @p sample; null for a page about all. The rows live until the next call.
    [[nodiscard]] QMap<QString, QList<RowNode *>> about(const RowNode *sample);

private:
    QList<RowNode *> m_samples;
    std::vector<std::unique_ptr<RowNode>> m_ions;
    SequenceCoverage m_coverage;
};

} // namespace workbench
