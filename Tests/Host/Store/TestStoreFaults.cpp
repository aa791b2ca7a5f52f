#include "State/olValue.h"
#include "StoreTest.h"
#include "Support/ChildProcess.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>

#include <fcntl.h>
#include <sched.h>
#include <sqlite3.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdarg>
#include <functional>
#include <numeric>
#include <random>
#include <thread>

namespace
{

class StoreFaults : public StoreTest
{
protected:
    static constexpr int rows = 20;

    static Values generation(int number)
    {
        Values values;
        for (int row = 0; row < rows; ++row)
            values[key("row " + std::to_string(row))] = number;
        return values;
    }

    /// The one number that all rows hold; -1 where they differ.
    static int generationOf(const Values &values)
    {
        if (values.empty())
            return 0;
        const int number = boost::any_cast<int>(values.begin()->second);
        return same(values, generation(number)) ? number : -1;
    }

    /// What is wrong with an error that a person is to understand; empty where nothing is.
    [[nodiscard]] std::string faultIn(const QString &error, const char *reason) const
    {
        const bool isFine = error.contains(file) && error.contains(QLatin1String(reason)) &&
                            error.contains(QLatin1String("What it held before is unchanged"));
        return isFine ? "" : "the message is: " + error.toStdString();
    }

    /// Loads in this very process.
    [[nodiscard]] bool holds(const Values &expected) const
    {
        const Opening loading = loaded();
        return loading.error.isEmpty() && same(loading.values, expected);
    }

    static void setMode(const QString &name, mode_t mode) { ::chmod(QFile::encodeName(name).constData(), mode); }

    /// The exit statuses of several processes that do this at the same time.
    static std::vector<int> atOnce(int programs, const std::function<int(int)> &work)
    {
        std::vector<pid_t> children;
        for (int program = 0; program < programs; ++program) {
            children.push_back(::fork());
            if (children.back() == 0)
                ::_exit(work(program));
        }
        std::vector<int> statuses;
        for (const pid_t child : children) {
            int status = 0;
            ::waitpid(child, &status, 0);
            statuses.push_back(WIFEXITED(status) ? WEXITSTATUS(status) : -1);
        }
        return statuses;
    }

    static const Values &large()
    {
        static const Values values{{key("large"), std::string(1 << 20, 'x')}};
        return values;
    }
};

TEST_F(StoreFaults, AProgramKilledAtAnyMomentLeavesOldOrNewAndNoDelay)
{
    auto *saved = static_cast<std::atomic<int> *>(
        ::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(saved, MAP_FAILED);
    std::mt19937 random(42);
    int last = 0;
    qint64 took = 6; // milliseconds, the latest save
    for (int round = 0; round < 150; ++round) {
        saved->store(last);
        const pid_t child = ::fork();
        if (child == 0) {
            olPreferencesStore store(file);
            for (int number = last + 1;; ++number) {
                if (!store.save(to(generation(number))).isOk())
                    ::_exit(1);
                saved->store(number);
            }
        }
        ::usleep(useconds_t(random() % (2000 * std::max<qint64>(took, 1))));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status)) << "a save failed";

        const Opening opening = opened();
        ASSERT_EQ(opening.error + opening.notice, QString());
        const int found = generationOf(opening.values);
        ASSERT_TRUE(found == *saved || found == *saved + 1) << found << " after " << *saved;

        QElapsedTimer timer;
        timer.start();
        last = found + 1;
        ASSERT_EQ(olPreferencesStore(file).save(to(generation(last))).error(), QString());
        took = timer.elapsed();
        ASSERT_LT(took, 1500);
    }
    EXPECT_GT(last, 150) << "no save ended before its program was killed";
    ::munmap(saved, sizeof(std::atomic<int>));
}

