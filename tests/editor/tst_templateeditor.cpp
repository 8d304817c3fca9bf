#include "editor/EditorFixture.h"
#include "editor/TemplateGenerator.h"
#include "support/StrictTest.h"

#include <ozm_widgets/ReportView.h>
#include <ozm_widgets/TemplateDocument.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QToolButton>

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

} // namespace

class TestTemplateEditor : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void aTemplateIsWritten();
    void codesAreInsertedInTheSource();
    void previewFollowsTheData();
    void modesKeepTheSource();
    void undoGoesAcrossModes();
    void undoAfterSavingIsAChange();
    void scriptsAreEditedInPlace();
    void readOnlyChangesNothing();
    void codesAreAskedForBeforeTheLayout();
    void everythingHasAName();
};

// One sitting, from an empty window to a file, by the ways that a user has. Its way to paper is walked by
// certificate_walk.
void TestTemplateEditor::aTemplateIsWritten()
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
    QCOMPARE(f.child<ozm::ReportView>("previewPages")->toPlainText(), expected.toPlainText());
    saveAndReopen(f);
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
    auto *text = f.child<ozm::ReportView>("previewPages");
    const QStringList shown{u"T12 of A-7"_s, u"BSA of A-7"_s, u"T12; BSA of A-7"_s};
    QCOMPARE(rows->count(), shown.size());
    for (int row = 0; row < rows->count(); ++row) {
        rows->setCurrentIndex(row);
        QTRY_COMPARE(text->toPlainText().remove(QChar::ObjectReplacementCharacter), shown.at(row));
    }
    // And the caret: from the end of a long template to its page.
    f.setContent(u"<p>first [Lot]</p>"_s + u"<p>line</p>"_s.repeated(300) + u"<p>last [Lot]</p>"_s);
    auto *rich = f.child<QTextEdit>("richView");
    QTRY_VERIFY(text->pageCount() > 3);
    rich->moveCursor(QTextCursor::End);
    QTRY_COMPARE(text->currentPage(), text->pageCount());
    rich->moveCursor(QTextCursor::Start);
    QTRY_COMPARE(text->currentPage(), 1);
    const double fitted = text->zoom();
    f.child<QAction>("zoomInAction")->trigger();
    QTest::mouseClick(f.child<QToolButton>("previewZoomIn"), Qt::LeftButton);
    QVERIFY(text->zoom() > fitted && !text->fitsWidth());
    QCOMPARE(f.child<QLabel>("viewZoom")->text(), u"110 %"_s);

    f.setContent(u"<p><img src=\"file:///etc/hostname\"/></p>"_s);
    QTRY_COMPARE(text->pageCount(), 1);
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

// Names of codes are in the lines: known later, they would have all of them laid out once more.
void TestTemplateEditor::codesAreAskedForBeforeTheLayout()
{
    struct Asked : SampleTemplateEditor
    {
        [[nodiscard]] QList<ShortCode> shortCodes() const override
        {
            places.append(findChild<QTextEdit *>(u"richView"_s)->document()->pageSize());
            return SampleTemplateEditor::shortCodes();
        }
        mutable QList<QSizeF> places;
    } editor;
    QVERIFY(editor.setSourceText(EditorFixture::wrapped(u"<p>[Sample]</p>"_s)));
    editor.show();
    QCOMPARE(editor.places, QList<QSizeF>{QSizeF(0, 0)});
    const auto *view = editor.findChild<QTextEdit *>(u"richView"_s);
    QCOMPARE(view->document()->pageSize().width(), view->viewport()->width());
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
                             "previewRow", "previewPages", "previewTroubles", "findText", "replaceText",
                             "fontChoice", "sizeChoice", "paragraphChoice"})
        QVERIFY2(!f.child<QWidget>(name)->accessibleName().isEmpty(), name);
}

QTEST_MAIN(TestTemplateEditor)
#include "tst_templateeditor.moc"
