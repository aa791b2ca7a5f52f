// A store: either the bytes of its file, or else rows of a sound one, on each line a type, a blank and a value.

#include "Preferences/olPreferencesStore.h"
#include "Preferences/olStoreFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

namespace
{

olStoreRows rowsIn(const QByteArray &text)
{
    olStoreRows rows;
    for (const QByteArray &line : text.split('\n')) {
        const int blank = line.indexOf(' ');
        const std::string key = "key " + std::to_string(rows.rows.size());
        rows.rows[{"record", key}] = {line.left(blank).toStdString(), line.mid(blank + 1).toStdString()};
    }
    return rows;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("preferences.db")));
    if (!bytes.startsWith("SQLite format 3"))
        olStoreFile(file.fileName()).replace(rowsIn(bytes));
    else if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        std::abort();
    file.close();

    olPreferencesStore store(file.fileName());
    olPreferencesStore::Values looked;
    olPreferencesStore::Values opened;
    (void)store.check();
    (void)store.lookAt(looked);
    const olStoreOpening opening = store.open(opened);
    if (looked.size() != opened.size())
        std::abort();
    // Whatever was found: what is opened can be saved to.
    if (opening.error.isEmpty() && !store.save({{{olHome::Record, "new"}, 1}}, {}).isEmpty())
        std::abort();
    return 0;
}
