#pragma once

#include <ozm_widgets/ShortCodes.h>

class OZM_WIDGETS_EXPORT ShortCode::Private
{
public:
    explicit Private(ShortCode *owner);

    /// Makes the owner a copy of @p other that shares its implementation; false when there is no owner.
    bool copyParameters(const ShortCode &other);

    QSharedPointer<ShortCodeImplementation> implementation;
    ShortCode *qptr;
};
