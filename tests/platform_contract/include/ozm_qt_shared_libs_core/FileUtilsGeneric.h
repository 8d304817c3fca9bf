#pragma once

#include <ozm_common_stable/Result.h>

namespace ozm {

class FileUtilsGeneric
{
public:
    [[nodiscard]] static Result<QString> createFilePathForLocalResource(const QString &folder,
                                                                        const QString &relative);
};

} // namespace ozm
