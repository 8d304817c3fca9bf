#include <ozm_common_core_mini/ColumnNames.h>

using namespace Qt::StringLiterals;

const QString kId = u"Id"_s;
const QString kName = u"Name"_s;
const QString kTitle = u"Title"_s;
const QString kType = u"Type"_s;
const QString kComment = u"Comment"_s;
const QString kFilename = u"Filename"_s;
const QString kPosition = u"Position"_s;
const QString kStartPosition = u"StartPosition"_s;
const QString kLength = u"Length"_s;

const QString kSamplesId = u"SamplesId"_s;
const QString kSamplesRunsId = u"SamplesRunsId"_s;
const QString kSampleName = u"SampleName"_s;
const QString kSampleType = u"SampleType"_s;
const QString kSourceType = u"SourceType"_s;
const QString kMachineFilesId = u"MachineFilesId"_s;

const QString kPeptidesId = u"PeptidesId"_s;
const QString kPrimaryPeptidesId = u"PrimaryPeptidesId"_s;
const QString kSequence = u"Sequence"_s;
const QString kCharge = u"Charge"_s;
const QString kMass = u"Mass"_s;
const QString kCalcMr = u"CalcMr"_s;
const QString kModification = u"Modification"_s;
const QString kModificationPercent = u"ModificationPercent"_s;
const QString kModificationsNameList = u"ModificationsNameList"_s;
const QString kModificationsPositionList = u"ModificationsPositionList"_s;

const QString kProteinId = u"ProteinId"_s;
const QString kProteinIdCountList = u"ProteinIdCountList"_s;
const QString kProteinName = u"ProteinName"_s;
const QString kAccessionName = u"AccessionName"_s;
const QString kProteinAccessionName = u"ProteinAccessionName"_s;
const QString kAnnotationCategory = u"AnnotationCategory"_s;
const QString kAnnotationValue = u"AnnotationValue"_s;

const QString kTraceType = u"TraceType"_s;
const QString kPeaksId = u"PeaksId"_s;
const QString kStartTime = u"StartTime"_s;
const QString kEndTime = u"EndTime"_s;
const QString kStartPoint = u"StartPoint"_s;
const QString kEndPoint = u"EndPoint"_s;
const QString kScanTime = u"ScanTime"_s;
const QString kXICAreaStart = u"XICAreaStart"_s;
const QString kXICAreaEnd = u"XICAreaEnd"_s;
const QString kPrecursorMz = u"PrecursorMz"_s;
const QString kPrecursorMzStart = u"PrecursorMzStart"_s;
const QString kPrecursorMzEnd = u"PrecursorMzEnd"_s;
const QString kMassStart = u"MassStart"_s;
const QString kMassEnd = u"MassEnd"_s;
const QString kMassArea = u"MassArea"_s;
const QString kGaussWidth = u"GaussWidth"_s;
const QString kOffset = u"Offset"_s;

const QString kPlotsId = u"PlotsId"_s;
const QString kPlotType = u"PlotType"_s;
const QString kSearchResultsId = u"SearchResultsId"_s;
const QString kSearchResultFilename = u"SearchResultFilename"_s;
const QString kSearchResultAliasName = u"SearchResultAliasName"_s;
const QString kSearchEngine = u"SearchEngine"_s;
