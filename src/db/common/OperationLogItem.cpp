#include <ozm_widgets/db/common/OperationLogItem.h>

#include "LogValue.h"
#include "support/Logging.h"

#include <QJsonArray>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <atomic>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using Item = QSharedPointer<OperationLogItem>;

// A record without a value is an object with the subject in it, which holds the key.
constexpr int kLevelsOfRecord = 3;

std::atomic<qint64> s_nextInternalId{0};

struct Siblings
{
    QList<Item> items;
    qsizetype next = 0;
};

/// Destroys children one after the other instead of one inside the other, so that the depth of a tree does
/// not become the depth of the stack. Each is followed by what was below it: that is the order in which a
/// trail is made, and so mostly that of its memory.
void destroyFlat(QList<Item> &&children)
{
    thread_local std::vector<Siblings> *doomed = nullptr;
    // Items that somebody else has in a list stay, and are not to be copied for it.
    if (children.isEmpty() || !children.isDetached())
        return;
    if (doomed) {
        doomed->push_back({std::move(children)});
        return;
    }
    std::vector<Siblings> pending;
    pending.push_back({std::move(children)});
    doomed = &pending;
    while (!pending.empty()) {
        Siblings &siblings = pending.back();
        const Item item = std::move(siblings.items[siblings.next++]);
        if (siblings.next == siblings.items.size())
            pending.pop_back();
    }
    doomed = nullptr;
}

} // namespace

/**
 * The children of an entry, any of which can leave in constant time: it knows its place, and leaves a gap
 * that is closed when somebody looks, or when gaps prevail.
 */
class OperationLogItemPrivate::Children
{
public:
    Children() = default;
    ~Children() { destroyFlat(std::move(m_items)); }
    Q_DISABLE_COPY_MOVE(Children)

    [[nodiscard]] const QList<Item> &items()
    {
        closeGaps();
        return m_items;
    }
    [[nodiscard]] qsizetype count() const { return m_items.size() - m_gaps; }

    void append(const Item &child)
    {
        child->d->m_place = m_first + m_items.size();
        m_items.append(child);
    }

    void remove(const Item &child)
    {
        // An entry can know a parent that does not know the entry.
        const qsizetype index = child->d->m_place - m_first;
        if (index < 0 || index >= m_items.size() || m_items.at(index) != child)
            return;
        m_items[index].reset();
        ++m_gaps;
        for (; !m_items.isEmpty() && !m_items.constLast(); --m_gaps)
            m_items.removeLast();
        for (; !m_items.isEmpty() && !m_items.constFirst(); --m_gaps, ++m_first)
            m_items.removeFirst();
        if (m_gaps > m_items.size() / 2)
            closeGaps();
    }

    [[nodiscard]] QList<Item> takeAll()
    {
        closeGaps();
        return std::exchange(m_items, {});
    }

private:
    void closeGaps()
    {
        if (m_gaps == 0)
            return;
        m_items.removeIf([](const Item &child) { return !child; });
        m_gaps = 0;
        m_first = 0;
        for (qsizetype index = 0; index < m_items.size(); ++index)
            m_items.at(index)->d->m_place = index;
    }

    QList<Item> m_items;
    qsizetype m_first = 0; ///< The place of the first of the items.
    qsizetype m_gaps = 0;
};

/// An entry with its inside, which exists before the entry and after it.
class OperationLogItem::Stored final : private OperationLogItemPrivate, public OperationLogItem
{
public:
    Stored(qint64 id, qint64 timestamp, const QString &userName, OperationLogItemData &&data)
        : OperationLogItemPrivate(id, timestamp, userName, std::move(data))
        , OperationLogItem(static_cast<OperationLogItemPrivate &>(*this))
    {}
};

OperationLogItemPrivate::OperationLogItemPrivate() = default;
OperationLogItemPrivate::OperationLogItemPrivate(OperationLogItemPrivate &&other) noexcept = default;
OperationLogItemPrivate::~OperationLogItemPrivate() = default;

// Without the children, since an entry has one parent.
OperationLogItemPrivate::OperationLogItemPrivate(const OperationLogItemPrivate &other)
    : m_parent(other.m_parent)
    , m_id(other.m_id)
    , m_internalId(other.m_internalId)
    , m_timestamp(other.m_timestamp)
    , m_userName(other.m_userName)
    , m_data(other.m_data)
{}

OperationLogItemPrivate::OperationLogItemPrivate(const QSharedPointer<OperationLogItem> &parent, qint64 id,
                                                 qint64 timestamp, const QString &userName,
                                                 const OperationLogItemData &data)
    : OperationLogItemPrivate(id, timestamp, userName, OperationLogItemData(data))
{
    m_parent = parent;
    if (parent)
        parent->d->m_wasParent = true;
}

OperationLogItemPrivate::OperationLogItemPrivate(qint64 id, qint64 timestamp, const QString &userName,
                                                 OperationLogItemData &&data)
    : m_id(id)
    , m_internalId(s_nextInternalId++)
    , m_timestamp(timestamp)
    , m_userName(userName)
    , m_data(std::move(data))
{}

QSharedPointer<OperationLogItem>
OperationLogItemPrivate::createItem(const QSharedPointer<OperationLogItem> &parent, qint64 id,
                                    qint64 timestamp, const QString &userName,
                                    const OperationLogItemData &data)
{
    return OperationLogItem::create(parent, id, timestamp, userName, data);
}

