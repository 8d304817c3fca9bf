#include "templates/document/TemplateChip.h"

#include "templates/document/LetterSizes.h"
#include "templates/instructions/InstructionCaption.h"
#include "templates/syntax/ScriptTags.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextDocument>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

// As the toolkit marks an object that is selected; it has no public name.
constexpr int kSelectionBrush = QTextFormat::ForegroundBrush + 1;
constexpr int kKindProperty = QTextFormat::UserProperty + 1;
constexpr int kSourceProperty = QTextFormat::UserProperty + 2;

// A longer label would take the line apart in which it stands.
constexpr int kLongestLabel = 32;
constexpr qreal kSideMargin = 4.0;
constexpr qreal kGapToText = 1.0;
// Of all chips: more are made anew.
constexpr int kMostFaces = 512;

// Objects have no descent of their own: only at the bottom of the line, their text is level with the text
// around them.
constexpr auto kAlignment = QTextCharFormat::AlignBottom;

// By how much HTML's sizes -2 to +4 are larger than the usual one.
constexpr std::array kSizes{0.7, 0.8, 1.0, 1.2, 1.5, 2.0, 2.4};
constexpr int kUsualSize = 2;

struct ChipLook
{
    PartKind kind;
    QLatin1StringView sign;
    /// Mixed with the colours of the text, so that it is right on a selection, too.
    Qt::GlobalColor tint;
};

constexpr std::array kLooks{
    ChipLook{PartKind::None, ""_L1, Qt::gray}, ChipLook{PartKind::Code, ""_L1, Qt::blue},
    ChipLook{PartKind::Script, "JS "_L1, Qt::darkGreen}, ChipLook{PartKind::Markup, "< > "_L1, Qt::gray}};

constexpr ChipLook kInstructionLook{PartKind::Markup, ""_L1, Qt::darkMagenta};

const ChipLook &lookOf(const TemplatePart &part)
{
    if (part.kind != PartKind::Markup)
        return kLooks.at(size_t(part.kind));
    const auto instruction = instructions::readInstruction(part.source);
    if (!instruction)
        return kLooks.at(size_t(PartKind::Markup));
    const bool isCode = std::holds_alternative<instructions::CodeFormat>(*instruction);
    return isCode ? kLooks.at(size_t(PartKind::Code)) : kInstructionLook;
}

QColor mixed(const QColor &a, const QColor &b, qreal share)
{
    const auto part = [share](float x, float y) { return float(x * (1 - share) + y * share); };
    return QColor::fromRgbF(part(a.redF(), b.redF()), part(a.greenF(), b.greenF()),
                            part(a.blueF(), b.blueF()));
}

QFont chipFont(const QTextDocument &document, const QTextFormat &format)
{
    QFont font = format.toCharFormat().font().resolve(document.defaultFont());
    const int size = kUsualSize + format.intProperty(QTextFormat::FontSizeAdjustment);
    if (size != kUsualSize && font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * kSizes.at(size_t(qBound(0, size, int(kSizes.size()) - 1))));
    return font;
}

/// Of the zoom: how many dots of the layout's device a pixel has.
double chipScale(const QTextDocument &document)
{
    const QPaintDevice *device = document.documentLayout()->paintDevice();
    return device ? device->logicalDpiY() / kPixelsPerInch : 1;
}

QString firstLine(const QString &text)
{
    QString line = text.trimmed().section(u'\n', 0, 0).trimmed();
    if (line.size() > kLongestLabel)
        line = line.first(kLongestLabel - 1) + u'…';
    return line;
}

} // namespace

QTextCharFormat chipFormat(const TemplatePart &part, const QTextCharFormat &base)
{
    QTextCharFormat format = base;
    format.setObjectType(kChipObject);
    format.setProperty(kKindProperty, int(part.kind));
    format.setProperty(kSourceProperty, part.source);
    if (format.verticalAlignment() == QTextCharFormat::AlignNormal)
        format.setVerticalAlignment(kAlignment);
    return format;
}

bool isChip(const QTextFormat &format)
{
    return format.objectType() == kChipObject;
}

TemplatePart chipPart(const QTextFormat &format)
{
    if (!isChip(format))
        return {};
    return {PartKind(format.intProperty(kKindProperty)), format.stringProperty(kSourceProperty)};
}

QString codeOf(const TemplatePart &part)
{
    if (part.kind == PartKind::Code)
        return part.source;
    const auto instruction =
        part.kind == PartKind::Markup ? instructions::readInstruction(part.source) : std::nullopt;
    const auto *format = instruction ? std::get_if<instructions::CodeFormat>(&*instruction) : nullptr;
    return format ? u'[' + format->code + u']' : QString();
}

QTextCharFormat withoutChip(QTextCharFormat format)
{
    format.clearProperty(QTextFormat::ObjectType);
    format.clearProperty(kKindProperty);
    format.clearProperty(kSourceProperty);
    if (format.verticalAlignment() == kAlignment)
        format.clearProperty(QTextFormat::TextVerticalAlignment);
    return format;
}

