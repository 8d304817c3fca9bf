#include "support/StrictTest.h"
#include "support/WithoutRights.h"

#include "core_ms/SampleTree.h"

#include <ozm_common_ms/MsDataFileUtils.h>
#include <ozm_widgets/MsDataSearch.h>

#include <QSignalSpy>

#include <algorithm>
#include <filesystem>
#include <fstream>
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

#ifdef Q_OS_LINUX
/// The names of the samples found, and a line for each entry that was passed over.
std::pair<QStringList, QStringList> searchWithoutRights(const SampleTree &tree, bool recursive)
{
    QStringList found;
    QStringList passedOver;
    MsDataSearchOptions options;
    options.recursive = recursive;
    MsDataSearchCallbacks callbacks;
    callbacks.found = [&](const MsSample &sample) { found.append(sample.path); };
    callbacks.passedOver = [&](const QString &path, const QString &reason) {
        passedOver.append(path + u": "_s + reason);
    };
    const ozm::test::WithoutRights rights;
    const ozm::Error error = MsDataSearch::run(tree.path(), options, callbacks);
    if (error.hasError())
        return {{error.errorMessage()}, passedOver};
    return {relativeTo(tree, found), passedOver};
}
#endif

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
    void passedOver_data()
    {
        QTest::addColumn<QString>("entry"); ///< Closed before the search, or a link.
        QTest::addColumn<bool>("recursive");
        QTest::addColumn<QString>("reason"); ///< Empty when nothing is said.
        const auto closed = u"The folder cannot be read. Access is not allowed."_s;
        QTest::newRow("closed") << u"shut/b.mgf"_s << true << closed;
        QTest::newRow("closed, of no interest") << u"shut/b.mgf"_s << false << QString();
        QTest::newRow("closed data") << u"shut.d/AcqData/"_s << true << closed;
        QTest::newRow("closed data, not recursive") << u"shut.d/AcqData/"_s << false << closed;
        QTest::newRow("link into a closed folder")
            << u"link.mgf -> %1/b.mgf"_s << false << u"A folder above it does not allow access."_s;
        QTest::newRow("link to nothing") << u"link.mgf -> nowhere"_s << true << QString();
        QTest::newRow("link to itself") << u"link.mgf -> link.mgf"_s << true << QString();
    }
    void passedOver()
    {
        QFETCH(QString, entry);
        QFETCH(bool, recursive);
        QFETCH(QString, reason);
        const SampleTree tree;
        const SampleTree closed;
        tree.make({u"a.mgf"_s, entry.contains("%1"_L1) ? entry.arg(closed.path()) : entry});
        const bool isLink = entry.contains("->"_L1);
        const QString name = entry.section(isLink ? u' ' : u'/', 0, 0);
        const QString shut = isLink ? closed.path() : tree.path(name);
        ozm::test::setMode(tree.path(), 0755);
        ozm::test::setMode(shut, 0);
        const auto [found, passedOver] = searchWithoutRights(tree, recursive);
        ozm::test::setMode(shut, 0755);
        QCOMPARE(found, QStringList{u"a.mgf"_s});
        const QStringList expected =
            reason.isEmpty() ? QStringList() : QStringList{tree.path(name) + u": "_s + reason};
        QCOMPARE(passedOver, expected);
    }

    void namesThatAreNotText()
    {
        const SampleTree tree;
        tree.make({u"a.mgf"_s});
        const QByteArray folder = QFile::encodeName(tree.path());
        for (const char *name : {"/\xff.d", "/\xff"})
            QCOMPARE(::mkdir((folder + name).constData(), 0755), 0);
        for (const char *name : {"/\xff.mgf", "/\xff.txt", "/\xff/big"}) {
            std::ofstream file((folder + name).toStdString());
            file << "12345";
        }
        ozm::test::setMode(tree.path(), 0755);
        const auto [found, passedOver] = searchWithoutRights(tree, true);
        const auto atTop = searchWithoutRights(tree, false);
        const qint64 size = MsDataSearch::sizeOnDisk(tree.path());
        std::filesystem::remove_all(folder.toStdString() + "/\xff");
        std::filesystem::remove_all(folder.toStdString() + "/\xff.d");
        std::filesystem::remove(folder.toStdString() + "/\xff.mgf");
        std::filesystem::remove(folder.toStdString() + "/\xff.txt");
        QCOMPARE(found, QStringList{u"a.mgf"_s});
        QCOMPARE(passedOver.size(), 3);
        QVERIFY(passedOver.constFirst().contains(u"\uFFFD"_s) &&
                passedOver.constFirst().contains("not valid text"_L1));
        QCOMPARE(atTop.second.size(), 2);
        QCOMPARE(size, 15);
    }

    void startThatCannotBeSearched()
    {
        const SampleTree tree;
        tree.make({u"shut/b/"_s});
        ozm::test::setMode(tree.path(), 0755);
        ozm::test::setMode(tree.path(u"shut"_s), 0);
        ozm::Error closed;
        ozm::Error inside;
        {
            const ozm::test::WithoutRights rights;
            closed = MsDataSearch::run(tree.path(u"shut"_s), {}, {});
            inside = MsDataSearch::run(tree.path(u"shut/b"_s), {}, {});
        }
        ozm::test::setMode(tree.path(u"shut"_s), 0755);
        QCOMPARE(int(closed.errorCode()), 4);
        QVERIFY(closed.errorMessage().contains("Access is not allowed"_L1));
        QCOMPARE(int(inside.errorCode()), 4);
        QVERIFY(inside.errorMessage().contains("does not allow access"_L1));
    }

    void closedPlacesAreToldFromMissingOnes()
    {
        const SampleTree tree;
        tree.make({u"shut/b.mgf"_s, u"in.d/AcqData/"_s});
        ozm::test::setMode(tree.path(), 0755);
        ozm::test::setMode(tree.path(u"shut"_s), 0);
        ozm::test::setMode(tree.path(u"in.d"_s), 0444);
        QStringList refusals;
        {
            const ozm::test::WithoutRights rights;
            for (const auto &name : {u"shut/b.mgf"_s, u"in.d"_s, u"in.d/"_s})
                refusals.append(MsDataSearch::sampleAt(tree.path(name)).refusal);
        }
        ozm::test::setMode(tree.path(u"shut"_s), 0755);
        ozm::test::setMode(tree.path(u"in.d"_s), 0755);
        const auto closed = u"The folder cannot be read. Access is not allowed."_s;
        QCOMPARE(refusals, (QStringList{u"A folder above it does not allow access."_s, closed, closed}));
    }
