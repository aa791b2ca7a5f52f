#pragma once

#include "State/olResult.h"
#include "olHostExport.h"

#include <QLibrary>
#include <QString>

class olTranslations;

/// Loads the preferences plug-in, enters it and unloads it again. To be unloaded before the application object goes,
/// because the pages of the modules are destroyed with the library.
class ORLO_HOST_EXPORT olPluginLoader
{
public:
    olPluginLoader() = default;
    ~olPluginLoader();
    olPluginLoader(const olPluginLoader &) = delete;
    olPluginLoader &operator=(const olPluginLoader &) = delete;

    /// Loads `given`, where it is not empty, else the plug-in beside the program, else the installed one, and calls its
    /// entry function. Where that fails the sentence names the file, or all places looked at, and the reason, and
    /// nothing of the library stays loaded. Its texts are in the language of the translations, where there are such.
    olResult<> load(const QString &given, olTranslations *translations = nullptr);

    /// Calls the entry function once more. The library must be loaded. Fails as load() does.
    olResult<> enter();

    [[nodiscard]] bool isLoaded() const { return m_library.isLoaded(); }

    /// Destroys the modules and lets the library go. What the record still holds stays usable.
    void unload();

private:
    [[nodiscard]] olFailure failure(const QString &reason) const;

    QLibrary m_library;
};
