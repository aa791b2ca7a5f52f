#include "FileIO/olFileTypePreferences.h"

#include "FileIO/olFileTypePreferencesGUIW.h"

#include <QCoreApplication>
#include <QString>

olFileTypePreferences::olFileTypePreferences(const char *displayName)
    : olModule(QString::fromLatin1(displayName), QCoreApplication::translate("olPreferences", "FileIO"))
{
}
