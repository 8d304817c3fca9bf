#include "editor/CodeEdit.h"

#include "editor/CodeCompleter.h"
#include "editor/CodeModel.h"
#include "editor/EditorKeys.h"

#include <QFontDatabase>
#include <QMimeData>
#include <QPainter>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr int kMarginPadding = 6;
constexpr int kTabCharacters = 4;

} // namespace

class CodeEdit::Margin : public QWidget
{
public:
    explicit Margin(CodeEdit *edit)
        : QWidget(edit)
        , m_edit(edit)
    {
        setObjectName(u"lineNumbers"_s);
    }
    [[nodiscard]] QSize sizeHint() const override { return {m_edit->marginWidth(), 0}; }

protected:
    void paintEvent(QPaintEvent *event) override { m_edit->paintMargin(event); }

private:
    CodeEdit *m_edit;
};

CodeEdit::CodeEdit(QWidget *parent)
    : QPlainTextEdit(parent)
    , m_margin(new Margin(this))
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    // Code begins at the left in every language.
    setLayoutDirection(Qt::LeftToRight);
    setTabStopDistance(kTabCharacters * fontMetrics().horizontalAdvance(u' '));
    connect(this, &QPlainTextEdit::blockCountChanged, this, &CodeEdit::placeMargin);
    connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect &rect, int dy) {
        if (dy != 0)
            m_margin->scroll(0, dy);
        else
            m_margin->update(0, rect.y(), m_margin->width(), rect.height());
    });
    placeMargin();
}

void CodeEdit::showDocument(QTextDocument *document)
{
    if (document)
        document->setDefaultFont(font());
    setDocument(document);
    setTabStopDistance(kTabCharacters * fontMetrics().horizontalAdvance(u' '));
    placeMargin();
}

void CodeEdit::setCompletion(CodeModel *codes)
{
    m_completer =
        new CodeCompleter(codes, {this, [this] { return textCursor(); },
                                  [this] { return cursorRect().translated(marginWidth(), 0); },
                                  [](QTextCursor cursor, const QString &code) { cursor.insertText(code); }});
}

void CodeEdit::markLine(int line)
{
    m_markedLine = line;
    QList<QTextEdit::ExtraSelection> marks;
    if (const QTextBlock block = document()->findBlockByNumber(line - 1); line > 0 && block.isValid()) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(block);
        QColor color(Qt::red);
        color.setAlphaF(0.18F);
        mark.format.setBackground(color);
        mark.format.setProperty(QTextFormat::FullWidthSelection, true);
        marks.append(mark);
    }
    setExtraSelections(marks);
    m_margin->update();
}

void CodeEdit::insertAtCursor(const QString &text)
{
    if (!isReadOnly())
        insertPlainText(text);
}

bool CodeEdit::event(QEvent *event)
{
    if (m_isUndoneOutside && isHistoryShortcut(event)) {
        event->ignore();
        return false;
    }
    return QPlainTextEdit::event(event);
}

void CodeEdit::keyPressEvent(QKeyEvent *event)
{
    if ((m_isUndoneOutside && isHistoryKey(*event)) || (m_completer && m_completer->takes(*event))) {
        event->ignore();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
    if (m_completer && !isReadOnly() && changesText(*event))
        m_completer->offer();
}

void CodeEdit::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    placeMargin();
}

void CodeEdit::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange && m_margin)
        placeMargin();
}

void CodeEdit::insertFromMimeData(const QMimeData *source)
{
    const QString type = QString::fromLatin1(kTemplateMimeType);
    if (source->hasFormat(type))
        insertPlainText(QString::fromUtf8(source->data(type)));
    else
        QPlainTextEdit::insertFromMimeData(source);
}

int CodeEdit::marginWidth() const
{
    const int digits = int(QString::number(qMax(10, blockCount())).size());
    return 2 * kMarginPadding + digits * fontMetrics().horizontalAdvance(u'9');
}

void CodeEdit::placeMargin()
{
    setViewportMargins(marginWidth(), 0, 0, 0);
    const QRect area = contentsRect();
    m_margin->setGeometry(area.left(), area.top(), marginWidth(), area.height());
}

void CodeEdit::paintMargin(QPaintEvent *event)
{
    QPainter painter(m_margin);
    painter.fillRect(event->rect(), palette().color(QPalette::Window));
    QColor quiet = palette().color(QPalette::WindowText);
    quiet.setAlphaF(0.55F);
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    while (block.isValid() && top <= event->rect().bottom()) {
        if (block.isVisible()) {
            const bool marked = block.blockNumber() + 1 == m_markedLine;
            painter.setPen(marked ? palette().color(QPalette::WindowText) : quiet);
            const QRectF place(0, top, m_margin->width() - kMarginPadding, fontMetrics().height());
            painter.drawText(place, Qt::AlignRight | Qt::AlignAbsolute,
                             QString::number(block.blockNumber() + 1));
        }
        top += blockBoundingRect(block).height();
        block = block.next();
    }
}

} // namespace ozm::editor
