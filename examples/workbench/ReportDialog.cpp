#include "ReportDialog.h"

#include "FileQuestions.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTextBrowser>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using ozm::Error;

namespace workbench {

namespace {

template <typename Widget>
Widget *named(Widget *widget, const char *name)
{
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

} // namespace

ReportDialog::ReportDialog(std::vector<RowNode> rows, const ReportContext &context, QWidget *parent)
    : QDialog(parent)
    , m_rows(std::move(rows))
    , m_context(context)
    , m_template(named(new QComboBox(this), "template"))
    , m_each(named(new QRadioButton(tr("&One by one"), this), "each"))
    , m_group(named(new QRadioButton(tr("As a &group"), this), "group"))
    , m_preview(named(new QTextBrowser(this), "preview"))
    , m_note(named(new QLabel(this), "note"))
    , m_html(named(new QPushButton(tr("Save as &HTML…"), this), "saveHtml"))
    , m_pdf(named(new QPushButton(tr("Save as &PDF…"), this), "savePdf"))
{
    setObjectName(u"reportDialog"_s);
    setWindowTitle(m_rows.size() == 1 ? tr("Report on 1 sample")
                                      : tr("Report on %1 samples").arg(m_rows.size()));
    resize(820, 720);
    for (const ReportTemplate &each : reportTemplates())
        m_template->addItem(each.title);
    m_note->setWordWrap(true);
    // Paper is white, whatever the desktop is.
    QPalette paper = m_preview->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    m_preview->setPalette(paper);
    m_preview->document()->setDocumentMargin(24);

    auto *label = new QLabel(tr("&Template:"), this);
    label->setBuddy(m_template);
    auto *choices = new QHBoxLayout;
    choices->addWidget(label);
    choices->addWidget(m_template);
    choices->addSpacing(16);
    choices->addWidget(m_each);
    choices->addWidget(m_group);
    choices->addStretch();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->addButton(m_html, QDialogButtonBox::ActionRole);
    buttons->addButton(m_pdf, QDialogButtonBox::ActionRole);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(choices);
    layout->addWidget(m_preview, 1);
    layout->addWidget(m_note);
    layout->addWidget(buttons);

    connect(m_template, &QComboBox::currentIndexChanged, this, &ReportDialog::chooseTemplate);
    connect(m_group, &QRadioButton::toggled, this, &ReportDialog::fill);
    connect(buttons, &QDialogButtonBox::rejected, this, &ReportDialog::reject);
    connect(m_html, &QPushButton::clicked, this,
            [this] { save(u"report.html"_s, tr("HTML (*.html)"), &saveReportHtml); });
    connect(m_pdf, &QPushButton::clicked, this,
            [this] { save(u"report.pdf"_s, tr("PDF (*.pdf)"), &saveReportPdf); });
    chooseTemplate();
}

ReportDialog::~ReportDialog() = default;

void ReportDialog::chooseTemplate()
{
    const bool group = reportTemplates().at(m_template->currentIndex()).forGroup;
    const QSignalBlocker quiet(m_group);
    m_each->setChecked(!group);
    m_group->setChecked(group);
    fill();
}

void ReportDialog::fill()
{
    const auto filled = fillReport(reportTemplates().at(m_template->currentIndex()).path,
                                   m_group->isChecked(), m_rows, m_context);
    m_report = filled ? filled.value() : ReportPages();
    m_preview->setHtml(reportHtml(m_report));
    showNote(filled ? m_report.troubles.join(u'\n') : filled.error().errorMessage());
    m_html->setEnabled(!m_report.pages.isEmpty());
    m_pdf->setEnabled(!m_report.pages.isEmpty());
}

void ReportDialog::save(const QString &name, const QString &filter,
                        Error (*write)(const ReportPages &report, const QString &path))
{
    const auto location = files::askSaveReport(this, name, filter);
    if (location.isCanceled())
        return;
    const Error error = files::save(this, location, [this, write](const QString &path) {
        Error failure = write(m_report, path);
        showNote(failure.hasError() ? failure.errorMessage()
                                    : tr("Saved to %1").arg(QDir::toNativeSeparators(path)));
        return failure;
    });
    if (error.hasError())
        showNote(error.errorMessage());
}

void ReportDialog::showNote(const QString &text)
{
    m_note->setText(text);
    m_note->setVisible(!text.isEmpty());
}

} // namespace workbench
