#include "../core_ms/SampleTree.h"
#include "FileDialogDriver.h"
#include "support/Files.h"
#include "support/StrictTest.h"
#include "support/WithoutRights.h"

#include <ozm_common_core/AutomationKeys.h>
#include <ozm_common_core/CustomFieldsStringConstants.h>
#include <ozm_widgets/DefaultFileAccessor.h>
#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/FileCrawlerDialog.h>
#include <ozm_widgets/openfilefolderdialog.h>

#include <QCheckBox>
#include <QDesktopServices>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>

using namespace Qt::StringLiterals;
using namespace ozm;
using namespace ozm::test;

namespace {

/// The finder's widgets, and a user's steps in them.
class Finder
{
public:
    explicit Finder(QDialog *dialog)
        : m_dialog(dialog)
    {}

    template <typename Widget>
    [[nodiscard]] Widget *find(const QString &name) const
    {
        return m_dialog->findChild<Widget *>(name);
    }
    void search(const QString &folder, bool isRecursive) const
    {
        find<QLineEdit>(u"crawlPathLine"_s)->setText(folder);
        find<QCheckBox>(u"enableRecursiveSearch"_s)->setChecked(isRecursive);
        save()->click();
    }
    [[nodiscard]] QPushButton *save() const
    {
        return find<QDialogButtonBox>(u"buttonBox"_s)->button(QDialogButtonBox::Ok);
    }
    [[nodiscard]] QString status() const { return find<QLabel>(u"searchStatus"_s)->text(); }

private:
    QDialog *m_dialog;
};

DialogDriver::Work readingBox(QString *title, QString *text)
{
    return [=](QDialog *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        QVERIFY(box);
        *title = box->windowTitle();
        *text = box->text();
        QVERIFY(box->button(QMessageBox::Ok));
        box->button(QMessageBox::Ok)->click();
    };
}

/// Catches what would be opened outside the program.
class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    UrlCatcher() { QDesktopServices::setUrlHandler(u"file"_s, this, "take"); }
    ~UrlCatcher() override { QDesktopServices::unsetUrlHandler(u"file"_s); }

    QStringList urls;

public Q_SLOTS:
    void take(const QUrl &url) { urls.append(url.toString()); }
};

} // namespace

