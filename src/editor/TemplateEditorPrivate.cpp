#include "editor/TemplateEditorPrivate.h"

#include "editor/CodeEdit.h"
#include "editor/CodeModel.h"
#include "editor/CodePanel.h"
#include "editor/FindBar.h"
#include "editor/RichTextView.h"
#include "editor/ScriptPane.h"
#include "editor/TextFormatting.h"
#include "templates/decoding/TemplateDecoder.h"

#include "support/Platform.h"
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_widgets/OZMDockWidgetTitleBar.h>
#include <ozm_widgets/TemplateFilling.h>

#include <QApplication>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QResizeEvent>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace ozm::editor;

namespace {

constexpr int kWidth = 1320;
constexpr int kHeight = 860;
constexpr int kCodesWidth = 250;
constexpr int kPreviewWidth = 430;
constexpr int kScriptHeight = 190;
// Of the width of a window that is made narrower.
constexpr double kLeastShareOfText = 0.45;
constexpr double kLeastShareOfCodes = 0.18;
constexpr double kLeastShareOfPreview = 0.3;
constexpr int kStatusMs = 10000;

QString percent(double zoom)
{
    return AbstractTemplateEditor::tr("%1 %").arg(qRound(zoom * 100));
}

/// How often @p part occurs in @p text before @p offset.
int occurrence(const QString &text, qsizetype offset, const QString &part)
{
    int count = 0;
    for (qsizetype at = text.indexOf(part); at >= 0 && at < offset; at = text.indexOf(part, at + 1))
        ++count;
    return count;
}

qsizetype offsetOfOccurrence(const QString &text, int number, const QString &part)
{
    qsizetype at = text.indexOf(part);
    while (number-- > 0 && at >= 0)
        at = text.indexOf(part, at + 1);
    return at;
}

} // namespace

AbstractTemplateEditor::Private::Private(AbstractTemplateEditor *editor)
    : qptr(editor)
    , m_history(new EditorHistory(this))
    , m_codes(new CodeModel(this))
    , m_views(m_codes, editor)
    , m_format(new TextFormatting(m_views.rich()))
    , m_table(m_views.rich())
    , m_printing([editor] { return editor->paperOptions(); })
    , m_files(editor, EditorFiles::Template{[this] { return m_history->session().prepareSource(); },
                                            [this] { return content(); }, [this] { return isModified(); },
                                            [this](const QString &content) { show(content); },
                                            [this] {
                                                m_history->stack().resetClean();
                                                updateTitle();
                                            },
                                            [this] { m_history->setClean(); }})
    , m_questions(m_views, m_printing, {[this] { return decode(content()).text; }, [this] { return name(); }},
                  editor)
{
    buildCenter();
    buildDocks();
    m_scripts = std::make_unique<EditorScripts>(m_views, m_scriptPane, m_scriptDock);
    m_instructions = std::make_unique<EditorInstructions>(
        m_views, *m_codes,
        EditorInstructions::Data{[this](const QString &content) { return decode(content); },
                                 [this] { return m_history->session().documentSource(); },
                                 [this] { return qptr->rowLists(previewRow()); }},
        qptr);
    m_actions = std::make_unique<EditorActions>(EditorParts{*qptr,
                                                            m_files,
                                                            *m_history,
                                                            m_views,
                                                            *m_scripts,
                                                            *m_instructions,
                                                            m_questions,
                                                            m_printing,
                                                            *m_format,
                                                            m_table,
                                                            *m_findBar,
                                                            *m_codes,
                                                            *m_codePanel,
                                                            m_codeDock,
                                                            {m_codeDock, m_scriptDock, m_previewDock},
                                                            [this] { return decode(content()).text; }});
    connectParts();
    showSession();
    updateState();
    updateTitle();
}

AbstractTemplateEditor::Private::~Private()
{
    m_history->disconnect();
    m_history->stack().disconnect();
    // The documents go with the history, and must not be shown any more by then.
    m_views.showNothing();
}

