#include "State/olSceneLoaders.h"

#if defined(ORLO_OPENSG_STANDIN)
#include "State/olJournal.h"

#include <OpenSG/OSGStandIn.h>
#else
#include <OpenSG/OSGSceneFileHandler.h>
#endif

namespace
{
constexpr const char *suffixes[] = {"wrl", "vrml", "mrb", "kbx", "osb", "opb"};
}

void olRegisterSceneLoaders()
{
#if defined(ORLO_OPENSG_STANDIN)
    for (const char *suffix : suffixes)
        osg::registerSceneLoader(suffix);
    osg::observeSceneOptions([](const char *suffix, const char *options) {
        olJournal::call("osg::SceneFileHandler::setOptions", suffix, options);
    });
#endif
}

void olResetSceneLoaders()
{
#if defined(ORLO_OPENSG_STANDIN)
    osg::resetSceneOptions();
#else
    for (const char *suffix : suffixes)
        osg::SceneFileHandler::the().setOptions(suffix, "");
#endif
}
