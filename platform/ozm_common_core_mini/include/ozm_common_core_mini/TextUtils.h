#pragma once

#include <ozm_common_core_mini/ozm_common_core_mini_export.h>

#include <QString>

/// A name in square brackets, as codes in templates are written: SQUARE_BRACKETS_PATTERN.arg(name).
OZM_COMMON_CORE_MINI_EXPORT extern const QString SQUARE_BRACKETS_PATTERN;

namespace ozm {

/// Small changes to texts. Any thread.
class OZM_COMMON_CORE_MINI_EXPORT TextUtils
{
public:
    /// @p text with a capital first letter; the rest stays.
    [[nodiscard]] static QString toUpperFirstChar(const QString &text);
    /// @p text with a small first letter; the rest stays.
    [[nodiscard]] static QString toLowerFirstChar(const QString &text);
};

} // namespace ozm
