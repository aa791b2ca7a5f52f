#include "Session/olPluginLoader.h"

#include "State/olPreferencesRegistry.h"
#include "State/olSceneLoaders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <exception>

namespace
{

constexpr auto entryName = "initPreferencesPlugin";
constexpr auto fileName = "libKernelPreferences.so";

} // namespace

olPluginLoader::~olPluginLoader() { unload(); }

QString olPluginLoader::locate(const QString &given)
{
    if (!given.isEmpty())
        return given;
    const QDir programFolder(QCoreApplication::applicationDirPath());
    const QString beside = programFolder.filePath(fileName);
    const QString installed =
        QDir::cleanPath(programFolder.filePath(QStringLiteral(ORLO_PLUGIN_FROM_BIN "/")) + fileName);
    return QFileInfo::exists(beside) || !QFileInfo::exists(installed) ? beside : installed;
}

olResult<> olPluginLoader::load(const QString &file)
{
    unload();
    // A bare name would be searched for in the system's folders.
    m_library.setFileName(QFileInfo(file).absoluteFilePath());
    m_library.setLoadHints(QLibrary::ResolveAllSymbolsHint);

    const QFileInfo info(m_library.fileName());
    if (!info.exists())
        return failure(QCoreApplication::translate("olPluginLoader", "there is no such file"));
    if (!info.isFile())
        return failure(QCoreApplication::translate("olPluginLoader", "it is not a file"));
    if (!m_library.load())
        return failure(m_library.errorString());
    olRegisterSceneLoaders();
    olResult<> entered = enter();
    if (!entered.isOk())
        unload();
    return entered;
}

olResult<> olPluginLoader::enter()
{
    const auto entry = reinterpret_cast<void (*)()>(m_library.resolve(entryName));
    if (!entry)
        return failure(QCoreApplication::translate("olPluginLoader", "it has no entry function %1").arg(entryName));
    try {
        entry();
    } catch (const std::exception &exception) {
        return failure(QCoreApplication::translate("olPluginLoader", "a module could not be built: %1")
                           .arg(QString::fromLocal8Bit(exception.what())));
    }
    return {};
}

void olPluginLoader::unload()
{
    if (!m_library.isLoaded())
        return;
    // What outlives the modules must not be held by code of the library; nothing of its own is left there afterwards.
    olPreferencesRegistry::the().adoptRecord();
    m_library.unload();
}

olFailure olPluginLoader::failure(const QString &reason) const
{
    return {QCoreApplication::translate("olPluginLoader", "Cannot load the preferences plug-in %1: %2.")
                .arg(m_library.fileName(), reason)};
}
