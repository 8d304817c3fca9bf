// Trials of the audit store that take as long as one likes: see docs/audit-store.md.

#include "Stress.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QTextStream>

#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace ozm::audit::stress {

Draft draftOf(int writer, int serial, qsizetype padding)
{
    Draft draft;
    draft.kind = Kind::Command;
    draft.user = {u"writer%1"_s.arg(writer), u"Writer %1"_s.arg(writer), u"analyst"_s};
    draft.session = u"0123456789abcdef0123456789abcdef"_s;
    draft.host = u"bench-3"_s;
    draft.program = u"audit_stress"_s;
    draft.version = u"0.1.0"_s;
    draft.context = u"New"_s;
    draft.subjectType = u"Label"_s;
    draft.subjectKey = u"{\"Name\":\"T%1\"}"_s.arg(serial % 50);
    draft.attributes = {u"Charge"_s};
    draft.record =
        "{\"attributes\":[\"Charge\"],\"oldValue\":2,\"value\":3,\"writer\":" + QByteArray::number(writer) +
        ",\"serial\":" + QByteArray::number(serial) + ",\"padding\":\"" + QByteArray(padding, 'x') + "\"}";
    return draft;
}

int fail(const QString &text)
{
    QTextStream(stdout) << "FAILED: " << text << Qt::endl;
    return 1;
}

} // namespace ozm::audit::stress

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(u"ozm.errors.info=false"_s);
    using namespace ozm::audit::stress;
    struct Trial
    {
        QLatin1StringView name;
        int (*run)(const Arguments &);
    };
    constexpr std::array kTrials{
        Trial{"mutations"_L1, mutations},      Trial{"kills"_L1, kills},
        Trial{"powercuts"_L1, powerCuts},      Trial{"processes"_L1, processes},
        Trial{"append"_L1, appendUntilKilled},
    };
    const QStringList arguments = QCoreApplication::arguments();
    for (const Trial &trial : kTrials) {
        if (arguments.value(1) == trial.name)
            return trial.run(Arguments(arguments)) == 0 ? 0 : 1;
    }
    std::puts("audit_stress mutations --verifier FILE [--step N] [--only WORD]\n"
              "audit_stress kills --address A [--count N] [--queued]\n"
              "audit_stress powercuts [--count N] [--sharing processes] [--lose-syncs] [--synchronous off]\n"
              "audit_stress processes --address A [--count N] [--seconds N]");
    return 2;
}
