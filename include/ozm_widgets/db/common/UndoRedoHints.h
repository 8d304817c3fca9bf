#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QtGlobal>

#include <functional>

/**
 * Tells a command that runs as one of several whether it is the first or the last of them, so that costly
 * work, such as refreshing a view, is done once for all.
 *
 * Whoever runs the steps says where they stand; each command asks a value made when it runs:
 *
 *     UndoRedoHints::Run run(stack->index(), [view] { view->update(); });
 *     while (run.next())
 *         stack->undo();
 *
 *     // in the command
 *     UndoRedoHints hints;
 *     hints.setSessionUndo();
 *     if (hints.isFirstInQueue())
 *         view->setUpdatesEnabled(false);
 *
 * A command that runs alone is both first and last. GUI thread only.
 */
class OZM_WIDGETS_EXPORT UndoRedoHints
{
public:
    /// The direction in which steps run.
    enum class Session : qint32
    {
        Undo = 0,
        Redo = 1
    };

    class Run;

    /// Where the step now being run stands: 1 first, 2 in the middle, 4 last; 5 is a step by itself.
    static qint32 s_undo_redo_instance_flag;

    /// A redo at the place given by the current hint.
    UndoRedoHints();

    /// True for the first step of a run, and for one alone.
    [[nodiscard]] bool isFirstInQueue() const;
    /// True for the last step of a run, and for one alone.
    [[nodiscard]] bool isLastInQueue() const;

    /// The direction of this hint alone.
    void setSession(Session session);
    /// The same as setSession(Session::Undo).
    void setSessionUndo();
    /// The same as setSession(Session::Redo).
    void setSessionRedo();
    /// Takes over the current hint once more.
    void setUndoRedoFlag();

    /// Hints that the step @p index of @p count, counted in the order in which they run, comes next.
    static void setHintByIndex(int index, int count);
    /// Ends the session: calls the end-session function if a session was started, and forgets both.
    static void setHintNone();

    /// True while steps run whose session somebody started.
    [[nodiscard]] static bool isSessionStarted();
    /// Starts a session, or forgets that one was started.
    static void setSessionStarted(bool started);
    /// Called once, when the session ends.
    static void setEndSessionFunction(const std::function<void()> &function);

private:
    qint32 m_flags;
    Session m_session = Session::Redo;
};

/**
 * A run of steps that ends with its scope, however that is left.
 *
 * Begins a session, sets the hint for each step, and calls setHintNone() at the end. Within another run it
 * is part of that session: it calls its own function at its end, and leaves the other's hint and function
 * as it found them.
 */
class OZM_WIDGETS_EXPORT UndoRedoHints::Run
{
public:
    /// @p atEnd, which may be empty, is called once at the end of the run.
    explicit Run(int count, const std::function<void()> &atEnd = {});
    ~Run();
    Q_DISABLE_COPY_MOVE(Run)

    /// Hints that the next step comes; false when there is none left.
    [[nodiscard]] bool next();

private:
    const int m_count;
    int m_next = 0;
    const bool m_isInner;
    const qint32 m_outerFlag;
    const std::function<void()> m_atEnd;
};
