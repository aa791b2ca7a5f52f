#pragma once

#include "Session/olPreferencesSession.h"
#include "State/olResult.h"
#include "olHostExport.h"

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

/// A setting of a file that is passed over, and one phrase that says why.
struct ORLO_HOST_EXPORT olSkippedSetting {
    std::string key;
    QString reason;
};

/// Preferences to keep or to pass on, as a JSON file with a type for every value:
/// `{"format": 1, "settings": {"Camera fov": {"type": "float", "value": 60}}}`.
/// Types are named and values written as olValue lays down, so that they read back exactly.
class ORLO_HOST_EXPORT olPreferencesFile
{
public:
    /// What a file holds.
    struct Contents {
        olSettingValues settings;
        std::vector<olSkippedSetting> skipped;
    };

    /// One setting a line, in the order of the keys. Values of types that settings do not have are left out.
    [[nodiscard]] static QByteArray toJson(const olSettingValues &settings);
    /// Fails with the reason as a sentence; then nothing of the text counts.
    static olResult<Contents> fromJson(const QByteArray &text);

    /// Writes the file whole or leaves it as it was; a new one is for its owner alone. What is no regular file, as a
    /// pipe, is written into. Failures name the file and the reason.
    static olResult<> write(const QString &file, const olSettingValues &settings);
    static olResult<Contents> read(const QString &file);
};
