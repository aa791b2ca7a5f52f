#include "Store/olStoreFile.h"

#include "Store/olSqlite.h"
#include "Store/olStoreTables.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace
{

using Kind = olStoreError::Kind;

// What may stand beside a database: the journal of a save, and the log of an earlier version.
const QLatin1String journals[] = {QLatin1String("-journal"), QLatin1String("-wal")};

constexpr int headerSize = 100;
constexpr int copyAttempts = 20;

QByteArray pathOf(const QString &file) { return QFile::encodeName(file); }

olStoreError systemError() { return {Kind::Access, QString::fromLocal8Bit(std::strerror(errno))}; }

olStoreError busy() { return {Kind::Busy, olStoreFile::tr("another program keeps it busy")}; }

/// Without a mode where there is no file.
struct stat statusOf(const QString &name)
{
    struct stat status = {};
    if (::stat(pathOf(name).constData(), &status) != 0)
        status.st_mode = 0;
    return status;
}

void rename(const QString &from, const QString &to)
{
    if (std::rename(pathOf(from).constData(), pathOf(to).constData()) != 0)
        throw systemError();
}

/// The bytes of a new file are kept through a power cut only when they are written, and its name when its folder is.
void sync(const QString &name)
{
    const int file = ::open(pathOf(name).constData(), O_RDONLY | O_CLOEXEC);
    ::fsync(file);
    ::close(file);
}

/// Empty, for its owner alone.
void makeFile(const QString &name)
{
    const int file = ::open(pathOf(name).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0)
        throw systemError();
    ::close(file);
}

void copyPart(const QString &from, const QString &to)
{
    QFile::remove(to);
    QFile source(from);
    if (source.size() > 0 && !source.copy(to))
        throw olStoreError(Kind::Access, olStoreFile::tr("%1 cannot be read: %2").arg(from, source.errorString()));
    QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
}

/// In memory where there is such a folder, so that a full disk is in nobody's way.
QString temporaryFolder()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/orlo-XXXXXX");
}

/// By which file formats a program must know to write and to read it: that with a journal, or the earlier with a log.
QByteArray versionsIn(const QByteArray &header) { return header.mid(18, 2); }

/// Perhaps before it was damaged.
bool looksLikeAStore(const QByteArray &header)
{
    constexpr int idPosition = 68;
    return header.mid(idPosition).startsWith("ORLO") ||
           (header.size() < headerSize && header.startsWith(QByteArray("SQLite format 3", 16)));
}

} // namespace

bool olStoreFile::makeFolder(const QString &folder)
{
    return QFileInfo(folder).isDir() || (makeFolder(QFileInfo(folder).path()) &&
                                         (::mkdir(pathOf(folder).constData(), 0700) == 0 || errno == EEXIST));
}

/// What cannot be looked at is there, and says why when it is opened.
bool olStoreFile::exists() const { return statusOf(m_file).st_mode != 0 || (errno != ENOENT && errno != ENOTDIR); }

QString olStoreFile::stamp() const
{
    QStringList parts;
    for (const QString &name : {m_file, m_file + journals[0], m_file + journals[1]}) {
        const struct stat status = statusOf(name);
        for (const auto number : {qint64(status.st_ino), qint64(status.st_size), qint64(status.st_mtim.tv_sec),
                                  qint64(status.st_mtim.tv_nsec)})
            parts << QString::number(number);
    }
    return parts.join(QLatin1Char(' '));
}

bool olStoreFile::hasJournal() const
{
    return QFileInfo(m_file + journals[0]).size() > 0 || QFileInfo(m_file + journals[1]).size() > 0;
}

/// To be read while the file is not open: to close it lets go of all locks that this process has on it.
QByteArray olStoreFile::header() const
{
    const mode_t mode = statusOf(m_file).st_mode;
    if (mode != 0 && !S_ISREG(mode))
        throw olStoreError(Kind::Access, tr("it is no regular file"));
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.read(headerSize) : QByteArray();
}

/// A log is seen without the database, which would begin to use it.
void olStoreFile::look(const std::function<void(olSqlite &)> &work) const
{
    const bool hasLog = versionsIn(header()).contains('\2') || QFileInfo(m_file + journals[1]).size() > 0;
    try {
        if (!hasLog) {
            olSqlite database(m_file, olSqlite::Access::Look);
            return work(database);
        }
    } catch (const olStoreError &error) {
        if (error.kind() == Kind::NoLocks && !hasJournal()) {
            olSqlite database(m_file, olSqlite::Access::Immutable);
            return work(database);
        }
        if (error.kind() != Kind::Busy && error.kind() != Kind::NoLocks)
            throw;
    }
    lookAtACopy(work);
}

