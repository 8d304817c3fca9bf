#include "editor/FormatDialog.h"

#include "templates/instructions/InstructionCaption.h"

#include <ozm_widgets/TemplateDocument.h>

#include <QComboBox>
#include <QDoubleValidator>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSpinBox>
#include <QTextDocumentFragment>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

using instructions::CodeFormat;
using instructions::FormatKind;
using instructions::LetterCase;
using instructions::Total;

constexpr std::array kTotals{Total::None,     Total::Sum,     Total::Mean,
                             Total::Smallest, Total::Largest, Total::Count};
constexpr QChar kThinSpace = QChar(0x2009);
constexpr int kMostFactorDigits = 12;
constexpr QSizeF kPictureRoom(280, 140);

/// The page @p html, made smaller where it needs more room than there is.
QPixmap pictureOf(const QString &html, double devicePixelRatio)
{
    TemplateDocument document;
    document.setDocumentMargin(0);
    document.setHtml(html);
    document.setTextWidth(document.idealWidth());
    const QSizeF size = document.size();
    const double scale =
        std::min({1.0, kPictureRoom.width() / size.width(), kPictureRoom.height() / size.height()});
    QPixmap picture((size * scale * devicePixelRatio).toSize().expandedTo({1, 1}));
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    document.drawContents(&painter);
    return picture;
}

} // namespace

FormatDialog::FormatDialog(const CodeFormat &format, const InstructionChoices &choices, QWidget *parent)
    : InstructionDialog("formatDialog", tr("Format of a code"), choices, parent)
{
    m_code = addCode("formatCode", tr("&Code:"), format.code);
    m_kind = addChoice("formatKind", tr("&Show as:"),
                       {{tr("Text"), int(FormatKind::Text)},
                        {tr("Number"), int(FormatKind::Number)},
                        {tr("Date"), int(FormatKind::Date)},
                        {tr("Image"), int(FormatKind::Image)}},
                       int(format.kind));
    addTextFields(format);
    addNumberFields(format);
    addOtherFields(format);
    m_sample = addSample("formatSample", tr("Preview:"));
    addButtons();
    for (QComboBox *field : findChildren<QComboBox *>())
        connect(field, &QComboBox::currentTextChanged, this, &FormatDialog::update);
    for (QLineEdit *field : {m_factor, m_unit, m_alternative, m_empty})
        connect(field, &QLineEdit::textChanged, this, &FormatDialog::update);
    for (QSpinBox *field : {m_digits, m_width})
        connect(field, &QSpinBox::valueChanged, this, &FormatDialog::update);
    update();
}

void FormatDialog::addTextFields(const CodeFormat &format)
{
    m_case = addChoice("formatCase", tr("&Letters:"),
                       {{tr("As they are"), int(LetterCase::AsIs)},
                        {tr("UPPER CASE"), int(LetterCase::Upper)},
                        {tr("lower case"), int(LetterCase::Lower)}},
                       int(format.letterCase));
}

void FormatDialog::addNumberFields(const CodeFormat &format)
{
    m_digits = addCount("formatDigits", tr("&Digits after the point:"), format.digits,
                        instructions::kMostDigits, -1, tr("As many as there are"));
    m_thousands = addChoice("formatThousands", tr("T&housands:"),
                            {{tr("Together"), QString()},
                             {tr("Thin space"), QString(kThinSpace)},
                             {tr("Comma"), u","_s},
                             {tr("Point"), u"."_s},
                             {tr("Apostrophe"), u"’"_s}},
                            format.thousands);
    m_decimal = addChoice("formatDecimal", tr("Dec&imal sign:"),
                          {{tr("Point"), u"."_s}, {tr("Comma"), u","_s}}, format.decimal);
    m_factor = addLine("formatFactor", tr("&Multiplied by:"),
                       QString::number(format.factor, 'g', kMostFactorDigits));
    auto *validator = new QDoubleValidator(m_factor);
    validator->setLocale(QLocale::c());
    m_factor->setValidator(validator);
    m_unit = addLine("formatUnit", tr("&Unit:"), format.unit, tr("None"));
    QList<Choice> totals;
    for (const Total total : kTotals)
        totals.append({instructions::totalName(total), int(total)});
    m_total = addChoice("formatTotal", tr("&Total:"), totals, int(format.total));
    m_of = addList("formatOf", tr("&Over:"), format.of);
}

