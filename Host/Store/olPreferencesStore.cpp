#include "Store/olPreferencesStore.h"

#include "State/olValue.h"
#include "Store/olSqlite.h"
#include "Store/olStoreFile.h"

#include <QByteArray>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using Kind = olStoreError::Kind;
using namespace olStoreRows;

constexpr int lockMilliseconds = 3000;

// Clocks of files go in steps, some of whole seconds.
constexpr qint64 settledMilliseconds = 2000;

/// What is made beside a link, a journal or a copy, belongs beside what it leads to.
QString targetOf(QString file)
{
    constexpr int mostLinks = 40;
    for (int links = 0; links < mostLinks && QFileInfo(file).isSymLink(); ++links)
        file = QFileInfo(file).symLinkTarget();
    return file;
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

olPreferencesStore::olPreferencesStore(const QString &file) : m_file(targetOf(file)) {}

olStoreFile olPreferencesStore::copy() const { return {m_file + QStringLiteral(".last-good"), true}; }

olStoreFile olPreferencesStore::store() const { return {m_file, m_isStore || copy().exists()}; }

olFailure olPreferencesStore::cannotRead(const olStoreError &error) const
{
    return {tr("Cannot read the preferences %1: %2.").arg(m_file, error.reason()) + wayOut(error)};
}

/// A file of a newer version is not ours to touch; but it may also be damaged just where its version stands.
QString olPreferencesStore::wayOut(const olStoreError &error) const
{
    return error.kind() == Kind::Newer ? tr(" Use that version. If there is none, the file is damaged: move it away to "
                                            "start with defaults, or rename its copy %1, where there is one, to it.")
                                             .arg(copy().name())
                                       : QString();
}

boost::any olPreferencesStore::valueOf(const Row &row)
{
    return olValue::fromJson(row.type, QByteArray::fromStdString(row.value));
}

Contents olPreferencesStore::read()
{
    const qint64 age = QFileInfo(m_file).lastModified().msecsTo(QDateTime::currentDateTime());
    const QString stamp = age > settledMilliseconds ? store().stamp() : QString();
    Contents contents = store().read();
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

bool olPreferencesStore::mayHaveChanged() const { return m_stamp.isEmpty() || m_stamp != store().stamp(); }

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

/// Nothing where there is no sound copy.
std::optional<Values> olPreferencesStore::readCopy(QString &remark) const
{
    if (!copy().exists()) {
        remark = tr("There is no copy of it yet, so all settings are at their defaults.");
        return std::nullopt;
    }
    try {
        Values values = copy().read().values;
        remark = tr("The copy of %1 was loaded; what was changed after that is not in it.")
                     .arg(QLocale().toString(QFileInfo(copy().name()).lastModified(), QLocale::ShortFormat));
        return values;
    } catch (const olStoreError &error) {
        remark = tr("Its copy cannot be read either (%1), so all settings are at their defaults.").arg(error.reason());
        return std::nullopt;
    }
}

olStoreOpening olPreferencesStore::mend(const QString &reason, olStoreUse use)
{
    const bool isOwn = use == olStoreUse::Own;
    Lock lock(m_file);
    const bool isHeld = isOwn && lock.tryLock(lockMilliseconds);
    try {
        // Another program may have mended it meanwhile.
        if (isHeld)
            return {read().values, {}};
    } catch (const olStoreError &) {
    }
    QStringList told{tr("The preferences file %1 is damaged: %2.").arg(m_file, reason)};
    QString remark;
    const std::optional<Values> values = readCopy(remark);
    try {
        if (isOwn && !isHeld)
            throw olStoreError(Kind::Access, tr("its folder is read-only, or another program keeps it busy"));
        const olStoreFile good = copy();
        if (isOwn) {
            told << tr("It is now kept as %1.").arg(store().setAside(values ? &good : nullptr));
            m_isStore = values.has_value();
        }
    } catch (const olStoreError &error) {
        told << tr("It could not be set aside: %1.").arg(error.reason());
    }
    return {values.value_or(Values()), (told << remark).join(QLatin1Char(' '))};
}

void olPreferencesStore::keepCopy(const std::string &seal) const
{
    // Who cannot have the lock lets the other one make the copy; and without one all is as good as before.
    Lock lock(m_file);
    if (seal.empty() || !lock.tryLock(0))
        return;
    try {
        if (copy().exists() && copy().read().seal == seal)
            return;
    } catch (const olStoreError &error) {
        if (error.kind() == Kind::Newer)
            return;
    }
    try {
        store().copyTo(copy().name());
    } catch (const olStoreError &) {
    }
}

olResult<> olPreferencesStore::save(const Values &changed, const std::vector<Key> &removed)
{
    std::vector<Change> changes;
    for (const auto &[key, value] : changed)
        changes.push_back({key, std::nullopt, Row{olValue::typeName(value), olValue::toJson(value)}});
    for (const Key &key : removed)
        changes.push_back({key, std::nullopt, std::nullopt});
    return save(changes);
}

olResult<> olPreferencesStore::save(const std::vector<Change> &changes, std::vector<Change> *left)
{
    m_isBroken = false;
    if (changes.empty())
        return {};
    try {
        // Who took the file away wants to begin anew; a copy of the old one would come back at the next damage.
        if (!m_isStore && !store().exists())
            QFile::remove(copy().name());
        olStoreFile(m_file, m_isStore).change(changes, left);
        m_isStore = true;
        // What another program saved before this one is still to be read.
        m_stamp.clear();
        return {};
    } catch (const olStoreError &error) {
        m_isBroken = error.kind() == Kind::Damaged;
        return olFailure{
            tr("Cannot save the preferences to %1: %2. What it held before is unchanged.").arg(m_file, error.reason()) +
            wayOut(error)};
    }
}

QStringList olPreferencesStore::check() const
{
    QStringList findings;
    for (const olStoreFile &file : {store(), copy()}) {
        try {
            (void)file.read();
        } catch (const olStoreError &error) {
            findings << tr("%1: %2.").arg(file.name(), error.reason());
        }
    }
    return findings;
}