/// What a save has begun or an earlier version left is worked into a copy of our own.
void olStoreFile::lookAtACopy(const std::function<void(olSqlite &)> &work) const
{
    const QTemporaryDir folder(temporaryFolder());
    const QString copy = folder.filePath(QStringLiteral("copy.db"));
    for (int attempt = 0; attempt < copyAttempts; ++attempt) {
        const QString before = stamp();
        copyPart(m_file, copy);
        for (const QLatin1String journal : journals)
            copyPart(m_file + journal, copy + journal);
        if (stamp() == before) {
            olSqlite database(copy, olSqlite::Access::Private);
            return work(database);
        }
        ::usleep(10000);
    }
    throw busy();
}

olStoreRows::Contents olStoreFile::read() const
{
    olStoreRows::Contents contents;
    if (!exists())
        return contents;
    try {
        look([&contents](olSqlite &database) {
            database.run("BEGIN");
            contents.seal = olStoreTables::readRows(database, &contents.values);
            if (!contents.seal.empty())
                contents.history = olStoreTables::readHistory(database);
        });
        if (contents.seal.empty() && m_wasStore)
            throw olStoreError(Kind::Damaged, tr("there is nothing in it"));
        // Only now: another program may just have filled the file.
        const QByteArray versions = versionsIn(header());
        if (!contents.seal.empty() && versions != "\1\1" && versions != "\2\2")
            throw olStoreError(Kind::Damaged, tr("its header is not what it was"));
        return contents;
    } catch (const olStoreError &error) {
        if (error.kind() == Kind::Damaged && !m_wasStore && !looksLikeAStore(header()))
            throw olStoreError(Kind::Foreign, tr("it is no preferences file"));
        if (error.kind() == Kind::Foreign && m_wasStore)
            throw olStoreError(Kind::Damaged, error.reason());
        throw;
    }
}

void olStoreFile::change(const std::vector<olStoreRows::Change> &changes, std::vector<olStoreRows::Change> *left) const
{
    if (!exists() && m_wasStore)
        throw olStoreError(Kind::Damaged, tr("it is gone"));
    if (!exists()) {
        if (!makeFolder(QFileInfo(m_file).absolutePath()))
            throw olStoreError(Kind::Access, tr("its folder cannot be created"));
        makeFile(m_file);
    }
    // What the database would work in from another file is proved on a copy before.
    if (hasJournal() || versionsIn(header()) != "\1\1")
        (void)read();
    olSqlite database(m_file, olSqlite::Access::Write);
    if (database.text("PRAGMA journal_mode = DELETE") != "delete")
        throw busy();
    database.run("PRAGMA synchronous = EXTRA");
    database.run("BEGIN IMMEDIATE");
    if (olStoreTables::readRows(database, nullptr).empty() && m_wasStore)
        throw olStoreError(Kind::Damaged, tr("there is nothing in it"));
    if (!olStoreTables::change(database, changes, program_invocation_short_name, left))
        return;
    // Another program may just have set it aside.
    if (database.wasMoved())
        throw busy();
    database.run("COMMIT");
}

QString olStoreFile::copyBeside(const QString &other) const
{
    const QString fresh = other + QStringLiteral(".new");
    QFile::remove(fresh);
    try {
        makeFile(fresh);
        look([&fresh](olSqlite &database) { database.run("VACUUM INTO ?", {pathOf(fresh).toStdString()}); });
        QFile::setPermissions(fresh, QFile::permissions(m_file));
        sync(fresh);
    } catch (const olStoreError &) {
        QFile::remove(fresh);
        throw;
    }
    return fresh;
}

void olStoreFile::copyTo(const QString &other) const
{
    rename(copyBeside(other), other);
    sync(QFileInfo(other).absolutePath());
}

QString olStoreFile::setAside(const olStoreFile *copy) const
{
    // Built before anything is moved, so that a full disk leaves everything where it is.
    const QString fresh = copy ? copy->copyBeside(m_file) : QString();
    const QString aside =
        m_file + QDateTime::currentDateTime().toString(QStringLiteral("'.damaged-'yyyy-MM-dd_HH-mm-ss-zzz"));
    // A second name first: at no moment is the file without one. Not all file systems know second names.
    if (::link(pathOf(m_file).constData(), pathOf(aside).constData()) != 0)
        rename(m_file, aside);
    // A journal that stayed here would be worked into the new file.
    for (const QLatin1String journal : journals) {
        if (QFileInfo::exists(m_file + journal))
            rename(m_file + journal, aside + journal);
    }
    QFile::remove(m_file + QStringLiteral("-shm"));
    if (copy)
        rename(fresh, m_file);
    else
        QFile::remove(m_file);
    sync(QFileInfo(m_file).absolutePath());
    return aside;
}
