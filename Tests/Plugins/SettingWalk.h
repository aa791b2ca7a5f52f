#pragma once

#include "State/olPreferencesEntry.h"

#include <boost/any.hpp>

/// For tests that walk through all settings there are.
namespace SettingWalk
{

/// Another value of the same type.
boost::any another(const boost::any &value);

/// Every setting at its default, but those that are on or off all alike. With everything on each setting counts for
/// something.
void setAll(olPreferencesEntry &module, bool on);

} // namespace SettingWalk
