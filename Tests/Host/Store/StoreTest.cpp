#include "StoreTest.h"

#include "State/olValue.h"

#include <QDir>
#include <QFile>
#include <sqlite3.h>

#include <algorithm>

QByteArray StoreTest::bytesOf(const QString &name)
{
    QFile read(name);
    return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
}

void StoreTest::write(const QString &name, const QByteArray &bytes)
{
    QFile written(name);
    ASSERT_TRUE(written.open(QIODevice::WriteOnly));
    ASSERT_EQ(written.write(bytes), bytes.size());
}

bool StoreTest::same(const Values &left, const Values &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](const auto &one, const auto &other) {
        return one.first == other.first && olValue::identical(one.second, other.second);
    });
}

StoreTest::Values StoreTest::stored() const
{
    Values values;
    EXPECT_EQ(olPreferencesStore(file).load(values), QString());
    return values;
}

void StoreTest::save(const Values &changed) const { ASSERT_EQ(olPreferencesStore(file).save(changed, {}), QString()); }

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
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const QString &name) { return name.endsWith(QLatin1String("-wal")); }),
                names.end());
    return names;
}
