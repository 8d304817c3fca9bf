#include "FlowLayout.h"

#include <QGuiApplication>
#include <QStyle>
#include <QWidget>

#include <utility>

namespace ozm::audit {

FlowLayout::FlowLayout(QWidget *parent)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    place(rect, true);
}

int FlowLayout::place(const QRect &rect, bool move) const
{
    constexpr int kGap = 6;
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : QGuiApplication::layoutDirection();
    int x = rect.x();
    int y = rect.y();
    int height = 0;
    for (QLayoutItem *item : m_items) {
        const QSize size = item->sizeHint();
        if (x > rect.x() && x + size.width() > rect.right() + 1) {
            x = rect.x();
            y += height + kGap;
            height = 0;
        }
        if (move)
            item->setGeometry(QStyle::visualRect(direction, rect, {{x, y}, size}));
        x += size.width() + kGap;
        height = qMax(height, size.height());
    }
    return y + height - rect.y();
}

} // namespace ozm::audit
