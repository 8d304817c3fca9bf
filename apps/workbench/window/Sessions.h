#pragma once

#include <ozm_common_stable/Error.h>

#include <QString>

#include <memory>
#include <vector>

namespace workbench {

class FirstStepsSession;

/**
 * The windows of a running workbench: one on the user's own samples and trail, and those of first steps.
 *
 * Sessions live until the program ends, so that windows beside them, such as a template editor, may use them. The
 * user's trail is opened, or made, with the first window that needs it. GUI thread.
 */
class Sessions
{
public:
    /// @p database as in openTrail(), with the application's data folder.
    Sessions(QString database, QString user);
    ~Sessions();

    /// True for a user who has neither seen the first steps nor has a trail.
    [[nodiscard]] bool areNew() const;
    /// Opens the window on own samples, with those of the CSV file at @p file unless that is empty.
    ozm::Error openOwn(const QString &file);
    ozm::Error openFirstSteps();

private:
    struct Own;

    void openOwnOrComplain(const QString &file);
    void openFirstStepsOrComplain();

    const QString m_database;
    const QString m_user;
    std::unique_ptr<Own> m_own;
    std::vector<std::unique_ptr<FirstStepsSession>> m_firstSteps;
};

/// Says @p error in a message box, to a user who may have started the program without a terminal.
void complainOnScreen(const ozm::Error &error);

} // namespace workbench
