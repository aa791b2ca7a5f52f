#include "Store/olStoreTables.h"

#include "Store/olConfidentialSettings.h"
#include "Store/olStoreError.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>

#include <algorithm>

namespace
{

using Kind = olStoreError::Kind;
using Text = olSqlite::Text;
using namespace olStoreRows;

constexpr int earlierFormat = 1;
constexpr int currentFormat = 2;
constexpr int rememberedSaves = 500;

// "ORLO", so that a file can be told from other programs' databases.
constexpr int applicationId = 0x4f524c4f;

constexpr auto earlierSettingTable =
    "CREATE TABLE setting (home TEXT NOT NULL, key TEXT NOT NULL, type TEXT NOT NULL, value TEXT NOT NULL, checksum "
    "TEXT NOT NULL, PRIMARY KEY (home, key)) WITHOUT ROWID";
constexpr auto settingTable = "CREATE TABLE setting (home TEXT NOT NULL, key TEXT NOT NULL, type TEXT NOT NULL, value "
                              "TEXT NOT NULL, PRIMARY KEY (home, key)) WITHOUT ROWID";
constexpr auto sealTable = "CREATE TABLE seal (rows TEXT NOT NULL)";
constexpr auto historyTable =
    "CREATE TABLE history (save INTEGER NOT NULL, time TEXT NOT NULL, program TEXT NOT NULL, home TEXT NOT NULL, key "
    "TEXT NOT NULL, type_before TEXT, value_before TEXT, type_after TEXT, value_after TEXT, checksum TEXT NOT NULL, "
    "PRIMARY KEY (save, home, key)) WITHOUT ROWID";

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olStoreFile)
};

/// 64 bits of a digest over the parts, each with its length, so that no two lists of parts look the same.
std::string checksum(const std::vector<Text> &parts)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const Text &part : parts) {
        const std::string text = part ? std::to_string(part->size()) + ':' + *part : "none";
        hash.addData(text.data(), int(text.size()));
    }
    return hash.result().left(8).toHex().toStdString();
}

std::string sealOf(const Rows &rows)
{
    std::string checksums;
    for (const auto &[key, row] : rows)
        checksums += checksum({key.first, key.second, row.type, row.value});
    return checksum({checksums});
}

std::optional<Row> rowOf(const Text &type, const Text &value)
{
    return type ? std::optional<Row>({*type, value.value_or("")}) : std::nullopt;
}

} // namespace

void olStoreTables::damaged(const QString &reason) { throw olStoreError(Kind::Damaged, reason); }

bool olStoreTables::looksLikeAStore(const QByteArray &header)
{
    constexpr int idPosition = 68;
    const QByteArray id("ORLO");
    if (header.size() < idPosition + id.size())
        return header.startsWith(QByteArray("SQLite format 3", 16));
    int equal = 0;
    for (int index = 0; index < id.size(); ++index)
        equal += header.at(idPosition + index) == id.at(index) ? 1 : 0;
    return equal >= id.size() - 1;
}

bool olStoreTables::usesALog(const QByteArray &header) { return header.mid(18, 2).contains('\2'); }

bool olStoreTables::exist()
{
    return m_database.number("PRAGMA application_id") != 0 || m_database.number("PRAGMA user_version") != 0 ||
           m_database.number("SELECT count(*) FROM sqlite_schema") != 0;
}

/// What others add to find or count rows is no damage; a trigger would change what is saved.
void olStoreTables::requireOurs()
{
    if (m_database.number("PRAGMA application_id") != applicationId)
        throw olStoreError(Kind::Foreign, Words::tr("it is another program's database"));
    const int format = m_database.number("PRAGMA user_version");
    if (format > currentFormat)
        throw olStoreError(Kind::Newer, Words::tr("it was written by a newer version"));
    if (format < earlierFormat)
        damaged(Words::tr("its format is unknown"));
    const QByteArray versions = m_database.header().mid(18, 2);
    if (versions != QByteArray("\1\1") && versions != QByteArray("\2\2"))
        damaged(Words::tr("its header is not what it was"));
    std::vector<std::string> expected{earlierSettingTable, sealTable};
    if (format == currentFormat)
        expected = {settingTable, sealTable, historyTable};
    bool hasTrigger = false;
    m_database.run("SELECT type, sql FROM sqlite_schema", {}, [&](const olSqlite::Row &part) {
        hasTrigger = hasTrigger || part[0] == "trigger";
        expected.erase(std::remove(expected.begin(), expected.end(), part[1].value_or("")), expected.end());
    });
    if (hasTrigger || !expected.empty())
        damaged(Words::tr("its tables are not what they were"));
    if (m_database.text("PRAGMA quick_check(1)") != "ok")
        damaged(Words::tr("its structure is broken"));
}

