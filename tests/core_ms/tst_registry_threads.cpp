#include "support/StrictTest.h"

#include <FormatDetection.h>
#include <MsFileInfo.h>

#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace ozm::msreader;

class TestRegistryThreads : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    // Fails under the thread sanitizer, or at the comparison, when a table is seen half built.
    void firstUseFromManyThreads()
    {
        constexpr int kThreads = 16;
        std::atomic<bool> go = false;
        std::atomic<int> right = 0;
        std::vector<std::thread> threads;
        for (int i = 0; i < kThreads; ++i) {
            threads.emplace_back([&go, &right, i] {
                while (!go) {
                }
                right += i % 2 == 0 ? askDetection() : askFacts();
            });
        }
        go = true;
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(right.load(), kThreads);
    }

private:
    static bool askDetection()
    {
        const auto location = DataSourceLocation::fromLocalPath(u"/no/such/run.d"_s);
        return detectFormats(location, true, false).size() == 8 && !hasDetectableFormat(location, false) &&
               MsDataFormat::fromString(u"mzml"_s).value() == VendorDataFormat::Mzml;
    }

    static bool askFacts()
    {
        return MsFileInfo::allExtensions().size() == 15 &&
               MsFileInfo::formatDescription(VendorDataFormat::BrukerTsf) == "Bruker Tsf"_L1 &&
               MsFileInfo::fileNameExtension(VendorDataFormat::DataCut) == "data.cut"_L1;
    }
};

QTEST_GUILESS_MAIN(TestRegistryThreads)
#include "tst_registry_threads.moc"
