#include "Groups.h"
#include "KConfigPages.h"
#include "State/olPreferencesEntry.h"
#include "Support/BenchHost.h"

#include <QVariant>
#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace
{

constexpr int repeats = 20;

/// All pages of one host, and the same forms in other hands.
struct Pages {
    BenchHost host;
    KConfigPages kConfig;
};

template <class Operation> void all(Operation operation)
{
    for (olPreferencesEntry *module : BenchHost::modules())
        (module->*operation)();
}

/// The settings that have a control.
int settingsShown()
{
    int count = 0;
    for (const olPreferencesEntry *module : BenchHost::modules()) {
        const auto controls = module->page()->findChildren<QWidget *>();
        for (const QWidget *control : controls)
            count += control->property("olSettingKeys").toStringList().size();
    }
    return count;
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
    const auto *kConfig = &pages->kConfig;
    benchmark::AddCustomContext("settings", std::to_string(settingsShown()));
    benchmark::AddCustomContext("settings of KConfigDialogManager", std::to_string(kConfig->settings()));

    // Each take-back begins as after an apply, when nothing is reported unchanged yet.
    const auto takeBack = [] { all(&olPreferencesEntry::updateData); };
    add("fill", [] { all(&olPreferencesEntry::updateGUI); }, {});
    add("take back", takeBack, &BenchHost::markClean);
    add(
        "apply", [] { all(&olPreferencesEntry::applyPreferences); }, takeBack);
    add("KConfigDialogManager fill", [kConfig] { kConfig->fill(); }, {});
    return pages;
}
