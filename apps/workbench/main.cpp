#include "BatchRun.h"
#include "PictureRun.h"
#include "window/FileQuestions.h"
#include "window/Sessions.h"

#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>

#include <QApplication>
#include <QCommandLineParser>

#include <algorithm>
#include <cstdio>
#include <optional>
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
    QCommandLineOption pictures{
        u"pictures"_s,
        QCoreApplication::translate("main",
                                    "Leave pictures of the windows, on sample data, in <folder>, then end."),
        u"folder"_s};
    QCommandLineOption firstSteps{
        u"first-steps"_s, QCoreApplication::translate("main", "Begin with the first steps, on sample data.")};
    QCommandLineOption reports{
        u"reports"_s,
        QCoreApplication::translate("main",
                                    "A batch run's report on each sample: all in \"one\" file "
                                    "certificates.pdf, or a file for \"each\" in a folder certificates."),
        u"one|each"_s};
    QCommandLineOption reportTemplate{
        u"template"_s,
        QCoreApplication::translate("main", "Template for --reports; by default the sample certificate."),
        u"file"_s};
    QCommandLineOption steps{u"steps"_s, u"Further edits of a batch run."_s, u"number"_s, u"0"_s};
};

/// Batch runs, help and version need no screen, so they are not to fail for want of one.
void useNoScreenUnlessNeeded(int argc, char **argv)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    const bool needsNone = std::ranges::any_of(arguments, [](const char *argument) {
        const QByteArrayView text(argument);
        return text.startsWith("--batch") || text.startsWith("--pictures") || text == "--help" ||
               text == "-h" || text == "--version" || text == "-v";
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

std::optional<workbench::BatchReports> reportsAsked(const QCommandLineParser &parser, const Options &options)
{
    if (!parser.isSet(options.reports))
        return workbench::BatchReports::None;
    if (parser.value(options.reports) == "one"_L1)
        return workbench::BatchReports::InOneFile;
    if (parser.value(options.reports) == "each"_L1)
        return workbench::BatchReports::InOneEach;
    return std::nullopt;
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
    const auto reports = reportsAsked(parser, options);
    if (!reports)
        return complain(QApplication::translate("main", "--reports needs \"one\" or \"each\"."), WrongUsage);
    Error error = workbench::runBatch({parser.value(options.batch), parser.value(options.out),
                                       parser.value(options.database), user, steps, *reports,
                                       parser.value(options.reportTemplate)});
    if (!error.hasError())
        return Done;
    return complain((QStringList{error.errorMessage()} + error.warnings()).join(u' '), Failed);
}

/// @p firstSteps: that the user asked for them. Who is new here gets them unasked, unless there is a @p file to open.
int interact(const QString &database, const QString &user, const QString &file, bool firstSteps)
{
    // Batch runs speak English, whatever the language: their output is for scripts.
    ozm::OzmCoreApplication::start();
    for (const QString &name : {u"ozm_audit"_s, u"workbench"_s})
        ozm::OzmCoreApplication::loadTranslation(QLocale(), name);
    // The toolkit adds it to every title that does not end in it.
    QApplication::setApplicationDisplayName(QApplication::translate("main", "Workbench"));
    workbench::Sessions sessions(database, user);
    const bool begins = firstSteps || (file.isEmpty() && sessions.areNew());
    const Error error = begins ? sessions.openFirstSteps() : sessions.openOwn(file);
    if (!error.hasError())
        return QApplication::exec();
    workbench::complainOnScreen(error);
    return complain(error.errorMessage(), Failed);
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
    parser.addOptions({options.batch, options.out, options.reports, options.reportTemplate, options.pictures,
                       options.database, options.user, options.firstSteps, options.steps});
    parser.addPositionalArgument(u"file"_s, QApplication::translate("main", "CSV file of samples to open."),
                                 u"[file]"_s);
    parser.process(application);

    const QString user = parser.value(options.user).isEmpty() ? ozm::OzmCoreApplication::userName()
                                                              : parser.value(options.user);
    if (parser.isSet(options.batch))
        return batch(parser, options, user);
    if (parser.isSet(options.pictures)) {
        const Error error = workbench::takePictures(parser.value(options.pictures));
        return error.hasError() ? complain(error.errorMessage(), Failed) : Done;
    }
    return interact(parser.value(options.database), user, parser.positionalArguments().value(0),
                    parser.isSet(options.firstSteps));
}
