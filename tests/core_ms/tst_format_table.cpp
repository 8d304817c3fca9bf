#include "support/StrictTest.h"

#include <FormatDetection.h>
#include <MsDataFormat.h>
#include <MsFileInfo.h>
#include <internal/FormatDetectorSimple.h>
#include <internal/FormatRegistry.h>
#include <internal/FormatTable.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace ozm::msreader;

namespace {

VendorDataFormat format(int value)
{
    return static_cast<VendorDataFormat>(value);
}

/// The facts as users and other programs know them, written out a second time on purpose.
void addFormats()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<bool>("isFile");
    QTest::addColumn<bool>("isFolder");

    QTest::newRow("Testing") << 1 << u"Testing"_s << QString() << true << false;
    QTest::newRow("Zuspec2") << 2 << u"Zuspec v2"_s << u"zuspec2"_s << true << false;
    QTest::newRow("BrukerFID") << 3 << u"Bruker"_s << u"d"_s << false << true;
    QTest::newRow("BrukerYEP") << 4 << u"Bruker"_s << u"d"_s << false << true;
    QTest::newRow("BrukerBAF") << 5 << u"Bruker"_s << u"d"_s << false << true;
    QTest::newRow("BrukerU2") << 6 << u"Bruker"_s << u"d"_s << false << true;
    QTest::newRow("BrukerBAF_and_U2") << 7 << u"Bruker"_s << u"d"_s << false << true;
    QTest::newRow("BrukerTims") << 8 << u"Bruker Tims"_s << u"d"_s << false << true;
    QTest::newRow("BrukerTsf") << 9 << u"Bruker Tsf"_s << u"d"_s << false << true;
    QTest::newRow("AgilentAcqData") << 10 << u"Agilent"_s << u"d"_s << false << true;
    QTest::newRow("Mobilion") << 11 << u"MOBILion"_s << u"mbi"_s << true << false;
    QTest::newRow("Waters") << 12 << u"Waters"_s << u"raw"_s << false << true;
    QTest::newRow("Shimadzu") << 13 << u"Shimadzu"_s << u"lcd"_s << true << false;
    QTest::newRow("SciexWiff") << 14 << u"Sciex wiff"_s << u"wiff"_s << true << false;
    QTest::newRow("SciexWiff2") << 15 << u"Sciex wiff2"_s << u"wiff2"_s << true << false;
    QTest::newRow("MsFaux") << 16 << u"Simulated msfaux"_s << u"msfaux"_s << true << false;
    QTest::newRow("MsFaux2") << 17 << u"Simulated msfaux2"_s << u"msfaux2"_s << true << false;
    QTest::newRow("Thermo") << 18 << u"Thermo"_s << u"raw"_s << true << false;
    QTest::newRow("Mgf") << 19 << u"Mascot generic format (mgf)"_s << u"mgf"_s << true << false;
    QTest::newRow("Mzml") << 20 << u"Open data format mzml"_s << u"mzml"_s << true << false;
    QTest::newRow("Mzxml") << 21 << u"Open data format mzxml"_s << u"mzxml"_s << true << false;
    QTest::newRow("Vacq") << 22 << u"Veltrano Acquisition file"_s << u"vacq"_s << true << true;
    QTest::newRow("DataCut") << 23 << u"Data Cut"_s << u"data.cut"_s << true << false;
    QTest::newRow("DataCutEmbedded") << 24 << u"Data Cut Embedded"_s << QString() << true << false;
    QTest::newRow("Csv2d") << 25 << u"Csv2D"_s << u"csv2d"_s << true << false;
}

} // namespace

