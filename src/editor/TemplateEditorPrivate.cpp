#include "editor/TemplateEditorPrivate.h"

#include "editor/CodeEdit.h"
#include "editor/CodeModel.h"
#include "editor/CodePanel.h"
#include "editor/EditorActions.h"
#include "editor/EditorFiles.h"
#include "editor/FindBar.h"
#include "editor/RichTextView.h"
#include "editor/ScriptPane.h"
#include "editor/SourceHighlighter.h"
#include "editor/TextFormatting.h"
#include "templates/decoding/TemplateDecoder.h"
#include "templates/syntax/ScriptTags.h"

#include <ozm_common_core_mini/RowNode.h>
#include <ozm_widgets/OZMDockWidgetTitleBar.h>

#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QFileInfo>
#include <QMimeData>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTextBlock>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace ozm::editor;
namespace syntax = ozm::syntax;
using ozm::TemplateDocument;

namespace {

constexpr int kWidth = 1320;
constexpr int kHeight = 860;
constexpr int kCodesWidth = 250;
constexpr int kPreviewWidth = 430;
constexpr int kScriptHeight = 190;
constexpr int kStatusMs = 10000;

/// In the order in which they stand at @p part in @p text, the one at @p offset.
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
    , history(new EditorHistory(this))
    , codes(new CodeModel(this))
    , rich(new RichTextView(codes, editor))
    , plain(new CodeEdit(editor))
    , format(new TextFormatting(rich))
    , table(rich)
    , files(std::make_unique<EditorFiles>(
          editor, EditorFiles::Template{[this] { return content(); }, [this] { return isModified(); },
                                        [this](const QString &content) { show(content); },
                                        [this] {
                                            history->stack().resetClean();
                                            updateTitle();
                                        },
                                        [this] { history->setClean(); }}))
{
    build();
    actions = std::make_unique<EditorActions>(*this);
    connectParts();
    showSession();
    updateState();
    updateTitle();
}

AbstractTemplateEditor::Private::~Private()
{
    history->disconnect();
    history->stack().disconnect();
    // The documents go with the history, and must not be shown any more by then.
    rich->showDocument(nullptr);
    plain->showDocument(nullptr);
}

void AbstractTemplateEditor::Private::build()
{
    qptr->resize(kWidth, kHeight);
    rich->setObjectName(u"richView"_s);
    rich->setAccessibleName(tr("Formatted template"));
    plain->setObjectName(u"plainView"_s);
    plain->setAccessibleName(tr("Source of the template"));
    plain->setUndoneOutside(true);
    plain->setCompletion(codes);
    views = new QStackedWidget(qptr);
    views->setObjectName(u"views"_s);
    views->addWidget(rich);
    views->addWidget(plain);
    findBar = new FindBar({[this] { return cursor(); }, [this](const QTextCursor &at) { setCursor(at); },
                           [this](const QTextCursor &selection) { return mayRemove(selection); },
                           [this] { return isReadOnly; }},
                          qptr);
    findBar->setObjectName(u"findBar"_s);
    auto *center = new QWidget(qptr);
    auto *layout = new QVBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(views, 1);
    layout->addWidget(findBar);
    qptr->setCentralWidget(center);

    codePanel = new CodePanel(codes, qptr);
    scriptPane = new ScriptPane(
        codes, [this](const QString &content) { return decode(content); }, qptr);
    preview = new PreviewPane(
        [this] {
            const QString source = content();
            return PreviewPane::Decoded{source, decode(source)};
        },
        qptr);
    codeDock = addDock("codeDock", tr("Codes"), codePanel, Qt::LeftDockWidgetArea);
    scriptDock = addDock("scriptDock", tr("Script"), scriptPane, Qt::BottomDockWidgetArea);
    previewDock = addDock("previewDock", tr("Preview"), preview, Qt::RightDockWidgetArea);
    qptr->setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    qptr->setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    qptr->resizeDocks({codeDock, previewDock}, {kCodesWidth, kPreviewWidth}, Qt::Horizontal);
    qptr->resizeDocks({scriptDock}, {kScriptHeight}, Qt::Vertical);
    scriptDock->hide();
    qptr->statusBar()->setObjectName(u"statusBar"_s);
}

QDockWidget *AbstractTemplateEditor::Private::addDock(const char *name, const QString &title,
                                                      QWidget *content, Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title, qptr);
    dock->setObjectName(QString::fromLatin1(name));
    dock->setTitleBarWidget(new OZMDockWidgetTitleBar(dock));
    dock->setWidget(content);
    qptr->addDockWidget(area, dock);
    return dock;
}

