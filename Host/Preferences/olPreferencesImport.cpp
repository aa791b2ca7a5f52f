#include "Preferences/olPreferencesImport.h"

#include "Embedded/olValue.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLWheelPrec.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QSpinBox>

#include <optional>

namespace
{

QString translated(const char *text) { return QCoreApplication::translate("olPreferencesImport", text); }

/// What a control can be set to.
struct Range {
    double lowest;
    double highest;
};

std::optional<Range> rangeOf(const QWidget *control)
{
    if (const auto *box = qobject_cast<const QSpinBox *>(control))
        return Range{double(box->minimum()), double(box->maximum())};
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(control))
        return Range{box->minimum(), box->maximum()};
    if (const auto *slider = qobject_cast<const QOLSlider *>(control))
        return Range{slider->minimum(), slider->maximum()};
    if (const auto *wheel = qobject_cast<const QOLWheelPrec *>(control))
        return Range{wheel->minimum(), wheel->maximum()};
    return std::nullopt;
}

bool isList(const boost::any &value)
{
    const std::string type = olValue::typeName(value);
    return type == "strings" || type == "floats" || type == "colors";
}

QString bound(double value) { return QString::fromStdString(olValue::number(value)); }

/// Why the control cannot hold the value; empty where it can, and where nobody can tell.
QString whyNotOn(const QWidget *control, const boost::any &value)
{
    const std::optional<Range> range = rangeOf(control);
    const std::optional<double> wanted = olValue::asNumber(value);
    if (!range || !wanted || (*wanted >= range->lowest && *wanted <= range->highest))
        return {};
    return translated("is out of range: %1 to %2").arg(bound(range->lowest), bound(range->highest));
}

/// Why the setting cannot take the value; empty where it can.
QString whyNot(const olPreferencesSession &session, const std::string &key, const boost::any &before,
               const boost::any &after, const QWidget *control)
{
    if (const auto reason = session.lockReason(key))
        return translated("is locked: %1").arg(*reason);
    const boost::any standard = session.defaultValue(key);
    const std::string type = olValue::typeName(standard.empty() ? before : standard);
    // A list that is absent by default and now too tells its type to nobody but its control.
    if (type.empty())
        return control && isList(after) ? QString() : translated("is not known");
    if (type != olValue::typeName(after)) {
        return translated("is of the type %1, not %2")
            .arg(QString::fromStdString(olValue::typeName(after)), QString::fromStdString(type));
    }
    return whyNotOn(control, after);
}

} // namespace

olPreferencesImport::olPreferencesImport(const olPreferencesSession &session,
                                         const olPreferencesFile::Contents &contents, const ValueOf &valueOf,
                                         const ControlOf &controlOf)
    : skipped(contents.skipped)
{
    for (const auto &[key, value] : contents.settings) {
        const boost::any before = valueOf(key);
        if (olValue::equal(before, value))
            continue;
        const QString reason = whyNot(session, key, before, value, controlOf(key));
        if (reason.isEmpty())
            changes.push_back({key, before, value});
        else
            skipped.push_back({key, reason});
    }
}

olSettingValues olPreferencesImport::values() const
{
    olSettingValues values;
    for (const Change &change : changes)
        values[change.key] = change.after;
    return values;
}
