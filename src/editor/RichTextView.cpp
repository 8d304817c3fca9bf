#include "editor/RichTextView.h"

#include "editor/CodeCompleter.h"
#include "editor/CodeModel.h"
#include "editor/ColumnDragging.h"
#include "editor/EditorKeys.h"
#include "editor/ForeignPage.h"
#include "editor/TableEditing.h"
#include "templates/document/InlineHtml.h"
#include "templates/document/ParagraphClass.h"
#include "templates/document/TemplateChip.h"
#include "templates/document/TemplateParts.h"
#include "templates/instructions/InstructionCaption.h"
#include "templates/paper/ParagraphStyles.h"
#include "templates/syntax/Codes.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QHelpEvent>
#include <QImage>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextList>
#include <QTextTable>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

using ChipKind = TemplateDocument::ChipKind;

constexpr int kLongestToolTip = 1200;

struct Removal
{
    QKeySequence::StandardKey key;
    QTextCursor::MoveOperation move;
};

// In this order: the plain keys are part of none of the others.
constexpr std::array kRemovals{
    Removal{QKeySequence::DeleteStartOfWord, QTextCursor::PreviousWord},
    Removal{QKeySequence::DeleteEndOfWord, QTextCursor::NextWord},
    Removal{QKeySequence::DeleteEndOfLine, QTextCursor::EndOfBlock},
    Removal{QKeySequence::Delete, QTextCursor::NextCharacter},
    Removal{QKeySequence::Backspace, QTextCursor::PreviousCharacter},
};

QString plainText(const TemplateDocument &document, const QTextCursor &selection)
{
    QString text;
    for (int at = selection.selectionStart(); at < selection.selectionEnd(); ++at) {
        const QChar character = document.characterAt(at);
        if (character == QChar::ParagraphSeparator || character == QChar::LineSeparator)
            text += u'\n';
        else if (character == QChar::ObjectReplacementCharacter)
            text += document.chipAt(at).source;
        else
            text += character;
    }
    return text;
}

} // namespace

void setPaperColors(QWidget *widget)
{
    QPalette paper = widget->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    widget->setPalette(paper);
}

void insertWithCodes(TemplateDocument &document, QTextCursor &cursor, const QString &text)
{
    qsizetype at = 0;
    for (const auto &[start, end] : syntax::codeRanges(text)) {
        cursor.insertText(text.sliced(at, start - at));
        document.insertSource(cursor, text.sliced(start, end - start));
        at = end;
    }
    cursor.insertText(text.sliced(at));
}

RichTextView::RichTextView(CodeModel *codes, QWidget *parent)
    : QTextEdit(parent)
    , m_codes(codes)
    , m_completer(new CodeCompleter(
          codes, {this, [this] { return textCursor(); }, [this] { return cursorRect(); },
                  [this](const QTextCursor &cursor, const QString &code) { replace(cursor, code); }}))
    , m_nothing(new TemplateDocument(this))
{
    setAcceptRichText(true);
    setPaperColors(this);
    setDocument(m_nothing);
    m_columns = std::make_unique<ColumnDragging>(this);
}

RichTextView::~RichTextView() = default;

void RichTextView::showDocument(TemplateDocument *document)
{
    setDocument(document ? document : m_nothing);
}

TemplateDocument *RichTextView::templateDocument() const
{
    return qobject_cast<TemplateDocument *>(document());
}

bool RichTextView::mayRemove(const QTextCursor &selection)
{
    for (int at = selection.selectionStart(); at < selection.selectionEnd(); ++at) {
        const QString code = codeOf(templateDocument()->chipAt(at));
        if (!code.isEmpty() && !m_codes->mayRemove(code)) {
            Q_EMIT removalRefused(code);
            return false;
        }
    }
    return true;
}

void RichTextView::insertSource(const QString &source)
{
    if (isReadOnly() || source.isEmpty() || !mayRemove(textCursor()))
        return;
    QTextCursor cursor = textCursor();
    templateDocument()->insertSource(cursor, source);
    setTextCursor(cursor);
    ensureCursorVisible();
}