void AbstractTemplateEditor::Private::connectParts()
{
    connect(history, &EditorHistory::sessionChanged, this, &Private::showSession);
    connect(history, &EditorHistory::went, this, &Private::setCursor);
    connect(history, &EditorHistory::edited, this, [this] {
        preview->updateSoon();
        files->storeSoon();
        Q_EMIT qptr->sourceTextChanged();
    });
    connect(&history->stack(), &QUndoStack::indexChanged, this, &Private::updateState);
    connect(&history->stack(), &QUndoStack::cleanChanged, this, &Private::updateState);
    connect(rich, &QTextEdit::cursorPositionChanged, this, &Private::updateState);
    connect(rich, &QTextEdit::currentCharFormatChanged, this, &Private::updateState);
    connect(rich, &RichTextView::scriptActivated, this, &Private::editScript);
    connect(rich, &RichTextView::removalRefused, this,
            [this](const QString &code) { tell(tr("%1 may not be removed from this template.").arg(code)); });
    connect(codePanel, &CodePanel::chosen, this, &Private::insertCode);
    connect(scriptPane, &ScriptPane::applied, this, &Private::applyScript);
    connect(scriptPane, &ScriptPane::newRequested, this, &Private::newScript);
    connect(preview, &PreviewPane::placeChosen, this, &Private::goTo);
    connect(findBar, &FindBar::closed, this, [this] {
        findBar->hide();
        view()->setFocus();
    });
    connect(files.get(), &EditorFiles::pathChanged, this, &Private::updateTitle);
    connect(files.get(), &EditorFiles::told, this, &Private::tell);
    connect(files.get(), &EditorFiles::saved, qptr, &AbstractTemplateEditor::saved);
}

void AbstractTemplateEditor::Private::showSession()
{
    const EditorSession &session = history->session();
    const bool formatted = isRich();
    if (TemplateDocument *document = session.richDocument())
        document->setDisplayNames(codes->displayNames());
    rich->showDocument(session.richDocument());
    plain->showDocument(formatted ? nullptr : session.document());
    if (!formatted && !session.isLarge() && !session.document()->findChild<SourceHighlighter *>())
        new SourceHighlighter(session.document(), codes, SourceHighlighter::Language::Template);
    views->setCurrentIndex(formatted ? 0 : 1);
    preview->setPaused(session.isLarge());
    view()->setFocus();
    if (actions)
        updateState();
    Q_EMIT qptr->modeChanged(session.mode());
}

QWidget *AbstractTemplateEditor::Private::view() const
{
    return views->currentWidget();
}

QTextCursor AbstractTemplateEditor::Private::cursor() const
{
    return isRich() ? rich->textCursor() : plain->textCursor();
}

void AbstractTemplateEditor::Private::setCursor(const QTextCursor &cursor)
{
    if (cursor.document() != history->session().document())
        return;
    if (isRich()) {
        rich->setTextCursor(cursor);
        rich->ensureCursorVisible();
    } else {
        plain->setTextCursor(cursor);
        plain->centerCursor();
    }
}

bool AbstractTemplateEditor::Private::mayRemove(const QTextCursor &selection)
{
    return !isRich() || rich->mayRemove(selection);
}

