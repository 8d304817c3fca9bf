#include <ozm_widgets/db/common/OperationLogItem.h>

#include "support/Logging.h"

#include <QJsonArray>
#include <QLocale>

#include <algorithm>
#include <atomic>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using Item = QSharedPointer<OperationLogItem>;

// Each level takes two of the 1024 that Qt reads back, and the records need some for themselves.
constexpr int kDeepestJson = 256;

std::atomic<qint64> s_nextInternalId{0};

/// Destroys children one after the other instead of one inside the other, so that the depth of a tree does
/// not become the depth of the stack.
void destroyFlat(QList<Item> &&children)
{
    thread_local std::vector<Item> *doomed = nullptr;
    if (children.isEmpty())
        return;
    if (doomed) {
        doomed->insert(doomed->end(), children.cbegin(), children.cend());
        return;
    }
    std::vector<Item> pending(children.cbegin(), children.cend());
    children.clear();
    doomed = &pending;
    while (!pending.empty()) {
        Item last = std::move(pending.back());
        pending.pop_back();
        last.reset();
    }
    doomed = nullptr;
}

bool isSameOrAbove(const OperationLogItem *candidate, const OperationLogItem *item)
{
    // Without children it is above nothing: this keeps the building of long chains linear.
    if (candidate == item || !candidate->hasChildren())
        return candidate == item;
    for (auto above = item->parent(); above; above = above->parent()) {
        if (above.data() == candidate)
            return true;
    }
    return false;
}

} // namespace

OperationLogItemPrivate::OperationLogItemPrivate() = default;
OperationLogItemPrivate::OperationLogItemPrivate(const OperationLogItemPrivate &other) = default;
OperationLogItemPrivate::OperationLogItemPrivate(OperationLogItemPrivate &&other) noexcept = default;

OperationLogItemPrivate::OperationLogItemPrivate(const QSharedPointer<OperationLogItem> &parent, qint64 id,
                                                 qint64 timestamp, const QString &userName,
                                                 const OperationLogItemData &data)
    : m_parent(parent)
    , m_id(id)
    , m_internalId(s_nextInternalId++)
    , m_timestamp(timestamp)
    , m_userName(userName)
    , m_data(data)
{}

OperationLogItemPrivate::~OperationLogItemPrivate()
{
    destroyFlat(std::move(m_children));
}

QSharedPointer<OperationLogItem>
OperationLogItemPrivate::createItem(const QSharedPointer<OperationLogItem> &parent, qint64 id,
                                    qint64 timestamp, const QString &userName,
                                    const OperationLogItemData &data)
{
    Item item(new OperationLogItem({}, id, timestamp, userName, data));
    if (parent)
        setParent(item, parent);
    return item;
}

// By value: a reference into the list of children would die when the child leaves it.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void OperationLogItemPrivate::setParent(Item child, Item parent)
{
    if (parent && isSameOrAbove(child.data(), parent.data())) {
        OZM_WIDGETS_WARNING() << "Audit trail item" << child->id() << "cannot be placed below itself";
        return;
    }
    if (const Item oldParent = child->parent()) {
        // From the end: what is moved is mostly what came last.
        QList<Item> &siblings = oldParent->d->m_children;
        if (const qsizetype place = siblings.lastIndexOf(child); place >= 0)
            siblings.removeAt(place);
    }
    child->d->m_parent = parent;
    if (parent)
        parent->d->m_children.append(child);
}

OperationLogItem::OperationLogItem()
    : d(std::make_unique<OperationLogItemPrivate>())
{}

OperationLogItem::OperationLogItem(const QString &userName, const OperationLogItemData &data)
    : OperationLogItem({}, 0, 0, userName, data)
{}

OperationLogItem::OperationLogItem(const QSharedPointer<OperationLogItem> &parent, qint64 id,
                                   qint64 timestamp, const QString &userName,
                                   const OperationLogItemData &data)
    : d(std::make_unique<OperationLogItemPrivate>(parent, id, timestamp, userName, data))
{}

OperationLogItem::~OperationLogItem() = default;

bool OperationLogItem::isNull() const
{
    return d->m_timestamp == 0;
}

