#pragma once

#include <string>

/// A JSON Schema of the files that name settings: preferences that are exported and imported, and a site's site.json.
[[nodiscard]] std::string olSettingsSchema();
