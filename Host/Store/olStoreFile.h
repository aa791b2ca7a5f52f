#pragma once

#include "Store/olStoreRows.h"

#include <QString>

#include <array>
#include <functional>
#include <string>
#include <utility>

class olSqlite;

/// A store's file: how it is read without a trace, saved to, copied and set aside. What fails throws olStoreError.
class olStoreFile
{
public:
    /// `wasStore` says that a store was here before: whatever is here now is then not foreign but damaged.
    olStoreFile(QString file, bool wasStore) : m_file(std::move(file)), m_wasStore(wasStore) {}

    /// With those on the way to it; each for its owner alone. False where it cannot be.
    [[nodiscard]] static bool makeFolder(const QString &folder);

    [[nodiscard]] const QString &name() const { return m_file; }
    [[nodiscard]] bool exists() const;

    /// Differs when the file or a journal was written or replaced, but for what happens within a moment.
    using Stamp = std::array<std::array<long long, 4>, 3>;
    [[nodiscard]] Stamp stamp() const;

    /// Everything in the file, after it was proved sound; nothing where there is no file, or nothing in it yet. Leaves
    /// the disk as it is and waits for nobody.
    [[nodiscard]] olStoreRows::Rows read(olStoreRows::History *history = nullptr) const;

    /// One transaction, in a file that is made where there is none. See olStoreTables::change().
    void change(const olStoreRows::Changes &changes, const std::string &program) const;

    /// Puts a copy of this file, which must be sound, in place of what bears the other name; whole or not at all.
    void copyTo(const QString &other) const;

    /// Keeps the file, with its journal, under the dated name that is returned. The copy takes its place, if there is
    /// one; where that cannot be made everything is as it was.
    [[nodiscard]] QString setAside(const olStoreFile *copy) const;

private:
    void look(const std::function<void(olSqlite &)> &work) const;
    void lookAtACopy(const std::function<void(olSqlite &)> &work) const;
    [[nodiscard]] bool hasPart(const char *suffix) const;
    [[nodiscard]] QString copyBeside(const QString &other) const;

    QString m_file;
    bool m_wasStore;
};
