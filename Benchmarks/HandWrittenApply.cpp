#include "HandWrittenApply.h"

#include "Display/olStarVRHandler.h"
#include "Kernel/OSGSelection.h"
#include "Kernel/olController.h"
#include "Kernel/olFileIO.h"
#include "Kernel/olGeometryOptimizer.h"
#include "Kernel/olImportOptions.h"
#include "Kernel/olOSGWidget.h"
#include "Kernel/olPreferences.h"
#include "Kernel/olScenegraph.h"
#include "Kernel/olSpacemouse.h"
#include "Kernel/olTexSearch.h"
#include "KernelServices/olPreferencesCategory.h"
#include "State/olPreferencesEntry.h"
#include "Support/BenchHost.h"
#include "Utilities/olMessage.h"

#include <QSettings>
#include <QWidget>

#include <OpenSG/OSGSceneFileHandler.h>

#include <map>

namespace
{

template <class T> const T *held(const std::string &key)
{
    const auto &entries = olPreferences::getData().entries();
    const auto found = entries.find(key);
    return found == entries.end() ? nullptr : boost::any_cast<T>(&found->second);
}

/// One setting and the host call that it goes to.
template <class T> struct Passed {
    std::string key;
    void (*call)(T);
};

template <class T, std::size_t count> void pass(const Passed<T> (&settings)[count])
{
    for (const Passed<T> &setting : settings) {
        if (const auto *value = held<std::decay_t<T>>(setting.key))
            setting.call(*value);
    }
}

using SetFlag = void (olImportOptions::*)(bool);
using SetNumber = void (olImportOptions::*)(double);

const std::pair<const char *, SetFlag> flagCalls[] = {
    {"import meshes", &olImportOptions::setImportMeshes},
    {"import invisible meshes", &olImportOptions::setImportInvisibleMeshes},
    {"import associative meshes", &olImportOptions::setImportAssociativeMeshes},
    {"import invisible instances", &olImportOptions::setImportInvisibleInstances},
    {"import template geometries", &olImportOptions::setImportTemplateGeometries},
    {"import lights", &olImportOptions::setImportLights},
    {"import cameras", &olImportOptions::setImportCameras},
    {"import variants", &olImportOptions::setImportVariants},
    {"import referenced files", &olImportOptions::setImportReferencedFiles},
    {"import coord systems", &olImportOptions::setImportCoordSystems},
    {"stitching", &olImportOptions::setStitching},
    {"tessellation", &olImportOptions::setTessellation},
    {"keep surface data", &olImportOptions::setKeepSurfaceData},
    {"create groups for layers", &olImportOptions::setCreateGroupsForLayers},
    {"merge geometries", &olImportOptions::setMergeGeometries},
    {"remove empty groups", &olImportOptions::setRemoveEmptyGroups},
    {"unshare nodes", &olImportOptions::setUnshareNodes},
    {"flush transformations", &olImportOptions::setFlushTransformations},
    {"import surfaces", &olImportOptions::setImportSurfaces},
    {"import invisible surfaces", &olImportOptions::setImportInvisibleSurfaces},
    {"unify surface normals", &olImportOptions::setUnifySurfaceNormals},
    {"import curves", &olImportOptions::setImportCurves},
    {"import invisible curves", &olImportOptions::setImportInvisibleCurves},
};
const std::pair<const char *, SetNumber> numberCalls[] = {
    {"stitching tolerance", &olImportOptions::setStitchingTolerance},
    {"chord deviation", &olImportOptions::setChordDeviation},
    {"normal tolerance", &olImportOptions::setNormalTolerance},
    {"max chord length", &olImportOptions::setMaxChordLength},
};

void useSpacemouse(bool use)
{
    if (use)
        olSpacemouse::init();
    else
        olSpacemouse::terminate();
}

void applyView()
{
    static const Passed<bool> flags[] = {
        {"Devices search spacemouse", &useSpacemouse},
        {"Devices spacemouse two axis", &olOSGWidget::setSpacemouseTwoAxis},
        {"Devices spacemouse helicopter", &olOSGWidget::setSpacemouseHelicopter},
        {"Devices spacemouse fixed height", &olOSGWidget::setSpacemouseUseFixedHeight},
        {"Devices joystick", [](bool use) { olController::setJoystickNavigation(0, use); }},
        {"MainWindow show fps", &olController::showFPS},
        {"MainWindow disable docking", [](bool disable) { olController::setMainWindowDocking(!disable); }},
        {"MainWindow show button text", &olController::showButtonText},
        {"LOD selection", &olScenegraph::setLODSelection},
        {"Selection auto scroll", &olScenegraph::setAutoScroll},
        {"Transparent Object Selection", &osg::Selection::setForceTransparentObjectSelection},
        {"Selection preselection enabled", &olScenegraph::setPreselectionEnabled},
        {"Navigator auto center", &olOSGWidget::setNavAutoCenter},
        {"Navigator invert zoom", &olOSGWidget::setNavInvertDollyAxis},
        {"Navigator invert wheel zoom", &olOSGWidget::setNavInvertWheelDolly},
        {"Navigator pivot based panning", &olOSGWidget::setNavUsePivotBasedPanning},
        {"Navigator dolly to pivot", &olOSGWidget::setNavDollyToPivot},
        {"Navigator animate camera", &olOSGWidget::setAnimateNavCam},
        {"Navigator orbit mode", &olOSGWidget::setNavOrbitMode},
    };
    static const Passed<int> numbers[] = {
        {"Devices spacemouse view", &olOSGWidget::setSpacemouseViewMode},
        {"Devices spacemouse rotation pivot", &olOSGWidget::setSpacemousePivotMode},
        {"Devices joystick id", [](int) {}},
        {"Interaction mode", [](int mode) { olOSGWidget::setInteractionMode(olOSGWidget::InteractionMode(mode)); }},
        {"Navigator speed mode", &olOSGWidget::setNavSpeedMode},
        {"Navigator dolly axis", &olOSGWidget::setNavDollyAxis},
        {"Navigator orbit detection area", &olOSGWidget::setNavOrbitDetectionArea},
        {"Navigator orbit detection time", &olOSGWidget::setNavOrbitDetectionTime},
    };
    static const Passed<float> factors[] = {
        {"Devices spacemouse height", &olOSGWidget::setSpacemouseFixedHeight},
        {"Marker size", &olScenegraph::setMarkerSize},
        {"Navigator panning speed", &olOSGWidget::setNavPanningSpeed},
        {"Navigator dolly speed", &olOSGWidget::setNavDollySpeed},
        {"Navigator animate camera duration", &olOSGWidget::setAnimateNavCamDuration},
    };
    static const Passed<double> opacity[] = {{"MainWindow window opacity", &olController::setWindowOpacity}};
    static const Passed<const osg::Color3f &> color[] = {
        {"Selection preselection color", &olScenegraph::setPreselectionColor}};
    pass(flags);
    pass(numbers);
    pass(factors);
    pass(opacity);
    pass(color);
}

void applyRendering()
{
    const bool wasEnabled = olOSGWidget::isRenderEnabled();
    olOSGWidget::enableRender(0);
    (void)olOSGWidget::getHighQualityAntialiasing();
    olOSGWidget::showLogo(false);
    olOSGWidget::enableRender(wasEnabled);
    olOSGWidget::updateAllMGLW();
    (void)olStarVRHandler::getHandler();
    (void)olOSGWidget::getDisplayType();
}

void applyFiles()
{
    static const Passed<bool> flags[] = {
        {"Loader verify geometry only", &olFileIO::enableVerifyGeometry},
        {"Loader optimize geometry", &olFileIO::enableOptimizeGeometry},
        {"FileIO show dialog", &olController::setShowImportOptions},
        {"FileIO close dialog on successful import",
         [](bool close) { QSettings().setValue(QLatin1String("importDialog/closeOnSuccess"), close); }},
        {"FileIO dialog center in origin", &olController::setImportOptionsCenterInOrigin},
        {"FileIO dialog put on ground", &olController::setImportOptionsPutOnGround},
        {"JTOptions USEPLUGIN", &olFileIO::setUseLegacyJtLoader},
        {"RhinoOptions USEPLUGIN", &olFileIO::setUseLegacyRhinoLoader},
        {"Optimizer Check Orientation", &olGeometryOptimizer::setCheckOrientation},
    };
    static const Passed<int> numbers[] = {
        {"BCADOptions max parallel tasks", &olFileIO::setMaxParallelImportTasks},
        {"STLOptions export", &olFileIO::setStlExportFormat},
        {"Optimizer Topology Method", &olGeometryOptimizer::setTopologyMethod},
    };
    static const Passed<float> tolerances[] = {
        {"Optimizer Topology Tolerance", &olGeometryOptimizer::setTopologyTolerance},
        {"Optimizer Offset Factor", &olGeometryOptimizer::setOffsetFactor},
    };
    static const Passed<const std::vector<float> &> qualities[] = {
        {"Optimizer Teselation Quality", &olGeometryOptimizer::setTessellationQuality}};
    olTexSearch::set();
    pass(flags);
    pass(numbers);
    pass(tolerances);
    pass(qualities);
    olFileIO::enableOptimizeTransparencies(false);
    olFileIO::setShowFileIOProgress(true);
    qputenv("ORLO_FILEIO_TMP_DIR", QByteArray());
    for (const char *suffix : {"mrb", "wrl", "vrml", "kbx"})
        osg::SceneFileHandler::the().setOptions(suffix, "inlineTextures=false");
}

} // namespace

