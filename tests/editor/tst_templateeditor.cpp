#include "editor/EditorFixture.h"
#include "editor/TemplateGenerator.h"
#include "support/StrictTest.h"

#include <ozm_widgets/TemplateDocument.h>

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QCompleter>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTextBrowser>
#include <QTextTable>

using namespace Qt::StringLiterals;
using namespace ozm;
using namespace ozm::test;

namespace {

void drop(QWidget *viewport, const QMimeData *data)
{
    const QPoint place(viewport->width() - 20, viewport->height() - 20);
    QDragEnterEvent enter(place, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent event(place, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &event);
}

QStringList words(const QString &text)
{
    return text.simplified().split(u' ', Qt::SkipEmptyParts);
}

/// Codes by each way that a user has.
void insertCodes(const EditorFixture &f)
{
    auto *rich = f.child<QTextEdit>("richView");
    // By completion.
    QTest::keyClicks(rich, u"[sam"_s);
    auto *completer = rich->findChild<QCompleter *>(u"codeCompleter"_s);
    QVERIFY(completer->popup()->isVisible());
    QTest::keyClick(completer->popup(), Qt::Key_Return);
    QVERIFY(f.content().endsWith("</b> [Sample]</div>"_L1));

    // From the panel.
    auto *search = f.child<QLineEdit>("codeSearch");
    QTest::keyClicks(search, u"batch"_s);
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY(f.content().endsWith("[Sample][Lot]</div>"_L1));
    search->clear();

    // From the menu.
    auto *menu = f.child<QMenu>("codeMenu");
    Q_EMIT menu->aboutToShow();
    QCOMPARE(menu->actions().size(), 3);
    f.trigger("codeAction[Sample]");
    QVERIFY(f.content().endsWith("[Sample][Lot][Sample]</div>"_L1));

    // By drag and drop.
    auto *list = f.child<QAbstractItemView>("codeList");
    const std::unique_ptr<QMimeData> dragged(list->model()->mimeData({list->model()->index(2, 0)}));
    drop(rich->viewport(), dragged.get());
    QVERIFY(f.content().endsWith("[Sample]</div>"_L1));
    QCOMPARE(f.content().count(u'['), 5);
}

void addScript(const EditorFixture &f)
{
    // A script, tried out before it is inserted.
    f.trigger("newScriptAction");
    auto *script = f.child<QPlainTextEdit>("scriptCode");
    script->setPlainText(u"6 *\n oops"_s);
    QTest::mouseClick(f.child<QPushButton>("scriptRun"), Qt::LeftButton);
    QVERIFY2(f.child<QLabel>("scriptError")->text().startsWith("Line 2: "_L1),
             qPrintable(f.child<QLabel>("scriptError")->text()));
    script->setPlainText(u"inputParameters['[Lot]'] + '!'"_s);
    QTest::mouseClick(f.child<QPushButton>("scriptRun"), Qt::LeftButton);
    QCOMPARE(f.child<QPlainTextEdit>("scriptResult")->toPlainText(), u"A-7!"_s);
    QTest::mouseClick(f.child<QPushButton>("scriptApply"), Qt::LeftButton);
    QVERIFY(f.content().endsWith("<script>inputParameters['[Lot]'] + '!'</script></div>"_L1));
}

void followTrouble(const EditorFixture &f)
{
    auto *rich = f.child<QTextEdit>("richView");
    // The preview lists what cannot be filled, and leads there.
    QTest::keyClicks(rich, u" [Nobody knows]"_s);
    auto *troubles = f.child<QListWidget>("previewTroubles");
    QTRY_COMPARE(troubles->count(), 1);
    QCOMPARE(troubles->item(0)->text(), u"[Nobody knows] has no value."_s);
    rich->moveCursor(QTextCursor::Start);
    Q_EMIT troubles->itemClicked(troubles->item(0));
    auto *document = qobject_cast<TemplateDocument *>(rich->document());
    QCOMPARE(document->chipAt(rich->textCursor().selectionStart()).source, u"[Nobody knows]"_s);
}

void saveAndReopen(EditorFixture &f)
{
    // Saved, and opened again.
    const QString saved = f.content();
    f.answerPath(f.path(u"t.ozt"_s));
    QSignalSpy signal(&f.editor, &AbstractTemplateEditor::saved);
    f.trigger("saveAction");
    QCOMPARE(signal.count(), 1);
    QVERIFY(!f.editor.isModified());
    f.trigger("newAction");
    QCOMPARE(f.content(), QString());
    f.trigger("openAction");
    QCOMPARE(f.content(), saved);
    QCOMPARE(f.editor.filePath(), f.path(u"t.ozt"_s));
}

/// The words of the PDF that the window writes.
QStringList printedWords(const EditorFixture &f)
{
    f.answerPath(f.path(u"t.pdf"_s));
    f.trigger("pdfAction");
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, f.path(u"t.pdf"_s), u"-"_s});
    if (!reader.waitForFinished())
        return {};
    const QString printed = QString::fromUtf8(reader.readAllStandardOutput());
    QStringList readable = words(printed);
    return readable;
}

} // namespace

