#pragma once

#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/ozm_common_core_mini_export.h>

#include <QMap>
#include <QString>

class RowNode;

namespace ozm::rn {

/**
 * Fills the rows that stand for a group with a summary of the rows below them.
 *
 *     ozm::rn::GroupSummary summary;
 *     summary.set(kCharge, ColumnFriendlyName::getColumnFriendlyNames().value(kCharge));
 *     summary.update(&root); // the rows below root that have children of their own: "2 – 5"
 *
 * How a column is summarised is its ColumnFriendlyName::Summary. Rows without a value take no part; where
 * none has one, the group has none either. Takes time linear in the rows.
 */
class OZM_COMMON_CORE_MINI_EXPORT GroupSummary
{
public:
    /// Summarises the column @p name as its description says.
    void set(const QString &name, const ColumnFriendlyName::FriendlyNameStruct &description);

    /// Fills each row below @p root that has children, the lowest first; @p root itself, and rows without
    /// children, stay as they are. Columns that the tree does not have are passed over.
    void update(RowNode *root) const;

private:
    QMap<QString, ColumnFriendlyName::FriendlyNameStruct> m_columns;
};

} // namespace ozm::rn
