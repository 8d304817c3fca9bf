#pragma once

#include <QString>

namespace ozm {

/// The name by which the operating system knows the user of this process; empty when it knows none.
[[nodiscard]] QString systemUserName();

} // namespace ozm
