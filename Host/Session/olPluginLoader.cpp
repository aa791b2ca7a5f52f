#include "Session/olPluginLoader.h"

#include "Session/olLibraryCheck.h"
#include "State/olPreferencesRegistry.h"
#include "State/olSceneLoaders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <exception>

namespace
{

constexpr auto entryName = "initPreferencesPlugin";
constexpr auto fileName = "libKernelPreferences.so";

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olPluginLoader)
};

/// Beside the program, and installed.
QStringList standardPlaces()
{
    const QDir programFolder(QCoreApplication::applicationDirPath());
    return {programFolder.filePath(fileName),
            QDir::cleanPath(programFolder.filePath(QStringLiteral(ORLO_PLUGIN_FROM_BIN "/")) + fileName)};
}

} // namespace

olPluginLoader::~olPluginLoader() { unload(); }

olResult<> olPluginLoader::load(const QString &given)
{
    unload();
    const QStringList places = given.isEmpty() ? standardPlaces() : QStringList(given);
    const auto found =
        std::find_if(places.begin(), places.end(), [](const QString &place) { return QFileInfo::exists(place); });
    if (found == places.end() && given.isEmpty())
        return olFailure{
            Words::tr("Cannot load the preferences plug-in: there is neither %1 nor %2.").arg(places[0], places[1])};
    // A bare name would be searched for in the system's folders.
    m_library.setFileName(QFileInfo(found == places.end() ? given : *found).absoluteFilePath());
    m_library.setLoadHints(QLibrary::ResolveAllSymbolsHint);

    const QFileInfo info(m_library.fileName());
    if (!info.exists())
        return failure(Words::tr("there is no such file"));
    if (!info.isFile())
        return failure(Words::tr("it is not a file"));
    if (const olResult<> checked = olCheckLibrary(m_library.fileName()); !checked.isOk())
        return failure(checked.error());
    if (!m_library.load())
        return failure(m_library.errorString());
    olStartOpenSG();
    olResult<> entered = enter();
    if (!entered.isOk())
        unload();
    return entered;
}

olResult<> olPluginLoader::enter()
{
    const auto entry = reinterpret_cast<void (*)()>(m_library.resolve(entryName));
    if (!entry)
        return failure(Words::tr("it has no entry function %1").arg(entryName));
    try {
        entry();
    } catch (const std::exception &exception) {
        return failure(Words::tr("a module could not be built: %1").arg(QString::fromLocal8Bit(exception.what())));
    } catch (...) {
        return failure(Words::tr("a module could not be built, and does not say why"));
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
    return {Words::tr("Cannot load the preferences plug-in %1: %2.").arg(m_library.fileName(), reason)};
}
