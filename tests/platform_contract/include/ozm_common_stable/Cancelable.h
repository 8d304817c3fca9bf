#pragma once

namespace ozm {

class Cancelable
{
public:
    Cancelable() = default;
    virtual ~Cancelable();

    [[nodiscard]] virtual bool isCanceled() const = 0;
    virtual void setCanceled(bool canceled) = 0;
};

} // namespace ozm
