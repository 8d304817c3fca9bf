#include <ozm_common_widgets/WidgetCreatorBase.h>

namespace ozm {

namespace {

std::unique_ptr<WidgetCreatorBase> &installed()
{
    static std::unique_ptr<WidgetCreatorBase> creator;
    return creator;
}

} // namespace

WidgetCreatorBase::~WidgetCreatorBase() = default;

void WidgetCreatorBase::setCustomCreator(std::unique_ptr<WidgetCreatorBase> &&creator)
{
    installed() = std::move(creator);
}

WidgetCreatorBase *WidgetCreatorBase::customCreator()
{
    return installed().get();
}

} // namespace ozm
