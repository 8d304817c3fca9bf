#include "reports/SequenceCoverage.h"

#include <ozm_common_core_mini/ColumnNames.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

// Enzymes leave hardly any peptide that is longer.
constexpr qsizetype kShortestProtein = 30;
constexpr qsizetype kBlock = 10;
constexpr double kWater = 18.010565;
constexpr double kPercent = 100;

struct ResidueMass
{
    char16_t letter;
    double dalton; ///< Monoisotopic.
};

constexpr std::array kResidueMasses{
    ResidueMass{u'G', 57.021464},  ResidueMass{u'A', 71.037114},  ResidueMass{u'S', 87.032028},
    ResidueMass{u'P', 97.052764},  ResidueMass{u'V', 99.068414},  ResidueMass{u'T', 101.047678},
    ResidueMass{u'C', 103.009184}, ResidueMass{u'L', 113.084064}, ResidueMass{u'I', 113.084064},
    ResidueMass{u'N', 114.042927}, ResidueMass{u'D', 115.026943}, ResidueMass{u'Q', 128.058578},
    ResidueMass{u'K', 128.094963}, ResidueMass{u'E', 129.042593}, ResidueMass{u'M', 131.040485},
    ResidueMass{u'H', 137.058912}, ResidueMass{u'F', 147.068414}, ResidueMass{u'R', 156.101111},
    ResidueMass{u'Y', 163.063329}, ResidueMass{u'W', 186.079313}};

/// Invalid for a sequence with letters that stand for no residue.
QVariant calculatedMass(const QString &sequence)
{
    double mass = kWater;
    for (const QChar letter : sequence) {
        const auto *residue = std::ranges::find(kResidueMasses, letter.unicode(), &ResidueMass::letter);
        if (residue == kResidueMasses.end())
            return {};
        mass += residue->dalton;
    }
    return mass;
}

std::unique_ptr<RowNode> peptideAt(const RowNode &sample, const QString &sequence, qsizetype at)
{
    auto row =
        std::make_unique<RowNode>(QStringList{kName, kSequence, kStartPoint, kEndPoint, kMass, kCalcMr});
    row->setDataAt(kName, sample.getDataAt(kName));
    row->setDataAt(kSequence, sequence);
    row->setDataAt(kStartPoint, int(at) + 1);
    row->setDataAt(kEndPoint, int(at + sequence.size()));
    row->setDataAt(kMass, sample.getDataAt(kMass));
    row->setDataAt(kCalcMr, calculatedMass(sequence));
    return row;
}

std::unique_ptr<RowNode> blockAt(const QString &sequence, const QString &covered, qsizetype at)
{
    const QString mask = covered.mid(at, kBlock);
    auto row = std::make_unique<RowNode>(
        QStringList{kStartPoint, kEndPoint, kSequence, u"Covered"_s, u"Coverage"_s});
    row->setDataAt(kStartPoint, int(at) + 1);
    row->setDataAt(kEndPoint, int(at + mask.size()));
    row->setDataAt(kSequence, sequence.mid(at, kBlock));
    row->setDataAt(u"Covered"_s, mask);
    row->setDataAt(u"Coverage"_s, kPercent * double(mask.count(u'1')) / double(sequence.size()));
    return row;
}

} // namespace

SequenceCoverage coverageOf(const RowNode &protein, const QList<RowNode *> &samples)
{
    SequenceCoverage coverage;
    const QString whole = protein.getDataAt(kSequence).toString();
    QString covered(whole.size(), u'0');
    for (const RowNode *sample : whole.size() < kShortestProtein ? QList<RowNode *>() : samples) {
        const QString sequence = sample->getDataAt(kSequence).toString();
        if (sequence.isEmpty() || sequence.size() >= whole.size())
            continue;
        for (qsizetype at = whole.indexOf(sequence); at >= 0; at = whole.indexOf(sequence, at + 1)) {
            coverage.peptides.push_back(peptideAt(*sample, sequence, at));
            std::fill_n(covered.begin() + at, sequence.size(), u'1');
        }
    }
    for (qsizetype at = 0; at < whole.size(); at += kBlock)
        coverage.blocks.push_back(blockAt(whole, covered, at));
    return coverage;
}

} // namespace workbench
