#pragma once

#include <ozm_common_stable/Result.h>

#include <QSharedPointer>
#include <QString>

namespace ozm {

class ResourceReference
{
public:
    enum class Scheme : int
    {
        LocalFile = 3,
    };

    virtual ~ResourceReference();

    [[nodiscard]] static Result<QSharedPointer<ResourceReference>> fromString(const QString &text);
    [[nodiscard]] bool isScheme(Scheme scheme) const;
    [[nodiscard]] QString location() const;
};

} // namespace ozm