void RichTextView::insertPlain(const QString &text)
{
    if (isReadOnly() || !mayRemove(textCursor()))
        return;
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    insertWithCodes(*templateDocument(), cursor, text);
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

void RichTextView::insertImage(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG")) {
        insertSource(u"<img src=\"data:image/png;base64,"_s + QString::fromLatin1(bytes.toBase64()) +
                     u"\"/>"_s);
    }
}

void RichTextView::cutSelection()
{
    if (!isReadOnly() && mayRemove(textCursor()))
        cut();
}

void RichTextView::insertLine(const QTextBlock &block, bool isBehind, const QString &source)
{
    QTextCursor cursor(block);
    if (isBehind)
        cursor.movePosition(QTextCursor::EndOfBlock);
    const bool isFree = block.length() <= 1 && !block.textList();
    if (!isFree) {
        cursor.insertBlock(block.blockFormat(), block.charFormat());
        if (!isBehind)
            cursor.movePosition(QTextCursor::PreviousBlock);
        if (QTextList *list = cursor.block().textList())
            list->remove(cursor.block());
        cursor.setBlockFormat(QTextBlockFormat());
        cursor.setBlockCharFormat(QTextCharFormat());
        cursor.setCharFormat(QTextCharFormat());
    }
    if (!source.isEmpty())
        templateDocument()->insertSource(cursor, source);
}

void RichTextView::insertFirstLine(const QString &source)
{
    if (isReadOnly())
        return;
    const QTextBlock first = document()->firstBlock();
    QTextCursor cursor(first);
    cursor.beginEditBlock();
    // The line before a table at the beginning is there for nothing else; any other empty one is for text.
    if (first.length() <= 1 && !QTextCursor(first.next()).currentTable())
        cursor.insertBlock();
    insertLine(document()->firstBlock(), false, source);
    cursor.endEditBlock();
}

void RichTextView::insertOwnLine(const QString &source)
{
    if (isReadOnly())
        return;
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    insertLine(document()->findBlock(cursor.selectionEnd()), true, source);
    cursor.endEditBlock();
    ensureCursorVisible();
}

void RichTextView::enclose(const QString &begin, const QString &end)
{
    if (isReadOnly())
        return;
    QTextCursor cursor = textCursor();
    int first = cursor.selectionStart();
    int last = cursor.selectionEnd();
    bool isBehindFirst = false;
    bool isBeforeLast = false;
    for (;;) {
        QTextCursor at(document());
        at.setPosition(first);
        const QTextTable *firstTable = at.currentTable();
        at.setPosition(last);
        const QTextTable *lastTable = at.currentTable();
        if (firstTable == lastTable && (!firstTable || firstTable->cellAt(first) == firstTable->cellAt(last)))
            break;
        if (firstTable && (firstTable == lastTable || last > firstTable->lastPosition())) {
            first = firstTable->firstPosition() - 1;
            isBehindFirst = true;
        }
        if (lastTable && first < lastTable->firstPosition()) {
            last = lastTable->lastPosition() + 1;
            isBeforeLast = true;
        }
    }
    // Of these lines, nothing is selected.
    const QTextBlock firstLine = document()->findBlock(first);
    const bool isAtEnd = cursor.hasSelection() && first == firstLine.position() + firstLine.length() - 1;
    isBehindFirst = isBehindFirst || (isAtEnd && firstLine.length() > 1);
    isBeforeLast = isBeforeLast || (cursor.hasSelection() && last == document()->findBlock(last).position());
    cursor.beginEditBlock();
    // From the end on, so that the place before stays true.
    insertLine(document()->findBlock(last), !isBeforeLast, end);
    insertLine(document()->findBlock(first), isBehindFirst, begin);
    cursor.endEditBlock();
}

void RichTextView::insertOtherPart(int position, const QString &source)
{
    if (isReadOnly())
        return;
    QTextCursor cursor(document());
    cursor.setPosition(position);
    cursor.beginEditBlock();
    if (const QTextBlock line = cursor.block(); line.length() == 2 && !line.textList()) {
        insertLine(line, false, source);
        // A line is the chip and its end.
        insertLine(document()->findBlock(position + 2), false, {});
        cursor.setPosition(position + 2);
    } else {
        templateDocument()->insertSource(cursor, source);
    }
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

void RichTextView::mergeFormat(const QTextCharFormat &format)
{
    if (!isReadOnly())
        mergeCurrentCharFormat(format);
}

bool RichTextView::event(QEvent *event)
{
    if (isHistoryShortcut(event)) {
        event->ignore();
        return false;
    }
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QPoint point = viewport()->mapFromGlobal(help->globalPos());
        const QString text = toolTipOf(templateDocument()->chipAt(chipAtPoint(point)));
        QToolTip::showText(help->globalPos(), text, viewport());
        return true;
    }
    return QTextEdit::event(event);
}

