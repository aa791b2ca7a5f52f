#pragma once

#include <QString>
#include <boost/any.hpp>

class QWidget;

/// How a value reads for a person, in the words of the control that shows it: the item of a combo box, "on" or "off" of
/// a box. `current` is the value that the control stands at, and tells how it counts. Without a control, or where the
/// control does not tell, the plain value.
[[nodiscard]] QString olValueText(const boost::any &value, const QWidget *control = nullptr,
                                  const boost::any &current = {});
