#include "editor/EditorView.h"

#include "editor/CodeEdit.h"
#include "editor/RichTextView.h"
#include "templates/syntax/ScriptTags.h"

namespace ozm::editor {

namespace {

constexpr Qt::TextInteractionFlags kReading = Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse;

Qt::TextInteractionFlags interaction(bool readOnly)
{
    return readOnly ? kReading : Qt::TextInteractionFlags(Qt::TextEditorInteraction);
}

QTextCursor selection(QTextCursor cursor, qsizetype from, qsizetype to)
{
    cursor.setPosition(int(from));
    cursor.setPosition(int(to), QTextCursor::KeepAnchor);
    return cursor;
}

} // namespace

QWidget *FormattedView::widget() const
{
    return m_view;
}

QTextCursor FormattedView::cursor() const
{
    return m_view->textCursor();
}

void FormattedView::setCursor(const QTextCursor &cursor)
{
    m_view->setTextCursor(cursor);
    m_view->ensureCursorVisible();
}

void FormattedView::select(qsizetype offset, qsizetype /*length*/)
{
    const int position = qMax(0, m_view->templateDocument()->positionOf(offset));
    setCursor(selection(cursor(), position, position + 1));
}

void FormattedView::insertSource(const QString &source)
{
    m_view->insertSource(source);
}

void FormattedView::insertPlain(const QString &text)
{
    m_view->insertPlain(text);
}

void FormattedView::cut()
{
    m_view->cutSelection();
}

void FormattedView::copy()
{
    m_view->copy();
}

void FormattedView::paste()
{
    if (m_view->mayRemove(cursor()))
        m_view->paste();
}

void FormattedView::selectAll()
{
    m_view->selectAll();
}

void FormattedView::setReadOnly(bool readOnly)
{
    m_view->setTextInteractionFlags(interaction(readOnly));
}

bool FormattedView::mayRemove(const QTextCursor &selection) const
{
    return m_view->mayRemove(selection);
}

bool FormattedView::linkSelection(const QString &href)
{
    if (!cursor().hasSelection())
        return false;
    QTextCharFormat link;
    link.setAnchor(true);
    link.setAnchorHref(href);
    link.setFontUnderline(true);
    link.setForeground(m_view->palette().link());
    m_view->mergeFormat(link);
    return true;
}

QTextCursor FormattedView::scriptAtCursor() const
{
    const int start = cursor().selectionStart();
    for (const int position : {start, start - 1}) {
        const QTextCursor script = position < 0 ? QTextCursor() : selection(cursor(), position, position + 1);
        if (isScript(script))
            return script;
    }
    return {};
}

bool FormattedView::isScript(const QTextCursor &selection) const
{
    return !selection.isNull() && selection.document() == m_view->document() && selection.hasSelection() &&
           m_view->templateDocument()->chipAt(selection.selectionStart()).kind ==
               TemplateDocument::ChipKind::Script;
}

QString FormattedView::scriptSource(const QTextCursor &script) const
{
    return m_view->templateDocument()->chipAt(script.selectionStart()).source;
}

void FormattedView::setScriptSource(const QTextCursor &script, const QString &source)
{
    m_view->templateDocument()->setChipSource(script.selectionStart(), source);
}

QTextCursor FormattedView::insertedBeforeCursor(const QString & /*source*/) const
{
    const int end = cursor().position();
    return selection(cursor(), end - 1, end);
}

QWidget *SourceView::widget() const
{
    return m_view;
}

QTextCursor SourceView::cursor() const
{
    return m_view->textCursor();
}

void SourceView::setCursor(const QTextCursor &cursor)
{
    m_view->setTextCursor(cursor);
    m_view->centerCursor();
}

void SourceView::select(qsizetype offset, qsizetype length)
{
    setCursor(selection(cursor(), offset, offset + length));
}

void SourceView::insertSource(const QString &source)
{
    m_view->insertAtCursor(source);
}

void SourceView::insertPlain(const QString &text)
{
    m_view->insertAtCursor(text);
}

void SourceView::cut()
{
    m_view->cut();
}

void SourceView::copy()
{
    m_view->copy();
}

void SourceView::paste()
{
    m_view->paste();
}

void SourceView::selectAll()
{
    m_view->selectAll();
}

void SourceView::setReadOnly(bool readOnly)
{
    m_view->setTextInteractionFlags(interaction(readOnly));
}

bool SourceView::mayRemove(const QTextCursor & /*selection*/) const
{
    return true;
}

bool SourceView::linkSelection(const QString & /*href*/)
{
    return false;
}

QTextCursor SourceView::scriptAtCursor() const
{
    const auto script = syntax::scriptAround(m_view->toPlainText(), cursor().position());
    return script ? selection(cursor(), script->start, script->end) : QTextCursor();
}

bool SourceView::isScript(const QTextCursor &selection) const
{
    return !selection.isNull() && selection.document() == m_view->document() &&
           syntax::isScript(selection.selectedText());
}

QString SourceView::scriptSource(const QTextCursor &script) const
{
    return script.selectedText().replace(QChar::ParagraphSeparator, u'\n');
}

void SourceView::setScriptSource(const QTextCursor &script, const QString &source)
{
    QTextCursor(script).insertText(source);
}

QTextCursor SourceView::insertedBeforeCursor(const QString &source) const
{
    const int end = cursor().position();
    return selection(cursor(), end - source.size(), end);
}

} // namespace ozm::editor
