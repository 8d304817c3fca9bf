#include "support/FullDisk.h"
#include "support/StrictTest.h"
#include "support/WithoutRights.h"
#include "templates/files/WebReaderInterface.h"

#include <ozm_widgets/TECWrapper.h>
#include <ozm_widgets/TemplateAutosave.h>
#include <ozm_widgets/TemplateFile.h>

#include <QPluginLoader>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;
using namespace ozm;
using namespace ozm::test;

using Page = TemplateFile::Page;

namespace {

const QString kWrongFormat = u"Wrong template editor content format."_s;
const QString kProbe = QStringLiteral(TEMPLATE_PROBE);

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray get(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray encoded(const char *charset, const QString &text)
{
    QStringEncoder encoder(charset, QStringConverter::Flag::WriteBom);
    return encoder(text);
}

} // namespace

class TestTemplateFile : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void read_data();
    void read();
    void saysWhatIsWrong();
    void unreadable();
    void large();
    void returnsWhatWasWritten_data();
    void returnsWhatWasWritten();
    void refusesWhatCannotBeReadBack();
    void keepsTheOldFile();
    void changedOnDisk();
    void autosave();
    void autosaveSurvivesTheProgram();
    void starts_data();
    void starts();
#ifdef OZM_WITH_WEB_READER
    void readsPages_data();
    void readsPages();
    void fetchesNothing();
    void givesUpAtTheDeadline();
#endif

private:
    [[nodiscard]] QString at(const QString &name) const
    {
        return m_folder.filePath(name);
    }

    QTemporaryDir m_folder;
};

void TestTemplateFile::initTestCase()
{
    // Others may look into it, so that files deny themselves.
    QVERIFY(QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755)));
}

void TestTemplateFile::read_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("errorCode");
    QTest::addColumn<QString>("expected"); // The content, or the error's text.

    const auto good = [](const char *name, const QByteArray &bytes, const QString &content) {
        QTest::newRow(name) << bytes << 0 << content;
    };
    const auto bad = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes << 2 << kWrongFormat;
    };
    good("envelope", "<ozm_template version=\"1.0\"><p>[Näme]</p>\r\n\n</ozm_template>",
         u"<p>[Näme]</p>\r\n\n"_s);
    good("envelope of nothing", "<ozm_template version=\"1.0\"></ozm_template>", {});
    good("envelope amid text", "a<ozm_template version=\"1.0\">b</ozm_template>c", u"b"_s);
    good("page in its envelope", "<ozm_template version=\"1.0\"><html><body>b</body></html></ozm_template>",
         u"<html><body>b</body></html>"_s);
    bad("newer version", "<ozm_template version=\"1.1\">b</ozm_template>");
    bad("no version", "<ozm_template>b</ozm_template>");
    bad("cut short", "<ozm_template version=\"1.0\"><p>[Name]</p></ozm_templ");
    bad("cut in its tag", "<ozm_template ver");
    bad("picture", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
    bad("picture in an envelope", QByteArray("<ozm_template version=\"1.0\">\0</ozm_template>", 43));
    bad("windows-1252 in an envelope", "<ozm_template version=\"1.0\">caf\xe9</ozm_template>");
    bad("windows-1252 text", "caf\xe9 [Name]");
    bad("UTF-8 and windows-1252", "caf\xc3\xa9 caf\xe9");
    bad("UTF-8 cut in a character", "caf\xc3");
    bad("UTF-16 cut in a character", encoded("UTF-16LE", u"ab"_s).chopped(1));
    bad("zero in UTF-16", encoded("UTF-16LE", QString(u'a') + QChar(u'\0')));
    good("nothing", "", {});
    good("text", "Dear [Name],\r\n100%1", u"Dear [Name],\r\n100%1"_s);
    good("part of a page", "<p>[Name]</p><script>1 < 2</script>", u"<p>[Name]</p><script>1 < 2</script>"_s);
    good("script that speaks of pages", "<script>'<body>'</script>", u"<script>'<body>'</script>"_s);
    for (const char *charset : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE"})
        good(charset, encoded(charset, u"café [Name]"_s), u"café [Name]"_s);
}

void TestTemplateFile::read()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const int, errorCode);
    QFETCH(const QString, expected);
    put(at(u"read"_s), bytes);

    const auto loaded = TemplateFile::read(at(u"read"_s));

    QCOMPARE(loaded ? 0 : int(loaded.error().errorCode()), errorCode);
    QCOMPARE(loaded ? loaded.value().content : loaded.error().errorMessage(), expected);
    QCOMPARE(!loaded && loaded.error().warnings().isEmpty(), false);
    QCOMPARE(loaded && loaded.value().converted, false);
}

