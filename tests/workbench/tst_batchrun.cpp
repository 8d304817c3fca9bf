#include "SampleFixture.h"
#include "audit/AuditTrail.h"
#include "core_ms/SampleTree.h"
#include "data/DataColumns.h"
#include "samples/CsvReader.h"
#include "samples/SampleFile.h"
#include "support/StrictTest.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;
using namespace ozm::test;
using namespace workbench;
namespace audit = ozm::audit;

namespace {

// Sanitizers and a busy machine included.
constexpr int kRunMs = 120000;

struct Outcome
{
    int exitCode = -1;
    QStringList lines;
    QString complaint;
};

Outcome run(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(WORKBENCH_PROGRAM), arguments);
    if (!process.waitForFinished(kRunMs))
        return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts),
            QString::fromUtf8(process.readAllStandardError())};
}

/// The numbers that "recorded 12: ..." lines tell of.
QList<qint64> recordedIn(const QStringList &lines)
{
    QList<qint64> numbers;
    for (const QString &line : lines)
        if (line.startsWith("recorded "_L1))
            numbers.append(line.section(u' ', 1, 1).chopped(1).toLongLong());
    return numbers;
}

QSet<qint64> storedIn(const QString &path)
{
    QSet<qint64> numbers;
    const auto store = openTrail(path, {}, {});
    const auto records = store ? store.value()->find({.pageSize = 10000}).valueOr({}) : QList<audit::Entry>();
    for (const audit::Entry &record : records)
        numbers.insert(record.number);
    return numbers;
}

} // namespace

