#include "olGivenSettings.h"

#include "Editing/olControlBounds.h"
#include "Editing/olPageIndex.h"
#include "Session/olPreferencesSession.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"

#include <algorithm>

namespace
{

QWidget *controlOf(const olPreferencesEntry &owner, const QString &key)
{
    if (!owner.page())
        return nullptr;
    const olPageIndex index(*owner.page());
    const auto &controls = index.controls();
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [&key](const olPageControl &control) { return control.settingKeys.contains(key); });
    return found == controls.end() ? nullptr : found->widget;
}

QString setOne(const olPreferencesSession &session, const QString &setting)
{
    const int equals = setting.indexOf(QLatin1Char('='));
    if (equals < 1)
        return QStringLiteral("\"%1\" is no setting: expected \"KEY=VALUE\"").arg(setting);
    const QString name = setting.left(equals).trimmed();
    const std::string key = name.toStdString();
    olPreferencesEntry *owner = olPreferencesRegistry::the().ownerOf(key);
    if (!owner)
        return QStringLiteral("there is no setting \"%1\"").arg(name);
    if (const std::optional<QString> reason = session.lockReason(key))
        return QStringLiteral("\"%1\" is locked: %2").arg(name, *reason);
    const boost::any standard = owner->findDefault(key)->value;
    const std::string type = olValue::typeName(standard);
    const QString typed = setting.mid(equals + 1).trimmed();
    const boost::any value = olValue::fromTyped(type, typed);
    const QString expected = value.empty() ? QString::fromStdString(olValue::expectation(type))
                                           : olControlBounds(controlOf(*owner, name), key, standard, value);
    if (!expected.isEmpty())
        return QStringLiteral("%1 is no value for \"%2\": expected %3").arg(typed, name, expected);
    owner->setValue(key, value);
    return {};
}

} // namespace

QString olSetGivenSettings(const olPreferencesSession &session, const QStringList &settings)
{
    for (const QString &setting : settings) {
        const QString fault = setOne(session, setting);
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}
