#include "editor/TextFormatting.h"

#include "editor/RichTextView.h"
#include "templates/document/LineStyle.h"
#include "templates/document/ParagraphClass.h"
#include "templates/document/TableSpaces.h"
#include "templates/document/TemplateChip.h"

#include <QColorDialog>
#include <QDoubleValidator>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QTextBlock>
#include <QTextList>
#include <QToolBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr int kHeadings = 4;
// A heading of level 1 is larger than text by this many of HTML's size steps.
constexpr int kLargestHeading = 3;
constexpr int kLargestSize = 400;

template <typename Widget>
Widget *named(Widget *widget, const char *name, const QString &text)
{
    widget->setObjectName(QString::fromLatin1(name));
    widget->setToolTip(text);
    widget->setAccessibleName(text);
    return widget;
}

} // namespace

TextFormatting::TextFormatting(RichTextView *view)
    : QObject(view)
    , m_view(view)
    , m_styles(paragraphStyles({}))
{}

void TextFormatting::addChoices(QToolBar *bar)
{
    m_paragraph = named(new QComboBox(bar), "paragraphChoice", tr("Kind of paragraph"));
    fillParagraphs();
    m_family = named(new QFontComboBox(bar), "fontChoice", tr("Font"));
    m_family->setMinimumContentsLength(10);
    m_family->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_size = named(new QComboBox(bar), "sizeChoice", tr("Size in points"));
    m_size->setEditable(true);
    m_size->setMinimumContentsLength(3);
    m_size->setValidator(new QDoubleValidator(1, kLargestSize, 1, m_size));
    for (const int size : QFontDatabase::standardSizes())
        m_size->addItem(QString::number(size));
    for (QWidget *choice : std::initializer_list<QWidget *>{m_paragraph, m_family, m_size})
        bar->addWidget(choice);
    connect(m_paragraph, &QComboBox::activated, this, [this] {
        const QVariant chosen = m_paragraph->currentData();
        if (chosen.typeId() == QMetaType::Int)
            setHeading(chosen.toInt());
        else
            setStyle(chosen.toString());
    });
    connect(m_family, &QFontComboBox::textActivated, this, &TextFormatting::setFamily);
    connect(m_size, &QComboBox::textActivated, this, &TextFormatting::setSize);
    connect(m_view, &QTextEdit::currentCharFormatChanged, this, &TextFormatting::showChoices);
    connect(m_view, &QTextEdit::cursorPositionChanged, this, &TextFormatting::showChoices);
    showChoices();
}

void TextFormatting::showChoices()
{
    const QFont font = m_view->currentFont();
    const QSignalBlocker quietFamily(m_family);
    const QSignalBlocker quietSize(m_size);
    m_family->setCurrentFont(font);
    m_size->setEditText(QString::number(font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize()));
    const QTextBlock block = m_view->textCursor().block();
    const int level = qMin(block.blockFormat().headingLevel(), kHeadings);
    const QString name = level > 0 ? QString() : paragraphClass(block);
    // A class that no style sheet knows is told by its name.
    m_paragraph->setPlaceholderText(name);
    m_paragraph->setCurrentIndex(m_paragraph->findData(name.isEmpty() ? QVariant(level) : QVariant(name)));
}

void TextFormatting::fillParagraphs()
{
    m_paragraph->clear();
    m_paragraph->addItem(tr("Text"), 0);
    const auto add = [this](const ParagraphStyle &style) {
        m_paragraph->addItem(style.name, style.className);
    };
    if (!m_styles.isEmpty())
        add(m_styles.constFirst());
    for (int level = 1; level <= kHeadings; ++level)
        m_paragraph->addItem(tr("Heading %1").arg(level), level);
    for (const ParagraphStyle &style : m_styles.sliced(qMin(qsizetype(1), m_styles.size())))
        add(style);
}

void TextFormatting::setStyleSheet(const QString &styleSheet)
{
    const QList<ParagraphStyle> styles = paragraphStyles(styleSheet);
    if (std::exchange(m_styles, styles) == styles)
        return;
    fillParagraphs();
    showChoices();
}

void TextFormatting::setBold(bool on)
{
    QTextCharFormat format;
    format.setFontWeight(on ? QFont::Bold : QFont::Normal);
    m_view->mergeFormat(format);
}

void TextFormatting::setItalic(bool on)
{
    QTextCharFormat format;
    format.setFontItalic(on);
    m_view->mergeFormat(format);
}

void TextFormatting::setUnderline(bool on)
{
    QTextCharFormat format;
    format.setFontUnderline(on);
    m_view->mergeFormat(format);
}

void TextFormatting::setStrikeOut(bool on)
{
    QTextCharFormat format;
    format.setFontStrikeOut(on);
    m_view->mergeFormat(format);
}

void TextFormatting::setVerticalAlignment(QTextCharFormat::VerticalAlignment alignment, bool on)
{
    QTextCharFormat format;
    format.setVerticalAlignment(on ? alignment : QTextCharFormat::AlignNormal);
    m_view->mergeFormat(format);
}

void TextFormatting::clearFormat()
{
    // Merged rather than set, as a format that is set takes chips with it.
    QTextCharFormat plain;
    plain.setFontWeight(QFont::Normal);
    plain.setFontItalic(false);
    plain.setFontUnderline(false);
    plain.setFontStrikeOut(false);
    plain.setVerticalAlignment(QTextCharFormat::AlignNormal);
    plain.setForeground(QBrush(Qt::NoBrush));
    plain.setBackground(QBrush(Qt::NoBrush));
    plain.setFontFamilies(m_view->document()->defaultFont().families());
    plain.setFontPointSize(m_view->document()->defaultFont().pointSizeF());
    m_view->mergeFormat(plain);
}

