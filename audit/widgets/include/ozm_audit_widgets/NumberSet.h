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
    struct Run
    {
        qint64 first = 0;
        qint64 last = 0;

        bool operator==(const Run &) const = default;
    };

    NumberSet() = default;
    explicit NumberSet(Run run);
    /// BadParameter when @p text is not a set.
    [[nodiscard]] static Result<NumberSet> fromText(const QString &text);

    [[nodiscard]] QString toText() const;
    [[nodiscard]] const QList<Run> &runs() const { return m_runs; }
    [[nodiscard]] bool isEmpty() const { return m_runs.isEmpty(); }
    [[nodiscard]] bool contains(qint64 number) const;
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
