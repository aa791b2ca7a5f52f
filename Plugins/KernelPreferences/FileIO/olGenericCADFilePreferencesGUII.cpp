#include "FileIO/olGenericCADFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olGenericCADFilePreferencesGUII::olGenericCADFilePreferencesGUII()
    : olCadImportPreferences(olFileType::GenericCAD, "Base CAD")
{
    settings().own(useAtf);
}
