#include "../core_ms/SampleTree.h"
#include "FileDialogDriver.h"
#include "support/StrictTest.h"
#include "support/WithoutRights.h"

#include <ozm_widgets/FileDialog.h>

#include <QLabel>
#include <QMessageBox>

#ifdef Q_OS_LINUX
#include <sys/mount.h>
#endif
#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using namespace ozm::test;

namespace {

const QString kLocked =
    u"The file is locked and cannot be overwritten, which is likely opened by another application. Please "
    "close the other application or choose a different file name."_s;
const QString kNotCreatable =
    u"The file cannot be created at this location (no permission). Please choose a different file path."_s;

/// The text of the warning, which is closed, or "writable".
QString answerOf(const QString &path)
{
    QString text = u"writable"_s;
    const DialogDriver driver({[&](QDialog *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        QVERIFY(box);
        QCOMPARE(box->windowTitle(), u"Warning"_s);
        text = box->text();
        box->accept();
    }});
    const bool canBeWritten = FileDialog::checkIfFileCanBeOpenToWrite(nullptr, path);
    return canBeWritten == (driver.opened() == 0) ? text : u"the answer does not go with the warning"_s;
}

#ifdef Q_OS_UNIX

/// Every entry at and below @p folder with what a save must not touch: kind, rights, size, times, target.
QStringList snapshot(const QString &folder)
{
    QStringList entries;
    const auto add = [&entries](const QString &path) {
        struct stat entry = {};
        ::lstat(QFile::encodeName(path).constData(), &entry);
        entries.append(u"%1 mode %2 size %3 changed %4.%5 written %6.%7 %8"_s.arg(path)
                           .arg(entry.st_mode)
                           .arg(entry.st_size)
                           .arg(entry.st_ctim.tv_sec)
                           .arg(entry.st_ctim.tv_nsec)
                           .arg(entry.st_mtim.tv_sec)
                           .arg(entry.st_mtim.tv_nsec)
                           .arg(QFileInfo(path).symLinkTarget()));
    };
    add(folder);
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext())
        add(walk.next());
    entries.sort();
    return entries;
}

void makeSocket(const QString &path)
{
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path);
    ::bind(socket, reinterpret_cast<sockaddr *>(&address), sizeof address);
    ::close(socket);
}

#endif

#ifdef Q_OS_LINUX

/// A disk of its own on @p folder, with no room left for another file; only where the system lets a test do
/// that.
class FullDisk
{
public:
    explicit FullDisk(const QString &folder)
        : m_folder(QFile::encodeName(folder))
        , m_isMounted(::mount("tmpfs", m_folder.constData(), "tmpfs", 0, "size=16k,nr_inodes=2,mode=0777") ==
                      0)
    {
        QFile file(folder + u"/there.csv"_s);
        if (m_isMounted && file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
            while (file.write(QByteArray(4096, 'x')) > 0) {
            }
            setMode(file.fileName(), 0666);
        }
    }
    ~FullDisk()
    {
        if (m_isMounted)
            ::umount(m_folder.constData());
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

    [[nodiscard]] bool isMounted() const { return m_isMounted; }

private:
    const QByteArray m_folder;
    const bool m_isMounted;
};

#endif

/// A save dialog on a folder, and the steps of its user.
class Saving
{
public:
    Saving() { m_tree.make({u"there.csv"_s, u"folder/inside.csv"_s, u"folder.csv/"_s, u"link -> folder"_s}); }

    [[nodiscard]] QString path(const QString &name = {}) const { return m_tree.path(name); }

    /// The file that is saved to, relative to the folder, when @p work is done on the dialog.
    [[nodiscard]] QString ask(const QString &filter, const DialogDriver::Work &work) const
    {
        const DialogDriver driver({work, [](QDialog *box) { box->accept(); }});
        const QString saved = FileDialog::getSaveFileName(nullptr, u"Save table"_s, path(), filter);
        return saved.isEmpty() ? saved : QDir(path()).relativeFilePath(saved);
    }

private:
    const SampleTree m_tree;
};

} // namespace

