#include "support/StrictTest.h"

#include "core_ms/LiteralRules.h"
#include "core_ms/SampleTree.h"

#include <FormatDetection.h>

#include <QLoggingCategory>

#include <algorithm>
#include <map>
#include <random>

using namespace Qt::StringLiterals;
using namespace ozm::msreader;
using ozm::test::SampleTree;

namespace {

#if defined(__SANITIZE_THREAD__) || defined(__SANITIZE_ADDRESS__)
constexpr int kTrees = 5'000;
#else
constexpr int kTrees = 50'000;
#endif
constexpr int kDeepest = 3;

const QStringList kRoots =
    QStringLiteral("Run.d Run.D a.d.d .d x.raw s.wiff s.wiff2 S.WIFF2 v.vacq c.cut c.data.cut m.mgf m.mzML "
                   "m.mzXML z.zuspec2 z.CSV2D l.lcd b.mbi f.msfaux f.msfaux2 plain "
                   "xMAGIC_STRING_GOES_HERE_ozm_testing")
        .split(u' ');

/// Names that one rule or another looks for, and names that only resemble them.
const QStringList kNames =
    QStringLiteral("AcqData acqdata fid FID 1 1SRef 1SLin 1Ref 1Lin Analysis.yep analysis.yep Analysis.baf "
                   "analysis.baf analysis.tdf Analysis.tdf analysis.tdf_bin Analysis.tdf_bin analysis.tsf "
                   "analysis.tsf_bin Analysis.tsf_bin Run.u2 a.u2.u2 Run.D .u2 y.d .h.D 4711.m msscan.bin "
                   "_FUNC001.DAT спектр")
        .split(u' ');

/// The parts that real data consists of, so that not every tree is nonsense.
const QList<QStringList> kParts{{u"AcqData/msscan.bin"_s},
                                {u"y.d/AcqData/"_s},
                                {u"4711.m/y.D/acqdata/"_s},
                                {u"0_A1/1/1SRef/fid"_s},
                                {u"spot/1Lin/fid"_s},
                                {u"fid/"_s},
                                {u"0_A1/fid/"_s},
                                {u"Analysis.yep"_s},
                                {u"Analysis.baf"_s},
                                {u"analysis.baf"_s},
                                {u"Run.u2"_s},
                                {u"analysis.tdf"_s, u"analysis.tdf_bin"_s},
                                {u"Analysis.tsf"_s, u"analysis.tsf_bin"_s},
                                {u"_FUNC001.DAT"_s}};

class TreeMaker
{
public:
    explicit TreeMaker(quint32 seed)
        : m_random(seed)
    {}

    int below(int bound) { return int(m_random() % quint32(bound)); }
    bool oneIn(int chances) { return below(chances) == 0; }

    template <typename List>
    const auto &oneOf(const List &list)
    {
        return list.at(below(int(list.size())));
    }

    QString root() { return oneIn(2) ? kRoots.at(below(4)) : oneOf(kRoots); }

    QStringList entries(const QString &root)
    {
        QStringList made;
        // One level down: links reach two levels up, and must not reach what other programs are doing.
        const QString top = u"in/"_s + root;
        if (oneIn(8))
            made.append(top); // a file; what else is drawn for it cannot be made then
        else
            addEntries(made, top + u'/', 0);
        if (oneIn(4))
            made.append(top + u".scan"_s);
        if (oneIn(4))
            made.append(top.chopped(1) + u".scan"_s);
        std::shuffle(made.begin(), made.end(), m_random);
        return made;
    }

private:
    void addEntries(QStringList &made, const QString &folder, int depth)
    {
        made.append(folder);
        for (int i = below(3); depth == 0 && i > 0; --i) {
            for (const QString &entry : oneOf(kParts))
                made.append(folder + entry);
        }
        for (int i = below(4); i > 0; --i)
            addEntry(made, folder + oneOf(kNames), depth);
    }

    void addEntry(QStringList &made, const QString &path, int depth)
    {
        switch (below(depth < kDeepest ? 8 : 4)) {
        case 0:
            made.append(path + u" -> "_s + linkTarget());
            break;
        case 1:
        case 2:
            made.append(path);
            break;
        case 3:
            made.append(path + u'/');
            break;
        default:
            addEntries(made, path + u'/', depth + 1);
            break;
        }
    }

    QString linkTarget()
    {
        const QStringList targets{u"."_s, u".."_s, u"../.."_s, u"../y.d"_s, u"nowhere"_s};
        return oneIn(3) ? oneOf(kNames) : oneOf(targets);
    }

    std::mt19937 m_random;
};

/// Drawn entries contradict each other at times, as a file and a folder of one name: the first one stays.
void makeWhatFits(const SampleTree &tree, const QStringList &entries)
{
    for (const QString &entry : entries) {
        try {
            tree.makeOne(entry);
        } catch (const std::runtime_error &) {
            continue;
        }
    }
}

QString textOf(const QSet<VendorDataFormat> &formats)
{
    QStringList names;
    for (const VendorDataFormat format : formats)
        names.append(MsDataFormat::toString(format));
    names.sort();
    return names.join(u' ');
}

} // namespace

class TestGeneratedTrees : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules(u"ozm.generic=false"_s); }
    void cleanupTestCase() { QLoggingCategory::setFilterRules(QString()); }

    void answersAreThoseOfTheRules()
    {
        std::map<VendorDataFormat, int> seen;
        int several = 0;
        for (int seed = 1; seed <= kTrees; ++seed) {
            TreeMaker maker{quint32(seed)};
            const QString root = maker.root();
            const QStringList entries = maker.entries(root);
            const SampleTree tree;
            makeWhatFits(tree, entries);
            const QString path = tree.path(u"in/"_s + root);
            compare(path);
            if (QTest::currentTestFailed()) {
                qInfo().noquote() << "seed" << seed << "made from" << entries.join(u"; "_s);
                return;
            }
            const auto formats = ozm::test::literalFormats(path);
            for (const VendorDataFormat format : formats)
                ++seen[format];
            several += formats.size() > 1 ? 1 : 0;
        }
        // A generator that went astray would agree about nothing.
        QCOMPARE(int(seen.size()), 24);
        QVERIFY2(several * 100 > kTrees, qPrintable(u"%1 trees with several formats"_s.arg(several)));
        qInfo() << kTrees << "trees," << several << "with several formats";
    }

private:
    static void compare(const QString &path)
    {
        const auto location = DataSourceLocation::fromLocalPath(path);
        const auto expected = ozm::test::literalFormats(path);
        QCOMPARE(textOf(detectFormats(location, false, false)), textOf(expected));
        QCOMPARE(textOf(detectFormats(location, false, true)), textOf(ozm::test::firstLiteralFormats(path)));
        QCOMPARE(textOf(detectFormats(location, true, false)), textOf(ozm::test::literalFormatsByName(path)));
        QCOMPARE(hasDetectableFormat(location, false), !expected.isEmpty());
        const VendorDataFormat nearest = nearestFormat(path);
        QVERIFY(expected.isEmpty() ? nearest == VendorDataFormat::Unknown : expected.contains(nearest));
    }
};

QTEST_GUILESS_MAIN(TestGeneratedTrees)
#include "tst_generated_trees.moc"
