#include "FileIO/olPLMXMLPreferencesGUII.h"

#include "FileIO/olFileType.h"

olPLMXMLPreferencesGUII::olPLMXMLPreferencesGUII() : olFileTypePreferences(olFileType::PlmXml, "PLM XML")
{
    settings().own(loadReferencedFiles);
}
