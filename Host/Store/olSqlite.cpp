#include "Store/olSqlite.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace
{

using Kind = olStoreError::Kind;

/// The database's own waits grow longer and longer, and miss the moments between the saves of programs that hardly
/// pause.
int waitOnce(void *, int attempts)
{
    constexpr int mostAttempts = 1500;
    ::usleep(2000);
    return int(attempts < mostAttempts);
}

olStoreError errorOf(int code, int systemError, const QString &message)
{
    const auto ofTheSystem = [systemError](const QString &reason) -> olStoreError {
        const QString cause = QString::fromLocal8Bit(std::strerror(systemError));
        return {Kind::Access, systemError == 0 ? reason : QStringLiteral("%1 (%2)").arg(reason, cause)};
    };
    // Without room for locks the database says that it is busy.
    const bool isRefusal = code == SQLITE_IOERR_RDLOCK || code == SQLITE_IOERR_LOCK ||
                           code == SQLITE_IOERR_CHECKRESERVEDLOCK || (code == SQLITE_BUSY && systemError == ENOLCK);
    // Another program may just have set the file aside, which the database notices before it writes.
    const bool isElsewhere = code == SQLITE_READONLY_DBMOVED;
    switch (isRefusal ? SQLITE_PERM : isElsewhere ? SQLITE_BUSY : code & 0xff) {
    case SQLITE_PERM:
        return ofTheSystem(olSqlite::tr("its file system refuses locks"));
    case SQLITE_CANTOPEN:
        return ofTheSystem(olSqlite::tr("it cannot be opened"));
    case SQLITE_IOERR:
        return ofTheSystem(olSqlite::tr("input or output failed"));
    case SQLITE_FULL:
        return {Kind::Access, olSqlite::tr("no space left on the device")};
    case SQLITE_BUSY:
        return {Kind::Access, olSqlite::tr("another program keeps it busy")};
    case SQLITE_READONLY:
        return {Kind::Access, olSqlite::tr("it or its folder is read-only")};
    case SQLITE_CORRUPT:
        return {Kind::Damaged, olSqlite::tr("its structure is broken")};
    case SQLITE_NOTADB:
        return {Kind::Damaged, olSqlite::tr("its content is no database")};
    // Our statements are right wherever the tables are.
    case SQLITE_ERROR:
    case SQLITE_MISMATCH:
    case SQLITE_TOOBIG:
    case SQLITE_CONSTRAINT:
        return {Kind::Damaged, message};
    default:
        return {Kind::Access, message};
    }
}

} // namespace

olSqlite::olSqlite(const QByteArray &path, const char *fileSystem) : m_handle(nullptr, sqlite3_close)
{
    sqlite3 *handle = nullptr;
    errno = 0;
    const int result = sqlite3_open_v2(path.constData(), &handle, SQLITE_OPEN_READWRITE, fileSystem);
    m_handle.reset(handle);
    require(result);
    sqlite3_extended_result_codes(handle, 1);
    sqlite3_busy_handler(handle, waitOnce, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    run("PRAGMA cell_size_check = ON");
}

// Locks on what nobody else knows bind nobody, and are refused where all locks are.
olSqlite::olSqlite(const QString &file, Access access)
    : olSqlite(QFile::encodeName(QFileInfo(file).absoluteFilePath()), access == Access::Private ? "unix-none" : nullptr)
{
    // An older version's log needs memory that is shared, but for this.
    if (access == Access::Private)
        run("PRAGMA locking_mode = EXCLUSIVE");
}

olSqlite::olSqlite(const QByteArray &bytes) : olSqlite(":memory:", nullptr)
{
    auto *data = reinterpret_cast<unsigned char *>(const_cast<char *>(bytes.constData()));
    if (!bytes.isEmpty())
        require(
            sqlite3_deserialize(m_handle.get(), "main", data, bytes.size(), bytes.size(), SQLITE_DESERIALIZE_READONLY));
}

void olSqlite::require(int result) const
{
    const int lastError = errno;
    if (result == SQLITE_OK)
        return;
    sqlite3 *handle = m_handle.get();
    // Not every failure of the system reaches the database's own note of it.
    const int systemError = sqlite3_system_errno(handle) != 0 ? sqlite3_system_errno(handle) : lastError;
    throw errorOf(sqlite3_extended_errcode(handle), systemError, QString::fromUtf8(sqlite3_errmsg(handle)));
}

std::vector<olSqlite::Row> olSqlite::run(const std::string &sql, const Row &parameters)
{
    errno = 0;
    sqlite3_stmt *handle = nullptr;
    require(sqlite3_prepare_v2(m_handle.get(), sql.c_str(), -1, &handle, nullptr));
    const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)> statement(handle, sqlite3_finalize);
    for (std::size_t index = 0; index < parameters.size(); ++index) {
        if (const Text &text = parameters[index])
            require(
                sqlite3_bind_text64(handle, int(index) + 1, text->data(), text->size(), SQLITE_STATIC, SQLITE_UTF8));
    }
    std::vector<Row> answer;
    int result = SQLITE_OK;
    while ((result = sqlite3_step(handle)) == SQLITE_ROW) {
        Row row(std::size_t(sqlite3_column_count(handle)));
        for (int column = 0; column < int(row.size()); ++column) {
            const int type = sqlite3_column_type(handle, column);
            if (type == SQLITE_BLOB)
                throw olStoreError(Kind::Damaged, tr("a row is not what it was"));
            const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(handle, column));
            if (type != SQLITE_NULL)
                row[std::size_t(column)] = std::string(bytes, std::size_t(sqlite3_column_bytes(handle, column)));
        }
        answer.push_back(std::move(row));
    }
    require(result == SQLITE_DONE ? SQLITE_OK : result);
    return answer;
}

std::string olSqlite::text(const std::string &sql)
{
    const std::vector<Row> answer = run(sql);
    return answer.empty() ? std::string() : answer.front().front().value_or("");
}

int olSqlite::number(const std::string &sql) { return std::atoi(text(sql).c_str()); }

bool olSqlite::wasMoved() const
{
    int wasMoved = 0;
    sqlite3_file_control(m_handle.get(), "main", SQLITE_FCNTL_HAS_MOVED, &wasMoved);
    return wasMoved != 0;
}
