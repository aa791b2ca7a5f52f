#pragma once

#include "olHostExport.h"

#include <QString>

#include <string>

/// What came from a float shows as that float: 0.2, not 0.20000000298023224.
[[nodiscard]] ORLO_HOST_EXPORT std::string olNumberText(double value);

/// Which numbers can be entered, for messages; bounds that are infinite are not named.
[[nodiscard]] ORLO_HOST_EXPORT QString olNumbersBetween(double lowest, double highest);
[[nodiscard]] ORLO_HOST_EXPORT QString olWholeNumbersBetween(int lowest, int highest);
