#pragma once

#include <ozm_audit/Store.h>
#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>

#include <QDeadlineTimer>
#include <QList>

#include <memory>

namespace ozm {
class UndoStack;
}

namespace ozm::audit {

/// Where a logger's times come from; another one can be given to tests.
class OZM_AUDIT_EXPORT Clock
{
public:
    virtual ~Clock();
    /// Milliseconds since 1970-01-01 UTC; may be set by people and by servers.
    [[nodiscard]] virtual qint64 wallMs();
    /// Microseconds of a clock that nobody can set and that counts on while the machine sleeps.
    [[nodiscard]] virtual qint64 monotonicUs();
};

/**
 * Says which steps need a reason, and gets it from the user. The application implements it.
 *
 * A step whose reason is demanded but not given, or not in the list, is refused and recorded as refused.
 */
class OZM_AUDIT_EXPORT ReasonPolicy
{
public:
    /// How urgently a step asks for a reason.
    enum class Demand
    {
        None,
        Optional,
        Required,
        FromList,
    };

    virtual ~ReasonPolicy();
    /// By kind of subject and attribute, as @p data has them.
    [[nodiscard]] virtual Demand demand(const OperationLogItemData &data) const = 0;
    /// The reasons to choose from, for FromList.
    [[nodiscard]] virtual QStringList choices(const OperationLogItemData &data) const;
    /// Asks the user; empty when no reason is given. Once for each step or macro.
    [[nodiscard]] virtual QString reason(const OperationLogItemData &data) = 0;
};

/// One step that an undo stack is about to run.
struct Step
{
    const UndoCommand *command;          ///< Not owned.
    OperationLogItemUndoContext context; ///< Made anew, undone or redone.
};

/// How a logger records; the defaults suit one user at one machine.
struct LoggerOptions
{
    Person user = {};     ///< Who acts.
    QString program = {}; ///< The application's name when empty.
    QString version = {}; ///< The application's version when empty.

    /// Records are handed to a thread that commits them in groups, see Logger::watermark().
    bool queued = false;
    /// So many records may wait; a further one waits for room.
    int queueLength = 100'000;

    ReasonPolicy *reasons = nullptr; ///< Not owned.
    Clock *clock = nullptr;          ///< Not owned; the machine's when null.

    /// Checkpoints go to these at the end of the session, and each time so many entries were added.
    std::vector<std::shared_ptr<CheckpointSink>> checkpointSinks = {};
    /// Signs the checkpoints; they are unsigned when it is null.
    std::shared_ptr<const SigningKey> checkpointKey = {};
    int checkpointEvery = 1000; ///< Entries from one checkpoint to the next.
};

/**
 * Records the steps of an undo stack, and all else that happens in a session, in a Store.
 *
 *     ozm::audit::Logger logger(*store, {.user = {u"jdoe"_s, u"Jane Doe"_s, u"analyst"_s}});
 *     stack.setLogging(&logger);
 *     error = logger.push(stack, new SetCharge(row, 3)); // recorded first, then made
 *     error = logger.undo(stack);
 *
 * push(), undo() and redo() record a step before it runs: a step that cannot be recorded, or whose reason is
 * missing, is not made. When a step turns out otherwise than foreseen, or does not run, a further entry says
 * so. Steps that go to the stack directly are recorded after they have run; the stack then warns when that
 * fails.
 *
 * Queued, for bulk work: records are durable only up to the watermark; mark what is above it in every view,
 * and wait for it where it matters. A full queue waits, and nothing is dropped. When the store cannot be
 * written, error() says so and further steps are refused until it can.
 *
 * The session is recorded from construction to destruction; one that ended otherwise is recorded by the next
 * logger on the store. Jumps of the wall clock are recorded. GUI thread; uses the store, does not own it.
 */
class OZM_AUDIT_EXPORT Logger : public AuditTrailLoggingInterface
{
public:
    Logger(Store &store, const LoggerOptions &options);
    ~Logger() override;
    Q_DISABLE_COPY_MOVE(Logger)

    /// Why nothing can be recorded at present; no error when it can.
    [[nodiscard]] Error error() const;
    /// Names this run in the trail; a new one for each logger.
    [[nodiscard]] QString session() const;
    /// The store that it writes to.
    [[nodiscard]] Store &store() const;

    /// Records @p command, has @p stack run it and takes ownership, whatever the outcome.
    [[nodiscard]] Error push(UndoStack &stack, UndoCommand *command);
    /// Records that the last step of @p stack is undone, and undoes it once the record is kept.
    [[nodiscard]] Error undo(UndoStack &stack);
    /// Records the next step of @p stack, and redoes it once the record is kept.
    [[nodiscard]] Error redo(UndoStack &stack);

    // For an application that runs steps itself: prepare, run, settle.

    /// Stores the records of @p steps, all or none, before they run. Steps that their command keeps out of
    /// the trail are passed over.
    [[nodiscard]] Error prepare(const QList<Step> &steps);
    /// The same, below a macro of their own.
    [[nodiscard]] Error prepareMacro(const OperationLogItemData &data, const QList<Step> &steps);
    /// To be called once the steps have run.
    Error settle();

    /// Stores a step that will not run, with the reason why.
    [[nodiscard]] Error recordRefused(const Step &step, const Error &reason);
    /// Stores something that is not a step.
    [[nodiscard]] Error recordEvent(const OperationLogItemData &data, const Error &outcome = {});
    /// Stores an entry of any kind; user, session, program and times are filled in where they are empty.
    [[nodiscard]] Error record(Draft draft);

    /// Serial number of the last record that is durable, of those that this logger was given.
    [[nodiscard]] qint64 watermark() const;
    /// Serial number of the last record that this logger was given.
    [[nodiscard]] qint64 handedOver() const;
    /// Waits until all that was handed over is durable; false at the deadline, or when the store fails.
    [[nodiscard]] bool waitForDurable(QDeadlineTimer deadline = QDeadlineTimer::Forever);
    /// False for an item above the watermark.
    [[nodiscard]] bool isDurable(const OperationLogItem &item) const;
    /// The number of an item's entry, 0 above the watermark. Queued items have negative ids of their own.
    [[nodiscard]] qint64 numberOf(qint64 itemId) const;

    /// Makes a checkpoint and gives it to the sinks.
    [[nodiscard]] Error checkpoint();
    /// Why the last checkpoint could not be given to a sink; steps are recorded all the same.
    [[nodiscard]] Error checkpointError() const;

    bool commitMacro(QSharedPointer<OperationLogItem> macro) override;
    QSharedPointer<OperationLogItem> logCommand(QSharedPointer<OperationLogItem> parent,
                                                const UndoCommand &command,
                                                OperationLogItemUndoContext context) override;
    QSharedPointer<OperationLogItem> logEvent(QSharedPointer<OperationLogItem> parent,
                                              const OperationLogItemData &data) override;
    QSharedPointer<OperationLogItem> logCommandInMacro(QSharedPointer<OperationLogItem> macro,
                                                       const UndoCommand &command,
                                                       OperationLogItemUndoContext context) override;
    QSharedPointer<OperationLogItem> logBeginMacro(QSharedPointer<OperationLogItem> parent,
                                                   const OperationLogItemData &data) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm::audit
