#include <ozm_common_stable/Cancelable.h>

namespace ozm {

// Out of line, so that the type is one and the same in every library.
Cancelable::~Cancelable() = default;

} // namespace ozm
