#include "support/StrictTest.h"

#include <ozm_common_stable/Error.h>
#include <ozm_common_stable/Result.h>

#include <QProcess>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;
using ozm::Result;

namespace {

/// Counts copies, to see that results are moved.
struct Counted
{
    Counted() = default;
    Counted(const Counted &other)
        : copies(other.copies + 1)
    {}
    Counted(Counted &&) noexcept = default;
    Counted &operator=(const Counted &) = default;
    Counted &operator=(Counted &&) noexcept = default;
    int copies = 0;
};

const QString kWrongSide = u"--wrong-side"_s;

int readWrongSide(const QString &side)
{
    if (side == u"value"_s)
        return Result<int>(Error(ErrorCode::Failed)).value();
    if (side == u"error"_s)
        return static_cast<int>(Result<int>(0).error().errorCode());
    return Result<int>(Error()).hasError() ? 0 : 1;
}

Error failAndCatch()
{
    return Error(ErrorCode::FileAccess, u"No such file"_s).ecatch(OZM_HERE);
}

} // namespace

class TestError : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void success()
    {
        Error error;
        QVERIFY(!error.hasError());
        QCOMPARE(error.errorCode(), ErrorCode::NoError);
        QVERIFY(error.errorMessage().isEmpty());
        QVERIFY2(error.ecatch(OZM_HERE).places().isEmpty(), "there is nothing to catch");
        error.addWarning(u"slow disk"_s);
        QVERIFY2(!error.hasError(), "a warning is no error");
        QCOMPARE(error.warnings(), QStringList{u"slow disk"_s});
    }

    void placesAreRelativeAndKeepTheirOrder()
    {
        Error error = failAndCatch();
        error.ecatch(u"published"_s, u"ozm_widgets/src/Published"_s, 30);
        const auto places = error.places();
        QCOMPARE(places.size(), 2);
        QCOMPARE(places.at(0).path, u"tests/ozm_common_stable/tst_error.cpp"_s);
        QVERIFY(places.at(0).function.contains("failAndCatch"_L1));
        QVERIFY(places.at(0).line > 0);
        QCOMPARE(places.at(1).toString(), u"ozm_widgets/src/Published:30 (published)"_s);
    }

    void copiesAreIndependent()
    {
        const Error first = failAndCatch();
        Error second = first;
        second.addWarning(u"retried"_s).ecatch(OZM_HERE);
        QCOMPARE(first.places().size(), 1);
        QVERIFY(first.warnings().isEmpty());
        QVERIFY(!(first == second));
        QCOMPARE(failAndCatch(), first);
    }

    void codesHaveTexts_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::newRow("success") << 0 << u"No error"_s;
        QTest::newRow("csv") << 1 << u"Operation failed"_s;
        QTest::newRow("bad path") << 2 << u"Bad parameter"_s;
        QTest::newRow("file") << 4 << u"File access failed"_s;
        QTest::newRow("from a newer library") << 99 << u"Error 99"_s;
    }
    void codesHaveTexts()
    {
        QFETCH(int, code);
        QTEST(Error(static_cast<ErrorCode>(code)).errorString(), "text");
    }

    void resultHoldsOneSide()
    {
        const Result<int> good = 7;
        QVERIFY(good && !good.hasError());
        QCOMPARE(good.value(), 7);
        QCOMPARE(good.valueOr(1), 7);

        const Result<int> bad = failAndCatch();
        QVERIFY(!bad && bad.hasError());
        QCOMPARE(bad.error().errorCode(), ErrorCode::FileAccess);
        QCOMPARE(bad.valueOr(1), 1);
    }

    // Runs this program again, since the failure to be seen ends it.
    void resultReadOnTheWrongSideStops_data()
    {
        QTest::addColumn<QString>("side");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("value") << u"value"_s << QByteArray("value() of a result that holds an error");
        QTest::newRow("error") << u"error"_s << QByteArray("error() of a result that holds a value");
#ifndef QT_NO_DEBUG
        QTest::newRow("no error") << u"none"_s << QByteArray("made from an Error that holds no error");
#endif
    }
    void resultReadOnTheWrongSideStops()
    {
        QFETCH(QString, side);
        QFETCH(QByteArray, message);
        QProcess program;
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QCoreApplication::applicationFilePath(), {kWrongSide, side});
        QVERIFY(program.waitForFinished());
        QVERIFY(program.exitStatus() == QProcess::CrashExit || program.exitCode() != 0);
#ifndef QT_NO_DEBUG
        QVERIFY2(program.readAll().contains(message), "says what was wrong");
#endif
    }

    void resultMovesItsValue()
    {
        Result<Counted> result = Counted();
        QCOMPARE(std::move(result).value().copies, 0);
        Result<std::unique_ptr<int>> pointer = std::make_unique<int>(3);
        const std::unique_ptr<int> taken = std::move(pointer).value();
        QCOMPARE(*taken, 3);
    }
};

// In a release build the wrong side throws, and that it ends the program is what is to be seen.
// NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == kWrongSide)
        return readWrongSide(QCoreApplication::arguments().value(2));
    TestError test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_error.moc"
