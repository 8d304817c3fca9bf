#pragma once

#include <QString>

extern const QString SQUARE_BRACKETS_PATTERN;

namespace ozm {

class TextUtils
{
public:
    [[nodiscard]] static QString toUpperFirstChar(const QString &text);
    [[nodiscard]] static QString toLowerFirstChar(const QString &text);
};

} // namespace ozm
