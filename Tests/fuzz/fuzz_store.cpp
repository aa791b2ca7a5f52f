// A store: the bytes of its file, or the journal that a crash left beside a sound one, or else rows of a sound one, on
// each line a type, a blank and a value.

#include "Store/olPreferencesStore.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <vector>

namespace
{

std::vector<olStoreRows::Change> rowsIn(const QByteArray &text)
{
    std::vector<olStoreRows::Change> rows;
    for (const QByteArray &line : text.split('\n')) {
        const int blank = line.indexOf(' ');
        const std::string key = "key " + std::to_string(rows.size());
        const olStoreRows::Row row{line.left(blank).toStdString(), line.mid(blank + 1).toStdString()};
        rows.push_back({{olHome::Record, key}, std::nullopt, row});
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
        if (!store.save({{{olHome::Record, "key"}, {}, olStoreRows::Row::of(1)}}).isOk())
            std::abort();
        write(name + QStringLiteral("-journal"), bytes);
    } else if (!store.save(rowsIn(bytes)).isOk()) {
        std::abort();
    }

    (void)store.check();
    const olResult<olStoreRows::Contents> looked = store.open(olStoreUse::LookAt);
    const olResult<olStoreRows::Contents> opened = store.open();
    if (looked.isOk() != opened.isOk() || (opened.isOk() && looked->values.size() != opened->values.size()))
        std::abort();
    // Whatever was found: what is opened can be saved to.
    if (opened.isOk() && !store.save({{{olHome::Record, "new"}, {}, olStoreRows::Row::of(1)}}).isOk())
        std::abort();
    return 0;
}
