#pragma once

#include <ozm_common_stable/Error.h>

#include <QCoreApplication>

namespace ozm::audit {

/// The context under which the texts of this library are translated.
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ozm::audit)
};

} // namespace ozm::audit
