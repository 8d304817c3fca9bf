#pragma once

#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>
#include <ozm_widgets/db/common/UndoCommand.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <QStringList>

#include <functional>

namespace ozm::test {

/// What a ScriptedCommand does in its steps.
struct Script
{
    QString name;
    int mergeId = -1;
    bool failsRedo = false;
    bool failsUndo = false;
    bool failsBefore = false;
    bool logged = true;
    bool auditTrail = true;
    /// Merges whatever the stack offers, failed or not.
    bool greedy = false;
    bool obsoleteAfterRedo = false;
    std::function<void()> inRedo = {};
    std::function<void()> inUndo = {};
    std::function<void()> inBefore = {};
};

[[nodiscard]] OperationLogItemData recordOf(const QString &name);

/// A command that writes into a journal what is done with it, and that it died.
class ScriptedCommand : public UndoCommand
{
public:
    ScriptedCommand(Script script, QStringList *journal, UndoCommand *parent = nullptr);
    ~ScriptedCommand() override;

    int id() const override { return m_script.mergeId; }
    bool mergeWith(const QUndoCommand *other) override;
    using UndoCommand::setChildLogData;
    using UndoCommand::setLogData;

protected:
    Error doUndo() override;
    Error doRedo() override;
    Error beforeBeginFirst() override;
    Error afterEndLast(bool committed) override;

private:
    Error note(const QString &what, bool fails);

    Script m_script;
    QStringList *const m_journal;
};

/// A logger that keeps its entries, numbered from 1, and writes into a journal what was asked of it.
class RecordingLogger : public AuditTrailLoggingInterface
{
public:
    explicit RecordingLogger(QStringList *journal)
        : m_journal(journal)
    {}

    bool fails = false;
    QList<QSharedPointer<OperationLogItem>> items;

    bool commitMacro(const QSharedPointer<OperationLogItem> &macro) override;
    QSharedPointer<OperationLogItem> logCommand(const QSharedPointer<OperationLogItem> &parent,
                                                const UndoCommand &command,
                                                OperationLogItemUndoContext context) override;
    QSharedPointer<OperationLogItem> logCommandInMacro(const QSharedPointer<OperationLogItem> &macro,
                                                       const UndoCommand &command,
                                                       OperationLogItemUndoContext context) override;
    QSharedPointer<OperationLogItem> logBeginMacro(const QSharedPointer<OperationLogItem> &parent,
                                                   const OperationLogItemData &data) override;

private:
    QSharedPointer<OperationLogItem> keep(const QString &what, const QSharedPointer<OperationLogItem> &parent,
                                          const OperationLogItemData &data);

    QStringList *const m_journal;
};

} // namespace ozm::test