class TestBatchRun : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void leavesItsResults()
    {
        const QTemporaryDir folder;
        const QDir out(folder.filePath(u"out µ"_s));
        const Outcome outcome = run({u"--batch"_s, QStringLiteral(WORKBENCH_SAMPLES), u"--out"_s, out.path(),
                                     u"--user"_s, u"jdoe"_s, u"--reports"_s, u"each"_s});
        QVERIFY2(outcome.exitCode == 0, qUtf8Printable(outcome.complaint));
        QVERIFY(QFile::exists(out.filePath(u"certificates/0001 HC-T01 (checked).pdf"_s)));
        const QStringList results{out.filePath(u"trail.sqlite"_s), out.filePath(u"certificates"_s),
                                  out.filePath(u"audit.json"_s),   out.filePath(u"samples.csv"_s),
                                  out.filePath(u"report.html"_s),  out.filePath(u"report.pdf"_s),
                                  out.filePath(u"window.png"_s)};
        QCOMPARE(outcome.lines.mid(outcome.lines.size() - results.size()), results);

        const QString told = outcome.lines.join(u'\n');
        for (const auto &part :
             {u"Loaded samples"_s, u"'Charge' from 2 to 3"_s, u"Add Label"_s, u"to * (checked)"_s,
              u"refused: The charge must be"_s, u"UNDO Set"_s, u"REDO Set"_s})
            QVERIFY2(told.contains(part), qUtf8Printable(part));

        const QJsonArray trail = QJsonDocument::fromJson(readFile(results.at(2))).array();
        int refused = 0;
        int withChildren = 0;
        for (const QJsonValue entry : trail) {
            QCOMPARE(entry["user"_L1].toString(), u"jdoe"_s);
            QVERIFY(entry["finished"_L1].toBool(true));
            refused += entry["error"_L1].isObject() ? 1 : 0;
            withChildren += entry["children"_L1].toArray().size() == 3 ? 1 : 0;
        }
        QCOMPARE(refused, 1);
        QCOMPARE(withChildren, 1);

        const auto samples = samplefile::read(results.at(3));
        QVERIFY(samples);
        QCOMPARE(samples.value().at(0).getDataAt(kName).toString(), u"HC-T01 (checked)"_s);
        QCOMPARE(samples.value().at(0).getDataAt(kCharge).toInt(), 4);
        QVERIFY(readFile(results.at(5)).startsWith("%PDF"));
        QVERIFY(!readFile(results.at(4)).contains("script>"));
        QCOMPARE(QImage(results.constLast()).size(), QSize(1200, 760));
    }

    void takesAFolder()
    {
        const SampleTree tree;
        tree.make({u"b/Run 1.d/analysis.tdf"_s, u"b/Run 1.d/analysis.tdf_bin"_s, u"a, b.mzML"_s, u"Z.wiff"_s,
                   u"Z.wiff.scan"_s, u"conf.d/settings.ini"_s, u"Lost.wiff"_s, u"Empty.raw/"_s,
                   u"c/Run 1.raw"_s});
        const QTemporaryDir folder;
        const QDir out(folder.path());
        const Outcome outcome = run({u"--batch"_s, tree.path(), u"--out"_s, folder.path()});
        QVERIFY2(outcome.exitCode == 0, qUtf8Printable(outcome.complaint));
        QCOMPARE(outcome.lines.constLast(), out.filePath(u"formats.csv"_s));

        const auto formats = readCsv(readFile(out.filePath(u"formats.csv"_s)));
        QVERIFY(formats);
        QStringList lines;
        for (const CsvRow &row : formats.value())
            lines.append(row.cells.join(u'|'));
        const QStringList expected{
            u"Path|Format|Description|Kind|Size"_s, u"Z.wiff|SciexWiff|Sciex wiff|file|0"_s,
            u"a, b.mzML|Mzml|Open data format mzml|file|0"_s, u"b/Run 1.d|BrukerTims|Bruker Tims|folder|0"_s,
            u"c/Run 1.raw|Thermo|Thermo|file|0"_s};
        QCOMPARE(lines, expected);
        QCOMPARE(outcome.lines.filter(u"found "_s).size(), 4);

        const QString told = outcome.lines.join(u'\n');
        for (const auto &part : {u"'Samples': 4"_s, u"'Comment' from to"_s, u"to * (checked)"_s,
                                 u"refused: "_s, u"UNDO Set"_s, u"REDO Set"_s})
            QVERIFY2(told.contains(part), qUtf8Printable(part));
        const auto samples = samplefile::read(out.filePath(u"samples.csv"_s));
        QVERIFY(samples);
        QCOMPARE(samples.value().size(), 4U);
        QCOMPARE(samples.value().at(0).getDataAt(kName).toString(), u"Z (checked)"_s);
        QCOMPARE(samples.value().at(3).getDataAt(kName).toString(), u"Run 1 (2)"_s);
        QCOMPARE(samples.value().at(3).getDataAt(kPath).toString(), tree.path(u"c/Run 1.raw"_s));

        // One acquisition alone is data as well, whether a file or a folder.
        for (const QString &name : {u"a, b.mzML"_s, u"c/Run 1.raw"_s, u"b/Run 1.d"_s}) {
            const Outcome single = run({u"--batch"_s, tree.path(name), u"--out"_s, folder.path()});
            QVERIFY2(single.exitCode == 0, qUtf8Printable(single.complaint));
            QCOMPARE(single.lines.filter(u"found "_s + QFileInfo(name).fileName() + u':').size(), 1);
        }
    }

    void continuesTheTrail()
    {
        const QTemporaryDir folder;
        const QString database = folder.filePath(u"kept.sqlite"_s);
        const QStringList arguments{u"--batch"_s,    QStringLiteral(WORKBENCH_SAMPLES),
                                    u"--out"_s,      folder.path(),
                                    u"--database"_s, database};
        const Outcome first = run(arguments);
        QCOMPARE(first.exitCode, 0);
        const QByteArray samples = readFile(folder.filePath(u"samples.csv"_s));
        const QSet<qint64> stored = storedIn(database);
        const Outcome second = run(arguments);
        QCOMPARE(second.exitCode, 0);
        QVERIFY(recordedIn(second.lines).constFirst() > recordedIn(first.lines).constLast());
        QVERIFY(storedIn(database).contains(stored));
        QCOMPARE(storedIn(database).size(), 2 * stored.size());
        QCOMPARE(readFile(folder.filePath(u"samples.csv"_s)), samples);
        QCOMPARE(QJsonDocument::fromJson(readFile(folder.filePath(u"audit.json"_s))).array().size(),
                 2 * 16 + 1);
    }

    void endsWithAMessage_data()
    {
        QTest::addColumn<QStringList>("arguments"); // "DIR" stands for a folder with the files below
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");
        const QString samples = QStringLiteral(WORKBENCH_SAMPLES);
        QTest::newRow("no folder") << QStringList{u"--batch"_s, samples} << 2 << u"--batch needs --out"_s;
        QTest::newRow("reports") << QStringList{u"--batch"_s, samples,        u"--out"_s,
                                                u"DIR"_s,     u"--reports"_s, u"x"_s}
                                 << 2 << u"--reports needs"_s;
        QTest::newRow("steps") << QStringList{u"--batch"_s, samples,      u"--out"_s,
                                              u"DIR"_s,     u"--steps"_s, u"x"_s}
                               << 2 << u"--steps needs a number"_s;
        QTest::newRow("no input") << QStringList{u"--batch"_s, u"DIR/none.csv"_s, u"--out"_s, u"DIR"_s} << 1
                                  << u"none.csv\" cannot be read"_s;
        QTest::newRow("malformed") << QStringList{u"--batch"_s, u"DIR/bad.csv"_s, u"--out"_s, u"DIR"_s} << 1
                                   << u"Line 3: The charge must be"_s;
#ifdef Q_OS_UNIX
        QTest::newRow("pipe") << QStringList{u"--batch"_s, u"DIR/pipe"_s, u"--out"_s, u"DIR"_s} << 1
                              << u"pipe\" cannot be read: it is not a file"_s;
#endif
        QTest::newRow("data without its other file")
            << QStringList{u"--batch"_s, u"DIR/Lost.wiff"_s, u"--out"_s, u"DIR"_s} << 1
            << u"Lost.wiff\" cannot be used as data. "_s;
        QTest::newRow("no samples") << QStringList{u"--batch"_s, u"DIR/empty.csv"_s, u"--out"_s, u"DIR"_s}
                                    << 1 << u"holds no samples"_s;
        QTest::newRow("no data") << QStringList{u"--batch"_s, u"DIR"_s, u"--out"_s, u"DIR/out"_s} << 1
                                 << u"holds no samples"_s;
        QTest::newRow("folder under a file")
            << QStringList{u"--batch"_s, samples, u"--out"_s, u"DIR/bad.csv/out"_s} << 1
            << u"cannot be written to"_s;
        QTest::newRow("no database") << QStringList{u"--batch"_s, samples,         u"--out"_s,
                                                    u"DIR"_s,     u"--database"_s, u"DIR/bad.csv"_s}
                                     << 1 << u"this is not an audit trail"_s;
        QTest::newRow("version") << QStringList{u"--version"_s} << 0 << u"workbench "_s;
        QTest::newRow("help") << QStringList{u"--help"_s} << 0 << u"--batch <input>"_s;
        QTest::newRow("unknown option") << QStringList{u"--batsch"_s} << 1 << u"Unknown option"_s;
    }
    void endsWithAMessage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const QTemporaryDir folder;
        QVERIFY(writeFile(folder.filePath(u"bad.csv"_s), "Name,Mass,Charge\nA,1,2\nB,1,999\n"));
        QVERIFY(writeFile(folder.filePath(u"empty.csv"_s), "Name,Mass\n"));
        QVERIFY(writeFile(folder.filePath(u"Lost.wiff"_s), {}));
