#include "support/StrictTest.h"
#include "support/WithoutRights.h"

#include "core_ms/SampleTree.h"

#include <ozm_common_ms/MsDataFileUtils.h>
#include <ozm_common_ms/MsDataSearch.h>

#include <QSignalSpy>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;
using namespace ozm::msreader;
using ozm::test::SampleTree;
using Level = MsDataFileInfo::CheckLevel;

Q_DECLARE_METATYPE(Level)

namespace {

const QStringList kStudy{
    u"b.mzML"_s,
    u"A.mgf"_s,
    u"notes.txt"_s,
    u"Run.d/AcqData/msscan.bin"_s,
    u"Run.d/export.mgf"_s, // part of a sample
    u"ordinary.d/inside.mzml"_s,
    u"Sub/c.raw/_FUNC001.DAT"_s,
    u"Sub/plain.raw/deep/d.lcd"_s,
    u"Sub/e.raw"_s,
    u".hidden/f.mzxml"_s,
};

QStringList relativeTo(const SampleTree &tree, const QList<QString> &paths)
{
    QStringList names;
    for (const QString &path : paths)
        names.append(path.startsWith(tree.path() + u'/') ? path.sliced(tree.path().size() + 1) : path);
    return names;
}

QStringList search(const SampleTree &tree, bool recursive = true, Level level = Level::Content,
                   const QString &folder = {})
{
    const auto found = MsDataFileUtils::searchForMSFilesAndDirectories(tree.path(folder), recursive, level);
    return found ? relativeTo(tree, found.value()) : QStringList{found.error().errorMessage()};
}

/// Ten thousand samples in a hundred folders, made in no order.
QStringList manySamples()
{
    QStringList names;
    for (int i = 0; i < 10'000; ++i)
        names.append(
            u"study %1/sample %2.mzML"_s.arg(i / 100, 3, 10, QChar(u'0')).arg(i, 5, 10, QChar(u'0')));
    return names;
}

void makeShuffled(const SampleTree &tree, QStringList names)
{
    std::shuffle(names.begin(), names.end(), std::mt19937(7));
    tree.make(names);
}

} // namespace

class TestMsDataSearch : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void findsInOrder()
    {
        const SampleTree tree;
        makeShuffled(tree, kStudy);
        const QStringList expected{
            u".hidden/f.mzxml"_s, u"A.mgf"_s,     u"b.mzML"_s,    u"ordinary.d/inside.mzml"_s,
            u"Run.d"_s,           u"Sub/c.raw"_s, u"Sub/e.raw"_s, u"Sub/plain.raw/deep/d.lcd"_s};
        QCOMPARE(search(tree), expected);
        QCOMPARE(search(tree, false), (QStringList{u"A.mgf"_s, u"b.mzML"_s, u"Run.d"_s}));
        // By name every .d and .raw folder counts, and is not entered.
        QCOMPARE(search(tree, true, Level::Name),
                 (QStringList{u".hidden/f.mzxml"_s, u"A.mgf"_s, u"b.mzML"_s, u"ordinary.d"_s, u"Run.d"_s,
                              u"Sub/c.raw"_s, u"Sub/e.raw"_s, u"Sub/plain.raw"_s}));
    }

    void startsAnywhere()
    {
        const SampleTree tree;
        tree.make(kStudy);
        QCOMPARE(search(tree, true, Level::Content, u"Sub/"_s).size(), 3);
        QCOMPARE(search(tree, true, Level::Content, u"Run.d"_s), QStringList{u"Run.d"_s});
        QCOMPARE(search(tree, true, Level::Content, u"Run.d/"_s), QStringList{u"Run.d"_s});
        QCOMPARE(search(tree, true, Level::Content, u"Run.d/AcqData"_s), QStringList());
    }

    void linksAreFollowedOnce()
    {
        const SampleTree outside;
        outside.make({u"far/g.mgf"_s, u"far/back -> ."_s, u"data.bin"_s});
        const SampleTree tree;
        tree.make({u"a/one.mgf"_s, u"a/up -> .."_s, u"a/one again.mgf -> one.mgf"_s, u"also a -> a"_s,
                   u"loop.mgf -> loop.mgf"_s, u"gone -> nowhere"_s, u"z.d/AcqData/x.mgf"_s,
                   u"into -> z.d/AcqData"_s, u"root -> /"_s});
        tree.makeOne(u"out -> "_s + outside.path(u"far"_s));
        tree.makeOne(u"out again -> "_s + outside.path(u"far"_s));
        tree.makeOne(u"other name.mzml -> "_s + outside.path(u"data.bin"_s));
        const QStringList expected{u"a/one.mgf"_s, u"z.d"_s, u"other name.mzml"_s, u"out/g.mgf"_s};
        QCOMPARE(search(tree), expected);
        QCOMPARE(search(tree, false), (QStringList{u"z.d"_s, u"other name.mzml"_s}));
    }

