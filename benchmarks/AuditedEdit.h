#pragma once

#include <ozm_widgets/db/common/UndoCommand.h>

#include <QUndoCommand>
#include <QVariant>

/// One edit in two forms: as a bare command of the toolkit, which keeps what it needs to go back as any
/// such command does, and as an audited one.
namespace bench {

class BareSet : public QUndoCommand
{
public:
    BareSet(QVariant *cell, const QVariant &value)
        : m_cell(cell)
        , m_value(value)
        , m_oldValue(*cell)
    {
        setText(QStringLiteral("Set charge"));
    }
    void redo() override { *m_cell = m_value; }
    void undo() override { *m_cell = m_oldValue; }

private:
    QVariant *m_cell;
    QVariant m_value;
    QVariant m_oldValue;
};

class AuditedSet : public ozm::UndoCommand
{
public:
    AuditedSet(QVariant *cell, const QVariant &value)
        : m_cell(cell)
    {
        setText(QStringLiteral("Set charge"));
        static const ozm::OperationLogItemSubject subject(
            ozm::OperationLogItemSubject::Type::Label, {{QStringLiteral("Name"), QStringLiteral("T12")}}, {});
        static const QList<QString> attributes{QStringLiteral("Charge")};
        setLogData({ozm::OperationLogItemType::Set, subject, attributes, value, *cell});
    }

protected:
    // The record holds both values, so that the command need not keep them a second time.
    ozm::Error doRedo() override
    {
        *m_cell = logData()->value();
        return {};
    }
    ozm::Error doUndo() override
    {
        *m_cell = logData()->oldValue();
        return {};
    }

private:
    QVariant *m_cell;
};

} // namespace bench
