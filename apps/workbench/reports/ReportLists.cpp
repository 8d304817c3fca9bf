#include "reports/ReportLists.h"

#include <ozm_common_core_mini/ColumnNames.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

// In dalton.
constexpr double kProtonMass = 1.007276466621;
// Peptides are seen with a charge more or less than the one that was chosen for them.
constexpr int kFewestCharges = 3;
// Beyond, spectra show no peptide any more; a charge that somebody mistyped makes no long table.
constexpr int kMostCharges = 50;

std::unique_ptr<RowNode> ionOf(double mass, int charge)
{
    auto ion = std::make_unique<RowNode>(QStringList{kCharge, kPrecursorMz});
    ion->setDataAt(kCharge, charge);
    ion->setDataAt(kPrecursorMz, mzOf(mass, charge));
    return ion;
}

QList<RowNode *> pointersTo(const std::vector<std::unique_ptr<RowNode>> &rows)
{
    QList<RowNode *> pointers;
    for (const auto &row : rows)
        pointers.append(row.get());
    return pointers;
}

} // namespace

int highestCharge(int charge)
{
    return std::clamp(charge + 1, kFewestCharges, kMostCharges);
}

double mzOf(double mass, int charge)
{
    return mass / charge + kProtonMass;
}

ReportLists::ReportLists(const std::vector<RowNode> &samples)
{
    // Filling a template reads rows, and asks for them like this.
    for (const RowNode &sample : samples)
        m_samples.append(const_cast<RowNode *>(&sample));
}

QMap<QString, QList<RowNode *>> ReportLists::about(const RowNode *sample)
{
    m_ions.clear();
    const double mass = sample ? sample->getDataAt(kMass).toDouble() : 0;
    const int charge = sample ? sample->getDataAt(kCharge).toInt() : 0;
    for (int each = 1; mass > 0 && each <= highestCharge(charge); ++each)
        m_ions.push_back(ionOf(mass, each));
    m_coverage = sample ? coverageOf(*sample, m_samples) : SequenceCoverage();
    return {{u"Samples"_s, m_samples},
            {u"ChargeStates"_s, pointersTo(m_ions)},
            {u"Peptides"_s, pointersTo(m_coverage.peptides)},
            {u"Blocks"_s, pointersTo(m_coverage.blocks)}};
}

} // namespace workbench
