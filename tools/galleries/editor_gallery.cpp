// Pictures of the template editor for people to look at: editor_gallery <folder> [<language>]. Twice the
// size with QT_SCALE_FACTOR=2. Not a test: what looks wrong is for eyes to say.

#include "reports/WorkbenchTemplateEditor.h"
#include "samples/SampleTable.h"

#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>
#include <ozm_widgets/ReportView.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTextEdit>
#include <QTextTable>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace workbench;

namespace {

const QString kLetter =
    u"<h1>Certificate for [Name]</h1>"
    "<p>Dear colleague,</p>"
    "<p>the peptide <b>[Sequence]</b> was measured with charge <i>[Charge]</i>+ and a mass of "
    "<script>templateEditorCore.number(inputParameters[\"[Mass]\"], 4)</script> Da. "
    "It belongs to batch [Batch].</p>"
    "<ul><li>Source: [SourceFile]</li><li>Issued by [ReportUser], [ReportTime]</li></ul>"
    "<table border=\"1\" width=\"100%\" cellspacing=\"0\" cellpadding=\"4\">"
    "<tr><td bgcolor=\"#dde8f2\"><b>Column</b></td><td bgcolor=\"#dde8f2\"><b>Value</b></td></tr>"
    "<tr><td>Samples</td><td>[SampleCount]</td></tr>"
    "<tr><td>Remark</td><td>[Comment]</td></tr></table>"
    "<p>Check: <script>let sum = 0;\nsum += total;\nsum</script></p>"_s;

RowNode makeRow(const QString &name, const QString &sequence, double mass)
{
    RowNode row = SampleTable::emptyRow();
    row.setDataAt(u"Name"_s, name);
    row.setDataAt(u"Sequence"_s, sequence);
    row.setDataAt(u"Mass"_s, mass);
    row.setDataAt(u"Charge"_s, 2);
    row.setDataAt(u"Comment"_s, u"second injection"_s);
    return row;
}

struct Gallery
{
    QString folder;
    QString suffix;

    void take(QWidget &window, const QString &name) const
    {
        QTest::qWait(500);
        // Their pages are laid out in another thread.
        const auto pages = window.findChildren<ozm::ReportView *>();
        const bool isShown = QTest::qWaitFor([&pages] {
            return std::ranges::none_of(pages, [](const ozm::ReportView *each) {
                return each->isVisible() && each->pageCount() == 0;
            });
        });
        if (!isShown)
            qWarning() << name << "was taken without its preview";
        // Small, as one of them is in the documentation.
        const QImage picture = window.grab().toImage().convertToFormat(QImage::Format_RGB888);
        picture.save(folder + u'/' + name + suffix + u".png"_s, "PNG", 0);
    }

    /// The dialog that @p action opens, filled with the texts of @p fields by object name.
    void takeDialog(QWidget &editor, const char *action, const QMap<QString, QString> &fields) const
    {
        QTimer::singleShot(0, &editor, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            for (auto each = fields.cbegin(); dialog && each != fields.cend(); ++each) {
                if (auto *line = dialog->findChild<QLineEdit *>(each.key()))
                    line->setText(each.value());
                if (auto *count = dialog->findChild<QSpinBox *>(each.key()))
                    count->setValue(each.value().toInt());
                if (auto *box = dialog->findChild<QComboBox *>(each.key()); box && box->isEditable())
                    box->setCurrentText(each.value());
                else if (box)
                    box->setCurrentIndex(box->findText(each.value()));
            }
            if (!dialog)
                return;
            take(*dialog, QString::fromLatin1(action));
            dialog->accept();
        });
        editor.findChild<QAction *>(QString::fromLatin1(action))->trigger();
    }

