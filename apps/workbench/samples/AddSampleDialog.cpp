#include "samples/AddSampleDialog.h"

#include "samples/SampleEditor.h"
#include "samples/SampleTableModel.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

// Room for a peptide of usual length without scrolling.
constexpr int kFieldWidth = 340;

} // namespace

AddSampleDialog::AddSampleDialog(SampleEditor &editor, QWidget *parent)
    : QDialog(parent)
    , m_editor(editor)
    , m_reason(new QLabel(this))
{
    setObjectName(u"addSampleDialog"_s);
    setWindowTitle(tr("Add sample"));
    auto *form = new QFormLayout(this);
    for (const QString &column : SampleTable::annotationColumns()) {
        auto *field = new QLineEdit(this);
        field->setObjectName(u"add"_s + column);
        field->setMinimumWidth(kFieldWidth);
        form->addRow(SampleTableModel::headingText(column), field);
        m_fields.insert(column, field);
    }
    m_reason->setObjectName(u"addReason"_s);
    m_reason->setWordWrap(true);
    form->addRow(m_reason);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(u"addButtons"_s);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Add"));
    connect(buttons, &QDialogButtonBox::accepted, this, &AddSampleDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &AddSampleDialog::reject);
    form->addRow(buttons);
}

void AddSampleDialog::accept()
{
    QMap<QString, QString> texts;
    for (auto field = m_fields.cbegin(); field != m_fields.cend(); ++field)
        texts.insert(field.key(), field.value()->text());
    const ozm::Error error = m_editor.addSample(texts);
    m_reason->setText(error.errorMessage());
    if (!error.hasError())
        QDialog::accept();
}

} // namespace workbench
