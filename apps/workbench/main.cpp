#include "BatchRun.h"
#include "audit/TrailStore.h"
#include "samples/SampleEditor.h"
#include "window/FileQuestions.h"
#include "window/MainWindow.h"

#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>
#include <span>

using namespace Qt::StringLiterals;
using ozm::Error;

namespace {

enum ExitCode
{
    Done = 0,
    Failed = 1,
    WrongUsage = 2,
};

struct Options
{
    QCommandLineOption batch{
        u"batch"_s,
        QCoreApplication::translate(
            "main", "Work on <input>, a CSV file, MS data or a folder of MS data, without a user, then end."),
        u"input"_s};
    QCommandLineOption out{u"out"_s, QCoreApplication::translate("main", "Folder for a batch run's results."),
                           u"folder"_s};
    QCommandLineOption database{
        u"database"_s,
        QCoreApplication::translate("main", "File that holds the audit trail, or its address."), u"file"_s};
    QCommandLineOption user{
        u"user"_s, QCoreApplication::translate("main", "Name to record; by default that of the login."),
        u"name"_s};
    QCommandLineOption steps{u"steps"_s, u"Further edits of a batch run."_s, u"number"_s, u"0"_s};
};

/// Batch runs, help and version need no screen, so they are not to fail for want of one.
void useNoScreenUnlessNeeded(int argc, char **argv)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    const bool needsNone = std::ranges::any_of(arguments, [](const char *argument) {
        const QByteArrayView text(argument);
        return text.startsWith("--batch") || text == "--help" || text == "-h" || text == "--version" ||
               text == "-v";
    });
    if (needsNone && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
#else
    Q_UNUSED(argc);
    Q_UNUSED(argv);
#endif
}

int complain(const QString &text, ExitCode code)
{
    std::fprintf(stderr, "workbench: %s\n", qUtf8Printable(text));
    return code;
}

int batch(const QCommandLineParser &parser, const Options &options, const QString &user)
{
    bool ok = false;
    const int steps = parser.value(options.steps).toInt(&ok);
    if (!ok || steps < 0)
        return complain(QApplication::translate("main", "--steps needs a number."), WrongUsage);
    if (parser.value(options.out).isEmpty()) {
        return complain(QApplication::translate("main", "--batch needs --out, the folder for its results."),
                        WrongUsage);
    }
    Error error = workbench::runBatch({parser.value(options.batch), parser.value(options.out),
                                       parser.value(options.database), user, steps});
    if (!error.hasError())
        return Done;
    return complain((QStringList{error.errorMessage()} + error.warnings()).join(u' '), Failed);
}

QString dataFolder()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    folder.mkpath(u"."_s);
    return folder.path();
}

/// For a user who may have started the program without a terminal.
int complainOnScreen(const Error &error)
{
    OZMStyle::critical(nullptr, ozm::OzmMessageBoxSignal::FileNotReadable,
                       QApplication::applicationDisplayName(), error.errorMessage());
    return complain(error.errorMessage(), Failed);
}

int interact(const QString &database, const QString &user, const QString &file)
{
    // Batch runs speak English, whatever the language: their output is for scripts.
    ozm::OzmCoreApplication::start();
    for (const QString &name : {u"ozm_audit"_s, u"workbench"_s})
        ozm::OzmCoreApplication::loadTranslation(QLocale(), name);
    const auto store = workbench::openTrail(database, dataFolder(), user);
    if (!store)
        return complainOnScreen(store.error());
    workbench::SampleEditor editor(*store.value(), user);
    if (Error error = editor.start(); error.hasError())
        return complainOnScreen(error);
    workbench::MainWindow window(editor, store.value()->place());
    window.show();
    if (!file.isEmpty())
        window.open(file);
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    useNoScreenUnlessNeeded(argc, argv);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"workbench"_s);
    QApplication::setApplicationDisplayName(QApplication::translate("main", "Workbench"));
    QApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));
    OZMStyle::apply();
    ozm::DefaultWidgetCreator::initialize();
    workbench::files::restoreDialogChoice();

    Options options;
    // For tests that interrupt a run; of no use to users.
    options.steps.setFlags(QCommandLineOption::HiddenFromHelp);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QApplication::translate("main", "Edits samples and their annotations, every step recorded."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({options.batch, options.out, options.database, options.user, options.steps});
    parser.addPositionalArgument(u"file"_s, QApplication::translate("main", "CSV file of samples to open."),
                                 u"[file]"_s);
    parser.process(application);

    const QString user = parser.value(options.user).isEmpty() ? ozm::OzmCoreApplication::userName()
                                                              : parser.value(options.user);
    if (parser.isSet(options.batch))
        return batch(parser, options, user);
    return interact(parser.value(options.database), user, parser.positionalArguments().value(0));
}
