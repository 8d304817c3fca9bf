#pragma once

#include <ozm_widgets/db/common/OperationLogItem.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QSharedPointer>

namespace ozm {

class UndoCommand;

/**
 * Where an UndoStack hands its audit records. The application implements it, keeps it alive while a stack
 * uses it, and owns it.
 *
 * An implementation reads the command's logData(), childLogData(), text() and lastError(), stores the
 * record, and returns an entry made with OperationLogItem::create, stamped with id, time and user. It holds
 * the entries it returns: the stack and the command know their recentLogItem() weakly, so that is null once
 * nobody holds the entry. A null pointer or a null entry says that the record could not be stored; the stack
 * then warns, and the step itself stands. An application that must not edit without a record stores it before
 * the step runs. docs/audit-trail.md shows a logger of all four operations.
 *
 * Called on the stack's thread, while a step runs: do not push, undo or redo on the calling stack from in
 * here. Virtual operations are called by position by code built against earlier versions: their order is
 * fixed. Entries are passed by value, so that an implementation may keep them.
 */
class OZM_WIDGETS_EXPORT AuditTrailLoggingInterface
{
public:
    /**
     * An ended macro is complete; @p macro is its entry, or the one child that stands for it.
     *
     * The child has left the macro's entry by then, so a logger that stores the parent of a record has to
     * store here that this one has none (or the parent given to the macro, if that is how it shows them).
     * The macro's own record, which logBeginMacro() stored, stays where it is, without children; the same
     * goes for a macro that ended empty or was aborted, of which the logger is told nothing. A logger that
     * is not to show those marks a macro as complete in here, and shows complete ones only.
     */
    virtual bool commitMacro(QSharedPointer<OperationLogItem> macro) = 0;

    /// A command ran outside a macro, or was undone. @p parent is null, or a macro's entry that is null.
    virtual QSharedPointer<OperationLogItem> logCommand(QSharedPointer<OperationLogItem> parent,
                                                        const UndoCommand &command,
                                                        OperationLogItemUndoContext context) = 0;

    /**
     * Something happened that is no command: a sign-in, an export, a setting that cannot be undone. The
     * application calls this itself; the stack does not.
     *
     * By default the record is stored as a macro without commands, begun and committed at once; null when
     * either fails.
     */
    virtual QSharedPointer<OperationLogItem> logEvent(QSharedPointer<OperationLogItem> parent,
                                                      const OperationLogItemData &data);

    /// A command ran for the first time, or again, while the macro of the entry @p macro is open.
    virtual QSharedPointer<OperationLogItem> logCommandInMacro(QSharedPointer<OperationLogItem> macro,
                                                               const UndoCommand &command,
                                                               OperationLogItemUndoContext context) = 0;

    /// A macro begins; @p parent, which may be null, is the entry of the macro around it. The undo context
    /// is the one that @p data has, None unless the application set another: a macro is not run again, its
    /// commands are.
    virtual QSharedPointer<OperationLogItem> logBeginMacro(QSharedPointer<OperationLogItem> parent,
                                                           const OperationLogItemData &data) = 0;

    // Last, for the sake of the fixed order above.
    virtual ~AuditTrailLoggingInterface();
};

} // namespace ozm
