#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

/// A database operation that failed; the reason is a part of a sentence, without the file's name.
struct olSqliteError {
    enum class Kind { Damaged, Busy, Other };

    Kind kind;
    QString reason;
};

/// One statement of a database, run row by row. Goes before its database.
class olSqliteStatement
{
public:
    olSqliteStatement(sqlite3 *database, const char *sql);

    /// Parameters count from 1.
    void bind(int parameter, const std::string &text);

    /// True while there is another row. Throws olSqliteError.
    bool step();

    /// Columns count from 0. The bytes as they are stored, whatever their type.
    [[nodiscard]] std::string text(int column) const;
    [[nodiscard]] int number(int column) const;
    [[nodiscard]] bool isText(int column) const;

    /// Ready to be bound and run again.
    void reset();

    /// For a statement that answers nothing; ready to be run again afterwards.
    void run();

    /// The one number of its answer; ready to be run again afterwards.
    [[nodiscard]] int answer();

private:
    sqlite3 *m_database;
    std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)> m_statement;
};

/// An open database file. Closed when it goes, and rolled back if a transaction was under way. What fails throws
/// olSqliteError.
class olSqlite
{
public:
    enum class Access { Existing, Create };

    olSqlite(const QString &file, Access access);

    void run(const char *sql);
    [[nodiscard]] olSqliteStatement prepare(const char *sql) { return {m_handle.get(), sql}; }

    /// The one number, or text, that a statement answers with; 0 or empty where it answers nothing.
    [[nodiscard]] int number(const char *sql);
    [[nodiscard]] std::string text(const char *sql);

    [[nodiscard]] bool isReadOnly() const;

    /// Whether another file, or none, now bears the name of the one that is open.
    [[nodiscard]] bool wasMoved() const;

    /// Closing may work the log into the file. Before, the log of what may have to be set aside is left as it is.
    void releaseLog();

private:
    void open(const QByteArray &name, int flags);

    std::unique_ptr<sqlite3, int (*)(sqlite3 *)> m_handle;
};
