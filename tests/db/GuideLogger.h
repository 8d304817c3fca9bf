#pragma once

#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>
#include <ozm_widgets/db/common/UndoCommand.h>

#include <QHash>

/// The logger of docs/audit-trail.md, which shows what stands between the two marks.
namespace guide {

// [begin]
/// Keeps records in memory; a real one writes each to its store before it returns.
class TrailLogger : public ozm::AuditTrailLoggingInterface
{
public:
    using Item = QSharedPointer<ozm::OperationLogItem>;

    struct Record
    {
        qint64 parent = 0;
        QByteArray json;
        QString failure;
        bool complete = true; // False for a macro until it is committed.
    };

    explicit TrailLogger(const QString &user)
        : m_user(user)
    {}

    // A command ran outside a macro, or was undone.
    Item logCommand(Item parent, const ozm::UndoCommand &command,
                    ozm::OperationLogItemUndoContext context) override
    {
        const Item item = store(parent, withContext(*command.logData(), context), command.lastError(), true);
        for (const ozm::OperationLogItemData &detail : command.childLogData())
            store(item, withContext(detail, context), {}, true);
        return item;
    }

    // The same below the entry of the macro that is open.
    Item logCommandInMacro(Item macro, const ozm::UndoCommand &command,
                           ozm::OperationLogItemUndoContext context) override
    {
        return logCommand(macro, command, context);
    }

    // The macro's record. It is not complete: the macro may end empty, be aborted, or collapse.
    Item logBeginMacro(Item parent, const ozm::OperationLogItemData &data) override
    {
        return store(parent, data, {}, false);
    }

    // A macro has ended. A single child of a collapsing one comes in its place and has left it.
    bool commitMacro(Item macro) override
    {
        const auto record = m_records.find(macro->id());
        if (record == m_records.end())
            return false;
        const Item parent = macro->parent();
        record->parent = parent ? parent->id() : 0;
        record->complete = true;
        return true;
    }

    const QHash<qint64, Record> &records() const { return m_records; }

private:
    static ozm::OperationLogItemData withContext(ozm::OperationLogItemData data,
                                                 ozm::OperationLogItemUndoContext context)
    {
        data.setUndoContext(context);
        return data;
    }

    Item store(const Item &parent, const ozm::OperationLogItemData &data, const ozm::Error &outcome,
               bool complete)
    {
        const qint64 id = m_records.size() + 1;
        const bool isBelow = parent && !parent->isNull();
        m_records.insert(id, {isBelow ? parent->id() : 0, data.toJson(), outcome.errorMessage(), complete});
        // Return null instead when the record could not be written: the stack warns, the step stands.
        m_items.append(ozm::OperationLogItem::create(isBelow ? parent : Item(), id,
                                                     QDateTime::currentMSecsSinceEpoch(), m_user, data));
        return m_items.constLast();
    }

    const QString m_user;
    QHash<qint64, Record> m_records;
    QList<Item> m_items; // Held: the stack knows its entries weakly.
};
// [end]

} // namespace guide
