#include "FileIO/olOsbPreferencesGUII.h"

#include "FileIO/olOsbPreferencesGUIW.h"

#include <QCoreApplication>

olOsbPreferencesGUII::olOsbPreferencesGUII()
    : olModule(QLatin1String("OSB / OPB"), QCoreApplication::translate("olPreferences", "FileIO")),
      m_page(std::make_unique<olOsbPreferencesGUIW>())
{
    addPreferencesGUI(m_page.get());
}

olOsbPreferencesGUII::~olOsbPreferencesGUII() { subPreferencesGUI(m_page.get()); }
