#pragma once

#include "Session/olPreferencesFile.h"
#include "olHostExport.h"

#include <functional>
#include <vector>

class QWidget;

/// What importing a file would do, before anything is done: which settings get another value, and which are passed over
/// and why. A setting that has the file's value already is in neither list.
struct ORLO_HOST_EXPORT olPreferencesImport {
    struct Change {
        std::string key;
        boost::any before;
        boost::any after;
    };

    /// The value that counts as the present one, and the control that edits a setting, null where none does.
    using ValueOf = std::function<boost::any(const std::string &key)>;
    using ControlOf = std::function<QWidget *(const std::string &key)>;

    /// Unknown keys, values of another type than the setting's, those that its control cannot hold, and locked settings
    /// are skipped.
    olPreferencesImport(const olPreferencesSession &session, const olPreferencesFile::Contents &contents,
                        const ValueOf &valueOf, const ControlOf &controlOf);

    /// The values of the changes.
    [[nodiscard]] olSettingValues values() const;

    std::vector<Change> changes;
    std::vector<olSkippedSetting> skipped;
};
