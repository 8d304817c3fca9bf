#pragma once

#include <ozm_widgets/db/common/UndoStack.h>

#include <utility>

namespace ozm {

class AuditTrailMonitor;

class UndoStackPrivate
{
public:
    /// The state of a running push. It outlives the command, which the base class deletes when it merges the
    /// command or when the command turns out obsolete. Pushes nest, when a step or a slot pushes.
    struct Push
    {
        UndoCommand *command; ///< Null once the command is deleted.
        Push *outer;
        bool started = false; ///< The first run, which is the push's own, has begun.
        bool placing = false; ///< That run is over; the base class asks for it once more.
        Error error = {};     ///< What that run came to, and left in the trail.
        QWeakPointer<OperationLogItem> item = {};
    };

    explicit UndoStackPrivate(UndoStack *owner)
        : qptr(owner)
    {}

    /// The push that asked for the run of @p command which now begins; null for a step of the history.
    [[nodiscard]] Push *pushThatRuns(const UndoCommand *command)
    {
        return push && push->command == command && !std::exchange(push->started, true) ? push : nullptr;
    }
    /// True when the run that now begins is the one that the base class asks for; it has been done already.
    [[nodiscard]] bool takePlacing(const UndoCommand *command)
    {
        return push && push->command == command && std::exchange(push->placing, false);
    }
    /// To be called by a command's destructor.
    void forget(const UndoCommand *command);

    [[nodiscard]] bool isMacroOpen() const;
    void place(Push &run);
    void forgetClearedMacros();
    void openMacro();
    void closeMacro();
    [[nodiscard]] QSharedPointer<OperationLogItem> takeOpenMacroItem();
    [[nodiscard]] bool commitMacro(QSharedPointer<OperationLogItem> macro);
    void finishLastMacroCommand(bool committed);
    void dropCounters();

    void onIndexChanged(int index);
    /// Takes in what came through the base class's push() since the last look.
    void adoptLatest();
    void adoptFrom(const QUndoCommand &group);
    void adopt(const QUndoCommand &command);
    [[nodiscard]] bool isKnown(const QUndoCommand &command) const;
    void dropFailed(UndoCommand &command);

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
    /// Serial numbers, since a macro that was cleared must not be taken for one that is begun later.
    QList<quint64> openMacros;
    quint64 nextMacro = 1;
    int historySteps = 0;
    bool restoring = false; ///< Commands are passed over, to bring back the index.
    /// Only compared: a command that this stack warned about.
    const QUndoCommand *lastUnrecorded = nullptr;
    AuditTrailMonitor *monitor = nullptr;
};

/// A step of the history that is being undone or redone. While there is one, the history must not change.
class UndoHistoryStep
{
public:
    explicit UndoHistoryStep(UndoStackPrivate &stack);
    ~UndoHistoryStep();
    Q_DISABLE_COPY_MOVE(UndoHistoryStep)

    /// The base class moves its index for refused steps as well: puts it back.
    void restoreIndex();

private:
    UndoStackPrivate &m_stack;
    const int m_index;
    const int m_count;
};

} // namespace ozm
