#include "support/StrictTest.h"
#include "support/WithoutRights.h"

#include "core_ms/LiteralRules.h"
#include "core_ms/SampleTree.h"

#include <FormatDetection.h>
#include <disk/FolderReader.h>

#include <ozm_common_core_mini/PathUtils.h>

#include <atomic>
#include <filesystem>
#include <thread>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using namespace ozm::msreader;
using ozm::test::SampleTree;
#ifdef Q_OS_LINUX
using ozm::test::setMode;
using ozm::test::WithoutRights;
#endif

namespace {

bool isData(const QString &path)
{
    return hasDetectableFormat(DataSourceLocation::fromLocalPath(path), false);
}

QSet<VendorDataFormat> formats(const QString &path)
{
    return detectFormats(DataSourceLocation::fromLocalPath(path), false, false);
}

} // namespace

class TestOddFileSystems : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void linkLoops()
    {
        const SampleTree tree;
        tree.make({u"a.d/x/y/z/"_s, u"a.d/self -> self"_s, u"a.d/one -> two"_s, u"a.d/two -> one"_s,
                   u"a.d/x/up -> .."_s, u"a.d/x/y/z/up.d -> ../../.."_s, u"b.d -> b.d"_s,
                   u"b.raw -> b.raw"_s});
        QVERIFY(!isData(tree.path(u"a.d"_s)));
        QVERIFY(!isData(tree.path(u"b.d"_s)));
        QVERIFY(!isData(tree.path(u"b.raw"_s)));
        tree.make({u"a.d/x/y/z/c.d/AcqData/"_s});
        QVERIFY(isData(tree.path(u"a.d"_s)));
    }

    // Links in every folder to every folder: a walk that tells folders apart by their paths never ends.
    void linksAcross()
    {
        constexpr int kFolders = 30;
        const SampleTree tree;
        for (int from = 0; from < kFolders; ++from) {
            tree.makeOne(u"a.d/%1/"_s.arg(from));
            for (int to = 0; to < kFolders; ++to)
                tree.makeOne(u"a.d/%1/to%2.d -> ../%2"_s.arg(from).arg(to));
        }
        QVERIFY(!isData(tree.path(u"a.d"_s)));
        QVERIFY(formats(tree.path(u"a.d"_s)).isEmpty());
    }

    void veryDeep()
    {
        const SampleTree tree;
        QString inside = u"a.d"_s;
        for (int i = 0; i < 400; ++i)
            inside += u"/folder"_s;
        tree.makeOne(inside + u'/');
        QVERIFY(!isData(tree.path(u"a.d"_s)));
        tree.makeOne(inside + u"/b.d/AcqData/"_s);
        QVERIFY(isData(tree.path(u"a.d"_s)));
    }

    void namesInAnyScript()
    {
        for (const auto &name : {u"质谱 数据"_s, u"عينة ١"_s, u"e\u0301chantillon"_s, u"🧪𝔐"_s,
                                 u"a\n\"b\"'c'\\"_s, u"100%1%n"_s}) {
            const SampleTree tree;
            tree.make({name + u".d/"_s + name + u".d/AcqData/"_s, name + u"2.d/"_s + name + u"2.u2"_s,
                       name + u".mzml"_s, name + u"3.d/"_s + name + u"/1SLin/fid"_s});
            QCOMPARE(formats(tree.path(name + u".d"_s)), QSet{VendorDataFormat::AgilentAcqData});
            QCOMPARE(formats(tree.path(name + u"2.d"_s)), QSet{VendorDataFormat::BrukerU2});
            QCOMPARE(formats(tree.path(name + u"3.d"_s)), QSet{VendorDataFormat::BrukerFID});
            QCOMPARE(formats(tree.path(name + u".mzml"_s)), QSet{VendorDataFormat::Mzml});
        }
    }

    void loneSurrogatesAndNulls()
    {
        const SampleTree tree;
        tree.make({u"a.mzml"_s, u"a.d/AcqData/"_s});
        QVERIFY(!isData(tree.path(u"a.mzml"_s) + QChar(u'\0') + u".mzml"_s));
        QVERIFY(!isData(tree.path(u"a.d"_s) + QChar(u'\0') + u".d"_s));
        QVERIFY(!isData(tree.path(QString(QChar(0xd800))) + u".d"_s));
    }

