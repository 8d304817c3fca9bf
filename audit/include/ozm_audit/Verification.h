#pragma once

#include <ozm_audit/Checkpoint.h>

#include <QList>
#include <QString>

#include <functional>

namespace ozm::audit {

/// How a trail can be damaged. Texts by damageToString() are stored with re-anchors and never change.
enum class Damage
{
    Changed,      ///< The bytes of an entry, or its stored hash.
    Missing,      ///< An entry between others, or its bytes without a recorded disposal.
    Reordered,    ///< An entry stands in the place of another.
    IndexDiffers, ///< Columns, subtree hashes or the head beside the entries do not follow from them.
    CutOff,       ///< Entries that a checkpoint or the head counts are not there.
    Rebuilt,      ///< Consistent in itself, but not what a checkpoint says.
    NotTheTrail,  ///< A checkpoint that is another trail's, or whose signature is wrong.
};

/// The enumerator's name.
[[nodiscard]] OZM_AUDIT_EXPORT QString damageToString(Damage damage);

/// One damage, at the first and last number that it concerns.
struct Finding
{
    Damage damage = Damage::Changed; ///< The sort of damage.
    qint64 first = 0;                ///< The first entry that it concerns.
    qint64 last = 0;                 ///< The last entry that it concerns.
    QString text;                    ///< For people.
    Checkpoint checkpoint;           ///< The one that shows it, if one does.
    qint64 acknowledgedBy = 0;       ///< Number of the re-anchor that records it, or 0.
};

/// Told how far long work is, on the thread that does it; false ends the work with an error.
using Progress = std::function<bool(qint64 done, qint64 total)>;

/// Entries by number, both ends included.
struct Range
{
    qint64 first = 0; ///< Counts from 1.
    qint64 last = 0;  ///< Inclusive.
};

/**
 * The result of checking a trail.
 *
 * Entries up to anchored are vouched for by a checkpoint from outside. Those after it are only consistent in
 * themselves: whoever could write to the store could have made all of them anew.
 */
struct OZM_AUDIT_EXPORT Verification
{
    QString trail;           ///< The trail's name.
    qint64 size = 0;         ///< How many entries were checked.
    QByteArray root;         ///< The root of the trail's tree, 32 bytes.
    qint64 anchored = 0;     ///< The last entry that a checkpoint from outside vouches for; 0 without one.
    QList<Finding> findings; ///< By number; no more than 1000.
    QList<Range> disposed;   ///< Entries whose bytes were disposed of by the rules.

    /// No damage, or none that a re-anchor does not record.
    [[nodiscard]] bool isWhole() const;
    /// A few lines for people.
    [[nodiscard]] QString toString() const;
};

} // namespace ozm::audit
