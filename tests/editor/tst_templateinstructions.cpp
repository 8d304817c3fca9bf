#include "editor/EditorFixture.h"
#include "support/StrictTest.h"

#include <ozm_widgets/ReportView.h>
#include <ozm_widgets/TemplateDocument.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTextEdit>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace ozm::test;

namespace {

template <typename T>
T *field(QDialog *dialog, const char *name)
{
    T *found = dialog->findChild<T *>(QString::fromLatin1(name));
    if (!found)
        qFatal("there is no %s", name);
    return found;
}

void choose(QDialog *dialog, const char *name, const QString &text)
{
    auto *box = field<QComboBox>(dialog, name);
    if (box->isEditable())
        box->setCurrentText(text);
    else
        box->setCurrentIndex(box->findText(text));
    QCOMPARE(box->currentText(), text);
}

class LongCaptions : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString::fromUtf8(text) + u" in some other language"_s;
    }
};

const QString kContent =
    u"<p class=\"lead\">Sample [Sample]</p>\n"
    "<table class=\"list\" border=\"1\"><tr><th>Peptide</th></tr>\n<tr><td>Cell [Name]</td></tr></table>\n"
    "<p class=\"small\">Lot [Lot]</p>"_s;

} // namespace

class TestTemplateInstructions : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    // A template is written with the dialogs, in either view; what stands around the instructions is kept to the
    // letter, and the preview follows them.
    void walk_data()
    {
        QTest::addColumn<bool>("isRich");
        QTest::newRow("formatted text") << true;
        QTest::newRow("source") << false;
    }
    void walk()
    {
        QFETCH(const bool, isRich);
        EditorFixture fixture;
        fixture.setContent(kContent);
        if (!isRich)
            fixture.trigger("plainModeAction");
        place(fixture, isRich, u"Cell"_s, 0);
        DialogDriver driver(
            {[](QDialog *dialog) {
                 QVERIFY(field<QRadioButton>(dialog, "extentRow")->isChecked());
                 choose(dialog, "repeatSort", u"Name"_s);
                 dialog->accept();
             },
             [](QDialog *dialog) {
                 choose(dialog, "formatCode", u"Sample"_s);
                 choose(dialog, "formatCase", u"UPPER CASE"_s);
                 QCOMPARE(field<QLabel>(dialog, "formatSample")->text(), u"T12 & CO"_s);
                 choose(dialog, "formatKind", u"Number"_s);
                 field<QSpinBox>(dialog, "formatDigits")->setValue(2);
                 dialog->accept();
             },
             [](QDialog *dialog) {
                 QVERIFY(!dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled());
                 choose(dialog, "conditionCode", u"Lot"_s);
                 QCOMPARE(field<QLabel>(dialog, "conditionSample")->text(), u"Shown"_s);
                 choose(dialog, "conditionTest", u"is equal to"_s);
                 field<QLineEdit>(dialog, "conditionValue")->setText(u"B-\"1\""_s);
                 QCOMPARE(field<QLabel>(dialog, "conditionSample")->text(), u"Not shown"_s);
                 field<QCheckBox>(dialog, "conditionOther")->setChecked(true);
                 dialog->accept();
             },
             [](QDialog *dialog) {
                 QVERIFY(!field<QRadioButton>(dialog, "extentRow")->isEnabled());
                 QVERIFY(!field<QCheckBox>(dialog, "conditionOther")->isEnabled());
                 QCOMPARE(field<QLineEdit>(dialog, "conditionValue")->text(), u"B-\"1\""_s);
                 field<QLineEdit>(dialog, "conditionValue")->setText(u"A-7"_s);
                 dialog->accept();
             }});
        fixture.trigger("repeatAction");
        place(fixture, isRich, isRich ? u"Sample "_s : u"[Sample]"_s, isRich ? 7 : 3);
        fixture.trigger("codeFormatAction");
        place(fixture, isRich, u"Lot"_s, 0);
        fixture.trigger("conditionAction");
        type(fixture, isRich, u"Another lot"_s);
        fixture.trigger("otherPartAction"); // goes to the one that is there
        type(fixture, isRich, u"!"_s);
        if (isRich)
            place(fixture, isRich, u"Another"_s, -3); // at the mark of the other part
        else
            place(fixture, isRich, u"B-"_s, 0);
        fixture.trigger("editScriptAction");
        QCOMPARE(driver.opened(), 4);

        const QString written = fixture.content();
        for (
            const QString &part :
            {u"<p class=\"lead\">Sample <span data-format=\"number\" data-digits=\"2\">[Sample]</span></p>"_s,
             u"<table class=\"list\" border=\"1\"><tr><th>Peptide</th></tr>\n<tr><td>"_s,
             u"<!--ozm:repeat-row sort=\"Name\"-->"_s,
             u"<!--ozm:if code=\"Lot\" is=\"equal\" value=\"A-7\"-->"_s,
             u"<p class=\"small\">Lot [Lot]</p>"_s, u"<!--ozm:end-->"_s})
            QVERIFY2(written.contains(part), qPrintable(part + u"\n in \n"_s + written));
        static const QRegularExpression section(u"ozm:if .*Lot \\[Lot\\].*ozm:else-.*!Another lot.*ozm:end"_s,
                                                QRegularExpression::DotMatchesEverythingOption);
        QVERIFY2(written.contains(section), qPrintable(written));
        auto *preview = fixture.child<ozm::ReportView>("previewPages");
        QTRY_VERIFY(preview->toPlainText().contains(u"Lot A-7"_s));
        QVERIFY(!preview->toPlainText().contains(u"Another"_s));
        QVERIFY(fixture.child<QLabel>("previewCount")->text().contains(u"Everything"_s));

        for (const char *mode : {"plainModeAction", "richModeAction", "plainModeAction"})
            fixture.trigger(mode);
        QCOMPARE(fixture.content(), written);
        for (int step = 0; step < 10; ++step)
            fixture.trigger("undoAction");
        QCOMPARE(fixture.content(), kContent);
    }

    // Whatever is edited elsewhere, also where a table is written anew.
    void instructionsAreKept()
    {
        EditorFixture fixture;
        const QString row = u"<!--ozm:repeat-row of=\"None\" empty=\"-\"-->"_s;
        const QString format = u"<span class=\"x\"  data-format='text' data-empty=\"&lt;\">[Sample]</span>"_s;
        const QString begin = u"<!--ozm:if code=\"Lot\" is=\"present\"-->"_s;
        const QString end = u"<!--ozm:end-->"_s;
        fixture.setContent(u"<p>a</p><table border=\"1\"><tr><td>"_s + row + format +
                           u"</td><td>x</td></tr></table>"_s + begin + u"<p>b</p>"_s + end + u"<p>c</p>"_s);
        auto *view = fixture.child<QTextEdit>("richView");
        view->setTextCursor(view->document()->find(u"x"_s));
        fixture.trigger("rowBelowAction");
        view->insertPlainText(u"new"_s);
        view->setTextCursor(view->document()->find(u"b"_s));
        view->insertPlainText(u"changed"_s);
        for (const QString &part : {row, format, begin, end, u"new"_s, u"changed"_s})
            QVERIFY2(fixture.content().contains(part), qPrintable(fixture.content()));
        view->setTextCursor(view->document()->find(u"a"_s));
        auto *preview = fixture.child<ozm::ReportView>("previewPages");
        QTRY_VERIFY(preview->toPlainText().contains(u"changed"_s));
        // The list is not there: this is told, and leads to its place.
        QVERIFY(fixture.child<QLabel>("previewCount")->text().contains(u"1 place"_s));
        // On screen, they follow the language of the application, in documents of the history, too.
        const auto width = [view] {
            QTextCursor chip = view->document()->find(QString(QChar::ObjectReplacementCharacter));
            chip.clearSelection();
            return view->cursorRect(chip).left();
        };
        const int usual = width();
        LongCaptions longer;
        QCoreApplication::installTranslator(&longer);
        QTRY_COMPARE_GT(width(), usual + 50);
        fixture.trigger("plainModeAction");
        QCoreApplication::removeTranslator(&longer);
        QCoreApplication::processEvents();
        fixture.trigger("undoAction");
        QTRY_COMPARE(width(), usual);
    }

    // A selection that begins in a table is about the whole of it: half a table is no section.
    void sectionsTakeWholeTables()
    {
        EditorFixture fixture;
        fixture.setContent(kContent);
        auto *view = fixture.child<QTextEdit>("richView");
        QTextCursor selection = view->document()->find(u"Cell"_s);
        selection.setPosition(view->document()->find(u"Lot"_s).position(), QTextCursor::KeepAnchor);
        view->setTextCursor(selection);
        DialogDriver driver({[](QDialog *dialog) {
            field<QRadioButton>(dialog, "extentSection")->setChecked(true);
            choose(dialog, "conditionCode", u"Sample"_s);
            choose(dialog, "conditionTest", u"has no value"_s);
            dialog->accept();
        }});
        fixture.trigger("conditionAction");
        const QString written = fixture.content();
        QVERIFY2(written.indexOf(u"<!--ozm:if"_s) < written.indexOf(u"<table"_s), qPrintable(written));
        QVERIFY2(written.indexOf(u"<!--ozm:end"_s) > written.indexOf(u"Lot [Lot]</p>"_s),
                 qPrintable(written));
        auto *preview = fixture.child<ozm::ReportView>("previewPages");
        QTRY_VERIFY2(preview->toPlainText().trimmed() == u"Sample T12 & co"_s, qPrintable(written));
    }

