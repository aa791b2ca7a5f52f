#pragma once

#include "olHostExport.h"

#include <QLibrary>
#include <QString>

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
    /// entry function. Returns an empty text, else one sentence that names the file, or all places looked at, and the
    /// reason; then nothing of the library stays loaded.
    [[nodiscard]] QString load(const QString &given);

    /// Calls the entry function once more. The library must be loaded. Returns what load() would.
    [[nodiscard]] QString enter();

    [[nodiscard]] bool isLoaded() const { return m_library.isLoaded(); }

    /// Destroys the modules and lets the library go. What the record still holds stays usable.
    void unload();

private:
    [[nodiscard]] QString failure(const QString &reason) const;

    QLibrary m_library;
};
