#include <ozm_common_core_mini/ColumnFriendlyName.h>

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/VariantItems.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kAsIs = -1;

using Summary = ColumnFriendlyName::Summary;

struct Row
{
    const QString *column;
    QLatin1StringView friendlyName;
    QLatin1StringView toolTip;
    int decimals;
    Summary summary = Summary::Values;
};

constexpr std::array kColumns{
    Row{&kId, "ID"_L1, "Number of the row in its table"_L1, kAsIs},
    Row{&kName, "Name"_L1, "Name given by the user"_L1, kAsIs},
    Row{&kTitle, "Title"_L1, "Title shown above the view"_L1, kAsIs},
    Row{&kType, "Type"_L1, "Kind of the row"_L1, kAsIs},
    Row{&kComment, "Comment"_L1, "Free remark"_L1, kAsIs},
    Row{&kFilename, "File name"_L1, "File that the data was read from"_L1, kAsIs},
    Row{&kPosition, "Position"_L1, "Position in the sequence, counted from 1"_L1, kAsIs},
    Row{&kStartPosition, "Start position"_L1, "First residue, counted from 1"_L1, kAsIs},
    Row{&kLength, "Length"_L1, "Number of residues"_L1, kAsIs, Summary::Range},
    Row{&kSamplesId, "Sample ID"_L1, "Number of the sample"_L1, kAsIs},
    Row{&kSamplesRunsId, "Sample run ID"_L1, "Number of the acquisition of the sample"_L1, kAsIs},
    Row{&kSampleName, "Sample name"_L1, "Name of the sample"_L1, kAsIs},
    Row{&kSampleType, "Sample type"_L1, "Role of the sample in the study"_L1, kAsIs},
    Row{&kSourceType, "Source type"_L1, "Where the run came from"_L1, kAsIs},
    Row{&kMachineFilesId, "Machine file ID"_L1, "Number of the instrument's file"_L1, kAsIs, Summary::Count},
    Row{&kPeptidesId, "Peptide ID"_L1, "Number of the peptide"_L1, kAsIs},
    Row{&kPrimaryPeptidesId, "Primary peptide ID"_L1, "Number of the peptide that stands for its group"_L1,
        kAsIs},
    Row{&kSequence, "Sequence"_L1, "Amino acids in one-letter code"_L1, kAsIs},
    Row{&kCharge, "Charge"_L1, "Charge state"_L1, kAsIs, Summary::Range},
    Row{&kMass, "Mass (Da)"_L1, "Neutral monoisotopic mass in dalton"_L1, 4, Summary::Range},
    Row{&kCalcMr, "Calculated mass (Da)"_L1,
        "Neutral monoisotopic mass calculated from the sequence, in dalton"_L1, 4, Summary::Range},
    Row{&kModification, "Modification"_L1, "Name of the modification"_L1, kAsIs},
    Row{&kModificationPercent, "Modified (%)"_L1, "Share of the modified form"_L1, 2, Summary::Mean},
    Row{&kModificationsNameList, "Modifications"_L1, "Names of the modifications"_L1, kAsIs},
    Row{&kModificationsPositionList, "Modification positions"_L1, "Modified residues, counted from 1"_L1,
        kAsIs},
    Row{&kProteinId, "Protein ID"_L1, "Number of the protein"_L1, kAsIs},
    Row{&kProteinIdCountList, "Protein counts"_L1, "Proteins with the number of their copies"_L1, kAsIs},
    Row{&kProteinName, "Protein name"_L1, "Name of the protein"_L1, kAsIs},
    Row{&kAccessionName, "Accession"_L1, "Entry of the protein in its data bank"_L1, kAsIs},
    Row{&kProteinAccessionName, "Protein accession"_L1, "Data bank and entry of the protein"_L1, kAsIs},
    Row{&kAnnotationCategory, "Annotation category"_L1, "Group that the annotation belongs to"_L1, kAsIs},
    Row{&kAnnotationValue, "Annotation"_L1, "What the annotation says"_L1, kAsIs},
    Row{&kTraceType, "Trace type"_L1, "Kind of chromatogram"_L1, kAsIs},
    Row{&kPeaksId, "Peak ID"_L1, "Number of the elution peak"_L1, kAsIs, Summary::Count},
    Row{&kStartTime, "Start time (min)"_L1, "Start of the peak in minutes"_L1, 3, Summary::Range},
    Row{&kEndTime, "End time (min)"_L1, "End of the peak in minutes"_L1, 3, Summary::Range},
    Row{&kStartPoint, "Start point"_L1, "Intensity at the start of the peak"_L1, kAsIs, Summary::Range},
    Row{&kEndPoint, "End point"_L1, "Intensity at the end of the peak"_L1, kAsIs, Summary::Range},
    Row{&kScanTime, "Scan time (min)"_L1, "Retention time of the scan in minutes"_L1, 3, Summary::Range},
    Row{&kXICAreaStart, "XIC start (min)"_L1,
        "Start of the integrated part of the extracted-ion chromatogram in minutes"_L1, 3, Summary::Range},
    Row{&kXICAreaEnd, "XIC end (min)"_L1,
        "End of the integrated part of the extracted-ion chromatogram in minutes"_L1, 3, Summary::Range},
    Row{&kPrecursorMz, "Precursor m/z"_L1, "Mass-to-charge ratio of the precursor"_L1, 4, Summary::Range},
    Row{&kPrecursorMzStart, "Precursor m/z from"_L1, "Lower end of the precursor window"_L1, 4,
        Summary::Range},
    Row{&kPrecursorMzEnd, "Precursor m/z to"_L1, "Upper end of the precursor window"_L1, 4, Summary::Range},
    Row{&kMassStart, "Mass from (Da)"_L1, "Lower end of the mass window in dalton"_L1, 4, Summary::Range},
    Row{&kMassEnd, "Mass to (Da)"_L1, "Upper end of the mass window in dalton"_L1, 4, Summary::Range},
    Row{&kMassArea, "Mass area"_L1, "Area under the deconvoluted mass"_L1, kAsIs, Summary::Sum},
    Row{&kGaussWidth, "Peak width"_L1, "Width of the fitted Gaussian"_L1, 4, Summary::Mean},
    Row{&kOffset, "Offset"_L1, "Shift applied to the target"_L1, 4, Summary::Mean},
    Row{&kPlotsId, "Plot ID"_L1, "Number of the plot"_L1, kAsIs},
    Row{&kPlotType, "Plot type"_L1, "Kind of plot"_L1, kAsIs},
    Row{&kSearchResultsId, "Search result ID"_L1, "Number of the search result"_L1, kAsIs},
    Row{&kSearchResultFilename, "Search result file"_L1, "File that the search engine wrote"_L1, kAsIs},
    Row{&kSearchResultAliasName, "Search result alias"_L1, "Name that the user gave the search result"_L1,
        kAsIs},
    Row{&kSearchEngine, "Search engine"_L1, "Program that made the search"_L1, kAsIs},
};

