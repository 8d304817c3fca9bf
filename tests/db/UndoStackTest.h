#pragma once

#include "UndoTestTools.h"
#include "support/StrictTest.h"

namespace ozm::test {

/**
 * The base of tests of the undo stack: a stack with a recording logger, and the journal of both.
 */
class UndoStackTest : public StrictTest
{
    Q_OBJECT

protected:
    [[nodiscard]] ScriptedCommand *command(const Script &script);
    [[nodiscard]] Error push(const Script &script);
    void beginMacro(const QString &name, bool collapse = true);
    /// What happened since the last call.
    [[nodiscard]] QStringList journal();

    QStringList m_journal;
    std::unique_ptr<RecordingLogger> m_logger;
    std::unique_ptr<UndoStack> m_stack;

protected Q_SLOTS:
    void init();
    void cleanup();
};

} // namespace ozm::test
