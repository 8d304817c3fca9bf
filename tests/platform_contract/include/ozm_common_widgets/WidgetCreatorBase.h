#pragma once

#include <ozm_common_widgets/IFileAccessorBase.h>

#include <memory>

namespace ozm {

class WidgetCreatorBase
{
public:
    WidgetCreatorBase() = default;
    WidgetCreatorBase(const WidgetCreatorBase &) = default;
    WidgetCreatorBase &operator=(const WidgetCreatorBase &) = default;
    virtual ~WidgetCreatorBase();

    [[nodiscard]] virtual std::unique_ptr<IFileAccessorBase> createFileAccessorBase() const = 0;

    static void setCustomCreator(std::unique_ptr<WidgetCreatorBase> &&creator);
    [[nodiscard]] static WidgetCreatorBase *customCreator();
};

} // namespace ozm
