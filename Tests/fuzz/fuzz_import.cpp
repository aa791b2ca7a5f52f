// A file of exported preferences.

#include "Session/olPreferencesFile.h"
#include "State/olValue.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    const auto contents = olPreferencesFile::fromJson(text);
    if (!contents.isOk())
        return 0;
    const auto &read = contents->settings;
    // What was understood reads back as the same.
    const auto written = olPreferencesFile::fromJson(olPreferencesFile::toJson(read));
    if (!written.isOk())
        std::abort();
    const auto &again = written->settings;
    if (again.size() != read.size())
        std::abort();
    for (const auto &[key, value] : read) {
        const auto found = again.find(key);
        if (found == again.end() || !olValue::identical(found->second, value))
            std::abort();
    }
    return 0;
}
