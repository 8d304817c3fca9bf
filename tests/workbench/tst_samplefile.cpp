#include "SampleFixture.h"
#include "samples/CsvReader.h"
#include "samples/SampleFile.h"
#include "support/StrictTest.h"

using namespace Qt::StringLiterals;
using namespace ozm::test;
using namespace workbench;
using ozm::msreader::MsSample;

class TestSampleFile : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsCells_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("rows"); // "line:cell|cell" joined by "/"
        QTest::newRow("plain") << QByteArray("a,b\n1,2\n") << u"1:a|b/2:1|2"_s;
        QTest::newRow("no end of line") << QByteArray("a,b\n1,") << u"1:a|b/2:1|"_s;
        QTest::newRow("carriage returns") << QByteArray("a\r\nb\rc\n") << u"1:a/2:b/3:c"_s;
        QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBFµ,β\n") << u"1:µ|β"_s;
        QTest::newRow("quoted separator") << QByteArray("\"a,b\",c\n") << u"1:a,b|c"_s;
        QTest::newRow("doubled quotes") << QByteArray("\"\"\"a\"\"\",\"\"\n") << u"1:\"a\"|"_s;
        QTest::newRow("quoted line breaks") << QByteArray("\"a\r\nb\",c\nd,e\n") << u"1:a\nb|c/3:d|e"_s;
        QTest::newRow("quote inside") << QByteArray("5\" tube,b\n") << u"1:5\" tube|b"_s;
        QTest::newRow("empty lines") << QByteArray("\n\na\n\n") << u"3:a"_s;
        QTest::newRow("nothing") << QByteArray() << QString();
    }
    void readsCells()
    {
        QFETCH(QByteArray, bytes);
        const auto rows = readCsv(bytes);
        QVERIFY(rows);
        QStringList texts;
        for (const CsvRow &row : rows.value())
            texts.append(u"%1:%2"_s.arg(row.line).arg(row.cells.join(u'|')));
        QTEST(texts.join(u'/'), "rows");
    }

    void malformedFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("message");
        QTest::newRow("empty") << QByteArray("\n") << u"Line 1: The file is empty"_s;
        QTest::newRow("unknown column")
            << QByteArray("Name,Mass,Colour\n") << u"Line 1: The column \"Colour\" is not known"_s;
        QTest::newRow("column twice")
            << QByteArray("Name,Mass,mass\n") << u"Line 1: The column \"mass\" is there twice"_s;
        QTest::newRow("column missing")
            << QByteArray("Mass\n1\n") << u"Line 1: The column \"Name\" is missing"_s;
        QTest::newRow("too few cells") << QByteArray("Name,Mass\nA,1\nB\n") << u"Line 3: There are 1 cells"_s;
        QTest::newRow("too many cells") << QByteArray("Name,Mass\nA,1,2\n") << u"Line 2: There are 3 cells"_s;
        QTest::newRow("value against a rule")
            << QByteArray("Name,Mass\n\"A\nB\",1\nC,-1\n") << u"Line 4: The mass must"_s;
        QTest::newRow("no mass") << QByteArray("Name,Mass\nA,\n")
                                 << u"Line 2: The mass must be a positive number"_s;
        QTest::newRow("data without a path")
            << QByteArray("Name,Mass,Format,Kind\nA,,Mzml,file\n") << u"Line 2: A sample with data needs"_s;
        QTest::newRow("path without data")
            << QByteArray("Name,Mass,Path\nA,1,/a.mzml\n") << u"Line 2: \"Path\" is for samples with"_s;
        QTest::newRow("kind") << QByteArray("Name,Mass,Format,Kind,Path\nA,,Mzml,disk,/a\n")
                              << u"Line 2: The kind must be"_s;
        QTest::newRow("size") << QByteArray("Name,Mass,Format,Kind,Path,Size\nA,,Mzml,file,/a,-1\n")
                              << u"Line 2: The size must be"_s;
        QTest::newRow("name twice") << QByteArray("Name,Mass\nA,1\n\nA ,2\n")
                                    << u"Line 4: The name \"A\" is there already, on line 2"_s;
        QTest::newRow("quote not closed")
            << QByteArray("Name,Mass\nA,1\n\"B\n,2\n") << u"Line 3: the quote"_s;
        QTest::newRow("text after quote")
            << QByteArray("Name,Mass\n\"A\"B,1\n") << u"Line 2: there is text after"_s;
        QTest::newRow("not UTF-8") << QByteArray("Name,Mass\nA,1\n\xB5,2\n")
                                   << u"Line 3: the text is not UTF-8"_s;
    }
    void malformedFilesAreRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"in.csv"_s);
        QVERIFY(writeFile(path, bytes));
        const auto samples = samplefile::read(path);
        QVERIFY(samples.hasError());
        const QString text = samples.error().errorMessage();
        QVERIFY2(text.contains(message) && text.contains("in.csv"_L1), qUtf8Printable(text));
    }

    void unreadablePathsAreRefused()
    {
        const QTemporaryDir folder;
        for (const QString &path : {folder.filePath(u"none.csv"_s), folder.path()}) {
            const auto samples = samplefile::read(path);
            QVERIFY(samples.hasError());
            QCOMPARE(samples.error().errorCode(), ozm::ErrorCode::FileAccess);
            QVERIFY(samples.error().errorMessage().contains("cannot be read"_L1));
        }
    }

    void readsWhatItWrote()
    {
        SampleFixture fixture;
        const QString comment = u" \"5 µL\", β;\nsecond line, "_s;
        QVERIFY(!fixture.editor->setCell(fixture.idAt(0), kComment, comment).hasError());
        QVERIFY(!fixture.editor->setCell(fixture.idAt(0), kMass, u"148057.12345678901"_s).hasError());
        const QString out = fixture.folder.filePath(u"out.csv"_s);
        QVERIFY(!fixture.editor->save(out).hasError());
        QVERIFY(fixture.editor->history().isClean());

        const auto samples = samplefile::read(out);
        QVERIFY(samples);
        QCOMPARE(samples.value().size(), 3U);
        for (std::size_t row = 0; row < samples.value().size(); ++row) {
            for (const QString &column : SampleTable::columns())
                QCOMPARE(samples.value().at(row).getDataAt(column),
                         fixture.editor->table().row(static_cast<int>(row))->getDataAt(column));
        }
        QVERIFY(fixture.editor->save(fixture.folder.filePath(u"none/out.csv"_s)).hasError());
    }

    void readsDataItWrote()
    {
        const SampleFixture fixture;
        const QString out = fixture.folder.filePath(u"out.csv"_s);
        QVERIFY(!fixture.editor->save(out).hasError());
        QVERIFY2(!readFile(out).contains("Format"), "files without data stay as they always were");

        // Blanks at the ends of a path, a size beyond 32 bits, and one that is not known.
        QVERIFY(
            !fixture.editor
                 ->addData(
                     {{u" /a, \"b\"/x.mzml "_s,
                       u"Mzml"_s,
                       u"Open, \"data\""_s,
                       ozm::EntryKind::File,
                       5'000'000'000,
                       {}},
                      {u"/質量/y.d"_s, u"BrukerTims"_s, u"Bruker Tims"_s, ozm::EntryKind::Folder, -1, {}}},
                     u"/a"_s)
                 .hasError());
        QVERIFY(!fixture.editor->save(out).hasError());
        QVERIFY(!fixture.editor->load(out).hasError());
        QCOMPARE(fixture.editor->table().rowCount(), 5);
        QCOMPARE(fixture.editor->table().dataCount(), 2);
        for (const QString &part : {u" /a, \"b\"/x.mzml "_s, u"5000000000"_s, u"folder||/質量/y.d"_s})
            QVERIFY2(fixture.samples().contains(part), qUtf8Printable(part));
    }
};

QTEST_GUILESS_MAIN(TestSampleFile)
#include "tst_samplefile.moc"
