#include "OperationLogTables.h"

#include "LogValue.h"

#include <ozm_common_core_mini/ColumnNames.h>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using Subject = OperationLogItemSubject::Type;

struct SubjectRow
{
    Subject type;
    QString text;
    QStringList keyColumns;
};

QList<SubjectRow> subjectRows()
{
    return {
        {Subject::None, u"None"_s, {}},
        {Subject::Project, u"Project"_s, {}},
        {Subject::Trace, u"Trace"_s, {kTraceType, kSamplesId}},
        {Subject::ElutionPeak,
         u"ElutionPeak"_s,
         {kPeaksId, kStartTime, kEndTime, kStartPoint, kEndPoint, kSamplesId}},
        {Subject::Peptide,
         u"Peptide"_s,
         {kPeptidesId, kSequence, u"Sequences"_s, kCharge, kModificationsNameList, kModificationsPositionList,
          kFilename, kXICAreaStart, kXICAreaEnd}},
        {Subject::PepmapCandidate, u"PepmapCandidate"_s, {kSequence, kCalcMr}},
        {Subject::PepmapSample, u"PepmapSample"_s, {kId, kSampleName, kType, kSampleType}},
        {Subject::Plot, u"Plot"_s, {kPlotsId, kTitle, kPlotType}},
        {Subject::Protein, u"Protein"_s, {kProteinName, kAccessionName, kProteinAccessionName, kSamplesId}},
        {Subject::ColumnFiltersPreset, u"ColumnFiltersPreset"_s, {}},
        {Subject::ProteinAnnotation,
         u"ProteinAnnotation"_s,
         {kProteinName, kAccessionName, kProteinAccessionName, kStartPosition, kLength, kAnnotationCategory,
          kAnnotationValue, kComment}},
        {Subject::SampleRun, u"SampleRun"_s, {kSamplesId, kSourceType}},
        {Subject::File, u"File"_s, {kName}},
        {Subject::IntactMass, u"IntactMass"_s, {kSequence, kMassStart, kMassEnd, kMassArea, kSamplesRunsId}},
        {Subject::XIC, u"XIC"_s, {kPrecursorMz, kPrecursorMzStart, kPrecursorMzEnd}},
        {Subject::PrimaryPeptide,
         u"PrimaryPeptide"_s,
         {kPeptidesId, kSequence, kModificationsNameList, kModificationsPositionList, kFilename, kCharge,
          kXICAreaStart, kXICAreaEnd}},
        {Subject::PrimaryPeptideXIC, u"PrimaryPeptideXIC"_s, {kPrimaryPeptidesId}},
        {Subject::Scan, u"Scan"_s, {kMachineFilesId, kScanTime}},
        {Subject::SearchResult,
         u"SearchResult"_s,
         {kSearchResultsId, kSearchResultFilename, kSearchResultAliasName, kSearchEngine}},
        // The column without a name is in the stored layout: some data banks keep their key in one.
        {Subject::ProteinDataBank, u"ProteinDataBank"_s, {kName, QString()}},
        {Subject::Label, u"Label"_s, {kName}},
        {Subject::BottomUp, u"BottomUp"_s, {kProteinId, kPosition, kModification, kModificationPercent}},
        {Subject::ProteinTarget, u"ProteinTarget"_s, {kId, kProteinIdCountList, kGaussWidth, kOffset}},
        {Subject::PeptidesAttributes, u"PeptidesAttributes"_s, {kPeptidesId}},
    };
}

QStringList subjectTexts(const QList<SubjectRow> &rows)
{
    QStringList texts;
    for (const SubjectRow &row : rows) {
        Q_ASSERT_X(static_cast<qint32>(row.type) == texts.size(), "subjectRows",
                   "not in the enumeration's order");
        texts.append(row.text);
    }
    return texts;
}

OperationLogTables build()
{
    logvalue::registerVariantItems();
    const QList<SubjectRow> rows = subjectRows();
    OperationLogTables tables{
        EnumTexts({u"None"_s, u"Add"_s, u"Set"_s, u"Delete"_s, u"Event"_s}),
        EnumTexts({u"Invalid"_s, u"None"_s, u"New"_s, u"Undo"_s, u"Redo"_s}),
        EnumTexts(subjectTexts(rows)),
        {},
    };
    for (const SubjectRow &row : rows)
        tables.keyColumns.insert(row.type, row.keyColumns);
    return tables;
}

} // namespace

EnumTexts::EnumTexts(const QStringList &texts)
    : m_texts(texts)
{
    for (qint32 value = 0; value < texts.size(); ++value)
        m_values.insert(texts.at(value), value);
}

const OperationLogTables &OperationLogTables::instance()
{
    static const OperationLogTables tables = build();
    return tables;
}

} // namespace ozm