qint64 OperationLogItem::id() const
{
    return d->m_id;
}

qint64 OperationLogItem::internalId() const
{
    return d->m_internalId;
}

qint64 OperationLogItem::timestamp() const
{
    return d->m_timestamp;
}

QDateTime OperationLogItem::dateTime() const
{
    return QDateTime::fromMSecsSinceEpoch(d->m_timestamp);
}

QString OperationLogItem::userName() const
{
    return d->m_userName;
}

const OperationLogItemData *OperationLogItem::data() const
{
    return &d->m_data;
}

QString OperationLogItem::dataToString() const
{
    return d->m_data.toString();
}

QSharedPointer<OperationLogItem> OperationLogItem::parent()
{
    return d->m_parent.toStrongRef();
}

QSharedPointer<const OperationLogItem> OperationLogItem::parent() const
{
    return d->m_parent.toStrongRef();
}

QList<QSharedPointer<OperationLogItem>> OperationLogItem::children()
{
    return d->m_children;
}

QList<QSharedPointer<const OperationLogItem>> OperationLogItem::children() const
{
    return {d->m_children.cbegin(), d->m_children.cend()};
}

QSharedPointer<OperationLogItem> OperationLogItem::child(int index)
{
    return d->m_children.value(index);
}

QSharedPointer<const OperationLogItem> OperationLogItem::child(int index) const
{
    return d->m_children.value(index);
}

int OperationLogItem::childCount() const
{
    return static_cast<int>(d->m_children.size());
}

bool OperationLogItem::hasChildren() const
{
    return !d->m_children.isEmpty();
}

int OperationLogItem::indexOf(const QSharedPointer<OperationLogItem> &child) const
{
    return static_cast<int>(d->m_children.indexOf(child));
}

void OperationLogItem::setId(qint64 id)
{
    d->m_id = id;
}

void OperationLogItem::addChild(const QSharedPointer<OperationLogItem> &child)
{
    if (child)
        OperationLogItemPrivate::setParent(child, sharedFromThis());
}

void OperationLogItem::setChildren(const QList<QSharedPointer<OperationLogItem>> &children)
{
    const QList<Item> former = std::exchange(d->m_children, {});
    for (const Item &child : former)
        child->d->m_parent.clear();
    for (const Item &child : children) {
        if (child && child->parent() != sharedFromThis())
            addChild(child);
    }
}

QJsonObject OperationLogItem::toJsonObject() const
{
    return toJsonObject(0);
}

QJsonObject OperationLogItem::toJsonObject(int depth) const
{
    if (isNull() || !d->m_data.isValid())
        return {};
    QJsonObject json = d->m_data.toJsonObject();
    json.insert("id"_L1, d->m_id);
    json.insert("time"_L1, dateTime().toString(Qt::ISODate));
    json.insert("user"_L1, d->m_userName);

    if (depth == kDeepestJson && hasChildren()) {
        OZM_WIDGETS_WARNING() << "Audit trail item" << d->m_id << "is nested too deeply for JSON";
        return json;
    }
    QJsonArray children;
    for (const Item &child : std::as_const(d->m_children)) {
        const QJsonObject childJson = child->toJsonObject(depth + 1);
        if (!childJson.isEmpty())
            children.append(childJson);
    }
    if (!children.isEmpty())
        json.insert("children"_L1, children);
    return json;
}

QList<QString> OperationLogItem::toStringList() const
{
    const auto above = parent();
    return {
        QString::number(d->m_id),
        above ? QString::number(above->id()) : QString(),
        QLocale().toString(dateTime(), QLocale::ShortFormat),
        d->m_userName,
        dataToString(),
    };
}

QList<QList<QString>> OperationLogItem::toStringLists() const
{
    QList<QList<QString>> rows;
    std::vector<const OperationLogItem *> open{this};
    while (!open.empty()) {
        const OperationLogItem *item = open.back();
        open.pop_back();
        rows.append(item->toStringList());
        const QList<Item> &children = item->d->m_children;
        std::ranges::transform(children.crbegin(), children.crend(), std::back_inserter(open), &Item::data);
    }
    return rows;
}

} // namespace ozm
