#pragma once

class QString;

namespace ozm {

/// The folder that this library was loaded from; empty when the system does not say.
[[nodiscard]] QString libraryFolder();

} // namespace ozm
