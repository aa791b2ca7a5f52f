#include "Store/olPreferencesStore.h"

#include "State/olValue.h"
#include "Store/olStoreError.h"
#include "Store/olStoreFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace
{

using Kind = olStoreError::Kind;

constexpr int lockMilliseconds = 3000;

// Clocks of files go in steps, some of whole seconds.
constexpr qint64 settledMilliseconds = 2000;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olPreferencesStore)
};

const char *nameOf(olHome home) { return home == olHome::Record ? "record" : "service"; }

/// What is made beside a link, a journal or a copy, belongs beside what it leads to.
QString targetOf(QString file)
{
    constexpr int mostLinks = 40;
    for (int links = 0; links < mostLinks && QFileInfo(file).isSymLink(); ++links)
        file = QFileInfo(file).symLinkTarget();
    return file;
}

/// Keeps other programs from mending or copying the stores of a folder at the same time. Ends with the program.
class Lock
{
public:
    Lock(const QString &file, int milliseconds)
        : m_folder(::open(QFile::encodeName(QFileInfo(file).absolutePath()).constData(), O_RDONLY | O_CLOEXEC))
    {
        constexpr int step = 10;
        while (!(m_isHeld = ::flock(m_folder, LOCK_EX | LOCK_NB) == 0) && errno == EWOULDBLOCK && milliseconds > 0) {
            ::usleep(step * 1000);
            milliseconds -= step;
        }
    }
    ~Lock() { ::close(m_folder); }
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;

    [[nodiscard]] bool isHeld() const { return m_isHeld; }

private:
    int m_folder;
    bool m_isHeld = false;
};

} // namespace

struct olPreferencesStore::Stamp {
    olStoreFile::Stamp file;
    bool isSettled;
};

QString olPreferencesStore::userFile()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return folder.filePath(QStringLiteral("orlo/preferences.db"));
}

olPreferencesStore::olPreferencesStore(const QString &file) : m_file(targetOf(file)) {}

olPreferencesStore::~olPreferencesStore() = default;

olStoreFile olPreferencesStore::copy() const { return {m_file + QStringLiteral(".last-good"), true}; }

olStoreFile olPreferencesStore::store() const { return {m_file, m_hadRows || copy().exists()}; }

QString olPreferencesStore::cannotRead(const olStoreError &error) const
{
    return Words::tr("Cannot read the preferences %1: %2.").arg(m_file, error.reason()) + wayOut(error);
}

/// A file of a newer version is not ours to touch; but it may also be damaged just where its version stands.
QString olPreferencesStore::wayOut(const olStoreError &error) const
{
    if (error.kind() != Kind::Newer)
        return {};
    const QString fresh =
        Words::tr(" Use that version. If there is none, the file is damaged: move it away to start with defaults");
    return fresh +
           (copy().exists() ? Words::tr(", or rename its copy %1 to it.").arg(copy().name()) : QStringLiteral("."));
}

olStoreRows::Key olPreferencesStore::rowKey(const Key &key) { return {nameOf(key.first), key.second}; }

std::optional<olPreferencesStore::Key> olPreferencesStore::keyOf(const olStoreRows::Key &key)
{
    for (const olHome home : {olHome::Record, olHome::Service}) {
        if (key.first == nameOf(home))
            return Key{home, key.second};
    }
    return std::nullopt;
}

boost::any olPreferencesStore::valueOf(const olStoreRows::Row &row)
{
    return olValue::fromJson(row.type, QByteArray::fromRawData(row.value.data(), int(row.value.size())));
}

void olPreferencesStore::read(Values &values, olStoreRows::History *history)
{
    const qint64 latest = QFileInfo(m_file).lastModified().msecsTo(QDateTime::currentDateTime());
    const Stamp before{store().stamp(), latest > settledMilliseconds};
    take(store().read(history), values);
    m_stamp = std::make_unique<Stamp>(before);
}

void olPreferencesStore::take(const olStoreRows::Rows &rows, Values &values)
{
    m_hadRows = !rows.empty();
    for (const auto &[rowKey, row] : rows) {
        const auto key = keyOf(rowKey);
        const boost::any value = valueOf(row);
        if (key && !value.empty())
            values[*key] = value;
    }
}

QString olPreferencesStore::load(Values &values, olStoreRows::History *history)
{
    try {
        read(values, history);
        return {};
    } catch (const olStoreError &error) {
        return cannotRead(error);
    }
}

bool olPreferencesStore::mayHaveChanged() const
{
    return !m_stamp || !m_stamp->isSettled || m_stamp->file != store().stamp();
}

