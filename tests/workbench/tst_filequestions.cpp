#include "SampleFixture.h"
#include "core_ms/SampleTree.h"
#include "data/DataImport.h"
#include "files/FileDialogDriver.h"
#include "reports/ReportDialog.h"
#include "support/StrictTest.h"
#include "window/FileQuestions.h"
#include "window/MainWindow.h"
#include "window/StyleDialog.h"

#include <ozm_widgets/DefaultFileAccessor.h>
#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/FileCrawlerDialog.h>
#include <ozm_widgets/TemplateFile.h>
#include <ozm_widgets/openfilefolderdialog.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace ozm;
using namespace ozm::test;
using namespace workbench;

namespace {

/// The questions that were asked, and the path that answers all of them.
struct Answers
{
    QStringList questions;
    QStringList paths;
};

/// Answers without showing anything.
class ScriptedAccessor : public DefaultFileAccessor
{
public:
    using DefaultFileAccessor::getOpenFileName;
    using DefaultFileAccessor::getSaveFileName;
    using DefaultFileAccessor::saveFile;

    explicit ScriptedAccessor(Answers &answers)
        : m_answers(answers)
    {}

    [[nodiscard]] QString getOpenFileName(QWidget *, const QString &caption, const QString &,
                                          const FileExtensionsNameFilter &, QString *, QFileDialog::Options,
                                          DirLocation) const override
    {
        return asked(caption).value(0);
    }
    [[nodiscard]] QList<QString> getOpenFileNames(QWidget *, const QString &caption, const QString &,
                                                  const FileExtensionsNameFilter &filter, QString *,
                                                  QFileDialog::Options, DirLocation) const override
    {
        return asked(filter.containsType(*FileTypes::find(u"MS"_s)) ? caption : u"not for data"_s);
    }
    [[nodiscard]] QString getExistingDirectory(QWidget *, const QString &caption, const QString &,
                                               QFileDialog::Options, DirLocation) const override
    {
        return asked(caption).value(0);
    }
    [[nodiscard]] DestinationFileLocation getSaveFileName(QWidget *, const QString &caption, const QString &,
                                                          const QString &, const FileExtensionsNameFilter &,
                                                          QString *, QFileDialog::Options,
                                                          DirLocation) const override
    {
        const QString path = asked(caption).value(0);
        return path.isEmpty() ? DestinationFileLocation() : DestinationFileLocation("file:"_L1 + path);
    }
    [[nodiscard]] Error saveFile(const DestinationFileLocation &location, const Writer &writer) const override
    {
        m_answers.questions.append(u"saveFile"_s);
        return DefaultFileAccessor::saveFile(location, writer);
    }

private:
    QStringList asked(const QString &caption) const
    {
        m_answers.questions.append(caption);
        return m_answers.paths;
    }

    Answers &m_answers;
};

class ScriptedCreator : public DefaultWidgetCreator
{
public:
    explicit ScriptedCreator(Answers &answers)
        : m_answers(answers)
    {}
    [[nodiscard]] std::unique_ptr<IFileAccessor> createFileAccessor(FileAccessorType) const override
    {
        return std::make_unique<ScriptedAccessor>(m_answers);
    }

private:
    Answers &m_answers;
};

/// A window whose questions are answered from a script.
struct ScriptedFixture : SampleFixture
{
    ScriptedFixture()
        : window(*editor, trailPath())
    {
        WidgetCreatorBase::setCustomCreator(std::make_unique<ScriptedCreator>(answers));
        as::setValue(kFileExplorerAllowed, false);
    }
    ~ScriptedFixture() { WidgetCreatorBase::setCustomCreator({}); }
    Q_DISABLE_COPY_MOVE(ScriptedFixture)

    [[nodiscard]] QStringList trigger(const QString &action, const QStringList &paths)
    {
        answers = {{}, paths};
        window.findChild<QAction *>(action)->trigger();
        return answers.questions;
    }

    const FileStateGuard guard;
    Answers answers;
    MainWindow window;
};

} // namespace

