#include "UndoStackTest.h"

namespace ozm::test {

ScriptedCommand *UndoStackTest::command(const Script &script)
{
    return new ScriptedCommand(script, &m_journal);
}

Error UndoStackTest::push(const Script &script)
{
    return m_stack->push(command(script));
}

void UndoStackTest::beginMacro(const QString &name, bool collapse)
{
    OperationLogItemData data = recordOf(name);
    data.setCollapseTrivialMacro(collapse);
    m_stack->beginMacro(data, name);
}

QStringList UndoStackTest::journal()
{
    return std::exchange(m_journal, {});
}

void UndoStackTest::init()
{
    StrictTest::init();
    m_logger = std::make_unique<RecordingLogger>(&m_journal);
    m_stack = std::make_unique<UndoStack>();
    m_stack->setLogging(m_logger.get());
}

void UndoStackTest::cleanup()
{
    m_stack.reset();
    m_logger.reset();
    m_journal.clear();
}

} // namespace ozm::test
