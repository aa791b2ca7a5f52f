#pragma once

#include "Store/olSqlite.h"
#include "Store/olStoreRows.h"

#include <QByteArray>

#include <string>
#include <vector>

/// The tables in a store's database: the rows, a seal over them, so that neither a changed row nor a lost one goes
/// unnoticed, and the history of the saves. What fails throws olStoreError.
class olStoreTables
{
public:
    explicit olStoreTables(olSqlite &database) : m_database(database) {}

    [[noreturn]] static void damaged(const QString &reason);

    /// What the beginning of a file tells: whether it was a store, perhaps before it was damaged, and whether it is one
    /// of the earlier form, which kept its saves in a log.
    [[nodiscard]] static bool looksLikeAStore(const QByteArray &header);
    [[nodiscard]] static bool usesALog(const QByteArray &header);

    /// False in a file that was made but never filled.
    [[nodiscard]] bool exist();

    /// Proves tables, structure and seal.
    [[nodiscard]] olStoreRows::Rows rows();
    [[nodiscard]] olStoreRows::History history();

    /// Makes the changes, within a transaction, and remembers the real ones under the program's name. Makes the tables
    /// where there are none, and those of the earlier form into the present one.
    void change(const olStoreRows::Changes &changes, const std::string &program);

private:
    void requireOurs();
    void create();
    void remember(const std::vector<olStoreRows::Change> &changes, const std::string &program);

    olSqlite &m_database;
};
