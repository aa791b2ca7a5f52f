#pragma once

#include <string>
#include <vector>

class olPreferences;
class olPreferencesCategory;

/// The cost that an apply cannot be without when nothing changed: asking the host of each guarded setting, and the
/// reads and host calls that are made on every apply. The modules must stay as long as it is used.
class HandWrittenApply
{
public:
    HandWrittenApply();

    void apply() const;

private:
    void askWhatChanged() const;
    void applyFormats() const;

    struct Guarded {
        const olPreferences *module;
        std::vector<std::string> keys;
    };
    struct Format {
        std::string type;
        std::vector<std::string> flags; ///< keys in the order of the calls
        std::vector<std::string> numbers;
        std::string levels;
    };

    std::vector<Guarded> m_guarded;
    const olPreferencesCategory *m_virtualReality = nullptr;
    std::vector<std::string> m_virtualRealityKeys;
    std::vector<Format> m_formats;
};
