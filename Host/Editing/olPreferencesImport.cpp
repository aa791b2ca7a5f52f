#include "Editing/olPreferencesImport.h"

#include "Editing/olControlBounds.h"
#include "State/olValue.h"

#include <QCoreApplication>

namespace
{

QString translated(const char *text) { return QCoreApplication::translate("olPreferencesImport", text); }

bool isList(const boost::any &value)
{
    const std::string type = olValue::typeName(value);
    return type == "strings" || type == "floats" || type == "colors";
}

/// Why the setting cannot take the value; empty where it can.
QString whyNot(const olPreferencesSession &session, const std::string &key, const boost::any &before,
               const boost::any &after, QWidget *control)
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
    const QString expected = olControlBounds(control, key, standard, after);
    return expected.isEmpty()
               ? QString()
               : translated("cannot be %1: expected %2").arg(QString::fromStdString(olValue::toJson(after)), expected);
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