void TextFormatting::setFamily(const QString &family)
{
    QTextCharFormat format;
    format.setFontFamilies({family});
    m_view->mergeFormat(format);
    m_view->setFocus();
}

void TextFormatting::setSize(const QString &points)
{
    const qreal size = points.toDouble();
    if (size <= 0)
        return;
    QTextCharFormat format;
    format.setFontPointSize(size);
    m_view->mergeFormat(format);
    m_view->setFocus();
}

void TextFormatting::askColor(const QString &title, QTextFormat::Property property)
{
    const QBrush before = qvariant_cast<QBrush>(format().property(property));
    const QColor color = QColorDialog::getColor(
        before.style() == Qt::NoBrush ? QColor(Qt::black) : before.color(), m_view->window(), title);
    if (!color.isValid())
        return;
    QTextCharFormat format;
    format.setProperty(property, QBrush(color));
    m_view->mergeFormat(format);
}

void TextFormatting::askTextColor()
{
    askColor(tr("Colour of the text"), QTextFormat::ForegroundBrush);
}

void TextFormatting::askHighlight()
{
    askColor(tr("Colour behind the text"), QTextFormat::BackgroundBrush);
}

void TextFormatting::setAlignment(Qt::Alignment alignment)
{
    QTextBlockFormat format;
    format.setAlignment(alignment);
    m_view->textCursor().mergeBlockFormat(format);
}

void TextFormatting::toggleList(QTextListFormat::Style style)
{
    QTextCursor cursor = m_view->textCursor();
    cursor.beginEditBlock();
    if (listStyle() == style) {
        const int first = cursor.selectionStart();
        const int last = cursor.selectionEnd();
        for (QTextBlock block = cursor.document()->findBlock(first);
             block.isValid() && block.position() <= last; block = block.next()) {
            if (QTextList *list = block.textList())
                list->remove(block);
            QTextBlockFormat plain;
            plain.setIndent(0);
            QTextCursor(block).mergeBlockFormat(plain);
        }
    } else if (QTextList *list = cursor.currentList()) {
        QTextListFormat format = list->format();
        format.setStyle(style);
        list->setFormat(format);
    } else {
        QTextListFormat format;
        format.setStyle(style);
        cursor.createList(format);
    }
    cursor.endEditBlock();
}

void TextFormatting::indent(int by)
{
    QTextCursor cursor = m_view->textCursor();
    cursor.beginEditBlock();
    if (QTextList *list = cursor.currentList()) {
        QTextListFormat format = list->format();
        if (format.indent() + by >= 1) {
            format.setIndent(format.indent() + by);
            cursor.createList(format);
        }
    } else {
        QTextBlockFormat format;
        format.setIndent(qMax(0, cursor.blockFormat().indent() + by));
        cursor.mergeBlockFormat(format);
    }
    cursor.endEditBlock();
}

void TextFormatting::setHeading(int level)
{
    setParagraph(level, {});
}

void TextFormatting::setStyle(const QString &className)
{
    setParagraph(0, className);
}

void TextFormatting::setParagraph(int level, const QString &className)
{
    QTextCursor cursor = m_view->textCursor();
    const int before = cursor.blockFormat().headingLevel();
    const bool isPlain = before == 0 && paragraphClass(cursor.block()).isEmpty();
    QTextBlockFormat block;
    block.setHeadingLevel(level);
    // Text that was something else is text as it is typed; other text keeps its margins.
    if (level > 0 || !className.isEmpty() || !isPlain) {
        const QTextBlockFormat usual = level > 0              ? headingDefaults(level).block
                                       : !className.isEmpty() ? paragraphDefaults().block
                                                              : QTextBlockFormat();
        block.setTopMargin(usual.topMargin());
        block.setBottomMargin(usual.bottomMargin());
    }
    // A heading may have a class of its own.
    if (level == 0 || before == 0)
        block.setProperty(kParagraphClass, className);
    cursor.beginEditBlock();
    cursor.mergeBlockFormat(block);
    if (level > 0 || before > 0)
        mergeLook(cursor, level);
    spaceTables(*m_view->document());
    cursor.endEditBlock();
    showChoices();
    m_view->setFocus();
}

void TextFormatting::mergeLook(const QTextCursor &cursor, int level)
{
    QTextCharFormat look;
    look.setFontWeight(level > 0 ? QFont::Bold : QFont::Normal);
    look.setProperty(QTextFormat::FontSizeAdjustment, level > 0 ? kLargestHeading + 1 - level : 0);
    QTextCursor line(cursor);
    line.setPosition(cursor.selectionStart());
    line.movePosition(QTextCursor::StartOfBlock);
    line.setPosition(cursor.selectionEnd(), QTextCursor::KeepAnchor);
    line.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    line.mergeCharFormat(look);
    line.mergeBlockCharFormat(look);
    if (!line.hasSelection())
        m_view->mergeFormat(look);
}

QTextCharFormat TextFormatting::format() const
{
    return withoutChip(m_view->currentCharFormat());
}

Qt::Alignment TextFormatting::alignment() const
{
    const Qt::Alignment alignment = m_view->textCursor().blockFormat().alignment();
    return alignment & Qt::AlignHorizontal_Mask;
}

QTextListFormat::Style TextFormatting::listStyle() const
{
    const QTextList *list = m_view->textCursor().currentList();
    return list ? list->format().style() : QTextListFormat::ListStyleUndefined;
}

} // namespace ozm::editor
