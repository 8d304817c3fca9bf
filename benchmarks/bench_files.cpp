// File dialogs on large folders, and large tables, beside what one would use without the library.

#include "files_opening.h"

#include <ozm_common_core_mini/CsvWriter.h>

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kAcquisitions = 10000;
constexpr int kRows = 100000;
constexpr int kColumns = 10;

const QTemporaryDir &acquisitions()
{
    static const auto folder = [] {
        auto made = std::make_unique<QTemporaryDir>();
        makeAcquisitions(made->path(), kAcquisitions);
        return made;
    }();
    return *folder;
}

template <typename Dialog>
void openDialog(benchmark::State &state)
{
    const QString folder = acquisitions().path();
    for (auto _ : state) {
        auto dialog = openedOn<Dialog>(folder);
        state.PauseTiming();
        dialog.reset();
        // Late messages of the dialog's threads belong to this dialog, not to the next.
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

const QList<QList<QString>> &table()
{
    static const auto rows = [] {
        QList<QList<QString>> made;
        for (int row = 0; row < kRows; ++row) {
            QList<QString> cells;
            for (int column = 0; column < kColumns; ++column)
                cells.append(u"%1.%2"_s.arg(row).arg(column * 1009));
            made.append(cells);
        }
        return made;
    }();
    return rows;
}

/// The bytes of each cell with what follows it.
const QList<QByteArray> &tableBytes()
{
    static const auto bytes = [] {
        QList<QByteArray> made;
        for (const QList<QString> &row : table())
            for (int column = 0; column < kColumns; ++column)
                made.append(row.at(column).toUtf8() + (column + 1 < kColumns ? "," : "\r\n"));
        return made;
    }();
    return bytes;
}

void csv_million_cells(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QList<QList<QString>> &rows = table();
    for (auto _ : state)
        if (!ozm::CsvWriter::writeFile(folder.filePath(u"table.csv"_s), rows))
            state.SkipWithError("not written");
    state.SetItemsProcessed(state.iterations() * kRows * kColumns);
}

void csv_bare_buffered_write(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QList<QByteArray> &cells = tableBytes();
    for (auto _ : state) {
        QFile file(folder.filePath(u"table.csv"_s));
        if (!file.open(QIODevice::WriteOnly))
            state.SkipWithError("not opened");
        file.write("\xEF\xBB\xBF");
        for (const QByteArray &cell : cells)
            file.write(cell);
    }
    state.SetItemsProcessed(state.iterations() * kRows * kColumns);
}

/// The least that such a file costs a program.
void csv_by_stdio(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QList<QByteArray> &cells = tableBytes();
    for (auto _ : state) {
        std::FILE *file = std::fopen(folder.filePath(u"table.csv"_s).toLocal8Bit().constData(), "wb");
        if (!file) {
            state.SkipWithError("not opened");
            break;
        }
        std::fputs("\xEF\xBB\xBF", file);
        for (const QByteArray &cell : cells)
            std::fwrite(cell.constData(), 1, std::size_t(cell.size()), file);
        std::fclose(file);
    }
    state.SetItemsProcessed(state.iterations() * kRows * kColumns);
}

BENCHMARK(openDialog<SpectrumFileDialog>)->Name("open_spectrum_dialog/10000")->Unit(benchmark::kMillisecond);
BENCHMARK(openDialog<PlainFileDialog>)->Name("open_plain_dialog/10000")->Unit(benchmark::kMillisecond);
BENCHMARK(csv_million_cells)->Unit(benchmark::kMillisecond);
BENCHMARK(csv_by_stdio)->Unit(benchmark::kMillisecond);
BENCHMARK(csv_bare_buffered_write)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
