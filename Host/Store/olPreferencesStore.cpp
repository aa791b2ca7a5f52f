#include "Store/olPreferencesStore.h"

#include "State/olValue.h"
#include "Store/olStoreFile.h"
#include "Store/olStoreWriter.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QLockFile>
#include <QStandardPaths>

#include <optional>
#include <utility>

namespace
{

using Kind = olStoreFault::Kind;

constexpr int lockMilliseconds = 3000;

QString translated(const char *text) { return QCoreApplication::translate("olPreferencesStore", text); }

const char *nameOf(olHome home) { return home == olHome::Record ? "record" : "service"; }

std::optional<olHome> homeNamed(const std::string &name)
{
    for (const olHome home : {olHome::Record, olHome::Service}) {
        if (name == nameOf(home))
            return home;
    }
    return std::nullopt;
}

olStoreRows::Key rowKey(const olPreferencesStore::Key &key) { return {nameOf(key.first), key.second}; }

/// Keeps other programs from mending or copying the same store at the same time.
class Lock
{
public:
    Lock(const QString &file, int milliseconds) : m_lock(file + QStringLiteral(".lock"))
    {
        m_isHeld = m_lock.tryLock(milliseconds);
    }
    [[nodiscard]] bool isHeld() const { return m_isHeld; }

private:
    QLockFile m_lock;
    bool m_isHeld;
};

} // namespace

QString olPreferencesStore::userFile()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return folder.filePath(QStringLiteral("orlo/preferences.db"));
}

olPreferencesStore::olPreferencesStore(QString file)
    : m_file(std::move(file)), m_writer(std::make_unique<olStoreWriter>(m_file))
{
}

olPreferencesStore::~olPreferencesStore() = default;

olStoreFile olPreferencesStore::store() const { return olStoreFile(m_file); }

olStoreFile olPreferencesStore::copy() const { return olStoreFile(m_file + QStringLiteral(".last-good")); }

bool olPreferencesStore::wasStore() const { return copy().exists(); }

QString olPreferencesStore::cannotRead(const olStoreFault &fault) const
{
    return translated("Cannot read the preferences %1: %2.").arg(m_file, fault.reason) + wayOut(fault);
}

/// A file of a newer version is not ours to touch; but it may also be damaged just where its version stands.
QString olPreferencesStore::wayOut(const olStoreFault &fault) const
{
    if (fault.kind != Kind::Newer)
        return {};
    const QString fresh =
        translated(" Use that version. If there is none, the file is damaged: move it away to start with defaults");
    return fresh +
           (copy().exists() ? translated(", or rename its copy %1 to it.").arg(copy().name()) : QStringLiteral("."));
}

/// Empty where none are.
QString olPreferencesStore::lostSaves() const
{
    if (!store().isLogDamaged())
        return {};
    return translated("The log of the preferences file %1 is damaged: what was changed last before the program or the "
                      "system stopped may be missing.")
        .arg(m_file);
}

void olPreferencesStore::hand(const olStoreRows &rows, Values &values)
{
    m_hadRows = !rows.rows.empty();
    for (const auto &[key, row] : rows.rows) {
        const auto home = homeNamed(key.first);
        const boost::any value =
            olValue::fromJson(row.type, QByteArray::fromRawData(row.value.data(), int(row.value.size())));
        if (home && !value.empty())
            values[{*home, key.second}] = value;
    }
}

QString olPreferencesStore::load(Values &values)
{
    try {
        hand(store().read(wasStore()), values);
        return {};
    } catch (const olStoreFault &fault) {
        return cannotRead(fault);
    }
}

olStoreOpening olPreferencesStore::open(Values &values)
{
    // The file may have to be moved.
    m_writer->close();
    const QString lost = lostSaves();
    try {
        const olStoreRows rows = store().read(wasStore());
        hand(rows, values);
        keepCopy(rows);
        return {{}, lost};
    } catch (const olStoreFault &fault) {
        if (fault.kind == Kind::Damaged)
            return repair(fault.reason, values);
        return {cannotRead(fault), {}};
    }
}

olStoreOpening olPreferencesStore::lookAt(Values &values)
{
    const QString lost = lostSaves();
    try {
        hand(store().read(wasStore()), values);
        return {{}, lost};
    } catch (const olStoreFault &fault) {
        if (fault.kind != Kind::Damaged)
            return {cannotRead(fault), {}};
        QString remark;
        hand(copiedRows(remark), values);
        return {{}, translated("The preferences file %1 is damaged: %2. %3").arg(m_file, fault.reason, remark)};
    }
}

