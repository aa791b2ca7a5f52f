#pragma once

#include <QString>

#include <map>
#include <string>
#include <utility>
#include <vector>

class olSqlite;

/// Why a store cannot be used; the reason is a part of a sentence, without the file's name.
struct olStoreFault {
    enum class Kind {
        Damaged,
        Newer,   ///< written by a later version, whose rows are not ours to judge
        Foreign, ///< nothing that ever was a store
        Busy,
        Access
    };

    Kind kind;
    QString reason;
};

/// The rows of a store as they stand in its file, whether or not anyone here can read their values.
struct olStoreRows {
    using Key = std::pair<std::string, std::string>; ///< home and key
    struct Row {
        std::string type;
        std::string value;
        bool operator==(const Row &other) const { return type == other.type && value == other.value; }
    };

    std::map<Key, Row> rows;
};

/// A store's file: one row a setting, a checksum in each row, and a seal over all checksums, so that neither a changed
/// row nor a lost one goes unnoticed. What fails throws olStoreFault.
class olStoreFile
{
public:
    explicit olStoreFile(QString file) : m_file(std::move(file)) {}

    [[nodiscard]] const QString &name() const { return m_file; }
    [[nodiscard]] bool exists() const;

    /// Everything in the file, after it was proved sound; nothing where there is no file, or nothing in it yet.
    /// `wasStore` says that a store was here before: whatever is here now is then not Foreign but Damaged.
    [[nodiscard]] olStoreRows read(bool wasStore) const;

    /// Puts and removes in one transaction. Makes the file, but not its folder, where there is none and none was.
    void change(const olStoreRows &put, const std::vector<olStoreRows::Key> &removed, bool wasStore) const;

    /// A new file of these rows, whole or not at all, in place of what is there.
    void replace(const olStoreRows &rows) const;

    /// As replace(); but what is there stays, with its log, under the dated name that is returned.
    [[nodiscard]] QString replaceAndSetAside(const olStoreRows &rows) const;

private:
    [[nodiscard]] bool looksLikeAStore() const;
    [[nodiscard]] olStoreRows readDatabase(bool wasStore) const;
    void changeDatabase(const olStoreRows &rows, const std::vector<olStoreRows::Key> &removed, bool wasStore) const;
    [[nodiscard]] QString buildBeside(const olStoreRows &rows) const;
    [[nodiscard]] QString setAside() const;
    void putInPlace(const QString &fresh) const;

    QString m_file;
};
