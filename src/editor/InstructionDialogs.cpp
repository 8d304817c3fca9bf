#include "editor/InstructionDialogs.h"

#include "templates/instructions/InstructionCaption.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

using instructions::Condition;
using instructions::Contents;
using instructions::Extent;
using instructions::Page;
using instructions::Repeat;
using instructions::SortKey;
using instructions::Test;

constexpr int kFieldWidth = 300;
// Some lines of the sample.
constexpr int kLongestSample = 300;
// In millimetres, as paper has them without a set-up.
constexpr std::array kUsualMargins{16, 18, 14, 20};

constexpr std::array kTests{Test::Present, Test::Absent, Test::Equals,
                            Test::Differs, Test::Above,  Test::Below};

bool hasValue(Test test)
{
    return test != Test::Present && test != Test::Absent;
}

} // namespace

InstructionDialog::InstructionDialog(const char *name, const QString &title,
                                     const InstructionChoices &choices, QWidget *parent)
    : QDialog(parent)
    , m_choices(choices)
    , m_form(new QFormLayout(this))
{
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(title);
    m_form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
}

void InstructionDialog::addExtent(const QString &label, Extent extent)
{
    auto *choice = new QWidget(this);
    auto *layout = new QVBoxLayout(choice);
    layout->setContentsMargins(0, 0, 0, 0);
    m_row = named(new QRadioButton(tr("The table &row or list item at the cursor"), choice), "extentRow");
    auto *lines = named(new QRadioButton(tr("The selected &lines"), choice), "extentSection");
    layout->addWidget(m_row);
    layout->addWidget(lines);
    (extent == Extent::Row ? m_row : lines)->setChecked(true);
    // An instruction that is in the template already stands where its part is.
    m_row->setEnabled(m_choices.isNew ? m_choices.isInRow : extent == Extent::Row);
    lines->setEnabled(m_choices.isNew || extent == Extent::Section);
    m_form->addRow(label, choice);
}

Extent InstructionDialog::extent() const
{
    return m_row->isChecked() ? Extent::Row : Extent::Section;
}

QComboBox *InstructionDialog::addCode(const char *name, const QString &label, const QString &code)
{
    auto *field = named(new QComboBox(this), name);
    field->setEditable(true);
    field->addItems(m_choices.codes);
    field->setCurrentText(code);
    field->setMinimumWidth(kFieldWidth);
    m_form->addRow(label, field);
    return field;
}

QComboBox *InstructionDialog::addList(const char *name, const QString &label, const QString &list)
{
    auto *field = named(new QComboBox(this), name);
    field->addItem(tr("The rows of the report"), QString());
    for (const QString &each : m_choices.lists)
        field->addItem(each, each);
    if (field->findData(list) < 0)
        field->addItem(list, list);
    field->setCurrentIndex(field->findData(list));
    m_form->addRow(label, field);
    return field;
}

QLineEdit *InstructionDialog::addLine(const char *name, const QString &label, const QString &text,
                                      const QString &placeholder)
{
    auto *field = named(new QLineEdit(text, this), name);
    field->setPlaceholderText(placeholder);
    m_form->addRow(label, field);
    return field;
}

QLabel *InstructionDialog::addSample(const char *name, const QString &label)
{
    auto *sample = named(new QLabel(this), name);
    sample->setTextFormat(Qt::PlainText);
    sample->setWordWrap(true);
    // A text of several lines would have the height of one otherwise.
    sample->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
    sample->setAccessibleName(tr("With the data of the preview"));
    sample->setFrameShape(QFrame::StyledPanel);
    sample->setMargin(6);
    m_form->addRow(label, sample);
    return sample;
}

void InstructionDialog::setSample(QLabel *sample, const QString &text)
{
    sample->setText(text.size() > kLongestSample ? text.first(kLongestSample) + u'…' : text);
}

