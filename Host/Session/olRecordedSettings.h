#pragma once

#include "olHostExport.h"

#include <string>

/// Whether this host keeps a setting without acting on it: for want of a reader, a device or a renderer that it steers.
[[nodiscard]] ORLO_HOST_EXPORT bool olIsOnlyRecorded(const std::string &key);