class TestTemplateEditor : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void aTemplateIsWrittenAndPrinted();
    void codesAreInsertedInTheSource();
    void previewFollowsTheData();
    void modesKeepTheSource();
    void undoGoesAcrossModes();
    void undoAfterSavingIsAChange();
    void keptCodesStay_data();
    void keptCodesStay();
    void copiesComeWhole();
    void pagesArePasted_data();
    void pagesArePasted();
    void scriptsAreEditedInPlace();
    void readOnlyChangesNothing();
    void nothingTypedIsLost();
    void findsAndReplaces_data();
    void findsAndReplaces();
    void tablesAreEdited();
    void imagesAndLinksAreInserted();
    void everythingHasAName();
};

// One sitting, from an empty window to a printed page, by the ways that a user has.
void TestTemplateEditor::aTemplateIsWrittenAndPrinted()
{
    EditorFixture f;
    auto *rich = f.child<QTextEdit>("richView");
    f.trigger("newAction");
    QCOMPARE(f.content(), QString());

    // By typing, with bold letters around the code.
    f.trigger("boldAction");
    QTest::keyClicks(rich, u"Sample [Lot]"_s);
    f.trigger("boldAction");
    QTest::keyClick(rich, Qt::Key_Space);
    QCOMPARE(f.content(), u"<div style=\"white-space:pre-wrap\"><b>Sample [Lot]</b> </div>"_s);
    for (const auto step : {insertCodes, addScript, followTrouble}) {
        step(f);
        if (QTest::currentTestFailed())
            return;
    }
    const QString decoded = AbstractTemplateEditor::withoutScriptTags(AbstractTemplateEditor::decodeTEC(
        f.content(), f.editor.previewRows().constFirst(), f.editor.extraData(nullptr)));
    QTextDocument expected;
    expected.setHtml(decoded);
    QCOMPARE(f.child<QTextBrowser>("previewText")->toPlainText(), expected.toPlainText());
    saveAndReopen(f);
    // And the number of the page at its foot.
    QCOMPARE(printedWords(f), words(expected.toPlainText()) + words(u"Page 1 of 1"_s));
}

void TestTemplateEditor::codesAreInsertedInTheSource()
{
    EditorFixture f;
    f.setContent(u"<p>x</p>"_s);
    f.editor.setMode(AbstractTemplateEditor::Mode::Plain);
    auto *plain = f.child<QPlainTextEdit>("plainView");
    plain->moveCursor(QTextCursor::Start);
    QTest::keyClicks(plain, u"[sam"_s);
    auto *completer = plain->findChild<QCompleter *>(u"codeCompleter"_s);
    QVERIFY(completer->popup()->isVisible());
    QTest::keyClick(completer->popup(), Qt::Key_Return);
    QCOMPARE(f.content(), u"[Sample]<p>x</p>"_s);
    QTest::keyClick(f.child<QLineEdit>("codeSearch"), Qt::Key_L);
    QTest::keyClick(f.child<QLineEdit>("codeSearch"), Qt::Key_O);
    QTest::keyClick(f.child<QLineEdit>("codeSearch"), Qt::Key_Return);
    QCOMPARE(f.content(), u"[Sample][Lot]<p>x</p>"_s);

    // A trouble leads to its place here, too.
    plain->moveCursor(QTextCursor::End);
    plain->insertPlainText(u"\n<script>nowhere</script>"_s);
    auto *troubles = f.child<QListWidget>("previewTroubles");
    QTRY_COMPARE(troubles->count(), 1);
    Q_EMIT troubles->itemActivated(troubles->item(0));
    QCOMPARE(plain->textCursor().selectedText(), u"nowhere"_s);
}

