#include "Store/olStoreWriter.h"

#include "Store/olStoreTables.h"

#include <QCoreApplication>
#include <QFile>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <optional>

namespace
{

/// Which files stand at a store's path. The log and its index are written all the time and known by their number alone;
/// what the database's file holds, and who may write it, is the same for as long as its times are.
class Standing
{
public:
    explicit Standing(const QByteArray &path)
        : m_file(statusOf(path)), m_log(statusOf(path + "-wal")), m_index(statusOf(path + "-shm"))
    {
    }

    bool operator==(const Standing &other) const
    {
        return isSame(m_file, other.m_file) && isSame(m_log, other.m_log) && isSame(m_index, other.m_index) &&
               m_file.st_size == other.m_file.st_size && m_file.st_ctim.tv_sec == other.m_file.st_ctim.tv_sec &&
               m_file.st_ctim.tv_nsec == other.m_file.st_ctim.tv_nsec;
    }

    [[nodiscard]] off_t logSize() const { return m_log.st_size; }

private:
    /// All zero for a file that is not there.
    static struct stat statusOf(const QByteArray &path)
    {
        struct stat status = {};
        if (::stat(path.constData(), &status) != 0)
            return {};
        return status;
    }

    static bool isSame(const struct stat &one, const struct stat &other)
    {
        return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
    }

    struct stat m_file;
    struct stat m_log;
    struct stat m_index;
};

/// The log makes saves of several programs fast and short; without it they are as safe.
void tryToUseALog(olSqlite &database)
{
    try {
        database.run("PRAGMA journal_mode = WAL");
    } catch (const olSqliteError &) {
    }
}

/// Not the fault of anybody: the file that is open is no longer the one at its path.
struct Gone {
};

} // namespace

/// An open store. Of no use any more once something failed.
class olStoreWriter::Connection
{
public:
    explicit Connection(const QString &file)
        : m_path(QFile::encodeName(file)), m_database(file, olSqlite::Access::Create), m_tables(m_database)
    {
    }

    void change(const olStoreRows &put, const std::vector<olStoreRows::Key> &removed, bool wasStore)
    {
        m_begin.run();
        prove(wasStore);
        m_tables.change(put, removed);
        const Standing now(m_path);
        if (m_database.wasMoved() || (m_standing && !(*m_standing == now)))
            throw Gone();
        if (m_standing)
            makeRoom(now.logSize());
        m_commit.run();
        if (m_standing)
            return;
        tryToUseALog(m_database);
        m_standing.emplace(m_path);
    }

private:
    /// A new seal must not be put on what was broken before. What was proved is so until another program writes.
    void prove(bool wasStore)
    {
        const int version = m_version.answer();
        if (m_standing && version == m_provedVersion)
            return;
        m_provedVersion = version;
        if (m_tables.exist()) {
            m_tables.requireOurFormat();
            (void)m_tables.prove();
        } else if (wasStore) {
            olStoreTables::damaged("there is nothing in it");
        } else {
            m_tables.create();
        }
    }

    /// A save that lengthens the log waits for the disk twice as long as one that finds room in it. Nobody else writes
    /// the log during this transaction, and zeros behind its last save mean nothing to the database.
    void makeRoom(off_t logSize)
    {
        static const std::array<char, std::size_t(128) << 10> zeros{};
        // Before its header stands, the log has to be empty.
        if (logSize == 0 || logSize <= m_roomEnd)
            return;
        m_roomEnd = logSize + off_t(zeros.size());
        const int log = ::open((m_path + "-wal").constData(), O_WRONLY | O_CLOEXEC);
        if (log < 0)
            return;
        // On a full disk the save itself may still fit.
        const bool isMade = ::pwrite(log, zeros.data(), zeros.size(), logSize) == ssize_t(zeros.size());
        if (!isMade && ::ftruncate(log, logSize) != 0)
            m_roomEnd = 0;
        ::close(log);
    }

    QByteArray m_path;
    olSqlite m_database;
    olStoreTables m_tables;
    olSqliteStatement m_begin = m_database.prepare("BEGIN IMMEDIATE");
    olSqliteStatement m_commit = m_database.prepare("COMMIT");
    olSqliteStatement m_version = m_database.prepare("PRAGMA data_version");
    int m_provedVersion = 0;
    off_t m_roomEnd = 0;
    std::optional<Standing> m_standing;
};

olStoreWriter::olStoreWriter(QString file) : m_file(std::move(file)) {}

olStoreWriter::~olStoreWriter() = default;

void olStoreWriter::change(const olStoreRows &put, const std::vector<olStoreRows::Key> &removed, bool wasStore)
{
    if (changeKept(put, removed, wasStore))
        return;
    if (wasStore && !QFile::exists(m_file))
        olStoreTables::damaged("it is gone");
    try {
        auto connection = std::make_unique<Connection>(m_file);
        connection->change(put, removed, wasStore);
        m_connection = std::move(connection);
    } catch (const olSqliteError &error) {
        throw olStoreTables::faultOf(error);
    } catch (const Gone &) {
        throw olStoreFault{olStoreFault::Kind::Busy,
                           QCoreApplication::translate("olStoreFile", "another program keeps it busy")};
    }
}

/// False where the file has to be opened anew; what is wrong with it, if anything, is only told by that.
bool olStoreWriter::changeKept(const olStoreRows &put, const std::vector<olStoreRows::Key> &removed, bool wasStore)
{
    std::unique_ptr<Connection> connection = std::exchange(m_connection, nullptr);
    if (!connection)
        return false;
    try {
        connection->change(put, removed, wasStore);
    } catch (const olSqliteError &error) {
        if (error.kind == olSqliteError::Kind::Busy)
            throw olStoreTables::faultOf(error);
        return false;
    } catch (const olStoreFault &) {
        return false;
    } catch (const Gone &) {
        return false;
    }
    m_connection = std::move(connection);
    return true;
}

void olStoreWriter::close() { m_connection.reset(); }
