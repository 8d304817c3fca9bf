#pragma once

#include <QLayout>
#include <QList>
#include <QStyle>

namespace ozm::audit {

/// Places widgets one after the other, in as many lines as they need.
class FlowLayout : public QLayout
{
public:
    explicit FlowLayout(QWidget *parent);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override { m_items.append(item); }
    [[nodiscard]] int count() const override { return int(m_items.size()); }
    [[nodiscard]] QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override { return place({0, 0, width, 0}, false); }
    [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    void setGeometry(const QRect &rect) override;

private:
    /// Returns the height that the lines take.
    int place(const QRect &rect, bool move) const;

    QList<QLayoutItem *> m_items;
};

} // namespace ozm::audit
