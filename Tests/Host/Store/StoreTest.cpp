#include "StoreTest.h"

#include "State/olValue.h"

#include <QDir>
#include <QFile>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

QByteArray StoreTest::bytesOf(const QString &name)
{
    QFile read(name);
    return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
}

StoreTest::Opening StoreTest::of(const olResult<olStoreRows::Contents> &read)
{
    return read.isOk() ? Opening{{}, read->notice, read->values} : Opening{read.error(), {}, {}};
}

std::vector<olStoreRows::Change> StoreTest::to(const Values &values)
{
    std::vector<olStoreRows::Change> changes;
    for (const auto &[key, value] : values)
        changes.push_back({key, {}, olStoreRows::Row::of(value)});
    return changes;
}

bool StoreTest::same(const Values &left, const Values &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](const auto &one, const auto &other) {
        return one.first == other.first && olValue::identical(one.second, other.second);
    });
}

StoreTest::Values StoreTest::stored() const
{
    const Opening loading = loaded();
    EXPECT_EQ(loading.error, QString());
    return loading.values;
}

void StoreTest::save(const Values &changed) const
{
    ASSERT_EQ(olPreferencesStore(file).save(to(changed)).error(), QString());
}

void StoreTest::tamper(const char *sql) const
{
    sqlite3 *database = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(file).constData(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
}

QStringList StoreTest::setAside() const
{
    QStringList names = QDir(folder.path()).entryList({QStringLiteral("*.damaged-*")}, QDir::Files, QDir::Name);
    names.erase(
        std::remove_if(names.begin(), names.end(),
                       [](const QString &name) { return name.endsWith(QLatin1String("-wal")) || isJournal(name); }),
        names.end());
    return names;
}

bool StoreTest::isJournal(const QString &name) { return name.endsWith(QLatin1String("-journal")); }

QMap<QString, QByteArray> StoreTest::disk() const
{
    QMap<QString, QByteArray> files;
    const QStringList names = QDir(folder.path()).entryList(QDir::Files);
    for (const QString &name : names)
        files[name] = bytesOf(folder.filePath(name));
    return files;
}

void StoreTest::leaveJournal(const Values &values) const
{
    const pid_t child = ::fork();
    if (child == 0) {
        sqlite3 *database = nullptr;
        sqlite3_open(QFile::encodeName(file).constData(), &database);
        sqlite3_exec(database, "PRAGMA cache_size = 1; BEGIN", nullptr, nullptr, nullptr);
        for (const auto &value : values) {
            const std::string sql =
                "UPDATE setting SET value = printf('%.2000c', '1') WHERE key = '" + value.first.second + '\'';
            sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr);
        }
        sqlite3_db_cacheflush(database);
        ::_exit(0);
    }
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    ASSERT_GT(QFileInfo(file + "-journal").size(), 512);
}
