#include "TimeDialogs.h"

#include "../Texts.h"

#include <QDateTimeEdit>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QTimeEdit>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

/// Shows two fields below each other; false when the user cancels.
bool ask(QWidget *parent, const QString &title, const QString &firstLabel, QWidget *first,
         const QString &secondLabel, QWidget *second)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(title);
    auto *form = new QFormLayout(&dialog);
    form->addRow(firstLabel, first);
    form->addRow(secondLabel, second);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    // They are the caller's to read.
    first->setParent(nullptr);
    second->setParent(nullptr);
    return accepted;
}

void show(QDateTimeEdit &edit, const QDateTime &moment)
{
    edit.setTimeSpec(Qt::UTC);
    edit.setDisplayFormat(u"yyyy-MM-dd HH:mm 'UTC'"_s);
    edit.setCalendarPopup(true);
    edit.setDateTime(moment.toUTC());
}

} // namespace

bool askTimeRange(QWidget *parent, qint64 &fromMs, qint64 &untilMs)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QDateTimeEdit from;
    QDateTimeEdit until;
    show(from, fromMs == 0 ? now.addDays(-1) : QDateTime::fromMSecsSinceEpoch(fromMs));
    show(until, untilMs == 0 ? now : QDateTime::fromMSecsSinceEpoch(untilMs));
    if (!ask(parent, WidgetTexts::tr("Range of time"), WidgetTexts::tr("&From:"), &from,
             WidgetTexts::tr("&Until:"), &until))
        return false;
    fromMs = from.dateTime().toMSecsSinceEpoch();
    untilMs = until.dateTime().toMSecsSinceEpoch();
    return true;
}

bool askWorkingHours(QWidget *parent, WorkingHours &hours)
{
    QTimeEdit from(hours.from);
    QTimeEdit until(hours.until);
    if (!ask(parent, WidgetTexts::tr("Working hours, Monday to Friday"), WidgetTexts::tr("&From:"), &from,
             WidgetTexts::tr("&Until:"), &until))
        return false;
    hours = {from.time(), until.time()};
    return true;
}

} // namespace ozm::audit
