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
    // options of the VRML format
    "WrlFileIO inline textures", "WrlFileIO reader optimization",
    // requests that run anything, and help to open
    "WebInterface secure python", "Help Location", "Help Path"};

// Of formats without a reader, beside those that begin with a format's import options.
constexpr std::string_view recordedPrefixes[] = {"MirraFileIO ", "PLMXML load "};

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
constexpr std::string_view readFormats[] = {"STEP", "IGES", "STL"};

// What stands between a format, or what else has options, and one of them.
constexpr std::string_view optionsOf = "Options ";
constexpr std::string_view render = "Render";

// How many files are read at once, of whichever format.
constexpr std::string_view parallelTasks = "BCADOptions max parallel tasks";

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
    if (key == parallelTasks)
        return false;
    for (const Told &setting : told) {
        if (setting.key == key)
            return olHostState::the().find(setting.value)->isRecordedOnly();
    }
    for (const std::string_view prefix : recordedPrefixes) {
        if (startsWith(key, prefix))
            return true;
    }
    const std::size_t end = key.find(optionsOf);
    const std::string_view format = std::string_view(key).substr(0, end);
    if (end != std::string::npos && format != render)
        return !isAmong(readFormats, format) ||
               isAmong(recordedOptions, std::string_view(key).substr(end + optionsOf.size()));
    return isAmong(recorded, key);
}
