#include "ScriptContainment.h"

namespace ozm {

bool isContainedScript(const QString &code)
{
    return code.trimmed().isEmpty();
}

} // namespace ozm
