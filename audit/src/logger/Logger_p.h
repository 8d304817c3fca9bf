#pragma once

#include "SessionFacts.h"
#include "WriteQueue.h"

#include <ozm_audit/Logger.h>
#include <ozm_widgets/db/common/UndoCommand.h>

#include <atomic>
#include <mutex>
#include <optional>

namespace ozm::audit {

class Logger::Private
{
public:
    Private(Store &used, const LoggerOptions &given);

    using Item = QSharedPointer<OperationLogItem>;

    struct Stored
    {
        qint64 id = 0; ///< 0 when it could not be stored.
        qint64 timeMs = 0;
    };
    /// A step's content, which may outlive its command.
    struct Content
    {
        OperationLogItemData data;
        QList<OperationLogItemData> details;
        OperationLogItemUndoContext context;
    };
    struct Prepared
    {
        const UndoCommand *command; ///< To tell one from another, not to be used.
        Content content;
        qint64 parent = 0;
        Stored stored;
    };

    void beginSession();
    void endSession();
    void recordUnfinishedSession();

    [[nodiscard]] PendingRecord recordOf(Kind kind, const OperationLogItemData &data,
                                         OperationLogItemUndoContext context);
    void stamp(PendingRecord &record);
    [[nodiscard]] static std::optional<Content> contentOf(const Step &step);
    void addRecords(QList<PendingRecord> &records, const std::optional<Content> &content, qint64 parent,
                    const Error &outcome = {}, const QString &reason = {});
    /// Ids of the records, or an error and nothing stored.
    [[nodiscard]] Result<QList<Stored>> store(QList<PendingRecord> records);
    [[nodiscard]] Error storeOne(const PendingRecord &record);
    [[nodiscard]] Stored storeFirst(QList<PendingRecord> records);
    [[nodiscard]] Error storePrepared(const QList<PendingRecord> &records, const QList<Step> &steps);
    [[nodiscard]] std::optional<Stored> takePrepared(const Step &step);
    [[nodiscard]] Stored recordStep(const Step &step, qint64 parent);
    [[nodiscard]] Item itemOf(const Stored &stored, const Item &parent, const OperationLogItemData &data,
                              OperationLogItemUndoContext context) const;
    [[nodiscard]] Result<QString> reasonFor(const QList<OperationLogItemData> &data);
    void addClockJump(QList<PendingRecord> &records);
    void written(qint64 number);
    [[nodiscard]] Error makeCheckpoint();

    Store &store_;
    const LoggerOptions options;
    Clock machineClock;
    Clock &clock;
    const SessionFacts facts;
    const qint64 beginUs;
    /// Where wall and monotonic clock stood when they were last found to agree.
    qint64 wallBase = 0;
    qint64 monotonicBase = 0;

    QList<Prepared> prepared;
    std::optional<Stored> preparedMacro;
    /// Marks that could not be written when they were due.
    QList<PendingRecord> overdueMarks;
    Error error;
    qint64 serial = 0;

    mutable std::mutex checkpointMutex;
    std::atomic<qint64> lastCheckpoint = 0;
    Error checkpointError;

    // Last: its thread uses what stands above.
    std::unique_ptr<WriteQueue> queue;
};

} // namespace ozm::audit
