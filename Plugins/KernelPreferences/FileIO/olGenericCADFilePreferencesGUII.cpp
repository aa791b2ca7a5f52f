#include "FileIO/olGenericCADFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olGenericCADFilePreferencesGUII::olGenericCADFilePreferencesGUII()
    : olFileTypePreferences(olFileType::GenericCAD, "Base CAD")
{
    settings().own(useAtf);
}
