#include "templates/document/InlineHtml.h"

#include "templates/document/TemplateElements.h"

#include <QBrush>
#include <QColor>

#include <array>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr char16_t kPrivateUseFirst = 0xE000;
constexpr char16_t kPrivateUseLast = 0xF8FF;

// The rich-text reader's names for the sizes relative to the document's font, from -1 on.
constexpr std::array kSizeNames{"small"_L1, "medium"_L1, "large"_L1, "x-large"_L1, "xx-large"_L1};

bool differs(const QTextCharFormat &a, const QTextCharFormat &b, int property)
{
    return a.property(property) != b.property(property);
}

QString quotedFamilies(const QStringList &families)
{
    QStringList quoted;
    for (const QString &family : families)
        quoted.append(u'\'' + QString(family).remove(u'\'').remove(u'"').remove(u';') + u'\'');
    return quoted.join(u',');
}

QString fontSize(const QTextCharFormat &format)
{
    if (format.hasProperty(QTextFormat::FontPixelSize))
        return QString::number(format.intProperty(QTextFormat::FontPixelSize)) + "px"_L1;
    if (format.hasProperty(QTextFormat::FontPointSize))
        return QString::number(format.doubleProperty(QTextFormat::FontPointSize)) + "pt"_L1;
    const int step = qBound(-1, format.intProperty(QTextFormat::FontSizeAdjustment), 3) + 1;
    return kSizeNames.at(size_t(step));
}

QStringList fontDeclarations(const QTextCharFormat &format, const QTextCharFormat &base)
{
    QStringList css;
    const QStringList families = format.fontFamilies().toStringList();
    if (!families.isEmpty() && families != base.fontFamilies().toStringList())
        css.append("font-family:"_L1 + quotedFamilies(families));
    if (differs(format, base, QTextFormat::FontPixelSize) ||
        differs(format, base, QTextFormat::FontPointSize) ||
        format.intProperty(QTextFormat::FontSizeAdjustment) !=
            base.intProperty(QTextFormat::FontSizeAdjustment))
        css.append("font-size:"_L1 + fontSize(format));
    const int weight = format.fontWeight();
    const int baseWeight = base.fontWeight();
    if (weight != baseWeight && weight != QFont::Bold)
        css.append("font-weight:"_L1 + QString::number(weight));
    if (!format.fontItalic() && base.fontItalic())
        css.append(u"font-style:normal"_s);
    return css;
}

QStringList spacingDeclarations(const QTextCharFormat &format)
{
    QStringList css;
    if (format.hasProperty(QTextFormat::FontLetterSpacing) &&
        format.fontLetterSpacingType() == QFont::AbsoluteSpacing && format.fontLetterSpacing() != 0)
        css.append("letter-spacing:"_L1 + QString::number(format.fontLetterSpacing()) + "px"_L1);
    if (format.fontWordSpacing() != 0)
        css.append("word-spacing:"_L1 + QString::number(format.fontWordSpacing()) + "px"_L1);
    switch (format.fontCapitalization()) {
    case QFont::AllUppercase:
        css.append(u"text-transform:uppercase"_s);
        break;
    case QFont::AllLowercase:
        css.append(u"text-transform:lowercase"_s);
        break;
    case QFont::SmallCaps:
        css.append(u"font-variant:small-caps"_s);
        break;
    default:
        break;
    }
    return css;
}

QStringList colourDeclarations(const QTextCharFormat &format, const QTextCharFormat &base)
{
    QStringList css;
    // The reader colours links by the palette of the day; written down, it would stay when that changes.
    if (format.foreground().style() == Qt::SolidPattern && !format.isAnchor())
        css.append("color:"_L1 + cssColor(format.foreground().color()));
    if (format.background().style() == Qt::SolidPattern && format.background() != base.background())
        css.append("background-color:"_L1 + cssColor(format.background().color()));
    return css;
}

