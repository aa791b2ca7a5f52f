#include "State/olValue.h"
#include "StoreTest.h"

#include <QFile>

#include <random>

namespace
{

/// A store of the second run, and beside it the copy that was made at that run's start.
class StoreDamage : public StoreTest
{
protected:
    StoreDamage()
    {
        old = {{key("Camera fov"), 60.0f}, {key("Path"), std::string("/tmp")}, {{olHome::Service, "Scale"}, 0.5f}};
        for (int row = 0; row < 40; ++row)
            old[key("Row " + std::to_string(row))] = std::string(std::size_t(row) * 5, 'v');
        save(old);
        EXPECT_EQ(opened().error, QString());
        save({{key("Camera fov"), 75.0f}});
        current = stored();
        sound = bytesOf(file);
        copy = bytesOf(file + ".last-good");
    }

    /// Opens the store with these bytes in it. Nothing may ever come out of it but its values, its copy's or an error.
    void open(const QByteArray &bytes, const std::string &what)
    {
        write(file, bytes);
        const Opening opening = opened();
        if (!opening.error.isEmpty()) {
            ++refused;
            ASSERT_EQ(bytesOf(file), bytes) << what;
        } else if (opening.notice.isEmpty()) {
            ++harmless;
            ASSERT_TRUE(same(opening.values, current)) << what;
        } else {
            ++mended;
            ASSERT_TRUE(same(opening.values, old)) << what;
            const QStringList kept = setAside();
            ASSERT_EQ(kept.size(), 1) << what;
            ASSERT_TRUE(opening.notice.contains(kept.first()) && opening.notice.contains(file)) << what;
            ASSERT_EQ(bytesOf(folder.filePath(kept.first())), bytes) << what;
            QFile::remove(folder.filePath(kept.first()));
        }
        // Where the file went on being used, it can be.
        if (opening.error.isEmpty() && (harmless + mended) % 50 == 0) {
            ASSERT_EQ(olPreferencesStore(file).save(to({{key("Camera fov"), 80.0f}})).error(), QString()) << what;
            ASSERT_TRUE(olValue::identical(stored()[key("Camera fov")], 80.0f)) << what;
        }
        write(file + ".last-good", copy);
    }

