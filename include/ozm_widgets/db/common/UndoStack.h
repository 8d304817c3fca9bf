#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/db/common/OperationLogItem.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QSharedPointer>
#include <QString>
#include <QUndoStack>
#include <QWeakPointer>

#include <memory>

namespace ozm {

class AuditTrailLoggingInterface;
class AuditTrailMonitor;
class UndoCommand;
class UndoStackPrivate;

/**
 * An undo stack that hands a record of every step to an audit-trail logger.
 *
 *     void rename(ozm::UndoStack &stack, const QList<ozm::UndoCommand *> &renames,
 *                 const ozm::OperationLogItemData &record)
 *     {
 *         ozm::UndoMacro macro(stack, record); // or beginMacro() and endMacro()
 *         for (ozm::UndoCommand *command : renames) {
 *             if (const ozm::Error error = stack.push(command); error.hasError())
 *                 qWarning() << error;
 *         }
 *         macro.end();
 *     }
 *
 * Runs, errors: push() returns the command's error, and a command that failed leaves the history as it was,
 * with all that can be undone and redone. Inside an open macro the toolkit cannot take it out again, so
 * there it stays. Redo and undo through QUndoStack's own slots leave theirs in the command's lastError().
 *
 * While a step of the history is being undone or redone, the history must not change: push(), beginMacro(),
 * undo(), redo() and clear() are then refused, with a warning. From within a push all of them work.
 *
 * A command pushed through a QUndoStack pointer runs before this stack knows of it. It is recorded when it
 * is in the history: at once, or inside a macro at the next push or end. Its beforeBeginFirst() is not
 * called. A command that is no UndoCommand cannot be recorded: a warning says so.
 *
 * Macros: an ended macro of trivial content is recorded as OperationLogItemData::collapseTrivialMacro()
 * says: nothing is committed for an empty one, and the child of one with a single child leaves its entry
 * and is committed instead. The macro's own entry stays where it is either way. An aborted macro keeps its
 * commands in the history and in the trail, but is not committed. Clearing in the middle of macros forgets
 * those macros as aborting them would.
 *
 * setLogging() takes effect at once and touches nothing else: change the logger between macros, for the
 * entry of an open macro stays with the stack until a macro is ended with a logger attached.
 *
 * GUI thread. The logger is not owned and must outlive its use here.
 */
class OZM_WIDGETS_EXPORT UndoStack : public QUndoStack
{
    Q_OBJECT

public:
    explicit UndoStack(QObject *parent = nullptr);
    ~UndoStack() override;

    /// Runs @p command and takes ownership, whatever the outcome; the pointer may be dead afterwards.
    /// Null does nothing. A push while an undo or redo runs is refused: code NotAllowed, and the command
    /// is deleted unrun.
    [[nodiscard]] Error push(UndoCommand *command);

    /// Begins a macro recorded as @p data under @p parent, or under the innermost open macro when that is
    /// null. The history shows @p text, or the data's text when that is empty. Returns the macro's entry:
    /// null without a logger, and when it was refused or could not be recorded.
    QSharedPointer<OperationLogItem> beginMacro(QSharedPointer<OperationLogItem> parent,
                                                const OperationLogItemData &data, const QString &text);
    QSharedPointer<OperationLogItem> beginMacro(const OperationLogItemData &data, const QString &text);

    /// False when a logger is attached and no macro is open, or the logger could not commit it.
    bool endMacro();
    /// False when a logger is attached and no macro is open.
    bool abortMacro();

    /// Forgets all commands and open macros; the trail keeps what was recorded.
    void clear();

    /// Hands records to @p logging from now on; null hands them to nobody. Not owned.
    void setLogging(AuditTrailLoggingInterface *logging);

    /// Tells when a record could not be stored. Never null; lives as long as the stack.
    [[nodiscard]] AuditTrailMonitor *auditTrailMonitor();

    /// The entry that the most recent push left in the trail; null also when the logger does not hold it.
    [[nodiscard]] QWeakPointer<OperationLogItem> recentLogItem() const;

protected:
    /// Records a step of @p command; null when nothing was recorded.
    QSharedPointer<OperationLogItem> createOrLog(const UndoCommand &command,
                                                 OperationLogItemUndoContext context);

private:
    friend class UndoCommand;
    friend class UndoMacro;
    friend class UndoStackPrivate;

    const std::unique_ptr<UndoStackPrivate> d;
};

} // namespace ozm
