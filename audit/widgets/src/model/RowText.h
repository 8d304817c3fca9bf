#pragma once

#include "EntryTexts.h"

#include <ozm_audit_widgets/TrailModel.h>

#include <QIcon>

namespace ozm::audit {

/// The text of a cell, with its line breaks; times are shown by @p zone.
[[nodiscard]] QString cellText(const Entry &entry, const EntryTexts &texts, TrailModel::Marks marks,
                               int column, TrailModel::Zone zone);
/// The text that a column is sorted by.
[[nodiscard]] QString sortText(const Entry &entry, TrailModel::Marks marks, int column);
/// The icon of the mark that matters most.
[[nodiscard]] QIcon marksIcon(TrailModel::Marks marks);
[[nodiscard]] QString columnTitle(int column, TrailModel::Zone zone);

} // namespace ozm::audit
