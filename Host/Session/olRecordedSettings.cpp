#include "Session/olRecordedSettings.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace
{

// In groups by what is missing here.
constexpr std::string_view recorded[] = {
    // a second window, deep colours, a second card, queries of what is hidden, an editor of materials
    "Powerwall width", "Powerwall height", "Powerwall distance", "RenderOptions 10bit rgb",
    "RenderOptions single pass stereo", "RenderOptions nvidia sli enable", "RenderOptions nvidia sli mode",
    "RenderOptions occlusion culling", "RenderOptions interactive material preview",
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
    "WebInterface secure python", "Help Location", "Help Path", "Help Popup"};

// What a format without a reader, a headset or an optimiser of geometry would go by.
constexpr std::string_view recordedPrefixes[] = {"CatiaV4Options ",
                                                 "CatiaV5Options ",
                                                 "WireOptions ",
                                                 "NXOptions ",
                                                 "DraftixOptions ",
                                                 "PartwrightOptions ",
                                                 "SolidWorksOptions ",
                                                 "SolidEdgeOptions ",
                                                 "ProEOptions ",
                                                 "JTOptions ",
                                                 "RhinoOptions ",
                                                 "BCADOptions ",
                                                 "KbxOptions ",
                                                 "DGNOptions ",
                                                 "PLMXML",
                                                 "MirraFileIO ",
                                                 "Optimizer ",
                                                 "VR ",
                                                 "StarVR "};

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
constexpr std::string_view readFormats[] = {"STEPOptions ", "IGESOptions ", "STLOptions "};

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
    for (const std::string_view prefix : recordedPrefixes) {
        if (startsWith(key, prefix))
            return true;
    }
    for (const std::string_view format : readFormats) {
        if (startsWith(key, format) && isAmong(recordedOptions, std::string_view(key).substr(format.size())))
            return true;
    }
    return isAmong(recorded, key);
}
