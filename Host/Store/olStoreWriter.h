#pragma once

#include "Store/olStoreRows.h"

#include <QString>

#include <memory>
#include <utility>
#include <vector>

/// The saves of one run into a store's file. The file stays open between them, without anybody having to wait for it,
/// for as long as nobody but the database itself touches it; what then is open again is proved again.
class olStoreWriter
{
public:
    explicit olStoreWriter(QString file);
    ~olStoreWriter();
    olStoreWriter(const olStoreWriter &) = delete;
    olStoreWriter &operator=(const olStoreWriter &) = delete;

    /// Puts and removes in one transaction. Makes the file, but not its folder, where there is none and none was; see
    /// olStoreFile::read() for `wasStore`. What fails throws olStoreFault and leaves the file as it was.
    void change(const olStoreRows &put, const std::vector<olStoreRows::Key> &removed, bool wasStore);

    /// Lets go of the file. The log of the saves stays beside it.
    void close();

private:
    class Connection;

    bool changeKept(const olStoreRows &put, const std::vector<olStoreRows::Key> &removed, bool wasStore);

    QString m_file;
    std::unique_ptr<Connection> m_connection;
};
