#include <ozm_audit_widgets/SubjectHistory.h>

#include <ozm_widgets/db/common/OperationLogItemData.h>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

/// The value of each attribute in @p value, which holds those of all in a map or a list, or is that of the one.
QVariantMap byAttribute(const QStringList &attributes, const QVariant &value)
{
    if (attributes.size() == 1 && value.typeId() != QMetaType::QVariantMap)
        return {{attributes.constFirst(), value}};
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap map = value.toMap();
        // A single attribute may itself hold a map.
        return attributes.size() == 1 && !map.contains(attributes.constFirst())
                   ? QVariantMap{{attributes.constFirst(), value}}
                   : map;
    }
    const QVariantList list = value.toList();
    if (list.size() != attributes.size())
        return {{attributes.join(u", "_s), value}};
    QVariantMap map;
    for (qsizetype i = 0; i < list.size(); ++i)
        map.insert(attributes.at(i), list.at(i));
    return map;
}

/// The state after @p entry, or nothing when it changes none.
bool apply(const Entry &entry, SubjectState &state)
{
    if (entry.kind != Kind::Command || entry.outcomeCode != 0)
        return false;
    const auto data = OperationLogItemData::fromJson(entry.record);
    if (!data)
        return false;
    const bool undo = entry.context == "Undo"_L1;
    const auto type = data.value().type();
    const bool removes = undo ? type == OperationLogItemType::Add : type == OperationLogItemType::Delete;
    QVariant now = undo ? data.value().oldValue() : data.value().value();
    // An undone deletion brings back what was deleted, wherever the record has it.
    if (undo && type == OperationLogItemType::Delete && !now.isValid())
        now = data.value().value();
    state.entry = entry;
    state.changed.clear();
    if (removes) {
        state.changed = state.values.keys();
        state.values.clear();
        return true;
    }
    const QVariantMap values = byAttribute(data.value().attributes(), now);
    for (auto value = values.begin(); value != values.end(); ++value) {
        state.values.insert(value.key(), value.value());
        state.changed.append(value.key());
    }
    return true;
}

/// The first change of an attribute also says what it was in all states before.
void addFormerValues(QList<SubjectState> &before, const SubjectState &state, const QStringList &known)
{
    const OperationLogItemData data(state.entry.record);
    if (data.type() != OperationLogItemType::Set)
        return;
    const bool undo = state.entry.context == "Undo"_L1;
    const QVariantMap former = byAttribute(data.attributes(), undo ? data.value() : data.oldValue());
    for (auto value = former.begin(); value != former.end(); ++value) {
        if (known.contains(value.key()))
            continue;
        for (SubjectState &earlier : before)
            earlier.values.insert(value.key(), value.value());
    }
}

} // namespace

Result<QList<SubjectState>> subjectStates(const Store &store, const QString &subjectType,
                                          const QString &subjectKey)
{
    QList<SubjectState> states;
    SubjectState state;
    Query query;
    query.subjectType = subjectType;
    query.subjectKey = subjectKey;
    query.pageSize = 1000;
    while (true) {
        const auto page = store.find(query);
        if (!page)
            return page.error();
        if (page.value().isEmpty())
            return states;
        for (const Entry &entry : page.value()) {
            const QStringList known = state.values.keys();
            if (!apply(entry, state))
                continue;
            addFormerValues(states, state, known);
            states.append(state);
        }
        query.after = page.value().constLast().number;
    }
}

} // namespace ozm::audit
