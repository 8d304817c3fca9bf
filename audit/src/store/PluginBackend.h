#pragma once

#include "StoreBackend.h"

namespace ozm::audit {

/// Opens a trail through the plug-in "ozm_audit_<scheme>".
[[nodiscard]] Result<std::unique_ptr<StoreBackend>> openByPlugin(const Address &address, Store::Mode mode);

} // namespace ozm::audit
