#include "support/StrictTest.h"

#include "core_ms/LiteralRules.h"
#include "core_ms/SampleTree.h"

#include <FormatDetection.h>
#include <internal/FormatRegistry.h>

#include <QLoggingCategory>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace ozm::msreader;
using ozm::test::SampleTree;
using Names = QStringList;

Q_DECLARE_METATYPE(QStringList)

namespace {

DataSourceLocation at(const QString &path)
{
    return DataSourceLocation::fromLocalPath(path);
}

QString namesOf(const QSet<VendorDataFormat> &formats)
{
    Names names;
    for (const VendorDataFormat format : formats)
        names.append(MsDataFormat::toString(format));
    names.sort();
    return names.join(u' ');
}

void addColumns()
{
    QTest::addColumn<Names>("entries");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("formats");
}

/// The lines written at debug level while it lived.
class DebugLines
{
public:
    DebugLines()
    {
        s_lines.clear();
        QLoggingCategory::setFilterRules(u"ozm.generic.debug=true"_s);
        m_previous =
            qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
                if (type == QtDebugMsg)
                    s_lines.append(text);
            });
    }
    ~DebugLines()
    {
        qInstallMessageHandler(m_previous);
        QLoggingCategory::setFilterRules(QString());
    }
    Q_DISABLE_COPY_MOVE(DebugLines)
    [[nodiscard]] static Names lines() { return s_lines; }

private:
    QtMessageHandler m_previous;
    static inline Names s_lines;
};

} // namespace

class TestDetectors : public ozm::test::StrictTest
{
    Q_OBJECT

    /// Every entry point, the single detectors and the rules read word for word give the same answer.
    void checkRow()
    {
        QFETCH(Names, entries);
        QFETCH(QString, asked);
        QFETCH(QString, formats);
        const SampleTree tree;
        tree.make(entries);
        const QString path = tree.path(asked);

        const auto found = detectFormats(at(path), false, false);
        QCOMPARE(namesOf(found), formats);
        QCOMPARE(namesOf(ozm::test::literalFormats(path)), formats);
        QCOMPARE(hasDetectableFormat(at(path), false), !formats.isEmpty());
        const VendorDataFormat nearest = nearestFormat(path);
        QVERIFY(found.isEmpty() ? nearest == VendorDataFormat::Unknown : found.contains(nearest));

        QSet<VendorDataFormat> singly;
        for (const auto &detector : internal::detectors())
            singly.unite(detector->detectFormat(path));
        QCOMPARE(namesOf(singly), formats);
    }

private Q_SLOTS:
    // The usual names of each format are in the generated trees.
    void names_data()
    {
        addColumns();
        const std::pair<QString, QString> rows[] = {
            {u"a.RAW"_s, u"Thermo"_s}, {u"a.DATA.Cut"_s, u"DataCut"_s},
            {u".mgf"_s, u"Mgf"_s},     {u"a.b.mzML"_s, u"Mzml"_s},
            {u"a.mzml.gz"_s, {}},      {u"mgf"_s, {}},
            {u"a.mgf "_s, {}},         {u"a"_s, {}},
            {u"a.mzml/"_s, {}}};
        for (const auto &[name, formats] : rows)
            QTest::newRow(qPrintable(name)) << Names{name} << name << formats;
        QTest::newRow("missing") << Names() << u"a.mzml"_s << QString();
        QTest::newRow("link") << Names{u"blob"_s, u"a.mzml -> blob"_s} << u"a.mzml"_s << u"Mzml"_s;
        QTest::newRow("dangling link") << Names{u"a.mzml -> blob"_s} << u"a.mzml"_s << QString();
        QTest::newRow("vacq, link") << Names{u"x/"_s, u"a.VACQ -> x"_s} << u"a.VACQ"_s << u"Vacq"_s;
        QTest::newRow("vacq, slash") << Names{u"a.vacq/"_s} << u"a.vacq/"_s << QString();
    }
    void names() { checkRow(); }
    void bruker_data()
    {
        addColumns();
        const auto row = [](const char *tag, const Names &entries, const char *format) {
            QTest::newRow(tag) << entries << entries.constFirst().section(u'/', 0, 0)
                               << QString::fromLatin1(format);
        };
        row("linked spectrum", {u"Run.d/0_A1/1SRef/"_s, u"fid"_s, u"Run.d/0_A1/1SRef/fid -> ../../../fid"_s},
            "BrukerFID");
        row("other run number", {u"Run.d/0_A1/2/1SRef/fid"_s}, "");
        row("companion of two suffixes", {u"a.dx.d/a.u2x.u2"_s}, "BrukerU2");
        Names many{u"Run.d/analysis.tsf"_s, u"Run.d/Analysis.tsf_bin"_s};
        for (int i = 0; i < 200; ++i)
            many.append(u"Run.d/file%1"_s.arg(i));
        row("among many files", many, "BrukerTsf");
        std::ranges::reverse(many);
        row("behind many files", many, "BrukerTsf");
    }
    void bruker() { checkRow(); }

