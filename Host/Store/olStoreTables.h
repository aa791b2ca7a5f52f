#pragma once

#include "Store/olSqlite.h"
#include "Store/olStoreRows.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

/// The tables in a store's database: the rows with their checksums, and the seal. Goes before its database; what fails
/// throws olStoreFault or olSqliteError.
class olStoreTables
{
public:
    explicit olStoreTables(olSqlite &database) : m_database(database) {}

    [[nodiscard]] static olStoreFault faultOf(const olSqliteError &error);
    [[noreturn]] static void damaged(const char *reason);

    /// False in a file that was made but never filled.
    [[nodiscard]] bool exist();
    void create();

    void requireOurFormat();

    /// All rows, each against its checksum, and all together against the seal.
    olStoreRows prove();

    /// Puts and removes rows, and renews the seal. Only for what create() or prove() has just seen to in the same
    /// transaction, or what nobody else has changed since: the seal goes on what was proved then, whatever the file
    /// may hold now.
    void change(const olStoreRows &put, const std::vector<olStoreRows::Key> &removed);

private:
    void write(const olStoreRows &rows);
    void erase(const std::vector<olStoreRows::Key> &keys);
    void renewSeal();
    olSqliteStatement &prepared(std::optional<olSqliteStatement> &statement, const char *sql);

    olSqlite &m_database;
    // In the order in which the database has the rows.
    std::map<olStoreRows::Key, std::string> m_checksums;
    std::optional<olSqliteStatement> m_insert;
    std::optional<olSqliteStatement> m_erase;
    std::optional<olSqliteStatement> m_seal;
};
