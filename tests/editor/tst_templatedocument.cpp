#include "editor/TemplateGenerator.h"
#include "support/StrictTest.h"

#include <ozm_widgets/TemplateDocument.h>

#include <QRegularExpression>
#include <QTest>
#include <QTextCursor>
#include <QTextDocumentFragment>

#include <QPainter>

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

QStringList matches(const QString &text, const QString &pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption |
                                                     QRegularExpression::DotMatchesEverythingOption);
    QStringList found;
    auto all = expression.globalMatch(text);
    while (all.hasNext()) {
        const QRegularExpressionMatch match = all.next();
        found.append(match.captured(match.lastCapturedIndex()));
    }
    return found;
}

// The parts that may be neither lost, changed nor moved past one another, read without the code under test.
struct Contents
{
    QStringList codes;
    QStringList scripts;
    QStringList images;
    QStringList cells;

    // A bracket left open before formatting, and one left open behind it, are no code.
    inline static const QRegularExpression noTags{u"^(?!.*</?[a-z]+[^<]*>)"_s};

    explicit Contents(const QString &source)
        : codes(matches(source, u"\\[[^\\[\\]\\n]+\\]"_s).filter(noTags))
        , scripts(matches(source, u"<script>.*?</script>"_s))
        , images(matches(source, u"<img[^>]*?src=[\"']([^\"']*)"_s))
        , cells(matches(source, u"<table|</table|<t[dh][^>]*?((?:col|row)span=\"\\d+\")|<t[dh]\\b"_s))
    {}

    QString all() const
    {
        return codes.join(u' ') + "\nscripts "_L1 + scripts.join(u' ') + "\nimages "_L1 + images.join(u' ') +
               "\ncells "_L1 + cells.join(u' ');
    }
};

} // namespace

class TestTemplateDocument : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsSource_data();
    void keepsSource();
    void generatedTemplatesComeThrough();
    void chipsAreWholeAndUndone();
    void selectionsBecomeSource_data();
    void selectionsBecomeSource();
    void placesLeadBothWays();
    void nothingIsLoaded();
    void hostileInputEnds_data();
    void hostileInputEnds();
};

void TestTemplateDocument::keepsSource_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("written");

    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("plain lines") << u"Dear [Name],\n\n  R&D < 5"_s
                                 << u"<div>Dear [Name],</div>\n<div><br/></div>\n"
                                    "<div style=\"white-space:pre-wrap\">  R&amp;D &lt; 5</div>"_s;
    QTest::newRow("formatted code") << u"<p><b>[Name]</b>, <i>[Charge]</i>+</p>"_s
                                    << u"<p><b>[Name]</b>, <i>[Charge]</i>+</p>"_s;
    QTest::newRow("code written raw") << u"<p>[A&B]</p>"_s << u"<p>[A&B]</p>"_s;
    QTest::newRow("comparison in plain text")
        << u"x<y [Name]\nnext"_s << u"<div>x&lt;y [Name]</div>\n<div>next</div>"_s;
    QTest::newRow("declaration in plain text")
        << u"a <! b\nnext"_s << u"<div>a &lt;! b</div>\n<div>next</div>"_s;
    QTest::newRow("heading stays plain") << u"<h2>[Name]</h2>"_s << u"<h2>[Name]</h2>"_s;
    QTest::newRow("script among rows keeps its table")
        << u"<table><tr><td>a</td></tr><script>rows()</script></table>"_s
        << u"<div><table><tr><td>a</td></tr><script>rows()</script></table></div>"_s;
    QTest::newRow("code in an attribute keeps its element")
        << u"<p>a <span style=\"color:[Colour]\">b</span></p>"_s
        << u"<p>a <span style=\"color:[Colour]\">b</span></p>"_s;
    QTest::newRow("code in a link") << u"<p><a href=\"http://x.org/[Name]\">b</a></p>"_s
                                    << u"<p><a href=\"http://x.org/[Name]\">b</a></p>"_s;
    QTest::newRow("nested list") << u"<ul><li>a<ol><li>b</li></ol></li><li>c</li></ul>"_s
                                 << u"<ul>\n<li>a<ol>\n<li>b</li>\n</ol>\n</li>\n<li>c</li>\n</ul>"_s;
    QTest::newRow("page around it")
        << u"<!DOCTYPE html><html><head><title>t</title></head><body><p>x</p></body></html>"_s
        << u"<p>x</p>"_s;
    QTest::newRow("style sheet") << u"<style>p { color: red }</style><p>x</p>"_s
                                 << u"<div><style>p { color: red }</style></div>\n<p>x</p>"_s;
}

void TestTemplateDocument::keepsSource()
{
    QFETCH(const QString, source);
    QFETCH(const QString, written);

    ozm::TemplateDocument document;
    document.setSource(source);
    QCOMPARE(document.source(), written);
}

void TestTemplateDocument::generatedTemplatesComeThrough()
{
    TemplateGenerator generator(20261121);
    for (int i = 0; i < 300; ++i) {
        const QString original = generator.next();
        const Contents expected(original);
        QString source = original;
        QString normalised;
        for (int pass = 0; pass < 3; ++pass) {
            ozm::TemplateDocument document;
            document.setSource(source);
            source = document.source();
            const Contents actual(source);
            QVERIFY2(actual.all() == expected.all(),
                     qPrintable(u"template %1, pass %2\n%3\n--- became\n%4\n%5\n%6"_s.arg(
                         QString::number(i), QString::number(pass), original, source, expected.all(),
                         actual.all())));
            if (pass == 0)
                normalised = source;
            QVERIFY2(source == normalised,
                     qPrintable(u"template %1, pass %2\n%3\n--- became\n%4\n--- became\n%5"_s.arg(
                         QString::number(i), QString::number(pass), original, normalised, source)));
        }
    }
}

