#pragma once

#include <QString>
#include <boost/any.hpp>

#include <string>
#include <vector>

class olPreferencesEntry;

/// A setting that the user can name.
struct olKnownSetting {
    olPreferencesEntry *entry = nullptr; ///< where the value lives
    std::string key;
    std::string type;
    boost::any standard;     ///< the default; of a list that no module offers one for, the empty list
    bool isOptional = false; ///< by default absent

    /// What is in force: never absent where there is a default.
    [[nodiscard]] boost::any value() const;

    /// What is optional goes with its default.
    void setValue(const boost::any &value) const;
};

/// The settings of all modules, by what they offer as defaults and by what they tell of besides. To be made when
/// the defaults are filled in.
class olKnownSettings
{
public:
    olKnownSettings();

    /// In the order of the modules, each key once.
    [[nodiscard]] const std::vector<olKnownSetting> &all() const { return m_settings; }

    /// Null for an unknown key.
    [[nodiscard]] const olKnownSetting *find(const std::string &key) const;

    /// Throws olToolError for an unknown key, with the nearest.
    [[nodiscard]] const olKnownSetting &named(const QString &key) const;

private:
    void addOffered(olPreferencesEntry &entry);
    void addOptional(olPreferencesEntry &entry);

    std::vector<olKnownSetting> m_settings;
};
