#include "templates/files/WebReader.h"

#include "support/LibraryFolder.h"
#include "support/PluginLoader.h"
#include "templates/files/WebReaderInterface.h"
#include "templates/syntax/HtmlScanner.h"
#include "templates/syntax/ScriptTags.h"

#include <ozm_widgets/TemplateFile.h>
#include <platform/Errors.h>

#include <QGuiApplication>
#include <QThread>
#include <QUuid>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

// A page as large as a template may be takes ten seconds on an office machine.
constexpr std::chrono::seconds kDeadline{60};

QString notThereText()
{
#ifdef OZM_WEB_READER
    return TemplateFile::tr(
               "This file is a whole web page. Its body is read by the plug-in \"ozm_webreader\", which is "
               "not installed here (looked for in %1). The file can be opened as plain text instead.")
        .arg(pluginFolders().join(u", "_s));
#else
    return TemplateFile::tr(
        "This file is a whole web page. This program was built without the part that reads "
        "the body of web pages. The file can be opened as plain text instead.");
#endif
}

WebReaderInterface *findReader()
{
#ifdef OZM_WEB_READER
    return loadPlugin<WebReaderInterface>(u"ozm_webreader"_s);
#else
    return nullptr;
#endif
}

// The engine is started late and without graphics on purpose, and complains about both.
constexpr std::array kMuted{"Qt WebEngine seems to be initialized from a plugin"_L1,
                            "No suitable graphics backend found"_L1};

/// Keeps the messages of kMuted out of the log while it lives, and passes on all others.
class LogMute
{
public:
    LogMute() { s_next = qInstallMessageHandler(&handle); }
    ~LogMute()
    {
        // Another may have been put in meanwhile, which then stays.
        const QtMessageHandler last = qInstallMessageHandler(s_next);
        if (last != &handle)
            qInstallMessageHandler(last);
    }
    Q_DISABLE_COPY_MOVE(LogMute)

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        const auto begins = [&text](QLatin1StringView muted) { return text.startsWith(muted); };
        if (s_next && !std::ranges::any_of(kMuted, begins))
            s_next(type, context, text);
    }

    inline static QtMessageHandler s_next = nullptr;
};

Result<WebReaderInterface *> webReader()
{
    auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (!application || QThread::currentThread() != application->thread()) {
        return Error(
            ozm::codes::NotAllowed,
            TemplateFile::tr("The body of a web page can only be read on the main thread of a program with "
                             "windows."));
    }
    // Only success is remembered: what is missing may be installed while the program runs.
    static WebReaderInterface *reader = nullptr;
    if (!reader)
        reader = findReader();
    if (!reader)
        return Error(ozm::codes::NotAllowed, notThereText());
    return reader;
}

/// A page with placeholders for its template scripts: the engine would end some of them earlier than
/// decoding does, and would rewrite their line ends.
class ScriptPlaceholders
{
public:
    explicit ScriptPlaceholders(const QString &page)
    {
        qsizetype done = 0;
        for (const editor::HtmlToken &token : editor::scanHtml(page)) {
            if (token.kind != editor::HtmlTokenKind::Script)
                continue;
            m_page += QStringView(page).sliced(done, token.start - done);
            m_page += m_opening + QString::number(m_scripts.size()) + syntax::kScriptClose;
            m_scripts.append(page.sliced(token.start, token.end - token.start));
            done = token.end;
        }
        m_page += QStringView(page).sliced(done);
    }

    [[nodiscard]] const QString &page() const { return m_page; }

    /// The scripts back in @p body; nothing when some did not come through as elements.
    [[nodiscard]] std::optional<QString> restored(const QString &body) const
    {
        QString all;
        qsizetype done = 0;
        for (qsizetype at = body.indexOf(m_opening); at >= 0; at = body.indexOf(m_opening, done)) {
            const qsizetype number = at + m_opening.size();
            const qsizetype end = body.indexOf(u'<', number);
            all += QStringView(body).sliced(done, at - done);
            all += m_scripts.value(QStringView(body).sliced(number, end - number).toInt());
            done = end + syntax::kScriptClose.size();
        }
        all += QStringView(body).sliced(done);
        return all.contains(m_mark) ? std::nullopt : std::optional(all);
    }

private:
    const QString m_mark = QUuid::createUuid().toString(QUuid::Id128);
    const QString m_opening = syntax::kScriptOpen + m_mark + u'-';
    QString m_page;
    QStringList m_scripts;
};

} // namespace

Result<QString> bodyOfPage(const QString &page)
{
    const LogMute mute;
    const Result<WebReaderInterface *> reader = webReader();
    if (!reader)
        return reader.error();
    const ScriptPlaceholders placeholders(page);
    Result<QString> body = reader.value()->bodyOf(placeholders.page(), kDeadline);
    if (!body)
        return body;
    if (const std::optional<QString> restored = placeholders.restored(body.value()))
        return *restored;
    // A tag stood where it is none to the engine, as in a text field.
    return reader.value()->bodyOf(page, kDeadline);
}

} // namespace ozm
