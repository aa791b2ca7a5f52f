#include "Store/olStoreFile.h"

#include "Store/olSqlite.h"
#include "Store/olStoreError.h"
#include "Store/olStoreTables.h"

#include <QCoreApplication>
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
constexpr const char *journals[] = {"-journal", "-wal"};

constexpr int copyAttempts = 20;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olStoreFile)
};

QByteArray pathOf(const QString &file) { return QFile::encodeName(file); }

QString systemReason() { return QString::fromLocal8Bit(std::strerror(errno)); }

void rename(const QString &from, const QString &to)
{
    if (std::rename(pathOf(from).constData(), pathOf(to).constData()) != 0)
        throw olStoreError(Kind::Access, systemReason());
}

/// The bytes of a new file are kept through a power cut only when they are written, and its name when its folder is.
void sync(const QString &name)
{
    const int file = ::open(pathOf(name).constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return;
    ::fsync(file);
    ::close(file);
}

/// An empty file for its owner alone, or with the mode of another one.
void makeFile(const QString &name, mode_t mode)
{
    const int file = ::open(pathOf(name).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0)
        throw olStoreError(Kind::Access, systemReason());
    ::fchmod(file, mode);
    ::close(file);
}

mode_t modeOf(const QString &name)
{
    struct stat status = {};
    return ::stat(pathOf(name).constData(), &status) == 0 ? status.st_mode & 07777 : 0600;
}

void copyPart(const QString &from, const QString &to)
{
    QFile::remove(to);
    QFile source(from);
    if (QFileInfo(from).size() == 0)
        return;
    if (!source.open(QIODevice::ReadOnly) || !source.copy(to))
        throw olStoreError(Kind::Access, Words::tr("%1 cannot be read: %2").arg(from, source.errorString()));
    QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
}

/// In memory where there is such a folder, so that a full disk is in nobody's way.
QString temporaryFolder()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/orlo-XXXXXX");
}

} // namespace

bool olStoreFile::makeFolder(const QString &folder)
{
    return QFileInfo(folder).isDir() || (makeFolder(QFileInfo(folder).path()) &&
                                         (::mkdir(pathOf(folder).constData(), 0700) == 0 || errno == EEXIST));
}