olStoreRows olPreferencesStore::copiedRows(QString &remark) const
{
    const olStoreFile copied = copy();
    try {
        if (copied.exists()) {
            olStoreRows rows = copied.read(true);
            const QDateTime when = QFileInfo(copied.name()).lastModified();
            remark = translated("The copy of %1 was loaded; what was changed after that is not in it.")
                         .arg(QLocale().toString(when, QLocale::ShortFormat));
            return rows;
        }
        remark = translated("There is no copy of it yet, so all settings are at their defaults.");
    } catch (const olStoreFault &fault) {
        remark =
            translated("Its copy cannot be read either (%1), so all settings are at their defaults.").arg(fault.reason);
    }
    return {};
}

olStoreOpening olPreferencesStore::repair(const QString &reason, Values &values)
{
    const Lock lock(m_file, lockMilliseconds);
    try {
        // Another program may have mended it meanwhile.
        if (lock.isHeld()) {
            hand(store().read(wasStore()), values);
            return {};
        }
    } catch (const olStoreFault &) {
    }

    QString remark;
    const olStoreRows rows = copiedRows(remark);
    hand(rows, values);
    const QString found = translated("The preferences file %1 is damaged: %2. ").arg(m_file, reason);
    try {
        if (!lock.isHeld())
            throw olStoreFault{Kind::Access, translated("its folder is read-only, or another program keeps it busy")};
        const QString aside = store().replaceAndSetAside(rows);
        return {{}, found + translated("It is now kept as %1. ").arg(aside) + remark};
    } catch (const olStoreFault &fault) {
        return {{}, found + translated("It could not be set aside: %1. ").arg(fault.reason) + remark};
    }
}

void olPreferencesStore::keepCopy(const olStoreRows &rows) const
{
    if (!store().exists())
        return;
    try {
        const olStoreFile copied = copy();
        if (copied.exists() && copied.read(true).rows == rows.rows)
            return;
    } catch (const olStoreFault &fault) {
        if (fault.kind == Kind::Newer)
            return;
    }
    // Who cannot have the lock lets the other one make the copy; and without one all is as good as before.
    const Lock lock(m_file, 0);
    try {
        if (lock.isHeld())
            copy().replace(rows);
    } catch (const olStoreFault &) {
    }
}

/// For a store that may be none yet.
void olPreferencesStore::makeWay() const
{
    if (!QDir().mkpath(QFileInfo(m_file).absolutePath()))
        throw olStoreFault{Kind::Access, translated("its folder cannot be created")};
    // Who took the file away wants to begin anew; a copy of the old one would come back at the next damage.
    if (!store().exists())
        QFile::remove(copy().name());
}

QString olPreferencesStore::save(const Values &changed, const std::vector<Key> &removed)
{
    m_isBroken = false;
    if (changed.empty() && removed.empty())
        return {};
    olStoreRows put;
    for (const auto &[key, value] : changed)
        put.rows[rowKey(key)] = {olValue::typeName(value), olValue::toJson(value)};
    std::vector<olStoreRows::Key> gone;
    gone.reserve(removed.size());
    for (const Key &key : removed)
        gone.push_back(rowKey(key));

    try {
        if (!m_hadRows)
            makeWay();
        m_writer->change(put, gone, m_hadRows);
        m_hadRows = true;
        m_hasLog = true;
        return {};
    } catch (const olStoreFault &fault) {
        m_isBroken = fault.kind == Kind::Damaged;
        return translated("Cannot save the preferences to %1: %2. What it held before is unchanged.")
                   .arg(m_file, fault.reason) +
               wayOut(fault);
    }
}

void olPreferencesStore::close()
{
    m_writer->close();
    if (!std::exchange(m_hasLog, false))
        return;
    try {
        // A log is only worked into what was proved sound.
        (void)store().read(wasStore());
    } catch (const olStoreFault &) {
    }
}

QStringList olPreferencesStore::check() const
{
    QStringList findings;
    const QString lost = lostSaves();
    if (!lost.isEmpty())
        findings << lost;
    for (const olStoreFile &file : {store(), copy()}) {
        try {
            (void)file.read(wasStore());
        } catch (const olStoreFault &fault) {
            findings << translated("%1: %2.").arg(file.name(), fault.reason);
        }
    }
    return findings;
}
