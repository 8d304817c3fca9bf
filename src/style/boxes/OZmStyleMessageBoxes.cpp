#include <ozm_widgets/OZMStyle.h>

#include "style/boxes/MessageBoxDescription.h"
#include "support/Platform.h"
#include <QWidget>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::MessageBoxDescription;

namespace {

using Button = QMessageBox::StandardButton;
using Buttons = QMessageBox::StandardButtons;
using Impl = Button (*)(QWidget *, const MessageBoxDescription &);

constexpr std::array kIndexedButtons{QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};

Button ask(QWidget *parent, Impl impl, const MessageBoxDescription &box)
{
    if (!parent)
        return impl(parent, box);
    return ozm::askOnThreadOf(parent, box, [=, &box] { return impl(parent, box); });
}

QMap<Button, QString> textsOf(const QString &yes, const QString &no, const QString &cancel)
{
    return {{QMessageBox::Yes, yes}, {QMessageBox::No, no}, {QMessageBox::Cancel, cancel}};
}

/// The error joins @p text in the text's own format.
DisplayString withError(const DisplayString &text, const Error &error)
{
    const bool rich = text.format() == Qt::RichText;
    const bool unnamed = error.errorMessage().isEmpty();
    QString reason = unnamed ? ozm::platform::codeText(error) : error.errorMessage();
    if (rich)
        reason = reason.toHtmlEscaped();
    const QString whole =
        (unnamed ? OZMStyle::tr("%1 Error code: %2") : OZMStyle::tr("%1 %2")).arg(text.data(), reason);
    return rich ? DisplayRichString(whole) : DisplayString(whole);
}

Button buttonAt(int index)
{
    const bool known = index >= 0 && index < static_cast<int>(kIndexedButtons.size());
    return known ? kIndexedButtons.at(static_cast<std::size_t>(index)) : QMessageBox::NoButton;
}

/// The button that stands in for a missing first one counts as it.
int indexOf(Button button)
{
    const auto *found = std::ranges::find(kIndexedButtons, button);
    return found == kIndexedButtons.cend() ? 0 : static_cast<int>(found - kIndexedButtons.cbegin());
}

} // namespace

Button OZMStyle::criticalImpl(QWidget *parent, const MessageBoxDescription &box)
{
    return ozm::runMessageBox(box, parent);
}

Button OZMStyle::warningImpl(QWidget *parent, const MessageBoxDescription &box)
{
    const auto answer = box.answerOffScreen(parent);
    return answer ? *answer : ozm::runMessageBox(box, parent);
}

Button OZMStyle::informationImpl(QWidget *parent, const MessageBoxDescription &box)
{
    return ozm::runMessageBox(box, parent);
}

Button OZMStyle::questionImpl(QWidget *parent, const MessageBoxDescription &box)
{
    return ozm::runMessageBox(box, parent);
}

void OZMStyle::aboutImpl(QWidget *parent, const MessageBoxDescription &box)
{
    (void)ozm::runMessageBox(box, parent);
}

Button OZMStyle::critical(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                          Buttons buttons, Button defaultButton, const QString &detailedText)
{
    return ask(parent, criticalImpl,
               {QMessageBox::Critical, signal, title, text, buttons, defaultButton, detailedText});
}

Button OZMStyle::critical(QWidget *parent, Signal signal, const DisplayString &text, Buttons buttons,
                          Button defaultButton)
{
    return critical(parent, signal, tr("Error"), text, buttons, defaultButton, {});
}

Button OZMStyle::critical(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                          const Error &error, Buttons buttons, Button defaultButton)
{
    return critical(parent, signal, title, withError(text, error), buttons, defaultButton, {});
}

Button OZMStyle::warning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                         Buttons buttons, Button defaultButton, const QString &detailedText)
{
    return ask(parent, warningImpl,
               {QMessageBox::Warning, signal, title, text, buttons, defaultButton, detailedText});
}

Button OZMStyle::warning(QWidget *parent, Signal signal, const DisplayString &text, Buttons buttons,
                         Button defaultButton)
{
    return warning(parent, signal, tr("Warning"), text, buttons, defaultButton, {});
}

Button OZMStyle::warning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                         Buttons buttons, const QString &yesText, const QString &noText,
                         const QString &cancelText, Button defaultButton, const QString &detailedText)
{
    return ask(parent, warningImpl,
               {QMessageBox::Warning, signal, title, text, buttons, defaultButton, detailedText,
                textsOf(yesText, noText, cancelText)});
}

