#include "Framework/olTypedAccess.h"
#include "Groups.h"
#include "Support/Allocations.h"
#include "Support/BenchHost.h"

#include <KConfigGroup>
#include <KSharedConfig>
#include <QSettings>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <deque>
#include <memory>
#include <random>

namespace
{

/// The settings of one type as a program holds them that keeps its settings in each of three ways.
template <class T> struct Settings {
    std::vector<std::string> keys;
    std::vector<QString> qtKeys;
    std::deque<T> values; ///< no vector, which would pack flags into bits
};

/// The host, and the same settings in the memory of the two others.
struct Stores {
    BenchHost host;
    QTemporaryDir folder;
    QSettings qt{folder.filePath(QStringLiteral("settings.mem")), inMemory()};
    KSharedConfigPtr kde = KSharedConfig::openConfig(QString(), KConfig::SimpleConfig);
    KConfigGroup group{kde, "Preferences"};

    /// A format whose files are never read and never written.
    static QSettings::Format inMemory()
    {
        return QSettings::registerFormat(
            QStringLiteral("mem"), [](QIODevice &, QSettings::SettingsMap &) { return true; },
            [](QIODevice &, const QSettings::SettingsMap &) { return true; });
    }
};

/// In an order that no way of keeping them has any good of.
template <class T> Settings<T> settingsOf(Stores &stores)
{
    Settings<T> settings;
    for (const auto &[key, value] : BenchHost::record().entries()) {
        if (value.type() == typeid(T))
            settings.keys.push_back(key);
    }
    std::shuffle(settings.keys.begin(), settings.keys.end(), std::mt19937(4711));
    for (const std::string &key : settings.keys) {
        const T value = boost::any_cast<T>(BenchHost::record().get(key));
        settings.qtKeys.push_back(QString::fromStdString(key));
        settings.values.push_back(value);
        stores.qt.setValue(settings.qtKeys.back(), QVariant::fromValue(value));
        stores.group.writeEntry(key.c_str(), value);
    }
    require(settings.keys.size() > 2, "there are too few settings of a type");
    return settings;
}

/// One access an iteration, to one setting after the other.
template <class Access> void run(benchmark::State &state, std::size_t size, Access access)
{
    std::size_t next = 0;
    const Allocations allocations;
    for ([[maybe_unused]] auto iteration : state) {
        access(next);
        next = next + 1 == size ? 0 : next + 1;
    }
    state.counters["allocations"] = double(allocations.count()) / double(state.iterations());
}

template <class T> void registerType(Stores &stores, const std::string &type)
{
    const auto settings = std::make_shared<const Settings<T>>(settingsOf<T>(stores));
    const auto add = [&](const char *name, auto access) {
        benchmark::RegisterBenchmark((name + ('/' + type)).c_str(), [settings, access](benchmark::State &state) {
            run(state, settings->keys.size(), [&](std::size_t index) { access(*settings, index); });
        });
    };

    add("bare read", [](const Settings<T> &settings, std::size_t index) {
        T value{};
        const olMessage::Entries &entries = BenchHost::record().entries();
        const auto found = entries.find(settings.keys[index]);
        if (found != entries.end()) {
            if (const T *held = boost::any_cast<T>(&found->second))
                value = *held;
        }
        benchmark::DoNotOptimize(value);
    });
    add("read", [](const Settings<T> &settings, std::size_t index) {
        T value{};
        getFromMessage(BenchHost::record(), settings.keys[index], value);
        benchmark::DoNotOptimize(value);
    });
    add("set unchanged", [](const Settings<T> &settings, std::size_t index) {
        bool changed = setIfChanged(BenchHost::record(), settings.keys[index], settings.values[index], true);
        benchmark::DoNotOptimize(changed);
    });
    add("QSettings unchanged", [&stores](const Settings<T> &settings, std::size_t index) {
        bool changed = qvariant_cast<T>(stores.qt.value(settings.qtKeys[index])) != settings.values[index];
        if (changed)
            stores.qt.setValue(settings.qtKeys[index], settings.values[index]);
        benchmark::DoNotOptimize(changed);
    });
    add("KConfigGroup unchanged", [&stores](const Settings<T> &settings, std::size_t index) {
        const char *key = settings.keys[index].c_str();
        bool changed = stores.group.readEntry(key, T()) != settings.values[index];
        if (changed)
            stores.group.writeEntry(key, settings.values[index]);
        benchmark::DoNotOptimize(changed);
    });
}

} // namespace

std::shared_ptr<void> registerRecord()
{
    const auto stores = std::make_shared<Stores>();
    registerType<bool>(*stores, "bool");
    registerType<int>(*stores, "int");
    registerType<float>(*stores, "float");
    registerType<double>(*stores, "double");
    registerType<QString>(*stores, "text");
    return stores;
}
