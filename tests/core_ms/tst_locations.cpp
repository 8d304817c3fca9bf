#include "support/StrictTest.h"

#include "core_ms/SampleTree.h"

#include <DataSourceLocation.h>

#include <ozm_common_core_mini/FilePathUtils.h>
#include <ozm_common_core_mini/PathUtils.h>
#include <ozm_common_stable/VendorPaths.h>

using namespace Qt::StringLiterals;
using namespace ozm;
using namespace ozm::msreader;

namespace {

QString debugText(const auto &value)
{
    QString text;
    QDebug(&text) << value;
    return text.trimmed();
}

DataSourceLocation labeled(const QString &path, const QString &label)
{
    DataSourceLocation location = DataSourceLocation::fromLocalPath(path);
    location.label = label;
    return location;
}

} // namespace

class TestLocations : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void vendorFilePath_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        const QString tooLong = u"The path exceeds %1"_s.arg(FilePathUtils::winMaxPathLength);
        const auto length = qsizetype(FilePathUtils::winMaxPathLength);
        QTest::newRow("empty") << QString() << 2 << u"Vendor file name is empty"_s;
        QTest::newRow("usual") << u"C:/data/Run.d"_s << 0 << QString();
        QTest::newRow("longest") << QString(length - 1, u'x') << 0 << QString();
        QTest::newRow("no room for the null character") << QString(length, u'x') << 2 << tooLong;
        QTest::newRow("long, with prefix") << u"\\\\?\\"_s + QString(length, u'x') << 0 << QString();
        QTest::newRow("long, prefix with slashes") << u"//?/"_s + QString(length, u'x') << 0 << QString();
        QTest::newRow("long, prefix inside") << u"x\\\\?\\"_s + QString(length, u'x') << 2 << tooLong;
    }
    void vendorFilePath()
    {
        QFETCH(QString, path);
        const Error error = DataSourceLocation::checkValidVendorFilePath(path);
        QTEST(int(error.errorCode()), "code");
        QTEST(error.errorMessage(), "message");
        QCOMPARE(error.places().size(), error.hasError() ? 1 : 0);
        if (error.hasError())
            QVERIFY(error.places().constFirst().function.contains("checkValidVendorFilePath"_L1));
    }

    void debugOutput()
    {
        QCOMPARE(debugText(DataSourceLocation::fromLocalPath(u"/a b.raw"_s)), u"local_path:/a b.raw"_s);
        QCOMPARE(debugText(labeled(u"/a.raw"_s, u"day 1"_s)), u"local_path:/a.raw : day 1"_s);
        QCOMPARE(debugText(labeled(u"/a.raw"_s, QString())), u"local_path:/a.raw"_s);
        const int handler = 0;
        QCOMPARE(debugText(DataSourceLocation::fromDatabaseHandler(&handler)),
                 u"dbHandler:0x%1"_s.arg(quintptr(&handler), 0, 16));
        QCOMPARE(debugText(QList{labeled(u"/a"_s, u"1"_s), labeled(u"/b"_s, QString())}),
                 u"local_path:/a : 1, local_path:/b"_s);
    }

    void sampleIdentification()
    {
        QCOMPARE((SampleIdentification{u"%2"_s, u"scan=1"_s}.toString()),
                 u"sampleName: %2, nativeSampleId: scan=1"_s);
    }

    void predicates_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("file");
        QTest::addColumn<bool>("folder");
        QTest::addColumn<bool>("exists");
        QTest::newRow("file") << u"file"_s << true << false << true;
        QTest::newRow("folder") << u"folder"_s << false << true << true;
        QTest::newRow("folder with slash") << u"folder/"_s << false << true << true;
        QTest::newRow("file with slash") << u"file/"_s << false << false << false;
        QTest::newRow("below a file") << u"file/file"_s << false << false << false;
        QTest::newRow("link to a file") << u"toFile"_s << true << false << true;
        QTest::newRow("link to a folder") << u"toFolder"_s << false << true << true;
        QTest::newRow("dangling link") << u"dangling"_s << false << false << false;
        QTest::newRow("link to itself") << u"loop"_s << false << false << false;
        QTest::newRow("missing") << u"missing"_s << false << false << false;
        QTest::newRow("null character") << u"file"_s + QChar(u'\0') << false << false << false;
        QTest::newRow("any script") << u"试样 Übung №1 🧪"_s << true << false << true;
        QTest::newRow("too long a name") << QString(5000, u'x') << false << false << false;
    }
    void predicates()
    {
        const ozm::test::SampleTree tree;
        tree.make({u"file"_s, u"folder/"_s, u"toFile -> file"_s, u"toFolder -> folder"_s,
                   u"dangling -> nowhere"_s, u"loop -> loop"_s, u"试样 Übung №1 🧪"_s});
        QFETCH(QString, name);
        const QString path = tree.path(name);
        QTEST(PathUtils::isExistingFile(path), "file");
        QTEST(PathUtils::isExistingDir(path), "folder");
        QTEST(PathUtils::isDirectory(path), "folder");
        QTEST(PathUtils::exists(path), "exists");
    }

    void emptyAndSpecialPaths()
    {
        QVERIFY(!PathUtils::exists(QString()));
        QVERIFY(PathUtils::isDirectory(u"."_s));
        QVERIFY2(!PathUtils::exists(u":/qt-project.org"_s), "a resource is not on the disk");
#ifdef Q_OS_UNIX
        QVERIFY(PathUtils::exists(u"/dev/null"_s) && !PathUtils::isExistingFile(u"/dev/null"_s));
#endif
    }

    void hasExtension()
    {
        using Case = std::pair<QString, QString>;
        for (const auto &[path, extension] :
             {Case{u"/a/Run.d"_s, u"d"_s}, Case{u"Run.D"_s, u"d"_s}, Case{u"Run.d"_s, u"D"_s},
              Case{u".d"_s, u"d"_s}, Case{u"a.d/README"_s, {}}})
            QVERIFY2(PathUtils::hasExtension(path, extension), qPrintable(path));
        for (const auto &[path, extension] :
             {Case{u"a.d.raw"_s, u"d"_s}, Case{u"a.d/b"_s, u"d"_s}, Case{u"a.d/b"_s, u"d/b"_s},
              Case{u"Run.d/"_s, u"d"_s}, Case{u"d"_s, u"d"_s}, Case{u"Run.d"_s, u".d"_s},
              Case{u"Run.dd"_s, u"d"_s}, Case{{}, u"d"_s}, Case{u"Run.d"_s, {}}})
            QVERIFY2(!PathUtils::hasExtension(path, extension), qPrintable(path));
    }

    void pickedFileBecomesItsFolder_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("adjusted");
        const auto changed = [](const char *tag, const QString &path, const QString &adjusted) {
            QTest::newRow(tag) << path << adjusted;
        };
        const auto kept = [](const char *tag, const QString &path) { QTest::newRow(tag) << path << path; };
        changed("baf", u"/x/folder.d/analysis.baf"_s, u"/x/folder.d"_s);
        changed("letter case", u"/x/folder.D/ANALYSIS.TDF_BIN"_s, u"/x/folder.D"_s);
        changed("relative", u"folder.d/Analysis.yep"_s, u"folder.d"_s);
        changed("own u2 file", u"/x/Run.d/Run.u2"_s, u"/x/Run.d"_s);
        changed("spot", u"/x/Run.d/0_A1/1/1SRef/fid"_s, u"/x/Run.d"_s);
        changed("spot without a run number", u"/x/Run.d/0_A1/1Lin/fid"_s, u"/x/Run.d"_s);
        changed("outer of two", u"/x/Run.d/y.d/analysis.tsf"_s, u"/x/Run.d/y.d"_s);
        kept("not in a raw folder", u"/x/folder/analysis.baf"_s);
        kept("no folder at all", u"analysis.baf"_s);
        kept("other file", u"/x/folder.d/method.xml"_s);
        kept("another's u2 file", u"/x/Run.d/Walk.u2"_s);
        kept("u2 file without a folder", u"Run.u2"_s);
        kept("deeper", u"/x/Run.d/y/analysis.baf"_s);
        kept("fid elsewhere", u"/x/Run.d/0_A1/2SRef/fid"_s);
        kept("fid outside", u"/x/Run/0_A1/1/1SRef/fid"_s);
        kept("the folder itself", u"/x/Run.d"_s);
        kept("empty", QString());
    }
    void pickedFileBecomesItsFolder()
    {
        QFETCH(QString, path);
        QFETCH(QString, adjusted);
        bool changed = false;
        QCOMPARE(adjustBrukerFilenPathToFolderPath(path, &changed), adjusted);
        QCOMPARE(changed, path != adjusted);
        QCOMPARE(adjustBrukerFilenPathToFolderPath(path, nullptr), adjusted);
    }
};

QTEST_GUILESS_MAIN(TestLocations)
#include "tst_locations.moc"
