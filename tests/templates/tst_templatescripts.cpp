#include "support/StrictTest.h"
#include "templates/ScriptFixture.h"

#include "support/PluginLoader.h"
#include "templates/scripts/ScriptContainment.h"
#include "templates/scripts/ScriptRealm.h"

#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/TECWrapper.h>
#include <ozm_widgets/TemplateEditorJSEngine.h>
#include <ozm_widgets/TemplateEditorJSFileReader.h>

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QWidget>

#include <chrono>
#include <memory>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace ozm::test;

namespace {

using Values = QMap<QString, QVariant>;

const Values kValues{{u"[Name]"_s, u"T12"_s}, {u"[Mass]"_s, u"1045.5342"_s}};

/// Gives objects that have no parent.
class Giver : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject *kept READ kept CONSTANT)

public:
    Giver() { setObjectName(u"giver"_s); }
    [[nodiscard]] QObject *kept() { return &m_kept; }
    Q_INVOKABLE QObject *make()
    {
        wasMade = true;
        made = new QObject;
        made->setObjectName(u"made"_s);
        return made;
    }
    Q_INVOKABLE QString nameOf(QObject *object) { return object ? object->objectName() : QString(); }

    bool wasMade = false;
    QPointer<QObject> made;

private:
    QObject m_kept;
};

/// A site's library in the place of the application's, for as long as it lives.
class SiteLibrary
{
public:
    SiteLibrary(const QString &path, const QByteArray &content)
        : m_path(path)
    {
        QFile::rename(m_path, m_path + u".own"_s);
        QFile file(m_path);
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
    }
    ~SiteLibrary()
    {
        QFile::remove(m_path);
        QFile::rename(m_path + u".own"_s, m_path);
    }
    Q_DISABLE_COPY_MOVE(SiteLibrary)

private:
    const QString m_path;
};

/// Where and why a script fails that is decoded by itself.
QString failureOf(const QString &code, Place place)
{
    const Placed placed(place);
    const ozm::TemplateReport report =
        AbstractTemplateEditor::decodeTECReport(TECWrapper::wrapTEC(piece(code)), {});
    return report.failed.isEmpty() ? QString()
                                   : QString::number(report.failed.constFirst().line) + u": "_s +
                                         report.failed.constFirst().message;
}

