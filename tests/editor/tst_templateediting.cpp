#include "editor/EditorFixture.h"
#include "support/StrictTest.h"

#include <ozm_widgets/TemplateDocument.h>

#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QStandardPaths>
#include <QTextTable>

using namespace Qt::StringLiterals;
using namespace ozm;
using namespace ozm::test;

/// How codes, texts, pages, tables and images get into a template and out of it.
class TestTemplateEditing : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void keptCodesStay_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");

        const Qt::KeyboardModifiers none;
        QTest::newRow("backspace") << int(Qt::Key_Backspace) << none << 2 << 2;
        QTest::newRow("delete") << int(Qt::Key_Delete) << none << 1 << 1;
        QTest::newRow("delete a selection") << int(Qt::Key_Delete) << none << 0 << 3;
        QTest::newRow("type over it") << int(Qt::Key_X) << none << 0 << 3;
        QTest::newRow("cut") << int(Qt::Key_X) << Qt::KeyboardModifiers(Qt::ControlModifier) << 0 << 3;
        QTest::newRow("delete a word")
            << int(Qt::Key_Backspace) << Qt::KeyboardModifiers(Qt::ControlModifier) << 2 << 2;
        QTest::newRow("line break over it") << int(Qt::Key_Return) << none << 0 << 3;
    }

    void keptCodesStay()
    {
        QFETCH(const int, key);
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        QFETCH(const int, from);
        QFETCH(const int, to);

        EditorFixture f;
        f.setContent(u"<p>a[Signature]b[Lot]</p>"_s);
        auto *rich = f.child<QTextEdit>("richView");
        QTextCursor cursor = rich->textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        rich->setTextCursor(cursor);
        QTest::keyClick(rich, Qt::Key(key), modifiers);
        QCOMPARE(f.content(), u"<p>a[Signature]b[Lot]</p>"_s);
        QVERIFY(!f.editor.isModified());
        // Others go.
        rich->moveCursor(QTextCursor::End);
        QTest::keyClick(rich, Qt::Key_Backspace);
        QCOMPARE(f.content(), u"<p>a[Signature]b</p>"_s);
    }

    void copiesComeWhole()
    {
        EditorFixture f;
        f.setContent(u"<p>a <b>[Lot]</b><script>1 &lt; 2</script></p>"_s);
        auto *rich = f.child<QTextEdit>("richView");
        f.trigger("selectAllAction");
        f.trigger("copyAction");
        rich->moveCursor(QTextCursor::End);
        f.trigger("pasteAction");
        QCOMPARE(f.content(), u"<p>a <b>[Lot]</b><script>1 &lt; 2</script>a <b>[Lot]</b>"
                              "<script>1 &lt; 2</script></p>"_s);
        f.trigger("undoAction");
        rich->moveCursor(QTextCursor::End);
        QApplication::clipboard()->setText(u"<i>[Lot]</i> [Sample]"_s);
        f.trigger("pastePlainAction");
        QVERIFY2(f.content().endsWith("</script>&lt;i&gt;[Lot]&lt;/i&gt; [Sample]</p>"_L1),
                 qPrintable(f.content()));
    }

    void pagesArePasted_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("content");

        const QString office =
            u"<html xmlns:o=\"urn:x\"><head><meta name=Generator content=\"Word\"><title>t</title>"
            "<style><!-- p.MsoNormal {margin:0} --></style><!--[if gte mso 9]><xml><o:x/></xml>"
            "<![endif]--></head><body lang=EN-GB>"_s;
        const auto good = [](const char *name, const QString &html, const QString &content) {
            QTest::newRow(name) << html << content;
        };
        good("word processor's paragraphs",
             office + u"<!--StartFragment--><p class=MsoNormal>Lot <b>[Lot]</b><o:p></o:p></p>"
                      "<p class=MsoNormal>second</p><!--EndFragment--></body></html>"_s,
             u"<p>Lot <b>[Lot]</b></p>\n<p>second</p>"_s);
        good("word processor's list",
             office + u"<ul type=disc><li class=MsoNormal>a</li><li>b [Lot]</li></ul>"_s,
             u"<ul>\n<li>a</li>\n<li>b [Lot]</li>\n</ul>"_s);
        good(
            "spreadsheet",
            u"<html><head><style>td {padding:1px}</style></head><body><table border=0><!--StartFragment-->"
            "<col width=64 style='width:48pt'><tr height=20><td height=20 class=xl65>[Lot]</td>"
            "<td align=right>1.5</td></tr><!--EndFragment--></table></body></html>"_s,
            u"<table border=\"0\" cellspacing=\"2\" cellpadding=\"0\">\n<tr><td>[Lot]</td><td style=\"text-align:right\">1.5</td></tr>\n</table>"_s);
        good(
            "office suite",
            u"<meta http-equiv=\"content-type\" content=\"text/html\"/><title></title><p align=\"left\">"
            "<font face=\"Liberation Serif\">a <i>b</i></font></p>"_s,
            u"<p><span style=\"font-family:'Liberation Serif'\">a </span><span style=\"font-family:'Liberation Serif'\"><i>b</i></span></p>"_s);
        good("browser's span",
             u"<meta charset='utf-8'><span style=\"color: rgb(255, 0, 0);\">red [Lot]</span>"_s,
             u"<div><span style=\"color:#ff0000\">red [Lot]</span></div>"_s);
        good("mail", u"<div dir=\"ltr\">Hi<br><blockquote class=\"gmail_quote\">said</blockquote></div>"_s,
             u"<div>Hi<br/></div>\n<p style=\"margin-left:40px;margin-right:40px\">said</p>"_s);
        good("link", u"<a href=\"https://example.org/?a=1&amp;b=2\" onclick=\"x()\">x</a>"_s,
             u"<div><a href=\"https://example.org/?a=1&amp;b=2\">x</a></div>"_s);
        good("nested list", u"<ol><li>a<ul><li>b</li></ul></li></ol>"_s,
             u"<ol>\n<li>a<ul>\n<li>b</li>\n</ul>\n</li>\n</ol>"_s);
        good("script", u"<p>a<script>alert(1)</script>b</p>"_s,
             u"<p>ab</p>\n<div><!-- Left out of what was pasted: scripts --></div>"_s);
        good("script with a type", u"<p>a</p><script type=module src=//x></script>"_s,
             u"<p>a</p>\n<div><!-- Left out of what was pasted: scripts --></div>"_s);
        good("script in a code", u"<p>[&lt;script&gt;1&lt;/script&gt;]</p>"_s,
             u"<p>&#91;&lt;script&gt;1&lt;/script&gt;]</p>"_s);
        good("script as a text", u"<p>&lt;script&gt;1&lt;/script&gt;</p>"_s,
             u"<p>&lt;script&gt;1&lt;/script&gt;</p>"_s);
        good("script in a script", u"<scr<script></script>ipt>1</script>a"_s,
             u"<div>ipt&gt;1a<!-- Left out of what was pasted: scripts --></div>"_s);
        good(
            "link that runs", u"<a href=\" java&#10;script:alert(1)\">x</a><a href=JaVaScRiPt:1>y</a>"_s,
            u"<div><span style=\"color:#0000ff\"><u>xy</u></span></div>\n<div><!-- Left out of what was pasted: links --></div>"_s);
        good(
            "link with data", u"<a href=\"data:text/html,x\">x</a>"_s,
            u"<div><span style=\"color:#0000ff\"><u>x</u></span></div>\n<div><!-- Left out of what was pasted: links --></div>"_s);
        good("frames", u"<iframe src=//x>in</iframe><p>a</p><frameset><frame src=x></frameset>"_s,
             u"<div>in</div>\n<p>a</p>\n<div><!-- Left out of what was pasted: frames --></div>"_s);
        good(
            "loaded objects", u"<object data=x>fallback</object><embed src=x><p>a</p>"_s,
            u"<div>fallback</div>\n<p>a</p>\n<div><!-- Left out of what was pasted: loaded objects --></div>"_s);
        good("picture from elsewhere",
             u"<p>a<img src=\"file:///etc/x.png\" onerror=x()><img src=\"\\\\h\\x.png\"></p>"_s,
             u"<p>a</p>\n<div><!-- Left out of what was pasted: images --></div>"_s);
        good("picture that is a drawing", u"<p>a<img src=\"data:image/svg+xml;base64,AAAA\"></p>"_s,
             u"<p>a</p>\n<div><!-- Left out of what was pasted: images --></div>"_s);
        good("handlers and forms", u"<p onmouseover=x()>a<input value=x onfocus=y() autofocus></p>"_s,
             u"<p>a</p>"_s);
        good("styles that run", u"<p style=\"background:url(javascript:1);width:expression(1)\">a</p>"_s,
             u"<p>a</p>"_s);
        good("base and refresh", u"<base href=//x><meta http-equiv=refresh content=\"0;url=x\"><p>a</p>"_s,
             u"<p>a</p>"_s);
    }

    void pagesArePasted()
    {
        QFETCH(QString, html);
        EditorFixture f;
        f.setContent(QString());
        auto *page = new QMimeData;
        page->setHtml(html);
        QImage beside(2, 2, QImage::Format_RGB32);
        beside.fill(Qt::red);
        page->setImageData(beside);
        QApplication::clipboard()->setMimeData(page);
        f.trigger("pasteAction");
        QTEST(f.content(), "content");
    }

    void nothingTypedIsLost()
    {
        EditorFixture f;
        auto *rich = f.child<QTextEdit>("richView");
        f.setContent(u"<p>a</p><hr/><p>[Signature]</p>"_s);
        QTextCursor cursor = rich->textCursor();
        cursor.setPosition(2);
        rich->setTextCursor(cursor);
        QTest::keyClicks(rich, u"b"_s);
        QCOMPARE(f.content(), u"<p>a</p><hr/>\n<div>b</div><p>[Signature]</p>"_s);
        // An input method must not take the code that may not go.
        rich->selectAll();
        QInputMethodEvent commit;
        commit.setCommitString(u"x"_s);
        QApplication::sendEvent(rich, &commit);
        QVERIFY(f.content().contains(u"[Signature]"_s));
    }

    void findsAndReplaces_data()
    {
        QTest::addColumn<bool>("rich");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("find");
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<QString>("after");

        QTest::newRow("text") << true << u"<p>Mass and mass</p>"_s << u"mass"_s << u"m/z"_s
                              << u"<p>m/z and m/z</p>"_s;
        QTest::newRow("into itself") << true << u"<p>a a</p>"_s << u"a"_s << u"aa"_s << u"<p>aa aa</p>"_s;
        QTest::newRow("codes") << true << u"<p>Lot: <b>[Lot]</b></p>"_s << u"Lot"_s << u"Sample"_s
                               << u"<p>Sample: <b>[Lot]</b></p>"_s;
        QTest::newRow("a whole code") << true << u"<p>Lot: <b>[Lot]</b></p>"_s << u"[Lot]"_s << u"[Sample]"_s
                                      << u"<p>Lot: <b>[Sample]</b></p>"_s;
        QTest::newRow("text by a code")
            << true << u"<p>the lot</p>"_s << u"lot"_s << u"[Lot]"_s << u"<p>the [Lot]</p>"_s;
        QTest::newRow("scripts") << true << u"<p>a lot <script>lot(1)</script></p>"_s << u"lot"_s << u"run"_s
                                 << u"<p>a run <script>lot(1)</script></p>"_s;
        QTest::newRow("codes that may not go") << true << u"<p>Signature [Signature]</p>"_s << u"Signature"_s
                                               << u"x"_s << u"<p>x [Signature]</p>"_s;
        QTest::newRow("source") << false << u"<p>a</p><p>b</p>"_s << u"p>"_s << u"div>"_s
                                << u"<div>a</div><div>b</div>"_s;
    }

    void findsAndReplaces()
    {
        QFETCH(const bool, rich);
        QFETCH(const QString, before);
        QFETCH(const QString, find);
        QFETCH(const QString, replacement);
        QFETCH(const QString, after);

        EditorFixture f;
        f.setContent(before);
        f.editor.setMode(rich ? AbstractTemplateEditor::Mode::Rich : AbstractTemplateEditor::Mode::Plain);
        f.trigger("replaceAction");
        f.child<QLineEdit>("findText")->setText(find);
        f.child<QLineEdit>("replaceText")->setText(replacement);
        f.child<QAbstractButton>("replaceAll")->click();
        QCOMPARE(f.content(), after);
        // All of it is one step.
        f.trigger("undoAction");
        QCOMPARE(f.content(), before);
        f.child<QAbstractButton>("findNext")->click();
        const QTextCursor found = rich ? f.child<QTextEdit>("richView")->textCursor()
                                       : f.child<QPlainTextEdit>("plainView")->textCursor();
        QVERIFY(found.hasSelection());
    }

    void tablesAreEdited()
    {
        EditorFixture f;
        auto *rich = f.child<QTextEdit>("richView");
        DialogDriver driver({[](QDialog *dialog) { dialog->accept(); }});
        f.trigger("insertTableAction");
        QCOMPARE(driver.opened(), 1);
        const auto size = [rich] {
            const QTextTable *table = rich->textCursor().currentTable();
            return table ? QSize(table->columns(), table->rows()) : QSize();
        };
        QCOMPARE(size(), QSize(2, 3));
        QTest::keyClicks(rich, u"[Lot]"_s);
        const auto place = [rich] {
            const QTextTableCell cell = rich->textCursor().currentTable()->cellAt(rich->textCursor());
            return QPoint(cell.column(), cell.row());
        };
        f.trigger("rowAboveAction");
        QCOMPARE(place(), QPoint(0, 1));
        f.trigger("rowBelowAction");
        f.trigger("columnBeforeAction");
        QCOMPARE(place(), QPoint(1, 1));
        f.trigger("columnAfterAction");
        QCOMPARE(place(), QPoint(1, 1));
        QCOMPARE(size(), QSize(4, 5));
        f.trigger("deleteColumnAction");
        QCOMPARE(size(), QSize(3, 5));
        QTextTable *table =
            rich->document()->rootFrame()->childFrames().isEmpty()
                ? nullptr
                : qobject_cast<QTextTable *>(rich->document()->rootFrame()->childFrames().first());
        QVERIFY(table);
        QTextCursor cells = table->cellAt(0, 0).firstCursorPosition();
        cells.setPosition(table->cellAt(0, 1).lastPosition(), QTextCursor::KeepAnchor);
        rich->setTextCursor(cells);
        f.trigger("mergeCellsAction");
        QVERIFY(f.content().contains("colspan=\"2\""_L1));
        f.trigger("splitCellAction");
        QVERIFY(!f.content().contains("colspan"_L1));
        f.trigger("undoAction");
        QVERIFY(f.content().contains("colspan=\"2\""_L1));
        const QString source = f.content();
        f.trigger("plainModeAction");
        f.trigger("richModeAction");
        QCOMPARE(f.content(), source);
    }

    void imagesAndLinksAreInserted()
    {
        EditorFixture f;
        QImage image(3, 2, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(f.path(u"red.png"_s)));
        f.answerPath(f.path(u"red.png"_s));
        f.trigger("insertImageAction");
        QFile file(f.path(u"red.png"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString embedded = QString::fromLatin1(file.readAll().toBase64());
        QVERIFY2(f.content().contains("data:image/png;base64,"_L1 + embedded), qPrintable(f.content()));
        const QString before = f.content();
        write(f.path(u"no.png"_s), "no image");
        f.answerPath(f.path(u"no.png"_s));
        BoxDriver box([](OzmMessageBox *shown) { press(shown, QMessageBox::Ok); });
        f.trigger("insertImageAction");
        QCOMPARE(box.opened(), 1);
        QCOMPARE(f.content(), before);

        f.setContent({});
        DialogDriver driver({[](QDialog *dialog) {
            dialog->findChild<QLineEdit *>(u"linkAddress"_s)->setText(u"https://example.org/?a=1&b=2"_s);
            dialog->findChild<QLineEdit *>(u"linkText"_s)->setText(u"R&D"_s);
            dialog->accept();
        }});
        f.trigger("insertLinkAction");
        QVERIFY2(f.content().contains("href=\"https://example.org/?a=1&amp;b=2\""_L1) &&
                     f.content().contains("R&amp;D"_L1),
                 qPrintable(f.content()));
    }
};

QTEST_MAIN(TestTemplateEditing)
#include "tst_templateediting.moc"