    void startThatIsALink()
    {
        const SampleTree tree;
        tree.make({u"real/a.mgf"_s, u"real/back -> ../real"_s, u"start -> real"_s});
        QCOMPARE(search(tree, true, Level::Content, u"start"_s), QStringList{u"start/a.mgf"_s});
    }

    void wrongStart_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("missing") << u"nowhere"_s << 1 << u"Search path does not exist"_s;
        QTest::newRow("below a file") << u"file/x"_s << 1 << u"Search path does not exist"_s;
        QTest::newRow("a file") << u"file"_s << 2 << u"is a file, not a folder"_s;
    }
    void wrongStart()
    {
        QFETCH(QString, name);
        QFETCH(QString, message);
        const SampleTree tree;
        tree.make({u"file"_s});
        const auto found =
            MsDataFileUtils::searchForMSFilesAndDirectories(tree.path(name), true, Level::Content);
        QVERIFY(!found);
        QTEST(int(found.error().errorCode()), "code");
        QVERIFY(found.error().errorMessage().contains(message));
        QVERIFY(!found.error().places().isEmpty());
        QVERIFY(!MsDataFileUtils::searchForMSFilesAndDirectories(QString(), true, Level::Content));
    }

#ifdef Q_OS_LINUX
    void unreadableFoldersArePassedOver()
    {
        const SampleTree tree;
        tree.make({u"a.mgf"_s, u"shut/b.mgf"_s, u"z/c.mgf"_s});
        ozm::test::setMode(tree.path(), 0755);
        ozm::test::setMode(tree.path(u"shut"_s), 0);
        QStringList found;
        QStringList passedOver;
        MsDataSearchCallbacks callbacks;
        callbacks.found = [&](const MsDataFileInfo &sample) { found.append(sample.path); };
        callbacks.passedOver = [&](const QString &folder, const QString &reason) {
            passedOver.append(folder + u": "_s + reason);
        };
        ozm::Error error;
        ozm::Error atStart;
        {
            const ozm::test::WithoutRights rights;
            error = MsDataFileUtils::search(tree.path(), {}, callbacks);
            atStart = MsDataFileUtils::search(tree.path(u"shut"_s), {}, {});
        }
        ozm::test::setMode(tree.path(u"shut"_s), 0755);
        QVERIFY(!error.hasError());
        QCOMPARE(relativeTo(tree, found), (QStringList{u"a.mgf"_s, u"z/c.mgf"_s}));
        QCOMPARE(passedOver, QStringList{tree.path(u"shut"_s) + u": The folder cannot be read."_s});
        QCOMPARE(int(atStart.errorCode()), 4);
    }
