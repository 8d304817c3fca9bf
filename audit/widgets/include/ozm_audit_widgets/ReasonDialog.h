#pragma once

#include <ozm_audit/Logger.h>
#include <ozm_audit_widgets/ozm_audit_widgets_export.h>

#include <QDialog>
#include <QPointer>

#include <memory>

namespace ozm::audit {

/// Asks why a change is made: a list, free text, or both.
class OZM_AUDIT_WIDGETS_EXPORT ReasonDialog : public QDialog
{
    Q_OBJECT

public:
    /// @p what says the change in words. With FromList, @p choices are all that can be chosen; otherwise they are
    /// proposals beside the free text.
    ReasonDialog(const QString &what, ReasonPolicy::Demand demand, const QStringList &choices,
                 QWidget *parent = nullptr);
    ~ReasonDialog() override;

    /// Empty when none was given.
    [[nodiscard]] QString reason() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

/**
 * Reasons by rules, asked for with a ReasonDialog: once for each step, or for all steps of a macro.
 *
 *     ozm::audit::AskedReasons reasons(window);
 *     reasons.addRule({.subjectType = u"Label"_s, .attribute = u"Charge"_s, .demand = Demand::Required});
 *     ozm::audit::Logger logger(*store, {.user = user, .reasons = &reasons});
 *
 * The first rule that fits decides; nothing is asked where none fits.
 */
class OZM_AUDIT_WIDGETS_EXPORT AskedReasons : public ReasonPolicy
{
public:
    /// Which steps ask for a reason, and how.
    struct Rule
    {
        QString subjectType = {};         ///< Empty for any.
        QString attribute = {};           ///< Empty for any.
        bool onlyDeletions = false;       ///< True for steps that delete only.
        Demand demand = Demand::Optional; ///< How urgently.
        QStringList choices = {};         ///< The reasons to choose from.
    };

    explicit AskedReasons(QWidget *parent = nullptr);
    ~AskedReasons() override;

    /// The first rule that fits a step decides about it.
    void addRule(const Rule &rule);

    [[nodiscard]] Demand demand(const OperationLogItemData &data) const override;
    [[nodiscard]] QStringList choices(const OperationLogItemData &data) const override;
    [[nodiscard]] QString reason(const OperationLogItemData &data) override;

private:
    [[nodiscard]] const Rule *ruleFor(const OperationLogItemData &data) const;

    const QPointer<QWidget> m_parent;
    QList<Rule> m_rules;
};

} // namespace ozm::audit
