#pragma once

#include "olHostExport.h"

#include <boost/any.hpp>

#include <string>

class QWidget;

/// What a page tells of a setting that one of its controls edits. The values in force have no part in it.
namespace olPageAccess
{

/// What the control holds, as a value of that type; empty where the page does not tell.
[[nodiscard]] ORLO_HOST_EXPORT boost::any value(const QWidget &page, const std::string &key, const std::string &type);

/// The type that the control takes; empty where the page does not tell. The control shows what it showed before.
[[nodiscard]] ORLO_HOST_EXPORT std::string typeOf(const QWidget &page, const std::string &key);

} // namespace olPageAccess
