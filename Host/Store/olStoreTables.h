#pragma once

#include "Store/olStoreRows.h"

#include <vector>

class olSqlite;

/// The tables in a store's database: the rows, a seal over them, so that neither a changed row nor a lost one goes
/// unnoticed, and the history of the saves. What fails throws olStoreError.
namespace olStoreTables
{

/// Proves tables, structure and rows. A file that was made but never filled has no seal, and is damaged where a store
/// was in it.
[[nodiscard]] olStoreRows::Contents read(olSqlite &database, bool wasStore);

/// Proves the history too.
[[nodiscard]] olStoreRows::History readHistory(olSqlite &database);

/// Makes the changes, within a transaction, and remembers them under this program's name; false where there was nothing
/// to do. See olPreferencesStore::save() for `left`. Makes the tables where there are none, and those of the earlier
/// form into the present one.
[[nodiscard]] bool change(olSqlite &database, const std::vector<olStoreRows::Change> &changes,
                          std::vector<olStoreRows::Change> *left);

} // namespace olStoreTables
