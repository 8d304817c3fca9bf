// Audited push, undo and redo beside the same edits on a bare QUndoStack: either side makes a command that
// holds its cell and two values, and runs it; the audited one records it as well. Neither side's time holds
// what is destroyed. What is compared runs in turns in one process, so that the ratio says something on a
// shared machine too.

#include "AuditedEdit.h"

#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <benchmark/benchmark.h>

#include <QDateTime>
#include <QUndoStack>

using namespace Qt::StringLiterals;
using namespace ozm;

namespace {

class MemoryLogger : public AuditTrailLoggingInterface
{
public:
    using Item = QSharedPointer<OperationLogItem>;

    bool commitMacro(Item) override { return true; }
    Item logCommand(Item parent, const UndoCommand &command, OperationLogItemUndoContext context) override
    {
        OperationLogItemData data = *command.logData();
        data.setUndoContext(context);
        m_items.append(
            OperationLogItem::create(parent, m_items.size() + 1, m_time++, u"jdoe"_s, std::move(data)));
        return m_items.constLast();
    }
    Item logCommandInMacro(Item macro, const UndoCommand &command,
                           OperationLogItemUndoContext context) override
    {
        return logCommand(macro, command, context);
    }
    Item logBeginMacro(Item, const OperationLogItemData &) override { return {}; }

private:
    QList<Item> m_items;
    qint64 m_time = QDateTime::currentMSecsSinceEpoch();
};

// A step that is counted by itself stays a function of its own.
[[gnu::noinline]] void pushBare(QUndoStack &stack, QVariant *cell, int value)
{
    stack.push(new bench::BareSet(cell, value));
}

[[gnu::noinline]] void pushAudited(UndoStack &stack, QVariant *cell, int value)
{
    (void)stack.push(new bench::AuditedSet(cell, value));
}

template <typename Stack, typename Push>
void pushAll(benchmark::State &state, Push push, bool logs)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto logger = std::make_unique<MemoryLogger>();
        auto stack = std::make_unique<Stack>();
        if constexpr (std::is_same_v<Stack, UndoStack>)
            stack->setLogging(logs ? logger.get() : nullptr);
        QVariant cell = 0;
        state.ResumeTiming();
        for (int i = 0; i < state.range(0); ++i)
            push(*stack, &cell, i);
        state.PauseTiming();
        stack.reset();
        logger.reset(); // A trail outlives its edits: the bare side has none to destroy.
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

[[gnu::noinline]] void walkHistory(QUndoStack &stack)
{
    while (stack.canUndo())
        stack.undo();
    while (stack.canRedo())
        stack.redo();
}

template <typename Stack, typename Push>
void undoRedoAll(benchmark::State &state, Push push, bool logs)
{
    Stack stack;
    QVariant cell = 0;
    for (int i = 0; i < state.range(0); ++i)
        push(stack, &cell, i);
    for (auto _ : state) {
        state.PauseTiming();
        auto logger = std::make_unique<MemoryLogger>();
        if constexpr (std::is_same_v<Stack, UndoStack>)
            stack.setLogging(logs ? logger.get() : nullptr);
        state.ResumeTiming();
        walkHistory(stack);
        state.PauseTiming();
        logger.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(2 * state.iterations() * state.range(0));
}

void push_bare(benchmark::State &state)
{
    pushAll<QUndoStack>(state, pushBare, false);
}
void push_without_logger(benchmark::State &state)
{
    pushAll<UndoStack>(state, pushAudited, false);
}
void push_memory_logger(benchmark::State &state)
{
    pushAll<UndoStack>(state, pushAudited, true);
}
void undo_redo_bare(benchmark::State &state)
{
    undoRedoAll<QUndoStack>(state, pushBare, false);
}
void undo_redo_without_logger(benchmark::State &state)
{
    undoRedoAll<UndoStack>(state, pushAudited, false);
}
void undo_redo_memory_logger(benchmark::State &state)
{
    undoRedoAll<UndoStack>(state, pushAudited, true);
}

} // namespace

BENCHMARK(push_bare)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(push_without_logger)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(push_memory_logger)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(undo_redo_bare)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(undo_redo_without_logger)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(undo_redo_memory_logger)->RangeMultiplier(10)->Range(1000, 100000);

BENCHMARK_MAIN();
