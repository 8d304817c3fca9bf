#pragma once

#include <QString>

extern const QString AUTOMATION_OZMFILEDIALOG_OPEN_FILE_NAME_KEY;
extern const QString AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY;
