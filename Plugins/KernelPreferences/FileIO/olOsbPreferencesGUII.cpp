#include "FileIO/olOsbPreferencesGUII.h"

#include "FileIO/olOsbPreferencesGUIW.h"

#include <QCoreApplication>

olOsbPreferencesGUII::olOsbPreferencesGUII()
    : olModule(QLatin1String("OSB / OPB"), QCoreApplication::translate("olPreferences", "FileIO"))
{
    handOverPage();
}
