#pragma once

#include "reports/Report.h"

#include <QDialog>

#include <vector>

class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTextBrowser;

namespace workbench {

/**
 * Fills a template with samples, shows the outcome, and saves it as HTML or PDF: one of the workbench's own, or one
 * that the editor saved.
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
    void save();
    void showNote(const QString &text);

    const std::vector<RowNode> m_rows;
    const ReportContext m_context;
    QList<ReportTemplate> m_templates;
    ReportPages m_report;
    QComboBox *m_template;
    QRadioButton *m_each;
    QRadioButton *m_group;
    QTextBrowser *m_preview;
    QLabel *m_note;
    QPushButton *m_save;
};

} // namespace workbench