QSharedPointer<OperationLogItem>
OperationLogItemPrivate::createItem(const QSharedPointer<OperationLogItem> &parent, qint64 id,
                                    qint64 timestamp, const QString &userName, OperationLogItemData &&data)
{
    return OperationLogItem::create(parent, id, timestamp, userName, std::move(data));
}

OperationLogItemPrivate::Children &OperationLogItemPrivate::childrenToChange()
{
    if (!m_children)
        m_children = std::make_unique<Children>();
    return *m_children;
}

const QList<Item> &OperationLogItemPrivate::children() const
{
    static const QList<Item> none;
    return m_children ? m_children->items() : none;
}

// By value: a reference into the list of children would die when the child leaves it.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void OperationLogItemPrivate::setParent(Item child, Item parent)
{
    if (parent && parent->isSameOrBelow(*child)) {
        OZM_WIDGETS_WARNING() << "Audit trail item" << child->id() << "cannot be placed below itself";
        return;
    }
    if (const Item oldParent = child->parent(); oldParent && oldParent->d->m_children)
        oldParent->d->m_children->remove(child);
    child->d->m_parent = parent;
    if (!parent)
        return;
    parent->d->m_wasParent = true;
    parent->d->childrenToChange().append(child);
}

QSharedPointer<OperationLogItem> OperationLogItem::create(const QSharedPointer<OperationLogItem> &parent,
                                                          qint64 id, qint64 timestamp,
                                                          const QString &userName,
                                                          const OperationLogItemData &data)
{
    return create(parent, id, timestamp, userName, OperationLogItemData(data));
}

QSharedPointer<OperationLogItem> OperationLogItem::create(const QSharedPointer<OperationLogItem> &parent,
                                                          qint64 id, qint64 timestamp,
                                                          const QString &userName,
                                                          OperationLogItemData &&data)
{
    Item item = QSharedPointer<Stored>::create(id, timestamp, userName, std::move(data));
    if (parent)
        OperationLogItemPrivate::setParent(item, parent);
    return item;
}

void OperationLogItem::Release::operator()(OperationLogItemPrivate *inside) const
{
    if (!inside->m_isPartOfItem)
        delete inside;
}

OperationLogItem::OperationLogItem(OperationLogItemPrivate &inside)
    : d(&inside)
{
    inside.m_isPartOfItem = true;
}

OperationLogItem::OperationLogItem()
    : d(new OperationLogItemPrivate)
{}

OperationLogItem::OperationLogItem(const QString &userName, const OperationLogItemData &data)
    : OperationLogItem({}, 0, 0, userName, data)
{}

OperationLogItem::OperationLogItem(const QSharedPointer<OperationLogItem> &parent, qint64 id,
                                   qint64 timestamp, const QString &userName,
                                   const OperationLogItemData &data)
    : d(new OperationLogItemPrivate(parent, id, timestamp, userName, data))
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
    return d->children();
}

QList<QSharedPointer<const OperationLogItem>> OperationLogItem::children() const
{
    return {d->children().cbegin(), d->children().cend()};
}

QSharedPointer<OperationLogItem> OperationLogItem::child(int index)
{
    return d->children().value(index);
}

QSharedPointer<const OperationLogItem> OperationLogItem::child(int index) const
{
    return d->children().value(index);
}

int OperationLogItem::childCount() const
{
    return d->m_children ? static_cast<int>(d->m_children->count()) : 0;
}

bool OperationLogItem::hasChildren() const
{
    return childCount() > 0;
}

int OperationLogItem::indexOf(const QSharedPointer<OperationLogItem> &child) const
{
    return static_cast<int>(d->children().indexOf(child));
}

bool OperationLogItem::isSameOrBelow(const OperationLogItem &other) const
{
    // Nothing is below an entry that never was a parent: this keeps the building of long chains linear.
    if (this == &other || !other.d->m_wasParent)
        return this == &other;
    for (auto above = parent(); above; above = above->parent()) {
        if (above.data() == &other)
            return true;
    }
    return false;
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
    const QList<Item> former = d->childrenToChange().takeAll();
    for (const Item &child : former)
        child->d->m_parent.clear();
    QSet<const OperationLogItem *> placed;
    for (const Item &child : children) {
        if (!child || placed.contains(child.data()))
            continue;
        placed.insert(child.data());
        addChild(child);
    }
}

QJsonObject OperationLogItem::toJsonObject() const
{
    return toJsonObject(logvalue::kDeepestJson);
}

QJsonObject OperationLogItem::toJsonObject(int room) const
{
    if (isNull() || !d->m_data.isValid()) {
        if (hasChildren())
            OZM_WIDGETS_WARNING() << "Audit trail item" << d->m_id
                                  << "has no valid record: JSON leaves it out, with all below it";
        return {};
    }
    if (room < (d->m_data.legacyDescription().isEmpty() ? kLevelsOfRecord : 1)) {
        OZM_WIDGETS_WARNING() << "Audit trail item" << d->m_id
                              << "is nested too deeply for JSON, which leaves it out";
        return {};
    }
    QJsonObject json = d->m_data.toJsonObject(room - 1);
    json.insert("id"_L1, d->m_id);
    json.insert("time"_L1, dateTime().toString(Qt::ISODate));
    json.insert("user"_L1, d->m_userName);

    QJsonArray children;
    for (const Item &child : d->children()) {
        const QJsonObject childJson = child->toJsonObject(room - 2);
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
        const QList<Item> &children = item->d->children();
        std::ranges::transform(children.crbegin(), children.crend(), std::back_inserter(open), &Item::data);
    }
    return rows;
}

} // namespace ozm