void TestTemplateDocument::chipsAreWholeAndUndone()
{
    ozm::TemplateDocument document;
    document.setSource(u"<p>a</p>"_s);
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    document.insertSource(cursor, u"[Name]"_s);
    cursor.insertText(u"b"_s);
    QCOMPARE(document.source(), u"<p>a[Name]b</p>"_s);
    QCOMPARE(document.chipAt(1).source, u"[Name]"_s);
    QVERIFY(document.chipAt(0).source.isEmpty());

    cursor.setPosition(2);
    cursor.deletePreviousChar();
    QCOMPARE(document.source(), u"<p>ab</p>"_s);
    document.undo();
    QCOMPARE(document.source(), u"<p>a[Name]b</p>"_s);
    QVERIFY(document.setChipSource(1, u"<script>1</script>"_s));
    QCOMPARE(document.source(), u"<p>a<script>1</script>b</p>"_s);
    QVERIFY(document.chipAt(1).kind == ozm::TemplateDocument::ChipKind::Script);
    document.undo();
    QCOMPARE(document.source(), u"<p>a[Name]b</p>"_s);
}

void TestTemplateDocument::selectionsBecomeSource_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("selected");

    QTest::newRow("within a line") << u"<p>ab<b>[Name]c</b>d</p>"_s << 1 << 4 << u"b<b>[Name]c</b>"_s;
    QTest::newRow("one chip") << u"<p>a<script>x</script></p>"_s << 1 << 2 << u"<script>x</script>"_s;
    QTest::newRow("lines") << u"<p>a[A]</p><p>[B]c</p>"_s << 1 << 4 << u"<p>[A]</p>\n<p>[B]</p>"_s;
    QTest::newRow("nothing") << u"<p>a[A]</p>"_s << 1 << 1 << QString();
    QTest::newRow("from a list into a paragraph")
        << u"<ul><li>ab</li></ul><p>xy</p>"_s << 2 << 3 << u"<p><br/></p>\n<p><br/></p>"_s;
    QTest::newRow("from a list into a rule")
        << u"<ul><li>ab</li></ul><hr/><p>xy</p>"_s << 2 << 4 << u"<p><br/></p>\n<hr/>\n<p><br/></p>"_s;
}

void TestTemplateDocument::selectionsBecomeSource()
{
    QFETCH(const QString, source);
    QFETCH(const int, from);
    QFETCH(const int, to);
    QFETCH(const QString, selected);

    ozm::TemplateDocument document;
    document.setSource(source);
    QTextCursor cursor(&document);
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    QCOMPARE(document.source(cursor), selected);

    // Put in the place of itself it changes nothing.
    const QString before = document.source();
    if (from != to) {
        document.insertSource(cursor, selected);
        QCOMPARE(document.source(), before);
    }
}

void TestTemplateDocument::placesLeadBothWays()
{
    ozm::TemplateDocument document;
    document.setSource(u"<p>x [A]</p><table><tr><td>[B]</td></tr></table><p><script>1</script></p>"_s);
    const QString source = document.source();
    for (const QString &text : {u"[A]"_s, u"[B]"_s, u"<script>1</script>"_s}) {
        const qsizetype offset = source.indexOf(text);
        const int position = document.positionOf(offset + 1);
        QCOMPARE(document.chipAt(position).source, text);
        QCOMPARE(document.offsetOf(position), offset);
    }
    QCOMPARE(document.positionOf(0), -1);
    QCOMPARE(document.offsetOf(0), qsizetype(-1));
}

void TestTemplateDocument::nothingIsLoaded()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"red.png"_s);
    QImage red(300, 300, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(path));
    ozm::TemplateDocument document;
    document.setSource(
        u"<p><img src=\"%1\"><img src=\"file://%1\"><img src=\"http://localhost:9/x.png\"></p>"_s.arg(path));
    QImage page(400, 400, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    document.drawContents(&painter);
    painter.end();
    for (int x = 0; x < page.width(); x += 5)
        QVERIFY(page.pixelColor(x, 20) != QColor(Qt::red));
    QVERIFY2(document.size().height() < 100, "the image takes no room");
}

void TestTemplateDocument::hostileInputEnds_data()
{
    QTest::addColumn<QString>("unit");

    QTest::newRow("open tags") << u"<b>"_s;
    QTest::newRow("close tags") << u"</b>"_s;
    QTest::newRow("open scripts") << u"<script>"_s;
    QTest::newRow("open brackets") << u"["_s;
    QTest::newRow("open comments") << u"<!--"_s;
    QTest::newRow("tags that never end") << u"<a b=\""_s;
    QTest::newRow("open and close") << u"<b></i>"_s;
}

// Guards against work that grows with the square of the text: each would then take minutes.
void TestTemplateDocument::hostileInputEnds()
{
    QFETCH(const QString, unit);

    ozm::TemplateDocument document;
    document.setSource(unit.repeated(5'000));
    const QString source = document.source();
    document.setSource(source);
    QCOMPARE(document.source(), source);
}

QTEST_MAIN(TestTemplateDocument)
#include "tst_templatedocument.moc"
