#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/db/common/OperationLogItem.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QList>
#include <QUndoCommand>
#include <QWeakPointer>

#include <memory>

namespace ozm {

class UndoHistoryStep;
class UndoStack;

/**
 * An edit that can be undone and that writes an audit record each time it runs.
 *
 * Subclasses put their work into doRedo() and doUndo() and say what is recorded with setLogData(); a
 * command without valid log data runs unrecorded.
 *
 *     class SetCharge : public ozm::UndoCommand
 *     {
 *         Q_DECLARE_TR_FUNCTIONS(SetCharge)
 *
 *     public:
 *         SetCharge(RowNode *row, int charge)
 *             : m_row(row)
 *         {
 *             using namespace ozm;
 *             setText(tr("Set charge"));
 *             setLogData({OperationLogItemType::Set, {OperationLogItemSubject::Type::Label, *row}, {kCharge},
 *                         charge, row->getDataAt(kCharge)});
 *         }
 *
 *     protected:
 *         ozm::Error doRedo() override { return set(logData()->value()); }
 *         ozm::Error doUndo() override { return set(logData()->oldValue()); }
 *
 *     private:
 *         ozm::Error set(const QVariant &charge)
 *         {
 *             using namespace ozm;
 *             if (!m_row->setDataAt(kCharge, charge))
 *                 return Error(ErrorCode::Failed, tr("This row does not exist."));
 *             return {};
 *         }
 *
 *         RowNode *m_row;
 *     };
 *
 * Children (commands made with a parent command) run when the parent's doRedo() and doUndo() call
 * QUndoCommand::redo() and QUndoCommand::undo(); they use the parent's stack, and run unrecorded when
 * there is none.
 *
 * mergeWith() is free for applications. Inside a macro the stack asks it for failed commands as well, so let
 * neither side of a merge be a failed one: begin it with `if (!canMergeWith(other)) return false;`. Both
 * halves of a merged edit are in the trail.
 *
 * GUI thread. The stack deletes the commands it holds; the command does not own the stack.
 */
class OZM_WIDGETS_EXPORT UndoCommand : public QUndoCommand
{
public:
    explicit UndoCommand(UndoCommand *parent = nullptr);
    ~UndoCommand() override;

    /// Runs doUndo() and records it. Refused, with a warning, while a step of the history runs.
    void undo() final;
    /// Runs doRedo() and records it. Refused as undo() is.
    void redo() final;

    /// The outcome of the last step.
    [[nodiscard]] Error lastError() const;
    /// The entry that the last step left in the trail; null when it left none.
    [[nodiscard]] QWeakPointer<OperationLogItem> recentLogItem() const;
    /// False for a command that nobody records.
    [[nodiscard]] bool isAuditTrailEnabled() const;
    /// Never null.
    [[nodiscard]] const OperationLogItemData *logData() const;
    /// Further records that a logger may store below the command's own.
    [[nodiscard]] QList<OperationLogItemData> childLogData() const;

protected:
    /// Takes the change back, or changes nothing and says why.
    virtual Error doUndo() = 0;
    /// Makes the change, or changes nothing and says why.
    virtual Error doRedo() = 0;
    /// Before the first step of a run of commands (a macro, or a parent's children). An error skips the
    /// step that was to come, and its record.
    virtual Error beforeBeginFirst();
    /// After the last step of such a run; @p committed is false when the macro was aborted.
    virtual Error afterEndLast(bool committed);

    /// True when @p other may be merged into this: both are UndoCommands of the same id() other than -1, and
    /// the last step of neither failed.
    [[nodiscard]] bool canMergeWith(const QUndoCommand *other) const;

    [[nodiscard]] OperationLogItemData *logData();
    /// The record of this command, without context.
    void setLogData(const OperationLogItemData &data);
    void setLogData(OperationLogItemData &&data);
    /// Further records that belong to this command's own.
    void setChildLogData(const QList<OperationLogItemData> &data);
    /// To be said before the command is pushed.
    void setAuditTrailEnabled(bool enabled);

private:
    friend class UndoStack;
    friend class UndoStackPrivate;

    void setStack(UndoStack *stack);
    [[nodiscard]] UndoStack *stack() const;

    void runRedo(UndoStack *stack, UndoHistoryStep *step);
    void runUndo(UndoStack *stack, UndoHistoryStep *step);
    [[nodiscard]] bool beginRedo(UndoStack *stack);
    [[nodiscard]] bool beginUndo(UndoStack *stack);
    [[nodiscard]] bool beginsRun();
    [[nodiscard]] bool endsUndoRun(UndoStack *stack) const;

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm
