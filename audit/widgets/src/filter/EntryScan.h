#pragma once

#include <ozm_audit/Entry.h>
#include <ozm_audit_widgets/TrailFilter.h>

#include <QHash>
#include <QSet>

namespace ozm::audit {

/// A number that stands for subject and attributes of a change; the same for the same.
[[nodiscard]] quint64 valueKey(const Entry &entry);

/**
 * Tells which entries meet the conditions of a filter that no index answers.
 *
 * Has to be shown every entry from the first on, in order: some conditions depend on what went before. The
 * query of the filter is not looked at.
 */
class EntryScan
{
public:
    explicit EntryScan(const TrailFilter &filter);

    [[nodiscard]] bool accepts(const Entry &entry);

private:
    [[nodiscard]] bool meetsPreset(const Entry &entry);
    [[nodiscard]] bool isOutOfHours(const Entry &entry) const;
    [[nodiscard]] bool isChangedAfterSignature(const Entry &entry);
    [[nodiscard]] bool isChangedAgain(const Entry &entry);
    [[nodiscard]] bool isUndoneAfterSave(const Entry &entry);

    const TrailFilter m_filter;
    QSet<QString> m_signed;
    struct Values
    {
        int changes = 0;
        QList<std::size_t> seen; ///< Hashes of the values, the last ones only.
    };
    QHash<quint64, Values> m_values;
    /// Steps since the last save, of sessions that have saved.
    QHash<QString, int> m_sinceSave;
};

} // namespace ozm::audit
