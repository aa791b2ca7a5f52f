#include "State/olSceneLoaders.h"

#include "State/olJournal.h"
#include "Utilities/olLog.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGSceneFileHandler.h>
#include <QCoreApplication>

void olStartOpenSG()
{
    static const bool isStarted = [] {
        char program[] = "orlo";
        char *arguments[] = {program, nullptr};
        return osg::osgInit(1, arguments);
    }();
    if (!isStarted)
        olLog::error(QCoreApplication::translate("olSceneLoaders", "OpenSG could not be started."));
}

void olResetSceneLoaders()
{
    for (const char *suffix : {"wrl", "vrml", "mrb", "kbx", "osb", "opb"}) {
        if (osg::SceneFileType *type = osg::SceneFileHandler::the().getFileType(suffix))
            type->setOptions("");
    }
}

// This stands in the place of the library's own function, as this library is searched before that one: it does the
// same, and tells of it, for the modules call it without passing by the host.
ORLO_SDK_EXPORT bool osg::SceneFileHandler::setOptions(const char *suffix, const char *options)
{
    olJournal::call("osg::SceneFileHandler::setOptions", suffix, options);
    SceneFileType *type = getFileType(suffix);
    if (type)
        type->setOptions(options);
    else
        olLog::info(
            QCoreApplication::translate("olSceneLoaders", "OpenSG has no loader for %1; options for it are not kept.")
                .arg(QLatin1String(suffix)));
    return type != nullptr;
}
