#pragma once

#include "olHostExport.h"

#include <QString>
#include <QStringList>
#include <boost/any.hpp>

#include <limits>
#include <optional>
#include <string>
#include <vector>

class olPreferencesEntry;

/// A value that a setting can have, and what the page calls it.
struct olSettingChoice {
    boost::any value;
    QString text;
};

/// A question that must be agreed to before the value is set by anything but the page's own click.
struct olSettingWarning {
    boost::any value;
    QString title;
    QString text;
    QString informative;
    QString accept;
    QString reject;
};

/// What a setting is, as its module tells it. Of a module that tells nothing, the type and default that it offered.
struct ORLO_HOST_EXPORT olSettingDescription {
    std::string type;    ///< empty where the module has no such setting
    boost::any standard; ///< the module's own default; empty for a list that is absent by default
    double minimum = -std::numeric_limits<double>::infinity();
    double maximum = std::numeric_limits<double>::infinity();
    std::optional<int> decimals; ///< that the control keeps
    std::optional<int> maximumLength;
    QString unit;
    bool isShare = false; ///< of a whole that is 1
    std::vector<olSettingChoice> choices;
    bool isEditable = false;                ///< whether other values than the choices can be typed
    QString effect = QStringLiteral("now"); ///< or "next import" or "next start"
    bool canBePreviewed = false;            ///< it changes the view alone, and its former value undoes that
    std::optional<olSettingWarning> warning;
    QString label;
    QString toolTip;
    QStringList captions; ///< of the tabs, frames and groups around the control, outermost first

    [[nodiscard]] static olSettingDescription of(const olPreferencesEntry &entry, const std::string &key);

    /// Whether the setting takes only one of its choices.
    [[nodiscard]] bool isChoice() const { return !choices.empty() && !isEditable; }

    /// What can be set, for a message: "a number from 1 to 100", "one of 0, 1".
    [[nodiscard]] QString expectation() const;

    /// Why the value cannot be set ("cannot be 500: expected a number from 1 to 100"); empty where it can. The module's
    /// default always can.
    [[nodiscard]] QString whyNot(const boost::any &value) const;

    /// From what somebody typed: JSON, or for a text setting the text as it is. What is no value of the type comes back
    /// as what was typed, for whyNot() to refuse.
    [[nodiscard]] boost::any fromTyped(const QString &typed) const;
};
