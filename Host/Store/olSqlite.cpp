#include "Store/olSqlite.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace
{

using Kind = olStoreError::Kind;

// Who looks has another way to what he wants; who writes has not.
constexpr int lookMilliseconds = 200;
constexpr int writeMilliseconds = 3000;

struct Meaning {
    int code; ///< of the database, extended or not; the first that fits counts
    Kind kind;
    const char *text; ///< null for the database's own
};

constexpr Meaning meanings[] = {
    {SQLITE_IOERR_RDLOCK, Kind::NoLocks, QT_TRANSLATE_NOOP("olSqlite", "its file system refuses locks")},
    {SQLITE_IOERR_LOCK, Kind::NoLocks, QT_TRANSLATE_NOOP("olSqlite", "its file system refuses locks")},
    {SQLITE_IOERR_CHECKRESERVEDLOCK, Kind::NoLocks, QT_TRANSLATE_NOOP("olSqlite", "its file system refuses locks")},
    {SQLITE_PERM, Kind::NoLocks, QT_TRANSLATE_NOOP("olSqlite", "its file system refuses locks")},
    // What a killed program left has to be rolled back, which who only looks cannot wait for.
    {SQLITE_READONLY_ROLLBACK, Kind::Busy, nullptr},
    {SQLITE_FULL, Kind::Access, QT_TRANSLATE_NOOP("olSqlite", "no space left on the device")},
    {SQLITE_BUSY, Kind::Busy, QT_TRANSLATE_NOOP("olSqlite", "another program keeps it busy")},
    {SQLITE_LOCKED, Kind::Busy, QT_TRANSLATE_NOOP("olSqlite", "another program keeps it busy")},
    {SQLITE_READONLY, Kind::Access, QT_TRANSLATE_NOOP("olSqlite", "it or its folder is read-only")},
    {SQLITE_CANTOPEN, Kind::Access, QT_TRANSLATE_NOOP("olSqlite", "it cannot be opened")},
    {SQLITE_IOERR, Kind::Access, QT_TRANSLATE_NOOP("olSqlite", "input or output failed")},
    {SQLITE_CORRUPT, Kind::Damaged, QT_TRANSLATE_NOOP("olSqlite", "its structure is broken")},
    {SQLITE_NOTADB, Kind::Damaged, QT_TRANSLATE_NOOP("olSqlite", "its content is no database")},
    // Our statements are right wherever the tables are.
    {SQLITE_ERROR, Kind::Damaged, nullptr},
    {SQLITE_MISMATCH, Kind::Damaged, nullptr},
    {SQLITE_TOOBIG, Kind::Damaged, nullptr},
    {SQLITE_CONSTRAINT, Kind::Damaged, nullptr},
};

olStoreError errorOf(int code, int systemError, const QString &message)
{
    // Without room for locks the database says that it is busy.
    if (code == SQLITE_BUSY && systemError == ENOLCK)
        code = SQLITE_IOERR_LOCK;
    const auto *const meaning = std::find_if(std::begin(meanings), std::end(meanings), [code](const Meaning &known) {
        return known.code == code || known.code == (code & 0xff);
    });
    if (meaning == std::end(meanings))
        return {Kind::Access, message};
    const QString reason = meaning->text ? olSqlite::tr(meaning->text) : message;
    const bool isOfTheSystem =
        meaning->kind == Kind::NoLocks || meaning->code == SQLITE_CANTOPEN || meaning->code == SQLITE_IOERR;
    if (!isOfTheSystem || systemError == 0)
        return {meaning->kind, reason};
    return {meaning->kind, QStringLiteral("%1 (%2)").arg(reason, QString::fromLocal8Bit(std::strerror(systemError)))};
}

QByteArray addressOf(const QString &file, olSqlite::Access access)
{
    const QByteArray path = QFile::encodeName(QFileInfo(file).absoluteFilePath()).toPercentEncoding("/");
    // Locks on what nobody else knows bind nobody, and are refused where all locks are.
    const char *option = access == olSqlite::Access::Private ? "?vfs=unix-none" : "";
    return "file://" + path + (access == olSqlite::Access::Immutable ? "?immutable=1" : option);
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
                throw olStoreError(Kind::Damaged, tr("a row is not what it was"));
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

bool olSqlite::wasMoved() const
{
    int wasMoved = 0;
    sqlite3_file_control(m_handle.get(), "main", SQLITE_FCNTL_HAS_MOVED, &wasMoved);
    return wasMoved != 0;
}
