#include "editor/ColumnWidthDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr double kMostShare = 100;
constexpr double kMostColumnPixels = 5000;
constexpr double kUsualColumnPixels = 120;

} // namespace

ColumnWidthDialog::ColumnWidthDialog(const QTextLength &now, double share, QWidget *parent)
    : QDialog(parent)
    , m_unit(new QComboBox(this))
    , m_width(new QDoubleSpinBox(this))
{
    setObjectName(u"columnWidthDialog"_s);
    m_unit->setObjectName(u"columnUnit"_s);
    m_unit->addItem(tr("As its text needs"), int(QTextLength::VariableLength));
    m_unit->addItem(tr("Share of the table in percent"), int(QTextLength::PercentageLength));
    m_unit->addItem(tr("Pixels"), int(QTextLength::FixedLength));
    m_width->setObjectName(u"columnWidth"_s);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto *form = new QFormLayout(this);
    form->addRow(tr("&Measured as:"), m_unit);
    form->addRow(tr("&Width:"), m_width);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_unit->setCurrentIndex(m_unit->findData(int(now.type())));
    connect(m_unit, &QComboBox::currentIndexChanged, this, [this, share] { takeUnit(share); });
    takeUnit(share);
    if (now.type() != QTextLength::VariableLength)
        m_width->setValue(now.rawValue());
}

QTextLength::Type ColumnWidthDialog::unit() const
{
    return QTextLength::Type(m_unit->currentData().toInt());
}

void ColumnWidthDialog::takeUnit(double share)
{
    const bool isPixels = unit() == QTextLength::FixedLength;
    m_width->setEnabled(unit() != QTextLength::VariableLength);
    m_width->setDecimals(isPixels ? 0 : 1);
    m_width->setRange(1, isPixels ? kMostColumnPixels : kMostShare);
    m_width->setValue(isPixels ? kUsualColumnPixels : share);
}

QTextLength ColumnWidthDialog::length() const
{
    return unit() == QTextLength::VariableLength ? QTextLength() : QTextLength(unit(), m_width->value());
}

} // namespace ozm::editor
