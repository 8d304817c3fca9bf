#include "core_ms/LiteralRules.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace ozm::test {

namespace {

using enum msreader::VendorDataFormat;
using Formats = QSet<msreader::VendorDataFormat>;

bool isFile(const QString &path)
{
    return !path.isEmpty() && QFileInfo(path).isFile();
}

bool exists(const QString &path)
{
    std::error_code ignored;
    return std::filesystem::exists(QFileInfo(path).filesystemFilePath(), ignored);
}

bool isDir(const QString &path)
{
    return !path.isEmpty() && QFileInfo(path).isDir();
}

bool endsWith(const QString &path, const QString &end)
{
    return path.endsWith(end, Qt::CaseInsensitive);
}

QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                  QDir::Unsorted);
}

bool isAcqEntry(const QString &entry)
{
    if (endsWith(entry, u".d/AcqData"_s) && isDir(entry))
        return true;
    return (endsWith(entry, u".d/AcqData/msprofile.bin"_s) || endsWith(entry, u".d/AcqData/mspeak.bin"_s) ||
            endsWith(entry, u".d/AcqData/msscan.bin"_s)) &&
           isFile(entry);
}

/// Follows a link loop once around, which shows everything that a second round could.
bool findAcqEntry(const QString &folder, QStringList above)
{
    const QString real = QFileInfo(folder).canonicalFilePath();
    if (above.count(real) > 1)
        return false;
    above.append(real);
    const QStringList names = entriesOf(folder);
    return std::ranges::any_of(names, [&](const QString &name) {
        const QString entry = folder + u'/' + name;
        return isAcqEntry(entry) || (isDir(entry) && findAcqEntry(entry, above));
    });
}

Formats agilent(const QString &path)
{
    return isDir(path) && findAcqEntry(path, {}) ? Formats{AgilentAcqData} : Formats();
}

bool isFidEntry(const QString &root, const QString &e)
{
    for (const char *fid : {"/1/1SRef/fid", "/1SRef/fid", "/1/1SLin/fid", "/1SLin/fid", "/1/1Ref/fid",
                            "/1Ref/fid", "/1/1Lin/fid", "/1Lin/fid"}) {
        if (isFile(e + QLatin1StringView(fid)))
            return true;
    }
    const auto hasFolder = [](const QString &path) {
        return isDir(path + u"/fid"_s) && !isFile(path + u"/Analysis.baf"_s) &&
               !isFile(path + u"/analysis.baf"_s);
    };
    return hasFolder(e) || hasFolder(root);
}

Formats bruker(const QString &root)
{
    for (const QString &name : entriesOf(root)) {
        if (isFidEntry(root, root + u'/' + name))
            return {BrukerFID};
    }
    const auto has = [&root](const QString &name) { return isFile(root + u'/' + name); };
    if (has(u"Analysis.yep"_s))
        return {BrukerYEP};
    QString companion = root.section(u'/', -1);
    companion = root + u'/' + companion.replace(u".d"_s, u".u2"_s);
    if (has(u"Analysis.baf"_s))
        return {isFile(companion) ? BrukerBAF_and_U2 : BrukerBAF};
    if (isFile(companion))
        return {BrukerU2};
    if ((has(u"analysis.tdf"_s) || has(u"Analysis.tdf"_s)) &&
        (has(u"analysis.tdf_bin"_s) || has(u"Analysis.tdf_bin"_s)))
        return {BrukerTims};
    if ((has(u"analysis.tsf"_s) || has(u"Analysis.tsf"_s)) &&
        (has(u"analysis.tsf_bin"_s) || has(u"Analysis.tsf_bin"_s)))
        return {BrukerTsf};
    return {};
}

using Rule = std::function<bool(const QString &)>;

struct Detector
{
    QString extension;
    Formats formats;
    std::function<Formats(const QString &)> detect;
};

Detector simple(const QString &extension, msreader::VendorDataFormat format, Rule rule = isFile)
{
    return {extension, {format}, [format, rule](const QString &path) {
                return rule(path) ? Formats{format} : Formats();
            }};
}

const std::vector<Detector> &detectors()
{
    static const std::vector<Detector> list{
        {u".d"_s, {AgilentAcqData}, agilent},
        {u".d"_s,
         {BrukerFID, BrukerYEP, BrukerBAF, BrukerU2, BrukerBAF_and_U2, BrukerTims, BrukerTsf},
         bruker},
        simple(u".zuspec2"_s, Zuspec2),
        simple(u".csv2d"_s, Csv2d),
        simple(u".data.cut"_s, DataCut),
        simple(u".msfaux"_s, MsFaux),
        simple(u".msfaux2"_s, MsFaux2),
        simple(u".mgf"_s, Mgf),
        simple(u".mzml"_s, Mzml),
        simple(u".mzxml"_s, Mzxml),
        simple(u".vacq"_s, Vacq, [](const QString &path) { return isDir(path) || isFile(path); }),
        simple(u".mbi"_s, Mobilion),
        simple(u".wiff"_s, SciexWiff,
               [](const QString &path) { return isFile(path) && exists(path + u".scan"_s); }),
        simple(u".wiff2"_s, SciexWiff2,
               [](const QString &path) { return isFile(path) && exists(path.chopped(1) + u".scan"_s); }),
        simple(u".lcd"_s, Shimadzu),
        simple(u".raw"_s, Thermo),
        simple(u"MAGIC_STRING_GOES_HERE_ozm_testing"_s, Testing, [](const QString &) { return true; }),
        simple(u".raw"_s, Waters,
               [](const QString &path) { return isDir(path) && exists(path + u"/_FUNC001.DAT"_s); }),
    };
    return list;
}

} // namespace

Formats literalFormats(const QString &path)
{
    Formats found;
    for (const Detector &detector : detectors()) {
        if (endsWith(path, detector.extension))
            found.unite(detector.detect(path));
    }
    return found;
}

Formats firstLiteralFormats(const QString &path)
{
    for (const Detector &detector : detectors()) {
        const Formats found = endsWith(path, detector.extension) ? detector.detect(path) : Formats();
        if (!found.isEmpty())
            return found;
    }
    return {};
}

Formats literalFormatsByName(const QString &path)
{
    Formats found;
    for (const Detector &detector : detectors()) {
        if (endsWith(path, detector.extension))
            found.unite(detector.formats);
    }
    return found;
}

} // namespace ozm::test
