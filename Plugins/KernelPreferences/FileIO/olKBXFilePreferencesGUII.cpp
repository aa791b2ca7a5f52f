#include "FileIO/olKBXFilePreferencesGUII.h"

#include "FileIO/olFileTypePreferencesGUIW.h"
#include "Framework/olApply.h"
#include "ui_olFileTypePreferencesGUI.h"

#include <OpenSG/OSGSceneFileHandler.h>

#include <string>

namespace
{

const olSetting<int> version{"KbxOptions version", 0};
const olSetting<int> format{"KbxOptions format", 0};
const olSetting<bool> exportVertexColors{"KbxOptions export vertex colors", false};

/// A combo box that stands for the data of its items, and stays as it is at a value that none of them has.
struct KnownData {
    QComboBox *widget;
};
void showOn(const KnownData &combo, int data)
{
    if (combo.widget->findData(data) >= 0)
        showOn(byData(combo.widget), data);
}
void takeFrom(const KnownData &combo, int &data) { takeFrom(byData(combo.widget), data); }
void tellChoices(const KnownData &combo, olChoices<int> &choices) { tellChoices(byData(combo.widget), choices); }

/// What the writer calls a version.
std::string versionToken(int year)
{
    switch (year) {
    case 0: // the current one
    case 2016:
        return "KBX2016";
    case 2011:
    case 2012:
    case 2013:
    case 2014:
        return "KBX" + std::to_string(year);
    default:
        // Deliberately nothing, not even for 2015: the page stores "KBX 2014/2015" as 2014.
        return {};
    }
}

} // namespace

olKBXFilePreferencesGUII::olKBXFilePreferencesGUII() : olFileTypePreferences("KBX")
{
    page().showKbxGroup();

    const auto &form = page().form();
    settings().add(version, KnownData{form.kbxVersion});
    settings().add(format, form.kbxFormat);
    settings().add(exportVertexColors, form.kbxExportVertexColors);

    handOverPage();
}

void olKBXFilePreferencesGUII::applyPreferences()
{
    // The whole string goes out every time, changed or not.
    const int year = readOr(version, 0);
    const bool asText = readOr(format, 0) != 0;
    const bool withColors = readOr(exportVertexColors, false);
    const std::string options = "kbx_version=" + versionToken(year) + ",kbx_format=" + (asText ? "ascii" : "binary") +
                                ",kbx_export_vertex_colors=" + (withColors ? "true" : "false");
    osg::SceneFileHandler::the().setOptions("kbx", options.c_str());
}

void olKBXFilePreferencesGUII::updateData() { settings().storeFromPage(); }
