#pragma once

#include <ozm_audit_widgets/SigningSession.h>

#include <QString>

namespace workbench {

/**
 * FOR DEMONSTRATIONS ONLY: knows signers from a text file, which whoever can write it can change.
 *
 * A line is "id:name:role:salt:key", salt and key in hexadecimal; the key is PBKDF2 of the password with
 * HMAC-SHA-256 in 200,000 rounds. docs/workbench.md has a line of Python that makes one. An application for
 * work asks the directory of its site instead.
 */
class DemonstrationAuthenticator : public ozm::audit::Authenticator
{
public:
    explicit DemonstrationAuthenticator(const QString &path);

    [[nodiscard]] ozm::Result<ozm::audit::Person> authenticate(const QString &id,
                                                               const QString &secret) override;

private:
    const QString m_path;
};

} // namespace workbench
