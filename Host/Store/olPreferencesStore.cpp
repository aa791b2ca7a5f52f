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
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <functional>
#include <utility>

namespace
{

using Kind = olStoreError::Kind;
using Work = std::function<void(olSqlite &)>;
using namespace olStoreRows;

constexpr int lockMilliseconds = 3000;

// What may stand beside a database: the journal of a save, and the log of an earlier version.
const QLatin1String journals[] = {QLatin1String("-journal"), QLatin1String("-wal")};

constexpr int headerSize = 100;

QByteArray pathOf(const QString &name) { return QFile::encodeName(name); }

olStoreError systemError() { return {Kind::Access, QString::fromLocal8Bit(std::strerror(errno))}; }

olStoreError busy() { return {Kind::Access, olPreferencesStore::tr("another program keeps it busy")}; }

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

/// To be read while the file is not open: to close it lets go of all locks that this process has on it.
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

void copyPart(const QString &from, const QString &to)
{
    QFile source(from);
    // What went away meanwhile is no fault, but a change.
    if (!source.copy(to) && source.exists())
        throw olStoreError(Kind::Access,
                           olPreferencesStore::tr("%1 cannot be read: %2").arg(from, source.errorString()));
    QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
}

QByteArray bytesOf(const QString &file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        throw olStoreError(Kind::Access, source.errorString());
    return source.readAll();
}

/// Looks at a copy, so that the disk stays as it is, no lock is needed and nobody is waited for. In memory, where a
/// full disk is in nobody's way; where a save was begun or an earlier version left its log, the database works that
/// into files of our own.
void look(const QString &file, const Work &work)
{
    const mode_t mode = statusOf(file).st_mode;
    if (mode != 0 && !S_ISREG(mode))
        throw olStoreError(Kind::Access, olPreferencesStore::tr("it is no regular file"));
    // Others may save one after the other; who saves waits as long for them.
    constexpr int attempts = lockMilliseconds / 10;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const QByteArray before = stampOf(file);
        if (!hasJournal(file) && !versionsIn(headerOf(file)).contains('\2')) {
            const QByteArray bytes = bytesOf(file);
            if (stampOf(file) == before) {
                olSqlite database(bytes);
                return work(database);
            }
        } else {
            const QString memory = QStringLiteral("/dev/shm");
            const QTemporaryDir folder((QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + "/orlo-XXXXXX");
            const QString copy = folder.filePath(QStringLiteral("copy.db"));
            for (const QLatin1String part : {QLatin1String(""), journals[0], journals[1]})
                copyPart(file + part, copy + part);
            if (stampOf(file) == before) {
                olSqlite database(copy, olSqlite::Access::Private);
                return work(database);
            }
        }
        ::usleep(10000);
    }
    throw busy();
}

/// Everything in a file, after it was proved sound; nothing where there is no file, or nothing in it yet. Where a store
/// was before, whatever is there now is not foreign but damaged.
Contents readFile(const QString &file, bool wasStore)
{
    Contents contents;
    if (!exists(file))
        return contents;
    try {
        look(file, [&](olSqlite &database) {
            contents = olStoreTables::read(database, wasStore);
            contents.history = olStoreTables::readHistory(database);
        });
        // Only now: another program may just have filled the file.
        const QByteArray versions = versionsIn(headerOf(file));
        if (!contents.seal.empty() && versions != "\1\1" && versions != "\2\2")
            throw olStoreError(Kind::Damaged, olPreferencesStore::tr("its header is not what it was"));
        return contents;
    } catch (const olStoreError &error) {
        if (error.kind() == Kind::Damaged && !wasStore && !looksLikeAStore(headerOf(file)))
            throw olStoreError(Kind::Access, olPreferencesStore::tr("it is no preferences file"));
        throw;
    }
}

/// A copy of the file, which must be sound, ready to take the place of another.
QString copyBeside(const QString &file, const QString &other)
{
    const QString fresh = other + QStringLiteral(".new");
    QFile::remove(fresh);
    try {
        makeFile(fresh);
        look(file, [&fresh](olSqlite &database) { database.run("VACUUM INTO ?", {pathOf(fresh).toStdString()}); });
        QFile::setPermissions(fresh, QFile::permissions(file));
        sync(fresh);
    } catch (const olStoreError &) {
        QFile::remove(fresh);
        throw;
    }
    return fresh;
}

/// Keeps the file, with its journal, under the dated name that is returned. The copy, where one is named, takes its
/// place; where that cannot be made everything is as it was.
QString setAside(const QString &file, const QString &copy)
{
    // Built before anything is moved, so that a full disk leaves everything where it is.
    const QString fresh = copy.isEmpty() ? QString() : copyBeside(copy, file);
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
    if (copy.isEmpty())
        QFile::remove(file);
    else
        rename(fresh, file);
    sync(QFileInfo(file).absolutePath());
    return aside;
}

/// Keeps programs from mending or copying a store at the same time. The system takes it from a program that is killed.
class Lock
{
public:
    explicit Lock(const QString &store) : m_name(QFile::encodeName(store + QLatin1String(".lock"))) {}
    ~Lock()
    {
        if (m_isHeld)
            ::unlink(m_name.constData());
        shut();
    }
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;

