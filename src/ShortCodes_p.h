#pragma once

#include <ozm_widgets/ShortCodes.h>

class OZM_WIDGETS_EXPORT ShortCode::Private
{
public:
    /// With a default implementation unless there is one to share.
    explicit Private(ShortCode *owner, const QSharedPointer<ShortCodeImplementation> &shared = {});

    /// Makes the owner a copy of @p other that shares its implementation; false when there is no owner.
    bool copyParameters(const ShortCode &other);

    QSharedPointer<ShortCodeImplementation> implementation;
    ShortCode *qptr;
};