void FormatDialog::addOtherFields(const CodeFormat &format)
{
    m_pattern = named(new QComboBox(this), "formatPattern");
    m_pattern->setEditable(true);
    m_pattern->addItems(
        {u"yyyy-MM-dd"_s, u"dd.MM.yyyy"_s, u"d MMMM yyyy"_s, u"d MMMM yyyy, HH:mm"_s, u"HH:mm"_s});
    if (!format.pattern.isEmpty())
        m_pattern->setCurrentText(format.pattern);
    form()->addRow(tr("&Pattern:"), m_pattern);
    m_width = addCount("formatWidth", tr("&Width in pixels:"), format.width, instructions::kMostPixels, 0,
                       tr("That of the image"));
    m_alternative = addLine("formatAlternative", tr("&Alternative text:"), format.alternative);
    m_as = addChoice("formatAs", tr("Ma&rkup in it:"),
                     {{tr("Shown to the letter"), false}, {tr("Taken as HTML"), true}}, format.isHtml);
    m_empty = addLine("formatEmpty", tr("Without a &value:"), format.empty, tr("Reported as missing"));
}

QComboBox *FormatDialog::addChoice(const char *name, const QString &label, const QList<Choice> &choices,
                                   const QVariant &chosen)
{
    auto *field = named(new QComboBox(this), name);
    for (const Choice &choice : choices)
        field->addItem(choice.text, choice.value);
    if (field->findData(chosen) < 0)
        field->addItem(u"\"%1\""_s.arg(chosen.toString()), chosen);
    field->setCurrentIndex(field->findData(chosen));
    form()->addRow(label, field);
    return field;
}

QSpinBox *FormatDialog::addCount(const char *name, const QString &label, int value, int most, int none,
                                 const QString &noneText)
{
    auto *field = named(new QSpinBox(this), name);
    field->setRange(none, most);
    field->setSpecialValueText(noneText);
    field->setValue(value);
    form()->addRow(label, field);
    return field;
}

CodeFormat FormatDialog::format() const
{
    const auto kind = FormatKind(m_kind->currentData().toInt());
    CodeFormat format{m_code->currentText().trimmed(), kind, m_empty->text()};
    format.isHtml = kind == FormatKind::Text && m_as->currentData().toBool();
    if (kind == FormatKind::Text)
        format.letterCase = LetterCase(m_case->currentData().toInt());
    if (kind == FormatKind::Date)
        format.pattern = m_pattern->currentText();
    if (kind == FormatKind::Image) {
        format.width = m_width->value();
        format.alternative = m_alternative->text();
    }
    if (kind != FormatKind::Number)
        return format;
    format.digits = m_digits->value();
    format.thousands = m_thousands->currentData().toString();
    format.decimal = m_decimal->currentData().toString();
    const double factor = QLocale::c().toDouble(m_factor->text());
    format.factor = factor == 0 ? 1 : factor;
    format.unit = m_unit->text();
    format.total = Total(m_total->currentData().toInt());
    if (format.total != Total::None)
        format.of = m_of->currentData().toString();
    return format;
}

void FormatDialog::showFields()
{
    const auto kind = FormatKind(m_kind->currentData().toInt());
    const bool isTotal = Total(m_total->currentData().toInt()) != Total::None;
    for (QWidget *field :
         std::initializer_list<QWidget *>{m_digits, m_thousands, m_decimal, m_factor, m_unit, m_total})
        form()->setRowVisible(field, kind == FormatKind::Number);
    form()->setRowVisible(m_of, kind == FormatKind::Number && isTotal);
    form()->setRowVisible(m_case, kind == FormatKind::Text);
    form()->setRowVisible(m_as, kind == FormatKind::Text);
    form()->setRowVisible(m_pattern, kind == FormatKind::Date);
    form()->setRowVisible(m_width, kind == FormatKind::Image);
    form()->setRowVisible(m_alternative, kind == FormatKind::Image);
}

void FormatDialog::showSample(const CodeFormat &format)
{
    const bool isWhole = instructions::readInstruction(sourceOf(format)).has_value();
    setAcceptable(isWhole);
    // A text that is nothing but the code has an image's alternative text in its place.
    const bool isImage = format.kind == FormatKind::Image;
    const QString source = isImage ? u"<div>%1</div>"_s.arg(sourceOf(format)) : sourceOf(format);
    const auto filled = isWhole ? choices().filled(source) : std::nullopt;
    if (isImage && filled && filled->contains("<img "_L1)) {
        m_sample->setPixmap(pictureOf(*filled, devicePixelRatioF()));
        return;
    }
    const QString text = format.isHtml || isImage
                             ? QTextDocumentFragment::fromHtml(filled.value_or(QString())).toPlainText()
                             : filled.value_or(QString());
    setSample(m_sample, filled ? text : tr("No value in the preview"));
}

void FormatDialog::update()
{
    showFields();
    showSample(format());
    const int kind = m_kind->currentData().toInt();
    if (std::exchange(m_shownKind, kind) != kind && isVisible())
        adjustSize();
}

} // namespace ozm::editor