    [[nodiscard]] bool tryLock(int milliseconds)
    {
        const QDeadlineTimer end(milliseconds);
        for (;;) {
            m_file = ::open(m_name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
            if (m_file < 0)
                return false;
            if (::flock(m_file, LOCK_EX | LOCK_NB) == 0 && isOfThatName()) {
                m_isHeld = true;
                return true;
            }
            shut();
            if (end.hasExpired())
                return false;
            QThread::msleep(10);
        }
    }

private:
    /// Who held it before may have taken the name away in between, and then it keeps nobody off.
    [[nodiscard]] bool isOfThatName() const
    {
        struct stat held {
        };
        struct stat named {
        };
        return ::fstat(m_file, &held) == 0 && ::stat(m_name.constData(), &named) == 0 && held.st_ino == named.st_ino;
    }
    void shut()
    {
        if (m_file >= 0)
            ::close(m_file);
        m_file = -1;
    }

    QByteArray m_name;
    int m_file = -1;
    bool m_isHeld = false;
};

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
olFailure olPreferencesStore::withWayOut(const QString &fault, const olStoreError &error) const
{
    if (error.kind() != Kind::Newer)
        return {fault};
    return {
        olSentences({fault, tr("Use that version. If there is none, the file is damaged: move it away to start with "
                               "defaults, or rename its copy %1, where there is one, to it.")
                                .arg(m_copy)})};
}

olFailure olPreferencesStore::cannotRead(const olStoreError &error) const
{
    return withWayOut(tr("Cannot read the preferences %1: %2.").arg(m_file, error.reason()), error);
}

Contents olPreferencesStore::read()
{
    // Before: what is saved meanwhile is still to be read.
    const QByteArray stamp = stampOf(m_file);
    Contents contents = readFile(m_file, isStore());
    m_isStore = !contents.seal.empty();
    m_stamp = stamp;
    return contents;
}

olResult<Contents> olPreferencesStore::load()
{
    try {
        return read();
    } catch (const olStoreError &error) {
        return cannotRead(error);
    }
}

bool olPreferencesStore::mayHaveChanged() const { return m_stamp.isEmpty() || m_stamp != stampOf(m_file); }

olResult<olStoreOpening> olPreferencesStore::open(olStoreUse use)
{
    try {
        Contents contents = read();
        if (use == olStoreUse::Own)
            keepCopy(contents.seal);
        return olStoreOpening{std::move(contents.values), {}};
    } catch (const olStoreError &error) {
        if (error.kind() == Kind::Damaged)
            return mend(error.reason(), use);
        return cannotRead(error);
    }
}

olStoreOpening olPreferencesStore::mend(const QString &reason, olStoreUse use)
{
    Lock lock(m_file);
    const bool isHeld = use == olStoreUse::Own && lock.tryLock(lockMilliseconds);
    try {
        // Another program may have mended it meanwhile.
        if (isHeld)
            return {read().values, {}};
    } catch (const olStoreError &) {
    }
    QStringList told{tr("The preferences file %1 is damaged: %2.").arg(m_file, reason)};
    QString remark = tr("There is no copy of it yet, so all settings are at their defaults.");
    std::optional<Values> values;
    try {
        if (exists(m_copy)) {
            values = readFile(m_copy, true).values;
            remark = tr("The copy of %1 was loaded; what was changed after that is not in it.")
                         .arg(QLocale().toString(QFileInfo(m_copy).lastModified(), QLocale::ShortFormat));
        }
    } catch (const olStoreError &error) {
        remark = tr("Its copy cannot be read either (%1), so all settings are at their defaults.").arg(error.reason());
    }
    try {
        if (isHeld) {
            told << tr("It is now kept as %1.").arg(setAside(m_file, values ? m_copy : QString()));
            m_isStore = values.has_value();
        } else if (use == olStoreUse::Own) {
            throw olStoreError(Kind::Access, tr("its folder is read-only, or another program keeps it busy"));
        }
    } catch (const olStoreError &error) {
        told << tr("It could not be set aside: %1.").arg(error.reason());
    }
    return {values.value_or(Values()), olSentences(told << remark)};
}

void olPreferencesStore::keepCopy(const std::string &seal) const
{
    // Who cannot have the lock lets the other one make the copy; and without one all is as good as before.
    Lock lock(m_file);
    if (seal.empty() || !lock.tryLock(0))
        return;
    try {
        if (readFile(m_copy, true).seal == seal)
            return;
    } catch (const olStoreError &error) {
        if (error.kind() == Kind::Newer)
            return;
    }
    try {
        rename(copyBeside(m_file, m_copy), m_copy);
        sync(QFileInfo(m_copy).absolutePath());
    } catch (const olStoreError &) {
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
        return withWayOut(
            tr("Cannot save the preferences to %1: %2. What it held before is unchanged.").arg(m_file, error.reason()),
            error);
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
        makeFile(m_file);
    }
    // What the database would work in from another file is proved on a copy before.
    if (hasJournal(m_file) || versionsIn(headerOf(m_file)) != "\1\1")
        (void)readFile(m_file, m_isStore);
    olSqlite database(m_file, olSqlite::Access::Shared);
    if (database.text("PRAGMA journal_mode = DELETE") != "delete")
        throw busy();
    database.run("PRAGMA synchronous = EXTRA");
    database.run("BEGIN IMMEDIATE");
    (void)olStoreTables::read(database, m_isStore);
    if (!olStoreTables::change(database, changes, left))
        return;
    // Another program may just have set it aside.
    if (database.wasMoved())
        throw busy();
    database.run("COMMIT");
}

QStringList olPreferencesStore::check() const
{
    QStringList findings;
    for (const auto &[file, wasStore] : {std::pair(m_file, isStore()), std::pair(m_copy, true)}) {
        try {
            (void)readFile(file, wasStore);
        } catch (const olStoreError &error) {
            findings << tr("%1: %2.").arg(file, error.reason());
        }
    }
    return findings;
}