void AbstractTemplateEditor::Private::buildCenter()
{
    qptr->resize(kWidth, kHeight);
    m_findBar = new FindBar(m_views, qptr);
    m_findBar->setObjectName(u"findBar"_s);
    auto *center = new QWidget(qptr);
    auto *layout = new QVBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_views.widget(), 1);
    layout->addWidget(m_findBar);
    qptr->setCentralWidget(center);
    qptr->statusBar()->setObjectName(u"statusBar"_s);
    auto *zoom = new QLabel(percent(m_views.zoom()), qptr);
    zoom->setObjectName(u"viewZoom"_s);
    zoom->setToolTip(tr("Zoom of the template (Ctrl and the wheel)"));
    qptr->statusBar()->addPermanentWidget(zoom);
    connect(&m_views, &EditorViews::zoomChanged, zoom, [zoom](double now) { zoom->setText(percent(now)); });
}

void AbstractTemplateEditor::Private::buildDocks()
{
    m_codePanel = new CodePanel(m_codes, qptr);
    m_scriptPane = new ScriptPane(
        m_codes, [this](const QString &content) { return decode(content); }, qptr);
    m_preview =
        new PreviewPane([this] { return m_history->session().prepareSource(); },
                        [this] {
                            const QString source = content();
                            return PreviewPane::Decoded{source, decode(source), m_printing.options()};
                        },
                        [this] {
                            const QTextCursor caret = m_views.current().cursor();
                            return PreviewPane::Caret{caret.document()->toPlainText(), caret.position()};
                        },
                        qptr);
    m_codeDock = addDock("codeDock", tr("Codes"), m_codePanel, Qt::LeftDockWidgetArea);
    m_scriptDock = addDock("scriptDock", tr("Script"), m_scriptPane, Qt::BottomDockWidgetArea);
    m_previewDock = addDock("previewDock", tr("Preview"), m_preview, Qt::RightDockWidgetArea);
    qptr->setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    qptr->setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    qptr->resizeDocks({m_codeDock, m_previewDock}, {kCodesWidth, kPreviewWidth}, Qt::Horizontal);
    qptr->resizeDocks({m_scriptDock}, {kScriptHeight}, Qt::Vertical);
    m_scriptDock->hide();
    qptr->installEventFilter(this);
}

void AbstractTemplateEditor::Private::giveRoomToText()
{
    const int width = qptr->width();
    if (m_views.widget()->width() >= width * kLeastShareOfText)
        return;
    qptr->resizeDocks({m_codeDock, m_previewDock},
                      {int(width * kLeastShareOfCodes), int(width * kLeastShareOfPreview)}, Qt::Horizontal);
}

bool AbstractTemplateEditor::Private::eventFilter(QObject *watched, QEvent *event)
{
    // By then, the window has laid out its parts.
    if (watched == qptr && event->type() == QEvent::Resize)
        QTimer::singleShot(0, this, &Private::giveRoomToText);
    return false;
}

QDockWidget *AbstractTemplateEditor::Private::addDock(const char *name, const QString &title,
                                                      QWidget *content, Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title, qptr);
    dock->setObjectName(QString::fromLatin1(name));
    dock->setTitleBarWidget(new OZMDockWidgetTitleBar(dock));
    dock->setWidget(content);
    // The toolkit mirrors what is in the window, but not its sides.
    const bool isSide = area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
    if (isSide && qptr->isRightToLeft())
        area = area == Qt::LeftDockWidgetArea ? Qt::RightDockWidgetArea : Qt::LeftDockWidgetArea;
    qptr->addDockWidget(area, dock);
    return dock;
}