void TestTemplateFile::saysWhatIsWrong()
{
    const QByteArray body = "<body>caf\xe9</body>";
    const auto messageFor = [this, &body](const QByteArray &meta) {
        put(at(u"page"_s), meta + body);
        const auto loaded = TemplateFile::read(at(u"page"_s), Page::AsText);
        return loaded ? loaded.value().content : loaded.error().errorMessage();
    };
    QVERIFY(messageFor("<meta charset=utf-8>").contains(u"\"utf-8\", but it holds"_s));
    QVERIFY(messageFor("<meta charset=klingon>").contains(u"\"klingon\", which is not known"_s));
    QVERIFY(messageFor("<meta charset=windows-1252>").endsWith(u"<body>café</body>"_s));
}

void TestTemplateFile::unreadable()
{
    const auto codeFor = [this](const QString &name) {
        const auto loaded = TemplateFile::read(at(name));
        return loaded ? 0 : int(loaded.error().errorCode());
    };
    QCOMPARE(codeFor(u"missing"_s), 4);
    QVERIFY(QDir(m_folder.path()).mkdir(u"folder"_s));
    QCOMPARE(codeFor(u"folder"_s), 4);
    QFile huge(at(u"huge"_s));
    QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(TemplateFile::kLargest + 1));
    QCOMPARE(codeFor(u"huge"_s), 4);
#ifdef Q_OS_UNIX
    QCOMPARE(::mkfifo(QFile::encodeName(at(u"pipe"_s)).constData(), 0600), 0);
    QCOMPARE(codeFor(u"pipe"_s), 4); // And does not wait for a writer.
#endif
#ifdef Q_OS_LINUX
    put(at(u"secret"_s), "x");
    setMode(at(u"secret"_s), 0);
    const WithoutRights nobody;
    QCOMPARE(codeFor(u"secret"_s), 4);
#endif
}

void TestTemplateFile::large()
{
    const QString content = u"<p>[Name] of 50 MB</p>\n"_s.repeated(50 * 1024 * 1024 / 23);
    QVERIFY(!TemplateFile::write(at(u"large"_s), content).hasError());
    const auto loaded = TemplateFile::read(at(u"large"_s));
    QVERIFY(loaded && loaded.value().content == content);

    const QByteArray before = get(at(u"large"_s));
    QCOMPARE(int(TemplateFile::write(at(u"large"_s), content + content).errorCode()), 2);
    QVERIFY(get(at(u"large"_s)) == before);
}

void TestTemplateFile::returnsWhatWasWritten_data()
{
    QTest::addColumn<QString>("content");

    QTest::newRow("nothing") << QString();
    QTest::newRow("formatted") << u"<p>Grüße, <b>[Name]</b> \U0001F600</p>"_s;
    QTest::newRow("line ends") << u"a\r\nb\rc\n"_s;
    QTest::newRow("marker") << u"100%1"_s;
    QTest::newRow("all markers") << u"%1 %2 %3 %4 %5 %L1 %0 %50 %%1"_s;
    QTest::newRow("remainder in a script") << u"<script>row%2 ? 'odd' : 'even'</script>"_s;
    QTest::newRow("closing tag") << u"a</ozm_template>b"_s;
    QTest::newRow("envelope") << TECWrapper::wrapTEC(u"x"_s);
    QTest::newRow("byte-order mark") << u"\ufeffa"_s;
    QTest::newRow("page") << u"<!DOCTYPE html><html><head></head><body>a</body></html>"_s;
}

void TestTemplateFile::returnsWhatWasWritten()
{
    QFETCH(const QString, content);

    QCOMPARE(TemplateFile::write(at(u"written"_s), content), Error());

    const auto loaded = TemplateFile::read(at(u"written"_s));
    QVERIFY(loaded);
    QCOMPARE(loaded.value().content, content);
    // Others read it with the wrapper alone.
    QCOMPARE(TECWrapper::unwrapTEC(QString::fromUtf8(get(at(u"written"_s)))), content);
    if (!content.contains(u'%'))
        QCOMPARE(get(at(u"written"_s)), TECWrapper::wrapTEC(content).toUtf8());
}

