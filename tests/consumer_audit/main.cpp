#include <ozm_audit/Logger.h>
#include <ozm_widgets/db/common/UndoCommand.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <QCoreApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace ozm;

namespace {

class SetCharge : public UndoCommand
{
public:
    SetCharge(int &cell, int charge)
        : m_cell(cell)
        , m_charge(charge)
        , m_old(cell)
    {
        using Subject = OperationLogItemSubject;
        setLogData({OperationLogItemType::Set,
                    Subject(Subject::Type::Label, {{u"Name"_s, u"T12"_s}}, {}),
                    {u"Charge"_s},
                    m_charge,
                    m_old});
    }

protected:
    Error doRedo() override { return set(m_charge); }
    Error doUndo() override { return set(m_old); }

private:
    Error set(int charge)
    {
        m_cell = charge;
        return {};
    }

    int &m_cell;
    const int m_charge;
    const int m_old;
};

int show(const Error &error)
{
    QTextStream(stderr) << error.errorMessage() << Qt::endl;
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    int cell = 2;
    UndoStack stack;

    auto store = ozm::audit::Store::open(u"sqlite:trail.sqlite"_s);
    if (!store)
        return show(store.error());
    ozm::audit::Logger logger(*store.value(), {.user = {u"jdoe"_s, u"Jane Doe"_s}});
    stack.setLogging(&logger);

    ozm::Error error = logger.push(stack, new SetCharge(cell, 3));
    if (!error.hasError())
        error = logger.undo(stack);
    if (error.hasError())
        return show(error);
    QTextStream out(stdout);
    const auto steps = store.value()->find({.kinds = {audit::Kind::Command}});
    for (const audit::Entry &entry : steps.value())
        out << entry.text() << Qt::endl;
    out << store.value()->verify().value().toString() << Qt::endl;
    return steps.value().size() == 2 ? 0 : 1;
}
