#include "TrailView_p.h"

#include <ozm_audit_widgets/SigningSession.h>
#include <ozm_widgets/OZMStyle.h>

#include <QKeyEvent>
#include <QLayout>
#include <QLoggingCategory>
#include <QPointer>
#include <QScrollBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

Q_LOGGING_CATEGORY(lcTrailView, "ozm.audit")

} // namespace

TrailView::TrailView(Store &store, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(*this, store))
{
    setObjectName(u"trailView"_s);
    setAccessibleName(tr("Audit trail"));
    d->start();
}

TrailView::TrailView(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(*this, Store::open(u"memory:"_s).value()))
{
    setObjectName(u"trailView"_s);
    setAccessibleName(tr("Audit trail"));
    setEnabled(false);
    d->start();
}

TrailView::~TrailView() = default;

void TrailView::setStore(Store &store)
{
    if (!d->empty) {
        qCWarning(lcTrailView) << "This view has its trail already";
        return;
    }
    QList<QPointer<QWidget>> former;
    for (QWidget *child : findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        former.append(child);
    delete layout();
    auto last = std::exchange(d, std::make_unique<Private>(*this, store));
    d->start();
    for (const auto &row : last->actions)
        delete row.second;
    // The parts of the former content first: they are no objects of their own, and must not go with their parents.
    last.reset();
    for (const QPointer<QWidget> &child : former)
        delete child;
    setEnabled(true);
}

TrailModel &TrailView::model() const
{
    return d->model;
}

QAction *TrailView::action(Action action) const
{
    return d->actions.at(action);
}

void TrailView::setLogger(Logger *logger, const Person &user)
{
    d->logger = logger;
    d->user = user;
    d->model.setLogger(logger);
    d->updateActions();
}

void TrailView::setSigningSession(SigningSession *session)
{
    d->session = session;
    d->updateActions();
}

void TrailView::setSubjectHook(const SubjectHook &hook)
{
    d->hook = hook;
    d->updateActions();
}

void TrailView::setVerifier(const QString &path)
{
    d->verifier = path;
}

void TrailView::setFilter(const TrailFilter &filter)
{
    d->bar.setFilter(filter);
    d->model.setFilter(filter);
}

void TrailView::showSubject(const QString &type, const QString &key)
{
    TrailFilter filter;
    filter.query.subjectType = type;
    filter.query.subjectKey = key;
    setFilter(filter);
}

void TrailView::showEntry(qint64 number)
{
    int row = d->model.rowOf(number);
    if (row < 0 && !d->model.filter().isEmpty()) {
        setFilter({});
        row = d->model.rowOf(number);
    }
    if (row < 0)
        return;
    const QModelIndex index = d->model.index(row, TrailModel::Number);
    d->table.setCurrentIndex(index);
    d->table.scrollTo(index, QAbstractItemView::PositionAtCenter);
    d->follows = d->isAtNewest();
}

void TrailView::showNewest()
{
    d->follows = true;
    d->follow();
}

NumberSet TrailView::selectedNumbers() const
{
    NumberSet numbers;
    for (const QItemSelectionRange &range : d->table.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const qint64 number = d->model.index(row, 0).data(TrailModel::NumberRole).toLongLong();
            if (number > 0)
                numbers.add(number);
        }
    }
    return numbers;
}

Entry TrailView::currentEntry() const
{
    const QModelIndex current = d->table.currentIndex();
    return current.isValid() ? d->model.entryAt(current.row()) : Entry();
}

bool TrailView::event(QEvent *event)
{
    const auto type = event->type();
    if (type == QEvent::Resize || type == QEvent::Show) {
        d->fitDetails();
        // Once the table has its new height.
        QMetaObject::invokeMethod(
            this, [this] { d->follow(); }, Qt::QueuedConnection);
    }
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress)
        return QWidget::event(event);
    if (!static_cast<QKeyEvent *>(event)->matches(QKeySequence::Find))
        return QWidget::event(event);
    // An action of the window may have the same key; here it searches the trail.
    event->accept();
    if (type == QEvent::KeyPress)
        d->bar.focusSearch();
    return true;
}

bool TrailView::eventFilter(QObject *watched, QEvent *event)
{
    // The table would copy one cell.
    const bool isCopy = watched == &d->table && event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy);
    if (isCopy)
        d->copyRows();
    return isCopy || QWidget::eventFilter(watched, event);
}

} // namespace ozm::audit
