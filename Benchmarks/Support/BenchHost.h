#pragma once

#include "Session/olPreferencesSession.h"

#include <QTemporaryDir>

#include <functional>
#include <vector>

class olMessage;

namespace benchmark
{
class State;
}

/// The embedded host after its start sequence, with the plug-in and a store of its own, on a disk and not in memory.
/// It opens no socket and no device.
class BenchHost
{
public:
    BenchHost();

    olPreferencesSession &session() { return m_session; }

    static olMessage &record();
    static const std::vector<olPreferencesEntry *> &modules();

    /// Makes every module's values count as applied.
    static void markClean();

private:
    QTemporaryDir m_folder;
    olPreferencesSession m_session;
};

/// A host without a plug-in: record, service and state are as new.
void makeHostNew();

/// A folder for files whose writing is measured; beside the program, as the folder of temporary files may lie in
/// memory.
QString folderOnDisk();

/// The processor's time is the same whatever else the machine has to do; what waits for a disk needs the wall's.
enum class Clock { Processor, Wall };

/// What the measured piece of work took, in seconds.
double secondsOf(const std::function<void()> &work, Clock clock = Clock::Processor);

/// One measured piece of work an iteration, with what comes before and after it left out of the time.
void measure(benchmark::State &state, const std::function<void()> &work, const std::function<void()> &before = {},
             const std::function<void()> &after = {}, Clock clock = Clock::Processor);

/// Ends the program: without what it was to measure its figures would mean nothing.
void require(bool condition, const char *what);
void require(const olResult<> &result);
