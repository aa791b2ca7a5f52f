#include "FileIO/olWrlPreferencesGUII.h"

#include "FileIO/olWrlPreferencesGUIW.h"
#include "Framework/olApply.h"
#include "ui_olWrlPreferencesGUI.h"

#include <QCoreApplication>

#include <OpenSG/OSGSceneFileHandler.h>

#include <string>

namespace
{

const olSetting<bool> inlineTextures{"WrlFileIO inline textures", false};
const olSetting<int> readerOptimization{"WrlFileIO reader optimization", 0, atNextImport()};

std::string writerOptions() { return readOr(inlineTextures, false) ? "inlineTextures=true" : "inlineTextures=false"; }

/// With the separator in front. The loader's own choice is asked for by naming no optimisation at all.
std::string readerOptions()
{
    switch (readOr(readerOptimization, 0)) {
    case 1:
        return ",optimizationCatia=true";
    case 2:
        return ",optimizationProEngineer=true";
    default:
        return {};
    }
}

} // namespace

olWrlPreferencesGUII::olWrlPreferencesGUII()
    : olModule(QLatin1String("WRL"), QCoreApplication::translate("olPreferences", "FileIO"))
{
    const auto &form = page().form();
    settings().add(inlineTextures, form.inlineTextures);
    settings().add(readerOptimization, form.readerOptimization);

    handOverPage();
}

void olWrlPreferencesGUII::applyPreferences()
{
    // Deliberately on every apply, and with a fallback for what cannot be read: both suffixes always get a whole and
    // equal set of options.
    const std::string writer = writerOptions();
    const std::string options = writer + readerOptions();
    osg::SceneFileHandler::the().setOptions("wrl", options.c_str());
    osg::SceneFileHandler::the().setOptions("vrml", options.c_str());
}

// Stored plainly: no key of this module is ever reported unchanged.
void olWrlPreferencesGUII::updateData() { settings().storeFromPage(); }
