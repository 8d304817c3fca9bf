// Random use of the workbench, for as long as one likes: soak [--minutes N] [--seed N] [--session N] [--csv FILE]
// [--only ACTION] [--pixmap-cache].
// A fault in session N of a seed comes again with the same seed and --session N, and --verbose names each action.

#include "Soak.h"
#include "files/FileDialogDriver.h"

#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>

#include <QCommandLineParser>
#include <QStandardPaths>

#include <cstdio>
#include <map>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

constexpr int kWrongUsage = 2;

/// Prints each warning once: an hour repeats them thousands of times.
void printOnce(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    static std::mutex mutex;
    static std::map<QString, int> seen;
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    static const QRegularExpression number(u"\\d+|/[^ \"]*"_s);
    const std::lock_guard lock(mutex);
    if (++seen[QString(text).replace(number, u"#"_s)] == 1)
        std::fprintf(stderr, "[%s] %s\n", context.category ? context.category : "", qUtf8Printable(text));
}

} // namespace

// A folder that cannot be made may end it.
// NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const ozm::test::FileStateGuard guard;
    qInstallMessageHandler(printOnce);

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{u"minutes"_s, u"How long it runs."_s, u"number"_s, u"60"_s},
                       {u"seed"_s, u"Decides on all that is done."_s, u"number"_s, u"1"_s},
                       {u"session"_s, u"Begins with this session."_s, u"number"_s, u"1"_s},
                       {u"only"_s, u"Does this action alone, to see how much it needs."_s, u"action"_s},
                       {u"pixmap-cache"_s, u"Leaves the toolkit's cache of pixmaps on, whose names grow."_s},
                       {u"csv"_s, u"Where the readings go."_s, u"file"_s},
                       {u"verbose"_s, u"Names each action."_s}});
    parser.process(application);
    bool ok[3] = {};
    const soak::Options options{.seed = parser.value(u"seed"_s).toUInt(&ok[0]),
                                .minutes = parser.value(u"minutes"_s).toDouble(&ok[1]),
                                .firstSession = parser.value(u"session"_s).toInt(&ok[2]),
                                .isVerbose = parser.isSet(u"verbose"_s),
                                .only = parser.value(u"only"_s),
                                .pixmaps = parser.isSet(u"pixmap-cache"_s) ? soak::PixmapCache::On
                                                                           : soak::PixmapCache::Off,
                                .csv = parser.value(u"csv"_s)};
    if (!ok[0] || !ok[1] || !ok[2]) {
        std::fputs("soak: --minutes, --seed and --session need numbers.\n", stderr);
        return kWrongUsage;
    }
    if (!options.only.isEmpty() && !soak::Session::has(options.only)) {
        std::fputs("soak: --only needs the name of an action, which --verbose shows.\n", stderr);
        return kWrongUsage;
    }
    for (const QString &line : soak::toolkitLosses())
        std::puts(qUtf8Printable(line));
    OZMStyle::apply();
    ozm::OzmCoreApplication::start();
    soak::Soak run(options);
    run.start();
    return QApplication::exec();
}
