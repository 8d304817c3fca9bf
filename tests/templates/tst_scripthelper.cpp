// Scripts in a process of their own. That they give the same as in the program is held by tst_templatescripts.

#include "support/StrictTest.h"
#include "templates/ScriptFixture.h"

#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/TECWrapper.h>
#include <ozm_widgets/WholeFile.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QKeySequence>
#include <QTemporaryDir>
#include <QThread>

#include <memory>

#ifdef Q_OS_LINUX
#include <csignal>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace ozm::test;

namespace {

using Values = QMap<QString, QVariant>;

#ifdef Q_OS_LINUX
/// The only child of this process.
pid_t helperProcess()
{
    QFile children(u"/proc/self/task/%1/children"_s.arg(::getpid()));
    return children.open(QIODevice::ReadOnly) ? children.readAll().simplified().toInt() : 0;
}

/// The time that a process has run, in ticks of the system.
qint64 processorTicks(pid_t process)
{
    QFile file(u"/proc/%1/stat"_s.arg(process));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(13).toLongLong() : 0;
}
#endif

} // namespace

class TestScriptHelper : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    // All kinds of values, told by a script in each of the places.
    void valuesCross()
    {
        const Values values{
            {u"bool"_s, true},
            {u"int"_s, -3},
            {u"uint"_s, 4000000000U},
            {u"long"_s, 1LL << 40},
            {u"double"_s, 0.1},
            {u"nan"_s, qQNaN()},
            {u"float"_s, 2.5F},
            {u"null"_s, QVariant()},
            {u"nothing"_s, QVariant::fromValue(nullptr)},
            {u"text"_s, u"µ \"<"_s},
            {u"nulltext"_s, QString()},
            {u"letter"_s, QChar(u'x')},
            {u"texts"_s, QStringList{u"a"_s, u"b"_s}},
            {u"bytes"_s, QByteArray("bytes")},
            {u"day"_s, QDate(2026, 2, 3)},
            {u"hour"_s, QTime(4, 5, 6)},
            {u"moment"_s, QDateTime(QDate(2026, 2, 3), QTime(4, 5), Qt::UTC)},
            {u"list"_s, QVariantList{1, u"b"_s, QDate(2026, 2, 3), QVariantList{2.5}}},
            {u"map"_s, QVariantMap{{u"a"_s, 1}, {u"b"_s, QVariantMap{{u"c"_s, QStringList{u"d"_s}}}}}},
            {u"numbers"_s, QVariant::fromValue(QList<int>{1, 2})},
            {u"enumerator"_s, QVariant::fromValue(Qt::AlignRight)},
            {u"json"_s, QJsonObject{{u"a"_s, QJsonArray{1, true}}}},
            {u"address"_s, QUrl(u"https://example.org/a b"_s)},
        };
        const QString tell =
            u"Object.keys(inputParameters).map(name => { const v = inputParameters[name];"
            "return [name, typeof v, v, Array.isArray(v), JSON.stringify(v)].join(' ') }).join('\\n')"_s;
        QStringList told;
        for (const Place place : kPlaces) {
            const Placed placed(place);
            told.append(TemplateEditorJSEngine().evaluateJS(tell, values));
        }
        QVERIFY2(told.constFirst().contains(u"text string µ"_s), qPrintable(told.constFirst()));
        QCOMPARE(told.constLast().split(u'\n'), told.constFirst().split(u'\n'));
    }

    // Objects and an application's own values do not. Scripts that do not use them run all the same.
    void valuesThatStay()
    {
        QObject giver;
        giver.setObjectName(u"giver"_s);
        const Values values{{u"o"_s, QVariant::fromValue<QObject *>(&giver)},
                            {u"list"_s, QVariant::fromValue(QObjectList{&giver})},
                            {u"own"_s, QVariant::fromValue(QKeySequence(u"Ctrl+C"_s))}};
        const Placed placed(Place::HelperProcess);
        TemplateEditorJSEngine engine;
        for (const char *use : {"inputParameters.o.objectName", "'' + inputParameters.own",
                                "inputParameters.list[0] in {}", "inputParameters.o.objectName = 'x'"}) {
            const QString text = engine.evaluateJS(
                u"try { "_s + QLatin1StringView(use) + u" } catch (e) { e.message }"_s, values);
            QVERIFY2(text.endsWith(u"cannot be used by scripts in a process of their own."_s),
                     qPrintable(text));
        }
        QCOMPARE(engine.evaluateJS(u"typeof inputParameters.o + inputParameters.list.length"_s, values),
                 u"object1"_s);
        QCOMPARE(giver.objectName(), u"giver"_s);
    }

#ifdef Q_OS_LINUX
    void scriptsThatTakeTheirProcessDown_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("isLate");
        const auto row = [](const char *code, bool isLate) {
            QTest::newRow(code) << QString::fromLatin1(code) << isLate;
        };
        row("[].includes.call({ length: 2 ** 53 - 1 }, 1)", true);
