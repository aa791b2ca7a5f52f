#pragma once

#include "Utilities/olExport.h"

#include <QString>

#include <string>

/// Questions about files, and their paths.
class ORLO_SDK_EXPORT olFile
{
public:
    /// Whether something of that path (UTF-8) is there, a file or a directory; on demand only a file, and only what
    /// this process may write to. False for an empty path.
    static bool exists(const std::string &path, bool onlyFile, bool onlyWritable);

    /// The path with the separators that the platform shows to its users.
    static QString convertSeparators(const QString &path);
};
