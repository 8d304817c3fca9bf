// A trail of ten million entries in its view, beside a plain table of a thousand rows. The entries are made up when they
// are read, from their number, and found by number as by an index: what is measured is the model and the view, not a
// disk.

#include "store/MemoryBackend.h"

#include <ozm_audit_widgets/TrailView.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>

using namespace Qt::StringLiterals;
using namespace ozm::audit;

namespace {

constexpr qint64 kEntries = 10'000'000;
constexpr int kPlainRows = 1000;
constexpr int kEachOf = 1000;
constexpr QSize kSize(1280, 760);

class GeneratedTrail : public MemoryBackend
{
public:
    GeneratedTrail()
        : MemoryBackend(u"generated"_s)
    {}

    [[nodiscard]] ozm::Result<StoredHead> head() override { return StoredHead{kEntries, {}, kEntries}; }
    [[nodiscard]] ozm::Result<qint64> lastRow() override { return kEntries; }
    [[nodiscard]] ozm::Error rows(qint64 first, qint64 last,
                                  const std::function<bool(const StoredRow &)> &show) override
    {
        for (qint64 number = qMax<qint64>(1, first); number <= qMin(last, kEntries); ++number) {
            if (!show({number, {}, bytesOf(number), {}}))
                break;
        }
        return {};
    }
    /// By user, as an index would; everything else is left to nobody.
    [[nodiscard]] ozm::Result<QList<Entry>> find(const Query &query) override
    {
        QList<Entry> page;
        for (const qint64 number : findNumbers(query).value())
            page.append(Entry::fromBytes(bytesOf(number)).value());
        return page;
    }
    [[nodiscard]] ozm::Result<QList<qint64>> findNumbers(const Query &query) override
    {
        QList<qint64> numbers;
        if (!query.kinds.isEmpty() || query.user.isEmpty())
            return numbers;
        const qint64 last = query.lastNumber == 0 ? kEntries : query.lastNumber;
        const qint64 begin = qMax(query.firstNumber, query.after + 1);
        for (qint64 number = (begin + kEachOf - 1) / kEachOf * kEachOf; number <= last; number += kEachOf)
            numbers.append(number);
        return numbers;
    }

private:
    static QByteArray bytesOf(qint64 number)
    {
        const QByteArray text = QByteArray::number(number);
        const QByteArray sample = QByteArray::number(number % 5000);
        return R"({"form":1,"trail":"generated","number":)" + text +
               R"(,"id":"00000000000000000000000000000000","time":"2026-11-21T21:00:00.123Z","kind":"command","user":{"id":")" +
               (number % kEachOf == 0 ? "rare" : "jdoe") +
               R"(","name":"Jane Doe"},"session":"s","context":"New","subject":{"type":"Label","key":"{\"Name\":\"T)" +
               sample + R"(\"}"},"attributes":["Charge"],"record":{"attributes":["Charge"],"oldValue":)" +
               text + R"(,"subject":{"key":{"Name":"T)" + sample +
               R"("},"secondaryKey":{},"type":"Label"},"type":"Set","undoContext":"New","value":)" + text +
               R"(,"version":1}})";
    }
};

/// Resident memory in MB, 0 where the system has another way to tell.
double residentMb()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    constexpr double kPagesInMb = 256;
    return file.readAll().split(' ').value(1).toDouble() / kPagesInMb;
}

void drawAll(QWidget &widget)
{
    QApplication::processEvents();
    widget.repaint();
}

void scrollPages(benchmark::State &state, QTableView &table)
{
    QScrollBar &bar = *table.verticalScrollBar();
    bar.setValue(0);
    drawAll(*table.viewport());
    for (auto _ : state) {
        if (bar.value() == bar.maximum())
            bar.setValue(0);
        bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
        table.viewport()->repaint();
    }
}

Store &generatedStore()
{
    static Store store(std::make_unique<GeneratedTrail>());
    return store;
}

void trailFirstRows(benchmark::State &state)
{
    const double before = residentMb();
    double after = before;
    for (auto _ : state) {
        TrailView view(generatedStore());
        view.resize(kSize);
        view.show();
        drawAll(view);
        after = residentMb();
    }
    state.counters["MB"] = after - before;
}
BENCHMARK(trailFirstRows)
    ->Name("trail_first_rows")
    ->Iterations(3)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void trailFilterFirstPage(benchmark::State &state)
{
    TrailView view(generatedStore());
    view.resize(kSize);
    view.show();
    drawAll(view);
    for (auto _ : state) {
        TrailFilter filter;
        filter.query.user = u"rare"_s;
        view.setFilter(filter);
        while (view.model().rowCount() < 40)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        drawAll(view);
        state.PauseTiming();
        view.setFilter({});
        state.ResumeTiming();
    }
}
BENCHMARK(trailFilterFirstPage)
    ->Name("trail_filter_first_page")
    ->Iterations(5)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void trailJumpToEnd(benchmark::State &state)
{
    TrailView view(generatedStore());
    view.resize(kSize);
    view.show();
    drawAll(view);
    for (auto _ : state) {
        view.showEntry(1 + state.iterations());
        drawAll(view);
        view.showEntry(kEntries);
        drawAll(view);
    }
}
BENCHMARK(trailJumpToEnd)->Name("trail_jump_to_end_and_back")->UseRealTime()->Unit(benchmark::kMillisecond);

void trailScroll(benchmark::State &state)
{
    TrailView view(generatedStore());
    view.resize(kSize);
    view.show();
    scrollPages(state, *view.findChild<QTableView *>(u"trailTable"_s));
    state.counters["MB"] = residentMb();
}
BENCHMARK(trailScroll)->Name("trail_scroll_page")->UseRealTime()->Unit(benchmark::kMillisecond);

/// The same texts in a table that holds all of them, as high and as wide.
void plainScroll(benchmark::State &state)
{
    TrailView view(generatedStore());
    view.resize(kSize);
    view.show();
    drawAll(view);
    const auto *trail = view.findChild<QTableView *>(u"trailTable"_s);
    QStandardItemModel model(kPlainRows, TrailModel::ColumnCount);
    for (int row = 0; row < kPlainRows; ++row) {
        for (int column = 0; column < TrailModel::ColumnCount; ++column)
            model.setData(model.index(row, column), view.model().index(row, column).data());
    }
    QTableView table;
    table.setModel(&model);
    table.setWordWrap(false);
    table.setShowGrid(false);
    table.setAlternatingRowColors(true);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(trail->verticalHeader()->defaultSectionSize());
    for (int column = 0; column < TrailModel::ColumnCount; ++column)
        table.setColumnWidth(column, trail->columnWidth(column));
    table.resize(trail->size());
    table.show();
    scrollPages(state, table);
}
BENCHMARK(plainScroll)->Name("plain_scroll_page")->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
