#include "Editing/olPreferencesImport.h"

#include "State/olValue.h"

olPreferencesImport::olPreferencesImport(const olPreferencesSession &session,
                                         const olPreferencesFile::Contents &contents, const ValueOf &valueOf)
    : skipped(contents.skipped)
{
    for (const auto &[key, value] : contents.settings) {
        const boost::any before = valueOf(key);
        if (olValue::identical(before, value))
            continue;
        const QString reason = session.whyNot(key, value);
        if (!reason.isEmpty()) {
            skipped.push_back({key, reason});
            continue;
        }
        changes.push_back({key, before, value});
        if (const auto warning = session.warning(key, value))
            warnings.push_back({key, *warning});
    }
}

olSettingValues olPreferencesImport::values() const
{
    olSettingValues values;
    for (const Change &change : changes)
        values[change.key] = change.after;
    return values;
}
