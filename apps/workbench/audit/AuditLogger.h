#pragma once

#include "audit/AuditRecord.h"

#include <ozm_common_stable/Result.h>
#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>

#include <QCoreApplication>
#include <QList>

#include <optional>

namespace workbench {

class AuditDatabase;

/// One step that an undo stack is about to run.
struct AuditStep
{
    const ozm::UndoCommand *command;
    ozm::OperationLogItemUndoContext context;
};

/**
 * Stores the records of an undo stack's steps, before the steps run.
 *
 *     if (const ozm::Error error = logger.prepare({{command, OperationLogItemUndoContext::New}});
 *         error.hasError())
 *         return error; // not recorded, so not done
 *     stack.push(command);   // asks the logger, which hands the stored record back
 *     logger.settle();
 *
 * A step that nobody prepared is stored when the stack asks; the stack then gets null when that fails. When
 * a prepared step turns out otherwise than foreseen, or is not run at all, a further record says so.
 *
 * Uses the database, does not own it. GUI thread.
 */
class AuditLogger : public ozm::AuditTrailLoggingInterface
{
    Q_DECLARE_TR_FUNCTIONS(AuditLogger)

public:
    AuditLogger(AuditDatabase &database, const QString &user);

    [[nodiscard]] const QString &user() const { return m_user; }
    ~AuditLogger() override;
    Q_DISABLE_COPY_MOVE(AuditLogger)

    /// Stores the records of @p steps, all or none. Steps that their command keeps out of the trail are
    /// passed over.
    [[nodiscard]] ozm::Error prepare(const QList<AuditStep> &steps);
    /// The same, below a macro of their own.
    [[nodiscard]] ozm::Error prepareMacro(const ozm::OperationLogItemData &data,
                                          const QList<AuditStep> &steps);
    /// To be called once the steps have run.
    ozm::Error settle();

    /// Stores a step that will not run, with the reason.
    [[nodiscard]] ozm::Error recordRefused(const AuditStep &step, const ozm::Error &reason);
    [[nodiscard]] ozm::Error recordEvent(const ozm::OperationLogItemData &data,
                                         const ozm::Error &outcome = {});

    bool commitMacro(QSharedPointer<ozm::OperationLogItem> macro) override;
    QSharedPointer<ozm::OperationLogItem> logCommand(QSharedPointer<ozm::OperationLogItem> parent,
                                                     const ozm::UndoCommand &command,
                                                     ozm::OperationLogItemUndoContext context) override;
    QSharedPointer<ozm::OperationLogItem> logEvent(QSharedPointer<ozm::OperationLogItem> parent,
                                                   const ozm::OperationLogItemData &data) override;
    QSharedPointer<ozm::OperationLogItem>
    logCommandInMacro(QSharedPointer<ozm::OperationLogItem> macro, const ozm::UndoCommand &command,
                      ozm::OperationLogItemUndoContext context) override;
    QSharedPointer<ozm::OperationLogItem> logBeginMacro(QSharedPointer<ozm::OperationLogItem> parent,
                                                        const ozm::OperationLogItemData &data) override;

private:
    struct Prepared
    {
        AuditStep step;
        AuditRecord record;
    };

    [[nodiscard]] AuditRecord recordOf(AuditKind kind, const ozm::OperationLogItemData &data,
                                       ozm::OperationLogItemUndoContext context) const;
    void addRecords(QList<AuditRecord> &records, const AuditStep &step, qint64 parent,
                    const ozm::Error &outcome = {}) const;
    [[nodiscard]] ozm::Result<QList<AuditRecord>> store(const QList<AuditRecord> &records);
    [[nodiscard]] ozm::Error storePrepared(const QList<AuditRecord> &records, const QList<AuditStep> &steps);
    [[nodiscard]] std::optional<AuditRecord> takePrepared(const AuditStep &step);
    [[nodiscard]] std::optional<AuditRecord> recordFor(const AuditStep &step, qint64 parent);
    [[nodiscard]] std::optional<AuditRecord> storeOne(const QList<AuditRecord> &records);

    AuditDatabase &m_database;
    const QString m_user;
    QList<Prepared> m_prepared;
    std::optional<AuditRecord> m_preparedMacro;
    /// Marks that could not be written when they were due.
    QList<AuditRecord> m_overdueMarks;
};

} // namespace workbench
