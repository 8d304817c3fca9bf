#include <ozm_widgets/OZMStyle.h>

#include "style/boxes/MessageBoxes.h"
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

Button askThrough(Impl impl, QWidget *parent, const MessageBoxDescription &box)
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

struct Kind
{
    QMessageBox::Icon icon;
    const char *title;
};

constexpr std::array kKinds{
    Kind{QMessageBox::Information, QT_TRANSLATE_NOOP("OZMStyle", "Information")},
    Kind{QMessageBox::Warning, QT_TRANSLATE_NOOP("OZMStyle", "Warning")},
    Kind{QMessageBox::Critical, QT_TRANSLATE_NOOP("OZMStyle", "Error")},
    Kind{QMessageBox::Question, QT_TRANSLATE_NOOP("OZMStyle", "Question")},
};

QString titleOf(QMessageBox::Icon icon)
{
    const auto *kind = std::ranges::find(kKinds, icon, &Kind::icon);
    return kind == kKinds.cend() ? QString() : OZMStyle::tr(kind->title);
}

/// @p box with all that is left to its kind filled in.
MessageBoxDescription completed(MessageBoxDescription box)
{
    if (box.title.isEmpty())
        box.title = titleOf(box.icon);
    if (box.error)
        box.text = withError(box.text, *box.error);
    box.error.reset();
    return box;
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
    const auto answer = ozm::answerOffScreen(box, parent);
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
    (void)ozm::runMessageBox(box, parent, ozm::makeAboutBox);
}

Button OZMStyle::ask(QWidget *parent, const MessageBoxDescription &box)
{
    const MessageBoxDescription whole = completed(box);
    // The answer off screen is a warning's alone, so that one of them can stand for all kinds.
    return askThrough(warningImpl, parent, whole);
}

void OZMStyle::open(QWidget *parent, const MessageBoxDescription &box, QObject *context,
                    const Answered &answered)
{
    ozm::openMessageBox(completed(box), parent, context, answered);
}

Button OZMStyle::critical(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                          Buttons buttons, Button defaultButton, const QString &detailedText)
{
    return askThrough(criticalImpl, parent,
                      {QMessageBox::Critical, signal, title, text, buttons, defaultButton, detailedText});
}

Button OZMStyle::critical(QWidget *parent, Signal signal, const DisplayString &text, Buttons buttons,
                          Button defaultButton)
{
    return critical(parent, signal, titleOf(QMessageBox::Critical), text, buttons, defaultButton, {});
}

Button OZMStyle::critical(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                          const Error &error, Buttons buttons, Button defaultButton)
{
    return critical(parent, signal, title, withError(text, error), buttons, defaultButton, {});
}

Button OZMStyle::warning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                         Buttons buttons, Button defaultButton, const QString &detailedText)
{
    return askThrough(warningImpl, parent,
                      {QMessageBox::Warning, signal, title, text, buttons, defaultButton, detailedText});
}

Button OZMStyle::warning(QWidget *parent, Signal signal, const DisplayString &text, Buttons buttons,
                         Button defaultButton)
{
    return warning(parent, signal, titleOf(QMessageBox::Warning), text, buttons, defaultButton, {});
}

Button OZMStyle::warning(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                         Buttons buttons, const QString &yesText, const QString &noText,
                         const QString &cancelText, Button defaultButton, const QString &detailedText)
{
    return askThrough(warningImpl, parent,
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
    return askThrough(informationImpl, parent,
                      {QMessageBox::Information, signal, title, text, buttons, defaultButton});
}

Button OZMStyle::information(QWidget *parent, Signal signal, const DisplayString &text, Buttons buttons,
                             Button defaultButton)
{
    return information(parent, signal, titleOf(QMessageBox::Information), text, buttons, defaultButton);
}

Button OZMStyle::question(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                          Buttons buttons, Button defaultButton, const QString &yesText,
                          const QString &noText, const QString &cancelText)
{
    return askThrough(questionImpl, parent,
                      {QMessageBox::Question, signal, title, text, buttons, defaultButton, QString(),
                       textsOf(yesText, noText, cancelText)});
}

Button OZMStyle::question(QWidget *parent, const QString &title, const DisplayString &text,
                          const QMap<Button, QString> &buttonTexts, Button defaultButton)
{
    Buttons buttons;
    for (auto button = buttonTexts.keyBegin(); button != buttonTexts.keyEnd(); ++button)
        buttons |= *button;
    return askThrough(questionImpl, parent,
                      {QMessageBox::Question, Signal::Unspecified, title, text, buttons, defaultButton,
                       QString(), buttonTexts});
}

int OZMStyle::question(QWidget *parent, Signal signal, const QString &title, const DisplayString &text,
                       const QString &text0, const QString &text1, const QString &text2, int defaultIndex,
                       int escapeIndex)
{
    const QMap<Button, QString> texts = textsOf(text0, text1, text2);
    Buttons buttons;
    for (Button button : kIndexedButtons)
        buttons.setFlag(button, !texts.value(button).isEmpty());
    return indexOf(askThrough(questionImpl, parent,
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
    (void)askThrough(impl, parent, {.icon = QMessageBox::NoIcon, .title = title, .text = text});
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