class TestFileDialog : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void addsTheExtension_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("expected");

        const QString csv = u"CSV files (*.csv)"_s;
        QTest::newRow("none yet") << u"out"_s << csv << u"out.csv"_s;
        QTest::newRow("in capitals") << u"OUT.CSV"_s << csv << u"OUT.CSV"_s;
        QTest::newRow("another") << u"report.txt"_s << csv << u"report.txt.csv"_s;
        QTest::newRow("in a dotted folder") << u"/a.b/out"_s << csv << u"/a.b/out.csv"_s;
        QTest::newRow("a dot at the end") << u"out."_s << csv << u"out..csv"_s;
        QTest::newRow("percent") << u"50%1 %2"_s << csv << u"50%1 %2.csv"_s;
        QTest::newRow("all files") << u"out"_s << u"All (*)"_s << u"out"_s;
        QTest::newRow("no filter") << u"out"_s << QString() << u"out"_s;
        QTest::newRow("text after it") << u"out"_s << u"CSV (*.csv) files"_s << u"out"_s;
        QTest::newRow("first of two") << u"out"_s << u"Images (*.png *.jpg)"_s << u"out.png"_s;
        QTest::newRow("second of two") << u"out.jpg"_s << u"Images (*.png *.jpg)"_s << u"out.jpg.png"_s;
        QTest::newRow("semicolon") << u"out"_s << u"Images (*.png;*.jpg)"_s << u"out.png"_s;
        QTest::newRow("two parts first")
            << u"out.data.cut"_s << u"Data (*.data.cut *.csv)"_s << u"out.data.cut.data.cut"_s;
        QTest::newRow("two parts") << u"out"_s << u"Archives (*.tar.gz)"_s << u"out"_s;
    }
    void addsTheExtension()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, filter);
        QTEST(FileDialog::fileNameWithExtension(name, filter), "expected");
    }

    void saves_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("saved");

        const QString csv = u"CSV files (*.csv)"_s;
        QTest::newRow("bare name") << csv << u"out"_s << u"out.csv"_s;
        QTest::newRow("with its extension") << csv << u"out.csv"_s << u"out.csv"_s;
        QTest::newRow("with another") << csv << u"out.txt"_s << u"out.txt.csv"_s;
        QTest::newRow("without a filter for it") << u"All (*)"_s << u"out"_s << u"out"_s;
        QTest::newRow("existing") << csv << u"there.csv"_s << u"there.csv"_s;
        QTest::newRow("existing, bare") << csv << u"there"_s << u"there.csv"_s;
        QTest::newRow("in a folder below") << csv << u"folder/out"_s << u"folder/out.csv"_s;
        QTest::newRow("percent") << csv << u"50% %1"_s << u"50% %1.csv"_s;
    }
    void saves()
    {
        QFETCH(const QString, filter);
        QFETCH(const QString, typed);
        QFETCH(const QString, saved);
        const Saving saving;
        for (const bool byButton : {false, true}) {
            const QString answer = saving.ask(filter, [&](QDialog *dialog) {
                const FileDialogDriver driver(dialog);
                driver.type(typed);
                byButton ? driver.clickAccept() : driver.pressEnter(driver.name());
            });
            QCOMPARE(answer, saved);
            QCOMPARE(QFileInfo::exists(saving.path(saved)), saved == "there.csv"_L1);
        }
    }

    void staysOpen_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("folder");

        QTest::newRow("nothing") << u""_s << u""_s;
        QTest::newRow("a folder's name") << u"folder"_s << u"folder"_s;
        QTest::newRow("a folder's name with an extension") << u"folder.csv"_s << u"folder.csv"_s;
        QTest::newRow("a link to a folder") << u"link"_s << u"link"_s;
        QTest::newRow("this folder") << u"."_s << u""_s;
        QTest::newRow("the folder above") << u".."_s << u".."_s;
        QTest::newRow("a folder that is missing") << u"missing/out"_s << u""_s;
    }
    void staysOpen()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, folder);
        const Saving saving;
        const QString answer = saving.ask(u"CSV files (*.csv)"_s, [&](QDialog *dialog) {
            const FileDialogDriver driver(dialog);
            driver.type(typed);
            driver.pressEnter(driver.name());
            driver.waitForMessage();
            QVERIFY2(dialog->isVisible(), "it closed");
            QCOMPARE(driver.dialog()->directory().path(), QDir::cleanPath(saving.path(folder)));
            dialog->reject();
        });
        QCOMPARE(answer, QString());
    }

    void keepsTheNameForAFolder()
    {
        const Saving saving;
        const QString answer = saving.ask(u"CSV files (*.csv)"_s, [&](QDialog *dialog) {
            const FileDialogDriver driver(dialog);
            driver.type(u"out"_s);
            QVERIFY(driver.click(saving.path(u"folder"_s)));
            driver.clickAccept();
            QVERIFY(dialog->isVisible());
            driver.pressEnter(driver.name());
        });
        QCOMPARE(answer, u"folder/out.csv"_s);
    }

    void tellsWhatIsReplaced()
    {
        const Saving saving;
        (void)saving.ask(u"CSV files (*.csv)"_s, [&](QDialog *dialog) {
            const FileDialogDriver driver(dialog);
            const auto *notice = dialog->findChild<QLabel *>(u"replaceNotice"_s);
            QVERIFY(!notice->isVisible());
            driver.type(u"there"_s);
            QVERIFY(notice->isVisible());
            QCOMPARE(notice->text(), u"\"there.csv\" exists and will be replaced."_s);
            const int height = driver.list()->height();
            driver.type(u"folder"_s);
            QVERIFY(!notice->isVisible());
            QCOMPARE(driver.list()->height(), height);
            dialog->reject();
        });
    }

    void turnsTheButtonOff()
    {
        const Saving saving;
        const auto check = [](const QString &good, const QString &bad, const QString &text) {
            return [=](QDialog *dialog) {
                const FileDialogDriver driver(dialog);
                const auto *notice = dialog->findChild<QLabel *>(u"replaceNotice"_s);
                driver.type(bad);
                QVERIFY(!driver.acceptButton()->isEnabled());
                QCOMPARE(notice->text(), text);
                driver.type(good);
                QVERIFY(driver.acceptButton()->isEnabled() && !notice->isVisible());
                dialog->reject();
            };
        };
        const DialogDriver driver(
            {check(u"new.csv"_s, u"folder"_s, u"\"folder\" is a folder. Double-click it to look inside."_s),
             check(u"folder"_s, u"missing"_s, u"The folder \"missing\" does not exist here."_s)});
        (void)FileDialog::getOpenFileName(nullptr, {}, saving.path());
        (void)FileDialog::getExistingDirectory(nullptr, {}, saving.path());
    }

    void staysWhenItCannotSave()
    {
        const Saving saving;
        const QString target = saving.path(u"read only.csv"_s);
        QVERIFY(QFile(target).open(QIODevice::WriteOnly));
        setMode(target, 0444);
        setMode(saving.path(), 0755);
        const WithoutRights nobody;
        QString warning;
        const DialogDriver driver({[&](QDialog *dialog) {
                                       const FileDialogDriver files(dialog);
                                       files.type(u"read only"_s);
                                       files.pressEnter(files.name());
                                       files.waitForMessage();
                                       QVERIFY2(dialog->isVisible(), "it closed after the warning");
                                       dialog->reject();
                                   },
                                   [&](QDialog *box) {
                                       warning = qobject_cast<QMessageBox *>(box)->text();
                                       box->accept();
                                   }});
        QCOMPARE(FileDialog::getSaveFileName(nullptr, {}, saving.path(), u"CSV files (*.csv)"_s), QString());
        QCOMPARE(warning, kLocked);
        QCOMPARE(driver.opened(), 2);
    }

    void probeLeavesTheDiskAsItWas_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("answer");

        const QString writable = u"writable"_s;
        QTest::newRow("new file") << u"new.csv"_s << writable;
        QTest::newRow("new file with percent") << u"50%1 %%.csv"_s << writable;
        QTest::newRow("existing file") << u"file.csv"_s << writable;
        QTest::newRow("read-only file") << u"read only.csv"_s << kLocked;
        QTest::newRow("folder") << u"folder"_s << kLocked;
        QTest::newRow("in a folder without rights") << u"locked/new.csv"_s << kNotCreatable;
        QTest::newRow("in a missing folder") << u"missing/new.csv"_s << kNotCreatable;
        QTest::newRow("below a file") << u"file.csv/new.csv"_s << kNotCreatable;
        QTest::newRow("link to a file") << u"to file"_s << writable;
        QTest::newRow("link to a read-only file") << u"to read only"_s << kLocked;
        QTest::newRow("dangling link") << u"dangling"_s << writable;
        QTest::newRow("dangling link into a folder without rights") << u"dangling locked"_s << kNotCreatable;
        QTest::newRow("link to itself") << u"loop"_s << kNotCreatable;
        QTest::newRow("pipe") << u"pipe"_s << kLocked;
        QTest::newRow("link to a device") << u"to device"_s << writable;
        QTest::newRow("null character") << u"file.csv"_s + QChar(u'\0') + u".csv"_s << kNotCreatable;
        QTest::newRow("socket") << u"socket"_s << kLocked;
        QTest::newRow("name too long") << QString(300, u'n') << kNotCreatable;
        QTest::newRow("below a device") << u"/dev/full/new.csv"_s << kNotCreatable;
        QTest::newRow("nothing") << QString() << kNotCreatable;
