#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

// A program of its own: the loader asks for each needed library among all that are in memory, and the comparisons of
// the other groups bring dozens with them that no host has.

namespace
{

constexpr int loadings = 200;

/// The processor's time, which is the same whatever else the machine has to do.
double now()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

void load(benchmark::State &state, const char *file, int binding)
{
    for ([[maybe_unused]] auto iteration : state) {
        const double start = now();
        void *library = dlopen(file, binding | RTLD_LOCAL);
        const double time = now() - start;
        if (!library) {
            std::fprintf(stderr, "orlo-bench-load: %s\n", dlerror());
            std::exit(2);
        }
        state.SetIterationTime(time);
        dlclose(library);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    for (const auto &[kind, file] :
         {std::pair("plug-in", ORLO_PLUGIN_FILE), {"empty plug-in", ORLO_EMPTY_PLUGIN_FILE}}) {
        for (const auto &[how, binding] : {std::pair("", RTLD_LAZY), {" bound", RTLD_NOW}})
            benchmark::RegisterBenchmark((std::string("load ") + kind + how).c_str(), load, file, binding)
                ->UseManualTime()
                ->Iterations(loadings);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
