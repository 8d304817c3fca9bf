#pragma once

#include "templates/decoding/TemplateDecoder.h"

#include <ozm_widgets/DecodeTecExtraData.h>

#include <QList>
#include <QString>

#include <optional>

class RowNode;

namespace ozm::instructions {

/// Where the codes of a part find their values: in its row, then wherever the part around it finds them.
struct TemplateScope
{
    const RowNode *row = nullptr;                         ///< Null for the whole of a report without rows.
    const QList<DecodeTecExtraData> *extraData = nullptr; ///< Of the whole report only.
    const TemplateScope *outer = nullptr;
    qsizetype number = 0; ///< Of the row in its part, counted from 1.
    qsizetype count = 0;  ///< Of all rows in the part.

    [[nodiscard]] std::optional<TemplateField> find(const QString &name) const;
};

} // namespace ozm::instructions
