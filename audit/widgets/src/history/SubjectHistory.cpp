#include "../model/EntryTexts.h"
#include "../view/Difference.h"

#include <ozm_audit_widgets/SubjectHistory.h>

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QTableWidget>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

enum FixedColumn
{
    Number,
    Time,
    Who,
    Reason,
    FixedCount,
};

constexpr int kHistoryWidth = 900;
constexpr int kHeight = 560;

QTableWidgetItem *cell(const QString &text)
{
    auto *item = new QTableWidgetItem(text.simplified());
    item->setToolTip(text);
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    return item;
}

/// A value that this row changed is bold: form, not colour.
QTableWidgetItem *valueCell(const QString &text, bool changed)
{
    QTableWidgetItem *item = cell(text);
    QFont font = item->font();
    font.setBold(changed);
    item->setFont(font);
    if (changed)
        item->setData(Qt::AccessibleTextRole, SubjectHistory::tr("%1, changed").arg(text));
    return item;
}

QString textOf(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantList ? value.toStringList().join(u", "_s) : value.toString();
}

/// The columns of a table in a document stay where they are, whatever the direction of the language.
QString comparedRow(QStringList cells)
{
    if (QGuiApplication::isRightToLeft())
        std::ranges::reverse(cells);
    return u"<tr><td>%1</td></tr>"_s.arg(cells.join(u"</td><td>"_s));
}

} // namespace

class SubjectHistory::Private
{
public:
    void fill(const QString &trouble);
    void compareSelected();

    SubjectHistory &q;
    QList<SubjectState> states;
    QStringList attributes;
    QTableWidget *table = nullptr;
    QLabel *compared = nullptr;
    QTextBrowser *result = nullptr;
};

void SubjectHistory::Private::fill(const QString &trouble)
{
    for (const SubjectState &state : states) {
        for (const QString &attribute : state.changed) {
            if (!attributes.contains(attribute))
                attributes.append(attribute);
        }
    }
    QStringList titles{tr("Entry"), timeTitle(TrailModel::Zone::Recorded), tr("Who"), tr("Reason")};
    titles += attributes;
    table->setColumnCount(int(titles.size()));
    table->setHorizontalHeaderLabels(titles);
    table->setRowCount(int(states.size()));
    for (int row = 0; row < states.size(); ++row) {
        const SubjectState &state = states.at(row);
        table->setItem(row, Number, cell(QString::number(state.entry.number)));
        table->setItem(row, Time, cell(timeText(state.entry, TrailModel::Zone::Recorded)));
        table->setItem(row, Who, cell(personText(state.entry.user)));
        table->setItem(row, Reason, cell(state.entry.reason));
        for (int i = 0; i < attributes.size(); ++i) {
            const QString &attribute = attributes.at(i);
            table->setItem(
                row, FixedCount + i,
                valueCell(textOf(state.values.value(attribute)), state.changed.contains(attribute)));
        }
    }
    table->resizeColumnsToContents();
    compared->setText(trouble.isEmpty() ? tr("Select two rows to compare their states.") : trouble);
}

void SubjectHistory::Private::compareSelected()
{
    QList<int> rows;
    for (const QModelIndex &index : table->selectionModel()->selectedRows())
        rows.append(index.row());
    std::ranges::sort(rows);
    if (rows.size() == 1 && rows.constFirst() > 0)
        q.compare(rows.constFirst() - 1, rows.constFirst());
    else if (rows.size() >= 2)
        q.compare(rows.constFirst(), rows.constLast());
}

SubjectHistory::SubjectHistory(const Store &store, const QString &subjectType, const QString &subjectKey,
                               QWidget *parent)
    : QDialog(parent)
    , d(new Private{*this, {}, {}})
{
    setObjectName(u"subjectHistory"_s);
    setWindowTitle(tr("History of %1").arg(subjectText(subjectType, subjectKey)));
    const auto states = subjectStates(store, subjectType, subjectKey);
    d->states = states.valueOr({});
    d->table = new QTableWidget;
    d->table->setObjectName(u"historyTable"_s);
    d->table->setAccessibleName(tr("States of the subject, oldest first"));
    d->table->setSelectionBehavior(QAbstractItemView::SelectRows);
    d->table->setTabKeyNavigation(false);
    d->table->setAlternatingRowColors(true);
    d->table->verticalHeader()->hide();
    d->compared = new QLabel;
    d->compared->setWordWrap(true);
    d->result = new QTextBrowser;
    d->result->setObjectName(u"historyComparison"_s);
    d->result->setAccessibleName(tr("Comparison"));
    d->compared->setBuddy(d->result);
    d->fill(states ? QString() : states.error().errorMessage());

    auto *below = new QWidget;
    auto *belowLayout = new QVBoxLayout(below);
    belowLayout->setContentsMargins(0, 0, 0, 0);
    belowLayout->addWidget(d->compared);
    belowLayout->addWidget(d->result);
    auto *splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(d->table);
    splitter->addWidget(below);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(splitter);
    layout->addWidget(buttons);
    resize(kHistoryWidth, kHeight);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(d->table, &QTableWidget::itemSelectionChanged, this, [this] { d->compareSelected(); });
    connect(d->table, &QTableWidget::itemActivated, this, [this](const QTableWidgetItem *item) {
        Q_EMIT entryRequested(d->states.at(item->row()).entry.number);
    });
}

SubjectHistory::~SubjectHistory() = default;

void SubjectHistory::compare(int firstRow, int secondRow)
{
    if (firstRow < 0 || secondRow < 0 || firstRow >= d->states.size() || secondRow >= d->states.size())
        return;
    const SubjectState &before = d->states.at(firstRow);
    const SubjectState &after = d->states.at(secondRow);
    QString html = u"<table cellpadding=\"4\" align=\"%1\">"_s.arg(isRightToLeft() ? u"right"_s : u"left"_s) +
                   comparedRow({{},
                                u"<b>%1</b>"_s.arg(tr("After entry %1").arg(before.entry.number)),
                                u"<b>%1</b>"_s.arg(tr("After entry %1").arg(after.entry.number))});
    int differing = 0;
    for (const QString &attribute : std::as_const(d->attributes)) {
        const QVariant oldValue = before.values.value(attribute);
        const QVariant newValue = after.values.value(attribute);
        if (oldValue == newValue)
            continue;
        ++differing;
        const Difference difference = Difference::between(oldValue, newValue);
        html += comparedRow(
            {u"<b>%1</b>"_s.arg(attribute.toHtmlEscaped()), difference.oldHtml, difference.newHtml});
    }
    d->compared->setText(differing == 0
                             ? tr("The states after entries %1 and %2 are the same.")
                                   .arg(before.entry.number)
                                   .arg(after.entry.number)
                             : tr("The states after entries %1 and %2 differ in %3 of %4 attributes.")
                                   .arg(before.entry.number)
                                   .arg(after.entry.number)
                                   .arg(differing)
                                   .arg(d->attributes.size()));
    d->result->setHtml(differing == 0 ? QString() : html + u"</table>"_s);
}

} // namespace ozm::audit