void TestTemplateFile::refusesWhatCannotBeReadBack()
{
    put(at(u"kept"_s), "old");
    for (const QChar unsaveable : {QChar(u'\0'), QChar(0xd83d)}) {
        const Error error = TemplateFile::write(at(u"kept"_s), u"a"_s + unsaveable + u'b');
        QCOMPARE(int(error.errorCode()), 2);
        QVERIFY(!error.errorMessage().isEmpty());
        QCOMPARE(get(at(u"kept"_s)), "old");
    }
}

void TestTemplateFile::keepsTheOldFile()
{
    const QString content = u"new"_s.repeated(10000);
    const auto codeFor = [&](const QString &name) {
        const Error error = TemplateFile::write(at(name), content);
        return error.errorMessage().contains(QDir::toNativeSeparators(at(name))) ? int(error.errorCode())
                                                                                 : -1;
    };
    QVERIFY(QDir(m_folder.path()).mkpath(u"old/folder"_s));
    QCOMPARE(codeFor(u"missing/file"_s), 4);
    QCOMPARE(codeFor(u"old/folder"_s), 4);
    put(at(u"old/file"_s), "old");
#ifdef Q_OS_UNIX
    {
        const FullDisk disk(4096);
        QCOMPARE(codeFor(u"old/file"_s), 4);
        QVERIFY(!TemplateFile::write(at(u"old/file"_s), content).errorMessage().contains(u"Unknown"_s));
    }
    QCOMPARE(::mkfifo(QFile::encodeName(at(u"old/pipe"_s)).constData(), 0600), 0);
    QCOMPARE(codeFor(u"old/pipe"_s), 4);
    QVERIFY(QFile::remove(at(u"old/pipe"_s)));
#endif
#ifdef Q_OS_LINUX
    setMode(at(u"old"_s), 0555);
    {
        const WithoutRights nobody;
        QCOMPARE(codeFor(u"old/file"_s), 4);
        QCOMPARE(codeFor(u"old/other"_s), 4);
    }
    setMode(at(u"old"_s), 0755);
#endif
    QCOMPARE(get(at(u"old/file"_s)), "old");
    QCOMPARE(QDir(at(u"old"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             (QStringList{u"file"_s, u"folder"_s}));
}

void TestTemplateFile::changedOnDisk()
{
    const QString path = at(u"watched"_s);
    put(path, "one");
    TemplateFile file;
    QCOMPARE(file.changedOnDisk(), false);
    file.opened(path);
    QCOMPARE(file.path(), path);
    QCOMPARE(file.changedOnDisk(), false);
    put(path, "two"); // As long as before, perhaps within the same tick.
    QCOMPARE(file.changedOnDisk(), true);
    put(path, "one");
    QCOMPARE(file.changedOnDisk(), false);
    QVERIFY(QFile::remove(path));
    QCOMPARE(file.changedOnDisk(), true);

    put(path, "one");
    const auto loaded = TemplateFile::read(path);
    put(path, "two"); // Between reading and opening.
    file.opened(path, loaded.value().digest);
    QCOMPARE(file.changedOnDisk(), true);
    QVERIFY(!TemplateFile::write(path, u"three"_s).hasError());
    file.opened(path);
    QCOMPARE(file.changedOnDisk(), false);
}

void TestTemplateFile::autosave()
{
    const QString folder = at(u"autosave"_s);
    const auto files = [&folder] { return QDir(folder).entryList(QDir::Files).size(); };
    {
        TemplateAutosave first(u"a/b"_s, folder);
        TemplateAutosave second(u"a/b"_s, folder);
        first.store({}, u"one"_s);
        first.store({}, u"two"_s);
        second.store({}, u"three"_s);
        QCOMPARE(files(), 4); // A copy and a lock each.
        QVERIFY(TemplateAutosave::takeRescued(u"a/b"_s, folder).isEmpty());
#ifdef Q_OS_UNIX
        for (const QFileInfo &copy : QDir(folder).entryInfoList({u"*.autosave"_s}))
            QVERIFY(!copy.permission(QFile::ReadGroup) && !copy.permission(QFile::ReadOther));
#endif
    }
    QCOMPARE(files(), 0);

    put(at(u"autosave/a."_s) + QString(u'0').repeated(32) + u".autosave"_s, "{ \"content\": \"cut sh");
    expectWarning(u"A copy of unsaved work is damaged"_s);
    QVERIFY(TemplateAutosave::takeRescued(u"a"_s, folder).isEmpty());
    QCOMPARE(QDir(folder).entryList({u"*.damaged"_s}).size(), 1);
    QVERIFY(TemplateAutosave::takeRescued(u"a"_s, folder).isEmpty()); // And is silent from now on.

    put(at(u"no-folder"_s), {});
    expectWarning(u"Unsaved work cannot be copied"_s);
    TemplateAutosave(u"a"_s, at(u"no-folder"_s)).store({}, u"x"_s);
}

void TestTemplateFile::autosaveSurvivesTheProgram()
{
    const QString folder = at(u"crash"_s);
    QProcess program;
    program.start(kProbe, {u"keep"_s, folder});
    QVERIFY(program.waitForReadyRead());
    QVERIFY(TemplateAutosave::takeRescued(u"probe"_s, folder).isEmpty());

    program.kill();
    QVERIFY(program.waitForFinished());

    QVERIFY(TemplateAutosave::takeRescued(u"prob"_s, folder).isEmpty());
    const auto rescued = TemplateAutosave::takeRescued(u"probe"_s, folder);
    QCOMPARE(rescued.size(), 1);
    QCOMPARE(rescued.first().path, u"/data/report.ozt"_s);
    QCOMPARE(rescued.first().content, u"unsaved [Name]"_s);
    QVERIFY(rescued.first().when.isValid());
    QVERIFY(QDir(folder).isEmpty());
}

void TestTemplateFile::starts_data()
{
    QTest::addColumn<bool>("installed");
    QTest::addColumn<QString>("outcome");

    const QString missing = u"error This file is a whole web page"_s;
#ifdef OZM_WITH_WEB_READER
    QTest::newRow("with the web reader") << true << u"read <p>[Name]</p>\nthen loaded"_s;
#else
    QTest::newRow("built without") << true << missing;
#endif
#ifdef Q_OS_LINUX
    QTest::newRow("web reader taken away") << false << missing;
#endif
}

void TestTemplateFile::starts()
{
    QFETCH(const bool, installed);
    QFETCH(const QString, outcome);
    put(at(u"page"_s), "<html><body><p>[Name]</p></body></html>");
    QProcess program;
    if (!installed) {
        // The library as it would be found without its plug-in.
        QVERIFY(QDir(m_folder.path()).mkpath(u"lib"_s));
        const QFileInfo library(QStringLiteral(WIDGETS_LIBRARY));
        QFile::copy(library.filePath(), at(u"lib/"_s) + library.fileName());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LD_LIBRARY_PATH"_s, at(u"lib"_s));
        program.setProcessEnvironment(environment);
    }
    program.start(kProbe, {u"start"_s, at(u"page"_s)});
    QVERIFY(program.waitForFinished());

    const QString output = QString::fromUtf8(program.readAllStandardOutput());
#ifdef Q_OS_LINUX
    QVERIFY2(output.startsWith("start none\n"_L1), qPrintable(output));
    QVERIFY2(output.contains(outcome), qPrintable(output));
    QCOMPARE(output.contains("then none"_L1), outcome.startsWith("error"_L1));
#else
    QVERIFY2(output.contains(outcome.section(u'\n', 0, 0)), qPrintable(output));
#endif
}

#ifdef OZM_WITH_WEB_READER

void TestTemplateFile::readsPages_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QByteArray>("charset");

    const auto row = [](const char *name, const QByteArray &bytes, const QString &content,
                        const QByteArray &charset) { QTest::newRow(name) << bytes << content << charset; };
    row("meta charset", "<html><head><meta charset=\"windows-1252\"></head><body>\x80 caf\xe9</body></html>",
        u"€ café"_s, "windows-1252");
    row("http-equiv, and what Latin-1 means in pages",
        "<html><meta http-equiv='Content-Type' content='text/html; charset=ISO-8859-1'><body>\x93"
        "a\x94",
        u"“a”"_s, "windows-1252");
    row("declared in XML", "<?xml version=\"1.0\" encoding=\"KOI8-R\"?><html><body>\xc1</body></html>",
        u"а"_s, "KOI8-R");
    row("Japanese", "<html><meta charset=Shift_JIS><body>\x83\x65</body></html>", u"テ"_s, "Shift_JIS");
    row("declared in a comment only", "<!--<meta charset=koi8-r>--><html><body>\xc3\xa9</body></html>",
        u"é"_s, "UTF-8");
    row("undeclared", "<html><body>caf\xe9</body></html>", u"café"_s, "windows-1252");
    row("byte-order mark over a declaration",
        encoded("UTF-16LE", u"<html><meta charset=koi8-r><body>é</body></html>"_s), u"é"_s, "UTF-16LE");
    row("document type only", "<!DOCTYPE html><title>t</title><p>[Name]", u"<p>[Name]</p>"_s, "UTF-8");
    row("as the engine parses it", "<!DOCTYPE html><body><b><p>[Na</b>me]&nbsp;&lt;<table><tr><td>1</table>",
        u"<b></b><p><b>[Na</b>me]&nbsp;&lt;</p><table><tbody><tr><td>1</td></tr></tbody></table>"_s, "UTF-8");
    row("scripts of the page are not run",
        "<html><body onload=\"document.body.innerHTML='run'\"><script>document.body.innerHTML = "
        "'run'</script>"
        "<script type=\"module\">document.write('run')</script><img src=x: "
        "onerror=\"document.body.remove()\">"
        "<noscript><i>off</i></noscript>",
        u"<script>document.body.innerHTML = 'run'</script><script "
        u"type=\"module\">document.write('run')</script>"
        "<img src=\"x:\" onerror=\"document.body.remove()\"><noscript><i>off</i></noscript>"_s,
        "UTF-8");
    const QString scripts =
        u"<SCRIPT>a = 1 < 2 && \"[Mass]\";\r\n'<!--<script>'+1+'</script>'</SCRIPT><script></script>"_s;
    row("template scripts to the letter", "<html><body>" + scripts.toUtf8() + "</body></html>", scripts,
        "UTF-8");
    row("script tag in a text field",
        "<html><body><textarea><script>1</script></textarea><script>2</script></body></html>",
        u"<textarea>&lt;script&gt;1&lt;/script&gt;</textarea><script>2</script>"_s, "UTF-8");
}

void TestTemplateFile::readsPages()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, content);
    QFETCH(const QByteArray, charset);
    put(at(u"page"_s), bytes);

    const auto loaded = TemplateFile::read(at(u"page"_s));

    QVERIFY2(loaded, loaded ? "" : qPrintable(loaded.error().errorMessage()));
    QCOMPARE(loaded.value().content, content);
    QCOMPARE(loaded.value().charset.toLower(), charset.toLower());
    QCOMPARE(loaded.value().converted, true);
    const auto asText = TemplateFile::read(at(u"page"_s), Page::AsText);
    QVERIFY(asText && !asText.value().converted && asText.value().content.contains("<"_L1));
}

