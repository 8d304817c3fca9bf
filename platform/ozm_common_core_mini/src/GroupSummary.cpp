#include <ozm_common_core_mini/GroupSummary.h>

#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_core_mini/VariantItems.h>

#include <QSet>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace ozm::rn {

namespace {

using Description = ColumnFriendlyName::FriendlyNameStruct;
using Summary = ColumnFriendlyName::Summary;

void appendItems(QVariantList &all, const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<VariantItems>()) {
        const auto items = value.value<VariantItems>();
        for (const QVariant &item : items.toList())
            appendItems(all, item);
    } else if (value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList) {
        for (const QVariant &item : value.toList())
            appendItems(all, item);
    } else if (value.isValid()) {
        all.append(value);
    }
}

/// The values of a column below a group, lists taken apart; what reads as nothing is left out.
struct ValuesBelow
{
    ValuesBelow(const RowNode &group, int column, const Description &description)
    {
        QVariantList items;
        for (int index = 0; index < group.childCount(); ++index)
            appendItems(items, group.child(index)->getDataAt(column));
        QSet<QString> seen;
        for (const QVariant &value : std::as_const(items)) {
            const QString text = description.valueToString(value);
            if (text.isEmpty())
                continue;
            all.append(value);
            const qsizetype known = seen.size();
            seen.insert(text);
            if (seen.size() > known)
                different.append(value);
        }
    }

    QVariantList all;
    QVariantList different; ///< Those that read differently, the first of each.
};

std::optional<std::vector<double>> numbers(const QVariantList &values)
{
    std::vector<double> all;
    for (const QVariant &value : values) {
        bool isNumber = false;
        all.push_back(value.toDouble(&isNumber));
        if (!isNumber)
            return std::nullopt;
    }
    return all;
}

double sum(const std::vector<double> &all)
{
    double total = 0.0;
    for (const double number : all)
        total += number;
    return total;
}

/// The ends of the range; a not-a-number, which lies nowhere in it, is shown behind them.
QVariant range(const QVariantList &values, const std::vector<double> &all, const Description &description)
{
    std::vector<qsizetype> inside;
    QString behind;
    for (qsizetype index = 0; index < values.size(); ++index) {
        if (std::isnan(all.at(static_cast<std::size_t>(index))))
            behind = std::max(behind, u"; "_s + description.valueToString(values.at(index)));
        else
            inside.push_back(index);
    }
    if (inside.empty())
        return values;
    const auto [least, most] = std::ranges::minmax_element(
        inside, {}, [&all](qsizetype index) { return all.at(static_cast<std::size_t>(index)); });
    const QString first = description.valueToString(values.at(*least));
    const QString last = description.valueToString(values.at(*most));
    return (*least == *most ? first : first + u" – "_s + last) + behind;
}

QVariant summaryOf(const ValuesBelow &values, const Description &description)
{
    const auto &[all, different] = values;
    if (description.summary == Summary::Count)
        return different.isEmpty() ? QVariant() : QVariant(different.size());
    if (different.isEmpty())
        return {};
    const auto summed = description.summary == Summary::Sum || description.summary == Summary::Mean;
    if (different.size() == 1 && !summed)
        return different.constFirst();

    // One text among the numbers, such as "n. d.", and there is nothing to reckon with.
    const auto found = numbers(summed ? all : different);
    if (!found || description.summary == Summary::Values)
        return different;
    if (description.summary == Summary::Range)
        return range(different, *found, description);
    const double total = sum(*found);
    return description.summary == Summary::Sum ? total : total / static_cast<double>(found->size());
}

} // namespace

void GroupSummary::set(const QString &name, const Description &description)
{
    m_columns.insert(name, description);
}

void GroupSummary::update(RowNode *root) const
{
    if (!root)
        return;
    // Each row stands before those below it, so that backwards the lowest come first.
    std::vector<RowNode *> rows{root};
    for (std::size_t next = 0; next < rows.size(); ++next) {
        RowNode *row = rows[next];
        for (int index = 0; index < row->childCount(); ++index)
            rows.push_back(row->child(index));
    }
    for (std::size_t next = rows.size(); next-- > 1;) {
        RowNode *group = rows[next];
        if (group->childCount() == 0)
            continue;
        for (auto column = m_columns.cbegin(); column != m_columns.cend(); ++column) {
            if (const int index = group->columnIndex(column.key()); index >= 0)
                group->setDataAt(index, summaryOf({*group, index, *column}, *column));
        }
    }
}

} // namespace ozm::rn
