#include "BareForms.h"
#include "Groups.h"
#include "Support/Allocations.h"
#include "Support/BenchHost.h"

#include <benchmark/benchmark.h>
#include <dlfcn.h>

namespace
{

/// A library of the host's, loaded but not entered.
class Library
{
public:
    explicit Library(const char *file) : m_handle(dlopen(file, RTLD_NOW | RTLD_LOCAL)) { require(m_handle, dlerror()); }
    ~Library() { dlclose(m_handle); }
    Library(const Library &) = delete;
    Library &operator=(const Library &) = delete;

    void enter() const { reinterpret_cast<void (*)()>(dlsym(m_handle, "initPreferencesPlugin"))(); }

private:
    void *m_handle;
};

constexpr int repeats = 5;

void constructModules(benchmark::State &state)
{
    std::unique_ptr<Library> plugin;
    measure(
        state, [&] { plugin->enter(); }, [&] { plugin = std::make_unique<Library>(ORLO_PLUGIN_FILE); },
        [&] { plugin.reset(); });
}

void constructForms(benchmark::State &state)
{
    std::vector<std::unique_ptr<QWidget>> forms;
    measure(
        state, [&] { forms = BareForms::all(); }, {}, [&] { forms.clear(); });
}

/// What both hold on the heap, after a first round that filled the toolkit's own stores.
void memory(benchmark::State &state)
{
    for ([[maybe_unused]] auto iteration : state) {
        const Library plugin(ORLO_PLUGIN_FILE);
        std::size_t before = heapInUse();
        plugin.enter();
        state.counters["modules"] = double(heapInUse() - before);

        before = heapInUse();
        const auto forms = BareForms::all();
        state.counters["forms"] = double(heapInUse() - before);
    }
}

} // namespace

std::shared_ptr<void> registerConstruction()
{
    makeHostNew();
    {
        const Library plugin(ORLO_PLUGIN_FILE);
        plugin.enter();
        BareForms::all();
    }
    benchmark::RegisterBenchmark("construct modules", constructModules)->UseManualTime()->Iterations(repeats);
    benchmark::RegisterBenchmark("construct forms", constructForms)->UseManualTime()->Iterations(repeats);
    benchmark::RegisterBenchmark("memory", memory)->Iterations(1);
    return {};
}
