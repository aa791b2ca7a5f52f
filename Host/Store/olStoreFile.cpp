#include "Store/olStoreFile.h"

#include "Store/olSqlite.h"
#include "Store/olStoreTables.h"
#include "Store/olWriteAheadLog.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace
{

using Kind = olStoreFault::Kind;

QString translated(const char *text) { return QCoreApplication::translate("olStoreFile", text); }

/// What the rows themselves would not show.
void requireSoundness(olSqlite &database, const QString &file)
{
    if (database.text("PRAGMA integrity_check(1)") != "ok")
        olStoreTables::damaged("its structure is broken");
    const QFileInfo info(file);
    if (database.isReadOnly() && info.isWritable() && QFileInfo(info.absolutePath()).isWritable())
        olStoreTables::damaged("its header is not what it was");
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
    olStoreTables tables(database);
    database.run("BEGIN");
    olStoreRows rows;
    if (tables.exist()) {
        tables.requireOurFormat();
        requireSoundness(database, m_file);
        rows = tables.prove();
    } else if (wasStore) {
        olStoreTables::damaged("there is nothing in it");
    }
    database.run("COMMIT");
    database.releaseLog();
    return rows;
} catch (const olSqliteError &error) {
    throw olStoreTables::faultOf(error);
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
        olStoreTables tables(database);
        tables.create();
        tables.change(rows, {});
        database.run("COMMIT");
    } catch (const olSqliteError &error) {
        QFile::remove(fresh);
        throw olStoreTables::faultOf(error);
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
