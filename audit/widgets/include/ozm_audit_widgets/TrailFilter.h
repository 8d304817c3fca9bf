#pragma once

#include <ozm_audit/Query.h>
#include <ozm_audit_widgets/ozm_audit_widgets_export.h>
#include <ozm_common_stable/Result.h>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTime>

namespace ozm::audit {

/// Reviews by exception: what a reviewer looks for first. Stored texts are those of presetToString().
enum class ReviewPreset
{
    None,
    Deletions,             ///< Deleted objects, disposals, redactions.
    ChangedAfterSignature, ///< Changes of a subject that had been signed.
    ChangedAgain,          ///< The third and later changes of a value, and changes back to an earlier one.
    Refused,               ///< Steps that were refused or failed.
    OutOfHours,
    ClockAndGaps,    ///< Clock jumps, gaps, recorded damages.
    UndoneAfterSave, ///< Steps that were undone after the session had saved.
    SettingsAndRights,
};

/// The enumerator's name, as it is stored.
[[nodiscard]] OZM_AUDIT_WIDGETS_EXPORT QString presetToString(ReviewPreset preset);
/// For people, as in "Changes after a signature".
[[nodiscard]] OZM_AUDIT_WIDGETS_EXPORT QString presetTitle(ReviewPreset preset);
/// All presets, in the order in which they are offered.
[[nodiscard]] OZM_AUDIT_WIDGETS_EXPORT QList<ReviewPreset> reviewPresets();

/// When people are expected to work, by the clock that the entry shows; Saturday and Sunday are out of hours.
struct WorkingHours
{
    /// The first moment of the working day.
    QTime from = QTime(7, 0);
    /// The first moment after it.
    QTime until = QTime(19, 0);

    bool operator==(const WorkingHours &) const = default;
};

/**
 * Which entries a view shows: a query, and conditions that need more than the store's index.
 *
 *     ozm::audit::TrailFilter filter;
 *     filter.query.user = u"jdoe"_s;
 *     filter.preset = ozm::audit::ReviewPreset::Deletions;
 *     filter.inWords(); // "Deletions; user jdoe"
 *     error = filter.save(u"deletions-jdoe.trailfilter"_s);
 *
 * A saved filter is a small JSON text that people can hand on. Order, page and number range of the query are
 * not part of it.
 */
struct OZM_AUDIT_WIDGETS_EXPORT TrailFilter
{
    Query query = {};                         ///< The conditions that the store itself answers.
    QString session = {};                     ///< One run of a program only; empty for all.
    bool withoutReason = false;               ///< Steps that say no reason.
    ReviewPreset preset = ReviewPreset::None; ///< A ready-made choice of what a review looks at.
    WorkingHours hours = {};                  ///< The hours of ReviewPreset::OutOfHours.

    /// Shows everything.
    [[nodiscard]] bool isEmpty() const;
    /// True when entries have to be read to tell whether they are shown.
    [[nodiscard]] bool needsEntries() const;
    /// The conditions, each as words: those of the chips above a view.
    [[nodiscard]] QStringList conditions() const;
    /// All conditions in one line.
    [[nodiscard]] QString inWords() const;
    /// The same filter without the condition at @p index of conditions().
    [[nodiscard]] TrailFilter without(qsizetype index) const;

    /// As fromJson() reads it.
    [[nodiscard]] QByteArray toJson() const;
    /// BadParameter when @p json is not a filter, or of a newer form.
    [[nodiscard]] static Result<TrailFilter> fromJson(const QByteArray &json);
    /// Replaces the file at @p path; FileAccess when it cannot be written.
    [[nodiscard]] Error save(const QString &path) const;
    /// Reads what save() wrote; FileAccess when @p path cannot be read.
    [[nodiscard]] static Result<TrailFilter> load(const QString &path);
};

} // namespace ozm::audit
