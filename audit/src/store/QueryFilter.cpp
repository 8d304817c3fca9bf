#include "QueryFilter.h"

#include <algorithm>

namespace ozm::audit {

namespace {

QByteArray withLines(const QByteArray &attributes)
{
    return '\n' + attributes + '\n';
}

/// A pattern of LIKE that stands for the text itself, anywhere.
QString likePattern(QString text)
{
    for (const QChar c : {u'\\', u'%', u'_'})
        text.replace(c, QString(u'\\') + c);
    return u'%' + text + u'%';
}

/// The text as it stands in an entry: as it is in the record's own JSON, and quoted in texts.
QStringList asInEntry(const QString &text)
{
    QString quoted = text;
    quoted.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    return quoted == text ? QStringList{text} : QStringList{text, quoted};
}

} // namespace

QueryFilter::QueryFilter(const Query &query)
    : m_query(query)
    , m_user(query.user.toUtf8())
    , m_subject(subjectIndex(query.subjectType.toUtf8(), query.subjectKey.toUtf8()))
    , m_attribute(query.attribute.toUtf8())
{
    for (const Kind kind : query.kinds)
        m_kinds.append(kindToString(kind).toUtf8());
}

bool QueryFilter::accepts(const EntryMembers &members, const QByteArray &bytes) const
{
    const IndexRow row = IndexRow::of(members);
    const bool failed = row.outcome != 0;
    return members.number >= m_query.firstNumber &&
           (m_query.lastNumber == 0 || members.number <= m_query.lastNumber) &&
           (m_user.isEmpty() || row.user == m_user) && (m_kinds.isEmpty() || m_kinds.contains(row.kind)) &&
           row.timeMs >= m_query.fromMs && (m_query.untilMs == 0 || row.timeMs < m_query.untilMs) &&
           (m_subject.isEmpty() ||
            (m_query.subjectKey.isEmpty() ? row.subject.startsWith(m_subject) : row.subject == m_subject)) &&
           (m_attribute.isEmpty() || withLines(row.attributes).contains(withLines(m_attribute))) &&
           (m_query.outcome == Query::Outcome::Any ||
            failed == (m_query.outcome == Query::Outcome::Failed)) &&
           (m_query.text.isEmpty() || containsText(bytes));
}

bool QueryFilter::containsText(const QByteArray &bytes) const
{
    const QString entry = QString::fromUtf8(bytes);
    const QStringList forms = asInEntry(m_query.text);
    return std::any_of(forms.cbegin(), forms.cend(),
                       [&entry](const QString &form) { return entry.contains(form, Qt::CaseInsensitive); });
}

QueryClauses::QueryClauses(const Query &query, const QByteArray &text)
{
    const auto add = [this](const QByteArray &clause, const QVariantList &bound) {
        condition += " AND " + clause;
        values += bound;
    };
    if (query.firstNumber > 1)
        add("i.number >= ?", {query.firstNumber});
    if (query.lastNumber != 0)
        add("i.number <= ?", {query.lastNumber});
    if (!query.user.isEmpty())
        add("i.\"user\" = ?", {query.user});
    if (!query.kinds.isEmpty()) {
        QVariantList kinds;
        for (const Kind kind : query.kinds)
            kinds.append(kindToString(kind));
        add("i.kind IN (" + QByteArray("?, ").repeated(kinds.size()).chopped(2) + ')', kinds);
    }
    if (query.fromMs != 0)
        add("i.time_ms >= ?", {query.fromMs});
    if (query.untilMs != 0)
        add("i.time_ms < ?", {query.untilMs});
    const QString subject =
        QString::fromUtf8(subjectIndex(query.subjectType.toUtf8(), query.subjectKey.toUtf8()));
    if (!query.subjectKey.isEmpty())
        add("i.subject = ?", {subject});
    else if (!subject.isEmpty()) // A range, which an index finds: the key follows the line feed.
        add("i.subject >= ? AND i.subject < ?", {subject, QString(subject.chopped(1) + QChar(u'\v'))});
    if (!query.attribute.isEmpty())
        add("('\n' || i.attributes || '\n') LIKE ? ESCAPE '\\'",
            {likePattern(u'\n' + query.attribute + u'\n')});
    if (query.outcome != Query::Outcome::Any)
        add(query.outcome == Query::Outcome::Failed ? "i.outcome <> 0" : "i.outcome = 0", {});
    if (query.text.isEmpty())
        return;
    const QStringList forms = asInEntry(query.text);
    if (forms.size() == 1)
        add(text, {likePattern(forms.constFirst())});
    else
        add('(' + text + " OR " + text + ')',
            {likePattern(forms.constFirst()), likePattern(forms.constLast())});
}

} // namespace ozm::audit
