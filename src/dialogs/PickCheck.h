#pragma once

#include <QStringList>

#include <chrono>
#include <memory>

class QWidget;

namespace ozm {

class SeenEntries;

/**
 * Finds out in a thread of its own which of several paths hold data: files, and folders that are recognised.
 *
 *     const PickCheck check(dialog.selectedFiles(), seen);
 *     if (check.waitBriefly() || check.waitWithMessage(this))
 *         use(check.data());
 *
 * A copy is the same check. What is not finished when the last copy goes is left to end by itself.
 */
class PickCheck
{
public:
    PickCheck(const QStringList &paths, const std::shared_ptr<SeenEntries> &seen);

    [[nodiscard]] bool isDone() const;
    /// Waits a moment for what is near at hand; true when the check is done.
    [[nodiscard]] bool waitBriefly() const;
    /// Runs an event loop, in the end under a message over @p parent that can cancel; true when the check is done.
    [[nodiscard]] bool waitWithMessage(QWidget *parent) const;

    /// Those that hold data, in their order and without a slash at the end. To be asked when the check is done.
    [[nodiscard]] QStringList data() const;

private:
    struct State;

    [[nodiscard]] bool showMessage(QWidget *parent) const;
    [[nodiscard]] bool isDone(std::chrono::milliseconds patience) const;

    std::shared_ptr<State> m_state;
};

} // namespace ozm
