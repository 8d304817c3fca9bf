#pragma once

#include <QMetaType>
#include <QVariant>

/**
 * A list of values that is told apart from an ordinary QVariantList by its type: one value of a cell that
 * holds several, as the modifications of a peptide do.
 *
 *     row.setDataAt(kModificationsNameList, QVariant::fromValue(VariantItems({u"Oxidation"_s, 1})));
 *
 * Users of QVariant conversion between the two register it with QMetaType::registerConverter.
 */
class VariantItems
{
public:
    VariantItems() = default;
    explicit VariantItems(QVariantList items)
        : m_items(std::move(items))
    {}

    /// The items in their order.
    [[nodiscard]] const QVariantList &toList() const { return m_items; }
    /// True when there is no item.
    [[nodiscard]] bool isEmpty() const { return m_items.isEmpty(); }
    /// How many items there are.
    [[nodiscard]] qsizetype size() const { return m_items.size(); }

    /// Adds @p item at the end.
    void append(const QVariant &item) { m_items.append(item); }

    bool operator==(const VariantItems &) const = default;

private:
    QVariantList m_items;
};

Q_DECLARE_METATYPE(VariantItems)