TEST_F(StoreFaults, AFullDiskIsReportedAndTakesNothingAway)
{
    save({{key("a"), 1}});
    const std::string fault = inChildProcess([this]() -> std::string {
        if (::unshare(CLONE_NEWNS) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return "skip";
        ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
        if (::mount("tmpfs", QFile::encodeName(folder.path()).constData(), "tmpfs", 0, "size=256k") != 0)
            return "skip";
        olPreferencesStore store(file);
        if (!store.save(to({{key("a"), 2}})).isOk())
            return "not even a small store can be saved";
        const std::string message = faultIn(store.save(to(large())).error(), "no space left on the device");
        if (!message.empty())
            return message;
        if (!holds({{key("a"), 2}}))
            return "the earlier values are gone";
        if (!store.save(to({{key("b"), 3}})).isOk())
            return "a smaller save does not work afterwards";
        return holds({{key("a"), 2}, {key("b"), 3}}) ? "" : "the later save did not arrive";
    });
    if (fault == "skip")
        GTEST_SKIP() << "no file system can be mounted here";
    EXPECT_EQ(fault, "");
}

TEST_F(StoreFaults, WhoOnlyReadsLeavesTheDiskAsItIs)
{
    const Values values = generation(3);
    save(values);
    leaveJournal(values);
    const auto before = disk();
    for (const Opening &read : {loaded(), opened(olStoreUse::LookAt)}) {
        EXPECT_EQ(read.error + read.notice, QString());
        EXPECT_TRUE(same(read.values, values));
    }
    EXPECT_EQ(olPreferencesStore(file).check(), QStringList());
    EXPECT_EQ(disk(), before);
    // Who writes takes back what was begun.
    save({{key("row 0"), 4}});
    EXPECT_FALSE(QFile::exists(file + "-journal"));
    EXPECT_EQ(stored().size(), values.size());
    EXPECT_TRUE(olValue::identical(stored()[key("row 1")], 3));
}

TEST_F(StoreFaults, AStoreOfTheEarlierFormIsReadAndBecomesOneOfThisFormAtTheFirstSave)
{
    for (const bool isLogLeft : {true, false}) {
        QFile::remove(file);
        const std::string fault = inChildProcess([&]() -> std::string {
            sqlite3 *database = nullptr;
            sqlite3_open(QFile::encodeName(file).constData(), &database);
            const int result =
                sqlite3_exec(database,
                             "PRAGMA journal_mode = WAL;CREATE TABLE setting (home TEXT NOT NULL, key TEXT NOT NULL, "
                             "type TEXT NOT NULL, value TEXT NOT NULL, checksum TEXT NOT NULL, PRIMARY KEY (home, "
                             "key)) WITHOUT ROWID;CREATE TABLE seal (rows TEXT NOT NULL);INSERT INTO setting VALUES "
                             "('record', 'a', 'int', '1', '5b34e4553bbab8b0');INSERT INTO seal VALUES "
                             "('a076d71e15ba3c83'); PRAGMA application_id = 1330793551; PRAGMA user_version = 1",
                             nullptr, nullptr, nullptr);
            if (!isLogLeft)
                sqlite3_close(database);
            return result == SQLITE_OK ? "" : "it cannot be made";
        });
        ASSERT_EQ(fault, "");
        ASSERT_EQ(QFile::exists(file + "-wal"), isLogLeft);
        const auto before = disk();
        EXPECT_TRUE(same(stored(), {{key("a"), 1}}));
        olPreferencesStore store(file);
        EXPECT_TRUE(store.load().isOk());
        EXPECT_EQ(disk(), before);
        EXPECT_FALSE(store.mayHaveChanged());
        QFile log(file + "-wal");
        EXPECT_TRUE(!isLogLeft || (log.open(QIODevice::Append) && log.write("x", 1) == 1));
        log.close();
        EXPECT_EQ(store.mayHaveChanged(), isLogLeft) << "an earlier program writes to its log alone";
        save({{key("b"), 2}});
        EXPECT_FALSE(QFile::exists(file + "-wal") || QFile::exists(file + "-shm"));
        EXPECT_EQ(bytesOf(file).mid(18, 2), QByteArray("\1\1"));
        EXPECT_TRUE(same(stored(), {{key("a"), 1}, {key("b"), 2}}));
    }
}

TEST_F(StoreFaults, AStoreBehindALinkIsTheLinksTarget)
{
    const QString target = folder.filePath(QStringLiteral("elsewhere/target.db"));
    ASSERT_TRUE(QFile::link(target, file));
    save({{key("a"), 1}});
    ASSERT_EQ(opened().error, QString());
    EXPECT_TRUE(QFileInfo(file).isSymLink());
    EXPECT_TRUE(QFile::exists(target) && QFile::exists(target + ".last-good"));
    write(target, bytesOf(target).left(5000));
    EXPECT_NE(opened().notice, QString());
    EXPECT_TRUE(QFileInfo(file).isSymLink());
    EXPECT_TRUE(same(stored(), {{key("a"), 1}}));
}

TEST_F(StoreFaults, FilesAreForTheirOwnerAloneAndCopiesAsTheirOriginals)
{
    const auto modeOf = [](const QString &name) {
        struct stat status = {};
        ::stat(QFile::encodeName(name).constData(), &status);
        return int(status.st_mode & 0777);
    };
    const mode_t mask = ::umask(0);
    file = folder.filePath(QStringLiteral("deep/er/preferences.db"));
    save({{key("a"), 1}});
    EXPECT_EQ(modeOf(file), 0600);
    EXPECT_EQ(modeOf(folder.filePath(QStringLiteral("deep"))), 0700);
    EXPECT_EQ(modeOf(folder.filePath(QStringLiteral("deep/er"))), 0700);
    setMode(file, 0640);
    ASSERT_EQ(opened().error, QString());
    EXPECT_EQ(modeOf(file + ".last-good"), 0640);
    ::umask(mask);
}

int refuseLocks(int file, int command, ...)
{
    if (command == F_SETLK || command == F_SETLKW || command == F_GETLK) {
        errno = ENOLCK;
        return -1;
    }
    std::va_list arguments;
    va_start(arguments, command);
    void *argument = va_arg(arguments, void *);
    va_end(arguments);
    return ::fcntl(file, command, argument);
}

TEST_F(StoreFaults, WhereLocksAreRefusedItCanBeReadAndSaysSoOnSaving)
{
    const Values values = generation(3);
    save(values);
    for (const bool hasJournal : {false, true}) {
        if (hasJournal)
            leaveJournal(values);
        const auto before = disk();
        EXPECT_EQ(inChildProcess([&]() -> std::string {
                      sqlite3_vfs *system = sqlite3_vfs_find(nullptr);
                      system->xSetSystemCall(system, "fcntl", reinterpret_cast<sqlite3_syscall_ptr>(refuseLocks));
                      olPreferencesStore store(file);
                      if (!holds(values))
                          return "cannot be read";
                      return faultIn(store.save(to({{key("a"), 2}})).error(), "refuses locks");
                  }),
                  "");
        EXPECT_EQ(disk(), before);
    }
}

/// Permissions bind nobody who is root.
std::string becomeNobody()
{
    constexpr uid_t nobody = 65534;
    return ::getuid() != 0 || (::setgid(nobody) == 0 && ::setuid(nobody) == 0) ? "" : "cannot be someone else";
}

TEST_F(StoreFaults, AReadOnlyFileOrFolderCanBeReadAndSaysSoOnSaving)
{
    for (const auto &[fileMode, folderMode] : {std::pair<mode_t, mode_t>{0444, 0777}, {0666, 0555}}) {
        save({{key("a"), 1}});
        ASSERT_EQ(opened().error, QString());
        setMode(file, fileMode);
        setMode(folder.path(), folderMode);
        EXPECT_EQ(inChildProcess([&]() -> std::string {
                      if (const std::string fault = becomeNobody(); !fault.empty())
                          return fault;
                      olPreferencesStore store(file);
                      const Opening opening = of(store.open());
                      const QString told = opening.error + opening.notice;
                      if (!told.isEmpty() || !same(opening.values, {{key("a"), 1}}))
                          return "cannot be read: " + told.toStdString();
                      return faultIn(store.save(to({{key("a"), 2}})).error(), "read-only");
                  }),
                  "")
            << std::oct << fileMode << ' ' << folderMode;
        setMode(folder.path(), 0700);
        setMode(file, 0600);
        EXPECT_TRUE(same(stored(), {{key("a"), 1}}));
    }
}

TEST_F(StoreFaults, AJournalOfSomebodyElseIsToldByItsName)
{
    save(generation(3));
    leaveJournal(generation(3));
    setMode(file + "-journal", 0600);
    setMode(file, 0666);
    setMode(folder.path(), 0777);
    EXPECT_EQ(inChildProcess([this]() -> std::string {
                  if (const std::string fault = becomeNobody(); !fault.empty())
                      return fault;
                  const QString error = loaded().error;
                  return error.contains(file + "-journal cannot be read") ? "" : error.toStdString();
              }),
              "");
}

TEST_F(StoreFaults, ADamagedStoreInAReadOnlyFolderIsReadFromItsCopy)
{
    save({{key("a"), 1}});
    ASSERT_EQ(opened().error, QString());
    const QByteArray damaged = bytesOf(file).left(5000);
    write(file, damaged);
    for (const QString &name : {file, file + ".last-good"})
        setMode(name, 0644);
    setMode(folder.path(), 0555);
    EXPECT_EQ(inChildProcess([this]() -> std::string {
                  if (const std::string fault = becomeNobody(); !fault.empty())
                      return fault;
                  const Opening opening = opened();
                  return opening.notice.contains("could not be set aside") && same(opening.values, {{key("a"), 1}})
                             ? ""
                             : (opening.error + '|' + opening.notice).toStdString();
              }),
              "");
    setMode(folder.path(), 0700);
    EXPECT_EQ(bytesOf(file), damaged);
}

TEST_F(StoreFaults, ProgramsThatSaveDifferentSettingsAllKeepTheirs)
{
    constexpr int saves = 150;
    const auto failures = atOnce(3, [this](int program) {
        int failed = 0;
        olPreferencesStore store(file);
        const std::string name = "program " + std::to_string(program) + ' ';
        for (int number = 1; number <= saves; ++number) {
            const Values mine{{key(name), number}, {key(name + std::to_string(number)), number}};
            failed += store.save(to(mine)).isOk() ? 0 : 1;
        }
        return failed;
    });
    EXPECT_EQ(failures, std::vector<int>(3));
    Values values = stored();
    EXPECT_EQ(values.size(), 3u * (saves + 1));
    EXPECT_EQ(boost::any_cast<int>(values[key("program 1 ")]), saves);
}

TEST_F(StoreFaults, ProgramsThatStartOnADamagedStoreMendItOnce)
{
    save({{key("a"), 1}});
    ASSERT_EQ(opened().error, QString());
    for (int round = 0; round < 20; ++round) {
        write(file, bytesOf(file).left(5000));
        // Of a program that was killed in between, which keeps nobody off.
        atOnce(1, [this](int) {
            QLockFile lock(file + ".lock");
            lock.lock();
            ::_exit(0);
            return 0;
        });
        ASSERT_TRUE(QFile::exists(file + ".lock"));
        const auto told = atOnce(3, [this](int) {
            const Opening opening = opened();
            const bool isRead = opening.error.isEmpty() && same(opening.values, {{key("a"), 1}});
            return isRead ? int(!opening.notice.isEmpty()) : 9;
        });
        ASSERT_EQ(std::accumulate(told.begin(), told.end(), 0), 1);
        ASSERT_EQ(setAside().size(), round + 1);
        ASSERT_FALSE(QFile::exists(file + ".lock"));
    }
}

TEST_F(StoreFaults, ABusyStoreIsWaitedForBrieflyAndThenReported)
{
    save({{key("a"), 1}});
    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(file).constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    QElapsedTimer timer;
    timer.start();
    olPreferencesStore store(file);
    EXPECT_EQ(faultIn(store.save(to({{key("a"), 2}})).error(), "busy"), "");
    EXPECT_GT(timer.elapsed(), 1000);
    EXPECT_LT(timer.elapsed(), 20000) << "it counts its attempts, which a busy machine draws out";
    EXPECT_EQ(store.open().error(), QString()) << "who reads need not wait for who writes";
    sqlite3_exec(other, "COMMIT", nullptr, nullptr, nullptr);
    EXPECT_EQ(store.save(to({{key("a"), 2}})).error(), QString());

    // While it waits, another program sets the file aside and puts a new one in its place.
    ASSERT_TRUE(QFile::copy(file, file + ".new"));
    ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    std::thread mending([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        QFile::rename(file, file + ".aside");
        QFile::rename(file + ".new", file);
        sqlite3_exec(other, "COMMIT", nullptr, nullptr, nullptr);
    });
    const QString error = store.save(to({{key("a"), 3}})).error();
    mending.join();
    sqlite3_close(other);
    EXPECT_EQ(error.isEmpty(), holds({{key("a"), 3}}));
    EXPECT_TRUE(error.isEmpty() || faultIn(error, "busy").empty()) << error.toStdString();
}

} // namespace
