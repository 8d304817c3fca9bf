#include "support/StrictTest.h"

#include <ozm_widgets/TemplateEditorJSEngine.h>

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int kCases = 100'000;
#else
constexpr int kCases = 1'000'000;
#endif

using Values = QMap<QString, QVariant>;

/// The rule itself: one key after the other, each over all of the text.
QString inTurn(QString text, const Values &values)
{
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        text.replace(value.key(), value->typeId() == QMetaType::QStringList
                                      ? value->toStringList().join(u"; "_s)
                                      : value->toString());
    }
    return text;
}

/// One pass without asking whether it gives the same: the mistake that the comparison is there to catch.
QString rashly(const QString &text, const Values &values)
{
    QString out;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype end = text.at(at) == u'[' ? text.indexOf(u']', at) : -1;
        const auto value = end < 0 ? values.cend() : values.constFind(text.sliced(at, end + 1 - at));
        if (value == values.cend()) {
            out.append(text.at(at++));
            continue;
        }
        out.append(value->typeId() == QMetaType::QStringList ? value->toStringList().join(u"; "_s)
                                                             : value->toString());
        at = end + 1;
    }
    return out;
}

/// Texts of brackets and a few letters, so that keys meet, nest, and arise from values all the time.
class Cases
{
public:
    explicit Cases(quint32 seed)
        : m_random(seed)
    {}

    [[nodiscard]] QString word(QStringView letters, int most)
    {
        QString text(m_random.bounded(most + 1), Qt::Uninitialized);
        for (QChar &character : text)
            character = letters[m_random.bounded(static_cast<int>(letters.size()))];
        return text;
    }

    [[nodiscard]] Values values()
    {
        Values all;
        // Mostly what decoding makes, sometimes a key without brackets, or an empty one.
        const bool anyKeys = m_random.bounded(8) == 0;
        const bool anyValues = m_random.bounded(2) == 0;
        for (int count = m_random.bounded(5); count > 0; --count) {
            const QString key = anyKeys ? word(u"[]ab", 3) : u'[' + word(u"ab\n", 2) + u']';
            const QString value = word(anyValues ? u"[]ab" : u"abxy", 4);
            all.insert(key,
                       m_random.bounded(10) == 0 ? QVariant(QStringList{value, u"a"_s}) : QVariant(value));
        }
        return all;
    }

    [[nodiscard]] QString text(const Values &values)
    {
        QString all;
        for (int parts = m_random.bounded(6); parts > 0; --parts) {
            if (values.isEmpty() || m_random.bounded(2) == 0)
                all += word(u"[[]]ab\n", 4);
            else
                all += std::next(values.keyBegin(), m_random.bounded(static_cast<int>(values.size())))
                           .
                           operator*();
        }
        return all;
    }

private:
    QRandomGenerator m_random;
};

} // namespace

class TestTokenReplacement : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void stated_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Values>("values");
        QTest::addColumn<QString>("decoded");
        const Values plain{{u"[a]"_s, 1}, {u"[b]"_s, QStringList{u"x"_s, u"y"_s}}, {u"[c]"_s, QVariant()}};
        QTest::newRow("each place") << u"[a][a] [b]([c])[d][A]"_s << plain << u"11 x; y()[d][A]"_s;
        QTest::newRow("brings in a later key")
            << u"[a]"_s << Values{{u"[a]"_s, u"[b]"_s}, {u"[b]"_s, 2}} << u"2"_s;
        QTest::newRow("not an earlier one")
            << u"[b]"_s << Values{{u"[a]"_s, 1}, {u"[b]"_s, u"[a]"_s}} << u"[a]"_s;
        QTest::newRow("a later key around an earlier one")
            << u"[x[a]]"_s << Values{{u"[a]"_s, 1}, {u"[x1]"_s, u"made"_s}} << u"made"_s;
        QTest::newRow("an earlier key around a later one")
            << u"[0[a]]"_s << Values{{u"[01]"_s, u"made"_s}, {u"[a]"_s, 1}} << u"[01]"_s;
        QTest::newRow("halves from two values")
            << u"[a][b]"_s << Values{{u"[a]"_s, u"[z"_s}, {u"[b]"_s, u"]"_s}, {u"[z]"_s, 5}} << u"5"_s;
        QTest::newRow("keys without brackets")
            << u"cab"_s << Values{{u"a"_s, u"b"_s}, {u"b"_s, 1}} << u"c11"_s;
    }
    void stated()
    {
        QFETCH(QString, text);
        QFETCH(Values, values);
        TemplateEditorJSCodeReader reader;
        QTEST(reader.readAsString(text, values), "decoded");
        QCOMPARE(inTurn(text, values), reader.readAsString(text, values));
    }

    void sameAsInTurn()
    {
        TemplateEditorJSCodeReader reader;
        Cases cases(20260);
        int rashMistakes = 0;
        int changed = 0;
        for (int round = 0; round < kCases; ++round) {
            const Values values = cases.values();
            const QString text = cases.text(values);
            const QString expected = inTurn(text, values);
            if (const QString decoded = reader.readAsString(text, values); decoded != expected) {
                qInfo() << "text" << text << "values" << values;
                QCOMPARE(decoded, expected);
            }
            changed += expected != text;
            rashMistakes += rashly(text, values) != expected;
        }
        // The cases have to be such that replacing without the proof is found out, again and again.
        QVERIFY2(changed > kCases / 4, qPrintable(QString::number(changed)));
        QVERIFY2(rashMistakes > kCases / 50, qPrintable(QString::number(rashMistakes)));
    }
};

QTEST_MAIN(TestTokenReplacement)
#include "tst_tokenreplacement.moc"
