#pragma once

#include <ozm_widgets/db/common/UndoStack.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QPointer>

namespace ozm {

/**
 * A macro that does not stay open: what leaves the scope before end() aborts it.
 *
 *     ozm::Error renameAll(ozm::UndoStack &stack, const QList<ozm::UndoCommand *> &renames,
 *                          const ozm::OperationLogItemData &record)
 *     {
 *         ozm::UndoMacro macro(stack, record);
 *         for (qsizetype i = 0; i < renames.size(); ++i) {
 *             if (ozm::Error error = stack.push(renames.at(i)); error.hasError()) {
 *                 qDeleteAll(renames.sliced(i + 1));
 *                 return error; // The macro is aborted; what was renamed can be undone.
 *             }
 *         }
 *         macro.end();
 *         return {};
 *     }
 *
 * Macros that were begun inside and are still open are aborted first. Nothing happens to a macro that was
 * ended, aborted or cleared by other means, nor to a stack that is gone. GUI thread.
 */
class OZM_WIDGETS_EXPORT UndoMacro
{
public:
    /// Begins a macro as UndoStack::beginMacro() does; one that is refused is not open.
    UndoMacro(UndoStack &stack, const OperationLogItemData &data, const QString &text = {});
    ~UndoMacro();
    Q_DISABLE_COPY_MOVE(UndoMacro)

    /// False once it was ended, or could not begin.
    [[nodiscard]] bool isOpen() const;
    /// The macro's entry in the trail, null as that of UndoStack::beginMacro().
    [[nodiscard]] QSharedPointer<OperationLogItem> logItem() const;

    /// As UndoStack::endMacro(); false also when the macro is not open.
    bool end();
    /// As UndoStack::abortMacro(); false also when the macro is not open.
    bool abort();

private:
    [[nodiscard]] bool closeInner();

    const QPointer<UndoStack> m_stack;
    const QSharedPointer<OperationLogItem> m_item;
    const quint64 m_serial;
};

} // namespace ozm
