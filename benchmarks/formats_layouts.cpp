#include "formats_layouts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace ozm::bench {

namespace {

QStringList inside(const QString &folder, const QStringList &entries)
{
    QStringList paths;
    for (const QString &entry : entries)
        paths.append(folder + u'/' + entry);
    return paths;
}

} // namespace

std::vector<Layout> layouts()
{
    const QString d = u"Run.d"_s;
    const QStringList tdf{u"analysis.tdf"_s, u"analysis.tdf_bin"_s};
    const QStringList tsf{u"analysis.tsf"_s, u"analysis.tsf_bin"_s};
    const QStringList method{u"4711.m/microTOF.method"_s, u"SampleInfo.xml"_s};
    return {
        {"mzML", u"a.mzML"_s, {u"a.mzML"_s}, {u"a.mzML"_s}},
        {"MGF", u"a.mgf"_s, {u"a.mgf"_s}, {u"a.mgf"_s}},
        {"Thermo", u"a.raw"_s, {u"a.raw"_s}, {u"a.raw"_s}},
        {"Shimadzu", u"a.lcd"_s, {u"a.lcd"_s}, {u"a.lcd"_s}},
        {"Vacq folder", u"a.vacq"_s, {u"a.vacq/"_s}, {u"a.vacq"_s}},
        {"Sciex wiff", u"a.wiff"_s, {u"a.wiff"_s, u"a.wiff.scan"_s}, {u"a.wiff"_s, u"a.wiff.scan"_s}},
        {"Sciex wiff2", u"a.wiff2"_s, {u"a.wiff2"_s, u"a.wiff.scan"_s}, {u"a.wiff2"_s, u"a.wiff.scan"_s}},
        {"Waters",
         u"a.raw"_s,
         {u"a.raw/_FUNC001.DAT"_s, u"a.raw/_HEADER.TXT"_s},
         {u"a.raw"_s, u"a.raw/_FUNC001.DAT"_s}},
        {"Agilent",
         d,
         inside(d, {u"AcqData/msscan.bin"_s, u"AcqData/mspeak.bin"_s, u"Results/"_s}),
         {u"Run.d/AcqData"_s}},
        {"Bruker Tims", d, inside(d, tdf), inside(d, tdf)},
        {"Bruker Tims, method", d, inside(d, tdf + method), inside(d, tdf)},
        {"Bruker Tsf, method", d, inside(d, tsf + method), inside(d, tsf)},
        {"Bruker BAF, u2", d, inside(d, QStringList{u"Analysis.baf"_s, u"Run.u2"_s} + method),
         inside(d, {u"Analysis.baf"_s, u"Run.u2"_s})},
        {"Bruker FID",
         d,
         inside(d, {u"0_A1/1/1SRef/fid"_s, u"0_A1/1/1SRef/acqu"_s, u"0_A2/1/1SRef/fid"_s}),
         {u"Run.d/0_A1/1/1SRef/fid"_s}},
        {"none: ordinary .d folder", d, inside(d, {u"report.pdf"_s, u"sub/notes.txt"_s}), {d}},
        {"none: text file", u"a.txt"_s, {u"a.txt"_s}, {}},
    };
}

std::vector<std::vector<Layout>> layoutsByVendor()
{
    const auto vendorOf = [](const Layout &layout) {
        return QString::fromLatin1(layout.name).section(u' ', 0, 0);
    };
    std::vector<std::vector<Layout>> vendors;
    for (const Layout &layout : layouts()) {
        if (vendorOf(layout) == u"none:")
            continue;
        if (vendors.empty() || vendorOf(vendors.back().front()) != vendorOf(layout))
            vendors.emplace_back();
        vendors.back().push_back(layout);
    }
    return vendors;
}

void make(const QString &folder, const QStringList &entries)
{
    for (const QString &entry : entries) {
        const QString path = folder + u'/' + entry;
        QDir().mkpath(entry.endsWith(u'/') ? path : QFileInfo(path).path());
        if (!entry.endsWith(u'/'))
            std::ignore = QFile(path).open(QIODevice::WriteOnly);
    }
}

QStringList largeFidFolder(const QString &name, int files)
{
    QStringList entries;
    for (int spot = 0; spot < files / 4; ++spot)
        for (const char *file : {"fid", "acqu", "acqus", "sptype"})
            entries.append(u"%1/0_R%2/1/1SRef/%3"_s.arg(name).arg(spot).arg(QLatin1StringView(file)));
    return entries;
}

QStringList largeAgilentFolder(const QString &name, int files)
{
    QStringList entries{name + u"/AcqData/msscan.bin"_s};
    for (int i = 0; i < files; ++i)
        entries.append(u"%1/AcqData/part%2.bin"_s.arg(name).arg(i));
    return entries;
}

QStringList largeTdfFolder(const QString &name, int files)
{
    QStringList entries{name + u"/analysis.tdf"_s, name + u"/analysis.tdf_bin"_s};
    for (int i = 0; i < files; ++i)
        entries.append(u"%1/frame %2.bin"_s.arg(name).arg(i));
    return entries;
}

} // namespace ozm::bench
