// A record to JSON bytes and back beside Qt's own building and parsing of the same object, and a tree of
// items: built, exported, destroyed.

#include <ozm_widgets/db/common/OperationLogItem.h>

#include <benchmark/benchmark.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;
using namespace ozm;

namespace {

using Item = QSharedPointer<OperationLogItem>;

OperationLogItemData record()
{
    const OperationLogItemSubject subject(OperationLogItemSubject::Type::Peptide,
                                          {{u"Sequence"_s, u"PEPTIDEK"_s}, {u"Charge"_s, 2}}, {});
    return {OperationLogItemType::Set, subject, {u"Comment"_s}, u"checked by hand"_s, u"to be checked"_s};
}

void record_to_json_by_qt(benchmark::State &state)
{
    const QVariantMap key{{u"Sequence"_s, u"PEPTIDEK"_s}, {u"Charge"_s, 2}};
    const QStringList attributes{u"Comment"_s};
    const QVariant value = u"checked by hand"_s;
    const QVariant oldValue = u"to be checked"_s;
    for (auto _ : state) {
        const QJsonObject subject{{u"type"_s, u"Peptide"_s},
                                  {u"key"_s, QJsonObject::fromVariantMap(key)},
                                  {u"secondaryKey"_s, QJsonObject::fromVariantMap({})}};
        const QJsonObject object{{u"version"_s, 1},
                                 {u"type"_s, u"Set"_s},
                                 {u"subject"_s, subject},
                                 {u"attributes"_s, QJsonArray::fromStringList(attributes)},
                                 {u"value"_s, QJsonValue::fromVariant(value)},
                                 {u"oldValue"_s, QJsonValue::fromVariant(oldValue)},
                                 {u"undoContext"_s, u"New"_s}};
        benchmark::DoNotOptimize(QJsonDocument(object).toJson(QJsonDocument::Compact));
    }
}

void record_to_json(benchmark::State &state)
{
    const OperationLogItemData data = record();
    for (auto _ : state)
        benchmark::DoNotOptimize(data.toJson());
}

void record_from_json_by_qt(benchmark::State &state)
{
    const QByteArray json = record().toJson();
    for (auto _ : state)
        benchmark::DoNotOptimize(QJsonDocument::fromJson(json).object().toVariantMap());
}

void record_from_json(benchmark::State &state)
{
    const QByteArray json = record().toJson();
    for (auto _ : state)
        benchmark::DoNotOptimize(OperationLogItemData(json, nullptr));
}

/// Macros of ten commands each below one item.
Item tree(qint64 count)
{
    static const OperationLogItemData data = record();
    const Item top = OperationLogItemPrivate::createItem({}, 0, 1772366400000, u"jdoe"_s, data);
    Item macro;
    for (qint64 id = 1; id < count; ++id) {
        const bool begins = id % 11 == 1;
        const Item item = OperationLogItemPrivate::createItem(begins ? top : macro, id, 1772366400000 + id,
                                                              u"jdoe"_s, data);
        if (begins)
            macro = item;
    }
    return top;
}

void tree_built(benchmark::State &state)
{
    for (auto _ : state) {
        Item top = tree(state.range(0));
        state.PauseTiming();
        top.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void tree_destroyed(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        Item top = tree(state.range(0));
        state.ResumeTiming();
        top.reset();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void tree_to_json(benchmark::State &state)
{
    const Item top = tree(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(QJsonDocument(top->toJsonObject()).toJson(QJsonDocument::Compact));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void tree_to_rows(benchmark::State &state)
{
    const Item top = tree(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(top->toStringLists());
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(record_to_json_by_qt);
BENCHMARK(record_to_json);
BENCHMARK(record_from_json_by_qt);
BENCHMARK(record_from_json);
BENCHMARK(tree_built)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(tree_destroyed)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(tree_to_json)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(tree_to_rows)->RangeMultiplier(10)->Range(1000, 100000);

BENCHMARK_MAIN();