void TestTemplateEditor::previewFollowsTheData()
{
    EditorFixture f;
    f.setContent(u"<p>[Name] of [Lot]<img src=\"file:///etc/hostname\"/></p>"_s);
    auto *rows = f.child<QComboBox>("previewRow");
    auto *text = f.child<QTextBrowser>("previewText");
    const QStringList shown{u"T12 of A-7"_s, u"BSA of A-7"_s, u"T12; BSA of A-7"_s};
    QCOMPARE(rows->count(), shown.size());
    for (int row = 0; row < rows->count(); ++row) {
        rows->setCurrentIndex(row);
        QTRY_COMPARE(text->toPlainText().remove(QChar::ObjectReplacementCharacter), shown.at(row));
    }
    // Nothing that a template refers to is loaded.
    QVERIFY(text->document()
                ->resource(QTextDocument::ImageResource, QUrl(u"file:///etc/hostname"_s))
                .value<QImage>()
                .width() <= 16);
}

void TestTemplateEditor::modesKeepTheSource()
{
    EditorFixture f;
    TemplateGenerator generator(7);
    for (int i = 0; i < 40; ++i) {
        const QString source = generator.next();
        f.setContent(source);
        for (int pass = 0; pass < 3; ++pass) {
            f.editor.setMode(AbstractTemplateEditor::Mode::Plain);
            QCOMPARE(f.content(), source);
            f.editor.setMode(AbstractTemplateEditor::Mode::Rich);
            QCOMPARE(f.content(), source);
        }
        // Edited in between, it is written anew; from then on it stays the same.
        auto *rich = f.child<QTextEdit>("richView");
        rich->textCursor().insertText(u"x"_s);
        const QString edited = f.content();
        QVERIFY(edited != source);
        for (int pass = 0; pass < 3; ++pass) {
            f.editor.setMode(AbstractTemplateEditor::Mode::Plain);
            auto *plain = f.child<QPlainTextEdit>("plainView");
            plain->textCursor().insertText(u"y"_s);
            plain->textCursor().deletePreviousChar();
            f.editor.setMode(AbstractTemplateEditor::Mode::Rich);
            rich->textCursor().insertText(u"y"_s);
            rich->textCursor().deletePreviousChar();
            QCOMPARE(f.content(), edited);
        }
    }
}

void TestTemplateEditor::undoGoesAcrossModes()
{
    EditorFixture f;
    const QString source = u"<p class=\"odd\">a [Lot]</p>"_s;
    f.setContent(source);
    auto *rich = f.child<QTextEdit>("richView");
    auto *plain = f.child<QPlainTextEdit>("plainView");
    rich->moveCursor(QTextCursor::End);
    QTest::keyClick(rich, Qt::Key_B);
    const QString typed = f.content();
    f.trigger("plainModeAction");
    plain->moveCursor(QTextCursor::Start);
    QTest::keyClicks(plain, u"c"_s);
    const QString inSource = f.content();
    f.trigger("richModeAction");
    rich->moveCursor(QTextCursor::End);
    QTest::keyClick(rich, Qt::Key_D);
    const QString last = f.content();

    struct Step
    {
        QString content;
        AbstractTemplateEditor::Mode mode;
    };
    using Mode = AbstractTemplateEditor::Mode;
    const QList<Step> steps{{source, Mode::Rich},    {typed, Mode::Rich},    {typed, Mode::Plain},
                            {inSource, Mode::Plain}, {inSource, Mode::Rich}, {last, Mode::Rich}};
    for (int round = 0; round < 2; ++round) {
        for (qsizetype at = steps.size() - 2; at >= 0; --at) {
            f.trigger("undoAction");
            QCOMPARE(f.content(), steps.at(at).content);
            QCOMPARE(f.editor.mode(), steps.at(at).mode);
        }
        QVERIFY(!f.child<QAction>("undoAction")->isEnabled());
        QVERIFY(!f.editor.isModified());
        for (qsizetype at = 1; at < steps.size(); ++at) {
            f.trigger("redoAction");
            QCOMPARE(f.content(), steps.at(at).content);
            QCOMPARE(f.editor.mode(), steps.at(at).mode);
        }
    }
    // The keys of the views lead to the same history.
    QTest::keyClick(rich, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.content(), inSource);
    // Typing after an undo is a step of its own, and ends the redo history.
    QTest::keyClick(rich, Qt::Key_E);
    QVERIFY(!f.child<QAction>("redoAction")->isEnabled());
    f.trigger("undoAction");
    QCOMPARE(f.content(), inSource);
}

