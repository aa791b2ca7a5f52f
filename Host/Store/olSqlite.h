#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct sqlite3;

/// An open database file that holds texts and numbers. Closed when it goes, and rolled back if a transaction was under
/// way. What fails throws olStoreError.
class olSqlite
{
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

    /// The beginning of the file as it stands on the disk. Opening the file any other way would, on closing it, let go
    /// of all locks that this process has on it.
    [[nodiscard]] QByteArray header() const;

    /// Whether another file, or none, now bears the name of the one that is open.
    [[nodiscard]] bool wasMoved() const;

private:
    void require(int result) const;

    std::unique_ptr<sqlite3, int (*)(sqlite3 *)> m_handle;
};
