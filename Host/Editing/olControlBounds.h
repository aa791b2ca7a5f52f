#pragma once

#include "olHostExport.h"

#include <QString>
#include <boost/any.hpp>

#include <string>

class QWidget;

/// What the control of a setting could hold, for a message ("a number from 1 to 179"), where it could not hold this
/// value. Empty where it could, but for the decimals that it shows, and where nobody can tell: without a control, for
/// one. The default always passes. The control is tried out on the way, and ends as it was.
[[nodiscard]] ORLO_HOST_EXPORT QString olControlBounds(QWidget *control, const std::string &key,
                                                       const boost::any &standard, const boost::any &value);
