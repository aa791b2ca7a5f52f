#include "Preferences/olStoreFile.h"

#include "Preferences/olSqlite.h"
#include "Preferences/olWriteAheadLog.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <initializer_list>

namespace
{

constexpr int currentFormat = 1;

// "ORLO", so that a file can be told from other programs' databases.
constexpr int applicationId = 0x4f524c4f;

constexpr auto settingTable = "CREATE TABLE setting (home TEXT NOT NULL, key TEXT NOT NULL, type TEXT NOT NULL,"
                              " value TEXT NOT NULL, checksum TEXT NOT NULL, PRIMARY KEY (home, key)) WITHOUT ROWID";
constexpr auto sealTable = "CREATE TABLE seal (rows TEXT NOT NULL)";

QString translated(const char *text) { return QCoreApplication::translate("olStoreFile", text); }

using Kind = olStoreFault::Kind;

[[noreturn]] void damaged(const char *reason) { throw olStoreFault{Kind::Damaged, translated(reason)}; }

olStoreFault faultOf(const olSqliteError &error)
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

/// A file that was made but never filled.
bool isEmpty(olSqlite &database)
{
    return database.number("PRAGMA application_id") == 0 && database.number("PRAGMA user_version") == 0 &&
           database.number("SELECT count(*) FROM sqlite_schema") == 0;
}

void requireOurFormat(olSqlite &database)
{
    if (database.number("PRAGMA application_id") != applicationId)
        throw olStoreFault{Kind::Foreign, translated("it is another program's database")};
    const int format = database.number("PRAGMA user_version");
    if (format > currentFormat)
        throw olStoreFault{Kind::Newer, translated("it was written by a newer version")};
    if (format != currentFormat)
        damaged("its format is unknown");
    olSqliteStatement tables = database.prepare("SELECT sql FROM sqlite_schema ORDER BY name");
    for (const char *expected : {sealTable, settingTable}) {
        if (!tables.step() || tables.text(0) != expected)
            damaged("its tables are not what they were");
    }
    if (tables.step())
        damaged("its tables are not what they were");
}

std::string sealOf(const std::string &checksums) { return checksum({checksums}); }

/// All rows, each against its checksum, and all together against the seal.
olStoreRows provedRows(olSqlite &database)
{
    olStoreRows all;
    std::string checksums;
    olSqliteStatement rows =
        database.prepare("SELECT home, key, type, value, checksum FROM setting ORDER BY home, key");
    while (rows.step()) {
        for (int column = 0; column < 5; ++column) {
            if (!rows.isText(column))
                damaged("a row is not what it was");
        }
        const std::string proof = checksum({rows.text(0), rows.text(1), rows.text(2), rows.text(3)});
        if (rows.text(4) != proof)
            damaged("a row does not match its checksum");
        checksums += proof;
        all.rows[{rows.text(0), rows.text(1)}] = {rows.text(2), rows.text(3)};
    }
    olSqliteStatement seal = database.prepare("SELECT rows FROM seal");
    if (!seal.step() || !seal.isText(0) || seal.text(0) != sealOf(checksums) || seal.step())
        damaged("rows are missing");
    return all;
}

/// What the rows themselves would not show.
void requireSoundness(olSqlite &database, const QString &file)
{
    if (database.text("PRAGMA integrity_check(1)") != "ok")
        damaged("its structure is broken");
    const QFileInfo info(file);
    if (database.isReadOnly() && info.isWritable() && QFileInfo(info.absolutePath()).isWritable())
        damaged("its header is not what it was");
}

void renewSeal(olSqlite &database)
{
    std::string checksums;
    olSqliteStatement rows = database.prepare("SELECT checksum FROM setting ORDER BY home, key");
    while (rows.step())
        checksums += rows.text(0);
    olSqliteStatement seal = database.prepare("UPDATE seal SET rows = ?");
    seal.bind(1, sealOf(checksums));
    seal.step();
}

void createTables(olSqlite &database)
{
    database.run(settingTable);
    database.run(sealTable);
    database.run("INSERT INTO seal VALUES ('')");
    database.run(("PRAGMA application_id = " + std::to_string(applicationId)).c_str());
    database.run(("PRAGMA user_version = " + std::to_string(currentFormat)).c_str());
}

void write(olSqlite &database, const olStoreRows &rows)
{
    olSqliteStatement insert = database.prepare("INSERT OR REPLACE INTO setting VALUES (?, ?, ?, ?, ?)");
    for (const auto &[key, row] : rows.rows) {
        insert.bind(1, key.first);
        insert.bind(2, key.second);
        insert.bind(3, row.type);
        insert.bind(4, row.value);
        insert.bind(5, checksum({key.first, key.second, row.type, row.value}));
        insert.step();
        insert.reset();
    }
}

void erase(olSqlite &database, const std::vector<olStoreRows::Key> &keys)
{
    olSqliteStatement row = database.prepare("DELETE FROM setting WHERE home = ? AND key = ?");
    for (const olStoreRows::Key &key : keys) {
        row.bind(1, key.first);
        row.bind(2, key.second);
        row.step();
        row.reset();
    }
}

/// The log makes saves of several programs fast and short; without it they are as safe.
void tryToUseALog(olSqlite &database)
{
    try {
        database.run("PRAGMA journal_mode = WAL");
    } catch (const olSqliteError &) {
    }
}

QByteArray pathOf(const QString &file) { return QFile::encodeName(file); }

void rename(const QString &from, const QString &to)
{
    if (std::rename(pathOf(from).constData(), pathOf(to).constData()) != 0)
        throw olStoreFault{Kind::Access, QString::fromLocal8Bit(std::strerror(errno))};
}

/// A new name is kept through a power cut only when its folder is written too.
void syncFolderOf(const QString &file)
{
    const int folder = ::open(pathOf(QFileInfo(file).absolutePath()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

} // namespace

bool olStoreFile::exists() const { return QFileInfo::exists(m_file); }

olStoreRows olStoreFile::read(bool wasStore) const
{
    if (!exists())
        return {};
    try {
        return readDatabase(wasStore);
    } catch (olStoreFault &fault) {
        if (fault.kind == Kind::Damaged && !wasStore && !looksLikeAStore())
            throw olStoreFault{Kind::Foreign, translated("it is no preferences file")};
        if (fault.kind == Kind::Foreign && wasStore)
            fault.kind = Kind::Damaged;
        throw;
    }
}

olStoreRows olStoreFile::readDatabase(bool wasStore) const
try {
    olSqlite database(m_file, olSqlite::Access::Existing);
    database.run("BEGIN");
    olStoreRows rows;
    if (!isEmpty(database)) {
        requireOurFormat(database);
        requireSoundness(database, m_file);
        rows = provedRows(database);
    } else if (wasStore) {
        damaged("there is nothing in it");
    }
    database.run("COMMIT");
    database.releaseLog();
    return rows;
} catch (const olSqliteError &error) {
    throw faultOf(error);
}

bool olStoreFile::isLogDamaged() const
try {
    const QString log = m_file + QStringLiteral("-wal");
    if (!olWriteAheadLog::isDamaged(log))
        return false;
    // Perhaps only half of what another program is just writing; while this one may write, nobody does.
    olSqlite database(m_file, olSqlite::Access::Existing);
    database.run("BEGIN IMMEDIATE");
    return olWriteAheadLog::isDamaged(log);
} catch (const olSqliteError &) {
    return false;
}

void olStoreFile::change(const olStoreRows &put, const std::vector<olStoreRows::Key> &removed, bool wasStore) const
{
    if (wasStore && !exists())
        damaged("it is gone");
    try {
        changeDatabase(put, removed, wasStore);
    } catch (const olSqliteError &error) {
        throw faultOf(error);
    }
}

void olStoreFile::changeDatabase(const olStoreRows &rows, const std::vector<olStoreRows::Key> &removed,
                                 bool wasStore) const
{
    olSqlite database(m_file, olSqlite::Access::Create);
    database.run("BEGIN IMMEDIATE");
    if (!isEmpty(database)) {
        requireOurFormat(database);
        // A new seal must not be put on what was broken before.
        (void)provedRows(database);
    } else if (wasStore) {
        damaged("there is nothing in it");
    } else {
        createTables(database);
    }
    write(database, rows);
    erase(database, removed);
    renewSeal(database);
    database.run("COMMIT");
    tryToUseALog(database);
    // The log stays behind: working it into the file would have each save wait for the disk four times.
}

void olStoreFile::replace(const olStoreRows &rows) const { putInPlace(buildBeside(rows)); }

QString olStoreFile::replaceAndSetAside(const olStoreRows &rows) const
{
    // Built before anything is moved, so that a full disk leaves everything where it is.
    const QString fresh = buildBeside(rows);
    const QString aside = setAside();
    putInPlace(fresh);
    return aside;
}

QString olStoreFile::buildBeside(const olStoreRows &rows) const
{
    const QString fresh = m_file + QStringLiteral(".new");
    for (const char *part : {"", "-journal", "-wal", "-shm"})
        QFile::remove(fresh + QLatin1String(part));
    try {
        olSqlite database(fresh, olSqlite::Access::Create);
        database.run("BEGIN IMMEDIATE");
        createTables(database);
        write(database, rows);
        renewSeal(database);
        database.run("COMMIT");
    } catch (const olSqliteError &error) {
        QFile::remove(fresh);
        throw faultOf(error);
    }
    return fresh;
}

QString olStoreFile::setAside() const
{
    const QString dated =
        m_file + QDateTime::currentDateTime().toString(QStringLiteral("'.damaged-'yyyy-MM-dd_HH-mm-ss"));
    QString aside = dated;
    for (int number = 2; QFileInfo::exists(aside); ++number)
        aside = dated + QStringLiteral("_%1").arg(number);
    // A second name first: at no moment is the file without one. Not all file systems know second names.
    if (::link(pathOf(m_file).constData(), pathOf(aside).constData()) != 0)
        rename(m_file, aside);
    // The log belongs to the damaged file; left here it would be worked into the new one.
    for (const char *part : {"-wal", "-journal"}) {
        const QFileInfo log(m_file + QLatin1String(part));
        if (log.size() > 0)
            rename(log.filePath(), aside + QLatin1String(part));
        else
            QFile::remove(log.filePath());
    }
    QFile::remove(m_file + QStringLiteral("-shm"));
    return aside;
}

void olStoreFile::putInPlace(const QString &fresh) const
{
    try {
        rename(fresh, m_file);
    } catch (const olStoreFault &) {
        QFile::remove(fresh);
        throw;
    }
    syncFolderOf(m_file);
}

bool olStoreFile::looksLikeAStore() const
{
    QFile file(m_file);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    constexpr int idPosition = 68;
    const QByteArray id("ORLO");
    const QByteArray header = file.read(idPosition + id.size());
    if (header.size() < idPosition + id.size())
        return header.startsWith(QByteArray("SQLite format 3", 16));
    int equal = 0;
    for (int index = 0; index < id.size(); ++index)
        equal += header.at(idPosition + index) == id.at(index) ? 1 : 0;
    return equal >= id.size() - 1;
}
