#include "editor/PreviewPane.h"

#include "editor/PreviewPlace.h"

#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/BlackSplitterHandle.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/ReportView.h>

#include <QComboBox>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr int kShortestDelayMs = 300;
// A template that takes long to decode is decoded less often, so that typing keeps most of the time.
constexpr int kDelayPerDuration = 4;
constexpr int kFollowMs = 150;
constexpr int kTroublesHeight = 130;
constexpr int kAboveTroubles = 4;
constexpr qsizetype kTroublesAtOnce = 100;

constexpr int kOffsetRole = Qt::UserRole + 1;
constexpr int kPartRole = Qt::UserRole + 2;

constexpr std::array kZoomChoices{0.5, 0.75, 1.0, 1.5, 2.0};
constexpr double kPercent = 100;

QToolButton *makeZoomButton(const char *name, const char *icon, const QString &text, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setIcon(OZMStyle::icon(QString::fromLatin1(icon)));
    button->setAutoRaise(true);
    button->setToolTip(text);
    button->setAccessibleName(text);
    return button;
}

} // namespace

PreviewPane::PreviewPane(const Prepare &prepare, const Decode &decode, const FindCaret &findCaret,
                         QWidget *parent)
    : QWidget(parent)
    , m_prepare(prepare)
    , m_decode(decode)
    , m_findCaret(findCaret)
    , m_row(new QComboBox(this))
    , m_pages(new ReportView(this))
    , m_page(new QLabel(this))
    , m_zoom(new QToolButton(this))
    , m_count(new QLabel(this))
    , m_splitter(new BlackSplitter(Qt::Vertical, this))
    , m_below(new QWidget(this))
    , m_troubles(new QListWidget(m_below))
    , m_delayMs(kShortestDelayMs)
{
    m_row->setObjectName(u"previewRow"_s);
    m_row->setAccessibleName(tr("Data of the preview"));
    m_row->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_pages->setObjectName(u"previewPages"_s);
    m_pages->setAccessibleName(tr("Preview"));
    m_count->setObjectName(u"previewCount"_s);
    m_troubles->setObjectName(u"previewTroubles"_s);
    m_troubles->setAccessibleName(tr("What could not be filled"));
    m_troubles->setWordWrap(true);
    m_troubles->setTextElideMode(Qt::ElideNone);

    auto *label = new QLabel(tr("&Data:"), this);
    label->setBuddy(m_row);
    auto *choice = new QHBoxLayout;
    choice->addWidget(label);
    choice->addWidget(m_row, 1);
    auto *above = new QWidget(this);
    auto *aboveLayout = new QVBoxLayout(above);
    aboveLayout->setContentsMargins(0, 0, 0, 0);
    aboveLayout->setSpacing(0);
    aboveLayout->addWidget(m_pages, 1);
    aboveLayout->addWidget(makeZoomBar());
    auto *belowLayout = new QVBoxLayout(m_below);
    belowLayout->setContentsMargins(0, kAboveTroubles, 0, 0);
    belowLayout->addWidget(m_count);
    belowLayout->addWidget(m_troubles);
    m_splitter->addWidget(above);
    m_splitter->addWidget(m_below);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setSizes({3 * kTroublesHeight, kTroublesHeight});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(choice);
    layout->addWidget(m_splitter, 1);

    m_timer.setSingleShot(true);
    m_followTimer.setSingleShot(true);
    m_followTimer.setInterval(kFollowMs);
    connect(&m_timer, &QTimer::timeout, this, &PreviewPane::goOn);
    connect(&m_followTimer, &QTimer::timeout, this, &PreviewPane::follow);
    connect(m_pages, &ReportView::reportShown, this, &PreviewPane::showReport);
    connect(m_row, &QComboBox::currentIndexChanged, this, &PreviewPane::updateSoon);
    connect(m_troubles, &QListWidget::itemClicked, this, &PreviewPane::choose);
    connect(m_troubles->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (value == m_troubles->verticalScrollBar()->maximum())
            listMoreTroubles();
    });
    connect(m_troubles, &QListWidget::itemActivated, this, &PreviewPane::choose);
}

