#pragma once

#include "State/olEdition.h"
#include "State/olHostValue.h"
#include "State/olImportRecord.h"

#include <OpenSG/OSGColor.h>

#include <QString>

#include <map>
#include <string>
#include <vector>

/// The plain state that the host's calls change. The viewer draws from it, the panels show it, tests compare it.
/// Facts are what the host is asked for; they can also be set from outside.
class ORLO_SDK_EXPORT olHostState : public olHostValues
{
public:
    static olHostState &the();

    /// Back to what everything that calls can change was at first, the options of importers and scene loaders included.
    void reset();

    /// Chosen at start and not changed by any call.
    olEdition edition = olEdition::Professional;
    QString applicationName = QStringLiteral("orlo");

    static constexpr auto Fact = olHostValueBase::Kind::Fact;

    /// Settings that the host cannot follow as they are, by their keys, with a sentence for people that says why.
    olHostValue<std::map<std::string, QString>> refusals{*this, "refusals", {}};

    /// Enters a setting there, or takes it out where there is no reason any more.
    void refuse(const std::string &key, const QString &reason);

    // The process and its environment
    olHostValue<bool> analysisMode{*this, "analysisMode", false, Fact};
    olHostValue<bool> viewer{*this, "viewer", false, Fact};
    olHostValue<bool> renderServerNode{*this, "renderServerNode", false, Fact};
    olHostValue<int> displayLanguage{*this, "displayLanguage", 0, Fact};
    olHostValue<QString> dataDir{*this, "dataDir", QStringLiteral("/usr/share/orlo"), Fact};
    olHostValue<QString> appVersionName{*this, "appVersionName", QStringLiteral("ORLO 2026"), Fact};
    olHostValue<unsigned> sleepTime{*this, "sleepTime", 1};

    // Main window and help
    olHostValue<bool> fpsShown{*this, "fpsShown", false};
    olHostValue<double> windowOpacity{*this, "windowOpacity", 1.0};
    olHostValue<bool> mainWindowDocking{*this, "mainWindowDocking", true};
    olHostValue<bool> buttonTextShown{*this, "buttonTextShown", true};
    olRecordedValue<bool> simpleToolclips{*this, "simpleToolclips", false};

    // Web interface: its port and pipe as given from outside the preferences, whether the object exists, whether
    // the server shall run and whether it does
    olHostValue<int> webInterfacePort{*this, "webInterfacePort", 0, Fact};
    olHostValue<std::string> webInterfacePipe{*this, "webInterfacePipe", {}, Fact};
    olHostValue<bool> webInterface{*this, "webInterface", false, Fact};
    olHostValue<bool> webInterfaceWanted{*this, "webInterfaceWanted", false};
    olHostValue<bool> webInterfaceRunning{*this, "webInterfaceRunning", false};
    olHostValue<bool> webInterfaceDebugMode{*this, "webInterfaceDebugMode", false};

    // Camera
    olHostValue<float> fov{*this, "fov", 45.0f};
    olHostValue<float> eyeSeparation{*this, "eyeSeparation", 63.0f};
    olHostValue<float> zeroParallaxDistance{*this, "zeroParallaxDistance", 1500.0f};
    olRecordedValue<float> powerwallWidth{*this, "powerwallWidth", 1600.0f};
    olRecordedValue<float> powerwallHeight{*this, "powerwallHeight", 1200.0f};
    olRecordedValue<float> powerwallDistance{*this, "powerwallDistance", 1000.0f};
    olHostValue<bool> cameraZUp{*this, "cameraZUp", true};
    olHostValue<bool> limitNearFarPlane{*this, "limitNearFarPlane", false};
    olHostValue<float> nearPlane{*this, "nearPlane", 10.0f};
    olHostValue<float> farPlane{*this, "farPlane", 100000.0f};