    Values old;
    Values current;
    QByteArray sound;
    QByteArray copy;
    int refused = 0;
    int harmless = 0;
    int mended = 0;
};

TEST_F(StoreDamage, EachBitIsNoticedOrHarmlessAndTheBadFileIsKept)
{
    constexpr int header = 100 * 8;
    std::mt19937 random(1);
    for (int round = 0; round < 5000 && !HasFatalFailure(); ++round) {
        const int bit = round < header ? round : int(random() % unsigned(sound.size() * 8));
        QByteArray bytes = sound;
        bytes[bit / 8] = char(bytes.at(bit / 8) ^ (1 << bit % 8));
        open(bytes, "bit " + std::to_string(bit));
    }
    EXPECT_GT(mended, 100);
    EXPECT_LE(refused, 40) << "only what claims to be of a newer version is left alone";
}

TEST_F(StoreDamage, EveryTruncationIsNoticed)
{
    // Each byte of the first pages, which hold all that says what the file is.
    for (int size = 0; size < sound.size() && !HasFatalFailure(); size += size < 8192 ? 1 : 8) {
        const QByteArray bytes = sound.left(size);
        if (size % 64 == 0) {
            open(bytes, "cut to " + std::to_string(size));
            continue;
        }
        write(file, bytes);
        const Opening opening = opened(olStoreUse::LookAt);
        ASSERT_EQ(opening.error, QString()) << size;
        ASSERT_FALSE(opening.notice.isEmpty()) << size;
        ASSERT_TRUE(same(opening.values, old)) << size;
        ASSERT_EQ(bytesOf(file), bytes) << "looking changes nothing";
    }
    EXPECT_EQ(harmless + refused, 0);
}

TEST_F(StoreDamage, RowsThatWereChangedOrTakenAwayOutsideAreNoticed)
{
    for (const char *sql :
         {"UPDATE setting SET value = '61' WHERE key = 'Camera fov'", "DELETE FROM setting WHERE key = 'Row 7'",
          "UPDATE setting SET key = 'Camera for' WHERE key = 'Camera fov'",
          "UPDATE setting SET value = CAST(value AS BLOB) WHERE key = 'Path'", "DELETE FROM seal",
          "DELETE FROM setting", "DROP TABLE setting", "UPDATE history SET value_after = '76' WHERE key = 'Camera fov'",
          "DROP TABLE history", "CREATE TRIGGER t AFTER INSERT ON setting BEGIN SELECT 1; END"}) {
        write(file, sound);
        tamper(sql);
        const Opening opening = opened();
        EXPECT_NE(opening.notice, QString()) << sql;
        EXPECT_TRUE(same(opening.values, old)) << sql;
    }
}

TEST_F(StoreDamage, EachIsToldOnceAndKeptInAFileOfItsOwn)
{
    for (int round = 0; round < 3; ++round) {
        write(file, sound.left(5000 + round));
        EXPECT_NE(opened().notice, QString());
        EXPECT_EQ(opened().notice, QString());
        EXPECT_EQ(olPreferencesStore(file).check(), QStringList());
    }
    EXPECT_EQ(setAside().size(), 3);
}

TEST_F(StoreDamage, WithoutASoundCopyAllIsAtItsDefault)
{
    for (const bool isThere : {true, false}) {
        write(file, sound.left(5000));
        write(file + ".last-good", copy.left(5000));
        if (!isThere)
            QFile::remove(file + ".last-good");
        const Opening opening = opened();
        EXPECT_TRUE(opening.values.empty());
        EXPECT_TRUE(opening.notice.contains("default")) << opening.notice.toStdString();
        save({{key("again"), 1}});
        EXPECT_EQ(stored().size(), 1u);
        QFile::remove(file);
    }
    EXPECT_EQ(setAside().size(), 2);
}

TEST_F(StoreDamage, AJournalGoesWithTheFileItBelongsTo)
{
    for (const char *journal : {"-journal", "-wal"}) {
        write(file, sound.left(5000));
        write(file + journal, "no journal");
        const Opening opening = opened();
        EXPECT_NE(opening.notice, QString());
        EXPECT_TRUE(same(opening.values, old));
        ASSERT_EQ(setAside().size(), 1);
        EXPECT_EQ(bytesOf(folder.filePath(setAside().first() + journal)), "no journal");
        EXPECT_TRUE(same(stored(), old));
        QFile::remove(folder.filePath(setAside().first()));
    }
}

TEST_F(StoreDamage, AJournalThatWasCutGivesNoMixtureOfOldAndNew)
{
    leaveJournal(current);
    const QByteArray half = bytesOf(file);
    const QByteArray journal = bytesOf(file + "-journal");
    ASSERT_NE(half, sound);
    int mendedHere = 0;
    for (int size = journal.size(); size > 0; size -= 97) {
        write(file, half);
        write(file + "-journal", journal.left(size));
        const Opening opening = opened();
        ASSERT_EQ(opening.error, QString()) << size;
        ASSERT_TRUE(same(opening.values, opening.notice.isEmpty() ? current : old)) << size;
        if (!opening.notice.isEmpty()) {
            ++mendedHere;
            const QString aside = folder.filePath(setAside().value(0));
            ASSERT_EQ(bytesOf(aside), half);
            ASSERT_EQ(bytesOf(aside + "-journal"), journal.left(size));
            QFile::remove(aside);
            QFile::remove(aside + "-journal");
        }
        write(file + ".last-good", copy);
    }
    EXPECT_GT(mendedHere, 0);
}

TEST_F(StoreDamage, WhatOthersAddToFindOrCountRowsIsNone)
{
    tamper("CREATE INDEX byValue ON setting (value); CREATE VIEW paths AS SELECT * FROM setting; ANALYZE");
    const Opening opening = opened();
    EXPECT_EQ(opening.notice, QString());
    EXPECT_TRUE(same(opening.values, current));
    save({{key("Camera fov"), 80.0f}});
    EXPECT_TRUE(olValue::identical(stored()[key("Camera fov")], 80.0f));
    EXPECT_EQ(olPreferencesStore(file).check(), QStringList());
}

TEST_F(StoreDamage, ADamagedCopyIsFoundAndMadeAnew)
{
    write(file + ".last-good", copy.left(5000));
    EXPECT_EQ(olPreferencesStore(file).check().size(), 1);
    const Opening opening = opened();
    EXPECT_EQ(opening.notice, QString());
    EXPECT_TRUE(same(opening.values, current));
    EXPECT_EQ(olPreferencesStore(file).check(), QStringList());
}

TEST_F(StoreDamage, NoSaveGoesIntoAFileThatTheNextStartWouldSetAside)
{
    for (const char *sql : {"DELETE FROM setting WHERE key = 'Row 7'", "UPDATE history SET program = 'x'"}) {
        write(file, sound);
        tamper(sql);
        olPreferencesStore store(file);
        EXPECT_TRUE(store.save(to({{key("new"), 1}})).error().contains(file)) << sql;
        EXPECT_TRUE(store.isBroken()) << sql;
    }
}

TEST_F(StoreDamage, ARunNoticesWhatHappensToItsFileBetweenItsSaves)
{
    olPreferencesStore store(file);
    const auto saveFov = [&](float fov) {
        current[key("Camera fov")] = fov;
        return store.save(to({{key("Camera fov"), fov}})).error();
    };
    ASSERT_EQ(of(store.open()).notice, QString());
    ASSERT_EQ(saveFov(61), QString());
    EXPECT_TRUE(same(stored(), current));

    write(file, sound.left(5000));
    ASSERT_NE(opened().notice, QString()) << "another program mends it";
    EXPECT_EQ(saveFov(62), QString());
    EXPECT_TRUE(same(stored(), current)) << "saved into the new file";

    save({{key("Row 7"), 7}});
    current[key("Row 7")] = 7;
    EXPECT_EQ(saveFov(63), QString());
    EXPECT_TRUE(same(stored(), current)) << "another program's save stays";

    ASSERT_EQ(saveFov(64), QString());
    ASSERT_EQ(saveFov(65), QString());
    tamper("DELETE FROM setting WHERE key = 'Row 8'");
    EXPECT_TRUE(saveFov(66).contains("are missing"));
    EXPECT_TRUE(store.isBroken());
    ASSERT_NE(of(store.open()).notice, QString());
    ASSERT_EQ(saveFov(67), QString());

    ASSERT_EQ(saveFov(68), QString());
    QByteArray bytes = bytesOf(file);
    write(file, bytes.replace("Row 9", "Row 0"));
    EXPECT_TRUE(saveFov(69).contains(file)) << "damaged behind the database's back";
    EXPECT_TRUE(store.isBroken());

    ASSERT_NE(of(store.open()).notice, QString());
    ASSERT_EQ(saveFov(70), QString());
    QFile::remove(file);
    EXPECT_TRUE(saveFov(71).contains("gone"));
    EXPECT_TRUE(store.isBroken());
}

TEST_F(StoreDamage, WhoDeletesTheStoreBeginsAnewForGood)
{
    QFile::remove(file);
    Opening opening = opened();
    EXPECT_EQ(opening.notice, QString());
    EXPECT_TRUE(opening.values.empty());
    save({{key("new"), 1}});
    write(file, bytesOf(file).left(4000));
    opening = opened();
    EXPECT_NE(opening.notice, QString());
    EXPECT_TRUE(opening.values.empty()) << "the old copy does not come back";
}

TEST_F(StoreDamage, ANewerStoreIsNeitherReadNorWrittenNorSetAside)
{
    tamper("PRAGMA user_version = 3; ALTER TABLE setting ADD COLUMN unit TEXT");
    const QByteArray newer = bytesOf(file);
    olPreferencesStore store(file);
    const QString error = store.open().error();
    EXPECT_TRUE(error.contains("newer") && error.contains("move it away") && error.contains(".last-good"));
    EXPECT_TRUE(store.save(to({{key("a"), 1}})).error().contains("newer"));
    EXPECT_FALSE(store.isBroken());
    EXPECT_EQ(bytesOf(file), newer);
    EXPECT_TRUE(setAside().isEmpty());
}

TEST_F(StoreDamage, FilesThatNeverWereStoresAreLeftWhereTheyAre)
{
    QFile::remove(file + ".last-good");
    tamper("PRAGMA application_id = 7; PRAGMA user_version = 0");
    const QByteArray database = bytesOf(file);
    for (const QByteArray &bytes : {database, QByteArray("Dear reader, "), QByteArray(20000, '\0')}) {
        write(file, bytes);
        EXPECT_TRUE(opened().error.contains(file));
        EXPECT_TRUE(olPreferencesStore(file).save(to({{key("a"), 1}})).error().contains(file));
        EXPECT_EQ(bytesOf(file), bytes);
    }
}

} // namespace
