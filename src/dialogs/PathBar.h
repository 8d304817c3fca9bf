#pragma once

#include <QStringList>
#include <QWidget>

class QToolButton;

namespace ozm {

/// The folder that a file dialog shows and those above it, each a button that leads there. Where there is no room for
/// all, the upper ones are in a menu.
class PathBar : public QWidget
{
    Q_OBJECT

public:
    explicit PathBar(QWidget *parent);

    /// Looks at the text only, not at the disk.
    void setPath(const QString &path);

    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void chosen(const QString &folder);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] QToolButton *addButton(const QString &text);
    void fit();

    QToolButton *const m_more;
    QStringList m_folders; ///< From the root down.
    QList<QToolButton *> m_buttons;
};

} // namespace ozm
