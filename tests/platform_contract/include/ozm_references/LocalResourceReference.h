#pragma once

#include <ozm_references/ResourceReference.h>

namespace ozm {

class LocalResourceReference : public ResourceReference
{
public:
    LocalResourceReference();
    Error setPath(const QString &path);
};

} // namespace ozm
