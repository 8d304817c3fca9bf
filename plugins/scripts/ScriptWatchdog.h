#pragma once

#include <chrono>

class QJSEngine;

namespace ozm {

/**
 * Interrupts an engine whose script runs past its deadline, for as long as this object lives; then makes
 * the engine usable again. Watches may stand inside one another, also on several threads.
 *
 * One thread does it for the whole process. It wakes for a deadline, not for each watch, so that a watch
 * over a short script costs two locks.
 */
class ScriptWatch
{
public:
    /// No deadline when it is zero or less.
    ScriptWatch(QJSEngine &engine, std::chrono::milliseconds deadline);
    ~ScriptWatch();
    ScriptWatch(const ScriptWatch &) = delete;
    ScriptWatch &operator=(const ScriptWatch &) = delete;

    /// True when the deadline has passed.
    [[nodiscard]] bool barked() const;

private:
    QJSEngine &m_engine;
    const bool m_watching;
};

} // namespace ozm