void wrap(InlineTags &tags, QLatin1StringView tag, const QString &attributes = {})
{
    tags.open += u'<' + tag + attributes + u'>';
    tags.close.prepend("</"_L1 + tag + u'>');
}

} // namespace

QString cssColor(const QColor &color)
{
    if (color.alpha() == 255)
        return color.name();
    return u"rgba(%1,%2,%3,%4)"_s.arg(QString::number(color.red()), QString::number(color.green()),
                                      QString::number(color.blue()), QString::number(color.alpha()));
}

QString styleAttribute(const QStringList &declarations)
{
    return declarations.isEmpty() ? QString() : u" style=\""_s + declarations.join(u';') + u'"';
}

QString escaped(const QString &text)
{
    QString html;
    html.reserve(text.size() + text.size() / 8);
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'<':
            html += "&lt;"_L1;
            break;
        case u'>':
            html += "&gt;"_L1;
            break;
        case u'&':
            html += "&amp;"_L1;
            break;
        case QChar::Nbsp:
            html += "&nbsp;"_L1;
            break;
        case QChar::LineSeparator:
            html += "<br/>"_L1;
            break;
        default:
            html += c;
        }
    }
    return html;
}

QChar characterNotIn(const QString &text)
{
    char16_t candidate = kPrivateUseFirst;
    while (candidate < kPrivateUseLast && text.contains(QChar(candidate)))
        ++candidate;
    return QChar(candidate);
}

InlineTags inlineTags(const QTextCharFormat &format, const QTextCharFormat &base)
{
    InlineTags tags;
    if (format.isAnchor() && !format.anchorHref().isEmpty())
        wrap(tags, "a"_L1, u" href=\""_s + format.anchorHref().toHtmlEscaped() + u'"');
    QStringList css =
        fontDeclarations(format, base) + spacingDeclarations(format) + colourDeclarations(format, base);
    if (format.fontOverline())
        css.append(u"text-decoration:overline"_s);
    if (!css.isEmpty())
        wrap(tags, "span"_L1, styleAttribute(css));
    if (format.fontWeight() == QFont::Bold && base.fontWeight() != QFont::Bold)
        wrap(tags, "b"_L1);
    if (format.fontItalic() && !base.fontItalic())
        wrap(tags, "i"_L1);
    if (format.fontUnderline() && !format.isAnchor())
        wrap(tags, "u"_L1);
    if (format.fontStrikeOut())
        wrap(tags, "s"_L1);
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript)
        wrap(tags, "sup"_L1);
    else if (format.verticalAlignment() == QTextCharFormat::AlignSubScript)
        wrap(tags, "sub"_L1);
    return tags;
}

QString imageTag(const QTextImageFormat &image)
{
    QString tag = u"<img src=\""_s + image.name().toHtmlEscaped() + u'"';
    if (image.hasProperty(QTextFormat::ImageWidth))
        tag += u" width=\""_s + QString::number(image.width()) + u'"';
    if (image.hasProperty(QTextFormat::ImageHeight))
        tag += u" height=\""_s + QString::number(image.height()) + u'"';
    const QString alt = image.stringProperty(QTextFormat::ImageAltText);
    if (!alt.isEmpty())
        tag += u" alt=\""_s + alt.toHtmlEscaped() + u'"';
    const QString title = image.stringProperty(QTextFormat::ImageTitle);
    if (!title.isEmpty())
        tag += u" title=\""_s + title.toHtmlEscaped() + u'"';
    return tag + "/>"_L1;
}

QString spaceOf(const QString &written)
{
    if (!written.startsWith(u'&'))
        return written;
    const QString name = written.sliced(1).chopped(1);
    const auto *row =
        std::ranges::find_if(kSpaces, [&name](const SpaceRow &each) { return name == each.name; });
    if (row != kSpaces.end())
        return QString(QChar(row->character));
    const bool isHex = name.at(1).toLower() == u'x';
    return QString(QChar(isHex ? name.sliced(2).toUInt(nullptr, 16) : name.sliced(1).toUInt()));
}

} // namespace ozm::editor
