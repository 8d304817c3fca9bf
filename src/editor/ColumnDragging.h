#pragma once

#include "editor/ColumnWidths.h"

#include <QObject>
#include <QPointer>
#include <QTextTable>

class QMouseEvent;
class QRubberBand;

namespace ozm::editor {

class RichTextView;

/// Lets the borders between the columns of tables be dragged with the mouse. A line shows where the border will be; the
/// document changes when the button is released, in one step, and Esc leaves it as it was.
class ColumnDragging : public QObject
{
    Q_OBJECT

public:
    explicit ColumnDragging(RichTextView *view);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool filterMouse(const QMouseEvent &event);
    [[nodiscard]] bool begin(const QPoint &point);
    void showLine(const QPoint &point);
    void end(bool keep);
    void showShape(bool isAtBorder);
    [[nodiscard]] QPointF toDocument(const QPoint &point) const;
    [[nodiscard]] QPoint toView(const QPointF &place) const;
    [[nodiscard]] QString toldWidths() const;

    RichTextView *m_view;
    QRubberBand *m_line;
    QPointer<QTextTable> m_table; ///< Null unless one of its borders is dragged.
    int m_column = 0;
    ColumnEdges m_edges;
    double m_grip = 0; ///< From the border to the mouse, where it was pressed.
    double m_x = 0;    ///< Of the border, in the document.
    double m_leastX = 0;
    double m_mostX = 0;
    bool m_isAtBorder = false;
};

} // namespace ozm::editor