Rows olStoreTables::rows()
{
    requireOurs();
    Rows rows;
    m_database.run("SELECT home, key, type, value FROM setting NOT INDEXED", {}, [&rows](const olSqlite::Row &row) {
        rows[{row[0].value_or(""), row[1].value_or("")}] = {row[2].value_or(""), row[3].value_or("")};
    });
    if (m_database.text("SELECT group_concat(rows) FROM seal") != sealOf(rows))
        damaged(Words::tr("rows were changed or are missing"));
    return rows;
}

History olStoreTables::history()
{
    History history;
    if (m_database.number("PRAGMA user_version") == earlierFormat)
        return history;
    m_database.run(
        "SELECT save, time, program, home, key, type_before, value_before, type_after, value_after, checksum FROM "
        "history NOT INDEXED ORDER BY save",
        {}, [&history](olSqlite::Row row) {
            const Text proof = row.back();
            row.pop_back();
            if (proof != checksum(row))
                damaged(Words::tr("its history was changed"));
            const int number = std::stoi(row[0].value_or("0"));
            if (history.empty() || history.back().number != number)
                history.push_back({number, row[1].value_or(""), row[2].value_or(""), {}});
            history.back().changes.push_back({{*row[3], *row[4]}, rowOf(row[5], row[6]), rowOf(row[7], row[8])});
        });
    return history;
}

void olStoreTables::change(const Changes &changes, const std::string &program)
{
    const bool isNew = !exist();
    Rows rows = isNew ? Rows() : this->rows();
    std::vector<Change> real;
    for (const auto &[key, after] : changes) {
        const auto found = rows.find(key);
        const auto before = found == rows.end() ? std::nullopt : std::optional<Row>(found->second);
        if (before == after)
            continue;
        real.push_back({key, before, after});
        rows.erase(key);
        if (after)
            rows[key] = *after;
    }
    if (real.empty())
        return;
    if (isNew)
        create();
    else if (m_database.number("PRAGMA user_version") == earlierFormat)
        m_database.run("ALTER TABLE setting DROP COLUMN checksum");
    if (m_database.number("PRAGMA user_version") != currentFormat) {
        m_database.run(historyTable);
        m_database.run("PRAGMA user_version = " + std::to_string(currentFormat));
    }
    for (const Change &change : real) {
        const auto &[home, key] = change.key;
        if (change.after)
            m_database.run("INSERT INTO setting VALUES (?, ?, ?, ?) ON CONFLICT (home, key) DO UPDATE SET type = "
                           "excluded.type, value = excluded.value",
                           {home, key, change.after->type, change.after->value});
        else
            m_database.run("DELETE FROM setting WHERE home = ? AND key = ?", {home, key});
    }
    m_database.run("UPDATE seal SET rows = ?", {sealOf(rows)});
    remember(real, program);
}

void olStoreTables::create()
{
    m_database.run(settingTable);
    m_database.run(sealTable);
    m_database.run("INSERT INTO seal VALUES ('')");
    m_database.run("PRAGMA application_id = " + std::to_string(applicationId));
}

void olStoreTables::remember(const std::vector<Change> &changes, const std::string &program)
{
    const int number = m_database.number("SELECT max(save) FROM history") + 1;
    const std::string time = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toStdString();
    const auto typeOf = [](const std::optional<Row> &row) { return row ? Text(row->type) : std::nullopt; };
    const auto valueOf = [](const std::optional<Row> &row) { return row ? Text(row->value) : std::nullopt; };
    for (const auto &[key, before, after] : changes) {
        if (olIsConfidential(key.second))
            continue;
        olSqlite::Row row{std::to_string(number), time,          program,       key.first, key.second, typeOf(before),
                          valueOf(before),        typeOf(after), valueOf(after)};
        row.emplace_back(checksum(row));
        m_database.run("INSERT INTO history VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)", row);
    }
    m_database.run("DELETE FROM history WHERE save <= ?", {std::to_string(number - rememberedSaves)});
}
