#include "samples/SampleCommands.h"

#include "samples/SampleRules.h"

#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/ColumnNames.h>

#include <QCoreApplication>

using ozm::Error;
using ozm::ErrorCode;
using ozm::OperationLogItemData;
using ozm::OperationLogItemSubject;
using ozm::OperationLogItemType;

namespace workbench {

namespace {

constexpr int kSetCellId = 1;

// Beside the titles of the table, in which this one has its unit.
[[maybe_unused]] constexpr auto kMassTitle = QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Mass");

/// In the language of the window.
QString titleOfColumn(const QString &column)
{
    const QByteArray name = ColumnFriendlyName::friendlyName(column).toUtf8();
    return QCoreApplication::translate("workbench::SampleTableModel", name.constData());
}

RowNode rowOrEmpty(const SampleTable &table, qint64 id)
{
    const RowNode *row = table.rowOf(id);
    return row ? RowNode(*row) : SampleTable::emptyRow();
}

/// Named by its name, as people know it, and by its id, which stays when it is renamed.
OperationLogItemSubject subjectOf(const RowNode &row)
{
    const auto type = OperationLogItemSubject::Type::Label;
    return {type, OperationLogItemSubject(type, row).key(), {{kId, row.getDataAt(kId)}}};
}

/// The record of a row that comes or goes as a whole.
OperationLogItemData wholeRowData(OperationLogItemType type, const RowNode &row)
{
    const QStringList &columns = SampleTable::columnsOf(row);
    QVariantList values;
    for (const QString &column : columns)
        values.append(row.getDataAt(column));
    return {type, subjectOf(row), columns, values};
}

Error checkExists(const SampleTable &table, qint64 id)
{
    if (table.rowOf(id))
        return {};
    return Error(ErrorCode::BadParameter, SampleCommand::tr("The sample was removed from the table."))
        .ecatch(OZM_HERE);
}

} // namespace

Error SampleCommand::doRedo()
{
    Error error = check(m_table);
    if (!error.hasError())
        apply(m_table);
    return error;
}

Error SampleCommand::doUndo()
{
    revert(m_table);
    return {};
}

SetCellCommand::SetCellCommand(SampleTable &table, qint64 id, const QString &column, const QString &text)
    : SampleCommand(table)
    , m_id(id)
    , m_column(column)
    , m_value(rules::parse(column, text))
{
    const RowNode row = rowOrEmpty(table, id);
    m_oldValue = row.getDataAt(column);
    setText(tr("Set %1 of %2").arg(titleOfColumn(column), row.getDataAt(kName).toString()));
    // A text that stands for no value is recorded as it was typed.
    setLogData({OperationLogItemType::Set, subjectOf(row), {column}, m_value.valueOr(text), m_oldValue});
}

int SetCellCommand::id() const
{
    return kSetCellId;
}

bool SetCellCommand::mergeWith(const QUndoCommand *other)
{
    if (!canMergeWith(other))
        return false;
    const auto *next = static_cast<const SetCellCommand *>(other);
    if (next->m_id != m_id || next->m_column != m_column)
        return false;
    m_value = next->m_value;
    setLogData({OperationLogItemType::Set, logData()->subject(), {m_column}, m_value.value(), m_oldValue});
    // Back where it began: there is nothing left to undo.
    setObsolete(m_value.value() == m_oldValue);
    return true;
}

Error SetCellCommand::check(const SampleTable &table) const
{
    if (m_value.hasError())
        return m_value.error();
    if (Error error = checkExists(table, m_id); error.hasError())
        return error;
    if (SampleTable::dataColumns().contains(m_column)) {
        return Error(ErrorCode::BadParameter,
                     tr("\"%1\" is what was found on the disk, and cannot be typed.").arg(m_column))
            .ecatch(OZM_HERE);
    }
    if (m_column == kName)
        return table.checkName(m_value.value().toString(), m_id);
    RowNode row = *table.rowOf(m_id);
    row.setDataAt(m_column, m_value.value());
    return rules::checkRow(row);
}

void SetCellCommand::apply(SampleTable &table)
{
    table.set(m_id, m_column, m_value.value());
}

void SetCellCommand::revert(SampleTable &table)
{
    table.set(m_id, m_column, m_oldValue);
}

AddSampleCommand::AddSampleCommand(SampleTable &table, const QMap<QString, QString> &texts)
    : SampleCommand(table)
    , m_row(SampleTable::emptyRow())
{
    m_row.setDataAt(kId, table.takeId());
    for (const QString &column : SampleTable::columns()) {
        const auto value = rules::parse(column, texts.value(column));
        m_row.setDataAt(column, value.valueOr(texts.value(column)));
        if (value.hasError() && !m_refusal.hasError())
            m_refusal = value.error();
    }
    if (!m_refusal.hasError())
        m_refusal = rules::checkRow(m_row);
    setText(tr("Add %1").arg(m_row.getDataAt(kName).toString()));
    setLogData(wholeRowData(OperationLogItemType::Add, m_row));
}

Error AddSampleCommand::check(const SampleTable &table) const
{
    if (m_refusal.hasError())
        return m_refusal;
    return table.checkName(m_row.getDataAt(kName).toString(), SampleTable::idOf(m_row));
}

void AddSampleCommand::apply(SampleTable &table)
{
    table.insert(table.rowCount(), m_row);
}

void AddSampleCommand::revert(SampleTable &table)
{
    table.remove(SampleTable::idOf(m_row));
}

DeleteSampleCommand::DeleteSampleCommand(SampleTable &table, qint64 id)
    : SampleCommand(table)
    , m_id(id)
    , m_row(rowOrEmpty(table, id))
{
    setText(tr("Delete %1").arg(m_row.getDataAt(kName).toString()));
    setLogData(wholeRowData(OperationLogItemType::Delete, m_row));
}

Error DeleteSampleCommand::check(const SampleTable &table) const
{
    return checkExists(table, m_id);
}

void DeleteSampleCommand::apply(SampleTable &table)
{
    m_index = table.indexOf(m_id);
    table.remove(m_id);
}

void DeleteSampleCommand::revert(SampleTable &table)
{
    table.insert(m_index, m_row);
}

} // namespace workbench
