#include "SqliteTables.h"

#include "../entry/EntryForm.h"
#include "Database.h"

namespace ozm::audit {

Error indexEntries(Database &database, qint64 first, qint64 last)
{
    Statement entries(database,
                      "SELECT number, bytes FROM entry WHERE number BETWEEN ? AND ? AND bytes IS NOT NULL");
    Statement insert(database, "INSERT OR REPLACE INTO entry_index VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
    entries.bind(1, first).bind(2, last);
    while (entries.step()) {
        EntryMembers members;
        if (!members.read(entries.bytesHere(1)))
            continue;
        const IndexRow row = IndexRow::of(members);
        Error error = insert.bind(1, entries.number(0))
                          .bind(2, row.timeMs)
                          .bindText(3, row.kind)
                          .bindText(4, row.user)
                          .bind(5, row.outcome)
                          .bind(6, row.parent)
                          .bindText(7, row.subject)
                          .bindText(8, row.attributes)
                          .run();
        if (error.hasError())
            return error;
    }
    return entries.error();
}

Error keepSubtrees(Database &database, const std::vector<Subtree> &subtrees)
{
    for (const Subtree &subtree : subtrees) {
        Statement keep(database, "INSERT INTO subtree VALUES (?, ?, ?)");
        Error error = keep.bind(1, subtree.level)
                          .bind(2, subtree.position)
                          .bindBlob(3, {subtree.hash.data(), qsizetype(subtree.hash.size())})
                          .run();
        if (error.hasError())
            return error;
    }
    return {};
}

} // namespace ozm::audit
