#pragma once

#include <ozm_common_core_mini/ozm_common_core_mini_export.h>

#include <QString>

// Names of the columns of RowNode data. One copy in the process, made when this library is loaded, so
// that code which runs while later libraries load may use them too.

// Identity and naming
OZM_COMMON_CORE_MINI_EXPORT extern const QString kId;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kName;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kTitle;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kType;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kComment;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kFilename;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kPosition;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kStartPosition;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kLength;

// Samples
OZM_COMMON_CORE_MINI_EXPORT extern const QString kSamplesId;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kSamplesRunsId;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kSampleName;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kSampleType;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kSourceType;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kMachineFilesId;

// Peptides
OZM_COMMON_CORE_MINI_EXPORT extern const QString kPeptidesId;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kPrimaryPeptidesId;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kSequence;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kCharge;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kMass;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kCalcMr;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kModification;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kModificationPercent;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kModificationsNameList;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kModificationsPositionList;

// Proteins
OZM_COMMON_CORE_MINI_EXPORT extern const QString kProteinId;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kProteinIdCountList;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kProteinName;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kAccessionName;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kProteinAccessionName;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kAnnotationCategory;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kAnnotationValue;

// Traces, peaks and masses
OZM_COMMON_CORE_MINI_EXPORT extern const QString kTraceType;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kPeaksId;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kStartTime;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kEndTime;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kStartPoint;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kEndPoint;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kScanTime;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kXICAreaStart;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kXICAreaEnd;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kPrecursorMz;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kPrecursorMzStart;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kPrecursorMzEnd;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kMassStart;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kMassEnd;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kMassArea;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kGaussWidth;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kOffset;

// Plots and searches
OZM_COMMON_CORE_MINI_EXPORT extern const QString kPlotsId;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kPlotType;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kSearchResultsId;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kSearchResultFilename;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kSearchResultAliasName;
OZM_COMMON_CORE_MINI_EXPORT extern const QString kSearchEngine;
