#include "BoxDriver.h"
#include "support/StrictTest.h"

#include <ozm_widgets/OZMStyle.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTextEdit>
#include <QTranslator>

#include <memory>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using namespace ozm::test;
using ozm::Error;
using ozm::ErrorCode;
using ozm::OzmMessageBox;
using Call = std::function<int(QWidget *)>;
using Box = QMessageBox;

Q_DECLARE_METATYPE(Call)

namespace {

constexpr auto kSignal = ozm::OzmMessageBoxSignal(1234);
const QString kTitle = u"The title"_s;
const DisplayString kText(u"The text"_s);
const DisplayRichString kRich(u"<b>x</b>"_s);

/// All that a user sees of a box, in one text.
QString lookOf(const OzmMessageBox *box)
{
    QStringList buttons;
    for (QAbstractButton *button : box->buttons()) {
        const QString mark = button == box->defaultButton() ? u"*"_s : QString();
        buttons.append(mark + button->text().remove(u'&'));
    }
    buttons.sort();
    const QString format = box->textFormat() == Qt::RichText   ? u"rich"_s
                           : box->textFormat() == Qt::AutoText ? u"auto"_s
                                                               : u"other"_s;
    return QStringList{QString::number(box->icon()),
                       box->windowTitle(),
                       box->text(),
                       format,
                       buttons.join(u','),
                       box->detailedText(),
                       QString::number(int(box->signal()))}
        .join(u'|');
}

using S = QMessageBox::StandardButton;
constexpr S kNone = Box::NoButton;
constexpr QMessageBox::StandardButtons kYesNo = Box::Yes | Box::No;

void closeBy(const QString &route, OzmMessageBox *box)
{
    if (route == u"enter")
        QTest::keyClick(box->defaultButton(), Qt::Key_Return);
    else if (route == u"esc")
        QTest::keyClick(box, Qt::Key_Escape);
    else if (route == u"close")
        box->close();
    else
        box->done(0);
}

/// The toolkit in a language that calls details otherwise.
class French : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QLatin1StringView(text) == "Show Details..."_L1 ? u"Plus…"_s : QString();
    }
};

} // namespace

