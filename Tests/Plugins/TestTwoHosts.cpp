// Two hosts that run on one store, as two viewers do, while the tool sets values in it.

#include "Session/olPreferencesFile.h"
#include "Session/olPreferencesSession.h"
#include "State/olPreferencesRegistry.h"
#include "Support/Files.h"
#include "Support/PluginTest.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cstddef>
#include <map>
#include <memory>

namespace
{

const std::string shared = "Camera fov";
const std::string toolsOwn = "Powerwall distance";
constexpr float last = 99999;

olSettingValues valuesInForce()
{
    olSettingValues values;
    for (const std::string &key : olPreferencesSession::keys())
        values[key] = olPreferencesSession::moduleOf(key)->value(key);
    return values;
}

float number(const olSettingValues &values, const std::string &key) { return boost::any_cast<float>(values.at(key)); }

/// What a viewer does: follows the store, and is now and then given a value of its own and one that others set too.
/// Once it is told to stop that, it waits for the tool's last value.
void runHost(const QDir &folder, const QString &name)
{
    const std::string own = name == QLatin1String("left") ? "Powerwall width" : "Powerwall height";
    olPreferencesSession session(folder.filePath(QStringLiteral("preferences.db")), {});
    ASSERT_TRUE(session.loadStore().isOk());
    ASSERT_TRUE(session.loadPlugin(pluginUnderTest()).isOk());
    session.start();
    session.follow();
    float saved = 0;
    QTimer work;
    QObject::connect(&work, &QTimer::timeout, [&] {
        if (!folder.exists(QStringLiteral("stop"))) {
            ++saved;
            ASSERT_EQ(session.commit({}, {{own, saved}, {shared, 1 + float(int(saved) % 50)}}).error(), QString());
        } else if (!folder.exists(name)) {
            writtenFile(folder.filePath(name));
        } else if (number(valuesInForce(), toolsOwn) == last) {
            QCoreApplication::quit();
        }
    });
    work.start(60);
    QCoreApplication::exec();
    EXPECT_EQ(number(valuesInForce(), own), saved) << "nobody else sets it";
    ASSERT_TRUE(session.save().isOk());
    ASSERT_TRUE(olPreferencesFile::write(folder.filePath(name + ".json"), valuesInForce()).isOk());
}

TEST(TwoHosts, EndWithTheSameValuesAsTheToolThatSetsThemAndNothingIsLost)
{
    if (qEnvironmentVariableIsSet("ORLO_TEST_HOST"))
        return runHost(qEnvironmentVariable("ORLO_TEST_FOLDER"), qEnvironmentVariable("ORLO_TEST_HOST"));

    const QTemporaryDir folder;
    const QString store = folder.filePath(QStringLiteral("preferences.db"));
    const auto tool = [&store](const QStringList &arguments) {
        return QProcess::execute(QStringLiteral(ORLO_TOOL_FILE), QStringList{"--store", store} + arguments);
    };
    const auto set = [&tool](const std::string &key, float value) {
        return tool({"set", QString::fromStdString(key), QString::number(double(value))});
    };

    std::vector<std::unique_ptr<QProcess>> hosts;
    const QStringList names{"left", "right"};
    for (const QString &name : names) {
        hosts.push_back(std::make_unique<QProcess>());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ORLO_TEST_HOST", name);
        environment.insert("ORLO_TEST_FOLDER", folder.path());
        hosts.back()->setProcessEnvironment(environment);
        hosts.back()->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        hosts.back()->start(QCoreApplication::applicationFilePath(), {"--gtest_filter=TwoHosts.*"});
    }
    const int seconds = qEnvironmentVariableIntValue("ORLO_TEST_SECONDS");
    QElapsedTimer timer;
    timer.start();
    std::size_t saves = 0;
    while (timer.elapsed() < 1000 * (seconds > 0 ? seconds : 10)) {
        ASSERT_EQ(set(toolsOwn, float(++saves)), 0);
        ASSERT_EQ(set(shared, 51 + float(saves % 40)), 0);
    }
    writtenFile(folder.filePath(QStringLiteral("stop")));
    for (const QString &name : names)
        ASSERT_TRUE(QTest::qWaitFor([&] { return QFileInfo::exists(folder.filePath(name)); }, 30000));
    ASSERT_EQ(set(toolsOwn, last), 0);

    ASSERT_EQ(tool({"export", folder.filePath(QStringLiteral("tool.json"))}), 0);
    const auto valuesOf = [&folder](const QString &name) {
        const auto contents = olPreferencesFile::read(folder.filePath(name + ".json"));
        EXPECT_EQ(contents.error(), QString());
        return contents.isOk() ? contents->settings : olSettingValues();
    };
    const olSettingValues expected = valuesOf(QStringLiteral("tool"));
    for (std::size_t host = 0; host < hosts.size(); ++host) {
        ASSERT_TRUE(hosts[host]->waitForFinished(30000));
        EXPECT_EQ(hosts[host]->exitCode(), 0) << hosts[host]->readAllStandardOutput().toStdString();
        EXPECT_EQ(olPreferencesFile::toJson(valuesOf(names[int(host)])).toStdString(),
                  olPreferencesFile::toJson(expected).toStdString());
    }
    // Each save is in the history, while it goes back that far.
    const auto ofHosts = std::size_t(number(expected, "Powerwall width") + number(expected, "Powerwall height"));
    EXPECT_GT(ofHosts, 20u);
    const auto contents = olPreferencesStore(store).load();
    ASSERT_TRUE(contents.isOk());
    std::map<std::string, std::size_t> changes;
    for (const olStoreRows::Save &save : contents->history) {
        for (const olStoreRows::Change &change : save.changes)
            ++changes[change.key.second];
    }
    if (contents->history.size() < 500) {
        EXPECT_EQ(changes["Powerwall width"] + changes["Powerwall height"], ofHosts);
        EXPECT_EQ(changes[toolsOwn], saves + 1);
    }
}

} // namespace
