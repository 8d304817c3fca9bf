#include "templates/instructions/RowOrder.h"

#include "templates/decoding/TemplateDecoder.h"
#include "templates/instructions/CodeFormatting.h"

#include <algorithm>
#include <vector>

namespace ozm::instructions {

namespace {

struct Key
{
    enum Kind
    {
        Number,
        Text,
        Nothing
    };

    Kind kind = Nothing;
    double number = 0;
    QString text = {};
};

struct KeyedRow
{
    RowNode *row;
    std::vector<Key> keys;
};

/// The end of the digits that begin at @p from.
qsizetype digitsEnd(QStringView text, qsizetype from)
{
    while (from < text.size() && text[from].isDigit())
        ++from;
    return from;
}

/// Less than zero, zero or more, as @p a stands before @p b: "y9" stands before "y10". The same on every computer.
int compareTexts(QStringView a, QStringView b)
{
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < a.size() && j < b.size()) {
        const qsizetype endOfA = digitsEnd(a, i);
        const qsizetype endOfB = digitsEnd(b, j);
        if (endOfA == i || endOfB == j) {
            if (a[i] != b[j])
                return a[i] < b[j] ? -1 : 1;
            ++i;
            ++j;
            continue;
        }
        while (i < endOfA - 1 && a[i] == u'0')
            ++i;
        while (j < endOfB - 1 && b[j] == u'0')
            ++j;
        if (endOfA - i != endOfB - j)
            return endOfA - i < endOfB - j ? -1 : 1;
        if (const int order = a.sliced(i, endOfA - i).compare(b.sliced(j, endOfB - j)); order != 0)
            return order;
        i = endOfA;
        j = endOfB;
    }
    return int(a.size() - i > 0) - int(b.size() - j > 0);
}

Key keyOf(const RowNode &row, const QString &name)
{
    const auto field = fieldOf(name, row);
    Key key;
    if (!field || isEmpty(*field))
        return key;
    const auto number = numberOf(*field);
    key.kind = number ? Key::Number : Key::Text;
    key.number = number.value_or(0);
    key.text = textOf(*field);
    return key;
}

/// Less than zero, zero or more, as @p a stands before @p b.
int compareKeys(const Key &a, const Key &b, bool isDescending)
{
    // Rows without a value stand last in either order.
    if (a.kind != b.kind && (a.kind == Key::Nothing || b.kind == Key::Nothing))
        return a.kind == Key::Nothing ? 1 : -1;
    const Key &first = isDescending ? b : a;
    const Key &second = isDescending ? a : b;
    if (first.kind != second.kind)
        return first.kind < second.kind ? -1 : 1;
    if (first.kind == Key::Number)
        return int(first.number > second.number) - int(first.number < second.number);
    return compareTexts(first.text, second.text);
}

} // namespace

QList<RowNode *> sorted(const QList<RowNode *> &rows, const QList<SortKey> &by)
{
    std::vector<KeyedRow> keyed;
    keyed.reserve(size_t(rows.size()));
    for (RowNode *row : rows) {
        keyed.push_back({row, {}});
        for (const SortKey &key : by)
            keyed.back().keys.push_back(keyOf(*row, key.code));
    }
    std::ranges::stable_sort(keyed, [&by](const KeyedRow &a, const KeyedRow &b) {
        int order = 0;
        for (size_t index = 0; order == 0 && index < a.keys.size(); ++index)
            order = compareKeys(a.keys[index], b.keys[index], by.at(qsizetype(index)).isDescending);
        return order < 0;
    });
    QList<RowNode *> result;
    for (const KeyedRow &each : keyed)
        result.append(each.row);
    return result;
}

} // namespace ozm::instructions
