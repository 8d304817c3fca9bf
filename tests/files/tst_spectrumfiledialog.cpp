#include "../core_ms/SampleTree.h"
#include "FileDialogDriver.h"
#include "support/StrictTest.h"

#include <ozm_widgets/SpectrumFileDialog.h>

#include <QLabel>
#include <QLoggingCategory>
#include <QMimeData>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace ozm::test;

namespace {

/// The dialog on a folder with one of everything.
class Picks
{
public:
    Picks()
    {
        m_tree.make({u"one.mzml"_s, u"two.mzml"_s, u"notes.txt"_s, u"Run.d/AcqData/"_s, u"Run 2.d/AcqData/"_s,
                     u"Empty.d/"_s, u"plain/inner.mzml"_s, u"linkfile.mzml -> one.mzml"_s,
                     u"link.d -> Run.d"_s, u"linkplain -> plain"_s, u"dangling.mzml -> nowhere"_s});
    }

    [[nodiscard]] QString path(const QString &name = {}) const { return m_tree.path(name); }

    void add(const QString &entry) const { m_tree.makeOne(entry); }

    [[nodiscard]] QStringList ask(const DialogDriver::Work &work, const QString &start = {},
                                  QFileDialog::Options options = {}) const
    {
        DialogDriver driver({work, [](QDialog *box) { box->accept(); }});
        const QStringList paths = SpectrumFileDialog::getSpectrumFileList(
            nullptr, u"Open data"_s, start.isEmpty() ? path() : start, {}, nullptr, options);
        QStringList names;
        for (const QString &picked : paths)
            names.append(QDir(path()).relativeFilePath(picked));
        return names;
    }

private:
    const SampleTree m_tree;
};

/// A step of a user: what is done, and to which entry.
struct Step
{
    enum What
    {
        Click,
        CtrlClick,
        ShiftClick,
        DoubleClick,
        EnterInList,
        Type,
        EnterInName,
        Open,
        Filter,
        SelectAll,
        Drop
    };
    What what;
    QString entry = {};
};

void take(const Step &step, const FileDialogDriver &driver, const Picks &picks)
{
    const QString path = picks.path(step.entry);
    switch (step.what) {
    case Step::Click:
        QVERIFY(driver.click(path));
        break;
    case Step::CtrlClick:
        QVERIFY(driver.click(path, Qt::ControlModifier));
        break;
    case Step::ShiftClick:
        QVERIFY(driver.click(path, Qt::ShiftModifier));
        break;
    case Step::DoubleClick:
        QVERIFY(driver.doubleClick(path));
        break;
    case Step::EnterInList:
        driver.pressEnter(driver.list());
        break;
    case Step::Type:
        driver.type(step.entry);
        break;
    case Step::EnterInName:
        driver.pressEnter(driver.name());
        break;
    case Step::Open:
        driver.clickAccept();
        break;
    case Step::Filter:
        QVERIFY(driver.rectOf(picks.path(u"one.mzml"_s)).isValid());
        QTest::keyClicks(driver.dialog()->findChild<QLineEdit *>(u"entryFilter"_s), step.entry);
        break;
    case Step::SelectAll:
        driver.list()->setFocus();
        driver.list()->selectAll();
        break;
    case Step::Drop: {
        QMimeData dropped;
        QList<QUrl> urls;
        for (const QString &entry : step.entry.split(u'|'))
            urls.append(QUrl::fromLocalFile(picks.path(entry)));
        dropped.setUrls(urls);
        QDragEnterEvent enter({}, Qt::CopyAction, &dropped, Qt::LeftButton, {});
        QCoreApplication::sendEvent(driver.dialog(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({}, Qt::CopyAction, &dropped, Qt::LeftButton, {});
        QCoreApplication::sendEvent(driver.dialog(), &drop);
        break;
    }
    }
}

} // namespace

Q_DECLARE_METATYPE(QList<Step>)

/// Calls the button that opens by another name, as a translation does.
class OpenInAnotherLanguage : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isOpen = qstrcmp(context, "QFileDialog") == 0 && qstrcmp(source, "&Open") == 0;
        return isOpen ? u"&Abrir"_s : QString();
    }
};

