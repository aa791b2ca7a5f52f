#include "Groups.h"
#include "HandWritten.h"
#include "HandWrittenApply.h"
#include "KConfigPages.h"
#include "Support/BenchHost.h"
#include "Utilities/olMessage.h"

#include <benchmark/benchmark.h>

namespace
{

constexpr int repeats = 20;

/// All pages of one host, and the others' ways to their controls.
struct Pages {
    BenchHost host;
    HandWritten handWritten;
    HandWrittenApply handWrittenApply;
    KConfigPages kConfig;
};

template <class Operation> void all(Operation operation)
{
    for (olPreferencesEntry *module : BenchHost::modules())
        (module->*operation)();
}

void add(const char *name, const std::function<void()> &work, const std::function<void()> &before)
{
    benchmark::RegisterBenchmark(name, [=](benchmark::State &state) { measure(state, work, before); })
        ->UseManualTime()
        ->Iterations(repeats);
}

} // namespace

std::shared_ptr<void> registerPages()
{
    const auto pages = std::make_shared<Pages>();
    const auto *hand = &pages->handWritten;
    const auto *kConfig = &pages->kConfig;
    const auto *handApply = &pages->handWrittenApply;
    benchmark::AddCustomContext("settings", std::to_string(hand->settings()));
    benchmark::AddCustomContext("settings of KConfigDialogManager", std::to_string(kConfig->settings()));

    // Each take-back begins as after an apply, when nothing is reported unchanged yet.
    const auto takeBack = [] { all(&olPreferencesEntry::updateData); };
    add("fill", [] { all(&olPreferencesEntry::updateGUI); }, {});
    add("take back", takeBack, &BenchHost::settle);
    add("hand-written fill", [hand] { hand->fill(); }, {});
    add(
        "hand-written take back", [hand] { hand->takeBack(); }, &BenchHost::settle);
    add("KConfigDialogManager fill", [kConfig] { kConfig->fill(); }, {});
    add("KConfigDialogManager take back", [kConfig] { kConfig->takeBack(); }, {});
    add(
        "apply", [] { all(&olPreferencesEntry::applyPreferences); }, takeBack);
    add(
        "hand-written apply", [handApply] { handApply->apply(); }, takeBack);
    return pages;
}