/// Scripts that try to be noticed by other templates...
const QStringList kDisturbers{
    u"left = 1; 'd'"_s,
    u"var left = 1; 'd'"_s,
    u"function left() {}; 'd'"_s,
    u"let left = 1; 'd'"_s,
    u"{ let left = 1 } left = 2; 'd'"_s,
    u"for (left of [1, 2]) {}; 'd'"_s,
    u"{ let left } for (left of [1, 2]) {}; 'd'"_s,
    u"let a = 1; { let left = 1 } a\n++left; 'd'"_s,
    u"this.left = 1; 'd'"_s,
    u"Array.prototype.map = function () { return ['left'] }; 'd'"_s,
    u"[]['__proto__'].join = () => 'left'; 'd'"_s,
    u"[]['con' + 'structor']['proto' + 'type'].push('left'); 'd'"_s,
    u"Object['getPrototypeOf']([]).push('left'); 'd'"_s,
    u"Object['assign'](Math, { round: () => 'left' }); 'd'"_s,
    u"Math.round = () => 'left'; 'd'"_s,
    u"Math['floor'] = () => 'left'; 'd'"_s,
    u"(() => 0)['constructor']('left = 1')(); 'd'"_s,
    u"1..constructor.prototype.toFixed = () => 'left'; 'd'"_s,
    u"if (1) /x\"/.test('') ; left = 1; \"/\"; 'd'"_s,
    u"`${(left = 1)}`; 'd'"_s,
    u"`${'}'}` + (left = 1); 'd'"_s,
    u"({ set x(v) { left = v } }).x = 1; 'd'"_s,
    u"undefined ? Math : Math.max = () => 'left'; 'd'"_s,
    u"true ? (() => { String.prototype.trim = () => 'left' })() : 0; 'd'"_s,
    u"templateEditorCore.number = () => 'left'; 'd'"_s,
    u"templateEditorCore.left = 1; delete templateEditorCore.mass; 'd'"_s,
    u"templateEditorCore = null; 'd'"_s,
    u"Object.freeze(inputParameters); 'd'"_s,
    u"Object.defineProperty(this, 'inputParameters', { value: 'left', configurable: false }); 'd'"_s,
    u"inputParameters['[Name]'] = 'left'; 'd'"_s,
    u"Object.freeze(Object.prototype); Object.preventExtensions(this); 'd'"_s,
    u"Object.defineProperty(Object.prototype, 'left', { get() { return 1 } }); 'd'"_s,
    u"eval('var left = 1'); 'd'"_s,
    u"/(left)/.exec('left'); 'd'"_s,
    u"'left'.replace(/l(.)/, 'x'); 'd'"_s,
    u"String = () => 'left'; 'd'"_s,
    u"Symbol.for('left').toString(); Error.left = 1; Error.prototype.toString = () => 'left'; throw 1"_s,
    u"undefined = 1; NaN++; ++Math; 'd'"_s,
    u"let stack = []; (f => f(f))(f => { stack.push(1); f(f) }); 'd'"_s,
    u"((Array)).left = 1; [Array][0].left = 1; 'd'"_s,
    u"let i = 0; i = '__proto__'; [][i].push('left'); 'd'"_s,
    u"for (let i = 0, n = 1; i < 1; ++i) [][i = '__proto__'].push('left'), i = 2"_s,
    u"if (1) { function left() {} } 'd'"_s,
    u"for (var left of [1, 2]) {}"_s,
    u"let f = function () { left = 1; return 'd' }; f()"_s,
    u"var left = 1; (function () { var left = 2 })(); throw left"_s,
    u"var left = 7\nif (left)\nleft"_s,
    u"templateEditorCore.in / (left = 1) / 2; 'd'"_s,
};
/// ... and what would show it.
const QStringList kObservers{
    u"typeof left + Object.keys(this).length"_s,
    u"[1, 2].map(x => x + 1).join('-') + [].length + [][0]"_s,
    u"Math.round(1.5) + Math.max(1, 2) + Math.floor(1.5)"_s,
    u"templateEditorCore.number(inputParameters['[Mass]'], 1) + inputParameters['[Name]']"_s,
    u"typeof templateEditorCore.left + typeof templateEditorCore.mass"_s,
    u"String(12) + ' x '.trim() + (1.25).toFixed(1) + ({}).left"_s,
    u"RegExp.$1 + RegExp.lastMatch"_s,
    u"let o = {}; o.toString = () => 'own'; o.extra = 1; String(o) + o.extra"_s,
    u"fresh = 1; typeof fresh"_s,
    u"String(new Error('plain')) + Error.left + Array.left"_s,
};

} // namespace

