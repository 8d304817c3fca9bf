#pragma once

#include <QWidget>

class QLabel;

namespace workbench {

/// Tells in one line how a search for data goes, and has the button that ends it.
class DataProgress : public QWidget
{
    Q_OBJECT

public:
    explicit DataProgress(QWidget *parent = nullptr);

    void show(int searched, int found);

Q_SIGNALS:
    void canceled();

private:
    QLabel *m_text = nullptr;
};

} // namespace workbench
