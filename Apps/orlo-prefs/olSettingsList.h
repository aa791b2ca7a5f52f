#pragma once

#include <string>

/// All registered modules with their settings, as text.
namespace olSettingsList
{

/// An array of modules, one after the other in registration order.
[[nodiscard]] std::string json();

/// For reading: the modules with their settings below them.
[[nodiscard]] std::string table();

} // namespace olSettingsList
