#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/ReportPaper.h>

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <memory>

class QPrinter;
class QWidget;

namespace ozm::editor {

/// Brings a filled template onto paper: by a printer, in a preview of that, and as PDF.
class TemplatePrinting
{
    Q_DECLARE_TR_FUNCTIONS(ozm::editor::TemplatePrinting)

public:
    /// @p options are asked each time.
    explicit TemplatePrinting(std::function<ReportPaperOptions()> options);
    ~TemplatePrinting();

    /// Those of the application, on the pages that the user set up if he did.
    [[nodiscard]] ReportPaperOptions options() const;
    void askPage(QWidget *parent);
    void preview(QWidget *parent, const QString &decoded);
    void print(QWidget *parent, const QString &decoded);
    /// Replaces the file only when all of it is written; code 4 otherwise.
    [[nodiscard]] Error writePdf(const QString &path, const QString &decoded, const QString &title);

private:
    /// Made on first use, as looking for printers takes its time.
    [[nodiscard]] QPrinter &printer();

    const std::function<ReportPaperOptions()> m_options;
    std::unique_ptr<QPrinter> m_printer;
};

} // namespace ozm::editor
