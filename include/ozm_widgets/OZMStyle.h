#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/DisplayString.h>
#include <ozm_widgets/MessageBoxDescription.h>
#include <ozm_widgets/OzmMessageBoxSignal.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QCoreApplication>
#include <QIcon>
#include <QMap>
#include <QMessageBox>
#include <QPalette>
#include <QStringList>

#include <functional>

class QWidget;

/**
 * The look of the suite's applications, and its messages to the user.
 *
 * ## Style and icons
 *
 *     QApplication application(argc, argv);
 *     OZMStyle::apply(u"breeze"_s);
 *     action->setIcon(OZMStyle::icon(u"document-save"_s));
 *
 * Both are right on light and on dark: the style sheet speaks in palette roles, icons are drawn in the
 * palette's text colour when they are painted, and both follow when the palette changes. GUI thread.
 *
 * ## Message boxes
 *
 *     const auto answer = OZMStyle::ask(this, {.icon = QMessageBox::Question,
 *                                              .text = tr("Delete the run?"),
 *                                              .buttons = QMessageBox::Yes | QMessageBox::No,
 *                                              .defaultButton = QMessageBox::No});
 *     if (answer == QMessageBox::Yes)
 *         remove(run);
 *
 * The functions critical(), warning(), information() and question() ask for the same boxes by position.
 *
 * May be called from any thread. The box is always built and shown on the thread of its parent, which is
 * the GUI thread; the calling thread waits for the answer. A parent that is deleted meanwhile takes its
 * box with it.
 *
 * The answer is the button that was pressed, and Cancel when the box was closed without one. When the box
 * could not be shown (its parent was gone before, the application was ending), question() answers Cancel and
 * the others the default button they were given. The answer is never a button that could mean more than that.
 *
 * As the application's event loop ends, all that wait get that answer, and so do all that ask later: the GUI
 * thread may wait for its threads after QCoreApplication::exec().
 *
 * A box that is asked for from another thread deadlocks when the running GUI thread waits for that thread, for
 * instance with QThread::wait() or for a lock that the thread holds. Hold no lock while you ask, and have the
 * GUI thread told by a signal. After five seconds a warning names the waiting thread.
 *
 * A modal box runs an event loop in the middle of your function: objects of yours may be gone when it
 * returns. The open... functions do without.
 *
 * A warning whose parent has Qt::WA_DontShowOnScreen is written to the log, and answered with Ok.
 */
class OZM_WIDGETS_EXPORT OZMStyle
{
    Q_DECLARE_TR_FUNCTIONS(OZMStyle)

public:
    /// Which message a box shows, for those who have to tell boxes apart.
    using Signal = ozm::OzmMessageBoxSignal;
    using Button = QMessageBox::StandardButton;   ///< A button of a box.
    using Buttons = QMessageBox::StandardButtons; ///< The buttons that a box offers.

    /// Called with the button that answered a box.
    using Answered = std::function<void(QMessageBox::StandardButton)>;

    /// The two sets of colours.
    enum class Scheme
    {
        Light,
        Dark
    };

    OZMStyle() = delete;

    /// Gives the application the style, "breeze" or "fusion" or any other that is installed, and the style
    /// sheet ":/style/stylesheet". One that is not installed is replaced by Fusion, with a warning. Calling
    /// it again with the same style costs nothing.
    static void apply(const QString &style = QStringLiteral("fusion"));

    /// A palette for QApplication::setPalette(), where the system gives none or the user wants another.
    [[nodiscard]] static QPalette palette(Scheme scheme);
    /// The scheme of @p palette: light text on dark, or dark text on light.
    [[nodiscard]] static Scheme scheme(const QPalette &palette);

    /// The icon of this name from the library's set (see iconNames()), sharp at every size; or else that of
    /// the system's theme; or else a null icon, and a line in the log.
    [[nodiscard]] static QIcon icon(const QString &name);
    /// The names of the library's own set, in alphabetical order.
    [[nodiscard]] static QStringList iconNames();

    /// Shows the box and waits for its answer.
    [[nodiscard]] static Button ask(QWidget *parent, const ozm::MessageBoxDescription &box);

    /// Opens the box over its parent, and does not wait: @p answered is called once, on the thread of @p context,
    /// with what ask() would have returned. Not when @p context is deleted before, or its thread's event loop has
    /// ended; it must be there when this is called. Any thread.
    static void open(QWidget *parent, const ozm::MessageBoxDescription &box, QObject *context,
                     const Answered &answered);

    // Without a title: "Error", "Warning", "Information". An error is added to the text by its message, or
    // by its code's text when it has none. No buttons at all means Ok. Texts of buttons that are empty leave
    // the usual ones.

    /// Tells of an error, and waits for the answer.
    static Button critical(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                           Buttons buttons = QMessageBox::Ok, Button defaultButton = QMessageBox::NoButton,
                           const QString &detailedText = {});
    static Button critical(QWidget *parent, Signal signal, const DisplayString &text,
                           Buttons buttons = QMessageBox::Ok, Button defaultButton = QMessageBox::NoButton);
    static Button critical(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                           const ozm::Error &error, Buttons buttons = QMessageBox::Ok,
                           Button defaultButton = QMessageBox::NoButton);

