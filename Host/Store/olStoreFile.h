#pragma once

#include "Store/olStoreRows.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

class olSqlite;

/// A store's file: how it is read without a trace, saved to, copied and set aside. What fails throws olStoreError.
class olStoreFile
{
    Q_DECLARE_TR_FUNCTIONS(olStoreFile)

public:
    /// `wasStore` says that a store was here before: whatever is here now is then not foreign but damaged.
    olStoreFile(QString file, bool wasStore) : m_file(std::move(file)), m_wasStore(wasStore) {}

    /// With those on the way to it; each for its owner alone. False where it cannot be.
    [[nodiscard]] static bool makeFolder(const QString &folder);

    [[nodiscard]] const QString &name() const { return m_file; }
    [[nodiscard]] bool exists() const;

    /// Differs when the file or a journal was written or replaced, but for what happens within a moment.
    [[nodiscard]] QString stamp() const;

    /// Everything in the file, after it was proved sound; nothing where there is no file, or nothing in it yet. Leaves
    /// the disk as it is and waits for nobody.
    [[nodiscard]] olStoreRows::Contents read() const;

    /// One transaction, in a file that is made where there is none. See olPreferencesStore::save() for `left`.
    void change(const std::vector<olStoreRows::Change> &changes, std::vector<olStoreRows::Change> *left) const;

    /// Puts a copy of this file, which must be sound, in place of what bears the other name; whole or not at all.
    void copyTo(const QString &other) const;

    /// Keeps the file, with its journal, under the dated name that is returned. The copy takes its place, if there is
    /// one; where that cannot be made everything is as it was.
    [[nodiscard]] QString setAside(const olStoreFile *copy) const;

private:
    void look(const std::function<void(olSqlite &)> &work) const;
    void lookAtACopy(const std::function<void(olSqlite &)> &work) const;
    [[nodiscard]] QByteArray header() const;
    [[nodiscard]] bool hasJournal() const;
    [[nodiscard]] QString copyBeside(const QString &other) const;

    QString m_file;
    bool m_wasStore;
};