QWidget *PreviewPane::makeZoomBar()
{
    auto *bar = new QWidget(this);
    auto *out = makeZoomButton("previewZoomOut", "zoom-out", tr("Zoom out (Ctrl and the wheel)"), bar);
    auto *in = makeZoomButton("previewZoomIn", "zoom-in", tr("Zoom in (Ctrl and the wheel)"), bar);
    m_page->setObjectName(u"previewPage"_s);
    m_zoom->setObjectName(u"previewZoom"_s);
    m_zoom->setAutoRaise(true);
    m_zoom->setPopupMode(QToolButton::InstantPopup);
    m_zoom->setToolTip(tr("Zoom of the preview"));
    auto *menu = new QMenu(m_zoom);
    QAction *fit = menu->addAction(tr("&Fit the width"), this, [this] { m_pages->setFitsWidth(true); });
    fit->setObjectName(u"previewFitWidth"_s);
    menu->addSeparator();
    for (const double zoom : kZoomChoices)
        menu->addAction(tr("%1 %").arg(zoom * kPercent), this, [this, zoom] { m_pages->setZoom(zoom); });
    m_zoom->setMenu(menu);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 2, 0, 2);
    layout->addWidget(m_page, 1);
    layout->addWidget(out);
    layout->addWidget(m_zoom);
    layout->addWidget(in);
    connect(out, &QToolButton::clicked, m_pages, &ReportView::zoomOut);
    connect(in, &QToolButton::clicked, m_pages, &ReportView::zoomIn);
    connect(m_pages, &ReportView::zoomChanged, this, &PreviewPane::showZoom);
    connect(m_pages, &ReportView::pageChanged, this,
            [this](int page, int pages) { m_page->setText(tr("Page %1 of %2").arg(page).arg(pages)); });
    showZoom();
    return bar;
}

void PreviewPane::showZoom()
{
    const QString text = tr("%1 %").arg(qRound(m_pages->zoom() * kPercent));
    m_zoom->setText(text);
    m_zoom->setAccessibleName(tr("Zoom: %1").arg(text));
}

void PreviewPane::followSoon()
{
    if (isVisible())
        m_followTimer.start();
}

void PreviewPane::follow()
{
    // Until the report is made anew, it may show something else at the caret.
    if (m_isStale || !m_isLaidOut)
        return;
    const Caret caret = m_findCaret();
    m_pages->showPosition(int(placeInReport(caret.text, caret.position, m_pages->toPlainText())));
}

void PreviewPane::setRows(const QStringList &names)
{
    const int before = m_row->currentIndex();
    const QSignalBlocker quiet(m_row);
    m_row->clear();
    for (int index = 0; index < names.size(); ++index)
        m_row->addItem(names.at(index), index);
    if (names.size() > 1)
        m_row->addItem(tr("All %1 as a group").arg(names.size()), -1);
    if (names.isEmpty())
        m_row->addItem(tr("No data"), -1);
    m_row->setEnabled(names.size() > 1);
    m_row->setCurrentIndex(qBound(0, before, m_row->count() - 1));
    updateSoon();
}

int PreviewPane::row() const
{
    return m_row->currentIndex() < 0 ? -1 : m_row->currentData().toInt();
}

void PreviewPane::updateSoon()
{
    m_isStale = true;
    if (m_isPaused)
        m_count->setText(tr("The template is large: refresh the preview to see it."));
    else if (isVisible())
        m_timer.start(m_delayMs);
}

void PreviewPane::setPaused(bool paused)
{
    m_isPaused = paused;
    if (paused)
        m_timer.stop();
}

// In steps, between which keys are answered.
void PreviewPane::goOn()
{
    if (m_prepare())
        m_timer.start(0);
    else
        updateNow();
}