olStoreOpening olPreferencesStore::open(Values &values)
{
    try {
        read(values);
        keepCopy();
        return {};
    } catch (const olStoreError &error) {
        if (error.kind() == Kind::Damaged)
            return repair(error.reason(), values);
        return {cannotRead(error), {}};
    }
}

olStoreOpening olPreferencesStore::lookAt(Values &values)
{
    try {
        read(values);
        return {};
    } catch (const olStoreError &error) {
        if (error.kind() != Kind::Damaged)
            return {cannotRead(error), {}};
        QString remark;
        (void)readCopy(values, remark);
        return {{}, Words::tr("The preferences file %1 is damaged: %2. %3").arg(m_file, error.reason(), remark)};
    }
}

/// False, with no values, where there is no sound copy.
bool olPreferencesStore::readCopy(Values &values, QString &remark)
{
    try {
        if (copy().exists()) {
            take(copy().read(), values);
            remark = Words::tr("The copy of %1 was loaded; what was changed after that is not in it.")
                         .arg(QLocale().toString(QFileInfo(copy().name()).lastModified(), QLocale::ShortFormat));
            return true;
        }
        remark = Words::tr("There is no copy of it yet, so all settings are at their defaults.");
    } catch (const olStoreError &error) {
        remark = Words::tr("Its copy cannot be read either (%1), so all settings are at their defaults.")
                     .arg(error.reason());
    }
    m_hadRows = false;
    return false;
}

olStoreOpening olPreferencesStore::repair(const QString &reason, Values &values)
{
    const Lock lock(m_file, lockMilliseconds);
    try {
        // Another program may have mended it meanwhile.
        if (lock.isHeld()) {
            read(values);
            return {};
        }
    } catch (const olStoreError &) {
    }

    QString remark;
    const bool hasCopy = readCopy(values, remark);
    const QString found = Words::tr("The preferences file %1 is damaged: %2. ").arg(m_file, reason);
    try {
        if (!lock.isHeld())
            throw olStoreError(Kind::Access, Words::tr("its folder is read-only, or another program keeps it busy"));
        const olStoreFile good = copy();
        const QString aside = store().setAside(hasCopy ? &good : nullptr);
        return {{}, found + Words::tr("It is now kept as %1. ").arg(aside) + remark};
    } catch (const olStoreError &error) {
        return {{}, found + Words::tr("It could not be set aside: %1. ").arg(error.reason()) + remark};
    }
}

void olPreferencesStore::keepCopy() const
{
    if (QFileInfo(m_file).size() == 0)
        return;
    // Who cannot have the lock lets the other one make the copy; and without one all is as good as before.
    const Lock lock(m_file, 0);
    if (!lock.isHeld())
        return;
    try {
        if (copy().exists() && copy().read() == store().read())
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

QString olPreferencesStore::save(const Values &changed, const std::vector<Key> &removed)
{
    olStoreRows::Changes changes;
    for (const auto &[key, value] : changed)
        changes[rowKey(key)] = {olValue::typeName(value), olValue::toJson(value)};
    for (const Key &key : removed)
        changes[rowKey(key)] = std::nullopt;
    return save(changes);
}

QString olPreferencesStore::save(const olStoreRows::Changes &changes)
{
    m_isBroken = false;
    if (changes.empty())
        return {};
    try {
        // Who took the file away wants to begin anew; a copy of the old one would come back at the next damage.
        if (!m_hadRows && !store().exists())
            QFile::remove(copy().name());
        olStoreFile(m_file, m_hadRows).change(changes, program_invocation_short_name);
        m_hadRows = true;
        // What another program saved before this one is still to be read.
        m_stamp.reset();
        return {};
    } catch (const olStoreError &error) {
        m_isBroken = error.kind() == Kind::Damaged;
        return Words::tr("Cannot save the preferences to %1: %2. What it held before is unchanged.")
                   .arg(m_file, error.reason()) +
               wayOut(error);
    }
}

QString olPreferencesStore::readHistory(olStoreRows::History &history, olStoreRows::Rows &rows) const
{
    try {
        rows = store().read(&history);
        return {};
    } catch (const olStoreError &error) {
        return cannotRead(error);
    }
}

QStringList olPreferencesStore::check() const
{
    QStringList findings;
    for (const olStoreFile &file : {store(), copy()}) {
        try {
            (void)file.read();
        } catch (const olStoreError &error) {
            findings << Words::tr("%1: %2.").arg(file.name(), error.reason());
        }
    }
    return findings;
}
