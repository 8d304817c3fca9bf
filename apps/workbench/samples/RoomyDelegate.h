#pragma once

#include <QStyledItemDelegate>

namespace workbench {

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
