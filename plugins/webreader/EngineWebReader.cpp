#include "EngineWebReader.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QOpenGLContext>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>

#include <array>
#include <optional>
#include <utility>

#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

constexpr auto kFlags = "QTWEBENGINE_CHROMIUM_FLAGS";

/// The engine ends the whole program when root starts it with its sandbox on.
bool wouldEndTheProgram()
{
#ifdef Q_OS_LINUX
    return ::geteuid() == 0 && !qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX") &&
           !qgetenv(kFlags).contains("--no-sandbox");
#else
    return false;
#endif
}

QLoggingCategory::CategoryFilter filterBefore = nullptr;

void leaveOutContext(QLoggingCategory *category)
{
    if (filterBefore)
        filterBefore(category);
    if (qstrcmp(category->categoryName(), "qt.webenginecontext") == 0) {
        category->setEnabled(QtDebugMsg, false);
        category->setEnabled(QtInfoMsg, false);
    }
}

/// Starts the engine also where the application did not prepare for it by sharing OpenGL contexts: reading
/// needs no graphics, and what the engine logs of the shared context crashes when there is none.
void startEngine()
{
    static bool started = false;
    if (std::exchange(started, true) || QOpenGLContext::globalShareContext())
        return;
    const bool flagsSet = qEnvironmentVariableIsSet(kFlags);
    const QByteArray flags = qgetenv(kFlags);
    qputenv(kFlags, flags + " --disable-gpu");
    filterBefore = QLoggingCategory::installFilter(&leaveOutContext);
    const QWebEngineProfile starter;
    QLoggingCategory::installFilter(filterBefore);
    flagsSet ? qputenv(kFlags, flags) : qunsetenv(kFlags);
}

class RefuseAll : public QWebEngineUrlRequestInterceptor
{
public:
    void interceptRequest(QWebEngineUrlRequestInfo &request) override { request.block(true); }
};

void switchOff(QWebEngineSettings *settings)
{
    using S = QWebEngineSettings;
    constexpr std::array kOff{S::AutoLoadImages,
                              S::AutoLoadIconsForPage,
                              S::DnsPrefetchEnabled,
                              S::ErrorPageEnabled,
                              S::FullScreenSupportEnabled,
                              S::HyperlinkAuditingEnabled,
                              S::JavascriptCanAccessClipboard,
                              S::JavascriptCanOpenWindows,
                              S::JavascriptEnabled,
                              S::LocalContentCanAccessFileUrls,
                              S::LocalContentCanAccessRemoteUrls,
                              S::LocalStorageEnabled,
                              S::PdfViewerEnabled,
                              S::PluginsEnabled,
                              S::ScreenCaptureEnabled,
                              S::WebGLEnabled};
    for (const S::WebAttribute attribute : kOff)
        settings->setAttribute(attribute, false);
}

/// Pages of an own world have scripts also where those of the page's world are switched off.
QString parsingScript(const QString &page)
{
    const QByteArray text = QJsonDocument(QJsonArray{page}).toJson(QJsonDocument::Compact);
    return "new DOMParser().parseFromString("_L1 + QString::fromUtf8(text) +
           "[0], 'text/html').body.innerHTML"_L1;
}

Error failed(const QString &text)
{
    return Error(ErrorCode::Failed, text).ecatch(OZM_HERE);
}

} // namespace

Result<QString> EngineWebReader::bodyOf(const QString &page, std::chrono::milliseconds deadline)
{
    if (wouldEndTheProgram()) {
        return Error(
            ErrorCode::NotAllowed,
            tr("This file is a whole web page. The web engine that reads its body does not run for the "
               "system's administrator. The file can be opened as plain text instead."));
    }
    startEngine();

    std::optional<Result<QString>> result;
    QEventLoop loop;
    // Also called when the page goes; the loop is over then.
    const auto finish = [&](const Result<QString> &outcome) {
        if (loop.isRunning() && !result)
            result = outcome;
        loop.quit();
    };
    RefuseAll refuseAll;
    QWebEngineProfile profile; // Without a name: nothing is kept on disk.
    profile.setUrlRequestInterceptor(&refuseAll);
    QWebEnginePage view(&profile);
    switchOff(view.settings());

    connect(&view, &QWebEnginePage::renderProcessTerminated, &loop,
            [&] { finish(failed(tr("The web engine failed on the page."))); });
    connect(&view, &QWebEnginePage::loadFinished, &loop, [&] {
        view.runJavaScript(parsingScript(page), QWebEngineScript::ApplicationWorld,
                           [&](const QVariant &body) {
                               finish(body.typeId() == QMetaType::QString
                                          ? Result<QString>(body.toString())
                                          : failed(tr("The web engine found no body in the page.")));
                           });
    });
    QTimer::singleShot(deadline, &loop,
                       [&] { finish(failed(tr("The web engine did not read the page in time."))); });
    view.load(QUrl(u"about:blank"_s));
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return result ? *result : failed(tr("The program ended while the web engine read the page."));
}

} // namespace ozm
