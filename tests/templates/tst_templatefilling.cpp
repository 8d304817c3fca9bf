#include "support/Files.h"
#include "support/StrictTest.h"

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/ReportPaper.h>
#include <ozm_widgets/ReportView.h>
#include <ozm_widgets/TemplateDocument.h>
#include <ozm_widgets/TemplateEditorJSEngine.h>
#include <ozm_widgets/TemplateFilling.h>

#include <QBuffer>
#include <QDateTime>
#include <QImage>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

class Context
{
    Q_GADGET
    Q_PROPERTY(QString user MEMBER user)
    Q_PROPERTY(QDateTime moment MEMBER moment)
    Q_PROPERTY(QImage plot MEMBER plot)
    Q_PROPERTY(QByteArray drawing MEMBER drawing)

public:
    QString user = u"A & <b>"_s;
    QDateTime moment = QDateTime(QDate(2026, 2, 3), QTime(4, 5));
    QImage plot = QImage(2, 1, QImage::Format_RGB32);
    QByteArray drawing = "<svg width='900' height='900'><text x='9' y='90'>Ion</text></svg>";
};

std::unique_ptr<RowNode> ion(const QString &name, const QVariant &charge, const QVariant &mass)
{
    auto row = std::make_unique<RowNode>(QStringList{kName, kCharge, u"Site"_s});
    row->setDataAt(kName, name);
    row->setDataAt(kCharge, charge);
    // Not every row has every column.
    if (mass.isValid()) {
        row->addColumn(kMass);
        row->setDataAt(kMass, mass);
    }
    row->setDataAt(u"Site"_s, u"S"_s + name);
    return row;
}

/// A sample, "T12", of three ions; a list without rows; one with values that are hard.
struct Data
{
    Data()
    {
        sample = ion(u"T12"_s, 2, 1234567.891);
        for (auto &row : {&a, &b, &c})
            ions.append(row->get());
        for (auto &row : {&wild, &odd})
            hard.append(row->get());
        report = {{sample.get()},
                  {{Context::staticMetaObject, &context}},
                  {{u"Ions"_s, ions}, {u"None"_s, {}}, {u"Hard"_s, hard}}};
    }

    Context context;
    std::unique_ptr<RowNode> sample;
    std::unique_ptr<RowNode> a = ion(u"y10"_s, 1, 20.5);
    std::unique_ptr<RowNode> b = ion(u"y9"_s, 3, {});
    std::unique_ptr<RowNode> c = ion(u"b2"_s, 2, 5.25);
    std::unique_ptr<RowNode> wild = ion(u"<script>1</script>[Charge]\uFDD0"
                                        u"0\uFDD1"_s,
                                        7, u"n. d."_s);
    std::unique_ptr<RowNode> odd = ion(u"\uFDD0"_s, 8, std::numeric_limits<double>::quiet_NaN());
    QList<RowNode *> ions;
    QList<RowNode *> hard;
    ozm::ReportData report;
};

} // namespace

