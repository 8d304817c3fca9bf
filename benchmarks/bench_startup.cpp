// Starting a program that links the library and shows a main window, beside one with Qt's widgets alone: the
// time from the start to the end of the process, and the memory it holds (where /proc tells).

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

QByteArray run(const char *program)
{
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + u'/' + QLatin1StringView(program), {});
    process.waitForFinished();
    return process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

void start(benchmark::State &state, const char *program)
{
    for (auto _ : state)
        if (run(program).isEmpty())
            state.SkipWithError("the program failed");
}

void start_memory(benchmark::State &state, const char *program)
{
    for (auto _ : state) {
        const double kiloBytes = run(program).toDouble();
        if (kiloBytes <= 0)
            state.SkipWithError("no memory known");
        // Bytes are reported as nanoseconds: only their ratio is read.
        state.SetIterationTime(kiloBytes * 1024 / 1e9);
    }
}

BENCHMARK_CAPTURE(start, bare, "startup_bare")->UseRealTime()->Iterations(10);
BENCHMARK_CAPTURE(start, library, "startup_library")->UseRealTime()->Iterations(10);
BENCHMARK_CAPTURE(start_memory, bare, "startup_bare")->UseManualTime()->Iterations(3);
BENCHMARK_CAPTURE(start_memory, library, "startup_library")->UseManualTime()->Iterations(3);

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
