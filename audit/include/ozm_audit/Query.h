#pragma once

#include <ozm_audit/Entry.h>

#include <QList>
#include <QString>

namespace ozm::audit {

/**
 * Which entries to read, one page at a time.
 *
 *     ozm::audit::Query query;
 *     query.subjectType = u"Label"_s;
 *     query.outcome = ozm::audit::Query::Outcome::Failed;
 *     for (auto page = store->find(query); page && !page.value().isEmpty(); page = store->find(query)) {
 *         show(page.value());
 *         query.after = page.value().constLast().number;
 *     }
 *
 * Members left at their defaults do not narrow the result.
 */
struct Query
{
    /// In which order entries come, by number.
    enum class Order
    {
        OldestFirst,
        NewestFirst,
    };
    /// Which entries are asked for by how their step ended.
    enum class Outcome
    {
        Any,
        Succeeded,
        Failed,
    };

    QString user = {};              ///< By id.
    QList<Kind> kinds = {};         ///< Any of these; all kinds when empty.
    qint64 fromMs = 0;              ///< Milliseconds since 1970-01-01 UTC, inclusive.
    qint64 untilMs = 0;             ///< Exclusive; 0 for no end.
    QString subjectType = {};       ///< The kind of object.
    QString subjectKey = {};        ///< The very text of Draft::subjectKey.
    QString attribute = {};         ///< Entries that name this attribute, alone or among others.
    Outcome outcome = Outcome::Any; ///< By how the step ended.
    QString text = {};              ///< Anywhere in the entry, upper and lower case alike.
    qint64 firstNumber = 0;         ///< Inclusive.
    qint64 lastNumber = 0;          ///< Inclusive; 0 for no end.

    Order order = Order::OldestFirst; ///< The order of the pages, and within a page.
    qint64 after = 0; ///< The number at which the last page ended, in the given order; 0 for the first page.
    int pageSize = 100; ///< The most entries that one answer holds.
};

} // namespace ozm::audit
