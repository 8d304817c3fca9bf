#include <ozm_widgets/db/common/UndoRedoHints.h>

#include <utility>

namespace {

constexpr qint32 kFirst = 1;
constexpr qint32 kMiddle = 2;
constexpr qint32 kLast = 4;

bool s_sessionStarted = false;

std::function<void()> &endSessionFunction()
{
    static std::function<void()> function;
    return function;
}

} // namespace

qint32 UndoRedoHints::s_undo_redo_instance_flag = kFirst | kLast;

UndoRedoHints::UndoRedoHints()
    : m_flags(s_undo_redo_instance_flag)
{}

// The hints follow the order in which the steps run; an undo walks the history backwards, so there the
// step hinted as last is the first of the queue.
bool UndoRedoHints::isFirstInQueue() const
{
    return (m_session == Session::Redo && (m_flags & kFirst)) ||
           (m_session == Session::Undo && (m_flags & kLast));
}

bool UndoRedoHints::isLastInQueue() const
{
    return (m_session == Session::Redo && (m_flags & kLast)) ||
           (m_session == Session::Undo && (m_flags & kFirst));
}

void UndoRedoHints::setSession(Session session)
{
    m_session = session;
}

void UndoRedoHints::setSessionUndo()
{
    m_session = Session::Undo;
}

void UndoRedoHints::setSessionRedo()
{
    m_session = Session::Redo;
}

void UndoRedoHints::setUndoRedoFlag()
{
    m_flags = s_undo_redo_instance_flag;
}

void UndoRedoHints::setHintByIndex(int index, int count)
{
    if (count <= 1)
        s_undo_redo_instance_flag = kFirst | kLast;
    else if (index == 0)
        s_undo_redo_instance_flag = kFirst;
    else if (index == count - 1)
        s_undo_redo_instance_flag = kLast;
    else
        s_undo_redo_instance_flag = kMiddle;
}

void UndoRedoHints::setHintNone()
{
    s_undo_redo_instance_flag = kFirst | kLast;
    // Taken out before the call, so that a function which ends the session itself is not called again.
    const std::function<void()> function = std::exchange(endSessionFunction(), {});
    if (s_sessionStarted && function)
        function();
    s_sessionStarted = false;
    endSessionFunction() = nullptr;
}

bool UndoRedoHints::isSessionStarted()
{
    return s_sessionStarted;
}

void UndoRedoHints::setSessionStarted(bool started)
{
    s_sessionStarted = started;
}

void UndoRedoHints::setEndSessionFunction(const std::function<void()> &function)
{
    endSessionFunction() = function;
}

UndoRedoHints::Run::Run(int count, const std::function<void()> &atEnd)
    : m_count(count)
    , m_isInner(isSessionStarted())
    , m_outerFlag(s_undo_redo_instance_flag)
    , m_atEnd(atEnd)
{
    setSessionStarted(true);
    if (!m_isInner)
        setEndSessionFunction(atEnd);
}

UndoRedoHints::Run::~Run()
{
    if (!m_isInner) {
        setHintNone();
        return;
    }
    s_undo_redo_instance_flag = m_outerFlag;
    if (m_atEnd)
        m_atEnd();
}

bool UndoRedoHints::Run::next()
{
    if (m_next >= m_count)
        return false;
    setHintByIndex(m_next++, m_count);
    return true;
}
