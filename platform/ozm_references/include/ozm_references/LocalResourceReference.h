#pragma once

#include <ozm_references/ResourceReference.h>

namespace ozm {

/**
 * A file or folder on a disk of this computer. Whether it exists is nobody's concern here.
 *
 *     auto reference = QSharedPointer<ozm::LocalResourceReference>::create();
 *     if (ozm::Error error = reference->setPath(path); error.hasError())
 *         return error;
 */
class OZM_REFERENCES_EXPORT LocalResourceReference : public ResourceReference
{
public:
    /// Refers to nothing yet.
    LocalResourceReference();

    /// The path of the file or folder.
    [[nodiscard]] QString path() const { return location(); }

    /// Refers to @p path, made absolute against the current folder; a path with a drive letter is absolute on
    /// every system. Code 2, and no change, when it is empty or holds a null character.
    Error setPath(const QString &path);
};

} // namespace ozm
