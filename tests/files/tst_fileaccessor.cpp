#include "../core_ms/SampleTree.h"
#include "FileDialogDriver.h"
#include "support/Files.h"
#include "support/StrictTest.h"

#include <ozm_common_core/AutomationKeys.h>
#include <ozm_references/LocalResourceReference.h>
#include <ozm_widgets/DefaultFileAccessor.h>
#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/FileCrawlerDialog.h>
#include <ozm_widgets/FileDialog.h>
#include <ozm_widgets/OZMFileDialog.h>
#include <ozm_widgets/SpectrumFileDialog.h>

#include <QLoggingCategory>
#include <QMessageBox>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;
using namespace ozm;
using namespace ozm::test;

namespace {

using Location = IFileAccessor::DestinationFileLocation;

/// The four questions.
enum class Question
{
    OpenOne,
    OpenSeveral,
    Folder,
    Save
};

constexpr std::array kQuestions{std::pair{Question::OpenOne, "one file"},
                                std::pair{Question::OpenSeveral, "several files"},
                                std::pair{Question::Folder, "folder"}, std::pair{Question::Save, "save"}};

const FileExtensionsNameFilter kCsv(u"CSV files (*.csv)"_s);

FileExtensionsNameFilter msFilter()
{
    return FileExtensionsNameFilter().add(u"MS data"_s, *FileTypes::find(u"MS"_s));
}

/// Each test is run with the functions that wait and with the one that does not.
bool isWaiting = true;

QString askWithoutWaiting(Question question, const QString &dir, const FileExtensionsNameFilter &filter)
{
    using Kind = OZMFileDialog::Question::Kind;
    static const QHash<Question, Kind> kinds{{Question::OpenOne, Kind::OpenFile},
                                             {Question::OpenSeveral, Kind::OpenFiles},
                                             {Question::Folder, Kind::Folder},
                                             {Question::Save, Kind::SaveFile}};
    QObject context;
    std::optional<QStringList> answer;
    OZMFileDialog::ask(nullptr, {kinds[question], u"Ask"_s, dir, {}, filter, {}}, &context,
                       [&](const QStringList &paths) { answer = paths; });
    // Nothing is answered under the call.
    if (answer || !QTest::qWaitFor([&] { return answer.has_value(); }))
        return u"not answered later"_s;
    return answer->join(u'|');
}

QString ask(Question question, const QString &dir, const FileExtensionsNameFilter &filter = kCsv)
{
    if (!isWaiting)
        return askWithoutWaiting(question, dir, filter);
    const DefaultFileAccessor accessor;
    switch (question) {
    case Question::OpenOne:
        return accessor.getOpenFileName(nullptr, u"Open"_s, dir, filter, nullptr, {}, {});
    case Question::OpenSeveral:
        return accessor.getOpenFileNames(nullptr, u"Open"_s, dir, filter, nullptr, {}, {}).join(u'|');
    case Question::Folder:
        return accessor.getExistingDirectory(nullptr, u"Choose"_s, dir, QFileDialog::ShowDirsOnly, {});
    case Question::Save:
        return accessor.getSaveFileName(nullptr, u"Save"_s, dir, filter).toString();
    }
    return {};
}

QString remembered()
{
    return FileSystemSettings::Instance().fileLocation({});
}

void remember(const QString &folder)
{
    FileSystemSettings::Instance().setFileLocation({}, folder);
}

/// The kind of dialog that @p question brings up, which is canceled.
QString dialogFor(Question question, const FileExtensionsNameFilter &filter)
{
    QString kind;
    const DialogDriver driver({[&](QDialog *dialog) {
        kind = QString::fromLatin1(dialog->metaObject()->className());
        dialog->reject();
    }});
    (void)ask(question, {}, filter);
    return kind;
}

/// Answers the next dialog with @p name, typed.
DialogDriver::Work typing(const QString &name)
{
    return [name](QDialog *dialog) {
        const FileDialogDriver files(dialog);
        files.type(name);
        files.pressEnter(files.name());
    };
}

DialogDriver::Work canceling()
{
    return [](QDialog *dialog) { dialog->reject(); };
}

/// Fails the test when the error was not caught at @p path and @p line.
bool wasCaughtAt(const Error &error, const QString &path, int line)
{
    const QList<ErrorPlace> places = error.places();
    return !places.isEmpty() && places.constFirst().path == path && places.constFirst().line == line &&
           !places.constFirst().function.isEmpty();
}

} // namespace