// A sanitizer's process is not bounded in its memory.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        row("let a = []; for (;;) a.push(new Array(1e5).fill(1))", false);
        row("new Array(1e8).fill(0).length", false);
        row("let s = 'x'; for (;;) s += s + s.length", false);
        row("let a = []; for (let i = 0; i < 1e6; ++i) a = [a]; JSON.stringify(a)", false);
        row("let a = new Proxy([], {}); for (let i = 0; i < 1e6; ++i) a = new Proxy(a, {}); a.x", false);
#endif
    }
    void scriptsThatTakeTheirProcessDown()
    {
        QFETCH(QString, code);
        QFETCH(bool, isLate);
        const Placed placed(Place::HelperProcess);
        const Deadline deadline(isLate ? 30ms : 60s);
        TemplateEditorJSEngine::setHelperMemory(200 << 20);
        if (!isLate)
            ozm::test::expectWarning(u"The process that runs scripts has ended. It may take up to 200 MiB"_s);
        const auto decoded = [](const QString &text) {
            return AbstractTemplateEditor::decodeTECReport(TECWrapper::wrapTEC(text), {});
        };
        const ozm::TemplateReport report = decoded(piece(u"1"_s) + piece(code) + piece(u"1 + 1"_s));
        QCOMPARE(report.text, piece(u"1"_s) + piece(code) + piece(u"2"_s));
        QCOMPARE(report.failed.size(), 2);
        QCOMPARE(report.scriptError.hasError(), !isLate);
        QCOMPARE(report.failed.constLast().message,
                 isLate ? u"The script did not end in time."_s : report.scriptError.errorMessage());
        QCOMPARE(decoded(piece(u"6 * 7"_s)).text, piece(u"42"_s));
    }

    // While it is idle, nobody notices; in the middle of a script, that script fails.
    void helpersKilledByOthers()
    {
        const Placed placed(Place::HelperProcess);
        const Deadline deadline(60s);
        TemplateEditorJSEngine engine;
        QCOMPARE(engine.evaluateJS(u"6 * 7"_s, {}), u"42"_s);
        QVERIFY(::kill(helperProcess(), SIGKILL) == 0);
        QCOMPARE(engine.evaluateJS(u"6 * 7"_s, {}), u"42"_s);
        const pid_t helper = helperProcess();
        const qint64 idle = processorTicks(helper);
        const std::unique_ptr<QThread> killer(QThread::create([helper, idle] {
            while (processorTicks(helper) < idle + 5)
                QThread::yieldCurrentThread();
            ::kill(helper, SIGKILL);
        }));
        killer->start();
        ozm::test::expectWarning(u"The process that runs scripts has ended."_s);
        QCOMPARE(engine.evaluateJS(u"for (;;) {}"_s, {}), u"for (;;) {}"_s);
        killer->wait();
        QCOMPARE(engine.evaluateJS(u"6 * 7"_s, {}), u"42"_s);
    }

    void helpersThatDoNotServe_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QString>("error");
        QTest::newRow("missing") << QByteArray() << u"was not found. It should be here: %1"_s;
        QTest::newRow("not a program")
            << QByteArray("text") << u"\"%1\", which runs scripts, cannot be started"_s;
        QTest::newRow("of another version")
            << QByteArray("#!/bin/sh\nprintf '\\0\\0\\0\\010ozmS\\0\\0\\0\\143'; read line\n")
            << u"\"%1\", which runs scripts, is of another version: 99 instead of 2."_s;
        QTest::newRow("another program")
            << QByteArray("#!/bin/sh\nyes") << u"\"%1\" was started to run scripts, and does not answer."_s;
        QTest::newRow("ends at once")
            << QByteArray("#!/bin/sh\n") << u"\"%1\" was started to run scripts, and does not answer."_s;
    }
    void helpersThatDoNotServe()
    {
        QFETCH(QByteArray, program);
        QFETCH(QString, error);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"helper"_s);
        if (!program.isNull()) {
            QVERIFY(!ozm::writeWhole(path, program).hasError());
            QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
        }
        const Placed placed(Place::HelperProcess);
        TemplateEditorJSEngine::setHelperProgram(path);
        ozm::test::expectWarning(error.arg(path));
        const QString text = TECWrapper::wrapTEC(piece(u"6 * 7"_s));
        const ozm::TemplateReport report = AbstractTemplateEditor::decodeTECReport(text, {});
        QCOMPARE(report.text, piece(u"6 * 7"_s));
        QVERIFY2(report.scriptError.errorMessage().contains(error.arg(path)),
                 qPrintable(report.scriptError.errorMessage()));
        TemplateEditorJSEngine::setHelperProgram({});
        QCOMPARE(AbstractTemplateEditor::decodeTECReport(text, {}).text, piece(u"42"_s));
    }
#endif
};

QTEST_MAIN(TestScriptHelper)
#include "tst_scripthelper.moc"