HandWrittenApply::HandWrittenApply()
{
    const std::map<std::string, std::vector<std::string>> some{
        {"Selection",
         {"RenderOptions wireframe selection", "RenderOptions selection color", "RenderOptions selection in front"}},
        {"Navigator", {"Navigator mode"}},
        {"Camera", {}},
        {"Help", {}},
        {"WebInterface", {}},
        {"Render Options", {}},
    };
    for (olPreferencesEntry *module : BenchHost::modules()) {
        std::vector<std::string> keys;
        const auto controls = module->page()->findChildren<QWidget *>();
        for (const QWidget *control : controls) {
            const QStringList edited = control->property("olSettingKeys").toStringList();
            for (const QString &key : edited)
                keys.push_back(key.toStdString());
        }
        const auto guarded = some.find(module->name().toStdString());
        if (guarded != some.end()) {
            m_guarded.push_back({dynamic_cast<const olPreferences *>(module->object()),
                                 guarded->second.empty() ? keys : guarded->second});
        } else if (module->home() == olHome::Service) {
            m_virtualReality = dynamic_cast<const olPreferencesCategory *>(module->object());
            m_virtualRealityKeys = keys;
        } else if (module->defaults().size() > 28) {
            const std::string &key = module->defaults().front().key;
            const std::string type = key.substr(0, key.find("Options"));
            Format format{type, {}, {}, type + "Options import mesh LODs"};
            for (const auto &call : flagCalls)
                format.flags.push_back(type + "Options " + call.first);
            for (const auto &call : numberCalls)
                format.numbers.push_back(type + "Options " + call.first);
            m_formats.push_back(std::move(format));
        }
    }
    require(m_guarded.size() == some.size() && m_virtualReality && m_formats.size() == 17,
            "the modules are not those that were known");
}

void HandWrittenApply::apply() const
{
    askWhatChanged();
    applyFormats();
    applyView();
    applyRendering();
    applyFiles();
}

void HandWrittenApply::askWhatChanged() const
{
    bool changed = false;
    for (const Guarded &guarded : m_guarded) {
        for (const std::string &key : guarded.keys)
            changed |= guarded.module->isChanged(key.c_str());
    }
    for (const std::string &key : m_virtualRealityKeys)
        changed |= m_virtualReality->isChanged(key.c_str());
    require(!changed, "something counts as changed");
}

void HandWrittenApply::applyFormats() const
{
    for (const Format &format : m_formats) {
        olImportOptions options(format.type, true, true);
        for (std::size_t index = 0; index < format.flags.size(); ++index) {
            if (const bool *value = held<bool>(format.flags[index]))
                (options.*flagCalls[index].second)(*value);
        }
        for (std::size_t index = 0; index < format.numbers.size(); ++index) {
            if (const double *value = held<double>(format.numbers[index]))
                (options.*numberCalls[index].second)(*value);
        }
        if (const int *value = held<int>(format.levels))
            options.setImportMeshLODs(*value);
        options.write();
    }
}
