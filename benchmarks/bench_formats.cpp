// Recognition of vendor data, warm: what lies in the system's cache costs time, not waiting.

#include "formats_layouts.h"

#include <FormatDetection.h>
#include <internal/FormatTable.h>

#include <ozm_common_ms/MsDataFileUtils.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;
using namespace ozm::msreader;

namespace {

constexpr int kPaths = 100'000;
constexpr int kSamples = 2'000;

QStringList manyPaths()
{
    QStringList paths;
    for (int i = 0; i < kPaths; ++i) {
        const QString extension = internal::kFormats[std::size_t(i) % internal::kFormats.size()].extension;
        paths.append(u"/mnt/share/instrument 3/2024-05/project/sample %1%2"_s.arg(i).arg(extension));
    }
    return paths;
}

void byName(benchmark::State &state)
{
    std::vector<DataSourceLocation> locations;
    for (const QString &path : manyPaths())
        locations.push_back(DataSourceLocation::fromLocalPath(path));
    for (auto _ : state)
        for (const DataSourceLocation &location : locations)
            benchmark::DoNotOptimize(detectFormats(location, true, false));
    state.SetItemsProcessed(state.iterations() * kPaths);
}

void anyByName(benchmark::State &state)
{
    std::vector<DataSourceLocation> locations;
    for (const QString &path : manyPaths())
        locations.push_back(DataSourceLocation::fromLocalPath(path));
    for (auto _ : state)
        for (const DataSourceLocation &location : locations)
            benchmark::DoNotOptimize(hasDetectableFormat(location, true));
    state.SetItemsProcessed(state.iterations() * kPaths);
}

/// The least that any detection by name does: one comparison for each format.
void byNameBare(benchmark::State &state)
{
    const QStringList paths = manyPaths();
    QStringList extensions;
    for (const internal::FormatRow &row : internal::kFormats)
        extensions.append(row.extension);
    for (auto _ : state) {
        for (const QString &path : paths) {
            int found = 0;
            for (const QString &extension : extensions)
                found += path.endsWith(extension, Qt::CaseInsensitive) ? 1 : 0;
            benchmark::DoNotOptimize(found);
        }
    }
    state.SetItemsProcessed(state.iterations() * kPaths);
}

/// Samples of all vendors by turns, and of a vendor's formats by turns, each in a folder of its own.
class MixedSamples
{
public:
    MixedSamples()
    {
        const auto vendors = ozm::bench::layoutsByVendor();
        for (std::size_t i = 0; i < kSamples; ++i) {
            const auto &formats = vendors[i % vendors.size()];
            const ozm::bench::Layout &layout = formats[i / vendors.size() % formats.size()];
            const QString folder = m_dir.filePath(QString::number(i));
            ozm::bench::make(folder, layout.entries);
            m_samples.push_back(DataSourceLocation::fromLocalPath(folder + u'/' + layout.path));
            for (const QString &path : layout.asked)
                m_asked.push_back(QFile::encodeName(folder + u'/' + path));
        }
    }

    static const MixedSamples &instance()
    {
        static const MixedSamples samples;
        return samples;
    }

