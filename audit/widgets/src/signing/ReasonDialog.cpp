#include <ozm_audit_widgets/ReasonDialog.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

constexpr int kDialogWidth = 420;

} // namespace

class ReasonDialog::Private
{
public:
    QComboBox *reason = nullptr;
};

ReasonDialog::ReasonDialog(const QString &what, ReasonPolicy::Demand demand, const QStringList &choices,
                           QWidget *parent)
    : QDialog(parent)
    , d(new Private)
{
    using Demand = ReasonPolicy::Demand;
    setWindowTitle(tr("Reason for the change"));
    setObjectName(u"reasonDialog"_s);
    auto *words = new QLabel(what);
    words->setWordWrap(true);
    words->setTextFormat(Qt::PlainText);
    d->reason = new QComboBox;
    d->reason->setObjectName(u"reason"_s);
    d->reason->setEditable(demand != Demand::FromList);
    d->reason->setMinimumWidth(kDialogWidth);
    d->reason->addItems(choices);
    d->reason->setCurrentIndex(-1);
    if (d->reason->isEditable())
        d->reason->setEditText({});
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto *form = new QFormLayout(this);
    form->addRow(words);
    form->addRow(demand == Demand::Optional ? tr("&Reason (if any):") : tr("&Reason:"), d->reason);
    form->addRow(buttons);

    QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    const auto update = [this, ok, demand] {
        ok->setEnabled(demand == Demand::Optional || !reason().isEmpty());
    };
    connect(d->reason, &QComboBox::currentTextChanged, this, update);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    update();
    d->reason->setFocus();
}

ReasonDialog::~ReasonDialog() = default;

QString ReasonDialog::reason() const
{
    return d->reason->currentText().trimmed();
}

AskedReasons::AskedReasons(QWidget *parent)
    : m_parent(parent)
{}

AskedReasons::~AskedReasons() = default;

void AskedReasons::addRule(const Rule &rule)
{
    m_rules.append(rule);
}

const AskedReasons::Rule *AskedReasons::ruleFor(const OperationLogItemData &data) const
{
    const auto found = std::ranges::find_if(m_rules, [&data](const Rule &rule) {
        return (rule.subjectType.isEmpty() || rule.subjectType == data.subject().typeToString()) &&
               (rule.attribute.isEmpty() || data.attributes().contains(rule.attribute)) &&
               (!rule.onlyDeletions || data.type() == OperationLogItemType::Delete);
    });
    return found == m_rules.end() ? nullptr : &*found;
}

ReasonPolicy::Demand AskedReasons::demand(const OperationLogItemData &data) const
{
    const Rule *rule = ruleFor(data);
    return rule ? rule->demand : Demand::None;
}

QStringList AskedReasons::choices(const OperationLogItemData &data) const
{
    const Rule *rule = ruleFor(data);
    return rule ? rule->choices : QStringList();
}

QString AskedReasons::reason(const OperationLogItemData &data)
{
    ReasonDialog dialog(data.toString(), demand(data), choices(data), m_parent);
    return dialog.exec() == QDialog::Accepted ? dialog.reason() : QString();
}

} // namespace ozm::audit
