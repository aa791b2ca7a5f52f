#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>
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
        Newer,   ///< written by a later version, whose rows are not ours to judge
        Foreign, ///< nothing that ever was a store
        Busy,
        NoLocks, ///< the file system refuses them
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
        Look,      ///< changes nothing on the disk
        Immutable, ///< the same without a lock, where nobody writes
        Private,   ///< a file that nobody else knows, with whatever journal stands beside it
        Write      ///< what a transaction has changed is safe on the disk when it ends
    };

    /// The bytes as they are stored; nothing for null.
    using Text = std::optional<std::string>;
    using Row = std::vector<Text>;

    /// The file must exist. It is not looked into yet.
    olSqlite(const QString &file, Access access);

    /// Runs a statement and calls with each row of its answer.
    void run(const std::string &sql, const Row &parameters = {}, const std::function<void(const Row &)> &take = {});

    /// The one text or number that a statement answers with; empty where it answers nothing, and 0.
    [[nodiscard]] std::string text(const std::string &sql);
    [[nodiscard]] int number(const std::string &sql);

    /// Whether another file, or none, now bears the name of the one that is open.
    [[nodiscard]] bool wasMoved() const;

private:
    void require(int result) const;

    std::unique_ptr<sqlite3, int (*)(sqlite3 *)> m_handle;
};