void InstructionDialog::addButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_accept = buttons->button(QDialogButtonBox::Ok);
    m_form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void InstructionDialog::setAcceptable(bool isAcceptable)
{
    m_accept->setEnabled(isAcceptable);
}

RepeatDialog::RepeatDialog(const Repeat &repeat, const InstructionChoices &choices, QWidget *parent)
    : InstructionDialog("repeatDialog", tr("Repeat for each row"), choices, parent)
    , m_former(repeat.sort)
{
    addExtent(tr("Repeat:"), repeat.extent);
    m_of = addList("repeatOf", tr("&For each of:"), repeat.of);
    struct Texts
    {
        const char *name;
        QString label;
        const char *checkName;
        QString check;
    };
    const std::array texts{
        Texts{"repeatSort", tr("&Sorted by:"), "repeatDescending", tr("The &highest first")},
        Texts{"repeatThen", tr("&Then by:"), "repeatThenDescending", tr("The h&ighest first")}};
    for (const Texts &each : texts) {
        const SortKey key = repeat.sort.value(m_sort.size());
        m_sort.append(addCode(each.name, each.label, key.code));
        m_sort.constLast()->lineEdit()->setPlaceholderText(tr("As they come"));
        m_descending.append(named(new QCheckBox(each.check, this), each.checkName));
        m_descending.constLast()->setChecked(key.isDescending);
        form()->addRow(QString(), m_descending.constLast());
    }
    m_empty = addLine("repeatEmpty", tr("&Without any:"), repeat.empty, tr("Nothing is shown"));
    addButtons();
}

Repeat RepeatDialog::repeat() const
{
    QList<SortKey> sort;
    for (qsizetype index = 0; index < m_sort.size(); ++index)
        sort.append({m_sort.at(index)->currentText().trimmed(), m_descending.at(index)->isChecked()});
    // Those that the template says beyond the fields stay.
    sort += m_former.sliced(std::min(m_former.size(), sort.size()));
    sort.removeIf([](const SortKey &key) { return key.code.isEmpty(); });
    return {extent(), m_of->currentData().toString(), sort, m_empty->text()};
}

ConditionDialog::ConditionDialog(const Condition &condition, const InstructionChoices &choices,
                                 bool hasOtherPart, QWidget *parent)
    : InstructionDialog("conditionDialog", tr("Condition"), choices, parent)
    , m_hasOtherPart(hasOtherPart)
{
    addExtent(tr("Show:"), condition.extent);
    m_code = addCode("conditionCode", tr("&If the code:"), condition.code);
    m_test = named(new QComboBox(this), "conditionTest");
    for (const Test test : kTests)
        m_test->addItem(instructions::testName(test), int(test));
    m_test->setCurrentIndex(m_test->findData(int(condition.test)));
    form()->addRow(tr("&Test:"), m_test);
    m_value = addLine("conditionValue", tr("&Value:"), condition.value);
    m_other = named(new QCheckBox(tr("&Otherwise, show another part"), this), "conditionOther");
    m_other->setChecked(hasOtherPart);
    form()->addRow(QString(), m_other);
    m_sample = addSample("conditionSample", tr("Preview:"));
    addButtons();
    connect(rowChoice(), &QRadioButton::toggled, this, &ConditionDialog::update);
    connect(m_code, &QComboBox::currentTextChanged, this, &ConditionDialog::update);
    connect(m_test, &QComboBox::currentIndexChanged, this, &ConditionDialog::update);
    connect(m_value, &QLineEdit::textChanged, this, &ConditionDialog::update);
    update();
}

Condition ConditionDialog::condition() const
{
    const auto test = Test(m_test->currentData().toInt());
    return {extent(), m_code->currentText().trimmed(), test, hasValue(test) ? m_value->text() : QString()};
}

bool ConditionDialog::addsOtherPart() const
{
    return m_other->isEnabled() && m_other->isChecked();
}

