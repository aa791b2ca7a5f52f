// A store: the bytes of its file, or the journal that a crash left beside a sound one, or else rows of a sound one, on
// each line a type, a blank and a value.

#include "Store/olPreferencesStore.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

namespace
{

olStoreRows::Changes rowsIn(const QByteArray &text)
{
    olStoreRows::Changes rows;
    for (const QByteArray &line : text.split('\n')) {
        const int blank = line.indexOf(' ');
        const std::string key = "key " + std::to_string(rows.size());
        rows[{"record", key}] = {line.left(blank).toStdString(), line.mid(blank + 1).toStdString()};
    }
    return rows;
}

void write(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("preferences.db"));
    olPreferencesStore store(name);
    if (bytes.startsWith("SQLite format 3")) {
        write(name, bytes);
    } else if (bytes.startsWith("\xd9\xd5\x05\xf9")) {
        if (!store.save({{{olHome::Record, "key"}, 1}}, {}).isEmpty())
            std::abort();
        write(name + QStringLiteral("-journal"), bytes);
    } else if (!store.save(rowsIn(bytes)).isEmpty()) {
        std::abort();
    }

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
