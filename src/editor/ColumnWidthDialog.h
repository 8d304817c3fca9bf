#pragma once

#include <QDialog>
#include <QTextLength>

class QComboBox;
class QDoubleSpinBox;

namespace ozm::editor {

/// Asks for the width of columns of a table.
class ColumnWidthDialog : public QDialog
{
    Q_OBJECT

public:
    /// @p share is offered in percent where @p now is no share.
    ColumnWidthDialog(const QTextLength &now, double share, QWidget *parent);

    [[nodiscard]] QTextLength length() const;

private:
    [[nodiscard]] QTextLength::Type unit() const;
    void takeUnit(double share);

    QComboBox *m_unit;
    QDoubleSpinBox *m_width;
};

} // namespace ozm::editor