class TestFileAccessor : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<bool>("waits");

        QTest::newRow("waiting") << true;
        QTest::newRow("not waiting") << false;
    }

    void init()
    {
        QFETCH_GLOBAL(const bool, waits);
        isWaiting = waits;
    }

    void cleanup()
    {
        as::clear();
        remember({});
        qunsetenv("OZM_USE_QT_SAVE_DIALOG");
        qunsetenv("OZM_USE_QT_FILE_DIALOG");
    }

    void switchesDialogs_data()
    {
        QTest::addColumn<QByteArray>("save");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("isToolkit");

        QTest::newRow("unset") << QByteArray() << QByteArray() << false;
        QTest::newRow("save 2") << QByteArray("2") << QByteArray("0") << true;
        QTest::newRow("file 1 alone") << QByteArray() << QByteArray("1") << true;
        QTest::newRow("save -1, file 1") << QByteArray("-1") << QByteArray("1") << true;
        QTest::newRow("both -1 are off") << QByteArray("-1") << QByteArray("-1") << false;
        QTest::newRow("no numbers") << QByteArray("0x1") << QByteArray("1.5") << false;
    }
    void switchesDialogs()
    {
        QFETCH(const QByteArray, save);
        QFETCH(const QByteArray, file);
        QFETCH(const bool, isToolkit);
        if (!save.isNull())
            qputenv("OZM_USE_QT_SAVE_DIALOG", save);
        if (!file.isNull())
            qputenv("OZM_USE_QT_FILE_DIALOG", file);
        for (const auto &[question, name] : kQuestions) {
            // Several files are always the system's to ask for, which here is a plain dialog of the toolkit.
            const bool isSwitched = isToolkit && question != Question::OpenSeveral;
            const QString kind = isSwitched ? u"FileDialog"_s : u"QFileDialog"_s;
            QVERIFY2(dialogFor(question, kCsv) == kind, name);
        }
        QCOMPARE(dialogFor(Question::OpenOne, msFilter()), u"SpectrumFileDialog"_s);
        QCOMPARE(dialogFor(Question::OpenSeveral, msFilter()), u"SpectrumFileDialog"_s);
        // A filter that comes as text is known again.
        QCOMPARE(dialogFor(Question::OpenOne, FileExtensionsNameFilter(msFilter().toFilterString())),
                 u"SpectrumFileDialog"_s);
    }

    void startsInAFolder_data()
    {
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("dir");
        QTest::addColumn<QString>("whenOpening");
        QTest::addColumn<QString>("whenSaving");

        m_tree.make({u"given/there.csv"_s, u"last/"_s});
        const auto row = [this](const char *name, const QString &dir, const QString &whenOpening,
                                const QString &whenSaving) {
            QTest::newRow(name) << m_tree.path(u"last"_s) << (dir.isEmpty() ? dir : m_tree.path(dir))
                                << m_tree.path(whenOpening) << m_tree.path(whenSaving);
        };
        row("existing folder", u"given"_s, u"given"_s, u"given"_s);
        row("existing file", u"given/there.csv"_s, u"given"_s, u"given"_s);
        row("none", u""_s, u"last"_s, u"last"_s);
        row("missing file in a folder", u"given/new.csv"_s, u"last"_s, u"given"_s);
        row("in a missing folder", u"missing/new.csv"_s, u"last"_s, u"last"_s);
        QTest::newRow("above a folder that is gone")
            << m_tree.path(u"gone/with it"_s) << QString() << m_tree.path() << m_tree.path();
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        if (QFileInfo(documents).isDir())
            QTest::newRow("documents") << QString() << QString() << documents << QDir::currentPath();
    }
    void startsInAFolder()
    {
        QFETCH(const QString, last);
        QFETCH(const QString, dir);
        QFETCH(const QString, whenOpening);
        QFETCH(const QString, whenSaving);
        for (const auto &[question, name] : kQuestions) {
            remember(last);
            QString start;
            const DialogDriver driver({[&](QDialog *dialog) {
                start = qobject_cast<QFileDialog *>(dialog)->directory().path();
                if (dir.isEmpty())
                    QCOMPARE(FileDialogDriver(dialog).name()->text(), QString());
                dialog->reject();
            }});
            (void)ask(question, dir);
            const bool opens = question == Question::OpenOne || question == Question::OpenSeveral;
            QVERIFY2(start == (opens ? whenOpening : whenSaving),
                     qPrintable(QLatin1StringView(name) + ": "_L1 + start));
        }
    }

    void remembersFolders_data()
    {
        QTest::addColumn<Question>("question");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("after");

        const QString before = u"before"_s;
        QTest::newRow("one file") << Question::OpenOne << u"a.csv"_s << u"in"_s;
        QTest::newRow("one file, canceled") << Question::OpenOne << QString() << QString();
        QTest::newRow("several files") << Question::OpenSeveral << u"\"a.csv\" \"b.csv\""_s << u"in"_s;
        QTest::newRow("several files, canceled") << Question::OpenSeveral << QString() << before;
        QTest::newRow("folder") << Question::Folder << u"below"_s << u"in"_s;
        QTest::newRow("folder, canceled") << Question::Folder << QString() << QString();
        QTest::newRow("save") << Question::Save << u"new"_s << u"in"_s;
        QTest::newRow("save, canceled") << Question::Save << QString() << QString();
    }
    void remembersFolders()
    {
        QFETCH(const Question, question);
        QFETCH(const QString, typed);
        QFETCH(const QString, after);
        const SampleTree tree;
        tree.make({u"before/"_s, u"in/a.csv"_s, u"in/b.csv"_s, u"in/below/"_s});
        for (const bool isToolkit : {false, true}) {
            qputenv("OZM_USE_QT_FILE_DIALOG", isToolkit ? "1" : "0");
            remember(tree.path(u"before"_s));
            const DialogDriver driver({typed.isEmpty() ? canceling() : typing(typed)});
            const QString answer = ask(question, tree.path(u"in"_s));
            QCOMPARE(answer.isEmpty(), typed.isEmpty());
            // Whoever draws the dialog, a bare name gets the extension of the filter.
            QVERIFY(question != Question::Save || answer.isEmpty() || answer.endsWith("new.csv"_L1));
            QCOMPARE(remembered(), after.isEmpty() ? after : tree.path(after));
        }
    }

    void remembersBesideARawFolder()
    {
        const SampleTree tree;
        tree.make({u"Run.d/AcqData/"_s});
        for (const Question question : {Question::OpenOne, Question::OpenSeveral}) {
            const DialogDriver driver({typing(u"Run.d"_s)});
            QCOMPARE(ask(question, tree.path(), msFilter()), tree.path(u"Run.d"_s));
            QCOMPARE(remembered(), tree.path());
            remember({});
        }
    }

    void automationAnswers_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("answer");

        QTest::newRow("path") << u"/data/x.csv"_s << u"/data/x.csv"_s;
        QTest::newRow("mixed slashes") << u"C:/x\\y.csv"_s << u"C:/x/y.csv"_s;
        QTest::newRow("several") << u"c:/a\\b\\c d.csv"_s << u"c:/a/b/c d.csv"_s;
        QTest::newRow("backslashes only") << u"C:\\x\\y.csv"_s << u"C:\\x\\y.csv"_s;
        QTest::newRow("too short") << u"C:/"_s << u"C:/"_s;
        QTest::newRow("a name with a backslash") << u"/data/x\\y.csv"_s << u"/data/x\\y.csv"_s;
        QTest::newRow("empty") << u""_s << u""_s;
    }
    void automationAnswers()
    {
        QFETCH(const QString, stored);
        QFETCH(const QString, answer);
        const DialogDriver driver(QList<DialogDriver::Work>{});
        remember(u"/before"_s);
        as::setValue(AUTOMATION_OZMFILEDIALOG_OPEN_FILE_NAME_KEY, stored);
        as::setValue(AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY, stored);
        QCOMPARE(OZMFileDialog::getOpenFileName(nullptr, {}, {}, kCsv), answer);
        QCOMPARE(OZMFileDialog::getOpenFileName(nullptr, {}, {}, msFilter()), answer);
        QCOMPARE(OZMFileDialog::getSaveFileName(nullptr, {}, {}, kCsv), answer);
        QCOMPARE(ask(Question::OpenOne, {}), answer);
        QCOMPARE(ask(Question::Save, {}), answer);
        QCOMPARE(driver.opened(), 0);
        QCOMPARE(remembered(), u"/before"_s);
    }

    void correctsPaths()
    {
        const SampleTree tree;
        tree.make({u"100% %1.d/analysis.baf"_s});
        const QString folder = tree.path(u"100% %1.d"_s);
        const DialogDriver driver(
            {typing(u"analysis.baf"_s), [&](QDialog *dialog) {
                 auto *box = qobject_cast<QMessageBox *>(dialog);
                 QCOMPARE(box->windowTitle(), u"File path correction"_s);
                 QCOMPARE(box->text(),
                          u"The selected path has been changed to its parent folder.\nCertain MS data "
                          "are read from the parent folder (e.g. 'folder.d') instead of the embedded "
                          "file (e.g. 'analysis.baf').\nCorrected path is:\n"_s +
                              folder);
                 QCOMPARE(box->standardButtons(), QMessageBox::Ok);
                 box->accept();
             }});
        QCOMPARE(ask(Question::OpenOne, folder, FileExtensionsNameFilter(u"All (*)"_s)), folder);
        QTRY_COMPARE(driver.opened(), 2);
        QCOMPARE(remembered(), tree.path());
    }

    void correctsSeveralPathsInTheLog()
    {
        const SampleTree tree;
        tree.make({u"Run.d/analysis.baf"_s, u"Run.d/analysis.tdf"_s});
        const QString folder = tree.path(u"Run.d"_s);
        QLoggingCategory::setFilterRules(u"ozm.widgets.debug=true"_s);
        const QRegularExpression line(u"The selected path has been changed.*Run\\.d"_s,
                                      QRegularExpression::DotMatchesEverythingOption);
        QTest::ignoreMessage(QtDebugMsg, line);
        QTest::ignoreMessage(QtDebugMsg, line);
        const DialogDriver driver({typing(u"\"analysis.baf\" \"analysis.tdf\""_s)});
        const QString answer = ask(Question::OpenSeveral, folder, FileExtensionsNameFilter(u"All (*)"_s));
        QLoggingCategory::setFilterRules({});
        QCOMPARE(answer, folder + u'|' + folder);
        QCOMPARE(driver.opened(), 1);
        QCOMPARE(remembered(), tree.path());
    }

    void isAnsweredOnceByParentOrContext()
    {
        int answers = 0;
        const auto answered = [&](const QStringList &paths) { answers += paths.isEmpty() ? 1 : 100; };
        const auto deleteParent = [](QDialog *dialog) { delete dialog->parent(); };
        const DialogDriver driver({deleteParent, deleteParent, canceling()});
        OZMFileDialog::ask(new QWidget, {}, this, answered);
        QTRY_COMPARE(answers, 1);
        qputenv("OZM_USE_QT_FILE_DIALOG", "1");
        OZMFileDialog::ask(new QWidget, {}, this, answered);
        QTRY_COMPARE(answers, 2);
        OZMFileDialog::ask(nullptr, {}, std::make_unique<QObject>().get(), answered);
        QTRY_COMPARE(driver.opened(), 3);
        QCoreApplication::processEvents();
        QCOMPARE(answers, 2);
    }

    void proposesAName()
    {
        const SampleTree tree;
        for (const bool isToolkit : {false, true}) {
            qputenv("OZM_USE_QT_SAVE_DIALOG", isToolkit ? "1" : "0");
            const DialogDriver driver({[&](QDialog *dialog) {
                const FileDialogDriver files(dialog);
                QCOMPARE(files.name()->text(), u"50% %1.csv"_s);
                files.pressEnter(files.name());
            }});
            const Location location = DefaultFileAccessor().getSaveFileName(
                nullptr, u"Save"_s, tree.path(), u"50% %1.csv"_s, kCsv, nullptr, {}, {});
            QCOMPARE(location.toString(), tree.path(u"50% %1.csv"_s));
            QCOMPARE(location.path, u"50% %1.csv"_s);
            QVERIFY(location.reference->isScheme(ResourceReference::Scheme::LocalFile));
        }
    }

    void locations_data()
    {
        QTest::addColumn<QString>("reference");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("text");

        const QString folder = QDir::tempPath();
        QTest::newRow("none") << QString() << u"x.csv"_s << QString();
        QTest::newRow("local file") << u"file:/no/such/file.csv"_s << u"ignored.csv"_s
                                    << u"/no/such/file.csv"_s;
        QTest::newRow("local folder") << "file:"_L1 + folder << u"sub/x.csv"_s << folder + "/sub/x.csv"_L1;
        QTest::newRow("local folder alone") << "file:"_L1 + folder << u""_s << folder;
        QTest::newRow("out of the folder") << "file:"_L1 + folder << u"../x.csv"_s << QString();
        QTest::newRow("elsewhere") << u"server:lims/7%25 %252"_s << u"%1.csv"_s << u"lims/7% %2: %1.csv"_s;
    }
    void locations()
    {
        QFETCH(const QString, reference);
        QFETCH(const QString, path);
        QFETCH(const QString, text);
        Location location(ResourceReference::fromString(reference).valueOr({}), path);
        QCOMPARE(location.toString(), text);
        const bool isCanceled = reference.isEmpty();
        location.setCanceled(!isCanceled);
        QCOMPARE(location.isCanceled(), isCanceled);
        QCOMPARE(location.isNull(), isCanceled);
    }

    void locationFromText()
    {
        const Location known(u"file:/data/x.csv"_s);
        QCOMPARE(known.toString(), u"/data/x.csv"_s);
        QVERIFY(known.path.isEmpty());
        QTest::ignoreMessage(QtInfoMsg,
                             QRegularExpression(u"ozm_widgets/src/IFileAccessor:30 .*referenceFromString"_s));
        QLoggingCategory::setFilterRules(u"ozm.errors.info=true"_s);
        const Location unknown(u"/data/x.csv"_s);
        QVERIFY(unknown.isCanceled());
        QVERIFY(unknown.path.isEmpty());
    }

    void savesBytes_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<int>("code");

        QTest::newRow("new") << u"new.bin"_s << 0;
        QTest::newRow("replaced") << u"old.bin"_s << 0;
        QTest::newRow("in a missing folder") << u"missing/new.bin"_s << 4;
        QTest::newRow("folder") << u"folder"_s << 4;
        QTest::newRow("pipe") << u"pipe"_s << 4;
    }
    void savesBytes()
    {
        QFETCH(const QString, target);
        QFETCH(const int, code);
        const SampleTree tree;
        tree.make({u"old.bin"_s, u"folder/"_s});
        ::mkfifo(QFile::encodeName(tree.path(u"pipe"_s)).constData(), 0666);
        // Opened, a device counts as saved.
        QVERIFY(!DefaultFileAccessor().saveFile(Location(u"file:/dev/full"_s), QByteArray("ab")).hasError());
        const Location location("file:"_L1 + tree.path(target));
        const Error error = DefaultFileAccessor().saveFile(location, QByteArray("a\0b", 3));
        QCOMPARE(static_cast<int>(error.errorCode()), code);
        if (code == 0) {
            QCOMPARE(readFile(tree.path(target)), QByteArray("a\0b", 3));
            return;
        }
        QCOMPARE(error.errorMessage(), u"Couldn't open save file."_s);
        QVERIFY(error.warnings().value(0).contains(tree.path(target)));
        QVERIFY(wasCaughtAt(error, u"ozm_widgets/src/IFileAccessor"_s, 97));
        QVERIFY(!QFileInfo::exists(tree.path(u"missing"_s)));
    }

    void savesCsv()
    {
        const SampleTree tree;
        tree.make({u"folder/"_s});
        const QList<QList<QString>> rows{{u"a;b"_s, u"it's"_s}, {u"1"_s, u"2"_s}};
        const DefaultFileAccessor accessor;
        const Location good("file:"_L1 + tree.path(u"x.csv"_s));
        QVERIFY(!accessor.saveCsvFile(good, rows, u"'"_s, u';').hasError());
        QCOMPARE(readFile(tree.path(u"x.csv"_s)), QByteArray("\xEF\xBB\xBF'a;b';'it''s'\r\n1;2\r\n"));

        const Error error = accessor.saveCsvFile(Location("file:"_L1 + tree.path(u"folder"_s)), rows);
        QCOMPARE(error.errorCode(), ErrorCode::Failed);
        QCOMPARE(error.errorMessage(), u"Writing to csv file failed"_s);
        QVERIFY(error.warnings().value(0).contains(tree.path(u"folder"_s)));
        QVERIFY(wasCaughtAt(error, u"ozm_widgets/src/IFileAccessor"_s, 114));
    }

    void accessorAnswers()
    {
        const SampleTree tree;
        tree.make({u"a.csv"_s, u"b.csv"_s});
        const DefaultFileAccessor accessor;
        const DialogDriver driver({typing(u"a.csv"_s), typing(u"\"a.csv\" \"b.csv\""_s), canceling(),
                                   canceling(), canceling(), typing(u"a.csv"_s)});
        const auto one = accessor.getOpenFileReference(nullptr, {}, tree.path(), kCsv);
        QCOMPARE(one->location(), tree.path(u"a.csv"_s));
        const auto two = accessor.getOpenFileReferences(nullptr, {}, tree.path(), kCsv, nullptr, {}, {});
        QCOMPARE(two.size(), 2);
        QCOMPARE(two.at(1)->location(), tree.path(u"b.csv"_s));
        QVERIFY(!accessor.getOpenFileReference(nullptr, {}, tree.path(), kCsv.toFilterString(), nullptr, {}));
        QVERIFY(accessor.getOpenFileReferences(nullptr, {}, tree.path(), kCsv, nullptr, {}, {}).isEmpty());
        QVERIFY(accessor.getSaveFileName(nullptr, {}, tree.path(), kCsv).isCanceled());
        QCOMPARE(accessor.getOpenFileName(nullptr, {}, tree.path(), kCsv.toFilterString(), nullptr, {}),
                 tree.path(u"a.csv"_s));

        QCOMPARE(accessor.getLocalPathToFileToBeOpened(one, nullptr).value(), tree.path(u"a.csv"_s));
        const Error empty = accessor.getLocalPathToFileToBeOpened({}, nullptr).error();
        QCOMPARE(empty.errorCode(), ErrorCode::BadParameter);
        QCOMPARE(empty.errorMessage(), u"Selected file reference is empty!"_s);

        const Error mine(ErrorCode::NotAllowed, u"mine"_s);
        QString given;
        const auto writer = [&](const QString &path) {
            given = path;
            return mine;
        };
        const Location location(one, {});
        QCOMPARE(accessor.saveFile(location, writer), mine);
        QCOMPARE(std::exchange(given, {}), tree.path(u"a.csv"_s));
        QCOMPARE(accessor.saveFiles(location, writer), mine);
        QCOMPARE(std::exchange(given, {}), tree.path(u"a.csv"_s));
        QCOMPARE(accessor.saveFile({}, writer).errorCode(), ErrorCode::BadParameter);
        QVERIFY2(given.isEmpty(), "nothing is written to a canceled location");
        QVERIFY_THROWS_EXCEPTION(std::bad_function_call,
                                 (void)accessor.saveFile(location, IFileAccessor::Writer()));
    }

    void creatorsAreReplaced()
    {
        class OwnAccessor : public DefaultFileAccessor
        {};
        class OwnCreator : public DefaultWidgetCreator
        {
        public:
            [[nodiscard]] std::unique_ptr<IFileAccessor>
            createFileAccessor(FileAccessorType type) const override
            {
                if (type == FileAccessorType::Default)
                    return std::make_unique<OwnAccessor>();
                return DefaultWidgetCreator::createFileAccessor(type);
            }
        };
        const auto isOwn = [](const auto &accessor) {
            return dynamic_cast<const OwnAccessor *>(accessor.get()) != nullptr;
        };
        QVERIFY2(!isOwn(DefaultWidgetCreator::fileAccessor()),
                 "before any is installed, a plain one answers");
        DefaultWidgetCreator::initialize();
        for (const auto type : {IFileAccessor::FileAccessorType::Default,
                                IFileAccessor::FileAccessorType::Report, IFileAccessor::FileAccessorType(99)})
            QVERIFY(dynamic_cast<DefaultFileAccessor *>(DefaultWidgetCreator::fileAccessor(type).get()));
        WidgetCreatorBase::setCustomCreator(std::make_unique<OwnCreator>());
        QVERIFY(isOwn(DefaultWidgetCreator::fileAccessor()));
        QVERIFY(isOwn(WidgetCreatorBase::customCreator()->createFileAccessorBase()));
        QWidget parent;
        QCOMPARE(DefaultWidgetCreator::fileCrawler(&parent)->parent(), &parent);
        WidgetCreatorBase::setCustomCreator({});
    }

private:
    const FileStateGuard m_guard;
    const SampleTree m_tree;
};

QTEST_MAIN(TestFileAccessor)
#include "tst_fileaccessor.moc"
