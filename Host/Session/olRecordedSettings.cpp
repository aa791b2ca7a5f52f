#include "Session/olRecordedSettings.h"

#include "State/olHostState.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace
{

/// A setting that a call tells to the host. Whether anything goes by it stands with the value there.
struct Told {
    std::string_view key;
    const char *value;
};

constexpr Told told[] = {
    {"Powerwall width", "powerwallWidth"},
    {"Powerwall height", "powerwallHeight"},
    {"Powerwall distance", "powerwallDistance"},
    {"RenderOptions 10bit rgb", "rgb10"},
    {"RenderOptions single pass stereo", "singlePassStereo"},
    {"RenderOptions nvidia sli enable", "sli"},
    {"RenderOptions nvidia sli mode", "sliMode"},
    {"RenderOptions occlusion culling", "occlusionCulling"},
    {"RenderOptions interactive material preview", "interactiveMaterialPreview"},
    {"BCADOptions max parallel tasks", "maxParallelImportTasks"},
    {"Help Popup", "simpleToolclips"},
    {"Optimizer Topology Tolerance", "topologyTolerance"},
    {"Optimizer Topology Method", "topologyMethod"},
    {"Optimizer Offset Factor", "offsetFactor"},
    {"Optimizer Teselation Quality", "tessellationQuality"},
    {"Optimizer Check Orientation", "checkOrientation"},
    {"VR Teleport Ground Mode", "teleportGroundMode"},
    {"VR Teleport Range", "teleportRange"},
    {"VR Visualise Hands", "visualiseHands"},
    {"VR Auto Create Collision Objects", "autoCreateCollisionObjects"},
    {"VR Show Tooltips on start", "showTooltipsOnStart"},
    {"StarVR Foveated Rendering Enabled", "starVRFoveatedRendering"},
    {"StarVR Foveated FOV Factor", "starVRFoveatedFovFactor"},
    {"StarVR Foveated Resolution Scale", "starVRFoveatedResolutionScale"},
    {"StarVR Non-Foveated Resolution Scale", "starVRNonFoveatedResolutionScale"},
    {"StarVR Front View Resolution Scale", "starVRFrontViewResolutionScale"},
    {"StarVR Side View Resolution Scale", "starVRSideViewResolutionScale"},
    {"StarVR Single Texture Per Eye", "starVRSingleTexture"},
};

// Of these no value of the host tells. In groups by what is missing here.
constexpr std::string_view recorded[] = {
    // each apply switches it off
    "RenderOptions antialiase high quality",
    // all geometry is on the graphics card anyway, and these have no call
    "RenderOptions cache whole scene", "RenderOptions fast fullscreen", "RenderOptions gl context sharing",
    "RenderOptions correct two sided lighting", "RenderOptions clipping plane adaption",
    "RenderOptions hardware antialiasing samples",
    // a log of the renderer's own, and words on the buttons
    "MainWindow redirect osg log", "MainWindow show tool buttons text",
    // compressed textures, and readers that work side by side within one file
    "Loader compress texture mode", "Loader compress texture size", "Loader parallel loading",
    // requests that run anything, and help to open
    "WebInterface secure python", "Help Location", "Help Path"};

// With what the settings of formats begin that have no reader, or one that goes by none of them.
constexpr std::string_view recordedFormats[] = {
    "BCADOptions ",       "CatiaV4Options ",    "CatiaV5Options ", "DGNOptions ",   "DraftixOptions ",
    "JTOptions ",         "KbxOptions ",        "MirraFileIO ",    "NXOptions ",    "PLMXML load ",
    "PLMXMLOptions ",     "PartwrightOptions ", "ProEOptions ",    "RhinoOptions ", "SolidEdgeOptions ",
    "SolidWorksOptions ", "WireOptions ",       "WrlFileIO "};

constexpr std::string_view readFormats[] = {"IGESOptions ", "STEPOptions ", "STLOptions "};

// Of the formats that are read.
constexpr std::string_view recordedOptions[] = {"max chord length",
                                                "create groups for layers",
                                                "unshare nodes",
                                                "flush transformations",
                                                "import associative meshes",
                                                "import empty layers",
                                                "import coord systems",
                                                "import cameras",
                                                "import lights",
                                                "import variants",
                                                "import template geometries",
                                                "import mesh LODs"};

bool startsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

template <std::size_t count> bool isAmong(const std::string_view (&list)[count], std::string_view text)
{
    return std::find(std::begin(list), std::end(list), text) != std::end(list);
}

} // namespace

bool olIsOnlyRecorded(const std::string &key)
{
    for (const Told &setting : told) {
        if (setting.key == key)
            return olHostState::the().find(setting.value)->isRecordedOnly();
    }
    for (const std::string_view format : recordedFormats) {
        if (startsWith(key, format))
            return true;
    }
    for (const std::string_view format : readFormats) {
        if (startsWith(key, format))
            return isAmong(recordedOptions, std::string_view(key).substr(format.size()));
    }
    return isAmong(recorded, key);
}
