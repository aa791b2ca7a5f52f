#include "FileIO/olMirraPreferencesGUII.h"

#include "FileIO/olMirraPreferencesGUIW.h"
#include "Framework/olApply.h"
#include "Kernel/olController.h"
#include "ui_olMirraPreferencesGUI.h"

#include <QCoreApplication>

#include <OpenSG/OSGSceneFileHandler.h>

#include <string>

namespace
{

bool isNotEssentials() { return !olController::isOrloEssentials(); }

const olSetting<bool> multitextureEnvCombiner{"MirraFileIO multitexture env combiner", false, atNextImport()};
const olSetting<bool> forceGrayscaleShadows{"MirraFileIO force grayscale shadow texture", isNotEssentials,
                                            atNextImport()};
const olSetting<QString> location{"MirraFileIO mirra location", QString(), atNextImport()};
const olSetting<bool> autoloadShadowGeometry{"MirraFileIO autoload shadow geometry", true, atNextImport()};
const olSetting<bool> shadowGeometry{"MirraFileIO shadow geometry", false, atNextImport()};
const olSetting<bool> shadowMerge{"MirraFileIO shadow merge", true, atNextImport()};
const olSetting<bool> localMaterialLibrary{"MirraFileIO local material library", isNotEssentials, atNextImport()};
const olSetting<std::string> units{"MirraFileIO units", "millimeter", atNextImport()};
const olSetting<std::string> importUnits{"MirraFileIO import units", "millimeter", atNextImport()};

std::string trueOrFalse(bool value) { return value ? "true" : "false"; }

/// With the separator behind it; nothing for an empty location. A quote in the path goes out as it is, because the
/// loader's options know no escapes.
std::string locationOption(const QString &path)
{
    return path.isEmpty() ? std::string() : "mirraLocation=\"" + path.toLocal8Bit().toStdString() + "\",";
}

} // namespace

olMirraPreferencesGUII::olMirraPreferencesGUII()
    : olModule(QLatin1String("Mirra"), QCoreApplication::translate("olPreferences", "FileIO"))
{
    // The four without a control are kept for stored preferences; the loader's options never follow them.
    const auto &form = page().form();
    settings().addWithoutControl(multitextureEnvCombiner);
    settings().add(forceGrayscaleShadows, form.forceGrayscaleShadows);
    settings().add(location, form.location);
    settings().addWithoutControl(autoloadShadowGeometry);
    settings().addWithoutControl(shadowGeometry);
    settings().addWithoutControl(shadowMerge);
    settings().add(localMaterialLibrary, form.localMaterialLibrary);
    settings().add(units, byText(form.units));
    settings().add(importUnits, byText(form.importUnits));

    handOverPage();
}

void olMirraPreferencesGUII::applyPreferences()
{
    // Deliberately on every apply: the loader always gets a whole set of options. What cannot be read has a fallback;
    // that of the import units is not their default but leaves the units of a file alone.
    const bool grayscale = readOr(forceGrayscaleShadows, false);
    const QString path = readOr(location, QString());
    const bool library = readOr(localMaterialLibrary, false);
    const std::string sceneUnits = readOr(units, std::string("millimeter"));
    const std::string fileUnits = readOr(importUnits, std::string("ignore"));

    // The entries without a value of ours are fixed, whatever the settings of the same names hold: the loader works
    // with no others.
    std::string options = "multitextureEnvCombiner=false,";
    options += "forceGrayscaleShadowTexture=" + trueOrFalse(grayscale) + ',';
    options += locationOption(path);
    options += "autoLoadShadowGeometry=true,shadowGeometry=false,shadowMerge=true,";
    options += "useLocalMaterialLibrary=" + trueOrFalse(library) + ',';
    options += "units=" + sceneUnits + ',';
    options += "importunits=" + fileUnits;
    osg::SceneFileHandler::the().setOptions("mrb", options.c_str());
}