class TestMessageBoxes : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void displayStrings()
    {
        const DisplayString rich = DisplayRichString(u"<b>x</b>"_s);
        QCOMPARE(rich.format(), Qt::RichText);
        QCOMPARE(rich.data(), u"<b>x</b>"_s);
        QCOMPARE(rich.toPlainText(), u"x"_s);

        const DisplayString plain("<b>\xc3\xa4</b>");
        QCOMPARE(plain.format(), Qt::AutoText);
        QCOMPARE(plain.toPlainText(), u"<b>ä</b>"_s);
        QVERIFY(DisplayRichString(QString()).toPlainText().isEmpty());
    }

    void overloads_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QString>("look");
        QTest::addColumn<int>("press");

        const Error named(ErrorCode::Failed, u"Disk <full>"_s);
        const Error unnamed(ErrorCode::Failed);
        const auto row = [](const char *name, const Call &call, const QString &look, S press) {
            QTest::newRow(name) << call << look << int(press);
        };
        using O = OZMStyle;
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        row(
            "described",
            [=](QWidget *p) {
                return O::ask(p, {.icon = Box::Question,
                                  .signal = kSignal,
                                  .text = kRich,
                                  .buttons = kYesNo,
                                  .defaultButton = Box::No,
                                  .detailedText = u"D"_s,
                                  .buttonTexts = {{Box::Yes, u"Go"_s}, {Box::Retry, u"?"_s}},
                                  .error = named});
            },
            u"4|Question|<b>x</b> Disk &lt;full&gt;|rich|*No,Go,Show Details...|D|1234"_s, Box::Yes);
        row(
            "critical",
            [](QWidget *p) { return O::critical(p, kSignal, kTitle, kText, kYesNo, Box::No, u"D"_s); },
            u"3|The title|The text|auto|*No,Show Details...,Yes|D|1234"_s, Box::Yes);
        row(
            "critical, no buttons",
            [](QWidget *p) { return O::critical(p, kSignal, kTitle, kText, QMessageBox::StandardButtons()); },
            u"3|The title|The text|auto|OK||1234"_s, Box::Ok);
        row(
            "critical, untitled", [](QWidget *p) { return O::critical(p, kSignal, kRich); },
            u"3|Error|<b>x</b>|rich|OK||1234"_s, Box::Ok);
        row(
            "critical, error",
            [=](QWidget *p) { return O::critical(p, kSignal, kTitle, kText, named, Box::Retry); },
            u"3|The title|The text Disk <full>|auto|Retry||1234"_s, Box::Retry);
        row(
            "critical, error in HTML",
            [=](QWidget *p) { return O::critical(p, kSignal, kTitle, kRich, named); },
            u"3|The title|<b>x</b> Disk &lt;full&gt;|rich|OK||1234"_s, Box::Ok);
        row(
            "critical, older",
            [](QWidget *p) { return O::critical(p, kSignal, kTitle, kText, Box::Ok, kNone); },
            u"3|The title|The text|auto|OK||1234"_s, Box::Ok);

        row(
            "warning",
            [](QWidget *p) { return O::warning(p, kSignal, kTitle, kText, kYesNo, Box::No, u"D"_s); },
            u"2|The title|The text|auto|*No,Show Details...,Yes|D|1234"_s, Box::No);
        row(
            "warning, untitled",
            [](QWidget *p) { return O::warning(p, kSignal, "literal", kYesNo, Box::Yes); },
            u"2|Warning|literal|auto|*Yes,No||1234"_s, Box::Yes);
        row(
            "warning, texts",
            [](QWidget *p) {
                return O::warning(p, kSignal, kTitle, kText, kYesNo | Box::Cancel, u"Ja"_s, {}, u"Halt"_s,
                                  Box::No, u"D"_s);
            },
            u"2|The title|The text|auto|*No,Halt,Ja,Show Details...|D|1234"_s, Box::Cancel);
        row(
            "warning, error without message",
            [=](QWidget *p) { return O::warning(p, kSignal, kTitle, kText, unnamed); },
            u"2|The title|The text Error code: Operation failed|auto|OK||1234"_s, Box::Ok);
        row(
            "warning, %1 in the text",
            [=](QWidget *p) { return O::warning(p, kSignal, kTitle, u"%2 %1"_s, named); },
            u"2|The title|%2 %1 Disk <full>|auto|OK||1234"_s, Box::Ok);
        row(
            "warning, older",
            [](QWidget *p) { return O::warning(p, kSignal, kTitle, kText, Box::Yes, Box::No); },
            u"2|The title|The text|auto|*No,Yes||1234"_s, Box::Yes);

        row(
            "information",
            [](QWidget *p) {
                return O::information(p, kSignal, kTitle, kText, Box::Ok | Box::Help, Box::Help);
            },
            u"1|The title|The text|auto|*Help,OK||1234"_s, Box::Ok);
        row(
            "information, untitled", [](QWidget *p) { return O::information(p, kSignal, kText); },
            u"1|Information|The text|auto|OK||1234"_s, Box::Ok);
        row(
            "information, older",
            [](QWidget *p) { return O::information(p, kSignal, kTitle, kText, Box::Ok, Box::Ok); },
            u"1|The title|The text|auto|*OK||1234"_s, Box::Ok);

        row(
            "question",
            [](QWidget *p) { return O::question(p, kSignal, kTitle, kText, kYesNo, Box::No, {}, u"Nein"_s); },
            u"4|The title|The text|auto|*Nein,Yes||1234"_s, Box::No);
        row(
            "question, map",
            [](QWidget *p) {
                return O::question(p, kTitle, kRich, {{Box::Save, u"Keep"_s}, {Box::Discard, QString()}},
                                   Box::Save);
            },
            u"4|The title|<b>x</b>|rich|*Keep,Discard||0"_s, Box::Discard);
        row(
            "question, older",
            [](QWidget *p) { return O::question(p, kSignal, kTitle, kText, Box::Yes, Box::No); },
            u"4|The title|The text|auto|*No,Yes||1234"_s, Box::Yes);
        QT_WARNING_POP
    }

    void overloads()
    {
        QFETCH(const Call, call);
        QFETCH(const QString, look);
        QFETCH(const int, press);
        QWidget parent;
        for (QWidget *over : {&parent, static_cast<QWidget *>(nullptr)}) {
            const BoxDriver driver([&](OzmMessageBox *box) {
                QCOMPARE(lookOf(box), look);
                QCOMPARE(box->parentWidget(), over);
                ozm::test::press(box, static_cast<S>(press));
            });
            QCOMPARE(call(over), press);
            QCOMPARE(driver.opened(), 1);
        }
    }

    void closing_data()
    {
        QTest::addColumn<QMessageBox::StandardButtons>("buttons");
        QTest::addColumn<QString>("route");
        QTest::addColumn<int>("answer");

        const QMessageBox::StandardButtons withCancel = kYesNo | Box::Cancel;
        QTest::newRow("Enter presses the default") << withCancel << u"enter"_s << int(Box::No);
        QTest::newRow("Esc is Cancel") << withCancel << u"esc"_s << int(Box::Cancel);
        QTest::newRow("Esc is the only button")
            << QMessageBox::StandardButtons(Box::Ok) << u"esc"_s << int(Box::Ok);
        QTest::newRow("closing the window is Cancel") << withCancel << u"close"_s << int(Box::Cancel);
        QTest::newRow("closing the window is the only button")
            << QMessageBox::StandardButtons(Box::Ok) << u"close"_s << int(Box::Ok);
        QTest::newRow("done(0) is Cancel, also where there is none")
            << kYesNo << u"done"_s << int(Box::Cancel);
    }

    void closing()
    {
        QFETCH(const QMessageBox::StandardButtons, buttons);
        QFETCH(const QString, route);
        QFETCH(const int, answer);
        QWidget parent;
        const BoxDriver driver([&](OzmMessageBox *box) { closeBy(route, box); });
        QCOMPARE(int(OZMStyle::question(&parent, kSignal, kTitle, kText, buttons, Box::No)), answer);

        // The form that does not wait answers the same, once.
        QList<int> answers;
        OZMStyle::open(&parent, {.icon = Box::Question, .buttons = buttons, .defaultButton = Box::No}, this,
                       [&](S given) { answers.append(given); });
        QVERIFY2(answers.isEmpty(), "answered before anyone could have");
        QTRY_COMPARE(answers, QList<int>{answer});
        QTRY_VERIFY(parent.findChildren<OzmMessageBox *>().isEmpty());
        QCOMPARE(answers.size(), 1);
    }

    // The box dies with its parent, in the middle of its event loop, and must not be deleted a second time.
    void parentDies()
    {
        auto parent = std::make_unique<QWidget>();
        const BoxDriver driver([&](OzmMessageBox *) { parent.reset(); });
        QCOMPARE(OZMStyle::warning(parent.get(), kSignal, kTitle, kText, Box::Ok), Box::Cancel);

        parent = std::make_unique<QWidget>();
        QList<int> answers;
        OZMStyle::openWarning(parent.get(), kSignal, kTitle, kText, this,
                              [&](S given) { answers.append(given); });
        QTRY_COMPARE(answers, QList<int>{int(Box::Cancel)});
    }

    void indexedQuestion_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("buttons");
        QTest::addColumn<int>("press");
        QTest::addColumn<int>("escapeIndex");
        QTest::addColumn<int>("answer");

        const QStringList three{u"A"_s, u"B"_s, u"C"_s};
        QTest::newRow("first") << three << u"*B,A,C"_s << int(Box::Yes) << -1 << 0;
        QTest::newRow("second") << three << u"*B,A,C"_s << int(Box::No) << -1 << 1;
        QTest::newRow("third") << three << u"*B,A,C"_s << int(Box::Cancel) << -1 << 2;
        QTest::newRow("Esc as asked for") << three << u"*B,A,C"_s << 0 << 1 << 1;
        QTest::newRow("two") << QStringList{u"A"_s, u"B"_s, {}} << u"*B,A"_s << int(Box::Yes) << 1 << 0;
        QTest::newRow("none is Ok, the first")
            << QStringList{{}, {}, {}} << u"OK"_s << int(Box::Ok) << -1 << 0;
    }

    void indexedQuestion()
    {
        QFETCH(const QStringList, texts);
        QFETCH(const QString, buttons);
        QFETCH(const int, press);
        QFETCH(const int, escapeIndex);
        const BoxDriver driver([&](OzmMessageBox *box) {
            QCOMPARE(lookOf(box).section(u'|', 4, 4), buttons);
            if (press)
                ozm::test::press(box, static_cast<S>(press));
            else
                QTest::keyClick(box, Qt::Key_Escape);
        });
        QTEST(
            OZMStyle::question(nullptr, kSignal, kTitle, kText, texts[0], texts[1], texts[2], 1, escapeIndex),
            "answer");
    }

    void detailsOpenAndStayOpen()
    {
        OzmMessageBox bare(kSignal);
        bare.addButton(u"Details"_s, Box::ActionRole);
        bare.showDetailsIfPresent();
        QVERIFY2(bare.detailedText().isEmpty() && !bare.clickedButton(), "pressed without any details");

        French french;
        for (const bool translated : {false, true}) {
            if (translated)
                QCoreApplication::installTranslator(&french);
            OzmMessageBox box(kSignal);
            box.setStandardButtons(Box::Ok);
            box.setDetailedText(u"line 1"_s);
            // Twice before it is shown, and once after.
            box.showDetailsIfPresent();
            box.showDetailsIfPresent();
            box.show();
            const auto *details = box.findChild<QTextEdit *>();
            QVERIFY(details->isVisible());
            box.showDetailsIfPresent();
            QVERIFY(details->isVisible());
        }
    }

    void warningOffScreenIsLogged()
    {
        QWidget parent;
        parent.setAttribute(Qt::WA_DontShowOnScreen);
        const BoxDriver driver([](OzmMessageBox *box) { box->done(0); });
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"src/style/boxes/MessageBoxes\\.cpp:\\d+ x$"_s));
        QCOMPARE(OZMStyle::warning(&parent, kSignal, kTitle, kRich, kYesNo, Box::No), Box::Ok);
        QList<int> answers;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"MessageBoxes\\.cpp:\\d+ x$"_s));
        OZMStyle::openWarning(
            &parent, kSignal, kTitle, kRich, this, [&](S given) { answers.append(given); }, kYesNo, Box::No);
        QTRY_COMPARE(answers, QList<int>{int(Box::Ok)});
        QCOMPARE(driver.opened(), 0);
    }

    void otherBoxesOffScreenAreShown()
    {
        QWidget parent;
        parent.setAttribute(Qt::WA_DontShowOnScreen);
        parent.setEnabled(false);
        const BoxDriver driver([](OzmMessageBox *box) {
            QVERIFY(!box->testAttribute(Qt::WA_DontShowOnScreen) && box->isEnabled());
            press(box, Box::No);
        });
        QCOMPARE(OZMStyle::question(&parent, kSignal, kTitle, kText), Box::No);
        QCOMPARE(driver.opened(), 1);
    }

    void shownIsEmittedOncePerShow()
    {
        OzmMessageBox box(kSignal);
        const BoxDriver driver([&](OzmMessageBox *shown) {
            QCOMPARE(shown, &box);
            QVERIFY(shown->isVisible());
            shown->done(Box::Ok);
        });
        QCOMPARE(box.exec(), int(Box::Ok));
        QCOMPARE(box.exec(), int(Box::Ok));
        QCOMPARE(driver.opened(), 2);
        box.show();
        box.hide();
        box.show();
        QTRY_COMPARE(driver.opened(), 3);
    }

    void longTextKeepsTheButtonsOnScreen()
    {
        const QString line = u"A line of a very long message. "_s;
        for (const QString &text : {(line + u'\n').repeated(200), line.repeated(500)}) {
            const BoxDriver driver([](OzmMessageBox *box) {
                QCoreApplication::sendPostedEvents();
                const QRect screen = box->screen()->availableGeometry();
                const QWidget *ok = box->button(Box::Ok);
                QVERIFY(box->height() <= screen.height() && box->width() <= screen.width());
                QVERIFY(box->rect().contains(QRect(ok->mapTo(box, QPoint()), ok->size())));
                press(box, Box::Ok);
            });
            OZMStyle::warning(nullptr, kSignal, kTitle, text);
            QCOMPARE(driver.opened(), 1);
        }
    }

    void aboutShowsIconAndLinks()
    {
        QPixmap pixmap(64, 64);
        pixmap.fill(Qt::red);
        QApplication::setWindowIcon(pixmap);
        const BoxDriver driver([](OzmMessageBox *box) {
            QCOMPARE(box->iconPixmap().toImage().pixelColor(5, 5), QColor(Qt::red));
            QCOMPARE(box->text(), kRich.data());
            const auto *label = box->findChild<QLabel *>(u"qt_msgbox_label"_s);
            QVERIFY(label->openExternalLinks());
            QVERIFY(box->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
            QVERIFY(box->textInteractionFlags().testFlag(Qt::LinksAccessibleByKeyboard));
            press(box, Box::Ok);
        });
        OZMStyle::about(nullptr, kTitle, kRich);
        QApplication::setWindowIcon({});
        QCOMPARE(driver.opened(), 1);
    }

    void userNameIsTheSystemsUntilSet()
    {
        qputenv("USER", "somebody-else");
        const QString ofSystem = ozm::OzmCoreApplication::userName();
        QVERIFY(!ofSystem.isEmpty());
#ifdef Q_OS_UNIX
        const passwd *account = getpwuid(geteuid());
        QCOMPARE(ofSystem, account ? QString::fromLocal8Bit(account->pw_name) : u"somebody-else"_s);
#endif
        ozm::OzmCoreApplication::setUserName(u"jdoe"_s);
        QCOMPARE(ozm::OzmCoreApplication::userName(), u"jdoe"_s);
        ozm::OzmCoreApplication::setUserName({});
        QCOMPARE(ozm::OzmCoreApplication::userName(), ofSystem);
    }
};

QTEST_MAIN(TestMessageBoxes)
#include "tst_messageboxes.moc"
