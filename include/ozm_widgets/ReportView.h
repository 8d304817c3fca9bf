#pragma once

#include <ozm_widgets/ReportPaper.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QAbstractScrollArea>

#include <memory>

class QTextDocument;

namespace ozm {

/**
 * Shows a filled template on its pages, as ReportPaper prints it: the same sheets, margins, headers, footers and lines.
 *
 *     const QString decoded = AbstractTemplateEditor::decodeTEC(content, &row, {});
 *     const ozm::ReportPaperOptions options{u"Certificate"_s, u"Laboratory 3"_s};
 *     auto *view = new ozm::ReportView;
 *     view->setReport(decoded, options); // and ReportPaper(decoded, options) for paper and PDF
 *
 * It fits a page into its width until somebody chooses a zoom: setZoom(), Ctrl and the wheel, Ctrl+plus and Ctrl+minus.
 * Text is selected by mouse and copied. Nothing is loaded from disk or from a network, and links are not followed.
 * GUI thread only.
 */
class OZM_WIDGETS_EXPORT ReportView : public QAbstractScrollArea
{
    Q_OBJECT
    Q_PROPERTY(double zoom READ zoom WRITE setZoom NOTIFY zoomChanged)
    Q_PROPERTY(bool fitsWidth READ fitsWidth WRITE setFitsWidth NOTIFY zoomChanged)
    Q_PROPERTY(int pageCount READ pageCount NOTIFY pageChanged)

public:
    static constexpr double kSmallestZoom = 0.25; ///< A quarter of the size on paper.
    static constexpr double kLargestZoom = 4;     ///< Four times the size on paper.

    explicit ReportView(QWidget *parent = nullptr);
    ~ReportView() override;

    /// 1 for the size on paper.
    [[nodiscard]] double zoom() const;
    /// True while the zoom follows the width of the view.
    [[nodiscard]] bool fitsWidth() const;
    /// Of the report; 0 without one.
    [[nodiscard]] int pageCount() const;
    /// The page in the middle of the view, from 1; 0 without a report.
    [[nodiscard]] int currentPage() const;
    /// The text of the report; its lines end with "\n".
    [[nodiscard]] QString toPlainText() const;
    /// The report as it is laid out; null before setReport(). It belongs to the view and goes with the next report.
    [[nodiscard]] const QTextDocument *document() const;
    /// The text that is selected by mouse or selectAll(); empty without a selection.
    [[nodiscard]] QString selectedText() const;

    /// @p decoded is HTML or plain text as decoding gives it. The view stays at its place.
    void setReport(const QString &decoded, const ReportPaperOptions &options = {});
    /// setReport() for a long report: it is laid out in another thread, and shown when that is done. What was shown before
    /// stays until then. Of several, the last one is shown in the end.
    void setReportSoon(const QString &decoded, const ReportPaperOptions &options = {});
    /// Bounded by kSmallestZoom and kLargestZoom.
    void setZoom(double zoom);
    /// Has the zoom follow the width of the view, or leaves it where it is.
    void setFitsWidth(bool fits);
    /// To the next larger of the usual steps.
    void zoomIn();
    /// To the next smaller of the usual steps.
    void zoomOut();
    /// Scrolls to @p position in document(), unless it can be seen.
    void showPosition(int position);
    /// Puts selectedText() on the clipboard, unless it is empty.
    void copy() const;
    /// Selects the text of all pages.
    void selectAll();

Q_SIGNALS:
    /// After setReportSoon(), the report is there.
    void reportShown();
    /// The zoom is another, or whether it follows the width.
    void zoomChanged(double zoom);
    /// Another page is in the middle, or there are more or fewer.
    void pageChanged(int page, int pages);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm
