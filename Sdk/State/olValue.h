#pragma once

#include "Utilities/olExport.h"

#include <QByteArray>
#include <boost/any.hpp>

#include <optional>
#include <string>
#include <vector>

class QString;
class QVariant;

/// The eleven types that settings may have, with their names, texts and comparison. The texts are exact: what is
/// written reads back as the same value.
namespace olValue
{

/// `bool int uint float double qstring string strings floats color colors`; empty for a value of any other type.
ORLO_SDK_EXPORT std::string typeName(const boost::any &value);

/// All of them, in the order above.
ORLO_SDK_EXPORT std::vector<std::string> typeNames();

/// Whether a type of that name exists.
ORLO_SDK_EXPORT bool isTypeName(const std::string &type);

/// What a text for that type looks like, for messages ("a number", "true or false").
ORLO_SDK_EXPORT std::string expectation(const std::string &type);

/// JSON on one line, a blank after each comma. Numbers that JSON does not know stand as texts: "nan", "inf", "-inf".
/// Bytes of a text that are no UTF-8 are escaped as quoted() does, and read back as the same bytes.
ORLO_SDK_EXPORT std::string toJson(const boost::any &value);

/// A value of exactly that type from JSON text, with every digit as it stands. Empty where the text is no JSON or does
/// not fit the type: nothing is converted or cut.
ORLO_SDK_EXPORT boost::any fromJson(const std::string &type, const QByteArray &text);

/// The value of a setting from the variant in which a page hands it over: byte texts are byte arrays, a colour is a
/// list of three floats, and lists are lists of these. Empty where the variant is not of that type; nothing is
/// converted. Without a type's name the variant tells the type itself; an empty list tells none and gives an empty
/// value.
ORLO_SDK_EXPORT boost::any fromVariant(const std::string &type, const QVariant &variant);

/// The way back: the variant of a value of a setting; invalid for a value of any other type.
ORLO_SDK_EXPORT QVariant toVariant(const boost::any &value);

/// From what somebody typed: JSON, or for a text setting the text as it is, so that nobody has to quote within quotes.
ORLO_SDK_EXPORT boost::any fromTyped(const std::string &type, const QString &typed);

/// Same type and same value, floats by `==`, colours channel by channel. An empty value equals only an empty one.
ORLO_SDK_EXPORT bool equal(const boost::any &left, const boost::any &right);

/// Whether both are exactly the same, to the sign of a zero; a NaN is the same as a NaN. What has to be kept is told by
/// this one.
ORLO_SDK_EXPORT bool identical(const boost::any &left, const boost::any &right);

/// The same value held by this library's own code, so that it stays usable when the plug-in that made it is gone;
/// empty for a type that settings do not have.
ORLO_SDK_EXPORT boost::any adopted(const boost::any &value);

/// The shortest plain decimals that read back the same; an exponent only below 1e-4 and from 1e16.
ORLO_SDK_EXPORT std::string number(float value);
ORLO_SDK_EXPORT std::string number(double value);

/// A number of whichever type as it is written: 0.6 in single precision is 0.6, although its bits are more than that in
/// double precision. Nothing for a value that is no number.
ORLO_SDK_EXPORT std::optional<double> asNumber(const boost::any &value);

/// In double quotes with JSON's escapes; a byte that is no UTF-8 stands as one of \udc80 to \udcff.
ORLO_SDK_EXPORT std::string quoted(const std::string &text);

} // namespace olValue