    void agilent_data()
    {
        addColumns();
        const auto agilent = u"AgilentAcqData"_s;
        QTest::newRow("link to the folder itself, from inside")
            << Names{u"a.d/x/AcqData/"_s, u"a.d/x/loop.d -> ."_s} << u"a.d"_s << agilent;
        QTest::newRow("slash at the end") << Names{u"a.d/AcqData/"_s} << u"a.d/"_s << QString();
        QTest::newRow("reached through a link")
            << Names{u"x/AcqData/"_s, u"a.d -> x"_s} << u"a.d"_s << agilent;
    }
    void agilent() { checkRow(); }

    void sciex_data()
    {
        addColumns();
        QTest::addColumn<QString>("warning");
        const auto wiff = u"looks like ABI SCIEX WIFF file. But .wiff.scan file is absent"_s;
        const auto wiff2 = u"looks like SCIEX WIFF2 file. But .wiff.scan file is absent"_s;
        QTest::newRow("no scan") << Names{u"x.wiff"_s} << u"x.wiff"_s << QString() << wiff;
        QTest::newRow("scan of other case")
            << Names{u"x.WIFF"_s, u"x.wiff.scan"_s} << u"x.WIFF"_s << QString() << wiff;
        QTest::newRow("no wiff") << Names{u"x.wiff.scan"_s} << u"x.wiff"_s << QString() << QString();
        QTest::newRow("WIFF2") << Names{u"x.WIFF2"_s, u"x.WIFF.scan"_s} << u"x.WIFF2"_s << u"SciexWiff2"_s
                               << QString();
        QTest::newRow("a folder called as the scan file")
            << Names{u"x.wiff"_s, u"x.wiff.scan/"_s} << u"x.wiff"_s << u"SciexWiff"_s << QString();
        QTest::newRow("wiff2, a folder called as the scan file")
            << Names{u"x.wiff2"_s, u"x.wiff.scan/"_s} << u"x.wiff2"_s << u"SciexWiff2"_s << QString();
        QTest::newRow("wiff2, scan by the other rule")
            << Names{u"x.wiff2"_s, u"x.wiff2.scan"_s} << u"x.wiff2"_s << QString() << wiff2;
    }
    void sciex()
    {
        QFETCH(Names, entries);
        QFETCH(QString, asked);
        QFETCH(QString, warning);
        const SampleTree tree;
        tree.make(entries);
        const QString path = tree.path(asked);
        // Once for each question: two warnings would leave the second one unexpected.
        const auto expectOne = [&] {
            if (!warning.isEmpty())
                ozm::test::expectWarning(u"File \"%1\" %2"_s.arg(path, warning));
        };
        expectOne();
        const auto found = detectFormats(at(path), false, false);
        QTEST(namesOf(found), "formats");
        QCOMPARE(namesOf(ozm::test::literalFormats(path)), namesOf(found));
        expectOne();
        QCOMPARE(hasDetectableFormat(at(path), false), !found.isEmpty());
        QVERIFY(hasDetectableFormat(at(path), true));
    }

    void testingMarker()
    {
        for (const char *name :
             {"MAGIC_STRING_GOES_HERE_ozm_testing", "/x/y.MAGIC_string_GOES_here_OZM_testing"}) {
            const auto location = at(QString::fromLatin1(name));
            QCOMPARE(namesOf(detectFormats(location, false, false)), u"Testing"_s);
            QCOMPARE(namesOf(detectFormats(location, true, false)), u"Testing"_s);
            QVERIFY(hasDetectableFormat(location, false));
        }
        QVERIFY(!hasDetectableFormat(at(u"MAGIC_STRING_GOES_HERE_ozm_testing.x"_s), false));
    }