void RichTextView::keyPressEvent(QKeyEvent *event)
{
    if (isHistoryKey(*event) || m_completer->takes(*event)) {
        event->ignore();
        return;
    }
    if (!isReadOnly() && goesToCell(*event))
        return;
    if (isReadOnly() || !changesText(*event)) {
        QTextEdit::keyPressEvent(event);
        return;
    }
    if (!mayRemove(removedBy(*event)))
        return;
    const int headingLevel = textCursor().blockFormat().headingLevel();
    const bool isBehindTitle = textCursor().atBlockEnd() &&
                               event->matches(QKeySequence::InsertParagraphSeparator) &&
                               paragraphClass(textCursor().block()) == kTitleClass;
    QTextEdit::keyPressEvent(event);
    if (isBehindTitle || (headingLevel > 0 && textCursor().blockFormat().headingLevel() == 0))
        leaveHeading();
    if (event->text() == "]"_L1)
        closeCode();
    m_completer->offer();
}

void RichTextView::inputMethodEvent(QInputMethodEvent *event)
{
    QTextCursor removed = textCursor();
    const bool changes = !event->commitString().isEmpty() || !event->preeditString().isEmpty();
    bool isKept = changes && removed.hasSelection() && !mayRemove(removed);
    if (!isKept && event->replacementLength() > 0) {
        removed.setPosition(textCursor().position() + event->replacementStart());
        removed.setPosition(removed.position() + event->replacementLength(), QTextCursor::KeepAnchor);
        isKept = !mayRemove(removed);
    }
    if (isKept)
        event->ignore();
    else
        QTextEdit::inputMethodEvent(event);
}

QTextCursor RichTextView::removedBy(const QKeyEvent &event) const
{
    QTextCursor cursor = textCursor();
    if (cursor.hasSelection())
        return cursor;
    for (const Removal &removal : kRemovals) {
        const bool plainBackspace =
            removal.key == QKeySequence::Backspace && event.key() == Qt::Key_Backspace;
        if (event.matches(removal.key) || plainBackspace) {
            cursor.movePosition(removal.move, QTextCursor::KeepAnchor);
            break;
        }
    }
    return cursor;
}

bool RichTextView::goesToCell(const QKeyEvent &event)
{
    const bool isBack = event.key() == Qt::Key_Backtab;
    if ((event.key() != Qt::Key_Tab && !isBack) || (event.modifiers() & ~Qt::ShiftModifier))
        return false;
    return TableEditing(this).goToCell(isBack ? TableEditing::Side::Before : TableEditing::Side::After);
}

// The toolkit gives the margins of a heading to the text that is typed behind it.
void RichTextView::leaveHeading()
{
    QTextCursor cursor = textCursor();
    QTextBlockFormat text;
    text.setTopMargin(0);
    text.setBottomMargin(0);
    text.setProperty(kParagraphClass, QString());
    cursor.joinPreviousEditBlock();
    cursor.mergeBlockFormat(text);
    cursor.endEditBlock();
}

// A code that was typed to its end becomes a chip.
void RichTextView::closeCode()
{
    QTextCursor cursor = textCursor();
    const QString before = cursor.block().text().first(cursor.positionInBlock());
    const qsizetype bracket = before.lastIndexOf(u'[');
    if (bracket < 0)
        return;
    const QString code = before.sliced(bracket);
    if (!syntax::isCode(code) || code.contains(QChar::ObjectReplacementCharacter) ||
        code.contains(QChar::LineSeparator))
        return;
    cursor.setPosition(cursor.block().position() + int(bracket), QTextCursor::KeepAnchor);
    replace(cursor, code);
}

