#include "editor/PreviewPane.h"

#include "editor/RichTextView.h"
#include "templates/syntax/ScriptTags.h"

#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/BlackSplitterHandle.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/TemplateDocument.h>

#include <QComboBox>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QTextBrowser>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr int kShortestDelayMs = 300;
// A template that takes long to decode is decoded less often, so that typing keeps most of the time.
constexpr int kDelayPerDuration = 4;
constexpr int kPaperMargin = 20;
constexpr int kTroublesHeight = 130;

constexpr int kOffsetRole = Qt::UserRole + 1;
constexpr int kPartRole = Qt::UserRole + 2;

void makePaper(QTextBrowser *browser)
{
    setPaperColors(browser);
    auto *document = new TemplateDocument(browser);
    document->setDocumentMargin(kPaperMargin);
    document->setUndoRedoEnabled(false);
    browser->setDocument(document);
    browser->setOpenLinks(false);
}

} // namespace

PreviewPane::PreviewPane(const Decode &decode, QWidget *parent)
    : QWidget(parent)
    , m_decode(decode)
    , m_row(new QComboBox(this))
    , m_text(new QTextBrowser(this))
    , m_count(new QLabel(this))
    , m_troubles(new QListWidget(this))
{
    m_row->setObjectName(u"previewRow"_s);
    m_row->setAccessibleName(tr("Data of the preview"));
    m_row->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_text->setObjectName(u"previewText"_s);
    m_text->setAccessibleName(tr("Preview"));
    makePaper(m_text);
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
    auto *below = new QWidget(this);
    auto *belowLayout = new QVBoxLayout(below);
    belowLayout->setContentsMargins(0, 4, 0, 0);
    belowLayout->addWidget(m_count);
    belowLayout->addWidget(m_troubles);
    auto *splitter = new BlackSplitter(Qt::Vertical, this);
    splitter->addWidget(m_text);
    splitter->addWidget(below);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({3 * kTroublesHeight, kTroublesHeight});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(choice);
    layout->addWidget(splitter, 1);

    m_timer.setSingleShot(true);
    m_timer.setInterval(kShortestDelayMs);
    connect(&m_timer, &QTimer::timeout, this, &PreviewPane::updateNow);
    connect(m_row, &QComboBox::currentIndexChanged, this, &PreviewPane::updateSoon);
    connect(m_troubles, &QListWidget::itemClicked, this, &PreviewPane::choose);
    connect(m_troubles, &QListWidget::itemActivated, this, &PreviewPane::choose);
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
        m_timer.start();
}

void PreviewPane::setPaused(bool paused)
{
    m_isPaused = paused;
    if (paused)
        m_timer.stop();
}

void PreviewPane::updateNow()
{
    m_timer.stop();
    QElapsedTimer clock;
    clock.start();
    const Decoded decoded = m_decode();
    m_content = decoded.content;
    showText(syntax::withoutScriptTags(decoded.report.text));
    listTroubles(decoded.report);
    m_isStale = false;
    m_timer.setInterval(qMax(kShortestDelayMs, int(clock.elapsed()) * kDelayPerDuration));
}

void PreviewPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isStale && !m_isPaused)
        m_timer.start();
}

void PreviewPane::showText(const QString &text)
{
    const int scrolled = m_text->verticalScrollBar()->value();
    if (TemplateDocument::isHtml(text))
        m_text->document()->setHtml(text);
    else
        m_text->document()->setPlainText(text);
    m_text->verticalScrollBar()->setValue(scrolled);
}

void PreviewPane::listTroubles(const TemplateReport &report)
{
    m_troubles->clear();
    for (const UnresolvedCode &code : report.unresolved)
        addTrouble(u"dialog-warning"_s, tr("%1 has no value.").arg(code.code), code.position, code.code);
    for (const FailedScript &script : report.failed) {
        addTrouble(u"dialog-error"_s,
                   tr("A script failed in its line %1: %2").arg(script.line).arg(script.message),
                   script.position, script.code);
    }
    for (const BroughtInCode &code : report.broughtIn) {
        const QString text = code.by.isEmpty()
                                 ? tr("%1 came in with the result of a script.").arg(code.code)
                                 : tr("%1 came in with the value of %2.").arg(code.code, code.by);
        addTrouble(u"dialog-warning"_s, text, code.position, code.by);
    }
    for (const FaultyInstruction &instruction : report.faulty)
        addTrouble(u"dialog-error"_s, instruction.message, instruction.position, instruction.instruction);
    const int count = m_troubles->count();
    m_count->setText(count == 0   ? tr("Everything was filled.")
                     : count == 1 ? tr("1 place could not be filled:")
                                  : tr("%1 places could not be filled:").arg(count));
    m_troubles->setVisible(count > 0);
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