// A document merges letters typed one after the other into one step, over a save as well unless stopped.
void TestTemplateEditor::undoAfterSavingIsAChange()
{
    EditorFixture f;
    auto *rich = f.child<QTextEdit>("richView");
    QStringList told;
    connect(&f.editor, &AbstractTemplateEditor::modifiedChanged, this,
            [&](bool modified) { told += modified ? u"changed"_s : u"as saved"_s; });
    connect(&f.editor, &AbstractTemplateEditor::filePathChanged, this,
            [&](const QString &path) { told += QFileInfo(path).fileName(); });
    connect(&f.editor, &AbstractTemplateEditor::readOnlyChanged, this,
            [&](bool readOnly) { told += readOnly ? u"locked"_s : u"open"_s; });
    QTest::keyClick(rich, Qt::Key_A);
    f.answerPath(f.path(u"t.ozt"_s));
    f.trigger("saveAction");
    QVERIFY(!f.editor.isModified());
    QTest::keyClick(rich, Qt::Key_B);
    QVERIFY(f.editor.isModified());
    f.trigger("undoAction");
    QVERIFY(!f.editor.isModified());
    f.editor.setReadOnly(true);
    f.editor.setReadOnly(true);
    f.editor.setReadOnly(false);
    QCOMPARE(told, QStringList({u"changed"_s, u"as saved"_s, u"t.ozt"_s, u"changed"_s, u"as saved"_s,
                                u"locked"_s, u"open"_s}));
    QCOMPARE(f.content(), u"<div>a</div>"_s);
    // Another mode is not a change.
    f.trigger("plainModeAction");
    QVERIFY(!f.editor.isModified());
}

void TestTemplateEditor::keptCodesStay_data()
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
    QTest::newRow("delete a word") << int(Qt::Key_Backspace) << Qt::KeyboardModifiers(Qt::ControlModifier)
                                   << 2 << 2;
    QTest::newRow("line break over it") << int(Qt::Key_Return) << none << 0 << 3;
}

void TestTemplateEditor::keptCodesStay()
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

void TestTemplateEditor::copiesComeWhole()
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

