#include "Store/olSqlite.h"

#include "Store/olStoreError.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace
{

using Kind = olStoreError::Kind;

// Who looks has another way to what he wants; who writes has not.
constexpr int lookMilliseconds = 200;
constexpr int writeMilliseconds = 3000;

constexpr int headerSize = 100;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olSqlite)
};

/// With what the system said, where it said anything.
olStoreError accessError(const QString &reason, int systemError, Kind kind = Kind::Access)
{
    if (systemError == ENOSPC || systemError == EDQUOT)
        return {kind, Words::tr("no space left on the device")};
    const QString said = QString::fromLocal8Bit(std::strerror(systemError));
    return {kind, systemError == 0 ? reason : QStringLiteral("%1 (%2)").arg(reason, said)};
}

olStoreError errorOf(int code, int systemError, const QString &message)
{
    // Without room for locks the database says that it is busy.
    const bool hasNoLocks = code == SQLITE_IOERR_RDLOCK || code == SQLITE_IOERR_LOCK ||
                            code == SQLITE_IOERR_CHECKRESERVEDLOCK || code == SQLITE_PERM ||
                            (code == SQLITE_BUSY && systemError == ENOLCK);
    if (hasNoLocks)
        return accessError(Words::tr("its file system refuses locks"), systemError, Kind::NoLocks);
    // What a killed program left has to be rolled back, which who only looks cannot wait for.
    if (code == SQLITE_READONLY_ROLLBACK)
        return {Kind::Busy, message};
    switch (code & 0xff) {
    case SQLITE_FULL:
        return {Kind::Access, Words::tr("no space left on the device")};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {Kind::Busy, Words::tr("another program keeps it busy")};
    case SQLITE_READONLY:
        return {Kind::Access, Words::tr("it or its folder is read-only")};
    case SQLITE_CANTOPEN:
        return accessError(Words::tr("it cannot be opened"), systemError);
    case SQLITE_IOERR:
        return accessError(Words::tr("input or output failed"), systemError);
    case SQLITE_CORRUPT:
        return {Kind::Damaged, Words::tr("its structure is broken")};
    case SQLITE_NOTADB:
        return {Kind::Damaged, Words::tr("its content is no database")};
    case SQLITE_ERROR:
    case SQLITE_MISMATCH:
    case SQLITE_TOOBIG:
    case SQLITE_CONSTRAINT:
        // Our statements are right wherever the tables are.
        return {Kind::Damaged, message};
    default:
        return {Kind::Access, message};
    }
}

QByteArray addressOf(const QString &file, olSqlite::Access access)
{
    const QByteArray path = QFile::encodeName(QFileInfo(file).absoluteFilePath()).toPercentEncoding("/");
    // Locks on what nobody else knows bind nobody, and are refused where all locks are.
    const bool isPrivate = access == olSqlite::Access::Private;
    return "file://" + path +
           (access == olSqlite::Access::Immutable ? "?immutable=1"
            : isPrivate                           ? "?vfs=unix-none"
                                                  : "");
}

} // namespace

olSqlite::olSqlite(const QString &file, Access access) : m_handle(nullptr, sqlite3_close)
{
    const bool isLooking = access == Access::Look || access == Access::Immutable;
    const int flags = SQLITE_OPEN_URI | (isLooking ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
    sqlite3 *handle = nullptr;
    errno = 0;
    const int result = sqlite3_open_v2(addressOf(file, access).constData(), &handle, flags, nullptr);
    m_handle.reset(handle);
    require(result);
    sqlite3_extended_result_codes(handle, 1);
    sqlite3_busy_timeout(handle, access == Access::Write ? writeMilliseconds : lookMilliseconds);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    run("PRAGMA cell_size_check = ON");
    // An older version's log needs memory that is shared, but for this.
    if (access == Access::Private)
        run("PRAGMA locking_mode = EXCLUSIVE");
}

void olSqlite::require(int result) const
{
    const int lastError = errno;
    if (result == SQLITE_OK)
        return;
    sqlite3 *handle = m_handle.get();
    if (!handle)
        throw errorOf(result, 0, QString::fromUtf8(sqlite3_errstr(result)));
    // Not every failure of the system reaches the database's own note of it.
    const int systemError = sqlite3_system_errno(handle) != 0 ? sqlite3_system_errno(handle) : lastError;
    throw errorOf(sqlite3_extended_errcode(handle), systemError, QString::fromUtf8(sqlite3_errmsg(handle)));
}

void olSqlite::run(const std::string &sql, const Row &parameters, const std::function<void(const Row &)> &take)
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
    int result = SQLITE_OK;
    while ((result = sqlite3_step(handle)) == SQLITE_ROW) {
        Row row(std::size_t(sqlite3_column_count(handle)));
        for (int column = 0; column < int(row.size()); ++column) {
            const int type = sqlite3_column_type(handle, column);
            if (type == SQLITE_BLOB)
                throw olStoreError(Kind::Damaged, Words::tr("a row is not what it was"));
            const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(handle, column));
            if (type != SQLITE_NULL)
                row[std::size_t(column)] = std::string(bytes, std::size_t(sqlite3_column_bytes(handle, column)));
        }
        if (take)
            take(row);
    }
    require(result == SQLITE_DONE ? SQLITE_OK : result);
}

std::string olSqlite::text(const std::string &sql)
{
    std::string text;
    run(sql, {}, [&text](const Row &row) { text = row.front().value_or(""); });
    return text;
}

int olSqlite::number(const std::string &sql) { return std::atoi(text(sql).c_str()); }

QByteArray olSqlite::header() const
{
    sqlite3_file *file = nullptr;
    sqlite3_file_control(m_handle.get(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    sqlite3_int64 size = 0;
    if (!file || !file->pMethods || file->pMethods->xFileSize(file, &size) != SQLITE_OK)
        return {};
    QByteArray bytes(int(std::min<sqlite3_int64>(size, headerSize)), '\0');
    return file->pMethods->xRead(file, bytes.data(), bytes.size(), 0) == SQLITE_OK ? bytes : QByteArray();
}

bool olSqlite::wasMoved() const
{
    int wasMoved = 0;
    sqlite3_file_control(m_handle.get(), "main", SQLITE_FCNTL_HAS_MOVED, &wasMoved);
    return wasMoved != 0;
}
