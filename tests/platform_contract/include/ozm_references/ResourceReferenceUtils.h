#pragma once

#include <ozm_references/ResourceReference.h>

#include <QList>

namespace ozm {

class ResourceReferenceUtils
{
public:
    [[nodiscard]] static Result<QList<QSharedPointer<ResourceReference>>>
    fromStringList(const QList<QString> &paths);
};

} // namespace ozm