    // Rendering
    olHostValue<bool> renderEnabled{*this, "renderEnabled", true, Fact};
    olHostValue<unsigned> viewUpdates{*this, "viewUpdates", 0};
    olHostValue<std::vector<osg::Color3f>> backgroundColors{
        *this, "backgroundColors", {{0.207843f, 0.207843f, 0.207843f}, {0.74902f, 0.74902f, 0.74902f}}};
    olHostValue<std::vector<float>> backgroundPositions{*this, "backgroundPositions", {1.0f, 0.0f}};
    olHostValue<bool> sortTransparency{*this, "sortTransparency", true};
    olHostValue<bool> zWriteTransparency{*this, "zWriteTransparency", false};
    olRecordedValue<bool> occlusionCulling{*this, "occlusionCulling", false};
    olHostValue<bool> raytracingDownscale{*this, "raytracingDownscale", false};
    olHostValue<unsigned> raytracingDownscaleFactor{*this, "raytracingDownscaleFactor", 2};
    olHostValue<int> fixedRenderWindowWidth{*this, "fixedRenderWindowWidth", -1};
    olHostValue<int> fixedRenderWindowHeight{*this, "fixedRenderWindowHeight", -1};
    olRecordedValue<bool> interactiveMaterialPreview{*this, "interactiveMaterialPreview", true};

    // Buffers and graphics cards
    olRecordedValue<bool> rgb10{*this, "rgb10", false};
    olHostValue<bool> rgb16F{*this, "rgb16F", false};
    olRecordedValue<bool> singlePassStereo{*this, "singlePassStereo", false};
    olHostValue<bool> forceGLFinish{*this, "forceGLFinish", false};
    olRecordedValue<bool> sli{*this, "sli", false};
    olRecordedValue<int> sliMode{*this, "sliMode", 1};

    // Antialiasing
    struct AntialiasingPreset {
        olHostValue<int> multisamples;
        olHostValue<bool> pixelfilter;
        olHostValue<bool> supersampling;
        olHostValue<int> raytracingSamples;
    };
    olHostValue<bool> antialiasing{*this, "antialiasing", false};
    olHostValue<unsigned> postprocessAntialiasing{*this, "postprocessAntialiasing", 0};
    olHostValue<float> antialiasingDistance{*this, "antialiasingDistance", 0.2f};
    olHostValue<float> antialiasingScale{*this, "antialiasingScale", 2.0f};
    olHostValue<double> antialiasingTime{*this, "antialiasingTime", 1.0};
    olHostValue<bool> highQualityAntialiasing{*this, "highQualityAntialiasing", false, Fact};
    olHostValue<bool> auxiliaryNodesDuringAntialiasing{*this, "auxiliaryNodesDuringAntialiasing", true};
    olHostValue<bool> autoSuperSampling{*this, "autoSuperSampling", false};
    olHostValue<bool> superSampling{*this, "superSampling", false};
    olHostValue<unsigned> superSamplingQuality{*this, "superSamplingQuality", 0};
    AntialiasingPreset antialiasingLow{{*this, "multisamplesLow", 2},
                                       {*this, "pixelfilterLow", true},
                                       {*this, "supersamplingLow", false},
                                       {*this, "raytracingSamplesLow", 2}};
    AntialiasingPreset antialiasingMedium{{*this, "multisamplesMedium", 4},
                                          {*this, "pixelfilterMedium", true},
                                          {*this, "supersamplingMedium", false},
                                          {*this, "raytracingSamplesMedium", 4}};
    AntialiasingPreset antialiasingHigh{{*this, "multisamplesHigh", 8},
                                        {*this, "pixelfilterHigh", true},
                                        {*this, "supersamplingHigh", false},
                                        {*this, "raytracingSamplesHigh", 8}};
    AntialiasingPreset antialiasingUltra{{*this, "multisamplesUltra", 4},
                                         {*this, "pixelfilterUltra", true},
                                         {*this, "supersamplingUltra", true},
                                         {*this, "raytracingSamplesUltra", 16}};

    // Headlight: whether there is one, and how it shines
    olHostValue<bool> headlight{*this, "headlight", true, Fact};
    olHostValue<bool> headlightEnabled{*this, "headlightEnabled", true};
    olHostValue<int> headlightMode{*this, "headlightMode", 3};
    olHostValue<std::string> headlightType{*this, "headlightType", "DirectionalLight"};