#ifdef Q_OS_LINUX
    void invalidBytes()
    {
        const SampleTree tree;
        tree.make({u"a.d/good/"_s});
        const QByteArray folder = QFile::encodeName(tree.path(u"a.d"_s));
        for (const char *name : {"/\xff", "/\xc3.d", "/\xed\xa0\x80", "/\xf8\x88"})
            QCOMPARE(::mkdir((folder + name).constData(), 0755), 0);
        QCOMPARE(::mkdir((folder + "/\xc3.d/AcqData").constData(), 0755), 0);
        QVERIFY2(!isData(tree.path(u"a.d"_s)), "no path can name it, so nothing could read it");
        QVERIFY(!isData(QFile::decodeName(folder + "/\xc3.d")));

        ozm::disk::FolderReader reader(tree.path(u"a.d"_s));
        QVERIFY(reader.nextNamed());
        QCOMPARE(reader.name(), u"good"_s);
        QVERIFY(!reader.nextNamed() && reader.isComplete());

        tree.makeOne(u"a.d/fine.d/AcqData/"_s);
        QVERIFY(isData(tree.path(u"a.d"_s)));
        // Qt could not remove it for the same reason.
        std::filesystem::remove_all(folder.toStdString());
    }

    void pipesAreNotOpened()
    {
        const SampleTree tree;
        tree.make({u"b.d/"_s});
        for (const auto &name : {u"a.mzml"_s, u"a.d"_s, u"a.wiff"_s, u"b.d/AcqData"_s, u"b.d/Analysis.baf"_s})
            QCOMPARE(::mkfifo(QFile::encodeName(tree.path(name)).constData(), 0666), 0);
        for (const auto &name : {u"a.mzml"_s, u"a.d"_s, u"a.wiff"_s, u"b.d"_s})
            QVERIFY2(!isData(tree.path(name)), qPrintable(name));
    }

    void rights_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("shut");
        QTest::addColumn<uint>("mode");
        QTest::addColumn<QString>("formats");
        constexpr uint kNothing = 0;
        constexpr uint kListed = 0444;
        constexpr uint kEntered = 0111;
        const auto row = [](const char *tag, const QStringList &entries, const QString &shut, uint mode,
                            const char *formats) {
            QTest::newRow(tag) << entries << shut << mode << QString::fromLatin1(formats);
        };
        const QStringList acq{u"a.d/AcqData/"_s};
        const QStringList tdf{u"a.d/analysis.tdf"_s, u"a.d/analysis.tdf_bin"_s};
        const QStringList fid{u"a.d/0_A1/1/1SRef/fid"_s};
        row("Agilent, closed", acq, u"a.d"_s, kNothing, "");
        row("Agilent, listed but not entered", acq, u"a.d"_s, kListed, "");
        row("Agilent, entered but not listed", acq, u"a.d"_s, kEntered, "");
        row("AcqData closed", acq, u"a.d/AcqData"_s, kNothing, "AgilentAcqData");
        const QStringList deep{u"a.d/x.d/AcqData/"_s, u"a.d/open.d/"_s};
        row("Agilent further down, closed", deep, u"a.d/x.d"_s, kNothing, "");
        row("Agilent further down, listed", deep, u"a.d/x.d"_s, kListed, "");
        row("Agilent further down, entered", deep, u"a.d/x.d"_s, kEntered, "");
        row("TDF, listed but not entered", tdf, u"a.d"_s, kListed, "");
        row("TDF, entered but not listed", tdf, u"a.d"_s, kEntered, "BrukerTims");
        row("BAF, entered but not listed", {u"a.d/Analysis.baf"_s}, u"a.d"_s, kEntered, "BrukerBAF");
        row("fid folder, entered but not listed", {u"a.d/fid/"_s}, u"a.d"_s, kEntered, "");
        row("spot listed but not entered", fid, u"a.d/0_A1"_s, kListed, "");
        row("spot entered but not listed", fid, u"a.d/0_A1"_s, kEntered, "BrukerFID");
        row("spot below entered but not listed", fid, u"a.d/0_A1/1"_s, kEntered, "BrukerFID");
        row("Waters, closed", {u"a.raw/_FUNC001.DAT"_s}, u"a.raw"_s, kNothing, "");
        row("Waters, listed but not entered", {u"a.raw/_FUNC001.DAT"_s}, u"a.raw"_s, kListed, "");
        row("Waters, entered but not listed", {u"a.raw/_FUNC001.DAT"_s}, u"a.raw"_s, kEntered, "Waters");
    }
    void rights()
    {
        QFETCH(QStringList, entries);
        QFETCH(QString, shut);
        QFETCH(uint, mode);
        const SampleTree tree;
        tree.make(entries);
        const QString path = tree.path(shut.section(u'/', 0, 0));
        setMode(tree.path(), 0755);
        setMode(tree.path(shut), mode);
        QSet<VendorDataFormat> found;
        QSet<VendorDataFormat> literal;
        bool has = false;
        VendorDataFormat nearest = VendorDataFormat::Unknown;
        {
            const WithoutRights rights;
            found = formats(path);
            literal = ozm::test::literalFormats(path);
            has = isData(path);
            nearest = nearestFormat(path);
        }
        setMode(tree.path(shut), 0755);
        QTEST(found.isEmpty() ? QString() : MsDataFormat::toString(*found.cbegin()), "formats");
        QCOMPARE(found, literal);
        QCOMPARE(has, !found.isEmpty());
        QCOMPARE(nearest, found.isEmpty() ? VendorDataFormat::Unknown : *found.cbegin());
        QVERIFY(isData(path));
    }

    // Without a way past the C library's, a folder like this one took a call for every 700 entries.
    void largeFoldersAreReadWhole()
    {
        constexpr int kFiles = 20'000;
        const SampleTree tree;
        tree.make({u"a.d/"_s});
        const QByteArray folder = QFile::encodeName(tree.path(u"a.d"_s));
        for (int i = 0; i < kFiles; ++i) {
            const QByteArray name = folder + "/some file of a long name " + QByteArray::number(i);
            QCOMPARE(::mknod(name.constData(), S_IFREG | 0644, 0), 0);
        }
        ozm::disk::FolderReader reader(tree.path(u"a.d"_s));
        QSet<QString> names;
        while (reader.nextNamed())
            names.insert(reader.name());
        QCOMPARE(names.size(), kFiles);
        QVERIFY(reader.isComplete());
    }
#endif

    void foldersThatVanish()
    {
        const SampleTree tree;
        std::atomic<bool> done = false;
        std::thread destroyer([&] {
            while (!done) {
                tree.make({u"a.d/x/y.d/AcqData/"_s, u"a.d/z/1/1SRef/fid"_s, u"a.d/link -> x"_s});
                QDir(tree.path(u"a.d"_s)).removeRecursively();
            }
        });
        const QSet possible{VendorDataFormat::AgilentAcqData, VendorDataFormat::BrukerFID};
        bool wasPossible = true;
        for (int i = 0; i < 3000 && wasPossible; ++i) {
            wasPossible = possible.contains(formats(tree.path(u"a.d"_s)));
            std::ignore = isData(tree.path(u"a.d"_s));
        }
        done = true;
        destroyer.join();
        QVERIFY(wasPossible);
        QVERIFY(!isData(tree.path(u"a.d"_s)));
    }
};

QTEST_GUILESS_MAIN(TestOddFileSystems)
#include "tst_odd_file_systems.moc"
