#pragma once

#include "../entry/EntryForm.h"

#include <ozm_audit/Query.h>

#include <QVariantList>

namespace ozm::audit {

/// Tells whether an entry's bytes answer a query, for entries that no index holds yet.
class QueryFilter
{
public:
    explicit QueryFilter(const Query &query);

    [[nodiscard]] bool accepts(const EntryMembers &members, const QByteArray &bytes) const;

private:
    [[nodiscard]] bool containsText(const QByteArray &bytes) const;

    const Query &m_query;
    QByteArray m_user;
    QList<QByteArray> m_kinds;
    QByteArray m_subject;
    QByteArray m_attribute;
};

/// The same as a condition of SQL on the index columns, with question marks for @p values.
struct OZM_AUDIT_EXPORT QueryClauses
{
    QByteArray condition; ///< Begins with " AND" unless empty.
    QVariantList values;

    /// @p text is the dialect's comparison of an entry's bytes with a pattern.
    QueryClauses(const Query &query, const QByteArray &text);
};

} // namespace ozm::audit
