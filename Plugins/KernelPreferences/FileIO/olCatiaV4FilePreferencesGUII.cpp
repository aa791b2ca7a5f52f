#include "FileIO/olCatiaV4FilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olCatiaV4FilePreferencesGUII::olCatiaV4FilePreferencesGUII() : olCadImportPreferences(olFileType::CatiaV4, "Catia V4")
{
}
