#include "Store/olPreferencesStore.h"

#include "State/olListed.h"
#include "Store/olSqlite.h"
#include "Store/olStoreTables.h"

#include <QByteArray>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QLockFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QThread>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <utility>

namespace
{

using Kind = olStoreError::Kind;
using namespace olStoreRows;

constexpr int waitMilliseconds = 3000;

// What may stand beside a database: the journal of a save, and the log of an earlier version.
const QLatin1String journals[] = {QLatin1String("-journal"), QLatin1String("-wal")};

constexpr int headerSize = 100;

QByteArray pathOf(const QString &name) { return QFile::encodeName(name); }

olStoreError accessError(const QString &reason) { return {Kind::Access, reason}; }

olStoreError systemError() { return accessError(QString::fromLocal8Bit(std::strerror(errno))); }

olStoreError busy() { return accessError(olPreferencesStore::tr("another program keeps it busy")); }

/// What is made beside a link, a journal or a copy, belongs beside what it leads to.
QString targetOf(QString file)
{
    constexpr int mostLinks = 40;
    for (int links = 0; links < mostLinks && QFileInfo(file).isSymLink(); ++links)
        file = QFileInfo(file).symLinkTarget();
    return file;
}

/// Without a mode where there is no file.
struct stat statusOf(const QString &name)
{
    struct stat status = {};
    if (::stat(pathOf(name).constData(), &status) != 0)
        status.st_mode = 0;
    return status;
}

/// What cannot be looked at is there, and says why when it is opened.
bool exists(const QString &name) { return statusOf(name).st_mode != 0 || (errno != ENOENT && errno != ENOTDIR); }

bool hasJournal(const QString &name)
{
    return QFileInfo(name + journals[0]).size() > 0 || QFileInfo(name + journals[1]).size() > 0;
}

void rename(const QString &from, const QString &to)
{
    if (std::rename(pathOf(from).constData(), pathOf(to).constData()) != 0)
        throw systemError();
}

/// To be read while no transaction is under way: to close it lets go of all locks that this process has on it.
QByteArray headerOf(const QString &name)
{
    QFile file(name);
    return S_ISREG(statusOf(name).st_mode) && file.open(QIODevice::ReadOnly) ? file.read(headerSize) : QByteArray();
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

/// Differs when the file or a journal was written or replaced. The header counts the saves, whatever the clock says.
QByteArray stampOf(const QString &file)
{
    QByteArray stamp = headerOf(file);
    for (const QString &name : {file, file + journals[0], file + journals[1]}) {
        const struct stat status = statusOf(name);
        for (const auto number : {qint64(status.st_ino), qint64(status.st_size), qint64(status.st_mtim.tv_sec),
                                  qint64(status.st_mtim.tv_nsec)})
            stamp += QByteArray::number(number) + ' ';
    }
    return stamp;
}

QByteArray bytesOf(const QString &file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        throw accessError(source.errorString());
    return source.readAll();
}

/// The file with its journal or log beside it as the database makes them one, in a folder of our own. In memory, where
/// a full disk is in nobody's way.
QByteArray unitedBytesOf(const QString &file)
{
    const QString memory = QStringLiteral("/dev/shm");
    const QTemporaryDir folder((QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + "/orlo-XXXXXX");
    const QString copy = folder.filePath(QStringLiteral("copy.db"));
    for (const QLatin1String part : {QLatin1String(""), journals[0], journals[1]}) {
        QFile source(file + part);
        if (!source.copy(copy + part) && source.exists())
            throw accessError(
                olPreferencesStore::tr("%1 cannot be read: %2").arg(source.fileName(), source.errorString()));
        QFile::setPermissions(copy + part, QFile::ReadOwner | QFile::WriteOwner);
    }
    olSqlite(copy, olSqlite::Access::Private).run("PRAGMA journal_mode = DELETE");
    return bytesOf(copy);
}

/// All that a file holds; nothing where somebody wrote into it meanwhile. So the disk stays as it is, no lock is needed
/// and nobody is waited for.
std::optional<QByteArray> snapshotOf(const QString &file)
{
    const mode_t mode = statusOf(file).st_mode;
    if (mode != 0 && !S_ISREG(mode))
        throw accessError(olPreferencesStore::tr("it is no regular file"));
    const QByteArray stamp = stampOf(file);
    try {
        QByteArray bytes = bytesOf(file);
        const QByteArray versions = versionsIn(bytes);
        if (bytes.startsWith("SQLite format 3") && versions != "\1\1" && versions != "\2\2")
            throw olStoreError(Kind::Damaged, olPreferencesStore::tr("its header is not what it was"));
        if (hasJournal(file) || versions == "\2\2")
            bytes = unitedBytesOf(file);
        return stampOf(file) == stamp ? std::optional(bytes) : std::nullopt;
    } catch (const olStoreError &) {
        if (stampOf(file) == stamp)
            throw;
        return std::nullopt;
    }
}

/// What that means, after it was proved sound. Where a store was before, whatever is there now is not foreign but
/// damaged.
std::optional<Contents> tryToRead(const QString &file, bool wasStore)
{
    try {
        const std::optional<QByteArray> bytes = snapshotOf(file);
        if (!bytes)
            return std::nullopt;
        olSqlite database(*bytes);
        Contents contents = olStoreTables::read(database, wasStore);
        contents.history = olStoreTables::readHistory(database);
        contents.file = *bytes;
        return contents;
    } catch (const olStoreError &error) {
        if (error.kind() == Kind::Damaged && !wasStore && !looksLikeAStore(headerOf(file)))
            throw accessError(olPreferencesStore::tr("it is no preferences file"));
        throw;
    }
}

/// Nothing where there is no file, or nothing in it yet.
Contents read(const QString &file, bool wasStore)
{
    // Others may save one after the other; who saves waits as long for them.
    const QDeadlineTimer end(waitMilliseconds);
    while (exists(file)) {
        if (std::optional<Contents> contents = tryToRead(file, wasStore))
            return std::move(*contents);
        if (end.hasExpired())
            throw busy();
        QThread::msleep(10);
    }
    return {};
}

/// A new file beside another, with the bytes and the mode of an original, whole and on the disk, to be put in its
/// place.
std::unique_ptr<QTemporaryFile> writtenBeside(const QString &file, const QByteArray &bytes, const QString &original)
{
    auto fresh = std::make_unique<QTemporaryFile>(file + QStringLiteral(".XXXXXX"));
    if (!fresh->open() || fresh->write(bytes) != bytes.size() || !fresh->flush() ||
        !fresh->setPermissions(QFile::permissions(original)) || ::fsync(fresh->handle()) != 0)
        throw accessError(fresh->errorString());
    return fresh;
}

void putInPlace(QTemporaryFile &fresh, const QString &file)
{
    rename(fresh.fileName(), file);
    fresh.setAutoRemove(false);
}

/// Keeps the file, with its journal, under the dated name that is returned.
QString setAside(const QString &file)
{
    const QString aside =
        file + QDateTime::currentDateTime().toString(QStringLiteral("'.damaged-'yyyy-MM-dd_HH-mm-ss-zzz"));
    // A second name first: at no moment is the file without one. Not all file systems know second names.
    if (::link(pathOf(file).constData(), pathOf(aside).constData()) != 0)
        rename(file, aside);
    // A journal that stayed here would be worked into the new file.
    for (const QLatin1String journal : journals) {
        if (QFileInfo::exists(file + journal))
            rename(file + journal, aside + journal);
    }
    QFile::remove(file + QStringLiteral("-shm"));
    return aside;
}

} // namespace

QString olPreferencesStore::userFile()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return folder.filePath(QStringLiteral("orlo/preferences.db"));
}

bool olPreferencesStore::makeFolder(const QString &folder)
{
    return QFileInfo(folder).isDir() || (makeFolder(QFileInfo(folder).path()) &&
                                         (::mkdir(pathOf(folder).constData(), 0700) == 0 || errno == EEXIST));
}

olPreferencesStore::olPreferencesStore(const QString &file)
    : m_file(targetOf(file)), m_copy(m_file + QStringLiteral(".last-good"))
{
}

/// Whether a store is here, or was.
bool olPreferencesStore::isStore() const { return m_isStore || exists(m_copy); }

/// A file of a newer version is not ours to touch; but it may also be damaged just where its version stands.
olFailure olPreferencesStore::failure(const QString &fault, const olStoreError &error) const
{
    QStringList told{fault.arg(m_file, error.reason())};
    if (error.kind() == Kind::Newer)
        told << tr("Use that version. If there is none, the file is damaged: move it away to start with defaults, or "
                   "rename its copy %1, where there is one, to it.")
                    .arg(m_copy);
    return {olSentences(told)};
}

Contents olPreferencesStore::readFile()
{
    // Before: what is saved meanwhile is still to be read.
    const QByteArray stamp = stampOf(m_file);
    Contents contents = read(m_file, isStore());
    m_isStore = !contents.seal.empty();
    m_stamp = stamp;
    return contents;
}

olResult<Contents> olPreferencesStore::load()
{
    try {
        return readFile();
    } catch (const olStoreError &error) {
        return failure(tr("Cannot read the preferences %1: %2."), error);
    }
}

bool olPreferencesStore::mayHaveChanged() const { return m_stamp.isEmpty() || m_stamp != stampOf(m_file); }

olResult<Contents> olPreferencesStore::open(olStoreUse use)
{
    try {
        Contents contents = readFile();
        if (use == olStoreUse::Own && !contents.seal.empty())
            keepCopy(contents);
        return contents;
    } catch (const olStoreError &error) {
        if (error.kind() == Kind::Damaged)
            return mend(error.reason(), use);
        return failure(tr("Cannot read the preferences %1: %2."), error);
    }
}

Contents olPreferencesStore::mend(const QString &reason, olStoreUse use)
{
    QLockFile lock(m_file + QStringLiteral(".lock"));
    const bool isHeld = use == olStoreUse::Own && lock.tryLock(waitMilliseconds);
    try {
        // Another program may have mended it meanwhile.
        if (isHeld)
            return readFile();
    } catch (const olStoreError &) {
    }
    QStringList told{tr("The preferences file %1 is damaged: %2.").arg(m_file, reason)};
    QString remark = tr("There is no copy of it yet, so all settings are at their defaults.");
    Contents copy;
    try {
        if (exists(m_copy)) {
            copy = read(m_copy, true);
            remark = tr("The copy of %1 was loaded; what was changed after that is not in it.")
                         .arg(QLocale().toString(QFileInfo(m_copy).lastModified(), QLocale::ShortFormat));
        }
    } catch (const olStoreError &error) {
        remark = tr("Its copy cannot be read either (%1), so all settings are at their defaults.").arg(error.reason());
    }
    try {
        if (isHeld) {
            // Before anything is moved, so that a full disk leaves everything where it is.
            const auto fresh = copy.seal.empty() ? nullptr : writtenBeside(m_file, copy.file, m_copy);
            told << tr("It is now kept as %1.").arg(setAside(m_file));
            if (fresh)
                putInPlace(*fresh, m_file);
            else
                QFile::remove(m_file);
            m_isStore = fresh != nullptr;
        } else if (use == olStoreUse::Own) {
            throw accessError(tr("its folder is read-only or full, or another program keeps it busy"));
        }
    } catch (const olStoreError &error) {
        told << tr("It could not be set aside: %1.").arg(error.reason());
    }
    copy.notice = olSentences(told << remark);
    return copy;
}

void olPreferencesStore::keepCopy(const Contents &contents) const
{
    try {
        if (read(m_copy, true).seal == contents.seal)
            return;
    } catch (const olStoreError &error) {
        if (error.kind() == Kind::Newer)
            return;
    }
    try {
        putInPlace(*writtenBeside(m_copy, contents.file, m_file), m_copy);
    } catch (const olStoreError &) {
        // Without one all is as good as before.
    }
}

olResult<> olPreferencesStore::save(const std::vector<Change> &changes, std::vector<Change> *left)
{
    m_isBroken = false;
    if (changes.empty())
        return {};
    try {
        change(changes, left);
        m_isStore = true;
        // What another program saved before this one is still to be read.
        m_stamp.clear();
        return {};
    } catch (const olStoreError &error) {
        m_isBroken = error.kind() == Kind::Damaged;
        return failure(tr("Cannot save the preferences to %1: %2. What it held before is unchanged."), error);
    }
}

void olPreferencesStore::change(const std::vector<Change> &changes, std::vector<Change> *left) const
{
    if (!exists(m_file)) {
        if (m_isStore)
            throw olStoreError(Kind::Damaged, tr("it is gone"));
        // Who took the file away wants to begin anew; a copy of the old one would come back at the next damage.
        QFile::remove(m_copy);
        if (!makeFolder(QFileInfo(m_file).absolutePath()))
            throw olStoreError(Kind::Access, tr("its folder cannot be created"));
        const int made = ::open(pathOf(m_file).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        if (made < 0)
            throw systemError();
        ::close(made);
    }
    // All of it, with what the database would work in from another file, is proved on a copy before, while nobody has
    // to wait for this save. What changes meanwhile is the work of a program that lives, which the database waits for.
    (void)tryToRead(m_file, m_isStore);
    olSqlite database(m_file, olSqlite::Access::Shared);
    if (database.text("PRAGMA journal_mode = DELETE") != "delete")
        throw busy();
    database.run("PRAGMA synchronous = EXTRA");
    database.run("BEGIN IMMEDIATE");
    (void)olStoreTables::read(database, m_isStore);
    if (!olStoreTables::change(database, changes, left))
        return;
    // The database looks only at its first write whether another program has set the file aside.
    if (database.wasMoved())
        throw busy();
    database.run("COMMIT");
}

QStringList olPreferencesStore::check() const
{
    QStringList findings;
    for (const auto &[file, wasStore] : {std::pair(m_file, isStore()), std::pair(m_copy, true)}) {
        try {
            (void)read(file, wasStore);
        } catch (const olStoreError &error) {
            findings << tr("%1: %2.").arg(file, error.reason());
        }
    }
    return findings;
}
