#pragma once

#include <ozm_widgets/db/common/OperationLogItemData.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QDateTime>
#include <QEnableSharedFromThis>
#include <QJsonObject>
#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QWeakPointer>

#include <memory>

namespace ozm {

class OperationLogItemPrivate;

/**
 * One entry of the audit trail: a record with its id, time and user, in a tree in which a macro's entry is
 * the parent of the entries of the commands that ran inside it.
 *
 * Loggers make entries with create() and hand them on by QSharedPointer; a parent owns its children, a child
 * only knows its parent.
 *
 *     using namespace ozm;
 *     using namespace Qt::StringLiterals;
 *     const qint64 now = QDateTime::currentMSecsSinceEpoch();
 *     const OperationLogItemData data(OperationLogItemType::Set, OperationLogItemSubject::Type::Project,
 *                                     {u"Title"_s}, u"Digest 7"_s);
 *     const auto macro = OperationLogItem::create({}, 7, now, u"jdoe"_s, data);
 *     const auto child = OperationLogItem::create(macro, 8, now, u"jdoe"_s, data);
 *     const QJsonObject json = macro->toJsonObject(); // the child is under "children"
 *
 * An entry with time stamp 0 is a null entry: a logger's sign of failure. An entry cannot become its own
 * ancestor: such a link is refused with a warning and changes nothing. Destruction takes no stack, however
 * deep the tree. GUI thread, as the undo stack.
 */
class OZM_WIDGETS_EXPORT OperationLogItem : public QEnableSharedFromThis<OperationLogItem>
{
public:
    /// A new entry, the last child of @p parent unless that is null.
    [[nodiscard]] static QSharedPointer<OperationLogItem>
    create(const QSharedPointer<OperationLogItem> &parent, qint64 id, qint64 timestamp,
           const QString &userName, const OperationLogItemData &data);
    [[nodiscard]] static QSharedPointer<OperationLogItem>
    create(const QSharedPointer<OperationLogItem> &parent, qint64 id, qint64 timestamp,
           const QString &userName, OperationLogItemData &&data);

    virtual ~OperationLogItem();
    Q_DISABLE_COPY_MOVE(OperationLogItem)

    /// True when there is no record in it.
    [[nodiscard]] bool isNull() const;
    /// The id that the logger gave it.
    [[nodiscard]] qint64 id() const;
    /// Serial number of the entry within this process; never stored.
    [[nodiscard]] qint64 internalId() const;
    /// Milliseconds since 1970-01-01 UTC.
    [[nodiscard]] qint64 timestamp() const;
    /// The time stamp in local time.
    [[nodiscard]] QDateTime dateTime() const;
    /// Who did it.
    [[nodiscard]] QString userName() const;
    /// Never null; lives as long as the entry.
    [[nodiscard]] const OperationLogItemData *data() const;
    /// The record as one line for people.
    [[nodiscard]] QString dataToString() const;

    /// Null at the top, and once the parent is gone.
    [[nodiscard]] QSharedPointer<OperationLogItem> parent();
    [[nodiscard]] QSharedPointer<const OperationLogItem> parent() const;
    /// The entries directly below this one, the oldest first.
    [[nodiscard]] QList<QSharedPointer<OperationLogItem>> children();
    [[nodiscard]] QList<QSharedPointer<const OperationLogItem>> children() const;
    /// Null when @p index is out of range.
    [[nodiscard]] QSharedPointer<OperationLogItem> child(int index);
    [[nodiscard]] QSharedPointer<const OperationLogItem> child(int index) const;
    /// How many entries are directly below this one.
    [[nodiscard]] int childCount() const;
    /// True for a macro in which something was done.
    [[nodiscard]] bool hasChildren() const;
    /// -1 when @p child is none of the children.
    [[nodiscard]] int indexOf(const QSharedPointer<OperationLogItem> &child) const;

    /// Changes the id once the logger has stored the entry; time and user are never changed.
    void setId(qint64 id);

    /// Appends @p child, taking it away from the parent it had. Null is ignored.
    void addChild(const QSharedPointer<OperationLogItem> &child);

