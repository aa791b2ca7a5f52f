#pragma once

#include <QTemporaryDir>

#include <string>

/// An application settings store that begins empty and is gone afterwards: from its construction on, everything in
/// this process that uses the default store uses this one.
class olScratchSettings
{
public:
    /// Throws olToolError where no temporary directory can be made.
    olScratchSettings();

    /// The value as JSON; empty where the key is absent.
    [[nodiscard]] std::string value(const QString &key) const;

private:
    QTemporaryDir m_directory;
};
