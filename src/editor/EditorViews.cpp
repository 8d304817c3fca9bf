#include "editor/EditorViews.h"

#include "editor/CodeEdit.h"
#include "editor/CodeModel.h"
#include "editor/EditorHistory.h"
#include "editor/ParagraphLooks.h"
#include "editor/RichTextView.h"
#include "editor/SourceHighlighter.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QStackedWidget>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr std::array kViewZooms{0.5, 0.67, 0.8, 0.9, 1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0};
// In characters: more than that has a scroll bar in any window.
constexpr int kLongText = 10'000;
constexpr double kInchesPerMeter = 1000 / 25.4;

} // namespace

EditorViews::EditorViews(CodeModel *codes, QWidget *window)
    : QObject(window)
    , m_codes(codes)
    , m_stack(new QStackedWidget(window))
    , m_rich(new RichTextView(codes, window))
    , m_plain(new CodeEdit(window))
    , m_formattedView(std::make_unique<FormattedView>(m_rich))
    , m_sourceView(std::make_unique<SourceView>(m_plain))
{
    m_stack->setObjectName(u"views"_s);
    m_rich->setObjectName(u"richView"_s);
    m_rich->setAccessibleName(tr("Formatted template"));
    m_plain->setObjectName(u"plainView"_s);
    m_plain->setAccessibleName(tr("Source of the template"));
    m_plain->setUndoneOutside(true);
    m_plain->setCompletion(codes);
    m_stack->addWidget(m_rich);
    m_stack->addWidget(m_plain);
    m_plainFont = m_plain->font();
    m_rich->viewport()->installEventFilter(this);
    m_plain->viewport()->installEventFilter(this);
}

EditorViews::~EditorViews() = default;

EditorView &EditorViews::current() const
{
    return m_stack->currentWidget() == m_rich ? *m_formattedView : *m_sourceView;
}

void EditorViews::show(const EditorSession &session)
{
    TemplateDocument *formatted = session.richDocument();
    if (formatted)
        formatted->setDisplayNames(m_codes->displayNames());
    if (formatted && !formatted->findChild<ParagraphLooks *>())
        new ParagraphLooks(formatted, m_styleSheet);
    m_rich->showDocument(formatted);
    layOutOnceShown();
    m_plain->showDocument(formatted ? nullptr : session.document());
    if (!formatted && !session.isLarge() && !session.document()->findChild<SourceHighlighter *>())
        new SourceHighlighter(session.document(), m_codes, SourceHighlighter::Language::Template);
    applyZoom();
    m_stack->setCurrentWidget(formatted ? static_cast<QWidget *>(m_rich) : m_plain);
    current().widget()->setFocus();
}

void EditorViews::layOutOnceShown()
{
    // The view lays it out when it is given its size, which is where it is shown.
    if (!m_rich->viewport()->testAttribute(Qt::WA_PendingResizeEvent))
        return;
    m_rich->document()->setPageSize({0, 0});
    // Without a place yet, any text has a scroll bar, beside which it would be laid out first.
    if (m_rich->document()->characterCount() < kLongText)
        m_rich->verticalScrollBar()->setRange(0, 0);
}

void EditorViews::setZoom(double zoom)
{
    zoom = std::clamp(zoom, kViewZooms.front(), kViewZooms.back());
    if (zoom == m_zoom)
        return;
    m_zoom = zoom;
    applyZoom();
    current().widget()->update();
    Q_EMIT zoomChanged(zoom);
}

void EditorViews::zoomIn()
{
    const auto larger = std::ranges::upper_bound(kViewZooms, m_zoom);
    if (larger != kViewZooms.end())
        setZoom(*larger);
}

void EditorViews::zoomOut()
{
    const auto same = std::ranges::lower_bound(kViewZooms, m_zoom);
    if (same != kViewZooms.begin())
        setZoom(*std::prev(same));
}

void EditorViews::applyZoom()
{
    const int dotsPerMeter = qRound(m_rich->logicalDpiY() * m_zoom * kInchesPerMeter);
    auto device = std::make_unique<QImage>(1, 1, QImage::Format_Mono);
    device->setDotsPerMeterX(dotsPerMeter);
    device->setDotsPerMeterY(dotsPerMeter);
    TemplateDocument *document = m_rich->templateDocument();
    const bool isUsual = m_zoom == 1;
    const bool wasUsual = !document->documentLayout()->paintDevice();
    document->documentLayout()->setPaintDevice(isUsual ? nullptr : device.get());
    m_device = std::move(device);
    if (!isUsual || !wasUsual)
        document->markContentsDirty(0, document->characterCount());
    QFont font = m_plainFont;
    font.setPointSizeF(m_plainFont.pointSizeF() * m_zoom);
    m_plain->setFont(font);
}

bool EditorViews::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return QObject::eventFilter(watched, event);
    const auto *wheel = static_cast<QWheelEvent *>(event);
    if (!(wheel->modifiers() & Qt::ControlModifier))
        return false;
    if (wheel->angleDelta().y() > 0)
        zoomIn();
    else if (wheel->angleDelta().y() < 0)
        zoomOut();
    return true;
}

void EditorViews::showNothing()
{
    m_rich->showDocument(nullptr);
    m_plain->showDocument(nullptr);
}

void EditorViews::refresh(const EditorSession &session)
{
    if (TemplateDocument *formatted = session.richDocument()) {
        formatted->setDisplayNames(m_codes->displayNames());
        if (auto *looks = formatted->findChild<ParagraphLooks *>())
            looks->setStyleSheet(m_styleSheet);
        m_rich->viewport()->update();
    } else if (auto *highlighter = session.document()->findChild<SourceHighlighter *>()) {
        highlighter->rehighlight();
    }
}

void EditorViews::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    m_formattedView->setReadOnly(readOnly);
    m_sourceView->setReadOnly(readOnly);
}

} // namespace ozm::editor
