#include "reports/ReportDialog.h"

#include "window/FileQuestions.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

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
    , m_templates(reportTemplates())
    , m_template(named(new QComboBox(this), "template"))
    , m_each(named(new QRadioButton(tr("&One by one"), this), "each"))
    , m_group(named(new QRadioButton(tr("As a &group"), this), "group"))
    , m_preview(named(new QTextBrowser(this), "preview"))
    , m_note(named(new QLabel(this), "note"))
    , m_save(named(new QPushButton(tr("&Save…"), this), "save"))
{
    setObjectName(u"reportDialog"_s);
    setWindowTitle(m_rows.size() == 1 ? tr("Report on 1 sample")
                                      : tr("Report on %1 samples").arg(m_rows.size()));
    resize(820, 720);
    for (const ReportTemplate &each : std::as_const(m_templates))
        m_template->addItem(each.title);
    m_note->setWordWrap(true);
    // Paper is white, whatever the desktop is.
    QPalette paper = m_preview->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    m_preview->setPalette(paper);
    m_preview->document()->setDocumentMargin(24);

    m_preview->setAccessibleName(tr("Preview"));

    auto *label = new QLabel(tr("&Template:"), this);
    label->setBuddy(m_template);
    auto *other = named(new QPushButton(tr("Ot&her…"), this), "otherTemplate");
    other->setToolTip(tr("Takes a template that was saved in the template editor"));
    auto *choices = new QHBoxLayout;
    choices->addWidget(label);
    choices->addWidget(m_template);
    choices->addWidget(other);
    choices->addSpacing(16);
    choices->addWidget(m_each);
    choices->addWidget(m_group);
    choices->addStretch();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->addButton(m_save, QDialogButtonBox::ActionRole);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(choices);
    layout->addWidget(m_preview, 1);
    layout->addWidget(m_note);
    layout->addWidget(buttons);

    connect(m_template, &QComboBox::currentIndexChanged, this, &ReportDialog::chooseTemplate);
    connect(other, &QPushButton::clicked, this, &ReportDialog::askTemplate);
    connect(m_group, &QRadioButton::toggled, this, &ReportDialog::fill);
    connect(buttons, &QDialogButtonBox::rejected, this, &ReportDialog::reject);
    connect(m_save, &QPushButton::clicked, this, &ReportDialog::save);
    chooseTemplate();
}

ReportDialog::~ReportDialog() = default;

void ReportDialog::chooseTemplate()
{
    const bool group = m_templates.at(m_template->currentIndex()).forGroup;
    const QSignalBlocker quiet(m_group);
    m_each->setChecked(!group);
    m_group->setChecked(group);
    fill();
}

void ReportDialog::askTemplate()
{
    const QString path = files::askOpenTemplate(this);
    if (path.isEmpty())
        return;
    qsizetype index = std::ranges::find(m_templates, path, &ReportTemplate::path) - m_templates.begin();
    if (index == m_templates.size()) {
        m_templates.append({QFileInfo(path).completeBaseName(), path, false});
        m_template->addItem(m_templates.constLast().title);
        m_template->setItemData(m_template->count() - 1, QDir::toNativeSeparators(path), Qt::ToolTipRole);
    }
    m_template->setCurrentIndex(static_cast<int>(index));
}

void ReportDialog::fill()
{
    const auto filled =
        fillReport(m_templates.at(m_template->currentIndex()).path, m_group->isChecked(), m_rows, m_context);
    m_report = filled ? filled.value() : ReportPages();
    m_preview->setHtml(reportHtml(m_report, PageEnd::Line));
    showNote(filled ? m_report.troubles.join(u'\n') : filled.error().errorMessage());
    m_save->setEnabled(!m_report.pages.isEmpty());
}

void ReportDialog::save()
{
    const auto location = files::askSaveReport(this, u"report.pdf"_s);
    if (location.isCanceled())
        return;
    const Error error = files::save(this, location, [this](const QString &path) {
        const bool asHtml = QFileInfo(path).suffix().compare("html"_L1, Qt::CaseInsensitive) == 0;
        return asHtml ? saveReportHtml(m_report, path) : saveReportPdf(m_report, path);
    });
    showNote(error.hasError() ? error.errorMessage()
                              : tr("Saved to %1").arg(QDir::toNativeSeparators(location.toString())));
}

void ReportDialog::showNote(const QString &text)
{
    m_note->setText(text);
    m_note->setVisible(!text.isEmpty());
}

} // namespace workbench
