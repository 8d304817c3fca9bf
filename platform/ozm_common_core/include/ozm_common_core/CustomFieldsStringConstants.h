#pragma once

#include <ozm_common_core/ozm_common_core_export.h>

#include <QString>

/// Names in the tables with which users describe their samples.
namespace CustomFieldsStringConstants {

/// The column that holds the path of a sample's data.
OZM_COMMON_CORE_EXPORT extern const QString COL_FILEPATH;

} // namespace CustomFieldsStringConstants
