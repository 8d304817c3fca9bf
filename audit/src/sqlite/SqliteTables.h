#pragma once

#include "../tree/MerkleTree.h"

#include <vector>

namespace ozm::audit {

class Database;

/// Makes the columns of the entries from @p first to @p last from their bytes.
[[nodiscard]] Error indexEntries(Database &database, qint64 first, qint64 last);

[[nodiscard]] Error keepSubtrees(Database &database, const std::vector<Subtree> &subtrees);

} // namespace ozm::audit