QString itemsToString(const QVariantList &items, int decimals);

QString itemToString(const QVariant &value, int decimals)
{
    if (value.metaType() == QMetaType::fromType<VariantItems>())
        return itemsToString(value.value<VariantItems>().toList(), decimals);
    if (value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList)
        return itemsToString(value.toList(), decimals);
    if (decimals == kAsIs)
        return value.toString();
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber ? QString::number(number, 'f', decimals) : value.toString();
}

QString itemsToString(const QVariantList &items, int decimals)
{
    QStringList texts;
    for (const QVariant &item : items)
        texts.append(itemToString(item, decimals));
    return texts.join("; "_L1);
}

} // namespace

QString ColumnFriendlyName::FriendlyNameStruct::valueToString(const QVariant &value) const
{
    return itemToString(value, decimals);
}

const QMap<QString, ColumnFriendlyName::FriendlyNameStruct> &ColumnFriendlyName::getColumnFriendlyNames()
{
    static const QMap<QString, FriendlyNameStruct> names = [] {
        QMap<QString, FriendlyNameStruct> all;
        for (const Row &row : kColumns)
            all.insert(*row.column, {row.friendlyName, row.toolTip, row.decimals, row.summary});
        return all;
    }();
    return names;
}

QString ColumnFriendlyName::friendlyName(const QString &column)
{
    const auto found = getColumnFriendlyNames().constFind(column);
    return found != getColumnFriendlyNames().constEnd() ? found->friendlyName : column;
}

QString ColumnFriendlyName::toolTip(const QString &column)
{
    const auto found = getColumnFriendlyNames().constFind(column);
    return found != getColumnFriendlyNames().constEnd() ? found->toolTip : column;
}
