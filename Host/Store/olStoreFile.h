#pragma once

#include "Store/olStoreRows.h"

#include <QString>

#include <utility>

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

    /// Whether saves are lost that stand in a left-over log. To be asked before read(), which takes the log in.
    [[nodiscard]] bool isLogDamaged() const;

    /// A new file of these rows, whole or not at all, in place of what is there.
    void replace(const olStoreRows &rows) const;

    /// As replace(); but what is there stays, with its log, under the dated name that is returned.
    [[nodiscard]] QString replaceAndSetAside(const olStoreRows &rows) const;

private:
    [[nodiscard]] bool looksLikeAStore() const;
    [[nodiscard]] olStoreRows readDatabase(bool wasStore) const;
    [[nodiscard]] QString buildBeside(const olStoreRows &rows) const;
    [[nodiscard]] QString setAside() const;
    void putInPlace(const QString &fresh) const;

    QString m_file;
};
