#pragma once

#include <ozm_common_widgets/IFileAccessorBase.h>

#include <memory>

namespace ozm {

/**
 * Makes the widgets and services that an application may want to replace by its own.
 *
 * One creator is installed at a time, at start-up, and owned here. GUI thread only.
 */
class OZM_COMMON_WIDGETS_EXPORT WidgetCreatorBase
{
public:
    WidgetCreatorBase() = default;
    WidgetCreatorBase(const WidgetCreatorBase &) = default;
    WidgetCreatorBase &operator=(const WidgetCreatorBase &) = default;
    virtual ~WidgetCreatorBase();

    /// A new accessor, owned by the caller.
    [[nodiscard]] virtual std::unique_ptr<IFileAccessorBase> createFileAccessorBase() const = 0;

    /// Installs @p creator in place of the one before, which is destroyed; null leaves none.
    static void setCustomCreator(std::unique_ptr<WidgetCreatorBase> &&creator);
    /// The installed creator, or null.
    [[nodiscard]] static WidgetCreatorBase *customCreator();
};

} // namespace ozm
