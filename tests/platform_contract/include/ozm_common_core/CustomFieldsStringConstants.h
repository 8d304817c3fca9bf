#pragma once

#include <QString>

namespace CustomFieldsStringConstants {

extern const QString COL_FILEPATH;

} // namespace CustomFieldsStringConstants
