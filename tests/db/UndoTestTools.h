#pragma once

#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>
#include <ozm_widgets/db/common/UndoCommand.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <QStringList>

#include <functional>

namespace ozm::test {

/// An edit by its script. ScriptedCommand plays it, and UndoModel says what playing it has to come to.
struct Edit
{
    enum Step
    {
        None,
        Undo,
        Redo,
        Begin,
        End,
        Abort,
        Clear
    };

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
    /// Done to the stack from within each run, or from within beforeBeginFirst().
    Step step = None;
    bool stepsBefore = false;
    /// Pushed from within the first run.
    std::shared_ptr<Edit> inner = {};

    // The model's knowledge of it.
    bool firstRun = true;
    bool failed = false;
    bool obsolete = false;
    bool alive = true;
};

[[nodiscard]] OperationLogItemData recordOf(const QString &name);

/// A command that writes into a journal what is done with it, and that it died.
class ScriptedCommand : public UndoCommand
{
public:
    /// Called from within a run, or from within beforeBeginFirst(), with the edit to push now.
    using Inside = std::function<void(const std::shared_ptr<Edit> &inner)>;

    ScriptedCommand(Edit edit, QStringList *journal, Inside inside = {}, UndoCommand *parent = nullptr);
    ~ScriptedCommand() override;

    int id() const override { return m_edit.mergeId; }
    bool mergeWith(const QUndoCommand *other) override;
    using UndoCommand::setChildLogData;

protected:
    Error doUndo() override;
    Error doRedo() override;
    Error beforeBeginFirst() override;
    Error afterEndLast(bool committed) override;

private:
    Error note(const QString &what, bool fails);

    Edit m_edit;
    QStringList *const m_journal;
    const Inside m_inside;
};

/// A logger that keeps its entries, numbered from 1, and writes into a journal what was asked of it.
class RecordingLogger : public AuditTrailLoggingInterface
{
public:
    using Item = QSharedPointer<OperationLogItem>;

    explicit RecordingLogger(QStringList *journal)
        : m_journal(journal)
    {}

    bool fails = false;
    /// By a null entry for a command instead of a null pointer.
    bool failsByNullEntry = false;
    QList<Item> items;

    bool commitMacro(Item macro) override;
    Item logCommand(Item parent, const UndoCommand &command, OperationLogItemUndoContext context) override;
    Item logCommandInMacro(Item macro, const UndoCommand &command,
                           OperationLogItemUndoContext context) override;
    Item logBeginMacro(Item parent, const OperationLogItemData &data) override;

private:
    Item keep(const QString &what, const Item &parent, const OperationLogItemData &data);

    QStringList *const m_journal;
};

} // namespace ozm::test
