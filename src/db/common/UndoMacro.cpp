#include <ozm_widgets/db/common/UndoMacro.h>

#include "UndoStack_p.h"

namespace ozm {

UndoMacro::UndoMacro(UndoStack &stack, const OperationLogItemData &data, const QString &text)
    : m_stack(&stack)
    , m_item(stack.beginMacro(data, text))
    , m_serial(stack.d->openMacros.isEmpty() ? 0 : stack.d->openMacros.constLast())
{}

UndoMacro::~UndoMacro()
{
    abort();
}

bool UndoMacro::isOpen() const
{
    return m_stack && m_stack->d->openMacros.contains(m_serial);
}

QSharedPointer<OperationLogItem> UndoMacro::logItem() const
{
    return m_item;
}

bool UndoMacro::end()
{
    return closeInner() && m_stack->endMacro();
}

bool UndoMacro::abort()
{
    return closeInner() && m_stack->abortMacro();
}

bool UndoMacro::closeInner()
{
    if (!isOpen())
        return false;
    while (m_stack->d->openMacros.constLast() != m_serial)
        m_stack->abortMacro();
    return true;
}

} // namespace ozm
