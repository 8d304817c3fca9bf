#pragma once

#include <ozm_common_core/ozm_common_core_export.h>

#include <QString>

// Keys of the automation store: a path under one of them is the answer to the question, and no dialog shows.

OZM_COMMON_CORE_EXPORT extern const QString AUTOMATION_OZMFILEDIALOG_OPEN_FILE_NAME_KEY;
OZM_COMMON_CORE_EXPORT extern const QString AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY;