class TestSpectrumFileDialog : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void picks_data()
    {
        QTest::addColumn<QList<Step>>("steps");
        QTest::addColumn<QStringList>("picked");

        struct Target
        {
            const char *what;
            QString entry;
        };
        const QList<Target> targets{{"file", u"one.mzml"_s},
                                    {"raw folder", u"Run.d"_s},
                                    {"raw folder with a blank", u"Run 2.d"_s},
                                    {"link to a file", u"linkfile.mzml"_s},
                                    {"link to a raw folder", u"link.d"_s}};
        using S = Step;
        for (const Target &target : targets) {
            const QString &entry = target.entry;
            const QStringList alone{entry};
            const QList<std::pair<const char *, QList<Step>>> routes{
                {"click, Open", {{S::Click, entry}, {S::Open}}},
                {"double click", {{S::DoubleClick, entry}}},
                {"click, Enter in the list", {{S::Click, entry}, {S::EnterInList}}},
                {"click, Enter in the name box", {{S::Click, entry}, {S::EnterInName}}},
                {"typed, Enter", {{S::Type, entry}, {S::EnterInName}}},
                {"typed, Open", {{S::Type, entry}, {S::Open}}},
                {"typed over a click, Enter",
                 {{S::Click, u"two.mzml"_s}, {S::Type, entry}, {S::EnterInName}}},
                {"typed, then double click", {{S::Type, u"two"_s}, {S::DoubleClick, entry}}}};
            for (const auto &[route, steps] : routes)
                QTest::addRow("%s: %s", target.what, route) << steps << alone;
            const QStringList both{u"two.mzml"_s, entry};
            QTest::addRow("%s: added with Ctrl, Open", target.what)
                << QList<Step>{{S::Click, u"two.mzml"_s}, {S::CtrlClick, entry}, {S::Open}} << both;
            QTest::addRow("%s: added with Ctrl, Enter in the list", target.what)
                << QList<Step>{{S::Click, u"two.mzml"_s}, {S::CtrlClick, entry}, {S::EnterInList}} << both;
            QTest::addRow("%s: added with Ctrl, Enter in the name box", target.what)
                << QList<Step>{{S::Click, u"two.mzml"_s}, {S::CtrlClick, entry}, {S::EnterInName}} << both;
            QTest::addRow("%s: taken out again with Ctrl", target.what)
                << QList<Step>{{S::Click, u"two.mzml"_s},
                               {S::CtrlClick, entry},
                               {S::CtrlClick, entry},
                               {S::Open}}
                << QStringList{u"two.mzml"_s};
        }
        // The list is sorted: Empty.d, link.d, linkplain, plain, Run 2.d, Run.d, linkfile.mzml and the other
        // files.
        QTest::newRow("range over raw folders and files")
            << QList<Step>{{S::Click, u"Run 2.d"_s}, {S::ShiftClick, u"linkfile.mzml"_s}, {S::Open}}
            << QStringList{u"Run 2.d"_s, u"Run.d"_s, u"linkfile.mzml"_s};
        QTest::newRow("range with an ordinary folder, which holds no data")
            << QList<Step>{{S::Click, u"plain"_s}, {S::ShiftClick, u"Run 2.d"_s}, {S::Open}}
            << QStringList{u"Run 2.d"_s};
        QTest::newRow("a raw folder without data is chosen, and dropped")
            << QList<Step>{{S::Click, u"Empty.d"_s}, {S::Open}} << QStringList();
        QTest::newRow("a file beside a raw folder without data")
            << QList<Step>{{S::Click, u"one.mzml"_s}, {S::CtrlClick, u"Empty.d"_s}, {S::Open}}
            << QStringList{u"one.mzml"_s};
        QTest::newRow("a file that is no data is a file")
            << QList<Step>{{S::Click, u"notes.txt"_s}, {S::Open}} << QStringList{u"notes.txt"_s};
        QTest::newRow("typed with a slash at its end")
            << QList<Step>{{S::Type, u"Run.d/"_s}, {S::EnterInName}} << QStringList{u"Run.d"_s};
        QTest::newRow("typed, two in quotes")
            << QList<Step>{{S::Type, u"\"one.mzml\" \"Run.d\""_s}, {S::EnterInName}}
            << QStringList{u"one.mzml"_s, u"Run.d"_s};
        for (const auto &[what, folder] : {std::pair{"ordinary folder", u"plain"_s},
                                           std::pair{"link to an ordinary folder", u"linkplain"_s}}) {
            const QStringList inner{folder + u"/inner.mzml"_s};
            const Step openInner{S::DoubleClick, folder + u"/inner.mzml"_s};
            QTest::addRow("%s: click, Open, inside", what)
                << QList<Step>{{S::Click, folder}, {S::Open}, openInner} << inner;
            QTest::addRow("%s: double click, inside", what)
                << QList<Step>{{S::DoubleClick, folder}, openInner} << inner;
            QTest::addRow("%s: Enter in the list, inside", what)
                << QList<Step>{{S::Click, folder}, {S::EnterInList}, openInner} << inner;
            QTest::addRow("%s: typed, Enter, inside", what)
                << QList<Step>{{S::Type, folder}, {S::EnterInName}, openInner} << inner;
            QTest::addRow("%s: file first, then entered", what)
                << QList<Step>{{S::Click, u"one.mzml"_s}, {S::DoubleClick, folder}, openInner} << inner;
        }
        QTest::newRow("filtered, all that is left")
            << QList<Step>{{S::Filter, u"TWO"_s}, {S::SelectAll}, {S::Open}} << QStringList{u"two.mzml"_s};
        QTest::newRow("dropped: a file and a raw folder")
            << QList<Step>{{S::Drop, u"one.mzml|Run.d"_s}, {S::Open}}
            << QStringList{u"one.mzml"_s, u"Run.d"_s};
        QTest::newRow("dropped: an ordinary folder, then a file from another")
            << QList<Step>{{S::Drop, u"plain"_s}, {S::Drop, u"two.mzml"_s}, {S::Open}}
            << QStringList{u"two.mzml"_s};
        QTest::newRow("dropped: files of two folders")
            << QList<Step>{{S::Drop, u"one.mzml|plain/inner.mzml"_s}, {S::Open}}
            << QStringList{u"one.mzml"_s, u"plain/inner.mzml"_s};
        QTest::newRow("up and in again") << QList<Step>{{S::DoubleClick, u"plain"_s},
                                                        {S::Type, u".."_s},
                                                        {S::EnterInName},
                                                        {S::DoubleClick, u"Run.d"_s}}
                                         << QStringList{u"Run.d"_s};
    }
    void picks()
    {
        QFETCH(const QList<Step>, steps);
        const Picks picks;
        QStringList picked = picks.ask([&](QDialog *dialog) {
            const FileDialogDriver driver(dialog);
            const QPointer<QDialog> guard(dialog);
            for (const Step &step : steps) {
                QVERIFY2(guard && guard->isVisible(), "it closed too early");
                take(step, driver, picks);
            }
        });
        QTEST(picked, "picked");
    }

    void staysOpen_data()
    {
        QTest::addColumn<QList<Step>>("steps");
        QTest::addColumn<QString>("folder");

        using S = Step;
        QTest::newRow("nothing picked") << QList<Step>{{S::Open}} << u""_s;
        QTest::newRow("empty name, Enter") << QList<Step>{{S::Type, u""_s}, {S::EnterInName}} << u""_s;
        QTest::newRow("missing, typed, Enter")
            << QList<Step>{{S::Type, u"missing.mzml"_s}, {S::EnterInName}} << u""_s;
        QTest::newRow("missing, typed, Open")
            << QList<Step>{{S::Type, u"missing.mzml"_s}, {S::Open}} << u""_s;
        QTest::newRow("dangling link, typed")
            << QList<Step>{{S::Type, u"dangling.mzml"_s}, {S::EnterInName}} << u""_s;
        QTest::newRow("two folders without data")
            << QList<Step>{{S::Click, u"Empty.d"_s}, {S::CtrlClick, u"plain"_s}, {S::Open}} << u""_s;
        QTest::newRow("two folders without data, Enter")
            << QList<Step>{{S::Click, u"Empty.d"_s}, {S::CtrlClick, u"plain"_s}, {S::EnterInList}} << u""_s;
        QTest::newRow("ordinary folder and Open again")
            << QList<Step>{{S::Click, u"plain"_s}, {S::Open}, {S::Open}} << u"plain"_s;
    }
    void staysOpen()
    {
        QFETCH(const QList<Step>, steps);
        QFETCH(const QString, folder);
        const Picks picks;
        const QStringList picked = picks.ask([&](QDialog *dialog) {
            const FileDialogDriver driver(dialog);
            for (const Step &step : steps)
                take(step, driver, picks);
            QApplication::processEvents();
            QVERIFY2(dialog->isVisible(), "it closed");
            QCOMPARE(driver.dialog()->directory().path(), QDir::cleanPath(picks.path(folder)));
            dialog->reject();
        });
        QCOMPARE(picked, QStringList());
    }

    void droppedPicksAreLogged()
    {
        QLoggingCategory::setFilterRules(u"ozm.widgets.debug=true"_s);
        const Picks picks;
        const QRegularExpression dropped(u"Dropped.*Empty\\.d"_s);
        QTest::ignoreMessage(QtDebugMsg, "Got here with 2 selections.");
        QTest::ignoreMessage(QtDebugMsg, qPrintable(picks.path(u"one.mzml"_s)));
        QTest::ignoreMessage(QtDebugMsg, qPrintable(picks.path(u"Empty.d"_s)));
        QTest::ignoreMessage(QtDebugMsg, dropped);
        const QStringList picked = picks.ask([&](QDialog *dialog) {
            const FileDialogDriver driver(dialog);
            QVERIFY(driver.click(picks.path(u"one.mzml"_s)));
            QVERIFY(driver.click(picks.path(u"Empty.d"_s), Qt::ControlModifier));
            driver.clickAccept();
        });
        QLoggingCategory::setFilterRules({});
        QCOMPARE(picked, QStringList{u"one.mzml"_s});
    }

    void startsBesideARawFolder()
    {
        const Picks picks;
        const QStringList picked = picks.ask(
            [&](QDialog *dialog) {
                const FileDialogDriver driver(dialog);
                QCOMPARE(dialog->windowTitle(), u"Open data"_s);
                QVERIFY(driver.doubleClick(picks.path(u"Run.d"_s)));
            },
            picks.path(u"Run.d"_s));
        QCOMPARE(picked, QStringList{u"Run.d"_s});
    }

    void pathsAreSelectedAndLeft()
    {
        const Picks picks;
        const auto answer = picks.ask(
            [&](QDialog *shown) {
                auto *dialog = qobject_cast<QFileDialog *>(shown);
                QCOMPARE(dialog->directory().absolutePath(), picks.path());
                const FileDialogDriver files(dialog);
                QVERIFY(files.click(picks.path(u"one.mzml"_s)));
                const auto call = [dialog](const char *slot, const QString &path) {
                    return QMetaObject::invokeMethod(dialog, slot, Q_ARG(QString, path));
                };
                QVERIFY(call("currentChanged_custom", picks.path(u"Run.d"_s)));
                QCOMPARE(dialog->selectedFiles(), QStringList{picks.path(u"Run.d"_s)});
                QCOMPARE(files.name()->text(), u"Run.d"_s);
                // The way up from inside a raw folder leads past it.
                dialog->setDirectory(picks.path(u"Run.d/AcqData"_s));
                QVERIFY(call("directoryEntered_custom", picks.path(u"Run.d/AcqData"_s)));
                dialog->setDirectory(picks.path(u"Run.d"_s));
                QVERIFY(call("directoryEntered_custom", picks.path(u"Run.d"_s)));
                QVERIFY(dialog->isVisible());
                QCOMPARE(dialog->directory().absolutePath(), picks.path());
                dialog->reject();
            },
            picks.path(u"one.mzml"_s));
        QCOMPARE(answer, QStringList());
    }

    void staysWithTheToolkit()
    {
        const Picks picks;
        (void)picks.ask(
            [&](QDialog *dialog) {
                auto *files = qobject_cast<QFileDialog *>(dialog);
                QVERIFY(files->testOption(QFileDialog::DontUseNativeDialog));
                QVERIFY(files->testOption(QFileDialog::ReadOnly));
                dialog->reject();
            },
            {}, QFileDialog::ReadOnly);
        SpectrumFileDialog dialog;
        static_cast<QFileDialog &>(dialog).setOptions({});
        dialog.show();
        QVERIFY2(dialog.testOption(QFileDialog::DontUseNativeDialog), "set past the class");
    }

    void showsWhatIsHighlighted_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("text");

        QTest::newRow("file") << QStringList{u"one.mzml"_s} << u"one.mzml: Open data format mzml"_s;
        QTest::newRow("raw folder") << QStringList{u"Run.d"_s} << u"Run.d: Agilent"_s;
        QTest::newRow("ordinary folder") << QStringList{u"plain"_s} << u"plain: a folder to look into"_s;
        QTest::newRow("raw folder without data")
            << QStringList{u"Empty.d"_s} << u"Empty.d: no data, left out. The folder holds neither"_s;
        QTest::newRow("several") << QStringList{u"one.mzml"_s, u"plain"_s, u"Run.d"_s}
                                 << u"2 of 3 hold data\n"_s;
    }
    void showsWhatIsHighlighted()
    {
        QFETCH(const QStringList, entries);
        QFETCH(const QString, text);
        const Picks picks;
        (void)picks.ask([&](QDialog *dialog) {
            const FileDialogDriver driver(dialog);
            Qt::KeyboardModifiers keys;
            for (const QString &entry : entries) {
                QVERIFY(driver.click(picks.path(entry), keys));
                keys = Qt::ControlModifier;
            }
            const auto *label = dialog->findChild<QLabel *>(u"recognition"_s);
            // The whole text, as the line itself may be cut to the dialog's width.
            QTRY_VERIFY2(label->toolTip().startsWith(text), qPrintable(label->toolTip()));
            auto *inside = dialog->findChild<QPushButton *>(u"lookInsideButton"_s);
            QCOMPARE(inside->isEnabled(), entries == QStringList{u"Empty.d"_s});
            if (inside->isEnabled()) {
                inside->click();
                QCOMPARE(static_cast<QFileDialog *>(dialog)->directory().dirName(), u"Empty.d"_s);
            }
            dialog->reject();
        });
    }

    void namesPicksInTheBox()
    {
        const Picks picks;
        (void)picks.ask([&](QDialog *dialog) {
            const FileDialogDriver driver(dialog);
            QVERIFY(driver.click(picks.path(u"Run.d"_s)));
            QCOMPARE(driver.name()->text(), u"Run.d"_s);
            QVERIFY(driver.click(picks.path(u"one.mzml"_s), Qt::ControlModifier));
            QCOMPARE(driver.name()->text(), u"\"Run.d\" \"one.mzml\""_s);
            QVERIFY(driver.click(picks.path(u"link.d"_s)));
            QTest::keyClick(driver.list(), Qt::Key_Down);
            QTest::keyClick(driver.list(), Qt::Key_Up);
            QCOMPARE(driver.name()->text(), u"link.d"_s);
            dialog->reject();
        });
    }

    void looksAgainOnlyAtWhatChanged()
    {
        // Each look is a line in the log of the recognition.
        static std::atomic<int> looks;
        looks = 0;
        static QtMessageHandler before;
        before = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &context, const QString &text) {
                if (QLatin1StringView(context.category) != "ozm.generic"_L1)
                    before(type, context, text);
                else if (text.contains("Run.d"_L1) || text.contains("Empty.d"_L1))
                    ++looks;
            });
        QLoggingCategory::setFilterRules(u"ozm.generic.debug=true"_s);
        const Picks picks;
        const QStringList picked = picks.ask([&](QDialog *dialog) {
            const FileDialogDriver driver(dialog);
            QVERIFY(driver.click(picks.path(u"Run.d"_s)));
            QVERIFY(driver.click(picks.path(u"Empty.d"_s), Qt::ControlModifier));
            const auto *label = dialog->findChild<QLabel *>(u"recognition"_s);
            QTRY_VERIFY(label->toolTip().startsWith("1 of 2"_L1));
            picks.add(u"Empty.d/AcqData/"_s);
            looks = 0;
            driver.clickAccept();
        });
        QLoggingCategory::setFilterRules({});
        qInstallMessageHandler(before);
        QCOMPARE(picked, (QStringList{u"Run.d"_s, u"Empty.d"_s}));
        QCOMPARE(looks.load(), 1);
    }

    void leadsAbout()
    {
        const Picks picks;
        (void)picks.ask([&](QDialog *dialog) {
            auto *files = qobject_cast<QFileDialog *>(dialog);
            files->setDirectory(picks.path(u"Run.d/AcqData"_s));
            auto *bar = dialog->findChild<QWidget *>(u"pathBar"_s);
            const QList<QToolButton *> folders = bar->findChildren<QToolButton *>();
            QCOMPARE(folders.constLast()->text(), u"AcqData"_s);
            folders.at(folders.size() - 3)->click();
            QTRY_COMPARE(files->directory().absolutePath(), picks.path());
            dialog->resize(777, 603);
            dialog->reject();
        });
        const QStringList picked = picks.ask([&](QDialog *dialog) {
            QCOMPARE(dialog->size(), QSize(777, 603));
            QVERIFY(FileDialogDriver(dialog).doubleClick(picks.path(u"Run.d"_s)));
        });
        QCOMPARE(picked, QStringList{u"Run.d"_s});
        const auto places = [](QDialog *dialog) {
            return qobject_cast<QFileDialog *>(dialog)->sidebarUrls();
        };
        (void)picks.ask([&](QDialog *dialog) {
            QTRY_VERIFY(places(dialog).contains(QUrl::fromLocalFile(picks.path())));
            dialog->reject();
        });
        // The toolkit keeps its places for all programs.
        QFileDialog plain;
        plain.setOption(QFileDialog::DontUseNativeDialog);
        QVERIFY(!places(&plain).contains(QUrl::fromLocalFile(picks.path())));
    }

    void asksForOneAndWithoutWaiting()
    {
        const Picks picks;
        const auto pick = [&](QDialog *dialog) {
            const FileDialogDriver driver(dialog);
            QVERIFY(driver.click(picks.path(u"one.mzml"_s)));
            QVERIFY(driver.click(picks.path(u"Run.d"_s), Qt::ControlModifier));
            driver.clickAccept();
        };
        const DialogDriver driver({pick, pick, [](QDialog *dialog) { delete dialog->parent(); }});
        QCOMPARE(SpectrumFileDialog::getSpectrumFile(nullptr, {}, picks.path()), picks.path(u"Run.d"_s));

        QList<QStringList> answers;
        const auto answered = [&](const QStringList &data) { answers.append(data); };
        SpectrumFileDialog::openSpectrumFileList(nullptr, {}, picks.path(), {}, this, answered);
        QVERIFY(answers.isEmpty());
        QTRY_COMPARE(answers.size(), 1);
        QCOMPARE(answers.at(0), (QStringList{picks.path(u"one.mzml"_s), picks.path(u"Run.d"_s)}));
        SpectrumFileDialog::openSpectrumFileList(new QWidget, {}, picks.path(), {}, this, answered);
        QTRY_COMPARE(answers.size(), 2);
        QVERIFY(answers.at(1).isEmpty());
    }

    void endsWithItsParent()
    {
        // The dialog and its message stand on the heap; on the stack they would be destroyed twice.
        for (const bool underMessage : {false, true}) {
            auto *parent = new QWidget;
            const DialogDriver driver({[&](QDialog *dialog) {
                                           if (!underMessage) {
                                               delete parent;
                                               return;
                                           }
                                           const FileDialogDriver files(dialog);
                                           files.type(u"missing"_s);
                                           files.pressEnter(files.name());
                                           files.waitForMessage();
                                       },
                                       [&](QDialog *) { delete parent; }});
            QCOMPARE(SpectrumFileDialog::getSpectrumFileList(parent, {}, QDir::tempPath()), QStringList());
            QCOMPARE(driver.opened(), underMessage ? 2 : 1);
        }
    }

    void isPlainWithoutTheOpenButton()
    {
        QLoggingCategory::setFilterRules(u"ozm.widgets.debug=true"_s);
        QTest::ignoreMessage(QtDebugMsg, "openButton is nullptr");
        OpenInAnotherLanguage translator;
        QCoreApplication::installTranslator(&translator);
        const Picks picks;
        const QStringList picked = picks.ask([&](QDialog *dialog) {
            const FileDialogDriver driver(dialog);
            QVERIFY(!dialog->findChild<QLabel *>(u"recognition"_s));
            QVERIFY(driver.doubleClick(picks.path(u"Run.d"_s)));
            QVERIFY2(dialog->isVisible(), "a plain dialog enters it");
            driver.dialog()->setDirectory(picks.path());
            QVERIFY(driver.doubleClick(picks.path(u"one.mzml"_s)));
        });
        QLoggingCategory::setFilterRules({});
        QCOMPARE(picked, QStringList{u"one.mzml"_s});
    }

    void knowsRawFolders()
    {
        const Picks picks;
        for (const auto &entry : {u"Run.d"_s, u"Run.d/"_s, u"Empty.d"_s, u"Missing.D"_s}) {
            QVERIFY2(SpectrumFileDialog::isVendorRawFolder(picks.path(entry), false), qPrintable(entry));
            QCOMPARE(SpectrumFileDialog::isVendorRawFolder(picks.path(entry), true), entry != "Missing.D"_L1);
        }
        for (const auto &entry : {u"plain"_s, u"one.mzml"_s})
            for (const bool onDisk : {false, true})
                QVERIFY2(!SpectrumFileDialog::isVendorRawFolder(picks.path(entry), onDisk),
                         qPrintable(entry));
    }

private:
    const FileStateGuard m_guard;
};

QTEST_MAIN(TestSpectrumFileDialog)
#include "tst_spectrumfiledialog.moc"
