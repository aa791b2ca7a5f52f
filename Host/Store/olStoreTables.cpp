#include "Store/olStoreTables.h"

#include "Store/olSqlite.h"
#include "olHostSettings.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>

#include <cerrno>
#include <cstdlib>
#include <optional>
#include <utility>

namespace
{

using namespace olStoreRows;
using Kind = olStoreError::Kind;
using Text = olSqlite::Text;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olStoreTables)
};

constexpr int earlierFormat = 1;
constexpr int currentFormat = 2;
constexpr int rememberedSaves = 500;

// "ORLO", so that a file can be told from other programs' databases.
constexpr int applicationId = 0x4f524c4f;

constexpr auto settingTable = "CREATE TABLE setting (home TEXT NOT NULL, key TEXT NOT NULL, type TEXT NOT NULL, value "
                              "TEXT NOT NULL, PRIMARY KEY (home, key)) WITHOUT ROWID";
constexpr auto sealTable = "CREATE TABLE seal (rows TEXT NOT NULL)";
constexpr auto historyTable =
    "CREATE TABLE history (save INTEGER NOT NULL, time TEXT NOT NULL, program TEXT NOT NULL, home TEXT NOT NULL, key "
    "TEXT NOT NULL, type_before TEXT, value_before TEXT, type_after TEXT, value_after TEXT, checksum TEXT NOT NULL, "
    "PRIMARY KEY (save, home, key)) WITHOUT ROWID";

/// 64 bits of a digest over the parts, each with its length, so that no two lists of parts look the same.
std::string checksum(const olSqlite::Row &parts)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const Text &part : parts) {
        const std::string text = part ? std::to_string(part->size()) + ':' + *part : "none";
        hash.addData(text.data(), int(text.size()));
    }
    return hash.result().left(8).toHex().toStdString();
}

/// Nothing for a home that is not known.
std::optional<Key> keyOf(const Text &home, const Text &key)
{
    for (const olHome known : {olHome::Record, olHome::Service}) {
        if (home == nameOf(known))
            return Key{known, key.value_or("")};
    }
    return std::nullopt;
}

std::optional<Row> rowOf(const Text &type, const Text &value)
{
    return type ? std::optional<Row>({*type, value.value_or("")}) : std::nullopt;
}

/// What others add to find or count rows is no damage; a trigger would change what is saved.
void requireOurs(olSqlite &database)
{
    if (database.number("PRAGMA application_id") != applicationId)
        throw olStoreError(Kind::Damaged, Words::tr("it is another program's database"));
    const int format = database.number("PRAGMA user_version");
    if (format > currentFormat)
        throw olStoreError(Kind::Newer, Words::tr("it was written by a newer version"));
    const auto known = database.run("SELECT sql FROM sqlite_schema WHERE sql IN (?, ?, ?) OR type = 'trigger'",
                                    {settingTable, sealTable, historyTable});
    if (format < earlierFormat || known.size() != (format == earlierFormat ? 1 : 3))
        throw olStoreError(Kind::Damaged, Words::tr("its tables are not what they were"));
    if (database.text("PRAGMA quick_check(1)") != "ok")
        throw olStoreError(Kind::Damaged, Words::tr("its structure is broken"));
}

std::vector<olSqlite::Row> settingsIn(olSqlite &database)
{
    return database.run("SELECT home, key, type, value FROM setting NOT INDEXED ORDER BY home, key");
}

std::string sealOf(const std::vector<olSqlite::Row> &settings)
{
    std::string checksums;
    for (const olSqlite::Row &row : settings)
        checksums += checksum(row);
    return checksum({checksums});
}

void bringToCurrentFormat(olSqlite &database)
{
    const int format = database.number("PRAGMA user_version");
    if (format == currentFormat)
        return;
    if (format == earlierFormat) {
        database.run("ALTER TABLE setting DROP COLUMN checksum");
    } else {
        database.run(settingTable);
        database.run(sealTable);
        database.run("INSERT INTO seal VALUES ('')");
        database.run("PRAGMA application_id = " + std::to_string(applicationId));
    }
    database.run(historyTable);
    database.run("PRAGMA user_version = " + std::to_string(currentFormat));
}

} // namespace

Contents olStoreTables::read(olSqlite &database, bool wasStore)
{
    Contents contents;
    if (database.number("SELECT count(*) FROM sqlite_schema") == 0) {
        if (wasStore)
            throw olStoreError(Kind::Damaged, Words::tr("there is nothing in it"));
        return contents;
    }
    requireOurs(database);
    const std::vector<olSqlite::Row> settings = settingsIn(database);
    contents.seal = sealOf(settings);
    if (database.text("SELECT group_concat(rows) FROM seal") != contents.seal)
        throw olStoreError(Kind::Damaged, Words::tr("rows were changed or are missing"));
    for (const olSqlite::Row &row : settings) {
        if (const auto key = keyOf(row[0], row[1])) {
            const Row &kept = contents.rows[*key] = {row[2].value_or(""), row[3].value_or("")};
            if (boost::any value = kept.parsed(); !value.empty())
                contents.values[*key] = std::move(value);
        }
    }
    return contents;
}

History olStoreTables::readHistory(olSqlite &database)
{
    History history;
    if (database.number("PRAGMA user_version") < currentFormat)
        return history;
    for (olSqlite::Row &row : database.run("SELECT * FROM history NOT INDEXED ORDER BY save")) {
        const Text proof = row.back();
        row.pop_back();
        if (proof != checksum(row))
            throw olStoreError(Kind::Damaged, Words::tr("its history was changed"));
        const int number = std::atoi(row[0].value_or("").c_str());
        if (history.empty() || history.back().number != number)
            history.push_back({number, row[1].value_or(""), row[2].value_or(""), {}});
        if (const auto key = keyOf(row[3], row[4]))
            history.back().changes.push_back({*key, rowOf(row[5], row[6]), rowOf(row[7], row[8])});
    }
    return history;
}

bool olStoreTables::change(olSqlite &database, const std::vector<Change> &changes, std::vector<Change> *left)
{
    bringToCurrentFormat(database);
    const std::string number = std::to_string(database.number("SELECT max(save) FROM history") + 1);
    const std::string time = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toStdString();
    bool isChanged = false;
    for (const auto &[key, before, after] : changes) {
        const olSqlite::Row place{nameOf(key.first), key.second};
        const auto found = database.run("SELECT type, value FROM setting WHERE home = ? AND key = ?", place);
        const auto now = found.empty() ? std::nullopt : rowOf(found[0][0], found[0][1]);
        if (left && now != before)
            left->push_back({key, before, after});
        if (now == after || (left && now != before))
            continue;
        isChanged = true;
        database.run("DELETE FROM setting WHERE home = ? AND key = ?", place);
        if (after)
            database.run("INSERT INTO setting VALUES (?, ?, ?, ?)", {place[0], place[1], after->type, after->value});
        olSqlite::Row entry{number, time, program_invocation_short_name, place[0], place[1]};
        for (const auto &row : {now, after}) {
            entry.push_back(row ? Text(row->type) : std::nullopt);
            entry.push_back(row ? Text(row->value) : std::nullopt);
        }
        entry.emplace_back(checksum(entry));
        if (!olHostSettings::isConfidential(key.second))
            database.run("INSERT INTO history VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)", entry);
    }
    database.run("DELETE FROM history WHERE save <= ? - " + std::to_string(rememberedSaves), {number});
    database.run("UPDATE seal SET rows = ?", {sealOf(settingsIn(database))});
    return isChanged;
}
