#include "Groups.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "Support/Allocations.h"
#include "Support/BenchHost.h"

#include <QCoreApplication>
#include <QFile>
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <limits>

namespace
{

constexpr int modulesInPlugin = 32;
constexpr int mostCopies = 16;

/// Copies of the plug-in under names of their own: to the loader they are different libraries, so each registers its
/// modules anew.
class Copies
{
public:
    Copies()
    {
        for (int copy = 0; copy < mostCopies; ++copy) {
            m_files << m_folder.filePath(QStringLiteral("copy%1.so").arg(copy));
            require(QFile::copy(QStringLiteral(ORLO_PLUGIN_FILE), m_files.back()), "the plug-in cannot be copied");
        }
    }

    void load(int copies)
    {
        for (int copy = 0; copy < copies; ++copy) {
            m_plugins.push_back(std::make_unique<olPluginLoader>());
            require(m_plugins.back()->load(m_files.at(copy)));
            // Left undelivered, the layouts' events make Qt look through all of them at each new layout.
            QCoreApplication::sendPostedEvents();
        }
    }

    void unload()
    {
        while (!m_plugins.empty())
            m_plugins.pop_back();
        makeHostNew();
    }

private:
    QTemporaryDir m_folder{folderOnDisk()};
    QStringList m_files;
    std::vector<std::unique_ptr<olPluginLoader>> m_plugins;
};

template <class Operation> void all(Operation operation)
{
    for (olPreferencesEntry *module : BenchHost::modules())
        (module->*operation)();
}

void defaults()
{
    for (olPreferencesEntry *module : BenchHost::modules())
        module->setDefaults(false);
}

void apply()
{
    all(&olPreferencesEntry::applyPreferences);
    all(&olPreferencesEntry::markClean);
}

/// The session's own walks over all modules, and what they look up in them.
void confirm(olPreferencesSession &session) { require(session.commit(BenchHost::modules())); }

/// The pages of few modules fit into the processor's caches, those of many do not; what is asked here is how much there
/// is to do.
void emptyCaches()
{
    static std::vector<char> memory(std::size_t(128) << 20);
    for (std::size_t byte = 0; byte < memory.size(); byte += 64)
        ++memory[byte];
    benchmark::DoNotOptimize(memory.data());
}

/// Each step in its time for one module, over all steps of a run of the host.
void grow(benchmark::State &state, Copies &copies, int count)
{
    const double modules = double(count) * modulesInPlugin;
    const auto perModule = [&](const char *name, const std::function<void()> &work) {
        emptyCaches();
        state.counters[name] = secondsOf(work) / modules;
    };
    for ([[maybe_unused]] auto iteration : state) {
        const std::size_t before = heapInUse();
        perModule("load", [&] { copies.load(count); });
        perModule("defaults", defaults);
        perModule("first fill", [] { all(&olPreferencesEntry::updateGUI); });
        perModule("fill", [] { all(&olPreferencesEntry::updateGUI); });
        perModule("take back", [] { all(&olPreferencesEntry::updateData); });
        perModule("apply", apply);
        state.counters["memory"] = double(heapInUse() - before) / modules;
        const QTemporaryDir folder(folderOnDisk());
        olPreferencesSession session(folder.filePath(QStringLiteral("preferences.db")), {});
        perModule("start of a session", [&] { session.start(); });
        perModule("confirm", [&] { confirm(session); });
        copies.unload();
    }
}

} // namespace

std::shared_ptr<void> registerGrowth()
{
    // Memory that was given back to the system costs more to have than memory that was kept.
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    auto copies = std::make_shared<Copies>();
    makeHostNew();
    copies->load(mostCopies);
    copies->unload();
    for (int count = 1; count <= mostCopies; count *= 2) {
        benchmark::RegisterBenchmark(("grow/" + std::to_string(count * modulesInPlugin)).c_str(),
                                     [copies, count](benchmark::State &state) { grow(state, *copies, count); })
            ->Iterations(1);
    }
    return copies;
}
