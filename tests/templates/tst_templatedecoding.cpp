#include "support/StrictTest.h"

#include "ShortCodes_p.h"

#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/GroupSummary.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_core_mini/VariantItems.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/TECWrapper.h>

#include <QRandomGenerator>

#include <array>

using namespace Qt::StringLiterals;

namespace {

class Run
{
    Q_GADGET
    Q_PROPERTY(double retentionTime MEMBER retentionTime)
    Q_PROPERTY(float noise MEMBER noise)
    Q_PROPERTY(double calcMr MEMBER calcMr)
    Q_PROPERTY(QString instrument MEMBER instrument)
    Q_PROPERTY(QStringList operators MEMBER operators)
    Q_PROPERTY(int hidden MEMBER hidden DESIGNABLE false)

public:
    double retentionTime = 2.5;
    float noise = 0.25F;
    double calcMr = 1045.53421;
    QString instrument = u"TOF"_s;
    QStringList operators{u"Ann"_s, u"Bo"_s};
    int hidden = 7;
};

class Notes
{
    Q_GADGET
    Q_PROPERTY(QString comment MEMBER comment)
    Q_PROPERTY(QString format MEMBER format)
    Q_PROPERTY(QString sequence MEMBER sequence)

public:
    QString comment = u"see [Name]"_s;
    QString format = u"["_s;
    QString sequence = u"[Name]"_s;
};

class Base : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString inherited READ inherited CONSTANT)

public:
    [[nodiscard]] QString inherited() const { return u"from above"_s; }
};

class Study : public Base
{
    Q_OBJECT
    Q_PROPERTY(int charge READ charge CONSTANT)
    Q_PROPERTY(int reads READ reads CONSTANT)

public:
    [[nodiscard]] int charge() const { return 4; }
    [[nodiscard]] int reads() const { return ++m_reads; }

private:
    mutable int m_reads = 0;
};

class Named : public ShortCodeImplementation
{
    Q_OBJECT

public:
    explicit Named(QStringList *calls)
        : m_calls(calls)
    {}
    ~Named() override { m_calls->append(u"destroyed"_s); }

    bool beforeGetDisplayName(ShortCode *code, const QMap<QString, QVariant> &parameters) override
    {
        m_calls->append(code->code + parameters.value(u"x"_s).toString());
        return false;
    }
    bool beforeRemove() override { return false; }
    void init(ShortCode *code) override
    {
        // The implementation is in place before init() is called.
        m_calls->append(code->implementation().data() == this ? u"init"_s : u"too early"_s);
    }
    QString displayName(const QString &name) override { return name.toUpper(); }

private:
    QStringList *m_calls;
};

QString wrapped(const QString &content)
{
    return TECWrapper::wrapTEC(content);
}

RowNode peptide(const QString &name, int charge, double mass)
{
    RowNode row({kName, kCharge, kMass, kMassArea, kModificationsNameList});
    row.setDataAt(kName, name);
    row.setDataAt(kCharge, charge);
    row.setDataAt(kMass, mass);
    return row;
}

const QString kMissing = u"FriendlyNames contained mapping for code[%1], but RowNode and others data "
                         "structures did not contain data"_s;

} // namespace