#ifdef Q_OS_UNIX
        QCOMPARE(mkfifo(QFile::encodeName(folder.filePath(u"pipe"_s)).constData(), 0600), 0);
#endif
        arguments.replaceInStrings(u"DIR"_s, folder.path());
        const Outcome outcome = run(arguments);
        QTEST(outcome.exitCode, "exitCode");
        const QString told = outcome.exitCode == 0 ? outcome.lines.join(u'\n') : outcome.complaint;
        QVERIFY2(told.contains(message), qUtf8Printable(told));
        QVERIFY2(!outcome.lines.join(u'\n').contains("--steps"_L1), "for tests only");
    }

    void killedRunKeepsWhatItAcknowledged()
    {
        const QTemporaryDir folder;
        QStringList lines;
        // At different moments, and each run on what the one before left.
        for (const int enough : {40, 101, 160}) {
            QProcess process;
            process.start(QStringLiteral(WORKBENCH_PROGRAM),
                          {u"--batch"_s, QStringLiteral(WORKBENCH_SAMPLES), u"--out"_s, folder.path(),
                           u"--steps"_s, u"2000"_s});
            QByteArray told;
            while (told.count('\n') < enough && process.waitForReadyRead(kRunMs))
                told += process.readAllStandardOutput();
            process.kill();
            QVERIFY(process.waitForFinished(kRunMs));
            QVERIFY2(process.exitStatus() == QProcess::CrashExit, "the run ended before it could be killed");
            told += process.readAllStandardOutput();
            // A line that is cut off was not acknowledged.
            told.truncate(told.lastIndexOf('\n'));
            lines += QString::fromUtf8(told).split(u'\n');

            const QSet<qint64> stored = storedIn(folder.filePath(u"trail.sqlite"_s));
            const QList<qint64> acknowledged = recordedIn(lines);
            QVERIFY(acknowledged.size() >= enough);
            for (const qint64 number : acknowledged)
                QVERIFY2(stored.contains(number), qUtf8Printable(u"record %1 is lost"_s.arg(number)));
        }
    }
};

QTEST_GUILESS_MAIN(TestBatchRun)
#include "tst_batchrun.moc"
