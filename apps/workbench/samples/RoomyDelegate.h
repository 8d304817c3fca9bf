#pragma once

#include <QStyledItemDelegate>
#include <QWidget>

namespace workbench {

/// @p pixels, which fit the usual font, for the font of @p widget.
inline int forFontOf(const QWidget &widget, int pixels)
{
    constexpr int kUsualHeight = 15;
    return qMax(pixels, pixels * widget.fontMetrics().height() / kUsualHeight);
}

/// Gives the rows of a tree the room that those of a table have.
class RoomyDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 4);
    }
};

} // namespace workbench