    void databaseHandler()
    {
        auto location = DataSourceLocation::fromDatabaseHandler(nullptr);
        location.localPath = u"a.mgf"_s;
        for (const bool byNameOnly : {false, true}) {
            QCOMPARE(namesOf(detectFormats(location, byNameOnly, false)), u"DataCutEmbedded"_s);
            QVERIFY(hasDetectableFormat(location, byNameOnly));
        }
    }

    void byName_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("formats");
        QTest::addColumn<QString>("first");
        const auto d =
            u"AgilentAcqData BrukerBAF BrukerBAF_and_U2 BrukerFID BrukerTims BrukerTsf BrukerU2 BrukerYEP"_s;
        QTest::newRow("d") << u"/no/such/a.d"_s << d << u"AgilentAcqData"_s;
        QTest::newRow("raw") << u"a.Raw"_s << u"Thermo Waters"_s << u"Thermo"_s;
        QTest::newRow("wiff") << u"a.wiff"_s << u"SciexWiff"_s << u"SciexWiff"_s;
        QTest::newRow("empty") << QString() << QString() << QString();
        QTest::newRow("folder above") << u"a.d/b"_s << QString() << QString();
    }
    void byName()
    {
        QFETCH(QString, path);
        QTEST(namesOf(detectFormats(at(path), true, false)), "formats");
        QTEST(namesOf(detectFormats(at(path), true, true)), "first");
    }

    void relativeAndEmptyPaths()
    {
        QVERIFY(!hasDetectableFormat(at(QString()), false));
        const SampleTree tree;
        tree.make({u"Run.d/analysis.tsf"_s, u"Run.d/analysis.tsf_bin"_s, u"a.mgf"_s});
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(tree.path()));
        const auto folder = detectFormats(at(u"Run.d"_s), false, false);
        const auto upAndDown = detectFormats(at(u"./Run.d/../a.mgf"_s), false, false);
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(namesOf(folder), u"BrukerTsf"_s);
        QCOMPARE(namesOf(upAndDown), u"Mgf"_s);
    }

    void supportLineNamesTheRule_data()
    {
        QTest::addColumn<Names>("entries");
        QTest::addColumn<QString>("line");
        QTest::newRow("taken")
            << Names{u"a.d/analysis.tdf"_s, u"a.d/analysis.tdf_bin"_s}
            << u"Detected BrukerTims in %1 by: Agilent: no AcqData folder; Bruker: analysis.tdf and analysis.tdf_bin"_s;
        QTest::newRow("refused")
            << Names{u"a.d/x"_s}
            << u"Detected no format in %1 by: Agilent: no AcqData folder; Bruker: neither fid nor analysis files"_s;
        QTest::newRow("a file")
            << Names{u"a.d"_s}
            << u"Detected no format in %1 by: Agilent: no AcqData folder; Bruker: not a folder"_s;
    }
    void supportLineNamesTheRule()
    {
        QFETCH(Names, entries);
        QFETCH(QString, line);
        const SampleTree tree;
        tree.make(entries);
        const DebugLines debug;
        std::ignore = detectFormats(at(tree.path(u"a.d"_s)), false, false);
        QCOMPARE(DebugLines::lines(), Names{line.arg(tree.path(u"a.d"_s))});
        std::ignore = hasDetectableFormat(at(tree.path(u"a.d"_s)), false);
        QCOMPARE(DebugLines::lines().size(), 2);
    }

    void supportLinesAreOffByDefault()
    {
        const QLoggingCategory category("ozm.generic", QtInfoMsg);
        QVERIFY(!category.isDebugEnabled() && category.isWarningEnabled());
        Names lines;
        {
            const DebugLines debug;
            QLoggingCategory::setFilterRules(QString());
            std::ignore = hasDetectableFormat(at(u"a.mgf"_s), false);
            lines = DebugLines::lines();
        }
        QCOMPARE(lines, Names());
    }
};

QTEST_GUILESS_MAIN(TestDetectors)
#include "tst_detectors.moc"
