#include "Session/olPluginLoader.h"
#include "Session/olPreferencesSession.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "Support/ChildProcess.h"
#include "Support/Files.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>

#include <unistd.h>

namespace
{

const QString pluginFile = QStringLiteral(ORLO_PLUGIN_FILE);

/// Up to the first apply of the module that writes into the application settings. Returns what was told meanwhile.
std::string applyFileIO()
{
    ::alarm(30); // it might wait for ever
    QElapsedTimer clock;
    clock.start();
    olPreferencesSession session(QString(), {});
    const QString error = session.loadPlugin(pluginFile).error();
    if (!error.isEmpty())
        return error.toStdString();
    olPreferencesEntry *module = olPreferencesRegistry::the().find("FileIO");
    module->setDefaults(true);
    module->updateGUI();
    module->applyPreferences();
    const QString written = QSettings().value("importDialog/closeOnSuccess").toString();
    if (written != "true")
        return "it holds " + written.toStdString();
    if (clock.elapsed() > 10000)
        return "it took " + std::to_string(clock.elapsed()) + " ms";
    return session.takeNotices().join(' ').toStdString();
}

} // namespace

TEST(PluginLoader, AFileThatWasCutIsRefusedAndNotMapped)
{
    const QTemporaryDir folder;
    const QString cut = folder.filePath("libKernelPreferences.so");
    ASSERT_TRUE(QFile::copy(pluginFile, cut));
    const qint64 size = QFileInfo(cut).size();
    const auto load = [&cut] {
        olPluginLoader plugin;
        const QString error = plugin.load(cut).error();
        return error.contains(cut) && !plugin.isLoaded() ? std::string() : "loaded: " + error.toStdString();
    };
    for (const qint64 left : {size - 1, size / 2, size / 10, qint64(4096), qint64(64), qint64(63), qint64(0)}) {
        ASSERT_TRUE(QFile::resize(cut, left));
        EXPECT_EQ(inChildProcess(load), "") << left << " of " << size << " bytes";
    }
}

TEST(PluginLoader, NobodyWaitsForALockThatAKilledProgramLeft)
{
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    const QString file = QSettings().fileName();
    ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
    writtenFile(file + ".lock");
    EXPECT_EQ(inChildProcess(applyFileIO), "");
    EXPECT_TRUE(QFileInfo::exists(file));

    // Nor for one that somebody holds, when there is nothing to write.
    QLockFile held(file + ".lock");
    ASSERT_TRUE(held.tryLock(0));
    const std::string told = inChildProcess(applyFileIO);
    EXPECT_EQ(told.find("The settings file " + file.toStdString() + " is busy: "), 0u) << told;
    EXPECT_NE(told.find("(process " + std::to_string(::getpid()) + ')'), std::string::npos) << told;
    EXPECT_TRUE(QFileInfo::exists(file + ".lock")) << "a lock whose owner lives stays";
}
