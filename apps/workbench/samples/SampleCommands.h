#pragma once

#include "samples/SampleTable.h"

#include <ozm_common_stable/Result.h>
#include <ozm_widgets/db/common/UndoCommand.h>

#include <QCoreApplication>

namespace workbench {

/**
 * A change to the sample table whose outcome is known before it is made.
 *
 * check() says whether the change would be accepted; only then apply() makes it. Both work on any table, so
 * that a run of changes can be tried on a copy. GUI thread.
 */
class SampleCommand : public ozm::UndoCommand
{
    Q_DECLARE_TR_FUNCTIONS(SampleCommand)

public:
    [[nodiscard]] virtual ozm::Error check(const SampleTable &table) const = 0;
    /// For a change that check() accepts.
    virtual void apply(SampleTable &table) = 0;

protected:
    explicit SampleCommand(SampleTable &table)
        : m_table(table)
    {}

    /// Takes back what apply() did.
    virtual void revert(SampleTable &table) = 0;

    ozm::Error doRedo() override;
    ozm::Error doUndo() override;

private:
    SampleTable &m_table;
};

/// Sets one cell to what a text stands for. Edits of the same cell that follow each other become one.
class SetCellCommand : public SampleCommand
{
    Q_DECLARE_TR_FUNCTIONS(SetCellCommand)

public:
    SetCellCommand(SampleTable &table, qint64 id, const QString &column, const QString &text);

    [[nodiscard]] int id() const override;
    bool mergeWith(const QUndoCommand *other) override;
    [[nodiscard]] ozm::Error check(const SampleTable &table) const override;
    void apply(SampleTable &table) override;

protected:
    void revert(SampleTable &table) override;

private:
    const qint64 m_id;
    const QString m_column;
    ozm::Result<QVariant> m_value;
    QVariant m_oldValue;
};

/// Adds a sample at the end. The texts are by column; columns without one are read as empty.
class AddSampleCommand : public SampleCommand
{
    Q_DECLARE_TR_FUNCTIONS(AddSampleCommand)

public:
    AddSampleCommand(SampleTable &table, const QMap<QString, QString> &texts);

    [[nodiscard]] ozm::Error check(const SampleTable &table) const override;
    void apply(SampleTable &table) override;

protected:
    void revert(SampleTable &table) override;

private:
    RowNode m_row;
    ozm::Error m_refusal;
};

/// Takes a sample out; undone, it is back in its place.
class DeleteSampleCommand : public SampleCommand
{
    Q_DECLARE_TR_FUNCTIONS(DeleteSampleCommand)

public:
    DeleteSampleCommand(SampleTable &table, qint64 id);

    [[nodiscard]] ozm::Error check(const SampleTable &table) const override;
    void apply(SampleTable &table) override;

protected:
    void revert(SampleTable &table) override;

private:
    const qint64 m_id;
    RowNode m_row;
    int m_index = 0;
};

} // namespace workbench
