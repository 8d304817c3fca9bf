#include "PictureRun.h"
#include "SampleFixture.h"
#include "data/DataImport.h"
#include "support/DialogDriver.h"
#include "support/StrictTest.h"
#include "window/FirstStepsPage.h"
#include "window/FirstStepsSession.h"
#include "window/MainWindow.h"
#include "window/Sessions.h"

#include <QAction>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;
using namespace ozm::test;
using namespace workbench;

namespace {

QWidget *shownWindow(const QString &title)
{
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowTitle().startsWith(title))
            return window;
    return nullptr;
}

} // namespace

class TestFirstSteps : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.path());
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
    }

    void trailTellsOfEveryKindOfStep()
    {
        auto session = FirstStepsSession::make(u"jdoe"_s).valueOr(nullptr);
        QVERIFY(session);
        const QString told = SampleFixture::textsOf(session->editor().trail().entries(), {}).join(u'\n');
        for (const auto &part : {u"'Charge' from 2 to 3\n"_s, u"to * (week 0)\n  Set Label"_s, u"UNDO Set"_s,
                                 u"from 2 to 0 ! The charge must be"_s})
            QVERIFY2(told.contains(part), qUtf8Printable(part + u" in "_s + told));
        QVERIFY(session->editor().history().isClean());
        const QString folder = session->folder();
        session.reset();
        QVERIFY2(!QDir(folder).exists(), "made-up data outlived its session");
    }

    void eachClickDoesIts_data()
    {
        QTest::addColumn<QString>("step");
        QTest::addColumn<QString>("outcome");
        QTest::newRow("undo") << u"undo"_s << u"Undone: Set Comment of HC-T06."_s;
        QTest::newRow("data") << u"find"_s << u"8 samples with data were added."_s;
        QTest::newRow("dialog") << u"choose"_s << u"1 sample with data was added."_s;
        QTest::newRow("question") << u"ask"_s << u"The thread was told to stop."_s;
        QTest::newRow("report") << u"report"_s << u"It can be saved"_s;
    }

    void eachClickDoesIts()
    {
        QFETCH(const QString, step);
        QFETCH(const QString, outcome);
        const auto session = FirstStepsSession::make(u"jdoe"_s);
        MainWindow &window = session.value()->window();
        window.show();
        const DialogDriver driver({[](QDialog *dialog) {
            if (auto *files = qobject_cast<QFileDialog *>(dialog))
                files->selectFile(u"digest 1.raw"_s);
            if (auto *box = qobject_cast<QMessageBox *>(dialog))
                box->button(QMessageBox::No)->click();
            else if (qobject_cast<QFileDialog *>(dialog))
                dialog->accept();
            else
                dialog->reject();
        }});
        window.findChild<QPushButton *>(step + u"Button"_s)->click();
        const auto *label = window.findChild<QLabel *>(step + u"Outcome"_s);
        QTRY_VERIFY2(label->text().startsWith(outcome), qUtf8Printable(label->text()));
    }

    void comeUnaskedOnce()
    {
        const QString own = QDir(m_home.path()).filePath(u"own.csv"_s);
        QVERIFY(writeFile(own, "Name,Mass\nX1,500.5\n"));
        {
            Sessions sessions({}, u"jdoe"_s);
            QVERIFY(sessions.areNew());
            QVERIFY(!Sessions(u"elsewhere.sqlite"_s, u"jdoe"_s).areNew());
            QVERIFY(!sessions.openFirstSteps().hasError());
            QWidget *first = shownWindow(u"First steps"_s);
            QVERIFY(first);
            QVERIFY2(!Sessions({}, u"jdoe"_s).areNew(), "they were seen");
            first->findChild<QPushButton *>(u"ownSamples"_s)->click();
            QVERIFY(shownWindow(u"Workbench"_s));
            QVERIFY(!sessions.openOwn(own).hasError());
            QVERIFY(shownWindow(u"own.csv"_s));
            shownWindow(u"own.csv"_s)->findChild<QAction *>(u"firstStepsAction"_s)->trigger();
            QCOMPARE(shownWindow(u"First steps"_s), first);
        }
        QVERIFY2(readFile(own).endsWith("X1,500.5\n"), "own samples were written over");
    }

    void picturesAreAllOnThePage()
    {
        const QTemporaryDir out;
        QVERIFY(!takePictures(out.path()).hasError());
        const QString page = QString::fromUtf8(readFile(out.filePath(u"index.html"_s)));
        int pictures = 0;
        for (auto each = QRegularExpression(u"src=\"([^\"]+)\""_s).globalMatch(page); each.hasNext();
             ++pictures) {
            const QImage picture(out.filePath(each.next().captured(1)));
            QVERIFY(!picture.isNull() && picture.colorCount() > 8);
        }
        QCOMPARE(pictures, 20);
    }

private:
    const QTemporaryDir m_home;
};

QTEST_MAIN(TestFirstSteps)
#include "tst_firststeps.moc"
