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

// The leak sanitizer looks at the same cycles when this runs in its build.
TEST(LoadCycles, AThousandOfThemDoNotGrow)
{
    const auto cycle = [](int times) {
        for (int i = 0; i < times; ++i) {
            olPluginLoader loader;
            ASSERT_EQ(loader.load(QStringLiteral(ORLO_PLUGIN_FILE)).error(), QString());
        }
    };
    cycle(200);
    const long settled = residentBytes();
    cycle(800);
    const long perCycle = (residentBytes() - settled) / 800;
#if defined(__SANITIZE_ADDRESS__)
    // The sanitizer keeps freed memory in quarantine; it has its own eye on leaks.
    GTEST_LOG_(INFO) << perCycle << " bytes a cycle";
#else
    EXPECT_LT(perCycle, 512) << "bytes a cycle; a page of any module alone is more";
#endif
}

} // namespace
