#include "FileIO/olPLMXMLPreferencesGUII.h"

#include "FileIO/olFileType.h"

olPLMXMLPreferencesGUII::olPLMXMLPreferencesGUII() : olCadImportPreferences(olFileType::PlmXml, "PLM XML")
{
    settings().own(loadReferencedFiles);
}