/// What cannot be looked at is there, and says why when it is opened.
bool olStoreFile::exists() const
{
    struct stat status = {};
    return ::stat(pathOf(m_file).constData(), &status) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

olStoreFile::Stamp olStoreFile::stamp() const
{
    Stamp stamp = {};
    auto *part = stamp.begin();
    for (const char *suffix : {"", journals[0], journals[1]}) {
        struct stat status = {};
        if (::stat(pathOf(m_file + QLatin1String(suffix)).constData(), &status) != 0)
            status = {};
        *part++ = {(long long)status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
    }
    return stamp;
}

bool olStoreFile::hasPart(const char *suffix) const { return QFileInfo(m_file + QLatin1String(suffix)).size() > 0; }

/// A log is seen without a look into the file: the database would begin to use it.
void olStoreFile::look(const std::function<void(olSqlite &)> &work) const
{
    const QFileInfo info(m_file);
    if (info.exists() && !info.isFile())
        throw olStoreError(Kind::Access, Words::tr("it is no regular file"));
    if (!hasPart("-wal")) {
        try {
            olSqlite database(m_file, olSqlite::Access::Look);
            if (!olStoreTables::usesALog(database.header()))
                return work(database);
        } catch (const olStoreError &error) {
            if (error.kind() == Kind::NoLocks && !hasPart("-journal")) {
                olSqlite database(m_file, olSqlite::Access::Immutable);
                return work(database);
            }
            if (error.kind() != Kind::Busy && error.kind() != Kind::NoLocks)
                throw;
        }
    }
    lookAtACopy(work);
}

/// What a save has begun or an earlier version left is worked into a copy of our own.
void olStoreFile::lookAtACopy(const std::function<void(olSqlite &)> &work) const
{
    const QTemporaryDir folder(temporaryFolder());
    const QString copy = folder.filePath(QStringLiteral("copy.db"));
    for (int attempt = 0; attempt < copyAttempts; ++attempt) {
        const auto before = stamp();
        copyPart(m_file, copy);
        for (const char *journal : journals)
            copyPart(m_file + QLatin1String(journal), copy + QLatin1String(journal));
        if (stamp() == before) {
            olSqlite database(copy, olSqlite::Access::Private);
            return work(database);
        }
        ::usleep(10000);
    }
    throw olStoreError(Kind::Busy, Words::tr("another program keeps it busy"));
}

olStoreRows::Rows olStoreFile::read(olStoreRows::History *history) const
{
    olStoreRows::Rows rows;
    if (!exists())
        return rows;
    bool isStore = m_wasStore;
    try {
        look([&](olSqlite &database) {
            isStore = isStore || olStoreTables::looksLikeAStore(database.header());
            database.run("BEGIN");
            olStoreTables tables(database);
            if (tables.exist()) {
                rows = tables.rows();
                olStoreRows::History found = tables.history();
                if (history)
                    *history = std::move(found);
            } else if (m_wasStore) {
                olStoreTables::damaged(Words::tr("there is nothing in it"));
            }
        });
        return rows;
    } catch (const olStoreError &error) {
        if (error.kind() == Kind::Damaged && !isStore)
            throw olStoreError(Kind::Foreign, Words::tr("it is no preferences file"));
        if (error.kind() == Kind::Foreign && m_wasStore)
            throw olStoreError(Kind::Damaged, error.reason());
        throw;
    }
}

void olStoreFile::change(const olStoreRows::Changes &changes, const std::string &program) const
{
    if (!exists() && m_wasStore)
        olStoreTables::damaged(Words::tr("it is gone"));
    if (!exists()) {
        if (!makeFolder(QFileInfo(m_file).absolutePath()))
            throw olStoreError(Kind::Access, Words::tr("its folder cannot be created"));
        makeFile(m_file, 0600);
    }
    // What the database would work in from another file is proved on a copy before.
    if (hasPart("-journal") || hasPart("-wal") ||
        olStoreTables::usesALog(olSqlite(m_file, olSqlite::Access::Look).header()))
        (void)read();
    olSqlite database(m_file, olSqlite::Access::Write);
    const olStoreError busy(Kind::Busy, Words::tr("another program keeps it busy"));
    if (database.text("PRAGMA journal_mode = DELETE") != "delete")
        throw busy;
    database.run("PRAGMA synchronous = EXTRA");
    database.run("BEGIN IMMEDIATE");
    olStoreTables tables(database);
    if (m_wasStore && !tables.exist())
        olStoreTables::damaged(Words::tr("there is nothing in it"));
    tables.change(changes, program);
    // Another program may just have set it aside.
    if (database.wasMoved())
        throw busy;
    database.run("COMMIT");
}

QString olStoreFile::copyBeside(const QString &other) const
{
    const QString fresh = other + QStringLiteral(".new");
    QFile::remove(fresh);
    try {
        makeFile(fresh, modeOf(m_file));
        look([&fresh](olSqlite &database) { database.run("VACUUM INTO ?", {pathOf(fresh).toStdString()}); });
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
    const QString dated =
        m_file + QDateTime::currentDateTime().toString(QStringLiteral("'.damaged-'yyyy-MM-dd_HH-mm-ss"));
    QString aside = dated;
    for (int number = 2; QFileInfo::exists(aside); ++number)
        aside = dated + QStringLiteral("_%1").arg(number);
    // A second name first: at no moment is the file without one. Not all file systems know second names.
    if (::link(pathOf(m_file).constData(), pathOf(aside).constData()) != 0)
        rename(m_file, aside);
    // A journal that stayed here would be worked into the new file.
    for (const char *journal : journals) {
        const QString name = m_file + QLatin1String(journal);
        if (QFileInfo::exists(name))
            rename(name, aside + QLatin1String(journal));
    }
    QFile::remove(m_file + QStringLiteral("-shm"));
    if (copy)
        rename(fresh, m_file);
    else
        QFile::remove(m_file);
    sync(QFileInfo(m_file).absolutePath());
    return aside;
}
