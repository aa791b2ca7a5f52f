#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

struct sqlite3;

/// Why a store cannot be used. Stays inside the store, which tells it in a sentence.
class olStoreError : public std::runtime_error
{
public:
    enum class Kind {
        Damaged,
        Newer, ///< written by a later version, whose rows are not ours to judge
        Access
    };

    /// The reason is a part of a sentence, without the file's name.
    olStoreError(Kind kind, const QString &reason) : std::runtime_error(reason.toStdString()), m_kind(kind) {}

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] QString reason() const { return QString::fromUtf8(what()); }

private:
    Kind m_kind;
};

/// An open database file that holds texts and numbers. Closed when it goes, and rolled back if a transaction was under
/// way. What fails throws olStoreError.
class olSqlite
{
    Q_DECLARE_TR_FUNCTIONS(olSqlite)

public:
    enum class Access {
        Shared, ///< waits for other programs, for a while
        Private ///< nobody else knows the file, and whatever journal stands beside it
    };

    /// The bytes as they are stored; nothing for null.
    using Text = std::optional<std::string>;
    using Row = std::vector<Text>;

    /// The file must exist. It is not looked into yet.
    olSqlite(const QString &file, Access access);

    /// The bytes of a file, only to be looked at. They stay the caller's.
    explicit olSqlite(const QByteArray &bytes);

    /// Runs a statement. Returns its answer.
    std::vector<Row> run(const std::string &sql, const Row &parameters = {});

    /// The one text or number that a statement answers with; empty where it answers nothing, and 0.
    [[nodiscard]] std::string text(const std::string &sql);
    [[nodiscard]] int number(const std::string &sql);

    /// Whether another file, or none, now bears the name of the one that is open.
    [[nodiscard]] bool wasMoved() const;

private:
    olSqlite(const QByteArray &path, const char *fileSystem);
    void require(int result) const;

    std::unique_ptr<sqlite3, int (*)(sqlite3 *)> m_handle;
};