class TestTemplateDecoding : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void codes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("bare");
        QTest::addColumn<QStringList>("bracketed");
        QTest::newRow("nothing") << u""_s << QStringList() << QStringList();
        QTest::newRow("never closed") << u"a [b"_s << QStringList() << QStringList();
        QTest::newRow("repeated") << u"[a] [b] [a]"_s << QStringList{u"a"_s, u"b"_s, u"a"_s}
                                  << QStringList{u"[a]"_s, u"[b]"_s, u"[a]"_s};
        QTest::newRow("left open") << u"[a[b]"_s << QStringList{u"b"_s} << QStringList{u"[a[b]"_s};
        QTest::newRow("doubled") << u"[[x]]"_s << QStringList{u"x"_s} << QStringList{u"[[x]"_s};
        QTest::newRow("over two lines") << u"[a\n] [b]"_s << QStringList{u"b"_s} << QStringList{u"[b]"_s};
        QTest::newRow("empty") << u"[]"_s << QStringList{u""_s} << QStringList{u"[]"_s};
        QTest::newRow("legacy") << u"[OligoAliasName] [OligoAliasName] [OligoAccessionName]"_s
                                << QStringList{u"ProteinAliasName"_s, u"OligoAliasName"_s,
                                               u"ProteinAccessionName"_s}
                                << QStringList{u"[OligoAliasName]"_s, u"[OligoAliasName]"_s,
                                               u"[OligoAccessionName]"_s};
    }
    void codes()
    {
        QFETCH(QString, text);
        QTEST(getCodes(text, false), "bare");
        QTEST(getCodes(text, true), "bracketed");
    }

    // The codes are defined by a pattern, and found without it, which is quick for any text.
    void codesAreThoseOfThePattern()
    {
        static const QRegularExpression pattern(u"\\[(.*?)\\]"_s);
        QRandomGenerator random(7);
        for (int round = 0; round < 20000; ++round) {
            QString text;
            for (int length = random.bounded(24); length > 0; --length)
                text.append(u"[[]]ab\n\r\u2028"_s.at(random.bounded(9)));
            QStringList expected;
            for (auto match = pattern.globalMatch(text); match.hasNext();)
                expected.append(match.next().captured(0));
            QCOMPARE(getCodes(text, true), expected);
        }
        QCOMPARE(getCodes(QString(2'000'000, u'['), true), QStringList());
    }

    void shortCodes()
    {
        QStringList calls;
        ShortCode code(u"[Name]"_s, u"Name"_s, u"tip"_s, u"extra"_s);
        QCOMPARE(code.displayName(), u"Name"_s);
        QVERIFY(code.beforeRemove() && code.beforeGetDisplayName({}));
        {
            ShortCode copy(code);
            QCOMPARE(copy.implementation(), code.implementation());
            copy.setImplementation(new Named(&calls));
            QVERIFY2(copy == code, "implementations are not compared");
            QVERIFY(copy.implementation() != code.implementation());
            QVERIFY(!copy.beforeGetDisplayName({{u"x"_s, 1}}) && !copy.beforeRemove());
            QCOMPARE(copy.displayName(), u"NAME"_s);
            copy = *&copy;
            ShortCode moved = std::move(copy);
            QCOMPARE(moved.displayName(), u"NAME"_s);
            QVERIFY2(copy.beforeRemove() && copy.implementation(), "what was moved from is a code still");
            copy = std::move(moved);
            ozm::test::expectWarning(u"cannot be without an implementation"_s);
            copy.setImplementation(nullptr);
            QCOMPARE(copy.displayName(), u"NAME"_s);
        }
        QCOMPARE(calls, QStringList({u"init"_s, u"[Name]1"_s, u"destroyed"_s}));

        for (QString ShortCode::*field :
             {&ShortCode::code, &ShortCode::name, &ShortCode::toolTip, &ShortCode::extraText}) {
            ShortCode other(code);
            other.*field += u'x';
            QVERIFY(!(other == code));
        }
    }

    void shortCodeWithoutOwner()
    {
        ShortCode::Private orphan(nullptr);
        QTest::ignoreMessage(QtCriticalMsg, "qptr is invalid");
        QVERIFY(!orphan.copyParameters(ShortCode(u"[a]"_s, {}, {}, {})));
    }

    void lookingUpShortCodes()
    {
        const QList<ShortCode> codes{{u"[Name]"_s, u"first"_s, {}, {}}, {u"[Name]"_s, u"second"_s, {}, {}}};
        QVERIFY(ShortCodeUtils::keyExist(u"[Name]"_s, codes));
        QVERIFY(!ShortCodeUtils::keyExist(u"[name]"_s, codes));
        QCOMPARE(ShortCodeUtils::findValue(u"[Name]"_s, codes).name, u"first"_s);
        QVERIFY(ShortCodeUtils::findValue(u"Name"_s, codes) == ShortCode());
    }

    void envelope_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("known");
        QTest::addColumn<QString>("content");
        const QString open = u"<ozm_template version=\"1.0\">"_s;
        QTest::newRow("empty") << open + u"</ozm_template>"_s << true << QString();
        QTest::newRow("text around") << u"x"_s + open + u"a\nb</ozm_template>y"_s << true << u"a\nb"_s;
        QTest::newRow("to the last end")
            << open + u"a</ozm_template>b</ozm_template>"_s << true << u"a</ozm_template>b"_s;
        QTest::newRow("two") << open + u"a</ozm_template>"_s + open + u"b</ozm_template>"_s << true
                             << u"a</ozm_template>"_s + open + u"b"_s;
        QTest::newRow("none") << u"abc"_s << false << QString();
        for (const char *version : {"1.1", "2.0", "1x0", "1.10"}) {
            QTest::addRow("version %s", version)
                << u"<ozm_template version=\"%1\">a</ozm_template>"_s.arg(QLatin1StringView(version)) << false
                << QString();
        }
    }
    void envelope()
    {
        QFETCH(QString, text);
        bool ok = true;
        QTEST(TECWrapper::unwrapTEC(text, &ok), "content");
        QTEST(ok, "known");
        QTEST(TECWrapper::unwrapTEC(text, nullptr), "content");
    }

    void wrapping()
    {
        QCOMPARE(wrapped(u""_s), u"<ozm_template version=\"1.0\"></ozm_template>"_s);
        const QString large = QString(u"<p>[Name]\n</p>"_s).repeated(100'000);
        QCOMPARE(TECWrapper::unwrapTEC(wrapped(large)), large);
        // Content takes part in the substitution, which is kept for templates that rely on it.
        QCOMPARE(wrapped(u"100%1"_s), u"<ozm_template version=\"1.0\">100ozm_template</%5>"_s);
    }

    void extraDataOnly_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("decoded");
        QTest::newRow("any letter case") << u"[RETENTIONTIME]"_s << u"2.500"_s;
        QTest::newRow("float") << u"[noise]"_s << u"0.250"_s;
        QTest::newRow("as its column shows it") << u"[CALCMR]"_s << u"1045.5342"_s;
        QTest::newRow("string") << u"[instrument]"_s << u"TOF"_s;
        QTest::newRow("lists become nothing") << u"[operators]"_s << u""_s;
        QTest::newRow("pattern") << u"[inst.*]"_s << u"TOF"_s;
        QTest::newRow("the first property") << u"[.*]"_s << u"2.500"_s;
        QTest::newRow("whole names only") << u"[inst]"_s << u"[inst]"_s;
        QTest::newRow("invalid pattern") << u"[inst(] [*]"_s << u"[inst(] [*]"_s;
        QTest::newRow("invalid by itself only") << u"[x)|(?:instrument]"_s << u"[x)|(?:instrument]"_s;
        QTest::newRow("not inherited") << u"[inherited] [objectName]"_s << u"[inherited] [objectName]"_s;
        QTest::newRow("the later object") << u"[Charge]"_s << u"4"_s;
        QTest::newRow("unknown") << u"[nothing] []"_s << u"[nothing] []"_s;
        QTest::newRow("legacy names are renamed, and so not found")
            << u"[OligoAliasName]"_s << u"[OligoAliasName]"_s;
    }
    void extraDataOnly()
    {
        QFETCH(QString, content);
        const Run run;
        const Study study;
        QTEST(AbstractTemplateEditor::decodeTEC(
                  wrapped(content), {{Run::staticMetaObject, &run}, {Study::staticMetaObject, &study}}),
              "decoded");
    }

    void badEnvelope()
    {
        ozm::test::expectWarning(u"Cannot decode template "_s);
        QCOMPARE(AbstractTemplateEditor::decodeTEC(u"[instrument]"_s, {}), QString());
    }

    void oneRow_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("decoded");
        QTest::newRow("as columns show it") << u"[Mass] [Name] [Mass]"_s << u"1045.5342 T12 1045.5342"_s;
        QTest::newRow("letter case counts") << u"[name] [NAME]"_s << u"[name] [NAME]"_s;
        QTest::newRow("set to nothing") << u"([ModificationsNameList])"_s << u"()"_s;
        QTest::newRow("the row before the object") << u"[Charge]"_s << u"2"_s;
        QTest::newRow("raw from the gadget") << u"[RetentionTime]"_s << u"2.5"_s;
        QTest::newRow("lists joined") << u"[Operators]"_s << u"Ann; Bo"_s;
        QTest::newRow("a small letter does as well") << u"[operators]"_s << u"Ann; Bo"_s;
        QTest::newRow("no patterns") << u"[Operat.*]"_s << u"[Operat.*]"_s;
        QTest::newRow("inherited, too") << u"[Inherited]"_s << u"from above"_s;
        // The row has the column, but no friendly name does: the row is not asked.
        QTest::newRow("unknown column") << u"[Own]"_s << u"[Own]"_s;
        QTest::newRow("read each time, the last counts") << u"[Reads][Reads][Reads]"_s << u"333"_s;
        QTest::newRow("not unwrapped") << wrapped(u"[Name]"_s) << wrapped(u"T12"_s);
        QTest::newRow("results bring in keys")
            << u"[Name]<script>'[Na' + 'me]'</script>"_s << u"T12<script>T12</script>"_s;
        QTest::newRow("scripts see values")
            << u"<script>inputParameters['[Mass]'] * 2</script>"_s << u"<script>2091.0684</script>"_s;
    }
    void oneRow()
    {
        QFETCH(QString, text);
        RowNode row = peptide(u"T12"_s, 2, 1045.53421);
        row.setDataAt(row.addColumn(u"Own"_s) ? u"Own"_s : QString(), 5);
        const Run run;
        const Study study;
        const QList<DecodeTecExtraData> extra{{Run::staticMetaObject, &run},
                                              {Study::staticMetaObject, &study}};
        QTEST(AbstractTemplateEditor::decodeTEC(text, &row, extra), "decoded");
        const RowNode *none = nullptr;
        QCOMPARE(AbstractTemplateEditor::decodeTEC(text, none, extra), QString());
    }

    void columnsWithoutData()
    {
        const RowNode row({kName});
        for (int each = 0; each < 2; ++each)
            ozm::test::expectWarning(kMissing.arg(kCharge));
        QCOMPARE(AbstractTemplateEditor::decodeTEC(u"[Charge] [Charge] [Unknown]"_s, &row, {}),
                 u"[Charge] [Charge] [Unknown]"_s);
    }

    void severalRows()
    {
        RowNode top({kProteinName});
        top.setDataAt(kProteinName, u"mAb"_s);
        QList<RowNode *> rows;
        for (const RowNode &row :
             {peptide(u"T1"_s, 2, 500.5), peptide(u"T2"_s, 3, 400.25), peptide(u"T1"_s, 2, 500.5)})
            rows.append(top.addChild(new RowNode(row), true));
        rows.constFirst()->addNewChildMatchRootDataSize()->setDataAt(kName, u"below"_s);
        rows.at(1)->setDataAt(kModificationsNameList, QStringList{u"Ox"_s, u"Ac"_s});
        rows.at(2)->setDataAt(kModificationsNameList, QVariant::fromValue(VariantItems({u"Ox"_s})));
        rows.at(0)->setDataAt(kMassArea, 2);
        rows.at(2)->setDataAt(kMassArea, 2);

        const QString text = u"[Name]|[Charge]|[Mass]|[ModificationsNameList]|[MassArea]|[ProteinName]"_s;
        const QString summary = u"T1; T2|2 – 3|400.2500 – 500.5000|Ox; Ac|4|"_s;
        QCOMPARE(AbstractTemplateEditor::decodeTEC(text, rows, {}), summary);
        QCOMPARE(top.childCount(), 3);
        QCOMPARE(rows.constFirst()->childCount(), 1);

        rows.insert(1, nullptr);
        rows.prepend(nullptr);
        QCOMPARE(AbstractTemplateEditor::decodeTEC(text, rows, {}), summary);
        QCOMPARE(AbstractTemplateEditor::decodeTEC(u"[Name]"_s, QList<RowNode *>{rows.at(3)}, {}), u"T2"_s);
        QCOMPARE(AbstractTemplateEditor::decodeTEC(text, QList<RowNode *>{nullptr, nullptr}, {}), QString());
        QCOMPARE(AbstractTemplateEditor::decodeTEC(text, QList<RowNode *>(), {}), QString());
    }

    void summaries_data()
    {
        using Summary = ColumnFriendlyName::Summary;
        QTest::addColumn<Summary>("summary");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QVariantList>("values");
        QTest::addColumn<QString>("shown");
        const QVariantList mixed{3.0, QVariant(), 1.0, u""_s, 3.0};
        QTest::newRow("values") << Summary::Values << -1 << mixed << u"3; 1"_s;
        QTest::newRow("range") << Summary::Range << 1 << mixed << u"1.0 – 3.0"_s;
        QTest::newRow("range of one") << Summary::Range << 1 << QVariantList{2, 2.0} << u"2.0"_s;
        QTest::newRow("range, negative") << Summary::Range << 0 << QVariantList{-1, -10, 2} << u"-10 – 2"_s;
        for (const QVariantList &order : {QVariantList{3.0, qQNaN(), 1.0}, QVariantList{qQNaN(), 1.0, 3.0}})
            QTest::addRow("range without order %g", order.constFirst().toDouble())
                << Summary::Range << 1 << order << u"1.0 – 3.0; nan"_s;
        QTest::newRow("range of not a number")
            << Summary::Range << 1 << QVariantList{qQNaN(), 2.0} << u"2.0; nan"_s;
        QTest::newRow("sum") << Summary::Sum << 2 << mixed << u"7.00"_s;
        QTest::newRow("sum of one") << Summary::Sum << -1 << QVariantList{4} << u"4"_s;
        QTest::newRow("mean") << Summary::Mean << 3 << mixed << u"2.333"_s;
        QTest::newRow("count") << Summary::Count << -1 << mixed << u"2"_s;
        QTest::newRow("a text among numbers")
            << Summary::Sum << 1 << QVariantList{1, u"n. d."_s, 1} << u"1.0; n. d."_s;
        QTest::newRow("nothing") << Summary::Sum << 1 << QVariantList{QVariant(), u""_s} << u""_s;
    }
    void summaries()
    {
        QFETCH(ColumnFriendlyName::Summary, summary);
        QFETCH(int, decimals);
        QFETCH(QVariantList, values);
        RowNode root({kOffset});
        RowNode *upper = root.addNewChildMatchRootDataSize();
        RowNode *group = upper->addNewChildMatchRootDataSize();
        for (const QVariant &value : values)
            group->addNewChildMatchRootDataSize()->setDataAt(kOffset, value);
        ozm::rn::GroupSummary summaries;
        const ColumnFriendlyName::FriendlyNameStruct description{{}, {}, decimals, summary};
        summaries.set(kOffset, description);
        summaries.set(u"not in the tree"_s, description);
        summaries.update(&root);
        QTEST(description.valueToString(group->getDataAt(kOffset)), "shown");
        QVERIFY2(!root.getDataAt(kOffset).isValid(), "the root stays as it is");
        QCOMPARE(upper->getDataAt(kOffset).isValid(), group->getDataAt(kOffset).isValid());
    }

    void offeredCodes()
    {
        const auto codes =
            AbstractTemplateEditor::extraDataShortCodes({Run::staticMetaObject, Study::staticMetaObject});
        QStringList names;
        for (const ShortCode &code : codes)
            names.append(code.code + code.name + code.extraText);
        QCOMPARE(names, QStringList({u"[RetentionTime]RetentionTime"_s, u"[Noise]Noise"_s,
                                     u"[CalcMr]CalcMr"_s, u"[Instrument]Instrument"_s,
                                     u"[Operators]Operators"_s, u"[Charge]Charge"_s, u"[Reads]Reads"_s}));
        QCOMPARE(codes.at(2).toolTip, ColumnFriendlyName::toolTip(kCalcMr));
        QCOMPARE(codes.at(0).toolTip, u"RetentionTime"_s);
    }

    void reports()
    {
        const RowNode row = peptide(u"T12"_s, 2, 1045.53421);
        const QString text = u"[Name] [Nope] <script>var list = [0];\n'[Gone]' + '[Name]'</script>"
                             "<script>1;\n\nnull.x</script>[a[Nope]<script>throw 'no'</script>"_s;
        const ozm::TemplateReport report = AbstractTemplateEditor::decodeTECReport(text, &row, {});
        QCOMPARE(report.text, AbstractTemplateEditor::decodeTEC(text, &row, {}));
        QStringList codes;
        for (const ozm::UnresolvedCode &code : report.unresolved) {
            QCOMPARE(QStringView(text).sliced(code.position, code.code.size()), code.code);
            codes.append(code.code);
        }
        QCOMPARE(codes, QStringList({u"[Nope]"_s, u"[Gone]"_s, u"[Nope]"_s}));
        QCOMPARE(report.failed.size(), 2);
        const ozm::FailedScript &failed = report.failed.constFirst();
        QCOMPARE(QStringView(text).sliced(failed.position, failed.code.size()), failed.code);
        QCOMPARE(failed.line, 3);
        QVERIFY(failed.message.contains(u"TypeError"_s));
        QCOMPARE(report.failed.constLast().message, u"no"_s);

        const QString stored = u"<!-- ä -->"_s + wrapped(text) + u"tail"_s;
        const ozm::TemplateReport inside = AbstractTemplateEditor::decodeTECReport(stored, {});
        QCOMPARE(stored.indexOf(u"[Name]"_s), inside.unresolved.constFirst().position);
        QCOMPARE(stored.indexOf(u"1;\n"_s), inside.failed.constFirst().position);
        ozm::test::expectWarning(u"Cannot decode template "_s);
        for (const ozm::TemplateReport &none :
             {AbstractTemplateEditor::decodeTECReport(text, {}),
              AbstractTemplateEditor::decodeTECReport(text, static_cast<RowNode *>(nullptr), {}),
              AbstractTemplateEditor::decodeTECReport(text, QList<RowNode *>(), {})}) {
            QVERIFY(none.text.isEmpty() && none.unresolved.isEmpty() && !none.isComplete());
            QCOMPARE(none.error.errorCode(), ozm::ErrorCode::BadParameter);
        }
    }

    void valuesThatBringInCodes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("told");
        QTest::newRow("none") << u"[Charge] [Mass] [Name]"_s << QString();
        QTest::newRow("one") << u"x [Comment] [Name]"_s << u"[Name] by [Comment] at 2"_s;
        QTest::newRow("not an earlier one") << u"[Name] [Sequence]"_s << QString();
        QTest::newRow("by halves") << u"[Charge] [Format]Name] [Name]"_s << u"[Name] by [Format] at 9"_s;
        QTest::newRow("by a script") << u"[Name]<script>inputParameters['[Comment]']</script> [Comment]"_s
                                     << u"[Name] by  at 14; [Name] by [Comment] at 52"_s;
        QTest::newRow("what a script spells") << u"<script>'[Name]'</script>"_s << QString();
        QTest::newRow("escaped")
            << u"[Name]<script>templateEditorCore.escapeHtml(inputParameters['[Comment]'])</script>"_s
            << QString();
    }
    void valuesThatBringInCodes()
    {
        QFETCH(QString, text);
        Notes notes;
        RowNode row = peptide(u"T12"_s, 2, 1045.5);
        const auto report =
            AbstractTemplateEditor::decodeTECReport(text, &row, {{Notes::staticMetaObject, &notes}});
        QStringList told;
        for (const ozm::BroughtInCode &code : report.broughtIn)
            told.append(u"%1 by %2 at %3"_s.arg(code.code, code.by).arg(code.position));
        QTEST(told.join(u"; "_s), "told");
        QCOMPARE(report.isComplete(), told.isEmpty());
    }

    // A text may lie in a buffer that is not its own, and that changes.
    void textsInForeignBuffers()
    {
        const RowNode row = peptide(u"T12"_s, 2, 1045.5);
        std::array buffer{u'1', u'[', u'N', u'a', u'm', u'e', u']'};
        const QString text =
            QString::fromRawData(reinterpret_cast<const QChar *>(buffer.data()), buffer.size());
        QCOMPARE(AbstractTemplateEditor::decodeTEC(text, &row, {}), u"1T12"_s);
        buffer.front() = u'2';
        QCOMPARE(AbstractTemplateEditor::decodeTEC(text, &row, {}), u"2T12"_s);
    }

    void textsForReaders()
    {
        QCOMPARE(AbstractTemplateEditor::withoutScriptTags(
                     u"a <SCRIPT>42</script> b</Script><b>c</b><script >d"_s),
                 u"a 42 b<b>c</b><script >d"_s);
    }
};

QTEST_MAIN(TestTemplateDecoding)
#include "tst_templatedecoding.moc"
