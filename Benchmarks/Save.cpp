#include "Groups.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "Support/BenchHost.h"

#include <QFile>
#include <QSettings>
#include <benchmark/benchmark.h>

#include <set>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace
{

constexpr auto changedKey = "Camera fov";
constexpr int repeats = 5;

/// The settings of somebody who changed some of them, in the store and in an ini file of the same content.
class Saved
{
public:
    explicit Saved(std::size_t count)
    {
        for (const olPreferencesEntry *module : BenchHost::modules()) {
            for (const olOfferedDefault &offered : module->defaults()) {
                if (m_keys.size() < count && offered.value.type() == typeid(bool) && module->home() == olHome::Record)
                    m_keys.insert(offered.key);
            }
        }
        for (const std::string &key : m_keys) {
            const bool changed = !boost::any_cast<bool>(BenchHost::record().get(key));
            BenchHost::record().set(key, boost::any(changed), true);
            m_settings.setValue(QString::fromStdString(key), changed);
        }
        saveStore();
        saveSettings();
    }

    void change()
    {
        m_fov = m_fov < 90.0f ? m_fov + 1.0f : 30.0f;
        BenchHost::record().set(changedKey, boost::any(m_fov), true);
        m_settings.setValue(QLatin1String(changedKey), m_fov);
    }

    void saveStore() { require(m_host.session().save()); }

    /// So that it outlives a loss of power, as the store's save does.
    void saveSettings()
    {
        m_settings.sync();
        for (const QString &name : {m_settings.fileName(), m_folder.path()}) {
            const int file = ::open(QFile::encodeName(name).constData(), O_RDONLY | O_CLOEXEC);
            require(file >= 0 && ::fsync(file) == 0, "the disk does not say when it is done");
            ::close(file);
        }
    }

private:
    BenchHost m_host;
    QTemporaryDir m_folder{folderOnDisk()};
    QSettings m_settings{m_folder.filePath(QStringLiteral("preferences.ini")), QSettings::IniFormat};
    std::set<std::string> m_keys;
    float m_fov = 50.0f;
};

/// How often the process has asked the system to write.
long writeCalls()
{
    QFile file(QStringLiteral("/proc/self/io"));
    require(file.open(QIODevice::ReadOnly), "the system does not tell of its calls");
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("syscw: "))
            return line.mid(7).toLong();
    }
    return -1;
}

void saveNothing(benchmark::State &state, Saved &saved)
{
    saved.saveStore();
    for ([[maybe_unused]] auto iteration : state) {
        const long before = writeCalls();
        saved.saveStore();
        state.counters["writes"] = double(writeCalls() - before);
    }
}

} // namespace

std::shared_ptr<void> registerSave()
{
    auto saved = std::make_shared<Saved>(40);
    benchmark::RegisterBenchmark("save",
                                 [saved](benchmark::State &state) {
                                     measure(
                                         state, [&] { saved->saveStore(); }, [&] { saved->change(); }, {}, Clock::Wall);
                                 })
        ->UseManualTime()
        ->Iterations(repeats);
    benchmark::RegisterBenchmark("QSettings save",
                                 [saved](benchmark::State &state) {
                                     measure(
                                         state, [&] { saved->saveSettings(); }, [&] { saved->change(); }, {},
                                         Clock::Wall);
                                 })
        ->UseManualTime()
        ->Iterations(repeats);
    benchmark::RegisterBenchmark("save nothing", [saved](benchmark::State &state) {
        saveNothing(state, *saved);
    })->Iterations(1);
    return saved;
}
