#include "olImportChoice.h"

#include "Exchange/olImportJob.h"

#include <QSettings>

namespace
{

constexpr auto addsKey = "importDialog/addsToScene";
constexpr auto unitKey = "importDialog/unit";
constexpr auto upKey = "importDialog/isYUp";

} // namespace

olImportChoice olImportChoice::remembered()
{
    const QSettings memory;
    olImportChoice choice;
    choice.addsToScene = memory.value(QLatin1String(addsKey), choice.addsToScene).toBool();
    choice.unit = memory.value(QLatin1String(unitKey), choice.unit).toDouble();
    choice.isYUp = memory.value(QLatin1String(upKey), choice.isYUp).toBool();
    return choice;
}

void olImportChoice::remember() const
{
    QSettings memory;
    memory.setValue(QLatin1String(addsKey), addsToScene);
    memory.setValue(QLatin1String(unitKey), unit);
    memory.setValue(QLatin1String(upKey), isYUp);
}

void olImportChoice::applyTo(olImportJob &job) const
{
    job.unit = unit;
    job.isYUp = isYUp;
}