void AbstractTemplateEditor::Private::connectParts()
{
    RichTextView *rich = m_views.rich();
    connect(m_history, &EditorHistory::sessionChanged, this, &Private::showSession);
    connect(m_history, &EditorHistory::went, this, &Private::goToEdit);
    connect(m_history, &EditorHistory::edited, this, [this] {
        m_preview->updateSoon();
        m_files.storeSoon();
        Q_EMIT qptr->sourceTextChanged();
    });
    connect(&m_history->stack(), &QUndoStack::indexChanged, this, &Private::updateState);
    connect(&m_history->stack(), &QUndoStack::cleanChanged, this, &Private::updateState);
    connect(rich, &QTextEdit::cursorPositionChanged, this, &Private::updateState);
    connect(rich, &QTextEdit::currentCharFormatChanged, this, &Private::updateState);
    connect(rich, &QTextEdit::cursorPositionChanged, m_preview, &PreviewPane::followSoon);
    connect(m_views.plain(), &QPlainTextEdit::cursorPositionChanged, m_preview, &PreviewPane::followSoon);
    connect(rich, &RichTextView::scriptActivated, m_scripts.get(), &EditorScripts::editAtCursor);
    connect(rich, &RichTextView::instructionActivated, m_instructions.get(),
            &EditorInstructions::editAtCursor);
    connect(rich, &RichTextView::removalRefused, this,
            [this](const QString &code) { tell(tr("%1 may not be removed from this template.").arg(code)); });
    connect(m_codePanel, &CodePanel::chosen, this, &Private::insertCode);
    connect(m_preview, &PreviewPane::placeChosen, this, &Private::goTo);
    connect(m_findBar, &FindBar::closed, this, [this] {
        m_findBar->hide();
        m_views.current().widget()->setFocus();
    });
    connect(m_scripts.get(), &EditorScripts::told, this, &Private::tell);
    connect(m_instructions.get(), &EditorInstructions::told, this, &Private::tell);
    connect(&m_questions, &EditorQuestions::told, this, &Private::tell);
    connect(&m_files, &EditorFiles::pathChanged, this, [this] {
        updateTitle();
        const QString path = m_files.path();
        if (std::exchange(m_toldPath, path) != path)
            Q_EMIT qptr->filePathChanged(path);
    });
    connect(&m_files, &EditorFiles::told, this, &Private::tell);
    connect(&m_files, &EditorFiles::saved, qptr, &AbstractTemplateEditor::saved);
}

QString AbstractTemplateEditor::Private::content() const
{
    return m_history->session().source();
}

AbstractTemplateEditor::Mode AbstractTemplateEditor::Private::mode() const
{
    return m_history->session().mode();
}

bool AbstractTemplateEditor::Private::isModified() const
{
    return m_history->isModified();
}

QString AbstractTemplateEditor::Private::name() const
{
    return m_files.path().isEmpty() ? tr("report") : QFileInfo(m_files.path()).completeBaseName();
}

void AbstractTemplateEditor::Private::showSession()
{
    m_views.show(m_history->session());
    m_preview->setPaused(m_history->session().isLarge());
    updateState();
    Q_EMIT qptr->modeChanged(mode());
}

void AbstractTemplateEditor::Private::goToEdit(const QTextCursor &cursor)
{
    if (!cursor.isNull() && cursor.document() == m_history->session().document())
        m_views.current().setCursor(cursor);
}

void AbstractTemplateEditor::Private::insertCode(const QString &code)
{
    m_views.current().insertSource(code);
    m_views.current().widget()->setFocus();
}

QList<RowNode *> AbstractTemplateEditor::Private::rows() const
{
    QList<RowNode *> rows = qptr->previewRows();
    rows.removeAll(nullptr);
    return rows;
}

