#include "MemoryBackend.h"

#include "QueryFilter.h"

#include <QRandomGenerator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::audit {

MemoryBackend::MemoryBackend(const QString &trail)
    : m_trail(trail)
{}

QString MemoryBackend::place() const
{
    return u"memory:"_s;
}

Result<StoredHead> MemoryBackend::head()
{
    return StoredHead{m_frontier.size(), m_frontier.toBytes(), m_frontier.size()};
}

Result<qint64> MemoryBackend::append(const QList<NewEntry> &entries)
{
    const qint64 first = m_frontier.size() + 1;
    std::vector<Subtree> completed;
    for (const NewEntry &entry : entries) {
        StoredRow row;
        row.number = m_frontier.size() + 1;
        row.bytes = storePart(m_trail.toUtf8(), row.number, parentNumber(entry.parent, first)) + entry.claims;
        const Hash leaf = leafHash(row.bytes);
        row.hash = toBytes(leaf);
        EntryMembers members;
        (void)members.read(row.bytes);
        row.index = IndexRow::of(members);
        m_frontier.append(leaf, &completed);
        m_rows.append(row);
    }
    for (const Subtree &subtree : completed) {
        const auto level = qsizetype(subtree.level / kKeptLevels - 1);
        m_subtrees.resize(qMax(m_subtrees.size(), level + 1));
        m_subtrees[level].push_back(subtree.hash);
    }
    return first;
}

Error MemoryBackend::rows(qint64 first, qint64 last, const std::function<bool(const StoredRow &)> &show)
{
    for (qint64 number = qMax<qint64>(1, first); number <= qMin(last, qint64(m_rows.size())); ++number) {
        if (!show(m_rows.at(number - 1)))
            break;
    }
    return {};
}

Result<QList<Entry>> MemoryBackend::find(const Query &query)
{
    return findByReading(*this, query, 1, m_rows.size());
}

Result<std::vector<Hash>> MemoryBackend::hashes(int level, qint64 first, qint64 count)
{
    std::vector<Hash> found;
    for (qint64 i = first; i < first + count; ++i) {
        if (level == 0 && i < m_rows.size())
            found.push_back(*toHash(m_rows.at(i).hash));
        else if (level > 0 && i < qint64(m_subtrees.value(level / kKeptLevels - 1).size()))
            found.push_back(m_subtrees.at(level / kKeptLevels - 1).at(std::size_t(i)));
    }
    return found;
}

Error MemoryBackend::keepCheckpoint(const Checkpoint &checkpoint)
{
    m_checkpoints.append(checkpoint);
    return {};
}

Error MemoryBackend::setHead(const Frontier &frontier)
{
    m_frontier = frontier;
    return {};
}

Result<qint64> MemoryBackend::dispose(Range range, const NewEntry &record)
{
    auto number = append({record});
    for (qint64 i = range.first; i <= range.last; ++i) {
        m_rows[i - 1].bytes.clear();
        m_rows[i - 1].index.reset();
    }
    return number;
}

Result<QList<Entry>> findByReading(StoreBackend &backend, const Query &query, qint64 first, qint64 last)
{
    const bool backwards = query.order == Query::Order::NewestFirst;
    if (query.after != 0)
        (backwards ? last : first) = backwards ? qMin(last, query.after - 1) : qMax(first, query.after + 1);
    first = qMax(first, query.firstNumber);
    if (query.lastNumber != 0)
        last = qMin(last, query.lastNumber);
    const QueryFilter filter(query);
    QList<Entry> page;
    Error error = backend.rows(first, last, [&](const StoredRow &row) {
        EntryMembers members;
        if (members.read(row.bytes) && filter.accepts(members, row.bytes)) {
            if (auto entry = Entry::fromBytes(row.bytes))
                page.append(std::move(entry).value());
        }
        return backwards || page.size() < query.pageSize;
    });
    if (error.hasError())
        return error;
    if (backwards) {
        page = page.last(qMin(page.size(), qsizetype(query.pageSize)));
        std::reverse(page.begin(), page.end());
    }
    return page;
}

QString newTrailName(const QString &name)
{
    QString plain;
    for (const QChar c : name)
        plain += c.isLetterOrNumber() || c == u'.' || c == u'-' || c == u'_' ? c : QChar(u'-');
    return plain + u'-' +
           QString::number(QRandomGenerator::system()->generate64(), 16).rightJustified(16, u'0');
}

} // namespace ozm::audit
