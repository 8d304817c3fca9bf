#pragma once

#include <ozm_common_stable/ozm_common_stable_export.h>

namespace ozm {

/// The result of a question that the user can cancel.
class OZM_COMMON_STABLE_EXPORT Cancelable
{
public:
    Cancelable() = default;
    Cancelable(const Cancelable &) = default;
    Cancelable(Cancelable &&) = default;
    Cancelable &operator=(const Cancelable &) = default;
    Cancelable &operator=(Cancelable &&) = default;
    virtual ~Cancelable();

    /// True once it was canceled.
    [[nodiscard]] virtual bool isCanceled() const = 0;
    /// Cancels, or takes that back.
    virtual void setCanceled(bool canceled) = 0;
};

} // namespace ozm
