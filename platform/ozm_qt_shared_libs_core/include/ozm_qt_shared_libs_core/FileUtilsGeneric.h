#pragma once

#include <ozm_common_stable/Result.h>
#include <ozm_qt_shared_libs_core/ozm_qt_shared_libs_core_export.h>

#include <QString>

namespace ozm {

/// File names of local resources.
class OZM_QT_SHARED_LIBS_CORE_EXPORT FileUtilsGeneric
{
public:
    /**
     * The path of @p relative in @p folder; the folder itself when @p relative is empty.
     *
     * Code 2 when @p folder is empty, or @p relative leads out of it. Looks at the text only.
     */
    [[nodiscard]] static Result<QString> createFilePathForLocalResource(const QString &folder,
                                                                        const QString &relative);
};

} // namespace ozm