    // What is drawn beside the scene
    olHostValue<bool> coordinateSystem{*this, "coordinateSystem", false};
    olHostValue<bool> viewCube{*this, "viewCube", true};
    olRecordedValue<bool> logo{*this, "logo", true};
    olHostValue<bool> camerasVisible{*this, "camerasVisible", true, Fact};
    olHostValue<bool> lightsVisible{*this, "lightsVisible", true, Fact};
    olHostValue<bool> jointsVisible{*this, "jointsVisible", false, Fact};

    // Progress cursor
    olHostValue<int> progressBaseSize{*this, "progressBaseSize", 0, Fact};
    olHostValue<int> progressPosition{*this, "progressPosition", 0, Fact};
    olHostValue<bool> progressVisible{*this, "progressVisible", true, Fact};

    // Selection
    olHostValue<float> markerSize{*this, "markerSize", 1.0f};
    olHostValue<bool> lodSelection{*this, "lodSelection", true};
    olHostValue<bool> selectionAutoScroll{*this, "selectionAutoScroll", true};
    olHostValue<bool> transparentObjectSelection{*this, "transparentObjectSelection", false};
    olHostValue<bool> preselectionEnabled{*this, "preselectionEnabled", true};
    olHostValue<osg::Color3f> preselectionColor{*this, "preselectionColor", {0.1f, 0.3f, 0.9f}};
    olHostValue<osg::Color3f> selectionColor{*this, "selectionColor", {0.956f, 0.521f, 0.086f}};
    olHostValue<bool> wireframeSelection{*this, "wireframeSelection", false};
    olHostValue<bool> wireframeOverride{*this, "wireframeOverride", false};
    olHostValue<bool> wireframeAlwaysInFront{*this, "wireframeAlwaysInFront", false};

    // Navigation
    olHostValue<int> navMode{*this, "navMode", 3};
    olHostValue<int> interactionMode{*this, "interactionMode", 0};
    olHostValue<bool> navAutoCenter{*this, "navAutoCenter", false};
    olHostValue<bool> navInvertDollyAxis{*this, "navInvertDollyAxis", false};
    olHostValue<bool> navInvertWheelDolly{*this, "navInvertWheelDolly", false};
    olHostValue<bool> navUsePivotBasedPanning{*this, "navUsePivotBasedPanning", false, Fact};
    olHostValue<float> navPanningSpeed{*this, "navPanningSpeed", 1.0f, Fact};
    olHostValue<int> navSpeedMode{*this, "navSpeedMode", 0, Fact};
    olHostValue<float> navDollySpeed{*this, "navDollySpeed", 1.0f, Fact};
    olHostValue<int> navDollyAxis{*this, "navDollyAxis", 0, Fact};
    olHostValue<bool> navDollyToPivot{*this, "navDollyToPivot", false, Fact};
    olHostValue<bool> animateNavCam{*this, "animateNavCam", true};
    olHostValue<float> animateNavCamDuration{*this, "animateNavCamDuration", 20.0f};
    olHostValue<bool> navOrbitMode{*this, "navOrbitMode", false, Fact};
    olHostValue<int> navOrbitDetectionArea{*this, "navOrbitDetectionArea", 0, Fact};
    olHostValue<int> navOrbitDetectionTime{*this, "navOrbitDetectionTime", 0, Fact};

    // Input devices. The space mouse is wanted or not, whether or not its daemon is there. Its motion is how far the
    // cap is moved along x, y and z and turned about them, in the daemon's units; each button is a bit, the first the
    // lowest. The joystick's axes go from -1 to 1, to the right and towards the user: two of the first stick, two of
    // the second
    olHostValue<bool> spacemouseWanted{*this, "spacemouseWanted", false};
    olHostValue<bool> spacemouseConnected{*this, "spacemouseConnected", false};
    olHostValue<std::vector<float>> spacemouseMotion{*this, "spacemouseMotion", std::vector<float>(6, 0.0f)};
    olRecordedValue<unsigned> spacemouseButtons{*this, "spacemouseButtons", 0};
    olHostValue<int> spacemouseViewMode{*this, "spacemouseViewMode", 0};
    olHostValue<int> spacemousePivotMode{*this, "spacemousePivotMode", 0};
    olHostValue<bool> spacemouseTwoAxis{*this, "spacemouseTwoAxis", false};
    olHostValue<bool> spacemouseHelicopter{*this, "spacemouseHelicopter", false};
    olHostValue<bool> spacemouseUseFixedHeight{*this, "spacemouseUseFixedHeight", false};
    olHostValue<float> spacemouseFixedHeight{*this, "spacemouseFixedHeight", 0.0f};
    olHostValue<int> joystickId{*this, "joystickId", 0};
    olHostValue<bool> joystickNavigation{*this, "joystickNavigation", false};
    olHostValue<bool> joystickConnected{*this, "joystickConnected", false};
    olHostValue<std::vector<float>> joystickAxes{*this, "joystickAxes", std::vector<float>(4, 0.0f)};

