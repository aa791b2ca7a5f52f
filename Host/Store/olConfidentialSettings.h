#pragma once

#include "olHostExport.h"

#include <string>

/// Whether a setting's value is nobody's business outside, and is kept nowhere but in its place: who is let in, by
/// which pipe the host is driven, and whatever a module calls a secret.
[[nodiscard]] ORLO_HOST_EXPORT bool olIsConfidential(const std::string &key);
