#pragma once

#include <QDialog>

class QListWidget;

namespace workbench {

/// Shows every icon and every kind of message box for a look, in light and in dark.
class StyleDialog : public QDialog
{
    Q_OBJECT

public:
    explicit StyleDialog(QWidget *parent = nullptr);

private:
    QWidget *createIcons();
    QWidget *createBoxes();
    QWidget *createSchemes();
    QWidget *createFileDialogs();
};

} // namespace workbench