class TestFileQuestions : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void samplesAreOpenedAndSaved()
    {
        ScriptedFixture fixture;
        const QString path = fixture.folder.filePath(u"50% %1.csv"_s);
        QCOMPARE(fixture.trigger(u"saveAction"_s, {path}), (QStringList{u"Save samples"_s, u"saveFile"_s}));
        QVERIFY(readFile(path).contains("T1"));
        QVERIFY(fixture.window.windowTitle().startsWith("50% %1.csv"_L1));
        QCOMPARE(fixture.trigger(u"openAction"_s, {fixture.csvPath()}), QStringList{u"Open samples"_s});
        QVERIFY(fixture.window.windowTitle().startsWith("samples.csv"_L1));
        QCOMPARE(fixture.trigger(u"saveAction"_s, {}), QStringList{u"Save samples"_s});
        QVERIFY2(fixture.window.windowTitle().startsWith("samples.csv"_L1), "canceled");
    }

    void trailIsExported_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<QString>("record");

        QTest::newRow("JSON") << u"trail.json"_s << QByteArray("[\n{") << u"JSON"_s;
        QTest::newRow("CSV") << u"trail.CSV"_s
                             << QByteArray("\xEF\xBB\xBFId,Parent,Time,User,Text,Error\r\n1,,") << u"CSV"_s;
    }
    void trailIsExported()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, start);
        QFETCH(const QString, record);
        ScriptedFixture fixture;
        QVERIFY(!fixture.editor->renameSamples({fixture.idAt(0), fixture.idAt(1)}, u"* #"_s).hasError());
        const QString path = fixture.folder.filePath(name);
        QCOMPARE(fixture.trigger(u"exportAction"_s, {path}),
                 (QStringList{u"Export audit trail"_s, u"saveFile"_s}));
        const QByteArray written = readFile(path);
        QVERIFY2(written.startsWith(start), written.constData());
        QVERIFY2(written.contains("Exported audit trail"), "the export itself is in it");
        QVERIFY(fixture.trailTexts().constLast().contains(record));
    }

    void dataIsOpenedTogether()
    {
        ScriptedFixture fixture;
        const SampleTree tree;
        tree.make({u"one.mzml"_s, u"Run.d/AcqData/"_s});
        QSignalSpy reports(&fixture.window.dataImport(), &DataImport::reported);
        const QStringList asked =
            fixture.trigger(u"openDataAction"_s, {tree.path(u"one.mzml"_s), tree.path(u"Run.d"_s)});
        QCOMPARE(asked, QStringList{u"Open MS data"_s});
        QTRY_COMPARE(reports.size(), 1);
        QCOMPARE(fixture.editor->table().rowCount(), 5);
        QCOMPARE(fixture.trigger(u"findDataAction"_s, {}), QStringList{u"Find MS data"_s});
        QVERIFY2(!fixture.window.dataImport().isRunning(), "no folder, no search");
    }

    void dataIsListedByTheFinder()
    {
        ScriptedFixture fixture;
        const SampleTree tree;
        tree.make({u"one.mzml"_s, u"sub/Run.d/AcqData/"_s});
        const QString csv = fixture.folder.filePath(u"paths.csv"_s);
        const DialogDriver driver({[&](QDialog *dialog) {
            QVERIFY(qobject_cast<FileCrawlerDialog *>(dialog));
            dialog->findChild<QLineEdit *>(u"crawlPathLine"_s)->setText(tree.path());
            dialog->findChild<QCheckBox *>(u"enableRecursiveSearch"_s)->setChecked(true);
            dialog->findChild<QDialogButtonBox *>(u"buttonBox"_s)->button(QDialogButtonBox::Ok)->click();
        }});
        QCOMPARE(fixture.trigger(u"listDataAction"_s, {csv}),
                 (QStringList{u"Save CSV file"_s, u"saveFile"_s}));
        for (const auto &path : {u"one.mzml"_s, u"sub/Run.d"_s})
            QVERIFY(readFile(csv).contains(tree.path(path).toUtf8()));
    }

    void reportsAreSaved()
    {
        ScriptedFixture fixture;
        const std::vector<RowNode> rows{*fixture.editor->table().row(0)};
        ReportDialog dialog(rows, ReportContext(u"jdoe"_s, {}, rows));
        const QString path = fixture.folder.filePath(u"report.html"_s);
        const QString saved = fixture.folder.filePath(u"mine.ozt"_s);
        QVERIFY(!ozm::TemplateFile::write(saved, u"<p>Mine: [Name]</p>"_s).hasError());
        fixture.answers.paths = {saved};
        dialog.findChild<QPushButton *>(u"otherTemplate"_s)->click();
        fixture.answers.paths = {path};
        QCOMPARE(dialog.findChild<QComboBox *>(u"template"_s)->currentText(), u"mine"_s);
        dialog.findChild<QPushButton *>(u"save"_s)->click();
        QCOMPARE(fixture.answers.questions,
                 (QStringList{u"Choose template"_s, u"Save report"_s, u"saveFile"_s}));
        QVERIFY(readFile(path).contains("Mine: T1"));
    }

    void savedFilesCanBeOpened()
    {
        ScriptedFixture fixture;
        as::setValue(kFileExplorerAllowed, true);
        const DialogDriver driver({[&](QDialog *dialog) {
            QVERIFY(qobject_cast<openfilefolderdialog *>(dialog));
            dialog->findChild<QPushButton *>(u"closeButton"_s)->click();
        }});
        (void)fixture.trigger(u"saveAction"_s, {fixture.folder.filePath(u"x.csv"_s)});
        QCOMPARE(driver.opened(), 1);
    }

    void dialogsAreSwitched()
    {
        const FileStateGuard guard;
        for (const bool on : {true, false}) {
            StyleDialog settings;
            settings.findChild<QRadioButton *>(on ? u"toolkitFileDialogs"_s : u"systemFileDialogs"_s)
                ->click();
            QCOMPARE(qgetenv("OZM_USE_QT_FILE_DIALOG"), on ? "1" : "0");
            // As the next run finds it.
            qunsetenv("OZM_USE_QT_FILE_DIALOG");
            files::restoreDialogChoice();
            QCOMPARE(files::usesToolkitDialogs(), on);
        }
    }
};

QTEST_MAIN(TestFileQuestions)
#include "tst_filequestions.moc"