void AbstractTemplateEditor::Private::insertCode(const QString &code)
{
    insertSource(code);
    view()->setFocus();
}

void AbstractTemplateEditor::Private::insertSource(const QString &source)
{
    if (isRich())
        rich->insertSource(source);
    else
        plain->insertAtCursor(source);
}

void AbstractTemplateEditor::Private::cut()
{
    if (isRich())
        rich->cutSelection();
    else
        plain->cut();
}

void AbstractTemplateEditor::Private::copy()
{
    if (isRich())
        rich->copy();
    else
        plain->copy();
}

void AbstractTemplateEditor::Private::paste()
{
    if (!isRich())
        plain->paste();
    else if (rich->mayRemove(rich->textCursor()))
        rich->paste();
}

void AbstractTemplateEditor::Private::pastePlain()
{
    const QMimeData *data = QApplication::clipboard()->mimeData();
    if (!data || !data->hasText())
        return;
    if (isRich())
        rich->insertPlain(data->text());
    else
        plain->insertAtCursor(data->text());
}

void AbstractTemplateEditor::Private::selectAll()
{
    if (isRich())
        rich->selectAll();
    else
        plain->selectAll();
}

QTextCursor AbstractTemplateEditor::Private::scriptAtCursor() const
{
    QTextCursor place = cursor();
    if (const TemplateDocument *document = history->session().richDocument()) {
        const int start = place.selectionStart();
        for (const int position : {start, start - 1}) {
            if (document->chipAt(position).kind == TemplateDocument::ChipKind::Script) {
                place.setPosition(position);
                place.setPosition(position + 1, QTextCursor::KeepAnchor);
                return place;
            }
        }
        return {};
    }
    const auto script = syntax::scriptAround(history->session().documentSource(), place.position());
    if (!script)
        return {};
    place.setPosition(int(script->start));
    place.setPosition(int(script->end), QTextCursor::KeepAnchor);
    return place;
}

bool AbstractTemplateEditor::Private::isScript(const QTextCursor &place) const
{
    if (place.isNull() || place.document() != history->session().document() || !place.hasSelection())
        return false;
    if (const TemplateDocument *document = history->session().richDocument())
        return document->chipAt(place.selectionStart()).kind == TemplateDocument::ChipKind::Script;
    return syntax::isScript(place.selectedText());
}

void AbstractTemplateEditor::Private::newScript()
{
    m_scriptPlace = QTextCursor();
    scriptDock->show();
    scriptPane->edit({}, true);
}

void AbstractTemplateEditor::Private::editScript()
{
    const QTextCursor place = scriptAtCursor();
    if (place.isNull()) {
        tell(tr("There is no script at the cursor."));
        return;
    }
    m_scriptPlace = place;
    QString script = place.selectedText().replace(QChar::ParagraphSeparator, u'\n');
    if (const TemplateDocument *document = history->session().richDocument())
        script = document->chipAt(place.selectionStart()).source;
    scriptDock->show();
    scriptPane->edit(script, false);
}

void AbstractTemplateEditor::Private::applyScript(const QString &script)
{
    if (isReadOnly)
        return;
    QTextCursor place = m_scriptPlace;
    if (!isScript(place)) {
        insertSource(script);
        place = cursor();
        place.setPosition(place.position() - (isRich() ? 1 : int(script.size())), QTextCursor::KeepAnchor);
    } else {
        const int start = place.selectionStart();
        if (TemplateDocument *document = history->session().richDocument())
            document->setChipSource(start, script);
        else
            place.insertText(script);
        place.setPosition(start);
        place.setPosition(start + (isRich() ? 1 : int(script.size())), QTextCursor::KeepAnchor);
    }
    m_scriptPlace = place;
    tell(tr("The script is in the template."));
}