    /// Tells of a danger, and waits for the answer.
    static Button warning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                          Buttons buttons = QMessageBox::Ok, Button defaultButton = QMessageBox::NoButton,
                          const QString &detailedText = {});
    static Button warning(QWidget *parent, Signal signal, const DisplayString &text,
                          Buttons buttons = QMessageBox::Ok, Button defaultButton = QMessageBox::NoButton);
    static Button warning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                          Buttons buttons, const QString &yesText, const QString &noText,
                          const QString &cancelText, Button defaultButton = QMessageBox::NoButton,
                          const QString &detailedText = {});
    static Button warning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                          const ozm::Error &error, Buttons buttons = QMessageBox::Ok,
                          Button defaultButton = QMessageBox::NoButton);

    /// Tells of something that went well, and waits for the answer.
    static Button information(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                              Buttons buttons = QMessageBox::Ok,
                              Button defaultButton = QMessageBox::NoButton);
    static Button information(QWidget *parent, Signal signal, const DisplayString &text,
                              Buttons buttons = QMessageBox::Ok,
                              Button defaultButton = QMessageBox::NoButton);

    static Button question(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                           Buttons buttons = QMessageBox::Yes | QMessageBox::No,
                           Button defaultButton = QMessageBox::NoButton, const QString &yesText = {},
                           const QString &noText = {}, const QString &cancelText = {});
    /// The buttons are those that have a text in @p buttonTexts; an empty one leaves the usual text.
    static Button question(QWidget *parent, const QString &title, const DisplayString &text,
                           const QMap<QMessageBox::StandardButton, QString> &buttonTexts,
                           Button defaultButton = QMessageBox::NoButton);
    /// Up to three buttons, those with a text, in the roles of Yes, No and Cancel. The answer is the index of
    /// the button, and 2 (Cancel) when the box was closed otherwise. Esc presses the button of
    /// @p escapeIndex; -1 leaves both that and the default to the toolkit.
    static int question(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                        const QString &text0, const QString &text1, const QString &text2,
                        int defaultIndex = 0, int escapeIndex = -1);

    // Older forms. The two buttons are both shown, the second is the default; NoButton stands for none. A
    // call of the forms above with a single button and a default is taken for one of these.

    [[deprecated("Use OZMStyle::ask(), or put the buttons into QMessageBox::StandardButtons.")]] static int
    critical(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
             QMessageBox::StandardButton button, QMessageBox::StandardButton defaultButton);
    [[deprecated("Use OZMStyle::ask(), or put the buttons into QMessageBox::StandardButtons.")]] static int
    warning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
            QMessageBox::StandardButton button, QMessageBox::StandardButton defaultButton);
    [[deprecated("Use OZMStyle::ask(), or put the buttons into QMessageBox::StandardButtons.")]] static int
    information(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                QMessageBox::StandardButton button, QMessageBox::StandardButton defaultButton);
    [[deprecated("Use OZMStyle::ask(), or put the buttons into QMessageBox::StandardButtons.")]] static int
    question(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
             QMessageBox::StandardButton button, QMessageBox::StandardButton defaultButton);

    /// The application's icon beside @p text, which can be selected and whose links open.
    static void about(QWidget *parent, const QString &title, const DisplayString &text);

    // As open(), by position.

    /// As critical(), without waiting.
    static void openCritical(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                             QObject *context, const Answered &answered, Buttons buttons = QMessageBox::Ok,
                             Button defaultButton = QMessageBox::NoButton, const QString &detailedText = {});
    /// As warning(), without waiting.
    static void openWarning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                            QObject *context, const Answered &answered, Buttons buttons = QMessageBox::Ok,
                            Button defaultButton = QMessageBox::NoButton, const QString &detailedText = {});
    /// As information(), without waiting.
    static void openInformation(QWidget *parent, Signal signal, const QString &title,
                                const DisplayString &text, QObject *context, const Answered &answered,
                                Buttons buttons = QMessageBox::Ok,
                                Button defaultButton = QMessageBox::NoButton);
    /// As question(), without waiting.
    static void openQuestion(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                             QObject *context, const Answered &answered,
                             Buttons buttons = QMessageBox::Yes | QMessageBox::No,
                             Button defaultButton = QMessageBox::NoButton);

private:
    static Button criticalImpl(QWidget *parent, const ozm::MessageBoxDescription &box);
    static Button warningImpl(QWidget *parent, const ozm::MessageBoxDescription &box);
    static Button informationImpl(QWidget *parent, const ozm::MessageBoxDescription &box);
    static Button questionImpl(QWidget *parent, const ozm::MessageBoxDescription &box);
    static void aboutImpl(QWidget *parent, const ozm::MessageBoxDescription &box);
};