Button OZMStyle::warning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                         const Error &error, Buttons buttons, Button defaultButton)
{
    return warning(parent, signal, title, withError(text, error), buttons, defaultButton, QString());
}

Button OZMStyle::information(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                             Buttons buttons, Button defaultButton)
{
    return ask(parent, informationImpl,
               {QMessageBox::Information, signal, title, text, buttons, defaultButton});
}

Button OZMStyle::information(QWidget *parent, Signal signal, const DisplayString &text, Buttons buttons,
                             Button defaultButton)
{
    return information(parent, signal, tr("Information"), text, buttons, defaultButton);
}

Button OZMStyle::question(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                          Buttons buttons, Button defaultButton, const QString &yesText,
                          const QString &noText, const QString &cancelText)
{
    return ask(parent, questionImpl,
               {QMessageBox::Question, signal, title, text, buttons, defaultButton, QString(),
                textsOf(yesText, noText, cancelText)});
}

Button OZMStyle::question(QWidget *parent, const QString &title, const DisplayString &text,
                          const QMap<Button, QString> &buttonTexts, Button defaultButton)
{
    Buttons buttons;
    for (auto button = buttonTexts.keyBegin(); button != buttonTexts.keyEnd(); ++button)
        buttons |= *button;
    return ask(parent, questionImpl,
               {QMessageBox::Question, Signal::Unspecified, title, text, buttons, defaultButton, QString(),
                buttonTexts});
}

int OZMStyle::question(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                       const QString &text0, const QString &text1, const QString &text2, int defaultIndex,
                       int escapeIndex)
{
    const QMap<Button, QString> texts = textsOf(text0, text1, text2);
    Buttons buttons;
    for (Button button : kIndexedButtons)
        buttons.setFlag(button, !texts.value(button).isEmpty());
    return indexOf(ask(parent, questionImpl,
                       {QMessageBox::Question, signal, title, text, buttons, buttonAt(defaultIndex),
                        QString(), texts, buttonAt(escapeIndex)}));
}

int OZMStyle::critical(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                       Button button, Button defaultButton)
{
    return critical(parent, signal, title, text, button | defaultButton, defaultButton, {});
}

int OZMStyle::warning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                      Button button, Button defaultButton)
{
    return warning(parent, signal, title, text, button | defaultButton, defaultButton, QString());
}

int OZMStyle::information(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                          Button button, Button defaultButton)
{
    return information(parent, signal, title, text, button | defaultButton, defaultButton);
}

int OZMStyle::question(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                       Button button, Button defaultButton)
{
    return question(parent, signal, title, text, button | defaultButton, defaultButton, QString());
}

void OZMStyle::about(QWidget *parent, const QString &title, const DisplayString &text)
{
    const auto impl = [](QWidget *over, const MessageBoxDescription &box) {
        aboutImpl(over, box);
        return QMessageBox::Ok;
    };
    MessageBoxDescription box{QMessageBox::NoIcon, Signal::Unspecified, title, text};
    box.isAbout = true;
    (void)ask(parent, impl, box);
}

void OZMStyle::openCritical(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                            QObject *context, const Answered &answered, Buttons buttons, Button defaultButton,
                            const QString &detailedText)
{
    ozm::openMessageBox({QMessageBox::Critical, signal, title, text, buttons, defaultButton, detailedText},
                        parent, context, answered);
}

void OZMStyle::openWarning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                           QObject *context, const Answered &answered, Buttons buttons, Button defaultButton,
                           const QString &detailedText)
{
    ozm::openMessageBox({QMessageBox::Warning, signal, title, text, buttons, defaultButton, detailedText},
                        parent, context, answered);
}

void OZMStyle::openInformation(QWidget *parent, Signal signal, const QString &title,
                               const DisplayString &text, QObject *context, const Answered &answered,
                               Buttons buttons, Button defaultButton)
{
    ozm::openMessageBox({QMessageBox::Information, signal, title, text, buttons, defaultButton}, parent,
                        context, answered);
}

void OZMStyle::openQuestion(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                            QObject *context, const Answered &answered, Buttons buttons, Button defaultButton)
{
    ozm::openMessageBox({QMessageBox::Question, signal, title, text, buttons, defaultButton}, parent, context,
                        answered);
}