void AbstractTemplateEditor::Private::refresh()
{
    const QList<RowNode *> rows = qptr->previewRows();
    QStringList names;
    QMap<QString, QVariant> parameters;
    for (const RowNode *row : rows)
        names.append(qptr->previewName(*row));
    if (!rows.isEmpty())
        for (const QString &column : rows.constFirst()->columnNames())
            parameters.insert(u'[' + column + u']', rows.constFirst()->getDataAt(column));
    codes->setCodes(qptr->shortCodes(), parameters);
    if (TemplateDocument *document = history->session().richDocument()) {
        document->setDisplayNames(codes->displayNames());
        rich->viewport()->update();
    } else if (auto *highlighter = history->session().document()->findChild<SourceHighlighter *>()) {
        highlighter->rehighlight();
    }
    preview->setRows(names);
    if (history->session().isLarge() && isShown)
        preview->updateNow();
}

ozm::TemplateReport AbstractTemplateEditor::Private::decode(const QString &content) const
{
    const QList<RowNode *> rows = qptr->previewRows();
    const int index = preview->row();
    if (rows.isEmpty())
        return ozm::decodeContent(content, qptr->extraData(nullptr));
    const RowNode *row = index < 0 || index >= rows.size() ? nullptr : rows.at(index);
    return row ? decodeTECReport(content, row, qptr->extraData(row))
               : decodeTECReport(content, rows, qptr->extraData(nullptr));
}

QString AbstractTemplateEditor::Private::decodedForPaper() const
{
    return decode(content()).text;
}

void AbstractTemplateEditor::Private::goTo(const QString &content, qsizetype offset, const QString &part)
{
    // What was decoded may be written otherwise in the document, and may have been edited since.
    const QString source = history->session().documentSource();
    const qsizetype place = offsetOfOccurrence(source, occurrence(content, offset, part), part);
    if (place < 0) {
        tell(tr("This place is no longer in the template."));
        return;
    }
    QTextCursor cursor(history->session().document());
    const TemplateDocument *document = history->session().richDocument();
    cursor.setPosition(document ? qMax(0, document->positionOf(place)) : int(place));
    const int length = document ? 1 : int(part.size());
    cursor.setPosition(cursor.position() + length, QTextCursor::KeepAnchor);
    setCursor(cursor);
    view()->setFocus();
}

void AbstractTemplateEditor::Private::find(bool replacing)
{
    findBar->open(replacing);
}

void AbstractTemplateEditor::Private::show(const QString &content)
{
    const bool large = content.size() > EditorSession::kLargestRich;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    history->start(large ? Mode::Plain : history->session().mode(), content);
    QApplication::restoreOverrideCursor();
    updateState();
    if (large)
        tell(tr("The template is large, and shown as its source."));
}

void AbstractTemplateEditor::Private::setMode(Mode mode)
{
    if (mode == Mode::Rich && !isRich() && content().size() > EditorSession::kLargestRich)
        tell(tr("The template is too large to be shown as formatted text."));
    else
        history->switchTo(mode);
    updateState();
}

void AbstractTemplateEditor::Private::tell(const QString &text)
{
    qptr->statusBar()->showMessage(text, kStatusMs);
}

void AbstractTemplateEditor::Private::setReadOnly(bool on)
{
    isReadOnly = on;
    const Qt::TextInteractionFlags reading = Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse;
    rich->setTextInteractionFlags(on ? reading : Qt::TextEditorInteraction);
    plain->setTextInteractionFlags(on ? reading : Qt::TextEditorInteraction);
    codePanel->setReadOnly(on);
    scriptPane->setReadOnly(on);
    updateState();
    updateTitle();
}

void AbstractTemplateEditor::Private::updateState()
{
    actions->update();
    qptr->setWindowModified(isModified());
}

void AbstractTemplateEditor::Private::updateTitle()
{
    const QString name = files->path().isEmpty() ? tr("New template") : QFileInfo(files->path()).fileName();
    qptr->setWindowTitle(isReadOnly ? tr("%1[*] (read only) - Template editor").arg(name)
                                    : tr("%1[*] - Template editor").arg(name));
    qptr->setWindowModified(isModified());
}
