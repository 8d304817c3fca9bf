#include "support/StrictTest.h"

#include <ozm_widgets/TemplateComparison.h>
#include <ozm_widgets/TemplateDocument.h>

#include <QTextBlock>

using namespace Qt::StringLiterals;

class TestTemplateComparison : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void differences_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QStringList>("texts");
        const auto row = [](const char *name, const QString &before, const QString &after,
                            const QStringList &texts) { QTest::newRow(name) << before << after << texts; };
        const QString table =
            u"<p>Head</p><table border=\"1\"><tr><td>Name</td><td>[Name]</td></tr>%1</table>"_s;
        const QString mass = u"<tr><td>Mass</td><td>%1</td></tr>"_s;
        row("same", u"<p>a</p>"_s, u"<p>a</p>"_s, {});
        row("code", table.arg(mass.arg(u"exact"_s)), table.arg(mass.arg(u"exact [Mass]"_s)),
            {u"Code [Mass] added in row 2 of table 1"_s});
        row("code in an empty cell", table.arg(mass.arg(QString())), table.arg(mass.arg(u"[Mass]"_s)),
            {u"Code [Mass] added in row 2 of table 1"_s});
        row("code for another", table.arg(mass.arg(u"[Mass]"_s)), table.arg(mass.arg(u"[CalcMr]"_s)),
            {u"Code [Mass] replaced by [CalcMr] in row 2 of table 1"_s});
        row("row", table.arg(QString()), table.arg(mass.arg(u"[Mass]"_s)),
            {u"Added: row 2 of table 1, \"Mass | [Mass]\""_s});
        row("row gone", table.arg(mass.arg(u"[Mass]"_s)), table.arg(QString()),
            {u"Removed: row 2 of table 1, \"Mass | [Mass]\""_s});
        row("words", u"<p>Reviewed by the head of the laboratory and kept for ten years.</p>"_s,
            u"<p>Reviewed by a member of the laboratory and kept for five years.</p>"_s,
            {u"Text changed in paragraph 1: \"the head\" is now \"a member\""_s,
             u"Text changed in paragraph 1: \"ten\" is now \"five\""_s});
        row("words added", u"<ul><li>a</li><li>b c</li></ul>"_s, u"<ul><li>a</li><li>b new c</li></ul>"_s,
            {u"Text added in item 2 of list 1: \"new\""_s});
        row("paragraphs", u"<p>One is here.</p><p>Two is there.</p><p>Three.</p>"_s,
            u"<p>Two is there.</p><p>Three.</p><p>Four came.</p>"_s,
            {u"Removed: paragraph 1, \"One is here.\""_s, u"Added: paragraph 3, \"Four came.\""_s});
        row("script", u"<p>a <script>1 + 1</script></p>"_s, u"<p>a <script>1 + 2</script></p>"_s,
            {u"Script changed in paragraph 1: <script>1 + 1</script> is now <script>1 + 2</script>"_s});
        row("instruction",
            u"<p><!--ozm:if code=\"Mass\" is=\"present\"--></p><p>x</p><p><!--ozm:end--></p>"_s,
            u"<p><!--ozm:if code=\"Mass\" is=\"absent\"--></p><p>x</p><p><!--ozm:end--></p>"_s,
            {u"Instruction \"If Mass has a value…\" changed to \"If Mass has no value…\" in paragraph 1"_s});
        row("format of a code", u"<p><span data-format=\"number\" data-digits=\"2\">[Mass]</span></p>"_s,
            u"<p><span data-format=\"number\" data-digits=\"3\">[Mass]</span></p>"_s,
            {u"Settings of \"[Mass]\" changed in paragraph 1"_s});
        row("formatting", u"<p>a <b>b</b></p><p>c</p>"_s, u"<p>a b</p><p>c</p>"_s,
            {u"Formatting changed in paragraph 1: \"a b\""_s});
        row("looks of a table", table.arg(QString()),
            QString(table).replace(u"border=\"1\""_s, u"border=\"2\""_s).arg(QString()),
            {u"Formatting changed in row 1 of table 1: \"Name\""_s,
             u"Formatting changed in row 1 of table 1: \"[Name]\""_s});
        row("markup out of sight", u"<p id=\"a\">a</p>"_s, u"<p id=\"b\">a</p>"_s,
            {u"Only markup that formatted text does not show has changed."_s});
        row("plain text", u"a\nb %2 c\nd"_s, u"a\nb %2 %1 c\nd"_s, {u"Text added in paragraph 2: \"%1\""_s});
    }
    void differences()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        QStringList texts;
        for (const ozm::TemplateDifference &difference : ozm::compareTemplates(before, after))
            texts.append(difference.text);
        QTEST(texts, "texts");
        QCOMPARE(ozm::compareTemplates(after, before).size(), texts.size());
    }

    // 10,000 paragraphs, of which some are new, gone or changed, wherever they stand.
    void longTemplates()
    {
        QString before;
        QString after;
        for (int index = 0; index < 10000; ++index) {
            before += u"<p>Line %1 of the report</p>"_s.arg(index);
            after += index % 1000 == 500 ? u"<p>Line %1 of this report</p>"_s.arg(index)
                     : index % 1000 == 0 ? QString()
                                         : u"<p>Line %1 of the report</p>"_s.arg(index);
        }
        const auto differences = ozm::compareTemplates(before, after);
        QCOMPARE(differences.size(), 20);
        ozm::TemplateDocument document;
        document.setSource(before);
        QCOMPARE(document.findBlock(differences.at(2).positionBefore).text(), u"Line 1000 of the report"_s);
        QCOMPARE(differences.at(2).positionAfter, -1);
    }
};

QTEST_MAIN(TestTemplateComparison)
#include "tst_templatecomparison.moc"