class TestTemplateScripts : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void pieces_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("codes");
        QTest::newRow("none") << u"a < b"_s << QStringList();
        QTest::newRow("nested") << u"<script>a<script>b</script>c</script>d"_s
                                << QStringList{u"a"_s, u"b"_s, u"c"_s};
        QTest::newRow("any letter case") << u"<SCRIPT>1+1</Script>"_s << QStringList{u"1+1"_s};
        QTest::newRow("stray end") << u"</script>x<script>a</script>"_s << QStringList{u"a"_s};
        QTest::newRow("empty") << u"<script></script><script> </script>"_s << QStringList{u" "_s};
        QTest::newRow("never ended") << u"<script>a</script><script>b"_s << QStringList{u"a"_s};
        QTest::newRow("ended twice") << u"<script>a</script>b</script>c"_s << QStringList{u"a"_s};
        QTest::newRow("begun twice") << u"<script>a<script>b"_s << QStringList{u"a"_s};
        QTest::newRow("no tag") << u"<script >a</script>"_s << QStringList();
    }
    void pieces()
    {
        QFETCH(QString, text);
        TemplateEditorJSCodeReader reader;
        QVERIFY(reader.isValid());
        QTEST(reader.createAndReturnAllScriptElements(text), "codes");
    }

    void results_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("result");
        QTest::newRow("number") << u"6 * 7"_s << u"42"_s;
        QTest::newRow("value") << u"inputParameters['[Name]']"_s << u"T12"_s;
        QTest::newRow("undefined") << u"inputParameters['[Gone]']"_s << u"undefined"_s;
        QTest::newRow("nothing") << u"null"_s << u"null"_s;
        QTest::newRow("list") << u"[1, [2, 3]]"_s << u"1,2,3"_s;
        QTest::newRow("own conversion") << u"({ toString() { return 'me' } })"_s << u"me"_s;
        QTest::newRow("caught") << u"try { throw 1 } catch (e) {}; 'ok'"_s << u"ok"_s;
        QTest::newRow("result is an error") << u"new Error('x')"_s << QString();
        QTest::newRow("error thrown") << u"null.x"_s << QString();
        QTest::newRow("text thrown") << u"throw 'x'"_s << QString();
        QTest::newRow("nothing thrown") << u"throw undefined"_s << QString();
        QTest::newRow("object thrown") << u"throw { toString() { throw 1 } }"_s << QString();
        QTest::newRow("syntax") << u"1 +"_s << QString();
        QTest::newRow("conversion throws") << u"({ toString() { throw 7 } })"_s << QString();
        QTest::newRow("conversion throws an error")
            << u"({ toString() { throw new Error('c') } })"_s << QString();
        QTest::newRow("no conversion") << u"Object.create(null)"_s << QString();
        QTest::newRow("conversion is changed")
            << u"String = () => 'mine'; ({ toString: () => 'own' })"_s << u"own"_s;
        QTest::newRow("list in itself") << u"let a = [1]; a.push(a); a"_s << QString();
        QTest::newRow("list in itself, as a text")
            << u"let a = [1]; a.push({ toString: () => a.toLocaleString() }); a + ''"_s << QString();
        QTest::newRow("deep list") << u"let a = []; for (let i = 0; i < 1e5; ++i) a = [a]; a"_s << QString();
        QTest::newRow("long list") << u"new Array(1e8)"_s << QString();
        QTest::newRow("list in two places") << u"let a = [1, 2]; [a, [a, [3].join()]]"_s << u"1,2,1,2,3"_s;
        QTest::newRow("too deep") << u"(function f() { f() })()"_s << QString();
    }
    void results()
    {
        QFETCH(QString, code);
        QFETCH(QString, result);
        const QString expected = result.isNull() ? code : result;
        for (const Place place : kPlaces) {
            const Placed placed(place);
            TemplateEditorJSEngine engine;
            QVERIFY(engine.isValid());
            QCOMPARE(engine.evaluateJS(code, kValues), expected);
            QCOMPARE(engine.evaluateJS(u"typeof inputParameters + this.hasOwnProperty('left')"_s, {}),
                     u"objectfalse"_s);
            TemplateEditorJSCodeReader reader;
            QCOMPARE(reader.readAsString(u"a"_s + piece(code) + u"b"_s, kValues),
                     u"a"_s + piece(expected) + u"b"_s);
        }
        QCOMPARE(failureOf(code, Place::HelperProcess), failureOf(code, Place::InProgram));
    }

    // Within a template, what a piece leaves behind is seen by those before it.
    void piecesRunFromTheLastToTheFirst()
    {
        TemplateEditorJSCodeReader reader;
        for (const Place place : kPlaces) {
            const Placed placed(place);
            QCOMPARE(reader.readAsString(piece(u"n + 1"_s) + piece(u"n = 41"_s), {}),
                     piece(u"42"_s) + piece(u"41"_s));
        }
    }

    void library_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QString>("seen");
        QTest::newRow("usable") << QByteArray("({ twice: x => 2 * x, µ: 1 })") << QString() << u"42"_s;
        QTest::newRow("missing") << QByteArray() << u"Can't read file"_s << QString();
        QTest::newRow("empty") << QByteArray("") << u"File content is empty!"_s << QString();
        QTest::newRow("syntax") << QByteArray("({") << u"Details:"_s << QString();
        QTest::newRow("throws an error") << QByteArray("null.x") << u"Details:"_s << QString();
        QTest::newRow("throws a text") << QByteArray("throw 'x'") << u"Details:"_s << QString();
    }
    void library()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, warning);
        QFETCH(QString, seen);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"library.js"_s);
        if (!content.isNull()) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        for (const Place place : kPlaces) {
            const Placed placed(place);
            if (!warning.isNull())
                ozm::test::expectWarning(
                    warning == u"Details:"_s
                        ? u"File content not valid. Js Engine will no be used! Details:"_s
                        : warning);
            TemplateEditorJSEngine engine(path);
            QCOMPARE(engine.isValid(), warning.isNull());
            const QString code = u"templateEditorCore.twice(21)"_s;
            QCOMPARE(engine.evaluateJS(code, {}), seen.isNull() ? code : seen);
            QCOMPARE(engine.evaluateJS(u"6 * 7"_s, {}), u"42"_s);
        }
    }

    // 200 templates, decoded in several orders by one reader, against each decoded by a reader of its own.
    void templatesDoNotDisturbEachOther()
    {
        QStringList templates;
        QRandomGenerator random(11);
        for (int index = 0; index < 200; ++index) {
            QString text;
            for (int count = 1 + random.bounded(2); count > 0; --count)
                text += piece(kDisturbers.at((index + count * 7) % kDisturbers.size()));
            if (index % 3 != 0)
                text += piece(kObservers.at(index % kObservers.size())) + u"[Name]"_s;
            templates.append(index % 2 == 0 ? text : piece(kObservers.at(index / 2 % kObservers.size())));
        }
        QStringList alone;
        for (const QString &text : std::as_const(templates)) {
            TemplateEditorJSCodeReader reader;
            alone.append(reader.readAsString(text, kValues));
        }
        TemplateEditorJSCodeReader reader;
        QList<qsizetype> order(templates.size());
        std::iota(order.begin(), order.end(), 0);
        for (int round = 0; round < 5; ++round) {
            const Placed placed(round < 4 ? Place::InProgram : Place::HelperProcess);
            std::shuffle(order.begin(), order.end(), random);
            for (const qsizetype index : std::as_const(order))
                QCOMPARE(reader.readAsString(templates.at(index), kValues), alone.at(index));
        }
    }

    // Usual scripts of reports share an engine; scripts that a later one could notice do not.
    void containment_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("contained");
        for (const char *code :
             {"inputParameters['[Name]'] + 1", "templateEditorCore.mass(inputParameters[\"[Mass]\"])",
              "const rows = ['a', 'b'].map(x => [x, x.length]); templateEditorCore.table(rows)",
              "let out = ''; for (const item of templateEditorCore.list('a;b')) { out += item; } out",
              "let n = 0; for (let i = 0; i < 3; i++) { n += i / 2; } `${n} and ${`x${1}`}`",
              "if (Number('1') > 0) { 'yes' } else { 'no' } // \"'",
              "try { null.length } catch (e) { e.message }", "[1, 2].reduce((sum, x) => sum + x)",
              "({ a: 1, 'b': 2 })", "var a = 1\nvar b = [2, 3]\nfor (var i = 0; i < 2; ++i) a += b[i]\na",
              "function twice(x) { return 2 * x } twice(3)", "new Date(2026, 0, 2).getFullYear()",
              "inputParameters['[Name]'].replace(/[/\\]]+/g, function (found) { return found.length })"})
            QTest::newRow(code) << QString::fromLatin1(code) << true;
        for (const QString &code : kDisturbers) {
            // These are held back by the language, by a function around them, or by what nobody can see.
            static const QRegularExpression heldBack(u"^(let (left|stack)|var|function|'left'|/)"_s);
            if (!code.contains(heldBack))
                QTest::newRow(qPrintable(code)) << code << false;
        }
    }
    void containment()
    {
        QFETCH(QString, code);
        QTEST(ozm::readScript(code).isContained, "contained");
    }

    void objectAccess_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("full");
        QTest::addColumn<QString>("readOnly");
        const QString refused = u"This object can only be read."_s;
        QTest::newRow("read") << u"o.objectName"_s << u"giver"_s << u"giver"_s;
        QTest::newRow("set") << u"o.objectName = 'x'; o.objectName"_s << u"x"_s << refused;
        QTest::newRow("call") << u"o.make().objectName"_s << u"made"_s << refused;
        QTest::newRow("set of what was given") << u"o.kept.objectName = 'y'"_s << u"y"_s << refused;
        QTest::newRow("in a list") << u"inputParameters['[list]'][0].objectName"_s << u"giver"_s
                                   << u"giver"_s;
        QTest::newRow("the same") << u"o === inputParameters['[list]'][0]"_s << u"true"_s << u"true"_s;
        QTest::newRow("as an argument") << u"o.nameOf(o.make())"_s << u"made"_s << refused;
        QTest::newRow("by its description")
            << u"Object.getOwnPropertyDescriptor(o, 'make').value.call(o).objectName"_s << u"made"_s
            << refused;
        QTest::newRow("by reflection") << u"Reflect.get(o, 'make')().objectName"_s << u"made"_s << refused;
        QTest::newRow("connected")
            << u"let c = 'no'; try { o.objectNameChanged.connect(() => 1); c = 'yes' } catch (e) {} c"_s
            << u"yes"_s << u"no"_s;
        QTest::newRow("by its prototype")
            << u"Object.getPrototypeOf(o) ? Object.getPrototypeOf(o).make.call(o) : 'none'"_s << QString()
            << u"none"_s;
    }
    void objectAccess()
    {
        using Access = TemplateEditorJSEngine::ObjectAccess;
        QFETCH(QString, code);
        for (const Access access : {Access::Full, Access::ReadOnly}) {
            TemplateEditorJSEngine::setObjectAccess(access);
            Giver giver;
            auto engine = std::make_unique<TemplateEditorJSEngine>();
            const auto object = QVariant::fromValue<QObject *>(&giver);
            const Values values{{u"[o]"_s, object}, {u"[list]"_s, QVariant::fromValue(QObjectList{&giver})}};
            const QString result = engine->evaluateJS(
                u"try { const o = inputParameters['[o]'];"_s + code + u"} catch (e) { e.message }"_s, values);
            QFETCH(QString, full);
            if (access == Access::ReadOnly || !full.isNull())
                QTEST(result, access == Access::Full ? "full" : "readOnly");
            engine.reset();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY2(!giver.wasMade || giver.made, "what a method gives stays the application's");
            delete giver.made;
        }
        TemplateEditorJSEngine::setObjectAccess(Access::Full);
    }

    void scriptsThatDoNotEnd_data()
    {
        QTest::addColumn<QString>("code");
        for (const char *code :
             {"while (true) {}",
              "for (;;) { try { while (true) {} } catch (e) {} }",
              "do { try { while (1) {} } finally { continue } } while (1)",
              "({ toString() { while (true) {} } })",
              "[1].map(function () { while (1) {} })",
              "let x = []; while (true) x = [x]",
              "let s = ''; for (;;) s = (s + 'x').slice(0, 10)",
              "(function () { return { valueOf() { for (;;) {} } } })() + 1",
              "new Promise(function () { for (;;) {} })",
              "eval('for (;;) {}')",
              "new Function('for (;;) {}')()",
              "JSON.stringify({ toJSON() { for (;;) {} } })",
              "[3, 1, 2].sort(function () { for (;;) {} })",
              "'x'.replace(/x/, function () { for (;;) {} })",
              "label: for (;;) { for (;;) { continue label } }",
              "(function* () { for (;;) yield 1 })().next; for (const x of (function* () { for (;;) yield "
              "1 })()) {}",
              "new Proxy({}, { get() { for (;;) {} } }).x",
              "class A { constructor() { for (;;) {} } } new A()",
              "let m = new Map(); for (let i = 0;; ++i) m.set(i % 10, i)",
              "templateEditorCore.sort([1, 2], function () { for (;;) {} })",
              "let list = [{ toString() { for (;;) {} } }]; list + ''"})
            QTest::newRow(code) << QString::fromLatin1(code);
    }
    void scriptsThatDoNotEnd()
    {
        QFETCH(QString, code);
        const Deadline deadline(30ms);
        for (const Place place : kPlaces) {
            const Placed placed(place);
            TemplateEditorJSEngine engine;
            QCOMPARE(engine.evaluateJS(code, {}), code);
            QCOMPARE(engine.evaluateJS(u"6 * 7"_s, {}), u"42"_s);
            TemplateEditorJSCodeReader reader;
            QCOMPARE(reader.readAsString(piece(code) + piece(u"1 + 1"_s), {}), piece(code) + piece(u"2"_s));
        }
    }

    // Those that another has left no time for are not run at all, and none runs on with the event loop.
    void theDeadlineIsThatOfTheDecoding()
    {
        const Deadline deadline(50ms);
        const QString late = u"for (;;) {}"_s;
        TemplateEditorJSCodeReader reader;
        QCOMPARE(reader.readAsString(piece(u"1"_s) + piece(late) + piece(u"2"_s), {}),
                 piece(u"1"_s) + piece(late) + piece(u"2"_s));
        QObject waiter;
        TemplateEditorJSEngine engine;
        const Values object{{u"o"_s, QVariant::fromValue<QObject *>(&waiter)}};
        QCOMPARE(engine.evaluateJS(u"inputParameters.o.objectNameChanged.connect(() => { for (;;) {} });"
                                   "Promise.resolve().then(() => done = 'kept').then(() => { for (;;) {} });"
                                   "1"_s,
                                   object),
                 u"1"_s);
        QCoreApplication::processEvents();
        waiter.setObjectName(u"x"_s);
        QCOMPARE(engine.evaluateJS(u"done"_s, {}), u"kept"_s);
    }

    // A site's library may read what the template's own script does not spell.
    void parametersAreSetForEveryPiece()
    {
        const QString path =
            QCoreApplication::applicationDirPath() + u"/templateEditorJSLib/TemplateEditorJSUtils.js"_s;
        const SiteLibrary site(path, "({ name: () => inputParameters['[Name]'],"
                                     "   seen: () => typeof site, "
                                     "   spoil: () => inputParameters['[Name]'] = 'x' })");
        const QString name = piece(u"templateEditorCore.name()"_s);
        for (const Place place : kPlaces) {
            const Placed placed(place);
            TemplateEditorJSCodeReader reader;
            QCOMPARE(reader.readAsString(name + piece(u"templateEditorCore.spoil()"_s) + name, kValues),
                     piece(u"T12"_s) + piece(u"x"_s) + piece(u"T12"_s));
            const QString global = piece(u"var site = 1; site"_s);
            QCOMPARE(reader.readAsString(piece(u"templateEditorCore.seen()"_s) + global, {}),
                     piece(u"number"_s) + piece(u"1"_s));
            QCOMPARE(reader.readAsString(piece(u"[1].map(site => 2) + typeof site"_s) + global, {}),
                     piece(u"2number"_s) + piece(u"1"_s));
        }
    }

    void objectsInValues()
    {
        auto object = std::make_unique<QWidget>();
        object->setObjectName(u"theirs"_s);
        const QPointer<QObject> watched(object.get());
        auto shared = QSharedPointer<QObject>::create();
        const QWeakPointer<QObject> weak(shared);
        // Keys that do not stand in the scripts, which are compared as they are.
        Values values{{u"o"_s, QVariant::fromValue<QObject *>(object.get())},
                      {u"list"_s, QVariantList{QVariant::fromValue(object.get())}},
                      {u"shared"_s, QVariant::fromValue(shared)}};
        Values inBrackets;
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            inBrackets.insert(u'[' + value.key() + u']', *value);
        values.clear();
        const QString get = u"get = name => inputParameters['[' + name + ']'];"_s;
        const QString deleting = get + u"get('o').deleteLater()"_s;
        const QString destroying = get + u"kept = get('shared'); get('list')[0].destroy()"_s;
        TemplateEditorJSCodeReader reader;
        QCOMPARE(reader.readAsString(
                     piece(deleting) + piece(destroying) + piece(get + u"get('o').objectName"_s), inBrackets),
                 piece(deleting) + piece(destroying) + piece(u"theirs"_s));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(watched);
        inBrackets.clear();
        shared.clear();
        QVERIFY2(!weak, "the script's own reference went with its template");
    }

