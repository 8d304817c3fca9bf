#pragma once

#include <ozm_common_core_mini/RowNode.h>

#include <QList>

#include <memory>
#include <vector>

namespace workbench {

/// The part of a protein's sequence that samples were found for.
struct SequenceCoverage
{
    /// The samples whose sequence the protein has, for each place: name, sequence, first and last residue, mass, and
    /// the mass that the sequence has.
    std::vector<std::unique_ptr<RowNode>> peptides;
    /// Ten residues each: the first and the last, the sequence, "Covered" with a 1 for each residue that a peptide has
    /// and a 0 for any other, and "Coverage", the covered share of the whole sequence in percent.
    std::vector<std::unique_ptr<RowNode>> blocks;
};

/// Of @p protein by @p samples. A sample with a sequence as short as that of a peptide is covered by none.
[[nodiscard]] SequenceCoverage coverageOf(const RowNode &protein, const QList<RowNode *> &samples);

} // namespace workbench
