#include "reports/ReportDialog.h"
#include "reports/ReportSeries.h"
#include "samples/SampleTable.h"
#include "support/StrictTest.h"

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_widgets/ReportView.h>

#include <QComboBox>
#include <QRadioButton>
#include <QTextDocument>

using namespace Qt::StringLiterals;
using namespace workbench;

namespace {

RowNode sample(const QString &name, const QString &sequence, int charge, double mass)
{
    RowNode row = SampleTable::emptyRow();
    row.setDataAt(kName, name);
    row.setDataAt(kSequence, sequence);
    row.setDataAt(kCharge, charge);
    row.setDataAt(kMass, mass);
    return row;
}

std::vector<RowNode> samples()
{
    return {sample(u"T1 <b>"_s, u"QAPGK"_s, 1, 499.2754), sample(u"T2"_s, u"FTISR"_s, 2, 622.3439)};
}

QString text(const ReportPages &report)
{
    QTextDocument document;
    document.setHtml(reportHtml(report));
    return document.toPlainText();
}

} // namespace

class TestReport : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void certificates()
    {
        const ReportContext context(u"jdoe"_s, u"samples.csv"_s, samples());
        const auto filled = fillReport(reportTemplates().at(0).path, false, samples(), context);
        QVERIFY(filled);
        QCOMPARE(filled.value().pages.size(), 2);
        QCOMPARE(filled.value().troubles, QStringList());
        const QString shown = text(filled.value());
        for (const auto &expected :
             {u"T1 <b>"_s, u"QAPGK"_s, u"500.2827"_s, u"250.6450"_s, u"312.1792"_s, u"jdoe"_s})
            QVERIFY2(shown.contains(expected), qPrintable(expected + u" in "_s + shown));
        QVERIFY(!reportHtml(filled.value()).contains(u"script>"_s, Qt::CaseInsensitive));
        static const QRegularExpression code(u"\\[[A-Z][A-Za-z]+\\]"_s);
        QVERIFY(!shown.contains(code));
    }

    void listOfAll_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("list") << 1
                              << QStringList{u"2 samples"_s, u"499.2754 – 622.3439 Da"_s, u"1 – 2"_s,
                                             u"312.1792"_s};
        QTest::newRow("summary") << 2 << QStringList{u"2 samples"_s, u"622.3439 Da"_s, u"none"_s};
    }
    void listOfAll()
    {
        QFETCH(const int, index);
        QFETCH(const QStringList, expected);
        const ReportContext context(u"jdoe"_s, u"samples.csv"_s, samples());
        const auto filled = fillReport(reportTemplates().at(index).path, true, samples(), context);
        QVERIFY(filled);
        QCOMPARE(filled.value().pages.size(), 1);
        QCOMPARE(filled.value().troubles, QStringList());
        const QString shown = text(filled.value());
        for (const QString &each : expected)
            QVERIFY2(shown.contains(each), qPrintable(each + u" in "_s + shown));
    }

    void sequencesAreCovered()
    {
        const QString peptide = u"EVQLVESGGGLVQPGGSLR"_s;
        std::vector<RowNode> rows{sample(u"P"_s, peptide + u"LSCAASGFTFSSYAM"_s + peptide.first(6), 2, 4000),
                                  sample(u"A"_s, peptide, 2, 1881.0), sample(u"B"_s, u"EVQLVE"_s, 1, 0),
                                  sample(u"C"_s, u"WWW"_s, 1, 1)};
        const auto filled = fillReport(reportTemplates().at(3).path, false, rows, {});
        QVERIFY(filled);
        QCOMPARE(filled.value().pages.size(), 4);
        ReportPages first{{filled.value().pages.constFirst()}, {}};
        const QString shown = text(first).simplified();
        for (const QString &each : {u"62.5 %"_s, u"by 3 peptides"_s,
                                    u"A 1 19 EVQLVESGGGLVQPGGSLR 1881.0000 +"_s, u"B 35 40 EVQLVE"_s})
            QVERIFY2(shown.contains(each), qPrintable(each + u" in "_s + shown));
        QCOMPARE(filled.value().pages.constFirst().html.count(u"#cfe3f4"_s), 25);
        QVERIFY(filled.value().pages.constLast().html.contains(u"None of the samples"_s));
    }

    void troublesAreTold()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("<ozm_template version=\"1.0\">[Nope]<script>\nnull.x</script></ozm_template>");
        file.close();
        const auto filled = fillReport(file.fileName(), false, samples(), {});
        QVERIFY(filled);
        QCOMPARE(filled.value().troubles.size(), 2);
        QVERIFY(filled.value().troubles.at(0).contains(u"[Nope]"_s));
        QVERIFY(filled.value().troubles.at(1).contains(u"line 2"_s));
        QVERIFY(!fillReport(u":/nowhere"_s, false, samples(), {}));
    }

    void pdfOfManySheets()
    {
        std::vector<RowNode> rows;
        for (int index = 0; index < 120; ++index)
            rows.push_back(sample(u"A name that takes two lines %1"_s.arg(index), u"QAPGK"_s, 1, 499.2754));
        const ReportContext context(u"jdoe"_s, u"samples.csv"_s, rows);
        const auto filled = fillReport(reportTemplates().at(1).path, true, rows, context);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"report.pdf"_s);
        QVERIFY(filled && !saveReportPdf(filled.value(), path, context).hasError());
        QFile pdf(path);
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        QVERIFY(pdf.read(4) == "%PDF" && pdf.size() > 20000);
        QVERIFY(pdf.seek(0) && pdf.readAll().contains("/Author <FEFF"));
        QVERIFY(saveReportPdf(filled.value(), folder.filePath(u"missing/report.pdf"_s), context).hasError());
        QVERIFY(saveReportHtml(filled.value(), folder.filePath(u"missing/report.html"_s)).hasError());
    }

    // One file, a file for each, canceled, and where nothing can be written.
    void series()
    {
        const std::vector<RowNode> rows = samples();
        auto filler = ReportFiller::of(reportTemplates().at(0).path, false, rows, {});
        QVERIFY(filler);
        ReportFiller &reports = filler.value();
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"all.pdf"_s);
        const auto goOn = [](int, int, const QString &) { return true; };
        const auto bytes = [&path] {
            QFile file(path);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        QVERIFY(writeReportsToFile(reports, path, goOn));
        const QByteArray written = bytes();
        QCOMPARE(written.count("/Type /Page\n"), 2);
        const QByteArray name = "<FEFF" + u"T2"_s.toUtf8().toHex().insert(2, "00").prepend("00") + ">";
        QVERIFY(written.contains("/Title " + name) && written.contains("/PageMode /UseOutlines"));
        // Neither a canceled series nor one that cannot be written touches what was there.
        for (const int last : {0, 1, 2}) {
            const auto stop = [last](int done, int, const QString &) { return done < last; };
            const auto canceled = writeReportsToFile(reports, path, stop);
            QVERIFY(canceled && canceled.value().isCanceled && canceled.value().files == 0);
            QCOMPARE(bytes(), written);
        }
        QVERIFY(!writeReportsToFile(reports, folder.filePath(u"no/all.pdf"_s), goOn));
        const QDir each(folder.filePath(u"each"_s));
        QCOMPARE(writeReportsToFolder(reports, each.path(), goOn).value().files, 2);
        QCOMPARE(each.entryList(QDir::Files), (QStringList{u"0000 T1 _b_.pdf"_s, u"0000 T2.pdf"_s}));
        QVERIFY(!writeReportsToFolder(reports, path, goOn));
    }

    void dialog()
    {
        ReportDialog dialog(samples(), ReportContext(u"jdoe"_s, u"samples.csv"_s, samples()));
        auto *preview = dialog.findChild<ozm::ReportView *>(u"preview"_s);
        QVERIFY(preview->toPlainText().contains(u"Certificate of Annotation"_s));
        dialog.findChild<QComboBox *>(u"report"_s)->setCurrentIndex(1);
        QVERIFY(preview->toPlainText().contains(u"FTISR"_s));
        dialog.findChild<QComboBox *>(u"template"_s)->setCurrentIndex(1);
        QVERIFY(dialog.findChild<QRadioButton *>(u"group"_s)->isChecked());
        QVERIFY(preview->toPlainText().contains(u"2 samples"_s));
    }
};

QTEST_MAIN(TestReport)
#include "tst_report.moc"