#ifdef Q_OS_LINUX
    // The first hour of 2018-11-04 is left out in the last of the zones.
    void daysAreThoseOfTheCalendar()
    {
        const QDate day(2018, 11, 4);
        const QByteArray zone = qgetenv("TZ");
        QString shown;
        for (const char *other : {"America/Los_Angeles", "Asia/Tokyo", "America/Sao_Paulo"}) {
            qputenv("TZ", other);
            tzset();
            shown += TemplateEditorJSCodeReader().readAsString(
                piece(u"inputParameters['[Day]'].getDate() + inputParameters['[Days]'][0].getDate()"_s),
                {{u"[Day]"_s, day}, {u"[Days]"_s, QVariantList{day}}});
        }
        qputenv("TZ", zone);
        tzset();
        QCOMPARE(shown, piece(u"8"_s) + piece(u"8"_s) + piece(u"8"_s));
    }

    void memoryStaysBounded()
    {
        const auto residentMiB = [] {
            QFile file(u"/proc/self/statm"_s);
            return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').at(1).toLongLong() * 4 / 1024
                                                  : 0;
        };
        bool ok = false;
        const int asked = qEnvironmentVariableIntValue("OZM_DISTINCT_TEMPLATES", &ok);
        const int count = ok ? asked : 2000;
        TemplateEditorJSCodeReader reader;
        const QString filler = QString(u"<p>[Name] weighs</p>\n"_s).repeated(5000).left(99'900);
        qint64 before = 0;
        for (int index = 0; index < count; ++index) {
            // The cache is full long before a quarter of them is through.
            if (index == count / 4)
                before = residentMiB();
            const QString text = piece(u"1 + %1"_s.arg(index)) + filler;
            QVERIFY(reader.readAsString(text, kValues).startsWith(piece(QString::number(index + 1))));
        }
        const qint64 grown = residentMiB() - before;
        qInfo() << count << "templates; at a quarter" << before << "MiB, then grown by" << grown << "MiB";
        QVERIFY(grown < 100);
    }
#endif

    void pluginsOfOtherVersionsArePassedOver()
    {
        QTemporaryDir folder;
        const QString plugins = folder.filePath(u"ozm_widgets"_s);
        QVERIFY(QDir().mkpath(plugins));
        QVERIFY(QFile::copy(QStringLiteral(OTHER_PLUGIN), plugins + u"/a_ozm_scripts.so"_s));
        QVERIFY(QFile::copy(QStringLiteral(SCRIPTS_PLUGIN), plugins + u"/b_ozm_scripts.so"_s));
        const QStringList before = QCoreApplication::libraryPaths();
        QCoreApplication::setLibraryPaths({folder.path()});
        ozm::test::expectWarning(plugins + u"/a_ozm_scripts.so\" is passed over"_s);
        QVERIFY(ozm::loadPlugin<ozm::ScriptEngineInterface>(u"ozm_scripts"_s));
        QCoreApplication::setLibraryPaths(before);
    }

    // The examples of the reference are lines with their results behind "// ".
    void examplesOfTheReference()
    {
        QFile file(QStringLiteral(DOCS_DIR "/report-templates.md"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        const Placed placed(Place::HelperProcess);
        TemplateEditorJSEngine engine;
        int count = 0;
        static const QRegularExpression fence(u"```js\n(.*?)```"_s,
                                              QRegularExpression::DotMatchesEverythingOption);
        for (auto match = fence.globalMatch(text); match.hasNext();) {
            for (const QString &line : match.next().captured(1).split(u'\n', Qt::SkipEmptyParts)) {
                const qsizetype result = line.lastIndexOf(u" // "_s);
                QVERIFY2(result > 0, qPrintable(line));
                QCOMPARE(line + u" is "_s + engine.evaluateJS(line.first(result), kValues),
                         line + u" is "_s + line.sliced(result + 4));
                ++count;
            }
        }
        QVERIFY(count > 30);
        const QString members = engine.evaluateJS(u"Object.keys(templateEditorCore).join()"_s, {});
        for (const QString &member : members.split(u','))
            QVERIFY2(text.contains(u"templateEditorCore."_s + member + u'('), qPrintable(member));
    }
};

QTEST_MAIN(TestTemplateScripts)
#include "tst_templatescripts.moc"
