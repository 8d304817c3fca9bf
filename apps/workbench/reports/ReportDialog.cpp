#include "reports/ReportDialog.h"

#include "reports/ReportSheets.h"
#include "window/FileQuestions.h"

#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/ReportView.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using ozm::Error;

namespace workbench {

namespace {

// Further ones are only made when they are shown or saved: a thousand would keep the user waiting at each choice.
constexpr int kLookedThrough = 20;
// In milliseconds.
constexpr int kProgressAfter = 400;

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
    , m_files(named(new QCheckBox(tr("A &file for each"), this), "files"))
    , m_report(named(new QComboBox(this), "report"))
    , m_page(named(new QLabel(this), "page"))
    , m_preview(named(new ozm::ReportView(this), "preview"))
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
    m_report->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
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
    choices->addSpacing(16);
    choices->addWidget(m_files);
    choices->addStretch();
    auto *shownLabel = new QLabel(tr("&Report:"), this);
    shownLabel->setBuddy(m_report);
    auto *shown = new QHBoxLayout;
    shown->addWidget(shownLabel);
    shown->addWidget(m_report, 1);
    shown->addWidget(m_page);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->addButton(m_save, QDialogButtonBox::ActionRole);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(choices);
    layout->addLayout(shown);
    layout->addWidget(m_preview, 1);
    layout->addWidget(m_note);
    layout->addWidget(buttons);

    connect(m_template, &QComboBox::currentIndexChanged, this, &ReportDialog::chooseTemplate);
    connect(other, &QPushButton::clicked, this, &ReportDialog::askTemplate);
    connect(m_group, &QRadioButton::toggled, this, &ReportDialog::showChoice);
    connect(m_report, &QComboBox::currentIndexChanged, this, &ReportDialog::showReport);
    connect(m_preview, &ozm::ReportView::pageChanged, this, &ReportDialog::showPage);
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
    showChoice();
}

void ReportDialog::showChoice()
{
    m_files->setEnabled(m_each->isChecked() && m_rows.size() > 1);
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

ozm::Result<ReportFiller> ReportDialog::reports() const
{
    return ReportFiller::of(m_templates.at(m_template->currentIndex()).path, m_group->isChecked(), m_rows,
                            m_context);
}

void ReportDialog::fill()
{
    auto filler = reports();
    const QSignalBlocker quiet(m_report);
    m_report->clear();
    m_filler.reset();
    ReportPages looked;
    if (filler)
        m_filler.emplace(std::move(filler.value()));
    const int count = m_filler ? m_filler->count() : 0;
    for (int index = 0; index < count; ++index)
        m_report->addItem(m_filler->name(index));
    m_report->setEnabled(count > 1);
    m_save->setEnabled(count > 0);
    for (int index = 0; index < std::min(count, kLookedThrough); ++index)
        looked.append(m_filler->filled(index));
    m_troubles = looked.troubles;
    if (count > kLookedThrough)
        m_troubles.prepend(tr("The first %1 of %2 reports were looked through for what is missing.")
                               .arg(kLookedThrough)
                               .arg(count));
    showReport();
    if (!filler)
        showNote(filler.error().errorMessage());
}

void ReportDialog::showReport()
{
    ReportPages shown;
    if (m_filler && m_report->currentIndex() >= 0)
        shown = m_filler->filled(m_report->currentIndex());
    m_preview->setReport(shown.pages.isEmpty() ? QString() : shown.pages.constFirst().html,
                         reportPaperOptions());
    m_preview->verticalScrollBar()->setValue(0);
    showPage(m_preview->currentPage(), m_preview->pageCount());
    ReportPages told{{}, m_troubles};
    told.append(shown);
    showNote(told.troubles.join(u'\n'));
}

void ReportDialog::showPage(int page, int pages)
{
    m_page->setText(tr("Page %1 of %2").arg(page).arg(pages));
}

void ReportDialog::save()
{
    if (m_files->isEnabled() && m_files->isChecked())
        saveFolder();
    else
        saveFile();
}

ReportProgress ReportDialog::progress(QProgressDialog &shown) const
{
    shown.setObjectName(u"reportProgress"_s);
    shown.setWindowModality(Qt::WindowModal);
    shown.setWindowTitle(windowTitle());
    shown.setMinimumDuration(kProgressAfter);
    return [&shown](int done, int count, const QString &name) {
        shown.setMaximum(count);
        if (!name.isEmpty())
            shown.setLabelText(tr("Report %1 of %2: %3").arg(done + 1).arg(count).arg(name));
        // Shows the dialog, and takes the click on its button.
        shown.setValue(done);
        return !shown.wasCanceled();
    };
}

void ReportDialog::saveFile()
{
    const auto location = files::askSaveReport(this, u"report.pdf"_s);
    if (location.isCanceled())
        return;
    ReportSeries series;
    const Error error = files::save(this, location, [&](const QString &path) {
        auto filler = reports();
        if (!filler)
            return filler.error();
        QProgressDialog shown(this);
        const auto written = writeReportsToFile(filler.value(), path, progress(shown));
        if (!written)
            return written.error();
        series = written.value();
        return series.isCanceled ? Error(ozm::ErrorCode::Failed, tr("Canceled. Nothing was saved."))
                                 : Error();
    });
    if (error.hasError())
        showNote(error.errorMessage());
    else
        showOutcome(series, tr("Saved to %1").arg(QDir::toNativeSeparators(location.toString())));
}

bool ReportDialog::mayReplace(const ReportFiller &reports, const QString &folder)
{
    int present = 0;
    for (int index = 0; index < reports.count(); ++index)
        present += QFileInfo::exists(QDir(folder).filePath(reports.fileName(index))) ? 1 : 0;
    if (present == 0)
        return true;
    const QString text = tr("%n of the files are in this folder already. Replace them?", nullptr, present);
    return OZMStyle::question(this, ozm::OzmMessageBoxSignal::FileExists, windowTitle(), text,
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

void ReportDialog::saveFolder()
{
    const QString folder = files::askReportFolder(this);
    auto filler = reports();
    if (folder.isEmpty() || !filler || !mayReplace(filler.value(), folder))
        return;
    QProgressDialog shown(this);
    const auto written = writeReportsToFolder(filler.value(), folder, progress(shown));
    if (!written) {
        showNote(written.error().errorMessage());
        return;
    }
    const QString saved =
        tr("%n file(s) saved to %1", nullptr, written.value().files).arg(QDir::toNativeSeparators(folder));
    showOutcome(written.value(), written.value().isCanceled ? tr("Canceled.") + u' ' + saved : saved);
}

void ReportDialog::showOutcome(const ReportSeries &series, const QString &saved)
{
    showNote((QStringList{saved} + series.troubles).join(u'\n'));
}

void ReportDialog::showNote(const QString &text)
{
    m_note->setText(text);
    m_note->setVisible(!text.isEmpty());
}

} // namespace workbench
