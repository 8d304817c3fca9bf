#pragma once

#include <ozm_audit_widgets/ozm_audit_widgets_export.h>
#include <ozm_common_stable/Result.h>

#include <QList>
#include <QString>

namespace ozm::audit {

/**
 * A set of entry numbers, kept as runs: "1-5,8,10-12".
 *
 * Signatures and reviews hold it as text. A set of ten million numbers without a gap takes one run.
 */
class OZM_AUDIT_WIDGETS_EXPORT NumberSet
{
public:
    /// Numbers one after the other, both ends included.
    struct Run
    {
        qint64 first = 0; ///< The smallest.
        qint64 last = 0;  ///< The largest.

        bool operator==(const Run &) const = default;
    };

    NumberSet() = default;
    explicit NumberSet(Run run);
    /// BadParameter when @p text is not a set.
    [[nodiscard]] static Result<NumberSet> fromText(const QString &text);

    /// As "1-20,25".
    [[nodiscard]] QString toText() const;
    /// In ascending order; no two touch.
    [[nodiscard]] const QList<Run> &runs() const { return m_runs; }
    /// True when there is none.
    [[nodiscard]] bool isEmpty() const { return m_runs.isEmpty(); }
    /// True when @p number is one of them.
    [[nodiscard]] bool contains(qint64 number) const;
    /// How many numbers there are, not runs.
    [[nodiscard]] qint64 count() const;
    /// How many numbers from 1 to @p last are in the set.
    [[nodiscard]] qint64 countUpTo(qint64 last) const;

    /// Numbers that are appended in ascending order cost nothing; others are merged in.
    void add(Run run);
    void add(qint64 number) { add(Run{number, number}); }
    void add(const NumberSet &other);

    bool operator==(const NumberSet &) const = default;

private:
    QList<Run> m_runs; ///< Ascending, with gaps between them.
};

} // namespace ozm::audit