    // Displays
    olHostValue<int> displayType{*this, "displayType", 0, Fact};
    olHostValue<bool> starVRHandler{*this, "starVRHandler", false, Fact};
    olRecordedValue<bool> starVRFoveatedRendering{*this, "starVRFoveatedRendering", false};
    olRecordedValue<float> starVRFoveatedFovFactor{*this, "starVRFoveatedFovFactor", 0.35f};
    olRecordedValue<float> starVRFoveatedResolutionScale{*this, "starVRFoveatedResolutionScale", 0.6f};
    olRecordedValue<float> starVRNonFoveatedResolutionScale{*this, "starVRNonFoveatedResolutionScale", 0.4f};
    olRecordedValue<float> starVRFrontViewResolutionScale{*this, "starVRFrontViewResolutionScale", 1.0f};
    olRecordedValue<float> starVRSideViewResolutionScale{*this, "starVRSideViewResolutionScale", 1.0f};
    olRecordedValue<bool> starVRSingleTexture{*this, "starVRSingleTexture", false};

    // Immersive sessions
    olRecordedValue<int> teleportGroundMode{*this, "teleportGroundMode", 1};
    olRecordedValue<float> teleportRange{*this, "teleportRange", 15000.0f};
    olRecordedValue<int> visualiseHands{*this, "visualiseHands", 1};
    olRecordedValue<bool> autoCreateCollisionObjects{*this, "autoCreateCollisionObjects", true};
    olRecordedValue<bool> showTooltipsOnStart{*this, "showTooltipsOnStart", true};

    // Import and export
    olHostValue<bool> verifyGeometry{*this, "verifyGeometry", true};
    olHostValue<bool> optimizeGeometry{*this, "optimizeGeometry", false};
    olRecordedValue<bool> optimizeTransparencies{*this, "optimizeTransparencies", false};
    olHostValue<bool> fileIOProgressShown{*this, "fileIOProgressShown", true};
    olHostValue<int> maxParallelImportTasks{*this, "maxParallelImportTasks", 4};
    olHostValue<bool> importOptionsShown{*this, "importOptionsShown", true};
    olHostValue<bool> importCenteredInOrigin{*this, "importCenteredInOrigin", false};
    olHostValue<bool> importPutOnGround{*this, "importPutOnGround", false};
    olHostValue<std::vector<std::string>> textureSearchPaths{*this, "textureSearchPaths", {}};
    /// By file type, as last written.
    std::map<std::string, olImportRecord> importRecords;
    /// What the importers of the type go by; null before anything was written.
    [[nodiscard]] const olImportRecord *importRecord(const std::string &type) const;
    /// Each with its type, in millimetres: "STEP 200".
    olRecordedValue<std::vector<std::string>> maxChordLengths{*this, "maxChordLengths", {}};
    olRecordedValue<bool> legacyJtLoader{*this, "legacyJtLoader", false};
    olRecordedValue<bool> legacyRhinoLoader{*this, "legacyRhinoLoader", false};
    olHostValue<int> stlExportFormat{*this, "stlExportFormat", 0};

    // Geometry optimiser
    olRecordedValue<float> topologyTolerance{*this, "topologyTolerance", 0.005f};
    olRecordedValue<int> topologyMethod{*this, "topologyMethod", 0};
    olRecordedValue<float> offsetFactor{*this, "offsetFactor", 1.0f};
    olRecordedValue<std::vector<float>> tessellationQuality{
        *this, "tessellationQuality", {0.01f, 0.05f, 0.1f, 0.5f, 1.0f}};
    olRecordedValue<bool> checkOrientation{*this, "checkOrientation", true};

private:
    olHostState() = default;
};
