#pragma once

#include "Store/olPreferencesStore.h"
#include "Support/Files.h"

#include <QByteArray>
#include <QFileInfo>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>
#include <vector>

/// A store in a folder of its own. In memory where there is such a folder: these tests save thousands of times.
class StoreTest : public testing::Test
{
protected:
    using Key = olPreferencesStore::Key;
    using Values = olPreferencesStore::Values;

    static Key key(const std::string &name) { return {olHome::Record, name}; }

    /// Whatever they were before.
    static std::vector<olStoreRows::Change> to(const Values &values);

    /// What came of reading a store; both texts are empty when all is well.
    struct Opening {
        QString error;
        QString notice;
        Values values;
    };
    static Opening of(const olResult<olStoreRows::Contents> &read);

    /// By a program of its own.
    [[nodiscard]] Opening opened(olStoreUse use = olStoreUse::Own) const
    {
        return of(olPreferencesStore(file).open(use));
    }
    [[nodiscard]] Opening loaded() const { return of(olPreferencesStore(file).load()); }

    static QByteArray bytesOf(const QString &name);
    static void write(const QString &name, const QByteArray &bytes) { writtenFile(name, bytes); }

    /// Whether both hold the same keys with exactly the same values.
    static bool same(const Values &left, const Values &right);

    /// What the file itself holds; the test fails where it cannot be read.
    [[nodiscard]] Values stored() const;

    void save(const Values &changed) const;

    /// Runs SQL on the store's file, as no program of ours would.
    void tamper(const char *sql) const;

    /// Files that were set aside, without their journals.
    [[nodiscard]] QStringList setAside() const;

    static bool isJournal(const QString &name);

    /// All files of the folder with what is in them.
    [[nodiscard]] QMap<QString, QByteArray> disk() const;

    /// What a program leaves that is killed in the middle of writing these rows: half of them are in the file, and what
    /// they were is in the journal.
    void leaveJournal(const Values &values) const;

    QTemporaryDir folder{QFileInfo(QStringLiteral("/dev/shm")).isWritable() ? QStringLiteral("/dev/shm/store-XXXXXX")
                                                                            : QString()};
    QString file = folder.filePath(QStringLiteral("preferences.db"));
};
