#include "FileIO/olTesselationPreferencesGUII.h"

#include "FileIO/olTesselationPreferencesGUIW.h"
#include "Framework/olApply.h"
#include "Kernel/olGeometryOptimizer.h"
#include "ui_olTesselationPreferencesGUI.h"

#include <QCoreApplication>

namespace
{

using Tolerances = std::vector<float>;

const olSetting<float> topologyTolerance{"Optimizer Topology Tolerance", 0.005f, atNextImport().inUnit("mm")};
const olSetting<int> topologyMethod{"Optimizer Topology Method", 0, atNextImport()};
const olSetting<float> offsetFactor{"Optimizer Offset Factor", 1.0f, atNextImport()};
/// In millimetres, finest first. The misspelt key is the one that stored preferences hold.
const olSetting<Tolerances> qualities{
    "Optimizer Teselation Quality", {0.01f, 0.05f, 0.1f, 0.5f, 1.0f}, atNextImport().inUnit("mm")};
const olSetting<bool> checkOrientation{"Optimizer Check Orientation", true, atNextImport()};

/// The list of qualities as a control.
struct QualityRows {
    olTesselationPreferencesGUIW *page;
    QTreeWidget *widget;
};
void showOn(const QualityRows &rows, const Tolerances &tolerances) { rows.page->setQualities(tolerances); }
void takeFrom(const QualityRows &rows, Tolerances &tolerances) { tolerances = rows.page->qualities(); }

} // namespace

olTesselationPreferencesGUII::olTesselationPreferencesGUII()
    : olModule(QCoreApplication::translate("olPreferences", "Tesselation"),
               QCoreApplication::translate("olPreferences", "Import"))
{
    const auto &form = page().form();
    settings().add(topologyTolerance, form.topologyTolerance);
    settings().add(topologyMethod, form.topologyMethod);
    settings().add(offsetFactor, form.offsetFactor);
    settings().add(qualities, QualityRows{&page(), form.qualities});
    settings().add(checkOrientation, form.checkOrientation);

    handOverPage();
}

void olTesselationPreferencesGUII::applyPreferences()
{
    // Deliberately on every apply, changed or not.
    applyIfRead(topologyTolerance, &olGeometryOptimizer::setTopologyTolerance);
    applyIfRead(topologyMethod, &olGeometryOptimizer::setTopologyMethod);
    applyIfRead(offsetFactor, &olGeometryOptimizer::setOffsetFactor);
    applyIfRead(qualities, &olGeometryOptimizer::setTessellationQuality);
    applyIfRead(checkOrientation, &olGeometryOptimizer::setCheckOrientation);
}
