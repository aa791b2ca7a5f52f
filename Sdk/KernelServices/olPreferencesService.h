#pragma once

#include "Utilities/olExport.h"

#include <boost/any.hpp>

#include <map>
#include <set>
#include <string>

/// Typed values under text keys, each with a default beneath it, for categories that keep no settings in the record.
class ORLO_SDK_EXPORT olPreferencesService
{
public:
    /// The value, else the default, else `fallback`. A value of another type is passed over.
    [[nodiscard]] int getInt(const std::string &key, int fallback) const;
    [[nodiscard]] float getFloat(const std::string &key, float fallback) const;
    [[nodiscard]] bool getBool(const std::string &key, bool fallback) const;

    void setInt(const std::string &key, int value);
    void setFloat(const std::string &key, float value);
    void setBool(const std::string &key, bool value);

    /// The default shows through wherever no value is set; it never replaces one.
    void setDefaultInt(const std::string &key, int value);
    void setDefaultFloat(const std::string &key, float value);
    void setDefaultBool(const std::string &key, bool value);

    /// Whether another value came since the last markClean(), also where the former one is back. Before the first
    /// markClean() every key counts as changed.
    [[nodiscard]] bool isChanged(const std::string &key) const;

    /// For the host: the value or the default beneath it, empty when there is neither; and what it stores and loads.
    [[nodiscard]] boost::any get(const std::string &key) const;
    void set(const std::string &key, const boost::any &value);
    void remove(const std::string &key);
    void markClean();

    /// For the host, which may undo a change: what isChanged() answers, from the first markClean() on.
    void setChanged(const std::string &key, bool changed);

    /// Back to an empty service that was never marked clean.
    void clear();

private:
    void setDefault(const std::string &key, const boost::any &value);
    template <class T> [[nodiscard]] T typed(const std::string &key, T fallback) const;

    std::map<std::string, boost::any> m_values;
    std::map<std::string, boost::any> m_defaults;
    std::set<std::string> m_changed;
    bool m_wasClean = false;
};
