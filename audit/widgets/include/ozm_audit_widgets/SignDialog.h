#pragma once

#include <ozm_audit_widgets/Signature.h>
#include <ozm_audit_widgets/SigningSession.h>

#include <QDialog>

#include <memory>

namespace ozm::audit {

/**
 * Asks for a signature: shows in words and by its digest what is signed, and lets the signer choose what the
 * signature means. Records it when it is accepted.
 *
 *     auto content = ozm::audit::SignedContent::of(*store, entries);
 *     if (content)
 *         ozm::audit::SignDialog(session, content.value(), {}, this).exec();
 *
 * An attempt that fails is recorded, its text is shown, and the dialog stays.
 */
class OZM_AUDIT_WIDGETS_EXPORT SignDialog : public QDialog
{
    Q_OBJECT

public:
    /// @p meanings are those to choose from; without any: approved, reviewed, responsible.
    SignDialog(SigningSession &session, const SignedContent &content, const QStringList &meanings = {},
               QWidget *parent = nullptr);
    ~SignDialog() override;

    void accept() override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm::audit
