#pragma once

#include <ozm_audit_widgets/Review.h>
#include <ozm_audit_widgets/TrailModel.h>

#include <QDialog>

#include <memory>

namespace ozm::audit {

class Logger;

/**
 * Records that the user of the logger has reviewed what the filter of a model shows.
 *
 * Says how many entries that are, how many of them nobody had reviewed, and flags a reviewer who made some of
 * them. A comment is needed where there are findings.
 */
class OZM_AUDIT_WIDGETS_EXPORT ReviewDialog : public QDialog
{
    Q_OBJECT

public:
    /// @p discrepancies are proposed as the entries that the findings are about.
    ReviewDialog(const TrailModel &model, Logger &logger, const Person &reviewer,
                 const NumberSet &discrepancies = {}, QWidget *parent = nullptr);
    ~ReviewDialog() override;

    void accept() override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm::audit
