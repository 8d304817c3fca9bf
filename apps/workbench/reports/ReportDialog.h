#pragma once

#include "reports/ReportSeries.h"

#include <QDialog>

#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QProgressDialog;
class QPushButton;
class QRadioButton;

namespace ozm {
class ReportView;
} // namespace ozm

namespace workbench {

/**
 * Fills a template with samples, shows the outcome, and saves it as HTML or PDF, in one file or a file for each sample:
 * a template of the workbench's own, or one that the editor saved. One report is shown at a time, on its pages as they
 * are printed; saving has progress, and can be canceled.
 *
 * The samples are copies: what is edited while the dialog is open does not get into the report.
 */
class ReportDialog : public QDialog
{
    Q_OBJECT

public:
    ReportDialog(std::vector<RowNode> rows, const ReportContext &context, QWidget *parent = nullptr);
    ~ReportDialog() override;

private:
    void chooseTemplate();
    void askTemplate();
    void fill();
    void showChoice();
    void showReport();
    void showPage(int page, int pages);
    void save();
    void saveFile();
    void saveFolder();
    [[nodiscard]] ozm::Result<ReportFiller> reports() const;
    [[nodiscard]] bool mayReplace(const ReportFiller &reports, const QString &folder);
    [[nodiscard]] ReportProgress progress(QProgressDialog &shown) const;
    void showOutcome(const ReportSeries &series, const QString &saved);
    void showNote(const QString &text);

    const std::vector<RowNode> m_rows;
    const ReportContext m_context;
    QList<ReportTemplate> m_templates;
    QComboBox *m_template;
    QRadioButton *m_each;
    QRadioButton *m_group;
    QCheckBox *m_files;
    QComboBox *m_report;
    QLabel *m_page;
    ozm::ReportView *m_preview;
    QLabel *m_note;
    QPushButton *m_save;
    std::optional<ReportFiller> m_filler;
    /// Of the first reports; those of further ones are told when they are shown.
    QStringList m_troubles;
};

} // namespace workbench
