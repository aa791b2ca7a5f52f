#include "Plugins/SettingWalk.h"

#include "State/olValue.h"

#include <QByteArray>

#include <string>

boost::any SettingWalk::another(const boost::any &value)
{
    const std::string type = olValue::typeName(value);
    if (type == "bool")
        return !boost::any_cast<bool>(value);
    if (type == "int")
        return boost::any_cast<int>(value) + 1;
    if (type == "uint")
        return boost::any_cast<unsigned>(value) + 1;
    if (type == "float")
        return boost::any_cast<float>(value) + 0.5f;
    if (type == "double")
        return boost::any_cast<double>(value) + 0.5;
    const bool isText = type == "string" || type == "qstring";
    return olValue::fromJson(type, QByteArray(isText             ? "\"other\""
                                              : type == "color"  ? "[0.25, 0.5, 0.75]"
                                              : type == "colors" ? "[[0.25, 0.5, 0.75]]"
                                              : type == "floats" ? "[0.5]"
                                                                 : "[\"other\"]"));
}

void SettingWalk::setAll(olPreferencesEntry &module, bool on)
{
    module.setDefaults(true);
    for (const olOfferedDefault &offered : module.defaults()) {
        if (olValue::typeName(offered.value) == "bool")
            module.setValue(offered.key, on);
    }
}
