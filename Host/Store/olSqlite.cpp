#include "Store/olSqlite.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

#include <cerrno>
#include <cstring>

namespace
{

constexpr int busyMilliseconds = 3000;

QString translated(const char *text) { return QCoreApplication::translate("olSqlite", text); }

/// What the system said, where it said anything.
QString withSystemReason(const QString &reason, int systemError)
{
    if (systemError == ENOSPC || systemError == EDQUOT)
        return translated("no space left on the device");
    return systemError == 0 ? reason
                            : reason + QStringLiteral(" (%1)").arg(QString::fromLocal8Bit(std::strerror(systemError)));
}

QString reasonOf(int result, int systemError, const QString &message)
{
    switch (result & 0xff) {
    case SQLITE_FULL:
        return translated("no space left on the device");
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return translated("another program keeps it busy");
    case SQLITE_READONLY:
        return translated("it or its folder is read-only");
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
        return withSystemReason(translated("it cannot be opened"), systemError);
    case SQLITE_IOERR:
        return withSystemReason(translated("input or output failed"), systemError);
    case SQLITE_CORRUPT:
        return translated("its structure is broken");
    case SQLITE_NOTADB:
        return translated("its content is no database");
    default:
        return message;
    }
}

/// An error of the statement itself counts as damage too: ours are right wherever the tables are.
olSqliteError::Kind kindOf(int result)
{
    switch (result & 0xff) {
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_ERROR:
    case SQLITE_MISMATCH:
    case SQLITE_TOOBIG:
    case SQLITE_CONSTRAINT:
        return olSqliteError::Kind::Damaged;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return olSqliteError::Kind::Busy;
    default:
        return olSqliteError::Kind::Other;
    }
}

[[noreturn]] void fail(sqlite3 *database, int result)
{
    const int lastError = errno;
    if (!database)
        throw olSqliteError{kindOf(result), QString::fromUtf8(sqlite3_errstr(result))};
    const int code = sqlite3_extended_errcode(database);
    // Not every failure of the system reaches the database's own note of it.
    const int systemError = sqlite3_system_errno(database) != 0 ? sqlite3_system_errno(database) : lastError;
    throw olSqliteError{kindOf(code), reasonOf(code, systemError, QString::fromUtf8(sqlite3_errmsg(database)))};
}

void require(sqlite3 *database, int result)
{
    if (result != SQLITE_OK)
        fail(database, result);
}

} // namespace

olSqliteStatement::olSqliteStatement(sqlite3 *database, const char *sql)
    : m_database(database), m_statement(nullptr, sqlite3_finalize)
{
    sqlite3_stmt *statement = nullptr;
    require(database, sqlite3_prepare_v2(database, sql, -1, &statement, nullptr));
    m_statement.reset(statement);
}

void olSqliteStatement::bind(int parameter, const std::string &text)
{
    require(m_database,
            sqlite3_bind_text64(m_statement.get(), parameter, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

bool olSqliteStatement::step()
{
    errno = 0;
    const int result = sqlite3_step(m_statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        fail(m_database, result);
    return result == SQLITE_ROW;
}

std::string olSqliteStatement::text(int column) const
{
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(m_statement.get(), column));
    return bytes ? std::string(bytes, std::size_t(sqlite3_column_bytes(m_statement.get(), column))) : std::string();
}

int olSqliteStatement::number(int column) const { return sqlite3_column_int(m_statement.get(), column); }

bool olSqliteStatement::isText(int column) const
{
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_TEXT;
}

void olSqliteStatement::reset() { sqlite3_reset(m_statement.get()); }

void olSqliteStatement::run()
{
    step();
    reset();
}

int olSqliteStatement::answer()
{
    const int result = step() ? number(0) : 0;
    reset();
    return result;
}

olSqlite::olSqlite(const QString &file, Access access) : m_handle(nullptr, sqlite3_close)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    open(QFile::encodeName(path), SQLITE_OPEN_READWRITE | (access == Access::Create ? SQLITE_OPEN_CREATE : 0));
    // Where nothing can be written beside the file, nobody else writes it either, and it can be read as it stands.
    const QFileInfo folder(QFileInfo(path).absolutePath());
    const bool hasLog = QFileInfo(path + QStringLiteral("-wal")).size() > 0;
    if (access == Access::Existing && !folder.isWritable() && !hasLog) {
        const QByteArray address = "file://" + QFile::encodeName(path).toPercentEncoding("/");
        open(address + "?immutable=1", SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
    }
    sqlite3_db_config(m_handle.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    sqlite3_db_config(m_handle.get(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(m_handle.get(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    run("PRAGMA synchronous = FULL");
    run("PRAGMA cell_size_check = ON");
}

void olSqlite::open(const QByteArray &name, int flags)
{
    sqlite3 *handle = nullptr;
    const int result = sqlite3_open_v2(name.constData(), &handle, flags, nullptr);
    m_handle.reset(handle);
    if (handle) {
        sqlite3_extended_result_codes(handle, 1);
        sqlite3_busy_timeout(handle, busyMilliseconds);
    }
    require(handle, result);
}

void olSqlite::run(const char *sql)
{
    errno = 0;
    require(m_handle.get(), sqlite3_exec(m_handle.get(), sql, nullptr, nullptr, nullptr));
}

int olSqlite::number(const char *sql)
{
    olSqliteStatement statement = prepare(sql);
    return statement.step() ? statement.number(0) : 0;
}

std::string olSqlite::text(const char *sql)
{
    olSqliteStatement statement = prepare(sql);
    return statement.step() ? statement.text(0) : std::string();
}

bool olSqlite::isReadOnly() const { return sqlite3_db_readonly(m_handle.get(), "main") == 1; }

bool olSqlite::wasMoved() const
{
    int wasMoved = 0;
    sqlite3_file_control(m_handle.get(), "main", SQLITE_FCNTL_HAS_MOVED, &wasMoved);
    return wasMoved != 0;
}

void olSqlite::releaseLog() { sqlite3_db_config(m_handle.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr); }