bool ChipPainter::isKnown(const QString &code) const
{
    return m_displayNames.isEmpty() || m_displayNames.contains(code);
}

QString ChipPainter::label(const TemplatePart &part) const
{
    const QLatin1StringView sign = lookOf(part).sign;
    if (part.kind == PartKind::Markup)
        if (const auto instruction = instructions::readInstruction(part.source))
            return instructions::captionOf(*instruction);
    if (part.kind == PartKind::Code)
        return m_displayNames.value(part.source, part.source.sliced(1, part.source.size() - 2));
    return sign + firstLine(part.kind == PartKind::Script ? syntax::codeOf(part.source) : part.source);
}

bool ChipPainter::setDisplayNames(const QHash<QString, QString> &names, const QTextDocument &document)
{
    // Captions of instructions are in the language that was the application's when they were made.
    const bool isTranslated = std::ranges::any_of(m_faces, [this](const auto &faces) {
        return std::ranges::any_of(faces.second, [this](const Face &face) {
            return face.label.text() != label(chipPart(face.format));
        });
    });
    if (names == m_displayNames && !isTranslated)
        return false;
    QList<std::pair<TemplatePart, QString>> labels;
    QList<std::pair<QString, bool>> known;
    for (const QTextFormat &format : document.allFormats()) {
        const TemplatePart part = chipPart(format);
        if (part.kind == PartKind::None)
            continue;
        labels.append({part, label(part)});
        const QString code = codeOf(part);
        known.append({code, isKnown(code)});
    }
    m_displayNames = names;
    m_faces.clear();
    m_faceCount = 0;
    const auto isOther = [this](const auto &before) { return label(before.first) != before.second; };
    const auto isKnownOtherwise = [this](const auto &before) {
        return !before.first.isEmpty() && isKnown(before.first) != before.second;
    };
    return isTranslated || std::ranges::any_of(labels, isOther) ||
           std::ranges::any_of(known, isKnownOtherwise);
}

ChipPainter::Face ChipPainter::makeFace(const QTextDocument &document, const QTextFormat &format) const
{
    const TemplatePart part = chipPart(format);
    const QString code = codeOf(part);
    const bool known = code.isEmpty() || isKnown(code);
    const QColor tint = known ? QColor(lookOf(part).tint) : QColor(Qt::red);
    // Templates are shown on paper, which is white. The toolkit lays the colour of a selection over what is drawn
    // here, so that the colours of its text would not be seen below.
    const QTextCharFormat look = format.toCharFormat();
    const bool isSelected = format.hasProperty(kSelectionBrush);
    const QColor base = isSelected || look.background().style() == Qt::NoBrush ? QColor(Qt::white)
                                                                               : look.background().color();
    const QColor text = isSelected || look.foreground().style() == Qt::NoBrush ? QColor(Qt::black)
                                                                               : look.foreground().color();
    const QFont font = chipFont(document, format);
    const QFontMetricsF metrics(font);
    const QString label = this->label(part);
    const qreal width = metrics.horizontalAdvance(label);
    return {format,
            font,
            QSizeF(width + 2 * (kSideMargin + kGapToText), metrics.height()),
            QPen(mixed(text, tint, 0.6), 1, known ? Qt::SolidLine : Qt::DashLine),
            mixed(base, tint, 0.15),
            mixed(text, tint, 0.3),
            ChipLabel(label)};
}

ChipPainter::Face &ChipPainter::faceOf(const QTextDocument &document, const QTextFormat &format)
{
    const QFont font = document.defaultFont();
    if (m_faceCount >= kMostFaces || m_defaultFont != font) {
        m_faces.clear();
        m_faceCount = 0;
    }
    m_defaultFont = font;
    std::vector<Face> &faces = m_faces[format.stringProperty(kSourceProperty)];
    const auto known = std::ranges::find(faces, format, &Face::format);
    if (known != faces.end())
        return *known;
    ++m_faceCount;
    return faces.emplace_back(makeFace(document, format));
}

QSizeF ChipPainter::intrinsicSize(QTextDocument *document, int, const QTextFormat &format)
{
    return faceOf(*document, format).size * chipScale(*document);
}

void ChipPainter::drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int,
                             const QTextFormat &format)
{
    Face &face = faceOf(*document, format);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const double scale = chipScale(*document);
    painter->translate(rect.topLeft());
    painter->scale(scale, scale);
    const QRectF frame = QRectF(QPointF(), rect.size() / scale).adjusted(kGapToText, 0.5, -kGapToText, -0.5);
    painter->setPen(face.frame);
    painter->setBrush(face.fill);
    m_frames.draw(*painter, frame);
    painter->setPen(face.text);
    painter->setFont(face.font);
    face.label.draw(*painter, frame);
    painter->restore();
}

} // namespace ozm::editor
