#include "data/FirstStepsData.h"

#include <ozm_widgets/WholeFile.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

constexpr auto kPeakList = "BEGIN IONS\nTITLE=mAb-01 scan 612\nPEPMASS=421.7584 1520.0\nCHARGE=2+\n"
                           "RTINSECONDS=612.4\n175.1190 120.0\n288.2030 310.5\n401.2871 95.2\nEND IONS\n";
constexpr auto kRun = R"(<?xml version="1.0" encoding="UTF-8"?>
<mzML xmlns="http://psi.hupo.org/ms/mzml" version="1.1.0" id="mAb-01">
  <cvList count="1"><cv id="MS" fullName="Mass Spectrometry Ontology" URI="psi-ms.obo"/></cvList>
  <fileDescription>
    <fileContent><cvParam cvRef="MS" accession="MS:1000579" name="MS1 spectrum"/></fileContent>
  </fileDescription>
  <softwareList count="1"><software id="workbench" version="1"/></softwareList>
  <instrumentConfigurationList count="1"><instrumentConfiguration id="IC1"/></instrumentConfigurationList>
  <dataProcessingList count="1"><dataProcessing id="DP1">
    <processingMethod order="0" softwareRef="workbench"/>
  </dataProcessing></dataProcessingList>
  <run id="mAb-01" defaultInstrumentConfigurationRef="IC1"/>
</mzML>
)";
constexpr auto kNote = "The photos are in \"photos.raw\", which is not data.\n";

struct FileRow
{
    const char *path;
    const char *text;  ///< Null for a file of zeros.
    int kibibytes = 0; ///< Of zeros.
};

constexpr std::array kFiles{
    FileRow{"Antibody stability/week 0/mAb-01.mzML", kRun},
    FileRow{"Antibody stability/search/mAb-01.mgf", kPeakList},
    FileRow{"Antibody stability/week 4/mAb-01.d/AcqData/MSScan.bin", nullptr, 12},
    FileRow{"Antibody stability/week 4/mAb-01.d/AcqData/MSPeak.bin", nullptr, 48},
    FileRow{"Peptide mapping/digest 1.raw", nullptr, 96},
    FileRow{"Peptide mapping/digest 2.raw/_FUNC001.DAT", nullptr, 64},
    FileRow{"Peptide mapping/digest 2.raw/_HEADER.TXT", nullptr, 1},
    FileRow{"Peptide mapping/digest 3.d/analysis.tdf", nullptr, 20},
    FileRow{"Peptide mapping/digest 3.d/analysis.tdf_bin", nullptr, 128},
    FileRow{"Metabolites/pos.wiff", nullptr, 8},
    FileRow{"Metabolites/pos.wiff.scan", nullptr, 72},
    FileRow{"Metabolites/blank.lcd", nullptr, 32},
    FileRow{"Not data/photos.raw/IMG_0001.CR2", nullptr, 16},
    FileRow{"Not data/main.d", nullptr, 4},
    FileRow{"Not data/notes.txt", kNote},
};

Error cannotWrite(const QString &path, const QString &reason)
{
    return Error(ErrorCode::FileAccess,
                 QCoreApplication::translate("FirstStepsData", "\"%1\" cannot be written: %2")
                     .arg(QDir::toNativeSeparators(path), reason))
        .ecatch(OZM_HERE);
}

Error writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    const Error error = ozm::writeWhole(path, bytes);
    return error.hasError() ? cannotWrite(path, error.errorMessage()) : Error();
}

} // namespace

Error writeFirstStepsData(const QString &folder)
{
    const QDir top(folder);
    QFile samples(u":/first-steps/samples.csv"_s);
    if (!samples.open(QIODevice::ReadOnly))
        return cannotWrite(top.filePath(u"samples.csv"_s), samples.errorString());
    if (Error error = writeFile(top.filePath(u"samples.csv"_s), samples.readAll()); error.hasError())
        return error;
    for (const FileRow &row : kFiles) {
        const QByteArray bytes =
            row.text ? QByteArray(row.text) : QByteArray(qsizetype(row.kibibytes) * 1024, '\0');
        const QString path = top.filePath(u"data/"_s + QString::fromLatin1(row.path));
        if (Error error = writeFile(path, bytes); error.hasError())
            return error;
    }
    return {};
}

} // namespace workbench
