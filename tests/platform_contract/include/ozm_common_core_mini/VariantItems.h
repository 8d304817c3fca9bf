#pragma once

#include <QMetaType>
#include <QVariant>

class VariantItems
{
public:
    VariantItems();
    explicit VariantItems(QVariantList items);

    [[nodiscard]] const QVariantList &toList() const;

    bool operator==(const VariantItems &) const;
};

Q_DECLARE_METATYPE(VariantItems)
