#pragma once

#include <ozm_audit/Entry.h>
#include <ozm_audit_widgets/ozm_audit_widgets_export.h>
#include <ozm_common_stable/Result.h>

#include <QObject>

#include <chrono>
#include <memory>

namespace ozm::audit {

class Logger;

/**
 * Knows the people who may sign. The application implements it, on the directory that the site uses.
 */
class OZM_AUDIT_WIDGETS_EXPORT Authenticator
{
public:
    virtual ~Authenticator();
    /// The person with @p id and @p secret; NotAllowed, without saying which of both is wrong.
    [[nodiscard]] virtual Result<Person> authenticate(const QString &id, const QString &secret) = 0;
};

/**
 * A continuous session of signing: id and secret for the first signature, the secret alone for further ones.
 *
 * It ends when the user does nothing for a while, when lock() is called, and after three failures in a row; then
 * both are asked for again. Every sign-in, failed attempt and lock is an entry of the trail. When a failed
 * attempt cannot be recorded, the attempt counts all the same.
 *
 * GUI thread; logger and authenticator must outlive the session.
 */
class OZM_AUDIT_WIDGETS_EXPORT SigningSession : public QObject
{
    Q_OBJECT

public:
    /// After so long without a signature, a session locks itself.
    [[nodiscard]] static constexpr std::chrono::milliseconds usualIdle() { return std::chrono::minutes(10); }
    SigningSession(Logger &logger, Authenticator &authenticator, std::chrono::milliseconds idle = usualIdle(),
                   QObject *parent = nullptr);
    ~SigningSession() override;

    /// Id and secret are both needed.
    [[nodiscard]] bool needsBoth() const;
    /// The person of the session; empty when both are needed.
    [[nodiscard]] Person signer() const;
    /// Records the signatures.
    [[nodiscard]] Logger &logger() const;

    /// Begins a session. NotAllowed when the person is not known by both.
    [[nodiscard]] Error signIn(const QString &id, const QString &secret);
    /// Confirms that the session's signer is still there.
    [[nodiscard]] Error confirm(const QString &secret);
    /// Ends the session; a second call does nothing.
    void lock();

Q_SIGNALS:
    /// The session went idle or was locked: the next signature asks for all components again.
    void locked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm::audit
