#pragma once

#include <ozm_common_core_mini/ColumnFriendlyName.h>

class RowNode;

namespace ozm::rn {

class GroupSummary
{
public:
    void set(const QString &name, const ColumnFriendlyName::FriendlyNameStruct &description);
    void update(RowNode *root) const;
};

} // namespace ozm::rn
