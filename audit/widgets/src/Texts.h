#pragma once

#include <QCoreApplication>

namespace ozm::audit {

/// The context under which texts that belong to no widget are translated.
class WidgetTexts
{
    Q_DECLARE_TR_FUNCTIONS(ozm::audit::WidgetTexts)
};

} // namespace ozm::audit