void TestTemplateFile::fetchesNothing()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    int connections = 0;
    connect(&server, &QTcpServer::newConnection, this, [&connections, &server] {
        while (server.nextPendingConnection())
            ++connections;
    });
    const QByteArray address = "http://127.0.0.1:" + QByteArray::number(server.serverPort()) + "/x";
    QByteArray page =
        "<html><head><link rel=stylesheet href=URL><link rel=preconnect href=URL>"
        "<link rel=preload as=image href=URL><link rel=icon href=URL><base href=URL>"
        "<meta http-equiv=refresh content='0;url=URL'><style>@import 'URL';</style></head>"
        "<body background=URL style=\"background:url('URL')\"><img src=URL><img srcset='URL 2x'>"
        "<iframe src=URL></iframe><object data=URL></object><embed src=URL><video autoplay src=URL>"
        "</video><script src=URL></script><script>fetch('URL')</script></body></html>";
    put(at(u"page"_s), page.replace("URL", address));

    const auto loaded = TemplateFile::read(at(u"page"_s));
    QVERIFY(loaded);
    QVERIFY(loaded.value().content.contains("<iframe src=\""_L1 + QString::fromLatin1(address)));

    // The server sees connections in their order: this one is the first.
    QTcpSocket own;
    own.connectToHost(server.serverAddress(), server.serverPort());
    QTRY_VERIFY(connections > 0);
    QCOMPARE(connections, 1);
}

void TestTemplateFile::givesUpAtTheDeadline()
{
    QPluginLoader loader(QStringLiteral(WEB_READER));
    auto *reader = qobject_cast<WebReaderInterface *>(loader.instance());
    QVERIFY(reader);
    const auto body = reader->bodyOf(u"<body>a</body>"_s, std::chrono::milliseconds(0));
    QVERIFY(!body);
    QCOMPARE(int(body.error().errorCode()), 1);
    QVERIFY(body.error().errorMessage().contains(u"in time"_s));
    const auto again = reader->bodyOf(u"<body>a</body>"_s, std::chrono::minutes(1));
    QVERIFY(again);
    QCOMPARE(again.value(), u"a"_s);
}

#endif

QTEST_MAIN(TestTemplateFile)
#include "tst_templatefile.moc"