class TestTemplateFilling : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void fill_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("filled");
        const auto add = [](const char *name, const QString &content, const QString &filled) {
            QTest::newRow(name) << content << filled;
        };
        const auto format = [&add](const char *name, const QString &attributes, const QString &code,
                                   const QString &filled) {
            add(name, u"<p><span data-format=\"%1>[%2]</span></p>"_s.arg(attributes, code),
                u"<p>"_s + filled + u"</p>"_s);
        };

        add("nothing", u"<b>[Name]</b><!--a--> [Nope]"_s, u"<b>T12</b><!--a--> [Nope]"_s);
        add("a row of a table",
            u"<table><tr><th>N</th></tr><tr class='x'><td><!--ozm:repeat-row of=\"Ions\"-->[Name] [Charge]</td></tr></table>"_s,
            u"<table><tr><th>N</th></tr><tr class='x'><td>y10 1</td></tr><tr class='x'><td>y9 3</td></tr>"
            "<tr class='x'><td>b2 2</td></tr></table>"_s);
        add("an item, numbered and sorted",
            u"<ol><li><!--ozm:repeat-row of='Ions' sort='Name'-->[RowNumber]/[RowCount] [Name]</li></ol>"_s,
            u"<ol><li>1/3 b2</li><li>2/3 y9</li><li>3/3 y10</li></ol>"_s);
        add("sorted by numbers, no value last",
            u"<ul><li><!--ozm:repeat-row of=\"Ions\" sort=\"Mass\" order=\"descending\"-->[Name]</li></ul>"_s,
            u"<ul><li>y10</li><li>b2</li><li>y9</li></ul>"_s);
        add("sorted with texts and not-a-numbers",
            u"<!--ozm:repeat of=\"Hard\" sort=\"Mass\"-->[Charge];<!--ozm:end-->"_s, u"7;8;"_s);
        add("a section in lines of its own",
            u"<p><!--ozm:repeat of=\"Ions\"--></p>\n<h2>[Name]</h2>\n<p><b><!--ozm:end--></b></p>\n<p>.</p>"_s,
            u"<h2>y10</h2>\n<h2>y9</h2>\n<h2>b2</h2>\n<p>.</p>"_s);
        add("a section of plain text",
            u"Ions\n<!--ozm:repeat of=\"Ions\"-->\n- [Name] <[Charge]+>\n<!--ozm:end-->\nend"_s,
            u"Ions\n- y10 <1+>\n- y9 <3+>\n- b2 <2+>\nend"_s);
        add("no rows",
            u"<table><tr><td><!--ozm:repeat-row of=\"None\" empty=\"No &lt;ion&gt;\"--></td><td colspan='2'>[Name]</td></tr></table>"_s,
            u"<table><tr><td colspan=\"3\">No &lt;ion&gt;</td></tr></table>"_s);
        add("no rows of a section",
            u"<p><!--ozm:repeat of=\"None\" empty=\"None\"--></p><p>[Name]</p><p><!--ozm:end--></p>."_s,
            u"<p>None</p>."_s);
        add("no rows, no text", u"<!--ozm:repeat of=\"None\"-->[Name]<!--ozm:end-->."_s, u"."_s);
        add("the rows of the report", u"<!--ozm:repeat-->[Name]<!--ozm:end-->"_s, u"T12"_s);
        add("values from around the row",
            u"<!--ozm:repeat of=\"Ions\"-->[Mass] [Site] [User];<!--ozm:end-->"_s,
            u"20.5000 Sy10 A & <b>;1234567.8910 Sy9 A & <b>;5.2500 Sb2 A & <b>;"_s);
        add("sections within sections",
            u"<!--ozm:repeat of=\"Ions\"-->[Name]:<!--ozm:repeat of=\"Ions\"--><!--ozm:if code=\"Charge\" is=\"above\" value=\"1\"-->[Name]<!--ozm:end-->,<!--ozm:end-->;<!--ozm:end-->"_s,
            u"y10:,y9,b2,;y9:,y9,b2,;b2:,y9,b2,;"_s);
        add("scripts of a row",
            u"<!--ozm:repeat of=\"Ions\"--><script>inputParameters[\"[Charge]\"] * 2</script>;<!--ozm:end-->"_s,
            u"<script>2</script>;<script>6</script>;<script>4</script>;"_s);
        add("scripts around rows",
            u"<script>x = 3</script><!--ozm:repeat of=\"Ions\"-->-<!--ozm:end--><script>\"<!--ozm:end-->\"</script>"_s,
            u"<script>3</script>---<script><!--ozm:end--></script>"_s);
        add("values that look like a template",
            u"<!--ozm:repeat of=\"Hard\"-->[Name]<span data-format=\"text\">[Name]</span>;<!--ozm:end--><i>"_s,
            u"<script>1</script>[Charge]\uFDD0"
            u"0\uFDD1"
            u"&lt;script&gt;1&lt;/script&gt;[Charge]\uFDD0"
            u"0\uFDD1;\uFDD0\uFDD0;<i>"_s);

        for (const auto &[name, test, result] :
             {std::tuple("present", u"code=\"Name\" is=\"present\""_s, true),
              {"absent", u"code=\"Nope\" is=\"absent\""_s, true},
              {"equal numbers", u"code=\"Charge\" is=\"equal\" value=\"2.0\""_s, true},
              {"equal texts", u"code=\"Name\" is=\"equal\" value=\"t12\""_s, false},
              {"different", u"code=\"Name\" is=\"different\" value=\"T1\""_s, true},
              {"above", u"code=\"Mass\" is=\"above\" value=\"1234567.89\""_s, true},
              {"not above itself", u"code=\"Charge\" is=\"above\" value=\"2\""_s, false},
              {"below", u"code=\"Charge\" is=\"below\" value=\"2.5\""_s, true},
              {"below a text", u"code=\"Name\" is=\"below\" value=\"9\""_s, false},
              {"with entities", u"code=\"User\" is=\"equal\" value=\"A &amp; &lt;b&#62;\""_s, true}})
            add(name, u"<p><!--ozm:if %1--></p><i>x</i><p><!--ozm:end--></p>."_s.arg(test),
                result ? u"<i>x</i>."_s : u"."_s);
        const QString wild =
            u"<!--ozm:if code=\"Charge\" is=\"%1\" value=\"2\"-->\n<!--ozm:repeat of=\"Ions\"-->"
            "[Name]<!--ozm:else-->x<!--ozm:end-->\n<p><!--ozm:else--></p>\n"
            "<!--ozm:if code=\"Nope\" is=\"present\"-->y<!--ozm:else-->[Name]<!--ozm:end-->\n<!--ozm:end-->."_s;
        add("the one part", wild.arg(u"equal"_s), u"y10y9b2\n."_s);
        add("the other part", wild.arg(u"above"_s), u"T12\n."_s);
        add("other part for no rows",
            u"<!--ozm:repeat of=\"None\"-->[Name]<!--ozm:else--><b>[Charge]</b><!--ozm:end-->"_s,
            u"<b>2</b>"_s);
        add("sorted by several codes",
            u"<!--ozm:repeat of=\"Ions\" sort=\"Nope\" sort-2=\"Charge\" order-2=\"descending\"-->[Name] <!--ozm:end-->"_s,
            u"y9 b2 y10 "_s);
        add("rows under a condition",
            u"<ul><li><!--ozm:if-row code=\"Charge\" is=\"above\" value=\"1\"--><!--ozm:repeat-row of=\"Ions\"-->[Name]</li></ul>"_s,
            u"<ul><li>y9</li><li>b2</li></ul>"_s);

        format("digits and thousands", u"number\" data-digits=\"2\" data-thousands=\",\""_s, u"Mass"_s,
               u"1,234,567.89"_s);
        format("all digits, not those of the column", u"number\""_s, u"Mass"_s, u"1234567.891"_s);
        format(
            "a decimal comma and a unit",
            u"number\" data-digits=\"1\" data-thousands=\".\" data-decimal=\",\" data-factor=\"0.001\" data-unit=\"kDa\""_s,
            u"Mass"_s, u"1.234,6\u00a0kDa"_s);
        format("not a number", u"number\" data-digits=\"1\" data-unit=\"Da\""_s, u"Name"_s, u"T12"_s);
        format("nothing", u"number\" data-empty=\"&ndash; &lt;\""_s, u"Nope"_s, u"&amp;ndash; &lt;"_s);
        format("upper case, as text", u"text\" data-case=\"upper\""_s, u"User"_s, u"A &amp; &lt;B&gt;"_s);
        format("as HTML", u"text\" data-as=\"html\""_s, u"User"_s, u"A & <b>"_s);
        format("a date", u"date\" data-pattern=\"d MMMM yyyy, HH:mm\""_s, u"Moment"_s,
               u"3 February 2026, 04:05"_s);
        format("no date", u"date\""_s, u"Name"_s, u"T12"_s);
        format("sum", u"number\" data-total=\"sum\" data-of=\"Ions\" data-digits=\"3\""_s, u"Mass"_s,
               u"25.750"_s);
        format("mean", u"number\" data-total=\"mean\" data-of=\"Ions\""_s, u"Charge"_s, u"2"_s);
        format("largest", u"number\" data-total=\"largest\" data-of=\"Ions\""_s, u"Charge"_s, u"3"_s);
        format("count of values", u"number\" data-total=\"count\" data-of=\"Ions\""_s, u"Mass"_s, u"2"_s);
        format("sum of nothing", u"number\" data-total=\"sum\" data-of=\"None\" data-empty=\"-\""_s,
               u"Mass"_s, u"-"_s);
        add("contents", u"<p><!--ozm:contents title='No. [Charge] [User]'--></p>\n<b>x</b>"_s,
            u"<!--ozm:contents levels=\"3\" title=\"No. 2 A &amp; &lt;b&gt;\"--><b>x</b>"_s);
        add("page set-up",
            u"<p><!--ozm:page size='A5' margins='10 20 30 40' header='No. [Charge] [User]'--></p><b>x</b>"_s,
            u"<!--ozm:page size=\"A5\" margins=\"10 20 30 40\" header=\"No. 2 A &amp; &lt;b&gt;\"--><b>x</b>"_s);
        add("in plain text", u"<span data-format=\"text\">[User]</span> <"_s, u"A & <b> <"_s);
    }
    void fill()
    {
        QFETCH(const QString, content);
        const Data data;
        const ozm::TemplateReport report = ozm::fillTemplate(content, data.report);
        QTEST(report.text, "filled");
        QCOMPARE(report.faulty.size(), 0);
        QCOMPARE(report.failed.size(), 0);
        if (!content.contains(u"ozm:"_s) && !content.contains(u"data-format"_s))
            QCOMPARE(report.text,
                     AbstractTemplateEditor::decodeTEC(content, data.sample.get(), data.report.extraData));
    }

    void refuse_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("faulty");

        const auto add = [](const char *name, const QString &content, const QString &faulty) {
            QTest::newRow(name) << content << faulty;
        };
        const QString begin = u"<!--ozm:if code=\"Name\" is=\"present\"-->"_s;
        const QString end = u"<!--ozm:end-->"_s;
        add("unknown", u"a<!--ozm:loop-->b"_s, u"<!--ozm:loop-->"_s);
        add("unknown attribute", u"<!--ozm:repeat by=\"Name\"-->b"_s, u"<!--ozm:repeat by=\"Name\"-->"_s);
        add("no attribute", u"<!--ozm:repeat Name-->b"_s, u"<!--ozm:repeat Name-->"_s);
        add("no code", u"<!--ozm:if is=\"present\"-->b"_s, u"<!--ozm:if is=\"present\"-->"_s);
        add("no end", begin + u"b"_s, begin);
        add("no begin", u"b"_s + end, end);
        add("never closed", u"b<!--ozm:end"_s, u"<!--ozm:end"_s);
        add("no row around", u"<p><!--ozm:repeat-row--></p>"_s, u"<!--ozm:repeat-row-->"_s);
        add("two repeats of one row",
            u"<ul><li><!--ozm:repeat-row of=\"Ions\"--><!--ozm:repeat-row sort=\"a\"--></li></ul>"_s,
            u"<!--ozm:repeat-row sort=\"a\"-->"_s);
        add("in two elements", u"<p>a"_s + begin + u"b</p><p>c"_s + end + u"d</p>"_s, begin + u'|' + end);
        for (const auto &page :
             {u"<!--ozm:contents levels=\"7\"-->"_s, u"<!--ozm:page size=\"A9\"-->"_s,
              u"<!--ozm:page margins=\"1 2 3\"-->"_s, u"<!--ozm:page margins=\"1 2 3 -4\"-->"_s})
            add(qPrintable(page), page, page);
        add("no section to have another part", u"a<!--ozm:else-->"_s, u"<!--ozm:else-->"_s);
        add("three parts", begin + u"a<!--ozm:else-->b<!--ozm:else-->c"_s + end,
            begin + u"|<!--ozm:else-->|"_s + end);
        add("another part in another element", begin + u"a<b><!--ozm:else-->b</b>"_s + end,
            begin + u"|<!--ozm:else-->|"_s + end);
        add("two ways for no rows", u"<!--ozm:repeat empty=\"-\"-->a<!--ozm:else-->b<!--ozm:end-->"_s,
            u"<!--ozm:repeat empty=\"-\"-->|<!--ozm:else-->|<!--ozm:end-->"_s);
        add("a second order without a first", u"<!--ozm:repeat sort=\"a\" order-2=\"descending\"-->b"_s,
            u"<!--ozm:repeat sort=\"a\" order-2=\"descending\"-->"_s);
        add("unknown list", u"<!--ozm:repeat of=\"Nope\"-->b<!--ozm:end-->"_s,
            u"<!--ozm:repeat of=\"Nope\"-->"_s);
        add("a format of two codes", u"<span data-format=\"text\">b b</span>"_s,
            u"<span data-format=\"text\">b b</span>"_s);
        for (const auto &attribute :
             {u"data-digits=\"x\""_s, u"data-digits=\"-1\""_s, u"data-digits=\"9999\""_s,
              u"data-factor=\"0\""_s, u"data-total=\"all\""_s, u"data-no=\"1\""_s,
              u"data-total=\"sum\" data-of=\"Hard\""_s, u"data-total=\"sum\" data-of=\"Nope\""_s}) {
            const QString span = u"<span data-format=\"number\" %1>[Mass]</span>"_s.arg(attribute);
            add(qPrintable(attribute), span, span);
        }
    }
    void refuse()
    {
        QFETCH(const QString, content);
        const Data data;
        const ozm::TemplateReport report = ozm::fillTemplate(content, data.report);
        QStringList faulty;
        for (const ozm::FaultyInstruction &instruction : report.faulty) {
            faulty.append(instruction.instruction);
            QCOMPARE(content.sliced(instruction.position, instruction.instruction.size()),
                     instruction.instruction);
            QVERIFY(!instruction.message.isEmpty());
        }
        QTEST(faulty.join(u'|'), "faulty");
        QVERIFY(!report.isComplete());
        // With the part that they are about; all else is filled as usual.
        for (const QString &instruction : faulty)
            QVERIFY2(report.text.contains(instruction) || instruction.contains(u"[Mass]"_s),
                     qPrintable(report.text));
    }

    void placesOfTroubles()
    {
        const Data data;
        const QString content =
            u"[A1]<p><!--ozm:repeat of=\"Ions\"--></p><b>[A2]<script>\nnull.x</script></b><p><!--ozm:end--></p>[A3]"_s;
        const ozm::TemplateReport report = ozm::fillTemplate(content, data.report);
        QCOMPARE(report.unresolved.size(), 3);
        for (const ozm::UnresolvedCode &code : report.unresolved)
            QCOMPARE(content.sliced(code.position, code.code.size()), code.code);
        QCOMPARE(report.failed.size(), 1);
        QCOMPARE(content.sliced(report.failed.at(0).position, 7), u"\nnull.x"_s);
    }

    // Each of these took minutes, or all memory, without a bound.
    void hugeParts_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<bool>("isRefused");
        const QString repeat = u"<!--ozm:repeat of=\"Many\"-->"_s;
        const QString end = u"<!--ozm:end-->"_s;
        QTest::newRow("10^12 copies") << repeat.repeated(3) + end.repeated(3) << true;
        QTest::newRow("too long") << repeat + QString(200'000, u'x') + end << true;
        QTest::newRow("5000 within one another")
            << u"<!--ozm:if code=\"Name\" is=\"present\"-->"_s.repeated(5000) + end.repeated(5000) << true;
        QTest::newRow("scripts without an end") << repeat + u"<script>for(;;);</script>"_s + end << false;
    }
    void hugeParts()
    {
        QFETCH(const QString, content);
        Data data;
        data.report.lists.insert(u"Many"_s, QList<RowNode *>(2000, data.a.get()));
        const auto deadline = TemplateEditorJSEngine::deadline();
        TemplateEditorJSEngine::setDeadline(std::chrono::milliseconds(50));
        const ozm::TemplateReport report = ozm::fillTemplate(content, data.report);
        TemplateEditorJSEngine::setDeadline(deadline);
        QTEST(!report.faulty.isEmpty(), "isRefused");
        QVERIFY(!report.isComplete());
    }

    void pagesAreSetUp()
    {
        QBuffer bytes;
        QVERIFY(bytes.open(QIODevice::WriteOnly));
        QPdfWriter writer(&bytes);
        const QMarginsF usual = writer.pageLayout().margins(QPageLayout::Millimeter);
        ozm::ReportPaper(u"<!--ozm:page size=\"A5\" orientation=\"landscape\" header=\"x\"-->text"_s)
            .print(writer);
        QCOMPARE(writer.pageLayout().pageSize().id(), QPageSize::A5);
        QCOMPARE(writer.pageLayout().orientation(), QPageLayout::Landscape);
        QCOMPARE(writer.pageLayout().margins(QPageLayout::Millimeter), usual);
        ozm::ReportPaper(u"<!--ozm:page margins=\"30 20 10 40\"-->text"_s).print(writer);
        QCOMPARE(writer.pageLayout().margins(QPageLayout::Millimeter), QMarginsF(40, 30, 20, 10));
    }

    void pagesAreCut_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QStringList>("pages"); // the words at which each page begins and ends
        const QString lines = u"<p>l</p>"_s.repeated(11);
        const QString rows = u"<tr><td>a<br/>b<br/>c</td></tr>"_s.repeated(5);
        QTest::newRow("heading") << lines + u"<h1>H</h1><p>end</p>"_s << QStringList{u"l l"_s, u"H end"_s};
        QTest::newRow("heading of a table") << lines + u"<h1>H</h1><table><tr><td>end</td></tr></table>"_s
                                            << QStringList{u"l l"_s, u"H end"_s};
        QTest::newRow("rows") << u"<table cellpadding=\"9\">"_s + rows + u"</table>"_s
                              << QStringList{u"a c"_s, u"a c"_s};
        QTest::newRow("heading rows")
            << u"<table cellpadding=\"9\"><thead><tr><th>T</th></tr></thead>"_s + rows + u"</table>"_s
            << QStringList{u"T c"_s, u"T c"_s};
        QTest::newRow("breaks") << u"<p>a</p><p style=\"page-break-before:always\">b</p><p "
                                   "style=\"page-break-after:always\">c</p><p>d</p>"_s
                                << QStringList{u"a a"_s, u"b c"_s, u"d d"_s};
        QTest::newRow("break in a row")
            << u"<p>a</p><table><tr><td>x</td><td style=\"\"><p style=\"page-break-before:always\">y</p></td></tr></table>"_s
            << QStringList{u"a a"_s, u"xy xy"_s};
        QTest::newRow("row higher than a page")
            << u"<table><tr><td>%1end</td></tr></table>"_s.arg(u"l<br/>"_s.repeated(40))
            << QStringList{u"l l"_s, u"l l"_s, u"l end"_s};
        QTest::newRow("space above a table")
            << u"<p style=\"margin-bottom:900px\">l</p><table><tr><td>end</td></tr></table>"_s
            << QStringList{u"l l"_s, u"end end"_s};
        QTest::newRow("table with a space of its own")
            << u"<p>l</p><table style=\"margin-top:200px\">%1</table>"_s.arg(
                   u"<tr><td>r</td></tr>"_s.repeated(11))
            << QStringList{u"l r"_s, u"r r"_s};
        QTest::newRow("few lines") << lines + u"<p>1<br/>2<br/>3</p>"_s << QStringList{u"l l"_s, u"1 3"_s};
        const QString contents = u"<p><!--ozm:contents levels=\"2\" title=\"C\"--></p>"_s;
        QTest::newRow("contents") << contents + u"<h1 style=\"page-break-before:always\">H</h1><h3>x</h3>"
                                                "<h2 style=\"page-break-before:always\">I</h2><p>end</p>"_s
                                  << QStringList{u"C 3"_s, u"H x"_s, u"I end"_s};
        QTest::newRow("contents of several pages")
            << contents + u"<h1>H</h1>"_s.repeated(30) + u"<h2>I</h2><p>end</p>"_s
            << QStringList{u"C 5"_s, u"H 8"_s, u"H H"_s, u"H H"_s, u"H H"_s, u"H H"_s, u"H H"_s, u"I end"_s};
        QTest::newRow("image by its width")
            << u"<p><img width=40 src=\"data:image/svg+xml,<svg width='400' height='900'/>\"/></p><p>end</p>"_s
            << QStringList{u"end end"_s};
        QTest::newRow("letters in pixels")
            << u"<p style=\"font-size:200px\">l</p><p style=\"font-size:150pt\">m</p>"_s
            << QStringList{u"l l"_s, u"m m"_s};
    }
    void pagesAreCut()
    {
        QFETCH(const QString, html);
        const QTemporaryDir folder;
        ozm::ReportPaperOptions options;
        options.layout = QPageLayout(QPageSize(QPageSize::A6), QPageLayout::Landscape, QMarginsF(9, 9, 9, 9),
                                     QPageLayout::Millimeter);
        QVERIFY(!ozm::ReportPaper(html, options).writePdf(folder.filePath(u"p.pdf"_s)).hasError());
        QProcess reader;
        reader.start(u"pdftotext"_s, {u"-layout"_s, folder.filePath(u"p.pdf"_s), u"-"_s});
        QVERIFY(reader.waitForFinished());
        QStringList pages;
        const QString text = QString::fromUtf8(reader.readAllStandardOutput());
        const QStringList read = text.split(u'\f');
        for (const QString &page : read) {
            const QStringList words = page.section(u"Page "_s, 0, 0).simplified().split(u' ');
            if (!words.constFirst().isEmpty())
                pages.append(words.constFirst() + u' ' + words.constLast());
        }
        QTEST(pages, "pages");
        // Entries of contents lead to the pages that they name.
        const auto found = [](const char *pattern, const QString &in) {
            const QRegularExpression each(QString::fromLatin1(pattern),
                                          QRegularExpression::DotMatchesEverythingOption |
                                              QRegularExpression::MultilineOption);
            QStringList all;
            for (auto match = each.globalMatch(in); match.hasNext();)
                all.append(match.next().captured(1));
            return all;
        };
        const QString pdf = QString::fromLatin1(ozm::test::readFile(folder.filePath(u"p.pdf"_s)));
        const QStringList sheets = found("(\\d+) 0 R", found("/Kids\\s*\\[(.*?)\\]", pdf).value(0));
        QStringList targets;
        for (const QString &sheet : found("/Subtype /Link.*?/Dest \\[(\\d+)", pdf))
            targets.append(QString::number(sheets.indexOf(sheet) + 1));
        QCOMPARE(targets, found("[HI] {3,}(\\d+)$", text));
        // The same pages as on the screen.
        ozm::ReportView view;
        view.setReport(html, options);
        QCOMPARE(view.pageCount(), pages.size());
        ozm::ReportView later;
        later.setReportSoon(html, options);
        QTRY_COMPARE(later.pageCount(), pages.size());
    }

    void images()
    {
        const Data data;
        const auto filled = [&data](const QString &code) {
            return ozm::fillTemplate(
                       u"<p><span data-format=\"image\" data-width=\"40\" data-alternative=\"A &quot;plot&quot;\">%1</span></p>"_s
                           .arg(code),
                       data.report)
                .text;
        };
        QVERIFY(filled(u"[Plot]"_s).startsWith(u"<p><img src=\"data:image/png;base64,iVBOR"_s));
        QVERIFY(filled(u"[Plot]"_s).endsWith(u"\" width=\"40\" alt=\"A &quot;plot&quot;\"/></p>"_s));
        QCOMPARE(filled(u"[Name]"_s), u"<p>A &quot;plot&quot;</p>"_s);
        // A drawing stays one on paper: its letters are letters. One that would read a file is not shown.
        QVERIFY(filled(u"[Drawing]"_s).contains(u"src=\"data:image/svg+xml;base64,"_s));
        const QTemporaryDir folder;
        const auto sizeOf = [&folder](const QString &html) {
            const QString path = folder.filePath(u"a.pdf"_s);
            return ozm::ReportPaper(html).writePdf(path).hasError() ? 0 : QFileInfo(path).size();
        };
        const qint64 size = sizeOf(filled(u"[Drawing]"_s));
        QVERIFY(size > 0 && size < 20'000);
        ozm::TemplateDocument document;
        const auto isShown = [&document](const QString &href) {
            const QString svg = u"data:image/svg+xml,<svg width='9' height='9'><a xlink:href='%1'/></svg>"_s;
            return document.resource(QTextDocument::ImageResource, QUrl(svg.arg(href))).typeId() !=
                   document.resource(QTextDocument::ImageResource, QUrl(u"x.png"_s)).typeId();
        };
        QVERIFY(!isShown(u"/x.png"_s) && isShown(u"#a"_s));
    }
};

QTEST_MAIN(TestTemplateFilling)
#include "tst_templatefilling.moc"
