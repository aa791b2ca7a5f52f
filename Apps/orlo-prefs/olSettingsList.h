#pragma once

#include "Editing/olPreferencesImport.h"

#include <string>
#include <vector>

class olPreferencesEntry;

/// Settings and values as text. The first two are of all registered modules.
namespace olSettingsList
{

/// An array of modules, one after the other in registration order.
[[nodiscard]] std::string json(const olPreferencesSession &session);

/// The keys of a module's settings: in the order of their defaults, then those that have none.
[[nodiscard]] std::vector<std::string> keysOf(const olPreferencesEntry &entry);

/// For reading: the modules with their settings below them.
[[nodiscard]] std::string table();

/// A line each, with the values before and after.
[[nodiscard]] std::string changes(const std::vector<olPreferencesImport::Change> &changes);

/// JSON on one line; null for a value that is absent.
[[nodiscard]] std::string valueText(const boost::any &value);

} // namespace olSettingsList
