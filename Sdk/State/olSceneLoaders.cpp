#include "State/olSceneLoaders.h"

#if defined(ORLO_OPENSG_STANDIN)
#include <OpenSG/OSGStandIn.h>
#endif

void olRegisterSceneLoaders()
{
#if defined(ORLO_OPENSG_STANDIN)
    // Loaders of the real library register themselves.
    for (const char *suffix : {"wrl", "vrml", "mrb", "kbx", "osb", "opb"})
        osg::registerSceneLoader(suffix);
#endif
}
