#include <ozm_widgets/OzmMessageBox.h>

#include <ozm_widgets/OzmCoreApplication.h>

#include <QAbstractButton>
#include <QShowEvent>
#include <QTextEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm {

OzmMessageBox::OzmMessageBox(QWidget *parent)
    : OzmMessageBox(OzmMessageBoxSignal::Unspecified, parent)
{}

OzmMessageBox::OzmMessageBox(OzmMessageBoxSignal signal, QWidget *parent)
    : QMessageBox(parent)
    , m_signal(signal)
{}

void OzmMessageBox::showDetailsIfPresent()
{
    const auto *details = findChild<QTextEdit *>();
    // The button shows and hides by turns, and must not hide what is open.
    if (detailedText().isEmpty() || (details && details->isVisibleTo(this)))
        return;
    const QList<QAbstractButton *> all = buttons();
    const auto found = std::ranges::find_if(all, [this](QAbstractButton *button) {
        return buttonRole(button) == ActionRole && button->text().contains("details"_L1, Qt::CaseInsensitive);
    });
    if (found != all.cend())
        (*found)->click();
}

void OzmMessageBox::showEvent(QShowEvent *event)
{
    QMessageBox::showEvent(event);
    if (event->spontaneous())
        return;
    // Not at once: a box that is answered before its event loop runs would wait in it for good.
    QMetaObject::invokeMethod(
        this, [this, show = ++m_shows] { announce(show); }, Qt::QueuedConnection);
}

void OzmMessageBox::announce(int show)
{
    if (isVisible() && show == m_shows)
        Q_EMIT OzmCoreApplication::instance()->ozmMessageBoxShown(this);
}

} // namespace ozm
