#include "Support/BenchHost.h"

#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "State/olHostState.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>

BenchHost::BenchHost() : m_folder(folderOnDisk()), m_session(m_folder.filePath(QStringLiteral("preferences.db")), {})
{
    makeHostNew();
    require(m_session.loadStore());
    require(m_session.loadPlugin(QStringLiteral(ORLO_PLUGIN_FILE)));
    m_session.start();
}

olMessage &BenchHost::record() { return olPreferencesRegistry::the().record(); }

const std::vector<olPreferencesEntry *> &BenchHost::modules() { return olPreferencesRegistry::the().entries(); }

void BenchHost::markClean()
{
    for (olPreferencesEntry *module : modules())
        module->markClean();
}

void makeHostNew()
{
    olMessage &record = olPreferencesRegistry::the().record();
    const olMessage::Entries left = record.entries();
    for (const auto &entry : left)
        record.remove(entry.first);
    olKernelServiceFactory::the<olPreferencesService>()->clear();
    olHostState &host = olHostState::the();
    host.reset();
}

QString folderOnDisk() { return QCoreApplication::applicationDirPath() + QStringLiteral("/bench-XXXXXX"); }

double secondsOf(const std::function<void()> &work, Clock clock)
{
    const auto now = [clock] {
        timespec time{};
        clock_gettime(clock == Clock::Wall ? CLOCK_MONOTONIC : CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
    };
    const double begin = now();
    work();
    return now() - begin;
}

void measure(benchmark::State &state, const std::function<void()> &work, const std::function<void()> &before,
             const std::function<void()> &after, Clock clock)
{
    for ([[maybe_unused]] auto iteration : state) {
        if (before)
            before();
        state.SetIterationTime(secondsOf(work, clock));
        if (after)
            after();
    }
}

void require(bool condition, const char *what)
{
    if (condition)
        return;
    std::fprintf(stderr, "orlo-bench: %s\n", what);
    std::exit(2);
}

void require(const olResult<> &result) { require(result.isOk(), qPrintable(result.error())); }
