#pragma once

#include "Session/olPreferencesFile.h"
#include "olHostExport.h"

#include <functional>
#include <vector>

/// What importing a file would do, before anything is done: which settings get another value, and which are passed over
/// and why. A setting that has the file's value already is in neither list.
struct ORLO_HOST_EXPORT olPreferencesImport {
    struct Change {
        std::string key;
        boost::any before;
        boost::any after;
    };

    /// A question that must be agreed to before the setting gets its value.
    struct Warning {
        std::string key;
        olSettingWarning question;
    };

    /// The value that counts as the present one.
    using ValueOf = std::function<boost::any(const std::string &key)>;

    /// Skipped is what the session says may not be set; see olPreferencesSession::whyNot().
    olPreferencesImport(const olPreferencesSession &session, const olPreferencesFile::Contents &contents,
                        const ValueOf &valueOf);

    /// The values of the changes.
    [[nodiscard]] olSettingValues values() const;

    std::vector<Change> changes;
    std::vector<Warning> warnings; ///< of the changes
    std::vector<olSkippedSetting> skipped;
};