void ConditionDialog::update()
{
    Condition condition = this->condition();
    // A row has none, and one that is there goes with its line in the template.
    m_other->setEnabled(!m_hasOtherPart && condition.extent == Extent::Section);
    m_value->setEnabled(hasValue(condition.test));
    const bool isWhole = !condition.code.isEmpty() && m_value->isEnabled() == !condition.value.isEmpty();
    setAcceptable(isWhole);
    condition.extent = Extent::Section;
    const QString shown = u"1"_s;
    const auto filled = isWhole
                            ? choices().filled(sourceOf(condition) + shown + sourceOf(instructions::End()))
                            : std::nullopt;
    setSample(m_sample, !filled            ? tr("No value in the preview")
                        : *filled == shown ? tr("Shown")
                                           : tr("Not shown"));
}

PageDialog::PageDialog(const Page &page, const InstructionChoices &choices, QWidget *parent)
    : InstructionDialog("pageDialog", tr("Page set-up of the template"), choices, parent)
{
    m_size = named(new QComboBox(this), "pageSize");
    m_size->addItem(tr("As the printer has it"), QString());
    for (const QLatin1StringView size : instructions::kPageSizes)
        m_size->addItem(size, QString(size));
    m_size->setCurrentIndex(m_size->findData(page.size));
    form()->addRow(tr("&Size:"), m_size);
    m_orientation = named(new QComboBox(this), "pageOrientation");
    m_orientation->addItem(tr("Portrait"), false);
    m_orientation->addItem(tr("Landscape"), true);
    m_orientation->setCurrentIndex(page.isLandscape ? 1 : 0);
    form()->addRow(tr("&Orientation:"), m_orientation);
    const std::array titles{tr("Margin at the &top:"), tr("Margin at the &right:"),
                            tr("Margin at the &bottom:"), tr("Margin at the &left:")};
    for (qsizetype index = 0; index < std::ssize(titles); ++index) {
        auto *margin = new QSpinBox(this);
        margin->setObjectName(u"pageMargin%1"_s.arg(index));
        margin->setRange(0, instructions::kMostMargin);
        margin->setSuffix(tr(" mm"));
        margin->setValue(page.margins.value(index, kUsualMargins.at(size_t(index))));
        form()->addRow(titles.at(size_t(index)), margin);
        m_margins.append(margin);
    }
    m_header = addLine("pageHeader", tr("&Header:"), page.header, tr("Text and codes"));
    m_footer =
        addLine("pageFooter", tr("&Footer:"), page.footer, tr("Text and codes, beside the page number"));
    m_header->setMinimumWidth(kFieldWidth);
    m_name = addLine("pageName", tr("Name of the &document:"), page.name,
                     tr("Text and codes, at the foot and in the file"));
    m_version = addLine("pageVersion", tr("&Version:"), page.version, tr("Beside the name of the document"));
    addButtons();
}

Page PageDialog::page() const
{
    QList<int> margins;
    for (const QSpinBox *margin : m_margins)
        margins.append(margin->value());
    return {m_size->currentData().toString(),
            m_orientation->currentData().toBool(),
            margins,
            m_header->text(),
            m_footer->text(),
            m_name->text(),
            m_version->text()};
}

ContentsDialog::ContentsDialog(const Contents &contents, const InstructionChoices &choices, QWidget *parent)
    : InstructionDialog("contentsDialog", tr("Table of contents"), choices, parent)
    , m_levels(new QSpinBox(this))
{
    m_title = addLine("contentsTitle", tr("&Title:"), contents.title, tr("None"));
    m_title->setMinimumWidth(kFieldWidth);
    named(m_levels, "contentsLevels")->setRange(1, instructions::kMostLevels);
    m_levels->setValue(contents.levels);
    form()->addRow(tr("&Levels of headings:"), m_levels);
    addButtons();
}

Contents ContentsDialog::contents() const
{
    return {m_levels->value(), m_title->text()};
}

} // namespace ozm::editor
