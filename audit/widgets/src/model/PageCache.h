#pragma once

#include "EntryTexts.h"

#include <ozm_audit/Store.h>

#include <QCache>

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace ozm::audit {

/// An entry with its texts, which are made when they are first asked for.
struct TrailRow
{
    Entry entry;
    std::optional<EntryTexts> texts;
    TrailModel::Marks marks;
    int marksStamp = -1; ///< Which state of all marks the row's are from.
    /// The texts of the cells; null where they were not made yet.
    std::array<QString, TrailModel::ColumnCount> cells;
};

/**
 * The entries around those that are in sight, by their position in the order of the store.
 */
class PageCache
{
public:
    /// Gives the numbers at a position and after it.
    using Numbers = std::function<QList<qint64>(qint64 position, qint64 count)>;

    PageCache(const Store &store, Numbers numbers);

    /// Reads the page when it has to; null when the position has no entry or the store cannot be read.
    [[nodiscard]] TrailRow *row(qint64 position);
    /// Why the last row() could not be read.
    [[nodiscard]] Error takeError() { return std::exchange(m_error, {}); }
    /// The rows from @p position on are new.
    void grewFrom(qint64 position);
    void clear() { m_pages.clear(); }

private:
    using Page = std::vector<TrailRow>;
    [[nodiscard]] Page read(qint64 position);

    const Store &m_store;
    const Numbers m_numbers;
    QCache<qint64, Page> m_pages;
    Error m_error;
};

} // namespace ozm::audit
