#include "BareForms.h"

#include "State/olPreferencesEntry.h"
#include "Support/BenchHost.h"
#include "ui_olCameraPreferencesGUI.h"
#include "ui_olDevicesPreferencesGUI.h"
#include "ui_olFileIOPreferencesGUI.h"
#include "ui_olFileTypePreferencesGUI.h"
#include "ui_olHelpPreferencesGUI.h"
#include "ui_olMainWindowPreferencesGUI.h"
#include "ui_olMarkerPreferencesGUI.h"
#include "ui_olMirraPreferencesGUI.h"
#include "ui_olNavigatorPreferencesGUI.h"
#include "ui_olOsbPreferencesGUI.h"
#include "ui_olRenderOptionsPreferencesGUI.h"
#include "ui_olTesselationPreferencesGUI.h"
#include "ui_olVirtualRealityPreferencesGUI.h"
#include "ui_olWebInterfacePreferencesGUI.h"
#include "ui_olWrlPreferencesGUI.h"

#include <map>

namespace
{

template <class Form> void setUpForm(QWidget &widget)
{
    Form form;
    form.setupUi(&widget);
}

using SetUp = void (*)(QWidget &);

/// The modules of the CAD formats share theirs.
const std::map<std::string, SetUp> &forms()
{
    static const std::map<std::string, SetUp> forms{
        {"olCameraPreferencesGUII", &setUpForm<Ui::olCameraPreferencesGUI>},
        {"olDevicesPreferencesGUII", &setUpForm<Ui::olDevicesPreferencesGUI>},
        {"olFileIOPreferencesGUII", &setUpForm<Ui::olFileIOPreferencesGUI>},
        {"olMainWindowPreferencesGUII", &setUpForm<Ui::olMainWindowPreferencesGUI>},
        {"olMarkerPreferencesGUII", &setUpForm<Ui::olMarkerPreferencesGUI>},
        {"olMirraPreferencesGUII", &setUpForm<Ui::olMirraPreferencesGUI>},
        {"olNavigatorPreferencesGUII", &setUpForm<Ui::olNavigatorPreferencesGUI>},
        {"olOsbPreferencesGUII", &setUpForm<Ui::olOsbPreferencesGUI>},
        {"olRenderOptionsPreferencesGUII", &setUpForm<Ui::olRenderOptionsPreferencesGUI>},
        {"olTesselationPreferencesGUII", &setUpForm<Ui::olTesselationPreferencesGUI>},
        {"olWebInterfacePreferencesGUII", &setUpForm<Ui::olWebInterfacePreferencesGUI>},
        {"olWrlPreferencesGUII", &setUpForm<Ui::olWrlPreferencesGUI>},
        {"olHelpPreferencesGUII", &setUpForm<Ui::olHelpPreferencesGUI>},
        {"olVirtualRealityPreferencesGUII", &setUpForm<Ui::olVirtualRealityPreferencesGUI>},
    };
    return forms;
}

constexpr int cadFormats = 18;

} // namespace

std::unique_ptr<QWidget> BareForms::of(const std::string &moduleClass)
{
    auto widget = std::make_unique<QWidget>();
    const auto found = forms().find(moduleClass);
    const SetUp setUp = found == forms().end() ? &setUpForm<Ui::olFileTypePreferencesGUI> : found->second;
    setUp(*widget);
    return widget;
}

std::vector<std::unique_ptr<QWidget>> BareForms::all()
{
    std::vector<std::unique_ptr<QWidget>> widgets;
    for (int format = 0; format < cadFormats; ++format)
        widgets.push_back(of(std::string()));
    for (const auto &form : forms())
        widgets.push_back(of(form.first));
    return widgets;
}
