#pragma once

#include <string>

/// The catalogue of all settings as a Markdown document: of every module its settings, with type, default and where
/// they stand on its page.
[[nodiscard]] std::string olSettingsCatalogue();
