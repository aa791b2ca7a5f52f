#include "Kernel/olLights.h"

#include "State/olHostState.h"
#include "State/olJournal.h"

void olLights::changeLightType(osg::NodePtr light, const char *type)
{
    olJournal::call("olLights::changeLightType", light, type);
    if (light != osg::NullFC)
        olHostState::the().headlightType = type;
}
