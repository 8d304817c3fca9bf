#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QDockWidget>

#include <memory>

/**
 * The title bar of a dock widget in the suite's look: the title, elided where there is no room, and buttons
 * to float and to close.
 *
 *     dock->setTitleBarWidget(new OZMDockWidgetTitleBar(dock));
 *
 * It follows the dock's title (with a star for "[*]" while the dock is modified), its features (buttons come and go;
 * the bar turns upright with QDockWidget::DockWidgetVerticalTitleBar) and whether it floats. A double click floats the
 * dock, or docks it again; the buttons can be reached with the Tab key.
 */
class OZM_WIDGETS_EXPORT OZMDockWidgetTitleBar : public QWidget
{
    Q_OBJECT

public:
    explicit OZMDockWidgetTitleBar(QDockWidget *dock);
    ~OZMDockWidgetTitleBar() override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

/// A QDockWidget with such a title bar, as forms of Qt Designer make it.
class OZM_WIDGETS_EXPORT OZMDockWidget : public QDockWidget
{
    Q_OBJECT

public:
    explicit OZMDockWidget(QWidget *parent = nullptr);
};
