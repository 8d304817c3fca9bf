#include <ozm_common_widgets/IFileAccessorBase.h>

namespace ozm {

// Out of line, so that the type is one and the same in every library.
IFileAccessorBase::~IFileAccessorBase() = default;

} // namespace ozm