class TestFileCrawler : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { as::clear(); }
    void formIsAsAgreed()
    {
        const DialogDriver driver({[](QDialog *dialog) {
            const Finder finder(dialog);
            QCOMPARE(dialog->objectName(), u"FileCrawlerDialog"_s);
            QCOMPARE(dialog->windowTitle(), u"MS data path finder"_s);
            QCOMPARE(finder.find<QCheckBox>(u"enableRecursiveSearch"_s)->text(),
                     u"Enable recursive search"_s);
            QCOMPARE(finder.find<QLabel>(u"label"_s)->text(), u"Path:"_s);
            QCOMPARE(finder.find<QLineEdit>(u"crawlPathLine"_s)->placeholderText(),
                     u"Folder path to start searching..."_s);
            QCOMPARE(finder.find<QPushButton>(u"crawlPathButton"_s)->text(), u"..."_s);
            QCOMPARE(finder.save()->text(), u"Save..."_s);
            QVERIFY(finder.find<QLayout>(u"verticalLayout"_s) && finder.find<QLayout>(u"gridLayout"_s));
            dialog->reject();
        }});
        QCOMPARE(FileCrawlerDialog::generateMSDataPaths(nullptr), QList<QString>());
        QCOMPARE(driver.opened(), 1);
    }

    void findsData_data()
    {
        QTest::addColumn<bool>("isRecursive");
        QTest::addColumn<QStringList>("found");

        QTest::newRow("folder") << false << QStringList{u"a.mzml"_s, u"Run.d"_s};
        QTest::newRow("and below") << true << QStringList{u"a.mzml"_s, u"Run.d"_s, u"sub/b.mzml"_s};
    }
    void findsData()
    {
        QFETCH(const bool, isRecursive);
        const SampleTree tree;
        tree.make({u"a.mzml"_s, u"Run.d/AcqData/"_s, u"sub/b.mzml"_s, u"notes.txt"_s});
        const DialogDriver driver(
            {[&](QDialog *dialog) { Finder(dialog).search(tree.path(), isRecursive); }});
        QStringList found;
        for (const QString &path : FileCrawlerDialog::generateMSDataPaths(nullptr))
            found.append(QDir(tree.path()).relativeFilePath(path));
        QTEST(found, "found");
    }

    void refusesFolders_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("text");

        QTest::newRow("missing") << u"missing"_s << u"Search path does not exist"_s;
        QTest::newRow("file") << u"notes.txt"_s << u"Search path does not exist"_s;
        QTest::newRow("without data") << u"100% %1"_s << u"The folder \"%1\" does not contain any MS data."_s;
    }
    void refusesFolders()
    {
        QFETCH(const QString, folder);
        QFETCH(const QString, text);
        const SampleTree tree;
        tree.make({u"notes.txt"_s, u"100% %1/notes.txt"_s});
        QString title;
        QString shown;
        const DialogDriver driver({[&](QDialog *dialog) {
                                       Finder(dialog).search(tree.path(folder), true);
                                       QVERIFY2(dialog->isVisible(), "it closed");
                                       dialog->reject();
                                   },
                                   readingBox(&title, &shown)});
        QVERIFY(FileCrawlerDialog::generateMSDataPaths(nullptr).isEmpty());
        QCOMPARE(driver.opened(), 2);
        QCOMPARE(title, u"Error"_s);
        QCOMPARE(shown, text.contains("%1"_L1) ? text.arg(tree.path(folder)) : text);
    }

    void errorsNameTheirPlace()
    {
        class Exposed : public FileCrawlerDialog
        {
        public:
            using FileCrawlerDialog::retrieveMsReferences;
        };
        Exposed finder;
        const auto found = finder.retrieveMsReferences();
        QVERIFY2(!found, "no folder is given");
        QCOMPARE(found.error().errorCode(), ErrorCode::Failed);
        QCOMPARE(found.error().errorMessage(), u"Search path does not exist"_s);
        const QList<ErrorPlace> places = found.error().places();
        QCOMPARE(places.size(), 1);
        QVERIFY(places.constFirst().path.endsWith("/FileCrawlerDialog.cpp"_L1));
        QVERIFY(places.constFirst().function.contains("retrieveMsReferences"_L1));
    }

    void canBeCanceledInTheMiddle()
    {
        const SampleTree tree;
        // Enough that the search is not over before its first word of progress.
        for (int i = 0; i < 3000; ++i)
            tree.makeOne(u"sub %1/a.mzml"_s.arg(i));
        QString progress;
        const DialogDriver driver({[&](QDialog *dialog) {
            const Finder finder(dialog);
            auto *cancel = finder.find<QPushButton>(u"cancelSearchButton"_s);
            auto *bar = finder.find<QProgressBar>(u"searchProgress"_s);
            QVERIFY(!cancel->isVisible() && !bar->isVisible());
            auto *label = finder.find<QLabel>(u"searchStatus"_s);
            // Runs while search() waits for the answer, which shows that the dialog goes on working.
            QTimer poll;
            connect(&poll, &QTimer::timeout, dialog, [&] {
                if (!cancel->isVisible())
                    return;
                QVERIFY(bar->isVisible() && !finder.save()->isEnabled());
                progress = label->text();
                dialog->reject();
                poll.stop();
            });
            poll.start(0);
            finder.search(tree.path(), true);
            QVERIFY2(dialog->isVisible(), "canceling the search closed the dialog");
            QVERIFY(finder.status().startsWith("Canceled. Folders searched: "_L1));
            QVERIFY(!cancel->isVisible() && finder.save()->isEnabled());
            dialog->reject();
        }});
        QVERIFY(FileCrawlerDialog::generateMSDataPaths(nullptr).isEmpty());
        QVERIFY2(progress.startsWith("Folders searched: "_L1), qPrintable(progress));
    }

    void namesUnreadableFolders()
    {
        const SampleTree tree;
        tree.make({u"a.mzml"_s, u"locked/b.mzml"_s});
        setMode(tree.path(), 0755);
        setMode(tree.path(u"locked"_s), 0000);
        QString title;
        QString shown;
        QStringList found;
        {
            // The search's thread begins without them, too.
            const WithoutRights nobody;
            const DialogDriver driver({[&](QDialog *dialog) { Finder(dialog).search(tree.path(), true); },
                                       readingBox(&title, &shown)});
            found = FileCrawlerDialog::generateMSDataPaths(nullptr);
        }
        setMode(tree.path(u"locked"_s), 0755);
        QCOMPARE(found, QStringList{tree.path(u"a.mzml"_s)});
        QCOMPARE(title, u"Information"_s);
        QVERIFY2(shown.startsWith("These folders could not be searched:\n"_L1 + tree.path(u"locked"_s)),
                 qPrintable(shown));
    }

    void savesTheTemplate()
    {
        const SampleTree tree;
        tree.make({u"a,b \"c\".mzml"_s});
        const QString csv = tree.path(u"50% %1.csv"_s);
        as::setValue(AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY, csv);
        for (int time = 0; time < 2; ++time) {
            QString message;
            const DialogDriver driver(
                {[&](QDialog *dialog) { Finder(dialog).search(tree.path(), false); },
                 [&](QDialog *dialog) {
                     const auto *prompt = qobject_cast<openfilefolderdialog *>(dialog);
                     QVERIFY(prompt);
                     message = Finder(dialog).find<QPlainTextEdit>(u"plainTextEdit_message"_s)->toPlainText();
                     dialog->reject();
                 }});
            FileCrawlerDialog::generateMSDataPathsCsv(nullptr);
            QCOMPARE(driver.opened(), 2);
            QCOMPARE(message, u"\"%1\" successfully saved."_s.arg(csv));
            const QString path = tree.path(u"a,b \"\"c\"\".mzml"_s);
            const QString lines =
                u"ColumnName,%1,ExampleSampleName1,ExampleName2,ExampleMassName,ExampleMassName2\r\n"
                "Expectation,,,,Desired,Undesired\r\n"
                "ColumnType,,SampleName,SampleName,Mass,Mass\r\n"
                ",\"%2\",,,,\r\n"_s.arg(CustomFieldsStringConstants::COL_FILEPATH, path);
            QCOMPARE(QString::fromUtf8(readFile(csv).mid(3)), lines);
        }
    }

    void tellsWhenItCannotSave_data()
    {
        QTest::addColumn<QString>("destination");
        QTest::addColumn<QString>("text");
        QTest::newRow("a folder") << u"folder.csv"_s << u"Writing to csv file failed"_s;
        QTest::newRow("without a folder") << u"missing/x.csv"_s << u"CSV path does not exist"_s;
    }
    void tellsWhenItCannotSave()
    {
        QFETCH(const QString, destination);
        const SampleTree tree;
        tree.make({u"a.mzml"_s, u"folder.csv/"_s});
        as::setValue(AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY, tree.path(destination));
        QString title;
        QString text;
        const DialogDriver driver({[&](QDialog *dialog) {
                                       Finder(dialog).search(tree.path(), false);
                                       // Where the path can be mended, it stays.
                                       QCOMPARE(dialog->isVisible(), destination == "missing/x.csv"_L1);
                                       if (dialog->isVisible())
                                           dialog->reject();
                                   },
                                   readingBox(&title, &text)});
        FileCrawlerDialog::generateMSDataPathsCsv(nullptr);
        QCOMPARE(driver.opened(), 2);
        QCOMPARE(title, u"Error"_s);
        QTEST(text, "text");
    }

    void asksForTheFolder()
    {
        const SampleTree tree;
        tree.make({u"below/"_s});
        const DialogDriver driver(
            {[&](QDialog *dialog) {
                 const Finder finder(dialog);
                 finder.find<QLineEdit>(u"crawlPathLine"_s)->setText(tree.path());
                 finder.find<QPushButton>(u"crawlPathButton"_s)->click();
                 QCOMPARE(finder.find<QLineEdit>(u"crawlPathLine"_s)->text(), tree.path(u"below"_s));
                 finder.find<QPushButton>(u"crawlPathButton"_s)->click();
                 QCOMPARE(finder.find<QLineEdit>(u"crawlPathLine"_s)->text(), tree.path(u"below"_s));
                 dialog->reject();
             },
             [](QDialog *dialog) {
                 QCOMPARE(dialog->windowTitle(), u"Crawl path"_s);
                 const FileDialogDriver files(dialog);
                 files.type(u"below"_s);
                 files.pressEnter(files.name());
             },
             [](QDialog *dialog) { dialog->reject(); }});
        (void)FileCrawlerDialog::generateMSDataPaths(nullptr);
        QCOMPARE(driver.opened(), 3);
    }

    void endsWithItsParent_data()
    {
        QTest::addColumn<QString>("when");

        QTest::newRow("at rest") << u"rest"_s;
        QTest::newRow("during the search") << u"search"_s;
        QTest::newRow("under a message") << u"message"_s;
    }
    void endsWithItsParent()
    {
        QFETCH(const QString, when);
        const SampleTree tree;
        tree.make({u"empty/"_s});
        for (int i = 0; i < 500; ++i)
            tree.makeOne(u"full/sub %1/a.mzml"_s.arg(i));
        QPointer<QWidget> parent = new QWidget;
        const DialogDriver driver({[&](QDialog *dialog) {
                                       if (when == "rest"_L1) {
                                           delete parent;
                                           return;
                                       }
                                       if (when == "search"_L1)
                                           QTimer::singleShot(0, parent, [&] { delete parent; });
                                       Finder(dialog).search(
                                           tree.path(when == "search"_L1 ? u"full"_s : u"empty"_s), true);
                                   },
                                   [&](QDialog *) { delete parent; }});
        QVERIFY(FileCrawlerDialog::generateMSDataPaths(parent).isEmpty());
        QVERIFY(!parent);
        // Lets the search that was left alone take its leave.
        QTest::qWait(0);
    }

    void promptTexts_data()
    {
        QTest::addColumn<QString>("error");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("canOpenFile");

        const QString title = u"Open file or folder"_s;
        QTest::newRow("error") << u"Disk full"_s << u"50% %1.csv"_s << u"Saved"_s << u"Error"_s
                               << u"Disk full"_s << false;
        QTest::newRow("message") << QString() << u"missing"_s << u"<b>Saved</b>"_s << title
                                 << u"<b>Saved</b>"_s << true;
        QTest::newRow("saved") << QString() << u"50% %1.csv"_s << QString() << title
                               << u"File saved.  Would you like to open the file or folder?\n%1"_s << true;
        QTest::newRow("missing")
            << QString() << u"missing"_s << QString() << title
            << u"File not created. There appears to be an issue with the given file.\n%1\nYou "
               "may still open the given folder."_s
            << false;
    }
    void promptTexts()
    {
        QFETCH(const QString, error);
        QFETCH(const QString, file);
        QFETCH(const QString, message);
        QFETCH(const QString, text);
        QFETCH(const bool, canOpenFile);
        const SampleTree tree;
        tree.make({u"50% %1.csv"_s});
        const QString path = tree.path(file);
        for (const bool isEnabled : {true, false}) {
            openfilefolderdialog prompt(nullptr, error, path, message, isEnabled, isEnabled);
            QTEST(prompt.windowTitle(), "title");
            const Finder widgets(&prompt);
            QCOMPARE(widgets.find<QPlainTextEdit>(u"plainTextEdit_message"_s)->toPlainText(),
                     QString(text).replace("%1"_L1, path));
            QCOMPARE(widgets.find<QPushButton>(u"openFileButton"_s)->isEnabled(), isEnabled && canOpenFile);
            QCOMPARE(widgets.find<QPushButton>(u"openFolderButton"_s)->isEnabled(), isEnabled);
            QCOMPARE(prompt.size(), QSize(400, 152));
        }
    }

    void promptOpens_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("opened");

        QTest::newRow("file") << u"x y.csv"_s << u"openFileButton"_s << u"x y.csv"_s;
        QTest::newRow("folder of a file") << u"x y.csv"_s << u"openFolderButton"_s << u"."_s;
        QTest::newRow("folder itself") << u"sub"_s << u"openFolderButton"_s << u"sub"_s;
        QTest::newRow("missing file") << u"missing.csv"_s << u"openFileButton"_s << QString();
        QTest::newRow("missing folder") << u"missing/x.csv"_s << u"openFolderButton"_s << QString();
        QTest::newRow("no path") << QString() << u"openFolderButton"_s << QString();
        QTest::newRow("close") << u"x y.csv"_s << u"closeButton"_s << QString();
    }
    void promptOpens()
    {
        QFETCH(const QString, file);
        QFETCH(const QString, button);
        QFETCH(const QString, opened);
        const SampleTree tree;
        tree.make({u"x y.csv"_s, u"sub/"_s});
        const UrlCatcher catcher;
        const DialogDriver driver({[&](QDialog *dialog) {
            auto *pressed = Finder(dialog).find<QPushButton>(button);
            pressed->setEnabled(true);
            pressed->click();
        }});
        openfilefolderdialog prompt(nullptr, {}, file.isEmpty() ? file : tree.path(file), u"Saved"_s, true,
                                    true);
        QCOMPARE(prompt.exec(), int(QDialog::Accepted));
        QStringList expected;
        if (!opened.isEmpty())
            expected.append("file:///"_L1 + (opened == "."_L1 ? tree.path() : tree.path(opened)));
        QCOMPARE(catcher.urls, expected);
    }

    void promptStaysAwayWhereForbidden()
    {
        as::setValue(kFileExplorerAllowed, false);
        const QPointer<openfilefolderdialog> prompt =
            new openfilefolderdialog(nullptr, {}, QDir::tempPath(), {}, true, true);
        QCOMPARE(prompt->exec(), 0);
        QVERIFY(!prompt->isVisible());
        prompt->setAttribute(Qt::WA_DeleteOnClose);
        prompt->show();
        QTRY_VERIFY2(!prompt, "shown in another way, it closes by itself");
    }

    void promptEndsWithItsWindow()
    {
        const DialogDriver driver({[](QDialog *dialog) { dialog->close(); }});
        openfilefolderdialog prompt(nullptr, {}, QDir::tempPath(), {}, true, true);
        QCOMPARE(prompt.exec(), int(QDialog::Rejected));
        QVERIFY(!openfilefolderdialog::s_autoClose);
    }

private:
    const FileStateGuard m_guard;
};

QTEST_MAIN(TestFileCrawler)
#include "tst_filecrawler.moc"
