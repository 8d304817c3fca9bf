#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QSplitter>

#include <memory>

namespace ozm {

/**
 * A divider that is a thin line to look at and wide enough to grab. It lights up under the mouse and with the
 * keyboard's focus.
 *
 * Dragging moves it, and so do the arrow keys, in small steps with Shift. A double click, or Enter, collapses
 * the smaller neighbour that may be collapsed, and restores it; QSplitter::setChildrenCollapsible(false) forbids
 * it for all.
 *
 *     auto *splitter = new ozm::BlackSplitter(Qt::Horizontal, this);   // makes such handles
 */
class OZM_WIDGETS_EXPORT BlackSplitterHandle : public QSplitterHandle
{
    Q_OBJECT

public:
    BlackSplitterHandle(Qt::Orientation orientation, QSplitter *parent);
    ~BlackSplitterHandle() override;

    [[nodiscard]] QSize sizeHint() const override;

    /// Collapses a neighbour, or restores the one that is collapsed.
    void toggleCollapsed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

/// A QSplitter with such handles.
class OZM_WIDGETS_EXPORT BlackSplitter : public QSplitter
{
    Q_OBJECT

public:
    /// A horizontal one, as forms of Qt Designer make it.
    explicit BlackSplitter(QWidget *parent = nullptr);
    explicit BlackSplitter(Qt::Orientation orientation, QWidget *parent = nullptr);

protected:
    [[nodiscard]] QSplitterHandle *createHandle() override;
};

} // namespace ozm
