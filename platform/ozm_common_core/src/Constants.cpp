#include <ozm_common_core/AutomationKeys.h>
#include <ozm_common_core/CustomFieldsStringConstants.h>

using namespace Qt::StringLiterals;

const QString AUTOMATION_OZMFILEDIALOG_OPEN_FILE_NAME_KEY = u"OzmFileDialog/OpenFileName"_s;
const QString AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY = u"OzmFileDialog/SaveFileName"_s;

namespace CustomFieldsStringConstants {

const QString COL_FILEPATH = u"Filepath"_s;

} // namespace CustomFieldsStringConstants