void TestTemplateEditor::pagesArePasted_data()
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
    good("word processor's list", office + u"<ul type=disc><li class=MsoNormal>a</li><li>b [Lot]</li></ul>"_s,
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
    good("browser's span", u"<meta charset='utf-8'><span style=\"color: rgb(255, 0, 0);\">red [Lot]</span>"_s,
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
    good("loaded objects", u"<object data=x>fallback</object><embed src=x><p>a</p>"_s,
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

void TestTemplateEditor::pagesArePasted()
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

void TestTemplateEditor::scriptsAreEditedInPlace()
{
    EditorFixture f;
    f.setContent(u"<p>ab<script>1</script>c</p>"_s);
    auto *rich = f.child<QTextEdit>("richView");
    auto *code = f.child<QPlainTextEdit>("scriptCode");
    QTextCursor at = rich->textCursor();
    at.setPosition(2);
    rich->setTextCursor(at);
    f.trigger("editScriptAction");
    QCOMPARE(code->toPlainText(), u"1"_s);
    // The template may change meanwhile: the script keeps its place.
    at.setPosition(0);
    at.insertText(u"Lot "_s);
    code->setPlainText(u"2"_s);
    QTest::mouseClick(f.child<QPushButton>("scriptApply"), Qt::LeftButton);
    QCOMPARE(f.content(), u"<p>Lot ab<script>2</script>c</p>"_s);
    f.trigger("plainModeAction");
    auto *plain = f.child<QPlainTextEdit>("plainView");
    at = plain->textCursor();
    at.setPosition(int(f.content().indexOf("2</script>"_L1)));
    plain->setTextCursor(at);
    f.trigger("editScriptAction");
    for (const QString &next : {u"3\n+ 4"_s, u"5"_s}) {
        code->setPlainText(next);
        QTest::mouseClick(f.child<QPushButton>("scriptApply"), Qt::LeftButton);
        QCOMPARE(f.content(), u"<p>Lot ab<script>%1</script>c</p>"_s.arg(next));
    }
}

void TestTemplateEditor::readOnlyChangesNothing()
{
    EditorFixture f;
    f.setContent(u"<p>a[Lot]<script>1</script></p>"_s);
    f.editor.setReadOnly(true);
    for (const auto mode : {AbstractTemplateEditor::Mode::Plain, AbstractTemplateEditor::Mode::Rich}) {
        f.editor.setMode(mode);
        auto *view = mode == AbstractTemplateEditor::Mode::Rich
                         ? static_cast<QWidget *>(f.child<QTextEdit>("richView"))
                         : f.child<QPlainTextEdit>("plainView");
        QTest::keyClicks(view, u"x[Lot]"_s);
        QTest::keyClick(view, Qt::Key_Delete);
        QTest::keyClick(view, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(view, Qt::Key_Z, Qt::ControlModifier);
        for (QAction *action : f.editor.findChildren<QAction *>()) {
            // Actions that open dialogs or close the window are for other tests.
            if (!action->text().contains(u'…') && action->objectName() != "closeAction"_L1 &&
                action->objectName().endsWith("Action"_L1) && !action->objectName().contains("ode"_L1) &&
                action->objectName() != "newAction"_L1 && action->objectName() != "saveAction"_L1)
                action->trigger();
        }
        QTest::mouseClick(f.child<QPushButton>("scriptApply"), Qt::LeftButton);
        QTest::keyClick(f.child<QLineEdit>("codeSearch"), Qt::Key_Return);
        QCOMPARE(f.content(), u"<p>a[Lot]<script>1</script></p>"_s);
    }
    QVERIFY(!f.editor.isModified());
}

void TestTemplateEditor::nothingTypedIsLost()
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

void TestTemplateEditor::findsAndReplaces_data()
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
    QTest::newRow("text by a code") << true << u"<p>the lot</p>"_s << u"lot"_s << u"[Lot]"_s
                                    << u"<p>the [Lot]</p>"_s;
    QTest::newRow("scripts") << true << u"<p>a lot <script>lot(1)</script></p>"_s << u"lot"_s << u"run"_s
                             << u"<p>a run <script>lot(1)</script></p>"_s;
    QTest::newRow("codes that may not go")
        << true << u"<p>Signature [Signature]</p>"_s << u"Signature"_s << u"x"_s << u"<p>x [Signature]</p>"_s;
    QTest::newRow("source") << false << u"<p>a</p><p>b</p>"_s << u"p>"_s << u"div>"_s
                            << u"<div>a</div><div>b</div>"_s;
}

void TestTemplateEditor::findsAndReplaces()
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

void TestTemplateEditor::tablesAreEdited()
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
    f.trigger("rowAboveAction");
    f.trigger("rowBelowAction");
    f.trigger("columnBeforeAction");
    f.trigger("columnAfterAction");
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

void TestTemplateEditor::imagesAndLinksAreInserted()
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
    QCOMPARE(box.shown(), 1);
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

void TestTemplateEditor::everythingHasAName()
{
    EditorFixture f;
    QSet<QString> keys;
    for (const QAction *action : f.editor.findChildren<QAction *>(Qt::FindDirectChildrenOnly)) {
        if (action->isSeparator() || action->menu())
            continue;
        QVERIFY2(!action->objectName().isEmpty(), qPrintable(action->text()));
        const QString key = action->shortcut().toString();
        QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(action->objectName() + u' ' + key));
        keys.insert(key);
    }
    for (const char *name : {"richView", "plainView", "codeSearch", "codeList", "scriptCode", "scriptResult",
                             "previewRow", "previewText", "previewTroubles", "findText", "replaceText",
                             "fontChoice", "sizeChoice", "paragraphChoice"})
        QVERIFY2(!f.child<QWidget>(name)->accessibleName().isEmpty(), name);
}

QTEST_MAIN(TestTemplateEditor)
#include "tst_templateeditor.moc"
