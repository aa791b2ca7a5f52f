#include "Viewer/olMarkerPreferencesGUII.h"

#include "Framework/olApply.h"
#include "Kernel/OSGSelection.h"
#include "Kernel/olController.h"
#include "Kernel/olOSGWidget.h"
#include "Kernel/olScenegraph.h"
#include "Viewer/olMarkerPreferencesGUIW.h"
#include "ui_olMarkerPreferencesGUI.h"

namespace
{

const olSetting<float> markerSize{"Marker size", 1.0f};
const olSetting<bool> lodSelection{"LOD selection", [] { return !olController::isOrloEssentials(); }};
const olSetting<bool> autoScroll{"Selection auto scroll", true};
const olSetting<bool> transparentSelection{"Transparent Object Selection", false};
const olSetting<bool> preselection{"Selection preselection enabled", true};
const olSetting<osg::Color3f> preselectionColor{"Selection preselection color", {0.1f, 0.3f, 0.9f}};

// These three belong here, although their keys read as if they were the render options': users' stored preferences
// hold them so.
const olSetting<bool> wireframeSelection{"RenderOptions wireframe selection", false};
const olSetting<osg::Color3f> selectionColor{"RenderOptions selection color", {0.956f, 0.521f, 0.086f}};
const olSetting<bool> selectionInFront{"RenderOptions selection in front", false};

} // namespace

olMarkerPreferencesGUII::olMarkerPreferencesGUII() : olModule(tr("Selection"), QString())
{
    const auto &form = page().form();
    settings().add(markerSize, form.markerSize);
    settings().add(lodSelection, form.lodSelection);
    settings().add(autoScroll, form.autoScroll);
    settings().add(transparentSelection, form.transparentSelection);
    settings().add(preselection, form.preselection);
    settings().add(preselectionColor, form.preselectionColor);
    settings().add(wireframeSelection, form.wireframeSelection);
    settings().add(selectionColor, form.wireframeColor);
    settings().add(selectionInFront, form.alwaysInFront);
    settings().touchOnlyTheView();

    handOverPage();
}

void olMarkerPreferencesGUII::applyPreferences()
{
    // Deliberately on every apply, changed or not, so that the marks in the view always follow what is stored.
    applyIfRead(markerSize, &olScenegraph::setMarkerSize);
    applyIfRead(lodSelection, &olScenegraph::setLODSelection);
    applyIfRead(autoScroll, &olScenegraph::setAutoScroll);
    applyIfRead(transparentSelection, &osg::Selection::setForceTransparentObjectSelection);
    applyIfRead(preselection, &olScenegraph::setPreselectionEnabled);
    applyIfRead(preselectionColor, &olScenegraph::setPreselectionColor);

    // The wireframe's settings fall back, and in another order than they are listed. A wireframe setting that cannot be
    // read deliberately shows the wireframe, though the default is not to: a selection must not become invisible.
    const olApply apply(*this);
    apply.ifChangedOr(wireframeSelection, true, &olOSGWidget::setWireframeSelection);
    apply.ifChangedOrDefault(selectionInFront, [](bool inFront) {
        olScenegraph::setWireframeOverride(inFront);
        olOSGWidget::setWireframeAlwaysInFront(inFront);
    });
    apply.ifChangedOrDefault(selectionColor, &olScenegraph::setSelectionColor);
}