class TestFormatTable : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    // First, as the registry is built once. Fails under the thread sanitizer, or at the count, when a thread sees
    // a table half built.
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
                const auto location = DataSourceLocation::fromLocalPath(u"/no/such/run.d"_s);
                right += i % 2 == 0 ? detectFormats(location, true, false).size() == 8
                                    : MsFileInfo::allExtensions().size() == 15;
            });
        }
        go = true;
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(right.load(), kThreads);
    }

    // Second: a warning at the making of the collections would come here, on first use.
    void extensionCollections()
    {
        const QSet<QString> files{u"zuspec2"_s, u"mbi"_s,     u"lcd"_s,      u"wiff"_s, u"wiff2"_s,
                                  u"msfaux"_s,  u"msfaux2"_s, u"raw"_s,      u"mgf"_s,  u"mzml"_s,
                                  u"mzxml"_s,   u"vacq"_s,    u"data.cut"_s, u"csv2d"_s};
        const QSet<QString> folders{u"d"_s, u"raw"_s, u"vacq"_s};
        QCOMPARE(MsFileInfo::fileExtensions(), files);
        QCOMPARE(MsFileInfo::folderExtensions(), folders);
        QCOMPARE(MsFileInfo::allExtensions(), files + folders);
    }

    void facts_data() { addFormats(); }
    void facts()
    {
        QFETCH(int, value);
        QTEST(MsFileInfo::formatDescription(format(value)), "description");
        QTEST(MsFileInfo::fileNameExtension(format(value)), "extension");
        QTEST(MsFileInfo::isFile(format(value)), "isFile");
        QTEST(MsFileInfo::isFolder(format(value)), "isFolder");
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        QCOMPARE(MsDataFormat::toString(format(value)), name);
        for (const QString &text : {name, name.toLower(), name.toUpper()})
            QCOMPARE(MsDataFormat::fromString(text).value(), format(value));
        // The meta-object knows the same names, for settings that are written through it.
        QCOMPARE(QString::fromLatin1(QMetaEnum::fromType<VendorDataFormat>().valueToKey(value)), name);
    }

    void noFormat_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("name");
        QTest::newRow("Unknown") << 0 << u"Unknown"_s;
        QTest::newRow("past the last") << 26 << u"26"_s;
        QTest::newRow("below zero") << -1 << u"-1"_s;
    }
    void noFormat()
    {
        QFETCH(int, value);
        QFETCH(QString, name);
        QCOMPARE(MsDataFormat::toString(format(value)), name);
        const QString warning = u"Unknown file format: "_s + name;
        for (int i = 0; i < 4; ++i)
            ozm::test::expectWarning(warning);
        QVERIFY(MsFileInfo::fileNameExtension(format(value)).isEmpty());
        QVERIFY(MsFileInfo::formatDescription(format(value)).isEmpty());
        QVERIFY(!MsFileInfo::isFile(format(value)));
        QVERIFY(!MsFileInfo::isFolder(format(value)));
    }

    void warningsCarryTheirCategory()
    {
        static QByteArray category;
        const auto previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &context,
                                                        const QString &) { category = context.category; });
        std::ignore = MsFileInfo::isFile(VendorDataFormat::Unknown);
        qInstallMessageHandler(previous);
        QCOMPARE(category, "ozm.generic"_ba);
    }

    void unknownNames()
    {
        for (const auto &text : {u""_s, u"Bruker Tims"_s, u"Mzml "_s, u"%1"_s}) {
            const auto converted = MsDataFormat::fromString(text);
            QVERIFY2(!converted, qPrintable(text));
            QCOMPARE(int(converted.error().errorCode()), 2);
            QCOMPARE(converted.error().errorMessage(),
                     u"Could not find match for converting vendor data format to string: "_s + text);
        }
    }

    void everyFormatHasOneDetector()
    {
        QSet<VendorDataFormat> claimed;
        for (const auto &detector : internal::detectors())
            claimed.unite(detector->supportedFormats());
        QCOMPARE(claimed.size(), 25);
        QVERIFY(!internal::detectorOf(VendorDataFormat::Unknown));
        for (const auto &row : internal::kFormats)
            QCOMPARE(internal::detectorOf(row.format) != nullptr, claimed.contains(row.format));
    }

    void brukerDescribesForeignFormatsAsBruker()
    {
        const auto *bruker = internal::detectorOf(VendorDataFormat::BrukerFID);
        QCOMPARE(bruker->formatDescription(VendorDataFormat::Mgf), u"Bruker"_s);
    }

    void overlapIsRefused()
    {
        internal::DetectorList list;
        list.push_back(std::make_unique<internal::FormatDetectorSimple>(VendorDataFormat::Mgf, false,
                                                                        u".mgf"_s, QString()));
        internal::throwOnOverlap(list);
        list.push_back(std::make_unique<internal::FormatDetectorSimple>(VendorDataFormat::Mgf, true,
                                                                        u".peaks"_s, QString()));
        try {
            internal::throwOnOverlap(list);
            QFAIL("two detectors for one format were taken");
        } catch (const std::runtime_error &error) {
            QCOMPARE(error.what(), "Developer's exception: format intersection detected.");
        }
    }
};

QTEST_GUILESS_MAIN(TestFormatTable)
#include "tst_format_table.moc"
