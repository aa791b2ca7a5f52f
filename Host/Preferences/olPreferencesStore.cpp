#include "Preferences/olPreferencesStore.h"

#include "Embedded/olValue.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <sqlite3.h>

#include <memory>

namespace
{

constexpr int currentFormat = 1;
constexpr int busyMilliseconds = 3000;

QString translated(const char *text) { return QCoreApplication::translate("olPreferencesStore", text); }

/// A failure on the way; its text is the reason alone.
struct Failure {
    QString reason;
};

using Statement = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)>;

/// An open database file; closed when it goes, and rolled back if a transaction was under way.
class Database
{
public:
    Database(const QString &file, int flags)
    {
        sqlite3 *handle = nullptr;
        const int result = sqlite3_open_v2(file.toUtf8().constData(), &handle, flags, nullptr);
        m_handle.reset(handle);
        check(result);
        sqlite3_busy_timeout(handle, busyMilliseconds);
        sqlite3_extended_result_codes(handle, 1);
        run("PRAGMA synchronous = FULL");
    }

    void run(const char *sql) { check(sqlite3_exec(m_handle.get(), sql, nullptr, nullptr, nullptr)); }

    Statement prepare(const char *sql)
    {
        sqlite3_stmt *statement = nullptr;
        check(sqlite3_prepare_v2(m_handle.get(), sql, -1, &statement, nullptr));
        return {statement, sqlite3_finalize};
    }

    /// True while there is another row.
    bool step(const Statement &statement)
    {
        const int result = sqlite3_step(statement.get());
        if (result != SQLITE_ROW && result != SQLITE_DONE)
            check(result);
        return result == SQLITE_ROW;
    }

    int format()
    {
        const Statement statement = prepare("PRAGMA user_version");
        return step(statement) ? sqlite3_column_int(statement.get(), 0) : 0;
    }

    void requireKnownFormat()
    {
        if (format() > currentFormat)
            throw Failure{translated("it was written by a newer version")};
    }

private:
    void check(int result) const
    {
        if (result != SQLITE_OK)
            throw Failure{QString::fromUtf8(m_handle ? sqlite3_errmsg(m_handle.get()) : sqlite3_errstr(result))};
    }

    std::unique_ptr<sqlite3, int (*)(sqlite3 *)> m_handle{nullptr, sqlite3_close};
};

std::string column(const Statement &statement, int index)
{
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(statement.get(), index));
    return {bytes ? bytes : "", std::size_t(sqlite3_column_bytes(statement.get(), index))};
}

void bindText(const Statement &statement, int index, const std::string &text)
{
    sqlite3_bind_text(statement.get(), index, text.data(), int(text.size()), SQLITE_TRANSIENT);
}

const char *homeName(olHome home) { return home == olHome::Record ? "record" : "service"; }

void createTable(Database &database)
{
    database.run("CREATE TABLE IF NOT EXISTS setting (home TEXT NOT NULL, key TEXT NOT NULL, type TEXT NOT NULL,"
                 " value TEXT NOT NULL, PRIMARY KEY (home, key)) WITHOUT ROWID");
    database.run("PRAGMA user_version = 1");
}

} // namespace

QString olPreferencesStore::userFile()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return folder.filePath(QStringLiteral("orlo/preferences.db"));
}

olPreferencesStore::olPreferencesStore(QString file) : m_file(std::move(file)) {}

QString olPreferencesStore::load(Values &values) const
try {
    if (!QFileInfo::exists(m_file))
        return {};
    Database database(m_file, SQLITE_OPEN_READONLY);
    database.requireKnownFormat();
    if (database.format() == 0)
        return {};
    const Statement rows = database.prepare("SELECT home, key, type, value FROM setting");
    while (database.step(rows)) {
        const std::string text = column(rows, 3);
        const boost::any value = olValue::fromJson(column(rows, 2), QByteArray(text.data(), int(text.size())));
        const olHome home = column(rows, 0) == homeName(olHome::Service) ? olHome::Service : olHome::Record;
        // A row that cannot be read stays in the file; the setting has its default meanwhile.
        if (!value.empty())
            values[{home, column(rows, 1)}] = value;
    }
    return {};
} catch (const Failure &failure) {
    return translated("Cannot read the preferences %1: %2.").arg(m_file, failure.reason);
}

QString olPreferencesStore::save(const Values &changed, const std::vector<Key> &removed) const
try {
    if (changed.empty() && removed.empty())
        return {};
    if (!QDir().mkpath(QFileInfo(m_file).absolutePath()))
        throw Failure{translated("its folder cannot be created")};

    Database database(m_file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    database.requireKnownFormat();
    database.run("PRAGMA journal_mode = WAL");
    database.run("BEGIN IMMEDIATE");
    createTable(database);
    for (const auto &[key, value] : changed) {
        const Statement row = database.prepare("INSERT OR REPLACE INTO setting VALUES (?, ?, ?, ?)");
        bindText(row, 1, homeName(key.first));
        bindText(row, 2, key.second);
        bindText(row, 3, olValue::typeName(value));
        bindText(row, 4, olValue::toJson(value));
        database.step(row);
    }
    for (const Key &key : removed) {
        const Statement row = database.prepare("DELETE FROM setting WHERE home = ? AND key = ?");
        bindText(row, 1, homeName(key.first));
        bindText(row, 2, key.second);
        database.step(row);
    }
    database.run("COMMIT");
    return {};
} catch (const Failure &failure) {
    return translated("Cannot save the preferences to %1: %2. What it held before is unchanged.")
        .arg(m_file, failure.reason);
}
