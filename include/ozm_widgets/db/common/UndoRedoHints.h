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
 *     UndoRedoHints::setSessionStarted(true);
 *     UndoRedoHints::setEndSessionFunction([view] { view->refresh(); });
 *     for (int i = 0; i < count; ++i) {
 *         UndoRedoHints::setHintByIndex(i, count);
 *         stack->undo();
 *     }
 *     UndoRedoHints::setHintNone();
 *
 *     // in the command
 *     UndoRedoHints hints;
 *     hints.setSessionUndo();
 *     if (hints.isFirstInQueue())
 *         view->hold();
 *
 * A command that runs alone is both first and last. GUI thread only.
 */
class OZM_WIDGETS_EXPORT UndoRedoHints
{
public:
    enum class Session : qint32
    {
        Undo = 0,
        Redo = 1
    };

    /// Where the step now being run stands: 1 first, 2 in the middle, 4 last; 5 is a step by itself.
    static qint32 s_undo_redo_instance_flag;

    /// A redo at the place given by the current hint.
    UndoRedoHints();

    [[nodiscard]] bool isFirstInQueue() const;
    [[nodiscard]] bool isLastInQueue() const;

    void setSession(Session session);
    void setSessionUndo();
    void setSessionRedo();
    /// Takes over the current hint once more.
    void setUndoRedoFlag();

    /// Hints that the step @p index of @p count, counted in the order in which they run, comes next.
    static void setHintByIndex(int index, int count);
    /// Ends the session: calls the end-session function if a session was started, and forgets both.
    static void setHintNone();

    [[nodiscard]] static bool isSessionStarted();
    static void setSessionStarted(bool started);
    static void setEndSessionFunction(const std::function<void()> &function);

private:
    qint32 m_flags;
    Session m_session = Session::Redo;
};