#ifdef Q_OS_LINUX
        const QTemporaryDir trial;
        if (FullDisk(trial.path()).isMounted()) {
            QTest::newRow("full disk, new file") << u"disk/new.csv"_s << kNotCreatable;
            QTest::newRow("full disk, existing file") << u"disk/there.csv"_s << writable;
        }
#endif
    }
    void probeLeavesTheDiskAsItWas()
    {
#ifdef Q_OS_UNIX
        QFETCH(const QString, target);
        const SampleTree tree;
        tree.make({u"file.csv"_s, u"read only.csv"_s, u"folder/"_s, u"locked/"_s, u"to file -> file.csv"_s,
                   u"to read only -> read only.csv"_s, u"dangling -> made.csv"_s,
                   u"dangling locked -> locked/made.csv"_s, u"loop -> loop"_s, u"to device -> /dev/full"_s});
        ::mkfifo(QFile::encodeName(tree.path(u"pipe"_s)).constData(), 0666);
        makeSocket(tree.path(u"socket"_s));
        setMode(tree.path(), 0777);
        setMode(tree.path(u"file.csv"_s), 0666);
        setMode(tree.path(u"read only.csv"_s), 0444);
        setMode(tree.path(u"locked"_s), 0555);
#ifdef Q_OS_LINUX
        tree.makeOne(u"disk/"_s);
        std::optional<FullDisk> disk;
        if (target.startsWith("disk/"_L1))
            disk.emplace(tree.path(u"disk"_s));
#endif
        const QStringList before = snapshot(tree.path());
        QVERIFY(before.size() > 10);
        const WithoutRights nobody;
        const bool isRelative = !target.isEmpty() && !target.startsWith(u'/');
        QTEST(answerOf(isRelative ? tree.path(target) : target), "answer");
        QCOMPARE(snapshot(tree.path()), before);
#endif
    }

    void opensWhatDoesNotExist()
    {
        const Saving saving;
        const DialogDriver driver({[&](QDialog *dialog) {
            const FileDialogDriver files(dialog);
            QVERIFY(files.dialog()->testOption(QFileDialog::DontUseNativeDialog));
            files.type(u"missing.csv"_s);
            files.pressEnter(files.name());
        }});
        QCOMPARE(FileDialog::getOpenFileName(nullptr, {}, saving.path()), saving.path(u"missing.csv"_s));
    }

    void asksForFolders()
    {
        const Saving saving;
        const DialogDriver driver({[&](QDialog *dialog) {
            const FileDialogDriver files(dialog);
            QVERIFY2(files.dialog()->testOption(QFileDialog::DontUseNativeDialog),
                     "the options leave it out");
            files.type(u"folder"_s);
            files.pressEnter(files.name());
        }});
        QCOMPARE(FileDialog::getExistingDirectory(nullptr, {}, saving.path(), QFileDialog::ShowDirsOnly),
                 saving.path(u"folder"_s));
    }

    void endsWithItsParent()
    {
        // On the stack, dialog and warning would be destroyed twice.
        auto *parent = new QWidget;
        const Saving saving;
        const DialogDriver driver({[&](QDialog *dialog) {
                                       const FileDialogDriver files(dialog);
                                       files.type(u"folder/missing/out"_s);
                                       files.pressEnter(files.name());
                                       files.waitForMessage();
                                   },
                                   [&](QDialog *) { delete parent; }});
        QCOMPARE(FileDialog::getSaveFileName(parent, {}, saving.path(), u"CSV files (*.csv)"_s), QString());
        QCOMPARE(driver.opened(), 2);
    }

private:
    const FileStateGuard m_guard;
};

QTEST_MAIN(TestFileDialog)
#include "tst_filedialog.moc"
