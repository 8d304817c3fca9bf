// An edit that can be undone, and of which it is known afterwards who did it.

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>
#include <ozm_widgets/db/common/UndoCommand.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

/// Prints each record. A real logger writes it to a database before it returns, as ozm_audit does.
class PrintingLogger : public ozm::AuditTrailLoggingInterface
{
public:
    using Item = QSharedPointer<ozm::OperationLogItem>;

    Item logCommand(Item parent, const ozm::UndoCommand &command,
                    ozm::OperationLogItemUndoContext context) override
    {
        ozm::OperationLogItemData data = *command.logData();
        data.setUndoContext(context);
        return keep(parent, data);
    }
    Item logCommandInMacro(Item macro, const ozm::UndoCommand &command,
                           ozm::OperationLogItemUndoContext context) override
    {
        return logCommand(macro, command, context);
    }
    Item logBeginMacro(Item parent, const ozm::OperationLogItemData &data) override
    {
        return keep(parent, data);
    }
    bool commitMacro(Item macro) override { return !macro.isNull(); }

private:
    Item keep(const Item &parent, const ozm::OperationLogItemData &data)
    {
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        // The stack refers to entries weakly: whoever logs holds them.
        m_items.append(ozm::OperationLogItem::create(parent, m_items.size() + 1, now, u"ada"_s, data));
        QTextStream(stdout) << m_items.constLast()->dataToString() << Qt::endl;
        return m_items.constLast();
    }

    QList<Item> m_items;
};

class SetCharge : public ozm::UndoCommand
{
public:
    SetCharge(RowNode &row, int charge)
        : m_row(row)
    {
        using namespace ozm;
        setLogData({OperationLogItemType::Set,
                    {OperationLogItemSubject::Type::Label, row},
                    {kCharge},
                    charge,
                    row.getDataAt(kCharge)});
    }

protected:
    ozm::Error doRedo() override { return set(logData()->value()); }
    ozm::Error doUndo() override { return set(logData()->oldValue()); }

private:
    ozm::Error set(const QVariant &charge)
    {
        if (m_row.setDataAt(kCharge, charge))
            return {};
        return ozm::Error(ozm::ErrorCode::Failed, u"This row does not exist."_s);
    }

    RowNode &m_row;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    PrintingLogger logger;
    ozm::UndoStack stack;
    stack.setLogging(&logger);

    RowNode row({kName, kCharge});
    row.setDataAt(kName, u"T12"_s);
    row.setDataAt(kCharge, 2);
    const ozm::Error error = stack.push(new SetCharge(row, 3));
    stack.undo();
    return error.hasError() || row.getDataAt(kCharge).toInt() != 2 ? 1 : 0;
}
