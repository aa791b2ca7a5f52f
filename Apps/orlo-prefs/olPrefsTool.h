#pragma once

#include "Preferences/olPreferencesSession.h"
#include "olPrefsOptions.h"

#include <string>

class olPreferencesEntry;
struct olOfferedDefault;

/// The commands of the tool. Results go to the standard output stream; what fails throws olToolError.
class olPrefsTool
{
public:
    explicit olPrefsTool(const olPrefsOptions &options);

    void run();

private:
    /// The setting that a key names: where it lives, and its type.
    struct Setting {
        olPreferencesEntry *entry;
        std::string key;
        std::string type;
    };

    void list();
    void get();
    void set();
    void script();

    void loadStore(olStoreUse use);
    void printNotices();
    void loadPlugin();
    void loadEverything();
    void requireArguments(int count, const char *usage) const;
    [[nodiscard]] static Setting setting(const QString &key);

    olPrefsOptions m_options;
    olPreferencesSession m_session;
};