void RichTextView::replace(QTextCursor cursor, const QString &code)
{
    templateDocument()->insertSource(cursor, code);
    setTextCursor(cursor);
}

QPointF RichTextView::scrolled() const
{
    const QScrollBar &across = *horizontalScrollBar();
    const int left = isRightToLeft() ? across.maximum() - across.value() : across.value();
    return {double(left), double(verticalScrollBar()->value())};
}

int RichTextView::chipAtPoint(const QPoint &point) const
{
    const QPointF inDocument = point + scrolled();
    const int hit = document()->documentLayout()->hitTest(inDocument, Qt::ExactHit);
    // The nearest gap between characters was hit, on either side of the chip.
    for (const int position : {hit, hit - 1}) {
        if (position < 0 || templateDocument()->chipAt(position).kind == ChipKind::None)
            continue;
        QTextCursor cursor(document());
        cursor.setPosition(position);
        const int left = cursorRect(cursor).left();
        cursor.setPosition(position + 1);
        const int right = cursorRect(cursor).left();
        if (point.x() >= left && (point.x() <= right || right < left))
            return position;
    }
    return -1;
}

QString RichTextView::toolTipOf(const TemplateDocument::Chip &chip) const
{
    if (chip.kind == ChipKind::None)
        return {};
    if (chip.kind == ChipKind::Code)
        return m_codes->toolTip(chip.source);
    if (const auto instruction = instructions::readInstruction(chip.source)) {
        return u"<p><b>"_s + escaped(instructions::captionOf(*instruction)) + u"</b></p><pre>"_s +
               escaped(chip.source) + u"</pre><p>"_s + tr("Double-click to change it.") + u"</p>"_s;
    }
    const QString hint = chip.kind == ChipKind::Script ? tr("Double-click to edit this script.")
                                                       : tr("Kept as it is; change it in the source.");
    return u"<pre>"_s + escaped(chip.source.left(kLongestToolTip)) + u"</pre><p>"_s + hint + u"</p>"_s;
}

void RichTextView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int position = chipAtPoint(event->position().toPoint());
    const TemplateDocument::Chip chip = templateDocument()->chipAt(position);
    const bool isInstruction = instructions::readInstruction(chip.source).has_value();
    if (chip.kind != ChipKind::Script && !isInstruction) {
        QTextEdit::mouseDoubleClickEvent(event);
        return;
    }
    QTextCursor cursor(document());
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    if (isInstruction)
        Q_EMIT instructionActivated();
    else
        Q_EMIT scriptActivated(position);
}

void RichTextView::dropEvent(QDropEvent *event)
{
    const bool isOwn = event->source() == this || event->source() == viewport();
    if (isOwn && event->dropAction() == Qt::MoveAction && !mayRemove(textCursor()))
        event->setDropAction(Qt::CopyAction);
    QTextEdit::dropEvent(event);
}

QMimeData *RichTextView::createMimeDataFromSelection() const
{
    const QString source = templateDocument()->source(textCursor());
    auto *copied = new QMimeData;
    copied->setData(QString::fromLatin1(kTemplateMimeType), source.toUtf8());
    copied->setHtml(source);
    copied->setText(plainText(*templateDocument(), textCursor()));
    return copied;
}

bool RichTextView::canInsertFromMimeData(const QMimeData *source) const
{
    return !isReadOnly() && (source->hasFormat(QString::fromLatin1(kTemplateMimeType)) || source->hasHtml() ||
                             source->hasText() || source->hasImage());
}

void RichTextView::insertFromMimeData(const QMimeData *source)
{
    const QString type = QString::fromLatin1(kTemplateMimeType);
    // Word processors put a picture of the text beside it; browsers, the address of an image beside the image.
    const QString page = source->hasHtml() ? sourceOfPage(source->html()) : QString();
    const bool isPicture = source->hasImage() && (page.isEmpty() || page.startsWith("<!--"_L1));
    if (source->hasFormat(type))
        insertSource(QString::fromUtf8(source->data(type)));
    else if (isPicture)
        insertImage(qvariant_cast<QImage>(source->imageData()));
    else if (source->hasHtml())
        insertSource(page);
    else
        insertPlain(source->text());
}

} // namespace ozm::editor