void PreviewPane::updateNow()
{
    m_timer.stop();
    QElapsedTimer clock;
    clock.start();
    m_next = m_decode();
    m_isStale = false;
    m_isLaidOut = false;
    m_pages->setReportSoon(m_next.report.text, m_next.paper);
    m_delayMs = qMax(kShortestDelayMs, int(clock.elapsed()) * kDelayPerDuration);
}

void PreviewPane::showReport()
{
    const Decoded shown = std::exchange(m_next, {});
    m_content = shown.content;
    m_isLaidOut = true;
    listTroubles(shown.report);
    followSoon();
}

void PreviewPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isStale && !m_isPaused)
        m_timer.start(m_delayMs);
}

void PreviewPane::listTroubles(const TemplateReport &report)
{
    m_report = report;
    m_report.text.clear();
    m_troubles->clear();
    listMoreTroubles();
    const qsizetype count =
        report.unresolved.size() + report.failed.size() + report.broughtIn.size() + report.faulty.size();
    m_count->setText(count == 0   ? tr("Everything was filled.")
                     : count == 1 ? tr("1 place could not be filled:")
                                  : tr("%1 places could not be filled:").arg(count));
    giveRoomToTroubles(count > 0);
}

// As many as somebody looks at: there can be thousands.
void PreviewPane::listMoreTroubles()
{
    qsizetype skipped = m_troubles->count();
    qsizetype room = kTroublesAtOnce;
    const auto list = [this, &skipped, &room](const auto &kind) {
        for (qsizetype index = skipped; index < kind.size() && room > 0; ++index, --room)
            add(kind.at(index));
        skipped = qMax<qsizetype>(0, skipped - kind.size());
    };
    list(m_report.unresolved);
    list(m_report.failed);
    list(m_report.broughtIn);
    list(m_report.faulty);
}

void PreviewPane::add(const UnresolvedCode &code)
{
    addTrouble(u"dialog-warning"_s, tr("%1 has no value.").arg(code.code), code.position, code.code);
}

void PreviewPane::add(const FailedScript &script)
{
    addTrouble(u"dialog-error"_s,
               tr("A script failed in its line %1: %2").arg(script.line).arg(script.message), script.position,
               script.code);
}

void PreviewPane::add(const BroughtInCode &code)
{
    const QString text = code.by.isEmpty() ? tr("%1 came in with the result of a script.").arg(code.code)
                                           : tr("%1 came in with the value of %2.").arg(code.code, code.by);
    addTrouble(u"dialog-warning"_s, text, code.position, code.by);
}

void PreviewPane::add(const FaultyInstruction &instruction)
{
    addTrouble(u"dialog-error"_s, instruction.message, instruction.position, instruction.instruction);
}

void PreviewPane::giveRoomToTroubles(bool there)
{
    m_troubles->setVisible(there);
    const int least = m_count->sizeHint().height() + 2 * kAboveTroubles;
    const bool hadRoom = m_below->maximumHeight() > least;
    m_below->setMaximumHeight(there ? QWIDGETSIZE_MAX : least);
    if (hadRoom != there) {
        const int height = there ? kTroublesHeight : least;
        m_splitter->setSizes({m_splitter->height() - height, height});
    }
}

void PreviewPane::addTrouble(const QString &icon, const QString &text, qsizetype offset, const QString &part)
{
    auto *item = new QListWidgetItem(OZMStyle::icon(icon), text, m_troubles);
    item->setData(kOffsetRole, QVariant::fromValue(offset));
    item->setData(kPartRole, part);
    item->setToolTip(tr("Go to this place in the template"));
}

void PreviewPane::choose(const QListWidgetItem *item)
{
    Q_EMIT placeChosen(m_content, item->data(kOffsetRole).value<qsizetype>(),
                       item->data(kPartRole).toString());
}

} // namespace ozm::editor
