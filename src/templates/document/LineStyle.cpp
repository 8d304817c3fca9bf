#include "templates/document/LineStyle.h"

#include "templates/document/InlineHtml.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <array>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

TagDefaults readDefaults(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        if (block.text() == "x"_L1)
            return {block.blockFormat(), block.begin().fragment().charFormat()};
    return {};
}

// Reading HTML folds blanks; where that would change the text the block says that they count.
bool needsBlanksKept(const QString &text)
{
    return text.startsWith(u' ') || text.endsWith(u' ') || text.contains(u'\t') || text.contains("  "_L1) ||
           text.contains(u" \u2028"_s) || text.contains(u"\u2028 "_s);
}

} // namespace

QString px(qreal value)
{
    return QString::number(value) + "px"_L1;
}

const TagDefaults &headingDefaults(int level)
{
    static const auto table = [] {
        std::array<TagDefaults, 6> headings;
        for (size_t i = 0; i < headings.size(); ++i)
            headings[i] = readDefaults(u"<div>a</div><h%1>x</h%1><div>b</div>"_s.arg(i + 1));
        return headings;
    }();
    return table.at(size_t(qBound(1, level, 6) - 1));
}

const TagDefaults &paragraphDefaults()
{
    static const TagDefaults defaults = readDefaults(u"<div>a</div><p>x</p><div>b</div>"_s);
    return defaults;
}

QStringList blockDeclarations(const QTextBlock &block, const Surroundings &around)
{
    const QTextBlockFormat format = block.blockFormat();
    QStringList css;
    const Qt::Alignment alignment = format.alignment() & Qt::AlignHorizontal_Mask;
    const bool isLeft = block.textList() && around.alignment != Qt::AlignLeft; // where it says nothing, too
    if ((format.hasProperty(QTextFormat::BlockAlignment) || isLeft ? alignment : around.alignment) !=
        around.alignment) {
        css.append(alignment & Qt::AlignHCenter   ? u"text-align:center"_s
                   : alignment & Qt::AlignRight   ? u"text-align:right"_s
                   : alignment & Qt::AlignJustify ? u"text-align:justify"_s
                                                  : u"text-align:left"_s);
    }
    const qreal left =
        format.leftMargin() + 40.0 * (block.textList() ? 0 : format.indent()) - around.leftMargin;
    if (left != 0)
        css.append("margin-left:"_L1 + px(left));
    if (format.rightMargin() != around.rightMargin)
        css.append("margin-right:"_L1 + px(format.rightMargin() - around.rightMargin));
    if (format.textIndent() != 0)
        css.append("text-indent:"_L1 + px(format.textIndent()));
    if (format.lineHeightType() == QTextBlockFormat::ProportionalHeight && format.lineHeight() != 100)
        css.append(u"line-height:%1%"_s.arg(format.lineHeight()));
    // The reader hands a cell's down to the lines in it.
    if (format.background().style() == Qt::SolidPattern && format.background() != around.text.background())
        css.append("background-color:"_L1 + cssColor(format.background().color()));
    else if (around.isColoured && format.background().style() == Qt::NoBrush)
        css.append("background-color:"_L1 + cssColor(Qt::transparent));
    if (format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore)
        css.append(u"page-break-before:always"_s);
    if (format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysAfter)
        css.append(u"page-break-after:always"_s);
    if (needsBlanksKept(block.text()))
        css.append(u"white-space:pre-wrap"_s);
    return css;
}

} // namespace ozm::editor