    void takeInstructions(AbstractTemplateEditor &editor, QTextEdit &rich) const
    {
        rich.setTextCursor(rich.document()->find(u"Remark"_s));
        takeDialog(editor, "repeatAction", {{u"repeatOf"_s, u"Samples"_s}, {u"repeatSort"_s, u"Name"_s}});
        rich.setTextCursor(rich.document()->find(u"batch "_s));
        takeDialog(editor, "codeFormatAction",
                   {{u"formatCode"_s, u"Mass"_s},
                    {u"formatKind"_s, u"Number"_s},
                    {u"formatDigits"_s, u"2"_s},
                    {u"formatThousands"_s, u"Comma"_s},
                    {u"formatUnit"_s, u"Da"_s}});
        takeDialog(editor, "conditionAction",
                   {{u"conditionCode"_s, u"Mass"_s},
                    {u"conditionTest"_s, u"is above"_s},
                    {u"conditionValue"_s, u"1000"_s}});
        take(editor, u"instructions"_s);
        takeDialog(editor, "templatePageAction", {{u"pageHeader"_s, u"Certificate [SampleNumber]"_s}});
    }

    void takeAll() const
    {
        const std::vector<RowNode> rows{makeRow(u"T12"_s, u"SAMPLERPEPTIDE"_s, 1523.7102),
                                        makeRow(u"BSA-3"_s, u"LVNELTEFAK"_s, 1162.6234)};
        WorkbenchTemplateEditor editor(rows, ReportContext(u"jane"_s, u"samples.csv"_s, rows));
        editor.setAttribute(Qt::WA_DeleteOnClose, false);
        (void)editor.setSourceText(u"<ozm_template version=\"1.0\">"_s + kLetter + u"</ozm_template>"_s);
        editor.show();
        editor.activateWindow();
        take(editor, u"rich"_s);
        auto *rich = editor.findChild<QTextEdit *>(u"richView"_s);
        takeInstructions(editor, *rich);
        rich->setTextCursor(rich->document()->find(u"Check"_s));
        rich->moveCursor(QTextCursor::EndOfBlock);
        editor.findChild<QAction *>(u"editScriptAction"_s)->trigger();
        editor.findChild<QPushButton *>(u"scriptRun"_s)->click();
        take(editor, u"script"_s);
        editor.findChild<QWidget *>(u"scriptDock"_s)->hide();
        editor.findChild<QAction *>(u"replaceAction"_s)->trigger();
        editor.findChild<QLineEdit *>(u"findText"_s)->setText(u"mass"_s);
        editor.findChild<QAction *>(u"findNextAction"_s)->trigger();
        take(editor, u"find"_s);
        editor.findChild<QWidget *>(u"findBar"_s)->hide();
        rich->setTextCursor(rich->document()->find(u"Samples"_s));
        editor.findChild<QAction *>(u"rowBelowAction"_s)->trigger();
        editor.findChild<QAction *>(u"columnAfterAction"_s)->trigger();
        rich->insertPlainText(u"Number of samples"_s);
        take(editor, u"table"_s);
        QTest::keyClicks(rich, u" [se"_s);
        QTest::qWait(200);
        if (QWidget *popup = QApplication::activePopupWidget()) {
            take(*popup, u"completion"_s);
            popup->hide();
        }
        editor.setMode(AbstractTemplateEditor::Mode::Plain);
        take(editor, u"source"_s);
        editor.setReadOnly(true);
        take(editor, u"readonly"_s);
    }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QString folder = QApplication::arguments().value(1, u"."_s);
    QDir().mkpath(folder);
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale(QApplication::arguments().value(2, u"en"_s)));
    ozm::OzmCoreApplication::start();
    ozm::OzmCoreApplication::loadTranslation(QLocale(), u"workbench"_s);
    const QString size = application.devicePixelRatio() > 1 ? u"-2x"_s : QString();
    for (const auto scheme : {OZMStyle::Scheme::Light, OZMStyle::Scheme::Dark}) {
        QApplication::setPalette(OZMStyle::palette(scheme));
        Gallery{folder, (scheme == OZMStyle::Scheme::Dark ? u"-dark"_s : u"-light"_s) + size}.takeAll();
    }
    return 0;
}