private:
    static void type(const EditorFixture &fixture, bool isRich, const QString &text)
    {
        if (isRich)
            fixture.child<QTextEdit>("richView")->insertPlainText(text);
        else
            fixture.child<QPlainTextEdit>("plainView")->insertPlainText(text);
    }

    /// Sets the cursor @p by characters behind the beginning of @p text, which is looked for from the end.
    static void place(const EditorFixture &fixture, bool isRich, const QString &text, int by)
    {
        QTextDocument *document = isRich ? fixture.child<QTextEdit>("richView")->document()
                                         : fixture.child<QPlainTextEdit>("plainView")->document();
        QTextCursor end(document);
        end.movePosition(QTextCursor::End);
        QTextCursor cursor =
            document->find(text, end, QTextDocument::FindBackward | QTextDocument::FindCaseSensitively);
        QVERIFY2(!cursor.isNull(), qPrintable(text + u" in "_s + document->toPlainText()));
        cursor.setPosition(cursor.selectionStart() + by);
        if (isRich)
            fixture.child<QTextEdit>("richView")->setTextCursor(cursor);
        else
            fixture.child<QPlainTextEdit>("plainView")->setTextCursor(cursor);
    }
};

QTEST_MAIN(TestTemplateInstructions)
#include "tst_templateinstructions.moc"
