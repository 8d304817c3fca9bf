#pragma once

#include <ozm_common_stable/Error.h>

#include <QCoreApplication>
#include <QLoggingCategory>

namespace ozm::audit {

/// The context under which the texts of this library are translated.
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ozm::audit)
};

/// Messages of this library: "ozm.audit".
Q_DECLARE_LOGGING_CATEGORY(lcAudit)

} // namespace ozm::audit
