#pragma once

#include <QDialog>
#include <QObject>

#include <functional>
#include <queue>

namespace soak {

/**
 * Answers every dialog that opens, so that nothing waits for a user: by the next of the answers that were
 * prepared, and then, if it is still open, by closing it. Dialogs that show progress end by themselves.
 *
 *     dialogs.prepare([](QDialog *dialog) { dialog->accept(); });
 *     action->trigger();
 *     dialogs.forget();
 *
 * GUI thread.
 */
class Dialogs : public QObject
{
public:
    using Answer = std::function<void(QDialog *)>;

    Dialogs();

    void prepare(const Answer &answer) { m_answers.push(answer); }
    /// Drops the answers that no dialog asked for.
    void forget() { m_answers = {}; }
    [[nodiscard]] qint64 opened() const { return m_opened; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::queue<Answer> m_answers;
    qint64 m_opened = 0;
};

} // namespace soak
