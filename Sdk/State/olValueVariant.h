#pragma once

#include "Utilities/olExport.h"

#include <QVariant>
#include <boost/any.hpp>

#include <string>

namespace olValue
{

/// The value of a setting from the variant in which a page hands it over: byte texts are byte arrays, a colour is a
/// list of three floats, and lists are lists of these. Empty where the variant is not of that type; nothing is
/// converted. Without a type's name the variant tells the type itself; an empty list tells none and gives an empty
/// value.
ORLO_SDK_EXPORT boost::any fromVariant(const std::string &type, const QVariant &variant);

/// The way back: the variant of a value of a setting; invalid for a value of any other type.
ORLO_SDK_EXPORT QVariant toVariant(const boost::any &value);

} // namespace olValue
