#include "Dialog/olDialogMemory.h"

#include <QSettings>

namespace
{

constexpr auto placeKey = "preferencesDialog/place";
constexpr auto splitterKey = "preferencesDialog/splitter";
constexpr auto pageKey = "preferencesDialog/page";
constexpr auto openKey = "preferencesDialog/openCategories";

} // namespace

olDialogMemory olDialogMemory::recall()
{
    const QSettings settings;
    return {settings.value(QLatin1String(placeKey)).toRect(), settings.value(QLatin1String(splitterKey)).toByteArray(),
            settings.value(QLatin1String(pageKey)).toString(), settings.value(QLatin1String(openKey)).toStringList()};
}

void olDialogMemory::keep() const
{
    QSettings settings;
    settings.setValue(QLatin1String(placeKey), place);
    settings.setValue(QLatin1String(splitterKey), splitter);
    settings.setValue(QLatin1String(pageKey), page);
    settings.setValue(QLatin1String(openKey), openCategories);
}
