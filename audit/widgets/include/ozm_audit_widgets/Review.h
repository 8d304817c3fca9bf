#pragma once

#include <ozm_audit/Store.h>
#include <ozm_audit_widgets/NumberSet.h>
#include <ozm_audit_widgets/TrailFilter.h>

namespace ozm::audit {

/// Stored texts are those of reviewOutcomeToString().
enum class ReviewOutcome
{
    NoFindings,
    Findings,  ///< Explained, or dealt with.
    Escalated, ///< Handed on to somebody else.
};

/// The enumerator's name, as it is stored.
[[nodiscard]] OZM_AUDIT_WIDGETS_EXPORT QString reviewOutcomeToString(ReviewOutcome outcome);
/// For the screen, in the user's language.
[[nodiscard]] OZM_AUDIT_WIDGETS_EXPORT QString reviewOutcomeTitle(ReviewOutcome outcome);

/// A review as it is recorded: which entries were looked at, under which filter, and what came of it.
struct OZM_AUDIT_WIDGETS_EXPORT Review
{
    qint64 upTo = 0;         ///< The last entry of the trail that was looked at, shown or not.
    TrailFilter filter = {}; ///< The filter through which the entries were seen.
    NumberSet entries = {};  ///< Those that the filter showed.
    ReviewOutcome outcome = ReviewOutcome::NoFindings; ///< With findings or without.
    QString comment = {};                              ///< The reviewer's own words.
    NumberSet discrepancies = {};                      ///< Entries that the findings are about.
    bool reviewerActed = false; ///< The reviewer made some of the entries: the review is not independent.

    /// User and times are left to the logger.
    [[nodiscard]] Draft toDraft() const;
};

/// True when @p userId made one of @p entries, reviews and their own session aside.
[[nodiscard]] OZM_AUDIT_WIDGETS_EXPORT Result<bool> hasActed(const Store &store, const QString &userId,
                                                             const NumberSet &entries);

} // namespace ozm::audit
