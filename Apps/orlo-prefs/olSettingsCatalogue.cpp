#include "olSettingsCatalogue.h"

#include "Editing/olPageIndex.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"

#include <map>

namespace
{

using Places = std::map<std::string, std::string>;

/// Where on the page the control of each setting stands.
Places placesOn(const QWidget *page)
{
    Places places;
    if (!page)
        return places;
    const olPageIndex index(*page);
    for (const olPageControl &control : index.controls()) {
        QStringList steps = control.captions;
        steps << control.names.value(0);
        for (const QString &key : control.settingKeys)
            places[key.toStdString()] = steps.join(QStringLiteral(" › ")).toStdString();
    }
    return places;
}

/// A bar would end the cell of the table.
std::string cell(const std::string &text)
{
    return QString::fromStdString(text).replace(QLatin1Char('|'), QLatin1String("\\|")).toStdString();
}

std::string section(const olPreferencesEntry &entry)
{
    const std::string category = entry.category().toStdString();
    std::string text = "\n## " + (category.empty() ? "" : category + " / ") + entry.name().toStdString() + "\n\n";
    if (entry.defaults().empty())
        return text + "No settings.\n";

    const Places places = placesOn(entry.page());
    text += "| key | type | default | on the page |\n|---|---|---|---|\n";
    for (const olOfferedDefault &setting : entry.defaults()) {
        const auto place = places.find(setting.key);
        text += "| `" + setting.key + "` | " + olValue::typeName(setting.value) + " | `" +
                cell(olValue::toJson(setting.value)) + "` | " +
                (place == places.end() ? std::string() : cell(place->second)) + " |\n";
    }
    return text;
}

} // namespace

std::string olSettingsCatalogue()
{
    std::string text = "# Settings\n"
                       "\n"
                       "All settings of all modules, in the order of registration and of writing, with the defaults of "
                       "the Professional\nedition. Made by `orlo-prefs list --markdown`.\n";
    for (const olPreferencesEntry *entry : olPreferencesRegistry::the().entries())
        text += section(*entry);
    return text;
}
