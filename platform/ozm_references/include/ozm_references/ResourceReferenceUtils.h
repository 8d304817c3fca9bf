#pragma once

#include <ozm_references/ResourceReference.h>

#include <QList>

namespace ozm {

/// Conversions from what file dialogs return.
class OZM_REFERENCES_EXPORT ResourceReferenceUtils
{
public:
    /// References to the files at @p paths, in their order; the first path that makes none (see
    /// LocalResourceReference::setPath) fails the whole list with its error.
    [[nodiscard]] static Result<QList<QSharedPointer<ResourceReference>>>
    fromStringList(const QList<QString> &paths);
};

} // namespace ozm