#endif

    void inspects_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("description");
        QTest::addColumn<MsDataFileInfo::Kind>("kind");
        QTest::addColumn<QString>("refusal");
        using enum MsDataFileInfo::Kind;
        QTest::newRow("file") << u"b.mzML"_s << u"Mzml"_s << u"Open data format mzml"_s << File << QString();
        QTest::newRow("folder") << u"Run.d"_s << u"AgilentAcqData"_s << u"Agilent"_s << Folder << QString();
        QTest::newRow("other raw") << u"Sub/c.raw"_s << u"Waters"_s << u"Waters"_s << Folder << QString();
        QTest::newRow("text") << u"notes.txt"_s << QString() << QString() << File
                              << u"The name has none of the extensions of mass-spectrometry data."_s;
        QTest::newRow("missing") << u"x.mgf"_s << QString() << QString() << None
                                 << u"There is no such file or folder."_s;
        QTest::newRow("ordinary") << u"Sub/plain.raw"_s << QString() << QString() << Folder
                                  << u"The folder holds no \"_FUNC001.DAT\" file (Waters)."_s;
    }
    void inspects()
    {
        QFETCH(QString, name);
        const SampleTree tree;
        tree.make(kStudy);
        const MsDataFileInfo info = MsDataFileUtils::inspect(tree.path(name));
        QTEST(info.formatName, "format");
        QTEST(info.description, "description");
        QTEST(info.kind, "kind");
        QTEST(info.refusal, "refusal");
        QCOMPARE(info.isData(), info.refusal.isEmpty());
        QCOMPARE(info.path, tree.path(name));
        QCOMPARE(info.size, info.kind == MsDataFileInfo::Kind::File ? 0 : -1);
    }

    void loneWiffIsExplained()
    {
        const SampleTree tree;
        tree.make({u"x.wiff"_s});
        ozm::test::expectWarning(u".wiff.scan file is absent"_s);
        const MsDataFileInfo info = MsDataFileUtils::inspect(tree.path(u"x.wiff"_s));
        QVERIFY(info.refusal.contains(".wiff.scan"_L1));
    }

    void sizes()
    {
        const SampleTree tree;
        tree.make({u"Run.d/AcqData/msscan.bin"_s, u"Run.d/.meta"_s, u"Run.d/link -> AcqData/msscan.bin"_s});
        for (const auto &name : {u"Run.d/AcqData/msscan.bin"_s, u"Run.d/.meta"_s})
            QVERIFY(QFile(tree.path(name)).resize(700));
        QCOMPARE(MsDataFileUtils::sizeOnDisk(tree.path(u"Run.d"_s)), 1400);
        QCOMPARE(MsDataFileUtils::sizeOnDisk(tree.path(u"Run.d/.meta"_s)), 700);
        QCOMPARE(MsDataFileUtils::sizeOnDisk(tree.path(u"nowhere"_s)), -1);
        QCOMPARE(MsDataFileUtils::sizeOnDisk(tree.path(u"Run.d"_s), [] { return true; }), -1);

        MsDataSearchOptions options;
        options.measureFolders = true;
        MsDataSearchCallbacks callbacks;
        qint64 size = 0;
        callbacks.found = [&size](const MsDataFileInfo &sample) { size = sample.size; };
        QVERIFY(!MsDataFileUtils::search(tree.path(), options, callbacks).hasError());
        QCOMPARE(size, 1400);
    }

    void tenThousandSamples()
    {
        const SampleTree tree;
        const QStringList names = manySamples();
        makeShuffled(tree, names);
        QCOMPARE(search(tree), names);
    }

    void cancelInTheMiddle()
    {
        const SampleTree tree;
        makeShuffled(tree, manySamples());
        int found = 0;
        int folders = 0;
        MsDataSearchCallbacks callbacks;
        callbacks.found = [&found](const MsDataFileInfo &) { ++found; };
        callbacks.progressed = [&folders](int searched, int, const QString &) { folders = searched; };
        callbacks.isCanceled = [&found] { return found == 5050; };
        QVERIFY(!MsDataFileUtils::search(tree.path(), {}, callbacks).hasError());
        QCOMPARE(found, 5050);
        QCOMPARE(folders, 51);
    }

    void searchesOnItsOwnThread()
    {
        const SampleTree tree;
        const QStringList names = manySamples();
        makeShuffled(tree, names);
        MsDataSearch search;
        QSignalSpy finished(&search, &MsDataSearch::finished);
        QStringList found;
        int wrongThread = 0;
        connect(
            &search, &MsDataSearch::found, &search,
            [&](const QList<MsDataFileInfo> &samples) {
                wrongThread += QThread::currentThread() == search.thread() ? 0 : 1;
                QVERIFY2(finished.isEmpty(), "nothing comes after the end");
                for (const MsDataFileInfo &sample : samples)
                    found.append(sample.path);
            },
            Qt::DirectConnection);
        QSignalSpy progressed(&search, &MsDataSearch::progressed);
        QVERIFY(search.start(tree.path()));
        QVERIFY2(!search.start(tree.path()), "one at a time");
        QVERIFY(search.isRunning());
        QVERIFY(finished.wait(60'000));
        QVERIFY(!search.isRunning());
        QCOMPARE(relativeTo(tree, found), names);
        QCOMPARE(wrongThread, 0);
        QCOMPARE(progressed.constLast().at(1).toInt(), names.size());
        QVERIFY(!qvariant_cast<ozm::Error>(finished.constFirst().at(0)).hasError());
        QCOMPARE(finished.constFirst().at(1).toBool(), false);
    }

    void cancelOnItsOwnThread()
    {
        const SampleTree tree;
        makeShuffled(tree, manySamples());
        MsDataSearch search;
        QSignalSpy finished(&search, &MsDataSearch::finished);
        QVERIFY(search.start(tree.path()));
        search.cancel();
        QVERIFY(finished.wait(60'000));
        QCOMPARE(finished.constFirst().at(1).toBool(), true);
        // A canceled search can be followed by another.
        QVERIFY(search.start(tree.path(u"nowhere"_s)));
        QVERIFY(finished.wait(60'000));
        QCOMPARE(int(qvariant_cast<ozm::Error>(finished.constLast().at(0)).errorCode()), 1);
        QCOMPARE(finished.constLast().at(1).toBool(), false);
    }

    // Crashes when the thread outlives the object, or when its last words do.
    void destroyedWhileSearching()
    {
        const SampleTree tree;
        makeShuffled(tree, manySamples());
        for (int i = 0; i < 20; ++i) {
            MsDataSearch search;
            QVERIFY(search.start(tree.path()));
            QTest::qWait(i);
        }
        QCoreApplication::processEvents();
    }
};

QTEST_GUILESS_MAIN(TestMsDataSearch)
#include "tst_ms_data_search.moc"