    const std::vector<DataSourceLocation> &samples() const { return m_samples; }
    const std::vector<QByteArray> &asked() const { return m_asked; }

private:
    QTemporaryDir m_dir;
    std::vector<DataSourceLocation> m_samples;
    std::vector<QByteArray> m_asked;
};

template <typename Ask>
void askMixed(benchmark::State &state, Ask ask)
{
    const auto &samples = MixedSamples::instance().samples();
    for (auto _ : state)
        for (const DataSourceLocation &sample : samples)
            benchmark::DoNotOptimize(ask(sample));
    state.SetItemsProcessed(state.iterations() * kSamples);
}

void mixedAll(benchmark::State &state)
{
    askMixed(state, [](const DataSourceLocation &sample) { return detectFormats(sample, false, false); });
}

void mixedAny(benchmark::State &state)
{
    askMixed(state, [](const DataSourceLocation &sample) { return hasDetectableFormat(sample, false); });
}

void mixedNearest(benchmark::State &state)
{
    askMixed(state, [](const DataSourceLocation &sample) { return nearestFormat(sample.localPath); });
}

#ifdef Q_OS_UNIX
/// The questions that are left when the answer is known.
void mixedBareStat(benchmark::State &state)
{
    const auto &asked = MixedSamples::instance().asked();
    for (auto _ : state) {
        for (const QByteArray &path : asked) {
            struct stat entry = {};
            benchmark::DoNotOptimize(::stat(path.constData(), &entry));
        }
    }
    state.SetItemsProcessed(state.iterations() * kSamples);
}
BENCHMARK(mixedBareStat)->Unit(benchmark::kMicrosecond);
#endif

using LargeFolder = QStringList (*)(const QString &, int);

template <LargeFolder layout, bool wantsAll>
void largeFolder(benchmark::State &state)
{
    const QTemporaryDir dir;
    ozm::bench::make(dir.path(), layout(u"Run.d"_s, int(state.range(0))));
    const auto location = DataSourceLocation::fromLocalPath(dir.filePath(u"Run.d"_s));
    for (auto _ : state)
        if constexpr (wantsAll)
            benchmark::DoNotOptimize(detectFormats(location, false, false));
        else
            benchmark::DoNotOptimize(nearestFormat(location.localPath));
}

/// A study folder of so many samples, files and folders by turns.
void makeStudy(const QTemporaryDir &dir, int count)
{
    for (int i = 0; i < count; ++i) {
        const QString name = u"study %1/sample %2"_s.arg(i / 100).arg(i);
        ozm::bench::make(dir.path(), i % 2 == 0 ? QStringList{name + u".mzML"_s}
                                                : QStringList{name + u".d/AcqData/msscan.bin"_s});
    }
}

void recursiveSearch(benchmark::State &state)
{
    const QTemporaryDir dir;
    const int count = int(state.range(0));
    makeStudy(dir, count);
    for (auto _ : state) {
        const auto found = MsDataFileUtils::searchForMSFilesAndDirectories(
            dir.path(), true, MsDataFileInfo::CheckLevel::Content);
        if (found.value().size() != count)
            state.SkipWithError("samples are missing");
    }
    state.SetItemsProcessed(state.iterations() * count);
}

#ifdef Q_OS_UNIX
/// Lists the same folders and nothing more.
void systemFind(benchmark::State &state)
{
    const QTemporaryDir dir;
    makeStudy(dir, int(state.range(0)));
    for (auto _ : state) {
        QProcess find;
        find.start(u"find"_s, {dir.path()});
        if (!find.waitForFinished(-1) || find.readAllStandardOutput().isEmpty())
            state.SkipWithError("nothing is listed");
    }
}
BENCHMARK(systemFind)->Arg(10'000)->Unit(benchmark::kMillisecond)->UseRealTime();
#endif

BENCHMARK(byNameBare)->Unit(benchmark::kMillisecond);
BENCHMARK(byName)->Unit(benchmark::kMillisecond);
BENCHMARK(anyByName)->Unit(benchmark::kMillisecond);
BENCHMARK(mixedAny)->Unit(benchmark::kMicrosecond);
BENCHMARK(mixedNearest)->Unit(benchmark::kMicrosecond);
BENCHMARK(mixedAll)->Unit(benchmark::kMicrosecond);
BENCHMARK(largeFolder<ozm::bench::largeFidFolder, false>)
    ->Name("fidFolder/nearest")
    ->Arg(600)
    ->Arg(60'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(largeFolder<ozm::bench::largeFidFolder, true>)
    ->Name("fidFolder/all")
    ->Arg(600)
    ->Arg(60'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(largeFolder<ozm::bench::largeAgilentFolder, false>)
    ->Name("agilentFolder/nearest")
    ->Arg(600)
    ->Arg(60'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(largeFolder<ozm::bench::largeAgilentFolder, true>)
    ->Name("agilentFolder/all")
    ->Arg(600)
    ->Arg(60'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(largeFolder<ozm::bench::largeTdfFolder, true>)
    ->Name("tdfFolder/all")
    ->Arg(600)
    ->Arg(60'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(recursiveSearch)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

} // namespace
