#include "style/boxes/MessageBoxes.h"

#include "style/boxes/BoxDesk.h"
#include "support/Logging.h"

#include "support/Platform.h"
#include <ozm_common_core_mini/AsyncUtils.h>
#include <ozm_widgets/OzmMessageBox.h>

#include <QApplication>
#include <QMutex>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QThread>

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace ozm {

namespace {

using Button = QMessageBox::StandardButton;

bool isGuiThread()
{
    return qApp && qApp->thread() == QThread::currentThread();
}

/// A pointer that came from another thread may be dead; only its value is looked at.
bool isLivingWidget(const QWidget *widget)
{
    const QWidgetList all = QApplication::allWidgets();
    return std::ranges::find(all, widget) != all.cend();
}

/// The button for the code that a box ended with; a box closed without a button was canceled.
Button answerOf(int code)
{
    return code == 0 ? QMessageBox::Cancel : static_cast<Button>(code);
}

/// The answer when the box cannot be shown.
Button answerUnshown(const MessageBoxDescription &description)
{
    return description.icon == QMessageBox::Question ? QMessageBox::Cancel : description.defaultButton;
}

bool canShowWidgets()
{
    if (qobject_cast<QApplication *>(QCoreApplication::instance()))
        return true;
    OZM_WIDGETS_WARNING() << "A message box needs a QApplication.";
    return false;
}

void setButtons(OzmMessageBox &box, const MessageBoxDescription &description)
{
    // A box without any could not be closed.
    box.setStandardButtons(description.buttons ? description.buttons : QMessageBox::Ok);
    box.setDefaultButton(description.defaultButton);
    if (description.escapeButton != QMessageBox::NoButton)
        box.setEscapeButton(description.escapeButton);
    for (auto text = description.buttonTexts.cbegin(); text != description.buttonTexts.cend(); ++text) {
        QAbstractButton *button = box.button(text.key());
        if (button && !text->isEmpty())
            button->setText(*text);
    }
}

OzmMessageBox *buildMessageBox(const MessageBoxDescription &description, QWidget *parent)
{
    auto *box = new OzmMessageBox(description.signal, parent);
    box->setObjectName(QStringLiteral("ozmMessageBox"));
    box->setIcon(description.icon);
    box->setWindowTitle(description.title);
    box->setText(description.text.data());
    box->setTextFormat(description.text.format());
    // Texts of errors are for handing on.
    box->setTextInteractionFlags(box->textInteractionFlags() | Qt::TextSelectableByMouse);
    if (!description.detailedText.isEmpty())
        box->setDetailedText(description.detailedText);
    setButtons(*box, description);
    return box;
}

/// Where the answer of a box that nobody waits for goes: to a context that may live on any thread, and die.
/// The function to call is let go as soon as it is certain that nobody will call it.
class Reply
{
public:
    using Answered = std::function<void(Button)>;

    static std::shared_ptr<Reply> create(QObject *context, const Answered &answered)
    {
        auto reply = std::make_shared<Reply>();
        reply->m_context = context;
        reply->m_answered = answered;
        reply->m_forgetting =
            QObject::connect(context, &QObject::destroyed, [reply] { reply->answer(nullptr, {}); });
        return reply;
    }

    /// Once; what is given later is ignored.
    void give(Button button) { answer(&Reply::callLater, button); }

private:
    static void callLater(QObject *context, Answered answered, Button button)
    {
        if (takesCalls(context->thread()))
            QMetaObject::invokeMethod(
                context, [answered = std::move(answered), button] { answered(button); },
                Qt::QueuedConnection);
    }

    /// A call posted to a thread whose event loop has ended would be kept, and never come.
    static bool takesCalls(const QThread *thread)
    {
        const bool isGui = qApp && thread == qApp->thread();
        return thread && (isGui ? BoxDesk::instance().isOpen() : !thread->isFinished());
    }

    void answer(void (*call)(QObject *, Answered, Button), Button button)
    {
        // Let go after the lock, as nobody knows what it holds.
        Answered answered;
        // The context cannot be gone before this is through: its end would have to be through here first.
        const QMutexLocker lock(&m_mutex);
        answered = std::exchange(m_answered, {});
        QObject *context = std::exchange(m_context, nullptr);
        QObject::disconnect(m_forgetting);
        if (call && context && answered)
            call(context, std::move(answered), button);
    }

    QMutex m_mutex;
    QObject *m_context = nullptr;
    Answered m_answered;
    QMetaObject::Connection m_forgetting;
};

/// Goes with a posted call, and answers in its place when the call is lost.
class Ticket
{
public:
    Ticket(std::shared_ptr<Reply> reply, Button unshown)
        : m_reply(std::move(reply))
        , m_unshown(unshown)
    {}
    ~Ticket()
    {
        if (m_reply)
            m_reply->give(m_unshown);
    }
    Q_DISABLE_COPY_MOVE(Ticket)

    /// From here on the call answers by itself.
    void begin() { m_reply.reset(); }

private:
    std::shared_ptr<Reply> m_reply;
    const Button m_unshown;
};

void openOnGuiThread(const MessageBoxDescription &description, QWidget *parent,
                     const std::shared_ptr<Reply> &reply)
{
    if (!canShowWidgets() || (parent && !isLivingWidget(parent))) {
        reply->give(answerUnshown(description));
        return;
    }
    if (const auto answer = answerOffScreen(description, parent)) {
        reply->give(*answer);
        return;
    }
    OzmMessageBox *box = buildMessageBox(description, parent);
    QObject::connect(box, &QDialog::finished, box, [box, reply](int code) {
        if (code != 0)
            reply->give(answerOf(code));
        // A window that is closed has ended before it says which button that stands for.
        QMetaObject::invokeMethod(
            box,
            [box, reply] {
                reply->give(answerOf(box->result()));
                box->deleteLater();
            },
            Qt::QueuedConnection);
    });
    QObject::connect(box, &QObject::destroyed, [reply] { reply->give(QMessageBox::Cancel); });
    box->open();
}

} // namespace

void makeAboutBox(OzmMessageBox &box)
{
    QIcon icon = QApplication::windowIcon();
    if (icon.isNull() && box.parentWidget())
        icon = box.parentWidget()->window()->windowIcon();
    const int size = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    if (icon.isNull())
        box.setIcon(QMessageBox::Information);
    else
        box.setIconPixmap(icon.pixmap(QSize(size, size), box.devicePixelRatioF()));
    box.setTextInteractionFlags(Qt::TextBrowserInteraction);
}

std::optional<Button> answerOffScreen(const MessageBoxDescription &description, const QWidget *parent)
{
    if (description.icon != QMessageBox::Warning || !parent ||
        !parent->testAttribute(Qt::WA_DontShowOnScreen))
        return {};
    OZM_WIDGETS_WARNING() << qUtf8Printable(description.text.toPlainText());
    return QMessageBox::Ok;
}

Button runMessageBox(const MessageBoxDescription &description, QWidget *parent, BoxTouch touch)
{
    if (!canShowWidgets())
        return answerUnshown(description);
    if (!isGuiThread())
        return BoxDesk::instance()
            .ask([&] { return runMessageBox(description, parent, touch); })
            .value_or(answerUnshown(description));
    // The parent may go, and the box with it, while its event loop runs.
    const QPointer<OzmMessageBox> box = buildMessageBox(description, parent);
    if (touch)
        touch(*box);
    // It may also go when it is answered already, but boxes opened over it keep it from returning.
    int pressed = 0;
    QObject::connect(box, &QDialog::finished, [&pressed](int code) { pressed = code; });
    const int code = box->exec();
    if (!box)
        return answerOf(pressed);
    delete box;
    return answerOf(code);
}

Button askOnThreadOf(QWidget *parent, const MessageBoxDescription &description,
                     const std::function<Button()> &work)
{
    if (isGuiThread())
        return platform::valueOr(AsyncUtils::executeInThread<Button>(parent, work),
                                 answerUnshown(description));
    // Widgets live on the GUI thread, so that is where to go; the parent itself cannot be asked from here,
    // as it may be deleted in the middle of that.
    return BoxDesk::instance()
        .ask([&] { return isLivingWidget(parent) ? std::optional(work()) : std::nullopt; })
        .value_or(answerUnshown(description));
}

void openMessageBox(const MessageBoxDescription &description, QWidget *parent, QObject *context,
                    const std::function<void(Button)> &answered)
{
    const auto reply = Reply::create(context, answered);
    if (!canShowWidgets()) {
        reply->give(answerUnshown(description));
    } else if (isGuiThread()) {
        openOnGuiThread(description, parent, reply);
    } else {
        const auto ticket = std::make_shared<Ticket>(reply, answerUnshown(description));
        BoxDesk::instance().post([=] {
            ticket->begin();
            openOnGuiThread(description, parent, reply);
        });
    }
}

} // namespace ozm
