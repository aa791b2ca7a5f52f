#include "Dialog/olDialogMemory.h"

#include <QSettings>

namespace
{

constexpr auto sizeKey = "preferencesDialog/size";
constexpr auto splitterKey = "preferencesDialog/splitter";
constexpr auto pageKey = "preferencesDialog/page";

} // namespace

olDialogMemory olDialogMemory::recall()
{
    const QSettings settings;
    return {settings.value(QLatin1String(sizeKey)).toSize(), settings.value(QLatin1String(splitterKey)).toByteArray(),
            settings.value(QLatin1String(pageKey)).toString()};
}

void olDialogMemory::keep() const
{
    QSettings settings;
    settings.setValue(QLatin1String(sizeKey), size);
    settings.setValue(QLatin1String(splitterKey), splitter);
    settings.setValue(QLatin1String(pageKey), page);
}
