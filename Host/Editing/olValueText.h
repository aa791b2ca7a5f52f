#pragma once

#include "olHostExport.h"

#include <QString>
#include <boost/any.hpp>

#include <string>

/// How a setting's value reads for a person, in the words of its module: the item of a combo box, a number with its
/// unit. Of a module that tells nothing, the plain value.
[[nodiscard]] ORLO_HOST_EXPORT QString olValueText(const std::string &key, const boost::any &value);

/// The same on one line, cut where it is long.
[[nodiscard]] ORLO_HOST_EXPORT QString olShortValueText(const std::string &key, const boost::any &value);