    /// Replaces the children: those left out become top-level, those put in leave their former parents.
    /// Null, repeated and ancestral entries are passed over.
    void setChildren(const QList<QSharedPointer<OperationLogItem>> &children);

    /**
     * The entry with its children; empty for a null entry or an invalid record, which is also left out of
     * its parent's "children", with all below it.
     *
     * Qt's reader of JSON takes 1,024 arrays and objects one inside the other. Entries are left out where
     * that would not be enough: those more than 510 levels below this one, or 511 for legacy descriptions.
     * Leaving out an entry for its depth, or one that has children, is said in a warning; toStringLists()
     * has them all.
     */
    [[nodiscard]] QJsonObject toJsonObject() const;

    /// Id, parent's id (empty at the top), time in the locale's short form, user, and the record's text.
    [[nodiscard]] QList<QString> toStringList() const;
    /// The rows of this entry and of all below it, depth first.
    [[nodiscard]] QList<QList<QString>> toStringLists() const;

protected:
    // An entry made with a parent knows it, but joins the parent's children with addChild() or setChildren()
    // only.
    OperationLogItem();
    OperationLogItem(const QString &userName, const OperationLogItemData &data);
    OperationLogItem(const QSharedPointer<OperationLogItem> &parent, qint64 id, qint64 timestamp,
                     const QString &userName, const OperationLogItemData &data);

private:
    friend class OperationLogItemPrivate;
    class Stored;

    /// The inside of an entry made by create() is part of the entry's memory.
    struct Release
    {
        void operator()(OperationLogItemPrivate *inside) const;
    };

    explicit OperationLogItem(OperationLogItemPrivate &inside);
    [[nodiscard]] bool isSameOrBelow(const OperationLogItem &other) const;
    [[nodiscard]] QJsonObject toJsonObject(int room) const;

    const std::unique_ptr<OperationLogItemPrivate, Release> d;
};

/**
 * The inside of an OperationLogItem, and the place where loggers make entries.
 */
class OZM_WIDGETS_EXPORT OperationLogItemPrivate
{
public:
    OperationLogItemPrivate();
    OperationLogItemPrivate(const QSharedPointer<OperationLogItem> &parent, qint64 id, qint64 timestamp,
                            const QString &userName, const OperationLogItemData &data);
    OperationLogItemPrivate(const OperationLogItemPrivate &other);
    OperationLogItemPrivate(OperationLogItemPrivate &&other) noexcept;
    OperationLogItemPrivate &operator=(const OperationLogItemPrivate &) = delete;
    OperationLogItemPrivate &operator=(OperationLogItemPrivate &&) = delete;
    ~OperationLogItemPrivate();

    /// A new entry, the last child of @p parent unless that is null.
    [[nodiscard]] static QSharedPointer<OperationLogItem>
    createItem(const QSharedPointer<OperationLogItem> &parent, qint64 id, qint64 timestamp,
               const QString &userName, const OperationLogItemData &data);
    [[nodiscard]] static QSharedPointer<OperationLogItem>
    createItem(const QSharedPointer<OperationLogItem> &parent, qint64 id, qint64 timestamp,
               const QString &userName, OperationLogItemData &&data);

    /// Moves @p child, which must not be null, to the end of @p parent's children; a null @p parent makes it
    /// top-level.
    static void setParent(QSharedPointer<OperationLogItem> child, QSharedPointer<OperationLogItem> parent);

private:
    friend class OperationLogItem;
    class Children;

    OperationLogItemPrivate(qint64 id, qint64 timestamp, const QString &userName,
                            OperationLogItemData &&data);
    [[nodiscard]] Children &childrenToChange();
    [[nodiscard]] const QList<QSharedPointer<OperationLogItem>> &children() const;

    QWeakPointer<OperationLogItem> m_parent;
    qint64 m_id = 0;
    qint64 m_internalId = 0;
    qint64 m_timestamp = 0;
    QString m_userName;
    OperationLogItemData m_data;
    std::unique_ptr<Children> m_children;
    qsizetype m_place = 0;       ///< Among the parent's children; see Children.
    bool m_wasParent = false;    ///< Some entry has, or had, this one as its parent.
    bool m_isPartOfItem = false; ///< In one piece of memory with its entry.
};

} // namespace ozm