void AbstractTemplateEditor::Private::refresh()
{
    const QList<RowNode *> rows = this->rows();
    QStringList names;
    QMap<QString, QVariant> parameters;
    for (const RowNode *row : rows)
        names.append(qptr->previewName(*row));
    if (!rows.isEmpty()) {
        for (const QString &column : ozm::platform::columnsOf(*rows.constFirst()))
            parameters.insert(u'[' + column + u']', rows.constFirst()->getDataAt(column, nullptr, false));
    }
    m_codes->setCodes(qptr->shortCodes(), parameters);
    const QString styleSheet = m_printing.options().styleSheet;
    m_format->setStyleSheet(styleSheet);
    m_views.setStyleSheet(styleSheet);
    m_views.refresh(m_history->session());
    m_preview->setRows(names);
    if (m_history->session().isLarge() && m_isFilled)
        m_preview->updateNow();
}

void AbstractTemplateEditor::Private::fill()
{
    if (!std::exchange(m_isFilled, true))
        refresh();
}

void AbstractTemplateEditor::Private::retranslate()
{
    if (m_isFilled)
        refresh();
}

const RowNode *AbstractTemplateEditor::Private::previewRow() const
{
    return rows().value(m_preview->row());
}

ozm::TemplateReport AbstractTemplateEditor::Private::decode(const QString &content) const
{
    QList<RowNode *> rows = this->rows();
    // Without any data, repeated parts show what they are made of.
    if (rows.isEmpty() && qptr->rowLists(nullptr).isEmpty())
        return ozm::decodeContent(content, qptr->extraData(nullptr));
    const RowNode *row = previewRow();
    if (row)
        rows.removeIf([row](const RowNode *each) { return each != row; });
    return ozm::fillTemplate(content, {rows, qptr->extraData(row), qptr->rowLists(row)});
}

void AbstractTemplateEditor::Private::goTo(const QString &content, qsizetype offset, const QString &part)
{
    // The document may write the decoded text in another way, and may have been edited since.
    const QString source = m_history->session().documentSource();
    const qsizetype place = offsetOfOccurrence(source, occurrence(content, offset, part), part);
    if (place < 0) {
        tell(tr("This place was removed from the template."));
        return;
    }
    m_views.current().select(place, part.size());
    m_views.current().widget()->setFocus();
}

void AbstractTemplateEditor::Private::show(const QString &content)
{
    const bool large = content.size() > EditorSession::kLargestRich;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_history->start(large ? Mode::Plain : mode(), content);
    QApplication::restoreOverrideCursor();
    updateState();
    if (large)
        tell(tr("The template is large, and shown as its source."));
}

void AbstractTemplateEditor::Private::setMode(Mode newMode)
{
    if (newMode == Mode::Rich && mode() != newMode && content().size() > EditorSession::kLargestRich)
        tell(tr("The template is too large to be shown as formatted text."));
    else
        m_history->switchTo(newMode);
    updateState();
}

void AbstractTemplateEditor::Private::tell(const QString &text)
{
    qptr->statusBar()->showMessage(text, kStatusMs);
}

void AbstractTemplateEditor::Private::setReadOnly(bool on)
{
    const bool wasReadOnly = isReadOnly();
    m_views.setReadOnly(on);
    m_codePanel->setReadOnly(on);
    m_scriptPane->setReadOnly(on);
    updateState();
    updateTitle();
    if (wasReadOnly != on)
        Q_EMIT qptr->readOnlyChanged(on);
}

void AbstractTemplateEditor::Private::updateState()
{
    m_actions->update();
    updateModified();
}

void AbstractTemplateEditor::Private::updateModified()
{
    const bool modified = isModified();
    qptr->setWindowModified(modified);
    if (std::exchange(m_wasModified, modified) != modified)
        Q_EMIT qptr->modifiedChanged(modified);
}

void AbstractTemplateEditor::Private::updateTitle()
{
    const QString file = m_files.path().isEmpty() ? tr("New template") : QFileInfo(m_files.path()).fileName();
    qptr->setWindowTitle(m_views.isReadOnly() ? tr("%1[*] (read only) - Template editor").arg(file)
                                              : tr("%1[*] - Template editor").arg(file));
    updateModified();
}
