// Makes each system call of each way of writing fail in turn, and looks at what is left: `make faults`.
//
// The old file or the new one has to be there, never neither; what was said to be written has to be there, and what
// was not said to be written has to say why. Each fault is a program of its own with the library of preload.cpp
// before all others.

#include "Operations.h"

#include <QApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <array>
#include <cerrno>
#include <cstdio>
#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace ozm::faults {

namespace {

constexpr auto kArm = "ozm_faults_arm";
constexpr int kMostCalls = 400;

struct Kind
{
    QLatin1StringView call;
    QLatin1StringView name;
    int error = 0; ///< 0 for a call that does a part of its work.
    bool goesOn = false;
};

constexpr std::array kKinds{
    Kind{"open"_L1, "EIO"_L1, EIO},
    Kind{"open"_L1, "EINTR"_L1, EINTR},
    Kind{"open"_L1, "EMFILE"_L1, EMFILE, true},
    Kind{"open"_L1, "ENOSPC"_L1, ENOSPC, true},
    Kind{"read"_L1, "EIO"_L1, EIO},
    Kind{"read"_L1, "EINTR"_L1, EINTR},
    Kind{"read"_L1, "short"_L1},
    Kind{"write"_L1, "EIO"_L1, EIO},
    Kind{"write"_L1, "EIO, on"_L1, EIO, true},
    Kind{"write"_L1, "EINTR"_L1, EINTR},
    Kind{"write"_L1, "ENOSPC"_L1, ENOSPC, true},
    Kind{"write"_L1, "short"_L1},
    Kind{"fsync"_L1, "EIO"_L1, EIO},
    Kind{"fsync"_L1, "EIO, on"_L1, EIO, true},
    Kind{"fsync"_L1, "EINTR"_L1, EINTR},
    Kind{"ftruncate"_L1, "EIO"_L1, EIO},
    Kind{"ftruncate"_L1, "ENOSPC"_L1, ENOSPC, true},
    Kind{"rename"_L1, "EIO"_L1, EIO, true},
    Kind{"rename"_L1, "ENOSPC"_L1, ENOSPC, true},
    Kind{"link"_L1, "EIO"_L1, EIO, true},
    Kind{"close"_L1, "EIO"_L1, EIO, true},
};

struct Outcome
{
    bool ended = false; ///< By itself.
    QString error;
    int calls = 0;
};

/// The counts of one line of the table.
struct Tally
{
    int faults = 0;
    int refused = 0; ///< With an error, and the old is there.
    int done = 0;    ///< In spite of the fault.
    int notSaid = 0; ///< By a way of writing that says nothing.
    QStringList wrong;
};

int child(const QString &name, const QString &folder)
{
    for (const Operation &operation : operations()) {
        if (operation.name != name)
            continue;
        const auto arm = reinterpret_cast<int (*)()>(::dlsym(RTLD_DEFAULT, kArm));
        if (arm == nullptr)
            qFatal("The library that makes calls fail is not there.");
        arm();
        const QString error = operation.run(folder);
        QTextStream(stdout) << arm() << '\n' << error << Qt::endl;
        // Nothing that ends with the program is part of the operation.
        std::_Exit(0);
    }
    return 2;
}

Outcome runWith(const Operation &operation, const Kind &kind, int number, const QString &folder)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LD_PRELOAD"_s,
                       QCoreApplication::applicationDirPath() + u"/../lib/libozm_faults.so"_s);
    environment.insert(
        u"OZM_FAULT"_s,
        u"%1 %2 %3 %4 %5"_s.arg(kind.call, kind.error == 0 ? u"short"_s : QString::number(kind.error),
                                QString::number(number), kind.goesOn ? u"on"_s : u"once"_s, folder));
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {u"--child"_s, operation.name, folder});
    process.waitForFinished();
    const QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n');
    return {process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 && lines.size() > 1,
            lines.value(1), lines.value(0).toInt()};
}

void judge(Tally &tally, const Operation &operation, const Outcome &outcome, const QString &folder)
{
    const State state = operation.look(folder);
    ++tally.faults;
    const auto wrong = [&](const QString &text) { tally.wrong += u"%1: %2"_s.arg(tally.faults).arg(text); };
    if (!outcome.ended)
        wrong(u"the program ended"_s);
    else if (operation.writesBlindly && outcome.error.isEmpty() && state != State::New)
        ++tally.notSaid;
    else if (state == State::Neither)
        wrong(u"neither the old nor the new is there, \"%1\""_s.arg(outcome.error));
    else if (outcome.error.isEmpty() && state == State::Old)
        wrong(u"said to be written, and is not"_s);
    else if (!outcome.error.isEmpty() && state == State::New &&
             !outcome.error.contains("did not confirm it"_L1))
        wrong(u"written, and said not to be: \"%1\""_s.arg(outcome.error));
    else
        ++(outcome.error.isEmpty() ? tally.done : tally.refused);
    const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        if (!name.contains(operation.expected))
            wrong(u"left behind: "_s + name);
    }
}

Tally tryKind(const Operation &operation, const Kind &kind)
{
    Tally tally;
    for (int number = 0; number < kMostCalls; ++number) {
        const QTemporaryDir folder;
        operation.prepare(folder.path());
        const Outcome outcome = runWith(operation, kind, number, folder.path());
        // The run without a fault says whether the call is made at all, and each after it whether there was one
        // with that number.
        if (number == 0) {
            if (!outcome.ended || !outcome.error.isEmpty() || operation.look(folder.path()) != State::New)
                return {.wrong = {u"does not work without a fault: "_s + outcome.error}};
        } else if (outcome.ended && outcome.calls < number) {
            break;
        } else {
            judge(tally, operation, outcome, folder.path());
        }
    }
    return tally;
}

int tryAll(const QStringList &chosen)
{
    QTextStream out(stdout);
    out << "operation             call      fault    faults  refused  done all the same  not said  wrong"
        << Qt::endl;
    int wrong = 0;
    for (const Operation &operation : operations()) {
        if (!chosen.isEmpty() && !chosen.contains(operation.name))
            continue;
        for (const Kind &kind : kKinds) {
            const Tally tally = tryKind(operation, kind);
            if (tally.faults == 0 && tally.wrong.isEmpty())
                continue;
            out << u"%1%2%3%4%5%6%7%8"_s.arg(operation.name, -22)
                       .arg(kind.call, -10)
                       .arg(kind.name, -8)
                       .arg(tally.faults, 7)
                       .arg(tally.refused, 9)
                       .arg(tally.done, 19)
                       .arg(tally.notSaid, 10)
                       .arg(tally.wrong.size(), 7)
                << Qt::endl;
            for (const QString &text : tally.wrong)
                out << "    " << text << Qt::endl;
            wrong += static_cast<int>(tally.wrong.size());
        }
    }
    out << wrong << " wrong" << Qt::endl;
    return wrong == 0 ? 0 : 1;
}

} // namespace

} // namespace ozm::faults

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    // Errors are looked at where they are returned.
    QLoggingCategory::setFilterRules(u"ozm.*=false"_s);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--child"_L1)
        return ozm::faults::child(arguments.value(2), arguments.value(3));
    return ozm::faults::tryAll(arguments.mid(1));
}
