#include "Store/olStoreTables.h"

#include <QCoreApplication>
#include <QCryptographicHash>

#include <initializer_list>

namespace
{

using Kind = olStoreFault::Kind;

constexpr int currentFormat = 1;

// "ORLO", so that a file can be told from other programs' databases.
constexpr int applicationId = 0x4f524c4f;

constexpr auto settingTable = "CREATE TABLE setting (home TEXT NOT NULL, key TEXT NOT NULL, type TEXT NOT NULL,"
                              " value TEXT NOT NULL, checksum TEXT NOT NULL, PRIMARY KEY (home, key)) WITHOUT ROWID";
constexpr auto sealTable = "CREATE TABLE seal (rows TEXT NOT NULL)";

QString translated(const char *text) { return QCoreApplication::translate("olStoreFile", text); }

/// 64 bits of a digest over the parts, each with its length, so that no two lists of parts look the same.
std::string checksum(std::initializer_list<std::string> parts)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const std::string &part : parts) {
        const std::string length = std::to_string(part.size()) + ':';
        hash.addData(length.data(), int(length.size()));
        hash.addData(part.data(), int(part.size()));
    }
    return hash.result().left(8).toHex().toStdString();
}

std::string sealOf(const std::string &checksums) { return checksum({checksums}); }

} // namespace

olStoreFault olStoreTables::faultOf(const olSqliteError &error)
{
    switch (error.kind) {
    case olSqliteError::Kind::Damaged:
        return {Kind::Damaged, error.reason};
    case olSqliteError::Kind::Busy:
        return {Kind::Busy, error.reason};
    case olSqliteError::Kind::Other:
        break;
    }
    return {Kind::Access, error.reason};
}

void olStoreTables::damaged(const char *reason) { throw olStoreFault{Kind::Damaged, translated(reason)}; }

bool olStoreTables::exist()
{
    return m_database.number("PRAGMA application_id") != 0 || m_database.number("PRAGMA user_version") != 0 ||
           m_database.number("SELECT count(*) FROM sqlite_schema") != 0;
}

void olStoreTables::create()
{
    m_database.run(settingTable);
    m_database.run(sealTable);
    m_database.run("INSERT INTO seal VALUES ('')");
    m_database.run(("PRAGMA application_id = " + std::to_string(applicationId)).c_str());
    m_database.run(("PRAGMA user_version = " + std::to_string(currentFormat)).c_str());
    m_checksums.clear();
}

void olStoreTables::requireOurFormat()
{
    if (m_database.number("PRAGMA application_id") != applicationId)
        throw olStoreFault{Kind::Foreign, translated("it is another program's database")};
    const int format = m_database.number("PRAGMA user_version");
    if (format > currentFormat)
        throw olStoreFault{Kind::Newer, translated("it was written by a newer version")};
    if (format != currentFormat)
        damaged("its format is unknown");
    olSqliteStatement tables = m_database.prepare("SELECT sql FROM sqlite_schema ORDER BY name");
    for (const char *expected : {sealTable, settingTable}) {
        if (!tables.step() || tables.text(0) != expected)
            damaged("its tables are not what they were");
    }
    if (tables.step())
        damaged("its tables are not what they were");
}

olStoreRows olStoreTables::prove()
{
    m_checksums.clear();
    olStoreRows all;
    std::string checksums;
    olSqliteStatement rows =
        m_database.prepare("SELECT home, key, type, value, checksum FROM setting ORDER BY home, key");
    while (rows.step()) {
        for (int column = 0; column < 5; ++column) {
            if (!rows.isText(column))
                damaged("a row is not what it was");
        }
        const std::string proof = checksum({rows.text(0), rows.text(1), rows.text(2), rows.text(3)});
        if (rows.text(4) != proof)
            damaged("a row does not match its checksum");
        checksums += proof;
        const olStoreRows::Key key{rows.text(0), rows.text(1)};
        all.rows[key] = {rows.text(2), rows.text(3)};
        m_checksums[key] = proof;
    }
    olSqliteStatement seal = m_database.prepare("SELECT rows FROM seal");
    if (!seal.step() || !seal.isText(0) || seal.text(0) != sealOf(checksums) || seal.step())
        damaged("rows are missing");
    return all;
}

void olStoreTables::change(const olStoreRows &put, const std::vector<olStoreRows::Key> &removed)
{
    write(put);
    erase(removed);
    renewSeal();
}

void olStoreTables::write(const olStoreRows &rows)
{
    olSqliteStatement &insert = prepared(m_insert, "INSERT OR REPLACE INTO setting VALUES (?, ?, ?, ?, ?)");
    for (const auto &[key, row] : rows.rows) {
        const std::string proof = checksum({key.first, key.second, row.type, row.value});
        insert.bind(1, key.first);
        insert.bind(2, key.second);
        insert.bind(3, row.type);
        insert.bind(4, row.value);
        insert.bind(5, proof);
        insert.run();
        m_checksums[key] = proof;
    }
}

void olStoreTables::erase(const std::vector<olStoreRows::Key> &keys)
{
    olSqliteStatement &row = prepared(m_erase, "DELETE FROM setting WHERE home = ? AND key = ?");
    for (const olStoreRows::Key &key : keys) {
        row.bind(1, key.first);
        row.bind(2, key.second);
        row.run();
        m_checksums.erase(key);
    }
}

void olStoreTables::renewSeal()
{
    std::string checksums;
    for (const auto &row : m_checksums)
        checksums += row.second;
    olSqliteStatement &seal = prepared(m_seal, "UPDATE seal SET rows = ?");
    seal.bind(1, sealOf(checksums));
    seal.run();
}

olSqliteStatement &olStoreTables::prepared(std::optional<olSqliteStatement> &statement, const char *sql)
{
    if (!statement)
        statement = m_database.prepare(sql);
    return *statement;
}
