#include "FileIO/olCatiaV5FilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olCatiaV5FilePreferencesGUII::olCatiaV5FilePreferencesGUII() : olCadImportPreferences(olFileType::CatiaV5, "Catia V5")
{
}
