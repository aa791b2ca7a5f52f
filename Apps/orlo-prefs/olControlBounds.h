#pragma once

#include <QString>
#include <boost/any.hpp>

struct olKnownSetting;

/// What the setting's control could hold, for a message ("a number from 1 to 179"), where it could not hold this value.
/// Empty where it could, but for the decimals that it shows, and where nobody can tell. The default always passes.
[[nodiscard]] QString olControlBounds(const olKnownSetting &setting, const boost::any &value);
