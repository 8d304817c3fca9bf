#include "editor/EditorFixture.h"
#include "support/StrictTest.h"

#include <ozm_widgets/TemplateDocument.h>

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QStandardPaths>
#include <QTextBlock>
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

        // Each begins with "## " and its name; ">>" stands between the page and what comes of it.
        QFile corpus(QStringLiteral(PASTED_PAGES));
        QVERIFY(corpus.open(QIODevice::ReadOnly));
        const QStringList cases = QString::fromUtf8(corpus.readAll()).split(u"\n## "_s).sliced(1);
        for (const QString &each : cases) {
            const qsizetype line = each.indexOf(u'\n');
            const qsizetype end = each.indexOf("\n>>\n"_L1);
            QTest::newRow(qPrintable(each.first(line)))
                << each.sliced(line + 1, end - line - 1) << each.sliced(end + 4).trimmed();
        }
        QVERIFY(cases.size() >= 40);
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
        f.setContent(u"<h1>a</h1>"_s);
        rich->moveCursor(QTextCursor::End);
        QTest::keyClicks(rich, u"\r"_s);
        QTest::keyClicks(rich, u"b"_s);
        QCOMPARE(f.content(), u"<h1>a</h1>\n<div>b</div>"_s);
        f.setContent(u"<p>[Signature]</p>"_s);
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
        for (const int cells : {6, 3}) { // of the rows down to the cursor, and before it
            f.trigger("headingRowsAction");
            QCOMPARE(f.content().count("</th>"_L1), cells);
            QVERIFY2(!f.content().contains("style=\"text"_L1) && !f.content().contains("font-weight"_L1),
                     qPrintable(f.content()));
        }
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
        // The merged cells count once, and behind the last cell there is a new row.
        rich->setTextCursor(table->cellAt(0, 0).firstCursorPosition());
        for (const QPoint &next : {QPoint(2, 0), QPoint(0, 1)}) {
            QTest::keyClick(rich, Qt::Key_Tab);
            QCOMPARE(place(), next);
        }
        QTest::keyClick(rich, Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(place(), QPoint(2, 0));
        rich->setTextCursor(table->cellAt(4, 2).firstCursorPosition());
        QTest::keyClick(rich, Qt::Key_Tab);
        QCOMPARE(place(), QPoint(0, 5));
        const QString source = f.content();
        f.trigger("plainModeAction");
        f.trigger("richModeAction");
        QCOMPARE(f.content(), source);
    }

    // Only the widths change in the source, in one step; Esc changes nothing.
    void columnsAreDragged()
    {
        EditorFixture f;
        const QString source =
            u"<p>before</p>\n<table class='list' border=1 width=\"100%\"><tr><th colspan=2>Both</th></tr>\n"
            "<tr><td@ style='padding:3px' class=a>left</td><td align=right>right</td></tr></table><p>[Lot]</p>"_s;
        const QString before = QString(source).remove(u'@');
        f.setContent(before);
        auto *rich = f.child<QTextEdit>("richView");
        QWidget *area = rich->viewport();
        const auto border = [&] {
            const QTextDocument &document = *rich->document();
            const QRectF cell =
                document.documentLayout()->blockBoundingRect(document.find(u"right"_s).block());
            return QPoint(int(cell.left()) - 3, int(cell.center().y()));
        };
        const auto drag = [&](int by, bool cancels) {
            const QPoint from = border();
            QTest::mouseMove(area, from + QPoint(40, 0));
            QCOMPARE(area->cursor().shape(), Qt::IBeamCursor);
            QTest::mouseMove(area, from);
            QCOMPARE(area->cursor().shape(), Qt::SplitHCursor);
            QTest::mousePress(area, Qt::LeftButton, {}, from);
            QTest::mouseMove(area, from + QPoint(by, 0));
            QVERIFY(f.child<QWidget>("columnLine")->isVisible());
            if (cancels)
                QTest::keyClick(rich, Qt::Key_Escape);
            QTest::mouseRelease(area, Qt::LeftButton, {}, from + QPoint(by, 0));
            QVERIFY(!f.child<QWidget>("columnLine")->isVisible());
        };
        drag(80, true);
        QCOMPARE(f.content(), before);
        const int left = border().x();
        drag(80, false);
        QVERIFY(qAbs(border().x() - left - 80) <= 2);
        const QString dragged = f.content();
        drag(-120, false);
        QVERIFY(qAbs(border().x() - left + 40) <= 2);
        f.trigger("undoAction");
        QCOMPARE(f.content(), dragged);
        for (const char *mode : {"plainModeAction", "richModeAction"})
            f.trigger(mode);
        QCOMPARE(f.content(), dragged);
        QVERIFY(qAbs(border().x() - left - 80) <= 2);
        for (int step = 0; step < 3; ++step)
            f.trigger("undoAction");
        QCOMPARE(f.content(), before);

        rich->setTextCursor(rich->document()->find(u"left"_s));
        DialogDriver driver({[](QDialog *dialog) {
            auto *unit = dialog->findChild<QComboBox *>(u"columnUnit"_s);
            unit->setCurrentIndex(unit->findData(int(QTextLength::PercentageLength)));
            dialog->findChild<QDoubleSpinBox *>(u"columnWidth"_s)->setValue(12.5);
            dialog->accept();
        }});
        f.trigger("columnWidthAction");
        QCOMPARE(f.content(), QString(source).replace(u'@', u" width=\"12.5%\""_s));
        // Whatever a table asks for, the border stays where it was left, and the table is as wide as before.
        for (
            const QString &page :
            {u"<table border=1 width=\"50%\" style='margin-left:80px'><tr><td>l</td><td>right</td></tr></table>"_s,
             u"<blockquote><table border=1 width=300><tr><td width=\"80%\">l</td><td width=\"60%\">right</table>"_s,
             u"<table border=1 width=\"80%\"><tr><td>l</td><td>right</td><td width=90>r</td></tr></table>"_s,
             u"<table width=\"50%\"><tr><td>l<table border=1><tr><td width=60>l</td><td width=\"50%\">right</table>"_s,
             u"<table border=4 style='border-collapse:collapse'><tr><td width=\"60%\">l</td><td>right</table>"_s}) {
            f.setContent(page);
            const auto width = [&] {
                QTextTable *table = rich->document()->find(u"right"_s).currentTable();
                return rich->document()->documentLayout()->frameBoundingRect(table).width();
            };
            const int from = border().x();
            const double wide = width();
            drag(-20, false);
            const QString moved = f.content();
            for (int read = 0; read < 2; ++read) {
                QVERIFY2(qAbs(border().x() - from + 20) <= 2, qPrintable(moved));
                QVERIFY2(qAbs(width() - wide) <= 2, qPrintable(moved));
                f.setContent(moved);
            }
        }
        // In a window from right to left, bars count from the right.
        f.setContent(u"<table border=1 width=3000><tr><td>left</td><td>right</td></tr></table>"_s);
        rich->setLayoutDirection(Qt::RightToLeft);
        QTextCursor text = rich->document()->find(u"right"_s);
        text.setPosition(text.selectionStart());
        rich->setTextCursor(text);
        QTest::mouseMove(area, rich->cursorRect(text).center() - QPoint(3, 0));
        QCOMPARE(area->cursor().shape(), Qt::SplitHCursor);
    }

    // A style is the class of a paragraph: nothing else changes, in one step.
    void stylesHaveNames_data()
    {
        QTest::addColumn<QString>("source"); // the caret is in "one"
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("written");
        QTest::newRow("paragraph") << u"<p id=x>one <b>two</b></p>"_s << u"Text"_s << u"Note"_s
                                   << u"<p class=\"report-note\" id=x>one <b>two</b></p>"_s;
        QTest::newRow("of another style") << u"<p class='report-note'>one</p>\n<p>two</p>"_s << u"Note"_s
                                          << u"Title"_s << u"<p class=\"report-title\">one</p>\n<p>two</p>"_s;
        QTest::newRow("back to text")
            << u"<p class=report-title>one</p>"_s << u"Title"_s << u"Text"_s << u"<div>one</div>"_s;
        QTest::newRow("heading") << u"<h2>one</h2>"_s << u"Heading 2"_s << u"Caption"_s
                                 << u"<p class=\"report-caption\">one</p>"_s;
        QTest::newRow("to a heading")
            << u"<p class=\"report-note\">one</p>"_s << u"Note"_s << u"Heading 1"_s << u"<h1>one</h1>"_s;
        QTest::newRow("cell")
            << u"<table class=list><tr><td width=40>one</td></tr></table>"_s << u"Text"_s
            << u"Table heading"_s
            << u"<table class=list><tr><td width=40><p class=\"report-table-heading\">one</p>"
               "</td></tr></table>"_s;
        QTest::newRow("item") << u"<ul><li>one</li></ul>"_s << u"Text"_s << u"Note"_s
                              << u"<ul><li class=\"report-note\">one</li></ul>"_s;
    }
    void stylesHaveNames()
    {
        QFETCH(const QString, source);
        QFETCH(const QString, style);
        QFETCH(const QString, written);
        EditorFixture f;
        f.setContent(source);
        auto *rich = f.child<QTextEdit>("richView");
        auto *choice = f.child<QComboBox>("paragraphChoice");
        rich->setTextCursor(rich->document()->find(u"one"_s));
        QTEST(choice->currentText(), "before");
        choice->setCurrentIndex(choice->findText(style));
        Q_EMIT choice->activated(choice->currentIndex());
        QCOMPARE(f.content(), written);
        QCOMPARE(choice->currentText(), style);
        for (const char *mode : {"plainModeAction", "richModeAction"})
            f.trigger(mode);
        QCOMPARE(f.content(), written);
        rich->setTextCursor(rich->document()->find(u"one"_s));
        QCOMPARE(choice->currentText(), style);
        for (int step = 0; step < 3; ++step)
            f.trigger("undoAction");
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
