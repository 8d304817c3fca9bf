#pragma once

#include <ozm_widgets/db/common/UndoStack.h>

namespace ozm {

class UndoStackPrivate
{
public:
    /// What a running push knows of its command, which the base class deletes when it merges it or when it
    /// turns out obsolete. Pushes nest, when a step or a slot pushes.
    struct Push
    {
        UndoCommand *command; ///< Null once the command is deleted.
        Push *outer;
        bool started = false; ///< The first run, which is the push's own, has begun.
        Error error = {};     ///< What that run came to, and left in the trail.
        QWeakPointer<OperationLogItem> item = {};
    };

    explicit UndoStackPrivate(UndoStack *owner)
        : qptr(owner)
    {}

    /// The push that asked for the run of @p command which now begins; null for a step of the history.
    [[nodiscard]] Push *pushThatRuns(const UndoCommand *command);
    /// To be called by a command's destructor.
    void forget(const UndoCommand *command);

    void removeFailed(UndoCommand *command);
    void forgetClearedMacros();
    [[nodiscard]] QSharedPointer<OperationLogItem> takeOpenMacroItem();
    [[nodiscard]] bool commitMacro(const QSharedPointer<OperationLogItem> &macro);
    void finishLastMacroCommand(bool committed);
    void dropCounters();

    [[nodiscard]] bool mayLog(OperationLogItemUndoContext context) const;
    [[nodiscard]] QSharedPointer<OperationLogItem> log(const UndoCommand &command,
                                                       OperationLogItemUndoContext context);

    UndoStack *const qptr;
    QList<QSharedPointer<OperationLogItem>> openMacroItems;
    QList<qint32> doneCounts;
    QList<qint32> undoneCounts;
    UndoCommand *lastMacroCommand = nullptr;
    AuditTrailLoggingInterface *logging = nullptr;
    QWeakPointer<OperationLogItem> recentLogItem;
    bool inPush = false;

    Push *push = nullptr;
    int openMacros = 0;
    /// Steps of the history now being undone or redone; while there are any, the history must not change.
    int historySteps = 0;
};

} // namespace ozm