#endif

    void samples_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("format");
        QTest::addColumn<ozm::EntryKind>("kind");
        using enum ozm::EntryKind;
        QTest::newRow("file") << u"b.mzML"_s << u"Mzml"_s << File;
        QTest::newRow("folder") << u"Run.d"_s << u"AgilentAcqData"_s << Folder;
        QTest::newRow("slash at the end") << u"Run.d/"_s << u"AgilentAcqData"_s << Folder;
        QTest::newRow("slashes at the end") << u"Sub/c.raw//"_s << u"Waters"_s << Folder;
        QTest::newRow("text") << u"notes.txt"_s << QString() << File;
    }
    void samples()
    {
        QFETCH(QString, name);
        const SampleTree tree;
        tree.make(kStudy);
        const MsSample sample = MsDataSearch::sampleAt(tree.path(name));
        QTEST(sample.formatName, "format");
        QTEST(sample.kind, "kind");
        QCOMPARE(sample.description.isEmpty(), sample.formatName.isEmpty());
        QCOMPARE(sample.isData(), sample.refusal.isEmpty());
        while (name.endsWith(u'/'))
            name.chop(1);
        QCOMPARE(sample.path, tree.path(name));
        QCOMPARE(sample.size, sample.kind == ozm::EntryKind::File ? 0 : -1);
    }

    void refusals_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("part");
        const auto row = [](const char *tag, const QStringList &entries, const char *part) {
            QTest::newRow(tag) << entries << entries.constFirst().section(u'/', 0, 0)
                               << QString::fromLatin1(part);
        };
        row("name", {u"notes.txt"_s}, "none of the extensions");
        row("empty .d folder", {u"a.d/"_s}, "neither an \"AcqData\" folder (Agilent) nor");
        row(".d file", {u"a.d"_s},
            "(Agilent, Bruker, Bruker Tims, Bruker Tsf) is a folder, but this is a file");
        row("raw folder", {u"a.raw/x"_s}, "_FUNC001.DAT");
        row("mzML folder", {u"a.mzml/x"_s}, "(Open data format mzml) is a file, but this is a folder");
        row("lone wiff", {u"x.wiff"_s}, "\".wiff.scan\" file that belongs to it is missing");
        row("half a pair", {u"a.d/analysis.tsf_bin"_s}, "\"analysis.tsf_bin\", but not \"analysis.tsf\"");
        row("other half", {u"a.d/Analysis.tdf"_s}, "\"analysis.tdf\", but not \"analysis.tdf_bin\"");
        const char *counts = "here, capital and small letters count";
        row("Waters, small letters", {u"a.raw/_func001.dat"_s},
            "\"_func001.dat\" would have to be called \"_FUNC001.DAT\": here, capital");
        row("BAF, small letters", {u"a.d/analysis.baf"_s},
            "\"analysis.baf\" would have to be called \"Analysis.baf\"");
        row("YEP, small letters", {u"a.d/analysis.yep"_s}, "\"Analysis.yep\"");
        row("TDF, capitals", {u"a.d/ANALYSIS.TDF"_s, u"a.d/ANALYSIS.TDF_BIN"_s}, "\"analysis.tdf\"");
        row("TDF data, capitals", {u"a.d/Analysis.tdf"_s, u"a.d/ANALYSIS.TDF_BIN"_s}, "\"analysis.tdf_bin\"");
        row("companion, capitals", {u"Run.d/RUN.U2"_s}, "\"Run.u2\"");
        row("companion of a capital folder", {u"Run.D/Run.u2"_s},
            "\"Run.D\" would have to be called \"Run.d\"");
        row("fid folder, capitals", {u"a.d/FID/"_s}, "\"FID\" would have to be called \"fid\"");
        row("spectrum, small letters", {u"a.d/0_A1/1/1sref/fid"_s}, "\"0_A1/1/1SRef/fid\"");
        row("fid file, capitals", {u"a.d/0_A1/1SLin/FID"_s}, counts);
        row("scan file, small letters", {u"x.WIFF"_s, u"x.wiff.scan"_s}, "\"x.WIFF.scan\"");
        row("scan file, capitals", {u"x.wiff2"_s, u"X.wiff.SCAN"_s},
            "\"X.wiff.SCAN\" would have to be called \"x.wiff.scan\"");
        QTest::newRow("missing") << QStringList() << u"a.mzml"_s << u"No such file"_s;
        QTest::newRow("below a file") << QStringList{u"a"_s} << u"a/a.mzml"_s << u"No such file"_s;
        QTest::newRow("link to nothing")
            << QStringList{u"a.mgf -> b"_s} << u"a.mgf"_s << u"leads to nothing"_s;
        QTest::newRow("link to itself")
            << QStringList{u"a.mgf -> a.mgf"_s} << u"a.mgf"_s << u"back to itself"_s;
        QTest::newRow("too long") << QStringList() << QString(300, u'x') + u".mgf"_s << u"too long"_s;
        QTest::newRow("null character")
            << QStringList() << u"a"_s + QChar(u'\0') + u".mgf"_s << u"not valid text"_s;
        QTest::newRow("half a character")
            << QStringList() << QChar(0xd800) + u".mgf"_s << u"not valid text"_s;
    }
    void refusals()
    {
        QFETCH(QStringList, entries);
        QFETCH(QString, asked);
        QFETCH(QString, part);
        const SampleTree tree;
        tree.make(entries);
        if (asked.contains(".wiff"_L1, Qt::CaseInsensitive))
            ozm::test::expectWarning(u".wiff.scan file is absent"_s);
        const QString refusal = MsDataSearch::sampleAt(tree.path(asked)).refusal;
        QVERIFY2(refusal.contains(part), qPrintable(refusal));
    }

    void sizes()
    {
        const SampleTree tree;
        tree.make({u"Run.d/AcqData/msscan.bin"_s, u"Run.d/.meta"_s, u"Run.d/link -> AcqData/msscan.bin"_s});
        for (const auto &name : {u"Run.d/AcqData/msscan.bin"_s, u"Run.d/.meta"_s})
            QVERIFY(QFile(tree.path(name)).resize(700));
        QCOMPARE(MsDataSearch::sizeOnDisk(tree.path(u"Run.d"_s)), 1400);
        QCOMPARE(MsDataSearch::sizeOnDisk(tree.path(u"Run.d/.meta"_s)), 700);
        QCOMPARE(MsDataSearch::sizeOnDisk(tree.path(u"nowhere"_s)), -1);
        // A file, a folder, and a folder without a file: each asks.
        tree.make({u"deep/a/b/"_s});
        for (const auto &name : {u"Run.d/.meta"_s, u"Run.d"_s, u"deep"_s}) {
            int asked = 0;
            QCOMPARE(MsDataSearch::sizeOnDisk(tree.path(name), [&asked] { return ++asked > 0; }), -1);
            QCOMPARE(MsDataSearch::sizeOnDisk(tree.path(name),
                                              [&] { return ++asked > (name == "deep"_L1 ? 3 : 9); }),
                     name == "deep"_L1 ? -1 : qint64(name == "Run.d"_L1 ? 1400 : 700));
        }

        MsDataSearchOptions options;
        options.measureFolders = true;
        MsDataSearchCallbacks callbacks;
        qint64 size = 0;
        callbacks.found = [&size](const MsSample &sample) { size = sample.size; };
        QVERIFY(!MsDataSearch::run(tree.path(), options, callbacks).hasError());
        QCOMPARE(size, 1400);
    }

    void cancelInTheMiddle()
    {
        const SampleTree tree;
        makeShuffled(tree, manySamples());
        int found = 0;
        int folders = 0;
        MsDataSearchCallbacks callbacks;
        callbacks.found = [&found](const MsSample &) { ++found; };
        callbacks.progressed = [&folders](int searched, int, const QString &) { folders = searched; };
        callbacks.isCanceled = [&found] { return found == 5050; };
        QVERIFY(!MsDataSearch::run(tree.path(), {}, callbacks).hasError());
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
            [&](const QList<MsSample> &samples) {
                wrongThread += QThread::currentThread() == search.thread() ? 0 : 1;
                QVERIFY2(finished.isEmpty(), "nothing comes after the end");
                for (const MsSample &sample : samples)
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
