#include "Commands.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <array>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;
using namespace ozm::audit::tool;

namespace {

struct Command
{
    QLatin1StringView name;
    int (*run)(const Options &);
    const char *usage;
};

constexpr std::array kCommands{
    Command{"init"_L1, init,
            "init TRAIL [--key FILE]                  makes a trail, and a key that signs its checkpoints"},
    Command{"append"_L1, append,
            "append TRAIL [--kind K]                  one entry for each line of the standard input"},
    Command{"show"_L1, show, "show TRAIL [filters] [--json]            entries, a page at a time"},
    Command{"watch"_L1, watch, "watch TRAIL [filters]                    entries as they come"},
    Command{"verify"_L1, verify, "verify TRAIL [--checkpoints FOLDER] [--public-key TEXT]"},
    Command{"checkpoint"_L1, checkpoint, "checkpoint TRAIL [--key FILE] [--checkpoints FOLDER]"},
    Command{"prove"_L1, prove,
            "prove TRAIL --range N                    a proof file for one entry; A-B: that B entries go on "
            "from A"},
    Command{"export"_L1, exportCopy, "export TRAIL FOLDER [filters] [--key F]  an inspection copy"},
    Command{"archive"_L1, archive,
            "archive TRAIL FOLDER [filters]           the same, recorded as an archive"},
    Command{"dispose"_L1, dispose, "dispose TRAIL --range A-B --user U --authoriser V --reason TEXT"},
    Command{"re-anchor"_L1, reAnchor,
            "re-anchor TRAIL --user U --reason TEXT   records a damage, so that the trail goes on"},
    Command{"import"_L1, importFormer,
            "import TRAIL FILE                        takes over a trail of the workbench's former form"},
};

int usage(const Options &options)
{
    std::puts("ozm-audit: audit trails, and what shows that nobody changed them\n");
    for (const Command &command : kCommands)
        std::printf("  ozm-audit %s\n", command.usage);
    std::printf("\n%s", qPrintable(options.help()));
    return Misused;
}

} // namespace

int main(int argc, char *argv[])
{
    const QByteArrayView wanted(argc > 1 ? argv[1] : "");
    std::unique_ptr<QCoreApplication> application;
    if (wanted == "export" || wanted == "archive") {
        // For the fonts of a PDF; there need not be a display.
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    QLoggingCategory::setFilterRules(u"ozm.errors.info=false"_s);
    Options options;
    QStringList arguments = QCoreApplication::arguments();
    const QString name = arguments.value(1);
    arguments.remove(1, qMin<qsizetype>(1, arguments.size() - 1));
    for (const Command &command : kCommands) {
        if (command.name == name)
            return options.parse(arguments) ? command.run(options) : usage(options);
    }
    return usage(options);
}
