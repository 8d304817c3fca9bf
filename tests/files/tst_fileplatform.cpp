#include "../core_ms/SampleTree.h"
#include "support/Files.h"
#include "support/StrictTest.h"

#include <ozm_common_core/FileExtensionsNameFilter.h>
#include <ozm_common_core/FileSystemSettings.h>
#include <ozm_common_core_mini/AutomationStore.h>
#include <ozm_qt_shared_libs_core/FileUtilsGeneric.h>
#include <ozm_references/LocalResourceReference.h>
#include <ozm_references/ResourceReferenceUtils.h>

#include <QSettings>

using namespace Qt::StringLiterals;
using namespace ozm;
using namespace ozm::test;

using Scheme = ResourceReference::Scheme;

class TestFilePlatform : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void automationBeginsWithTheEnvironment()
    {
        // The first use in this process.
        qputenv("OZM_AUTOMATION", R"({"answer": "/data/x.csv", "FileExplorerAllowed": false})");
        QCOMPARE(as::value(u"answer"_s), QVariant(u"/data/x.csv"_s));
        QCOMPARE(as::value(kFileExplorerAllowed, true), QVariant(false));
        as::setValue(u"answer"_s, QString());
        QVERIFY2(as::contains(u"answer"_s), "an empty answer is one");
        as::remove(u"answer"_s);
        QCOMPARE(as::value(u"answer"_s, 7), QVariant(7));
        as::clear();
        QCOMPARE(as::value(kFileExplorerAllowed, true), QVariant(true));
    }

    void automationIsLoaded_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("code");

        QTest::newRow("object") << QByteArray(R"({"new": 1, "old": 2})") << 0;
        QTest::newRow("array") << QByteArray(R"(["new"])") << 2;
        QTest::newRow("cut off") << QByteArray(R"({"new": )") << 2;
        QTest::newRow("missing") << QByteArray() << 4;
    }
    void automationIsLoaded()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const int, code);
        const SampleTree tree;
        const QString path = tree.path(u"answers.json"_s);
        QVERIFY(content.isNull() || writeFile(path, content));
        as::setValue(u"old"_s, 0);
        const Error error = as::load(path);
        QCOMPARE(static_cast<int>(error.errorCode()), code);
        QCOMPARE(error.errorMessage().contains(path), code != 0);
        QCOMPARE(as::contains(u"new"_s), code == 0);
        QCOMPARE(as::value(u"old"_s).toInt(), code == 0 ? 2 : 0);
        as::clear();
    }

    void referencesReadBack_data()
    {
        QTest::addColumn<QString>("location");

        QTest::newRow("plain") << u"/data/run 7.raw"_s;
        QTest::newRow("percent") << u"/data/50%25 %1 %%.raw"_s;
        QTest::newRow("line break and tab") << u"/data/a\nb\tc"_s;
        QTest::newRow("like a URL") << u"/data/a:b?c#d"_s;
        QTest::newRow("drive") << u"C:\\data\\x.raw"_s;
        QTest::newRow("share") << u"\\\\server\\share\\x.raw"_s;
        QTest::newRow("letters of all kinds") << u"/data/Größe 質量.raw"_s;
        QTest::newRow("half a character, as file systems allow") << u"/data/"_s + QChar(0xd800) + u".raw"_s;
    }
    void referencesReadBack()
    {
        QFETCH(const QString, location);
        LocalResourceReference local;
        QVERIFY(!local.setPath(location).hasError());
        QCOMPARE(local.path(), location);
        const ResourceReference server(Scheme::Server, location);
        const ResourceReference database(Scheme::Database, location);
        for (const ResourceReference *reference :
             std::initializer_list<const ResourceReference *>{&local, &server, &database}) {
            const QString text = reference->toString();
            QVERIFY2(!text.contains(u'\n'), qPrintable(text));
            const auto again = ResourceReference::fromString(text);
            QVERIFY(again);
            QCOMPARE(again.value()->scheme(), reference->scheme());
            QCOMPARE(again.value()->location(), location);
        }
    }

    void referencesAreRefused()
    {
        for (const auto &text : {u""_s, u"/data/x.raw"_s, u"ftp:x"_s, u"file:"_s, u"file:/data/%00"_s}) {
            const auto reference = ResourceReference::fromString(text);
            QVERIFY2(!reference, qPrintable(text));
            QCOMPARE(reference.error().errorCode(), ErrorCode::BadParameter);
        }
    }

    void referenceLists()
    {
        const auto good = ResourceReferenceUtils::fromStringList({u"/a"_s, u"b"_s});
        QVERIFY(good);
        QCOMPARE(good.value().at(0)->location(), u"/a"_s);
        QCOMPARE(good.value().at(1)->location(), QDir::current().absoluteFilePath(u"b"_s));
        QVERIFY2(!ResourceReferenceUtils::fromStringList({u"/a"_s, u""_s}), "one bad path fails all");
    }

    void filters()
    {
        const auto type = FileTypes::add(u"test table"_s, {u"csv"_s, u"tsv"_s, u"csv"_s});
        const auto contains = [](const QString &text) {
            const FileExtensionsNameFilter filter(text);
            [&] { QCOMPARE(filter.toFilterString(), text); }();
            [&] { QVERIFY2(!filter.containsType({}), "a type without extensions"); }();
            return filter.containsType(*FileTypes::find(u"test table"_s));
        };
        for (const auto &text : {FileExtensionsNameFilter().add(u"Tables"_s, type).toFilterString(),
                                 u"All (*);;Tables (*.TSV *.txt *.csv)"_s, u"Tables (*.csv;*.tsv)"_s})
            QVERIFY2(contains(text), qPrintable(text));
        for (const auto &text : {u"A (*.csv);;B (*.tsv)"_s, u"All (*)"_s, u"Tables, *.csv *.tsv (*.txt)"_s})
            QVERIFY2(!contains(text), qPrintable(text));
    }

    void typesMatchNames()
    {
        const QList types{FileTypes::Ref(), FileTypes::add(u"test folder"_s, {u"d"_s, u"data.cut"_s})};
        for (const auto &path : {u"/a/run.d"_s, u"/a/RUN.D//"_s, u"x.data.cut"_s})
            QVERIFY2(FileTypes::fileMatchesAnyType(path, types), qPrintable(path));
        for (const auto &path : {u"run.dx"_s, u"/a/d"_s, u"/a.d/run"_s, u""_s})
            QVERIFY2(!FileTypes::fileMatchesAnyType(path, types), qPrintable(path));
    }

    void typesAreNamedOnce()
    {
        const auto first = FileTypes::add(u"once"_s, {u"a"_s});
        QVERIFY(FileTypes::add(u"once"_s, {u"b"_s}) == first);
        QCOMPARE(first.data().extensions, QStringList{u"a"_s});
        QVERIFY(!FileTypes::find(u"never"_s));
    }

    void foldersOutliveTheProcess()
    {
        const QTemporaryDir folder;
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
        const auto reports = FileSystemSettings::addLocation(u"reports"_s);
        FileSystemSettings &settings = FileSystemSettings::Instance();
        for (const QString &organization : {QString(), u"Some Lab"_s}) {
            QCoreApplication::setOrganizationName(organization);
            QCOMPARE(settings.fileLocation(reports), QString());
            settings.setFileLocation(reports, u"/data/50%/Größe"_s);
            settings.setFileLocation({}, u"/other"_s);
            // As a process that starts later sees it.
            const QString owner = organization.isEmpty() ? QCoreApplication::applicationName() : organization;
            const QSettings file(owner, QCoreApplication::applicationName());
            QCOMPARE(file.value("FileLocations/reports"_L1).toString(), u"/data/50%/Größe"_s);
            QCOMPARE(settings.fileLocation(reports), u"/data/50%/Größe"_s);
            settings.setFileLocation(reports, {});
            QCOMPARE(settings.fileLocation(reports), QString());
            QCOMPARE(settings.fileLocation({}), u"/other"_s);
        }
        QCoreApplication::setOrganizationName({});
        auto before = settings.setStore(FileSystemSettings::memoryStore());
        QCOMPARE(settings.fileLocation({}), QString());
        settings.setStore(std::move(before));
        QCOMPARE(settings.fileLocation({}), u"/other"_s);
    }

    void pathsStayInTheirFolder_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("relative");
        QTest::addColumn<QString>("path");

        QTest::newRow("below") << u"/a"_s << u"b/c.csv"_s << u"/a/b/c.csv"_s;
        QTest::newRow("slashes on both sides") << u"/a/"_s << u"b"_s << u"/a/b"_s;
        QTest::newRow("root") << u"/"_s << u"b"_s << u"/b"_s;
        QTest::newRow("down and up") << u"/a"_s << u"b/../c.csv"_s << u"/a/b/../c.csv"_s;
        QTest::newRow("dots in a name") << u"/a"_s << u"..c.csv"_s << u"/a/..c.csv"_s;
        QTest::newRow("itself") << u"/a"_s << u""_s << u"/a"_s;
        QTest::newRow("up") << u"/a"_s << u"../c.csv"_s << QString();
        QTest::newRow("up from below") << u"/a"_s << u"b/../../c.csv"_s << QString();
        QTest::newRow("absolute") << u"/a"_s << u"/c.csv"_s << QString();
        QTest::newRow("no folder") << u""_s << u"c.csv"_s << QString();
    }
    void pathsStayInTheirFolder()
    {
        QFETCH(const QString, folder);
        QFETCH(const QString, relative);
        QTEST(FileUtilsGeneric::createFilePathForLocalResource(folder, relative).valueOr({}), "path");
    }
};

QTEST_GUILESS_MAIN(TestFilePlatform)
#include "tst_fileplatform.moc"
