#include "Support/PluginTest.h"

#include <QFile>

#include <unistd.h>

namespace
{

/// The memory that the process holds, in bytes.
long residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLong() * sysconf(_SC_PAGESIZE);
}

// The sanitizer keeps freed memory in quarantine, and has its own eye on leaks.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool keepsFreed = true;
constexpr int cycles = 20;
#else
constexpr bool keepsFreed = false;
constexpr int cycles = 200;
#endif

TEST(LoadCycles, ManyOfThemDoNotGrow)
{
    const auto cycle = [](int times) {
        for (int i = 0; i < times; ++i) {
            olPluginLoader loader;
            ASSERT_EQ(loader.load(QStringLiteral(ORLO_PLUGIN_FILE)).error(), QString());
        }
    };
    cycle(cycles);
    const long settled = residentBytes();
    cycle(4 * cycles);
    if (!keepsFreed) {
        EXPECT_LT(residentBytes() - settled, 4 * cycles * 512) << "a page of any module alone is more each cycle";
    }
}

} // namespace
