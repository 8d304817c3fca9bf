#include <ozm_references/ResourceReferenceUtils.h>

#include <ozm_references/LocalResourceReference.h>

namespace ozm {

Result<QList<QSharedPointer<ResourceReference>>>
ResourceReferenceUtils::fromStringList(const QList<QString> &paths)
{
    QList<QSharedPointer<ResourceReference>> references;
    references.reserve(paths.size());
    for (const QString &path : paths) {
        auto reference = QSharedPointer<LocalResourceReference>::create();
        if (Error error = reference->setPath(path); error.hasError())
            return error.ecatch(OZM_HERE);
        references.append(reference);
    }
    return references;
}

} // namespace ozm
