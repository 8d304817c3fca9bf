#pragma once

#include "audit/AuditTrail.h"
#include "samples/SampleTable.h"

#include <ozm_audit/Logger.h>
#include <ozm_widgets/MsSample.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <QMap>
#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace workbench {

class SampleCommand;

/**
 * The only way to change samples.
 *
 * Every change is in the audit trail, on the disk, before it is made. When it cannot be recorded it is not
 * made: the table, the history and the trail stay as they were, and the error says why. A change that breaks
 * a rule is recorded with its error, and not made either; the history, what can be redone included, stays.
 *
 *     SampleEditor editor(*store, ozm::OzmCoreApplication::userName());
 *     if (const ozm::Error error = editor.setCell(id, kCharge, u"3"_s); error.hasError())
 *         show(error);
 *
 * An error of one of these functions means that nothing was changed. Warnings, which may come with success,
 * tell of trouble that did not keep the change from being made. GUI thread; uses the store, does not own it.
 */
class SampleEditor : public QObject
{
    Q_OBJECT

public:
    using Commands = std::vector<std::unique_ptr<SampleCommand>>;

    SampleEditor(ozm::audit::Store &store, const QString &user, QObject *parent = nullptr);
    ~SampleEditor() override;

    [[nodiscard]] const SampleTable &table() const { return m_table; }
    /// The user who is recorded as making the changes.
    [[nodiscard]] const QString &user() const { return m_user; }
    /// To look at and to connect to; steps go through the editor.
    [[nodiscard]] const QUndoStack &history() const { return m_stack; }
    [[nodiscard]] const AuditTrail &trail() const { return m_trail; }
    /// Records what is not a step: signatures, reviews, exports.
    [[nodiscard]] ozm::audit::Logger &logger() { return m_logger; }

    /// Reads what the trail holds already. To be called once, before anything else.
    ozm::Error start();

    ozm::Error setCell(qint64 id, const QString &column, const QString &text);
    /// Adds a sample of the texts, which are by column.
    ozm::Error addSample(const QMap<QString, QString> &texts);
    /// Adds a sample for each of @p found that the table does not have yet, as one step; @p source is the
    /// folder they were found in.
    ozm::Error addData(const QList<ozm::msreader::MsSample> &found, const QString &source);
    ozm::Error deleteSamples(const QList<qint64> &ids);
    /// Names the samples after @p pattern, in which "*" is the old name and "#" a number from 1 up.
    ozm::Error renameSamples(const QList<qint64> &ids, const QString &pattern);

    ozm::Error push(std::unique_ptr<SampleCommand> command);
    /// All of @p commands as one step of the history, or none.
    ozm::Error runMacro(const ozm::OperationLogItemData &data, const QString &text, Commands commands);
    ozm::Error undo();
    ozm::Error redo();
    /// Undoes or redoes, step by step, until @p index steps of the history are done.
    ozm::Error moveTo(int index);

    /// Replaces the samples by those in a file, and forgets the history.
    ozm::Error load(const QString &path);
    ozm::Error save(const QString &path);
    /// As a table when @p path ends with ".csv", else as JSON.
    ozm::Error exportTrail(const QString &path);

Q_SIGNALS:
    /// A change was not made, or something went wrong beside it.
    void trouble(const ozm::Error &error);

private:
    [[nodiscard]] SampleTable &target() { return m_table; }
    ozm::Error refuse(const SampleCommand &command, ozm::Error reason);
    ozm::Error finish(ozm::Error error);
    ozm::Error audited(const ozm::OperationLogItemData &data, const std::function<ozm::Error()> &act);
    [[nodiscard]] static ozm::Error tryOut(const SampleTable &table, const Commands &commands,
                                           const SampleCommand **refused);

    const QString m_user;
    SampleTable m_table;
    ozm::audit::Logger m_logger;
    AuditTrail m_trail;
    ozm::UndoStack m_stack;
};

} // namespace workbench
