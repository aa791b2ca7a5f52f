#include "Viewer/olRenderOptionsPreferencesGUIW.h"

#include "Framework/olPageLayout.h"
#include "Kernel/olController.h"
#include "Utilities/olPlatform.h"
#include "Viewer/olBackgroundTable.h"
#include "Widgets/QOLColorDialog.h"
#include "ui_olRenderOptionsPreferencesGUI.h"

namespace
{

constexpr int largestSide = 16384;
constexpr int largestWidthInEssentials = 1920;
constexpr int largestHeightInEssentials = 1080;

// In pixels at 96 dots per inch.
constexpr QSize backgroundTableSize{300, 150};
constexpr int numberWidth = 100;

QSize scaled(const QSize &size)
{
    return {qRound(float(size.width()) * olPlatform::getDpiScaleX()),
            qRound(float(size.height()) * olPlatform::getDpiScaleY())};
}

} // namespace

olRenderOptionsPreferencesGUIW::olRenderOptionsPreferencesGUIW()
{
    fillSampleCombos();
    hideWithheldControls();
    adaptToEdition();
    scaleSizes();
    setUpBackground();
}

olRenderOptionsPreferencesGUIW::~olRenderOptionsPreferencesGUIW() = default;

void olRenderOptionsPreferencesGUIW::clickedAdd() { olBackgroundTable(*m_form->backgroundTable).addRow(); }

void olRenderOptionsPreferencesGUIW::clickedDelete() { olBackgroundTable(*m_form->backgroundTable).deleteRow(); }

void olRenderOptionsPreferencesGUIW::clickedChooseColor()
{
    const olBackgroundTable table(*m_form->backgroundTable);
    if (const auto row = table.selectedRow()) {
        colorDialog().setColor(table.color(*row));
        colorDialog().open();
    }
}

void olRenderOptionsPreferencesGUIW::acceptedChooseColor()
{
    colorDialog().hide();
    const osg::Color3f color = colorDialog().getColor();
    // The selection may have moved on while the dialog was open; what is selected now is what the user sees.
    olBackgroundTable table(*m_form->backgroundTable);
    if (const auto row = table.selectedRow())
        table.setColor(*row, color);
}

void olRenderOptionsPreferencesGUIW::rejectedChooseColor() { colorDialog().hide(); }

void olRenderOptionsPreferencesGUIW::fillSampleCombos()
{
    for (QComboBox *combo :
         {m_form->multisamplingLow, m_form->multisamplingMedium, m_form->multisamplingHigh, m_form->multisamplingUltra,
          m_form->raytracingLow, m_form->raytracingMedium, m_form->raytracingHigh, m_form->raytracingUltra}) {
        combo->addItem(tr("1 Sample"), 1);
        combo->addItem(tr("2 Samples"), 2);
        combo->addItem(tr("4 Samples"), 4);
        combo->addItem(tr("8 Samples"), 8);
        combo->addItem(tr("16 Samples"), 16);
    }
}

// Not offered in any edition. The first three keep their settings as they came; the mode of the occlusion culling is
// the host's alone.
void olRenderOptionsPreferencesGUIW::hideWithheldControls()
{
    m_form->antialiaseDistance->hide();
    m_form->antialiaseScale->hide();
    m_form->highQualityAntialiasing->hide();
    m_form->occlusionCullingModeLabel->hide();
    m_form->occlusionCullingMode->hide();
}

void olRenderOptionsPreferencesGUIW::adaptToEdition()
{
    m_form->fixedWidth->setMaximum(largestSide);
    m_form->fixedHeight->setMaximum(largestSide);

    // Buffer formats and coupled graphics cards are for the two larger editions.
    if (!olController::isOrloProfessional() && !olController::isOrloEnterprise()) {
        hideRow(*m_form->rgb10);
        hideRow(*m_form->rgb16Float);
        hideRow(*m_form->sli);
    }
    if (!olController::isOrloEssentials())
        return;

    // Taken out of the tabs only: the page keeps it, so that its settings are filled and taken back in every edition.
    m_form->tabs->removeTab(m_form->tabs->indexOf(m_form->advanced));
    // Always on in Essentials, whatever is set.
    hideRow(*m_form->stillframeAntialiasing);
    hideRow(*m_form->downscale);
    m_form->fixedWidth->setMaximum(largestWidthInEssentials);
    m_form->fixedHeight->setMaximum(largestHeightInEssentials);
}

void olRenderOptionsPreferencesGUIW::scaleSizes()
{
    m_form->backgroundTable->setMinimumSize(scaled(backgroundTableSize));
    const int width = scaled({numberWidth, 0}).width();
    m_form->antialiaseTime->setMaximumWidth(width);
    m_form->fixedWidth->setMinimumWidth(width);
    m_form->fixedHeight->setMinimumWidth(width);
}

void olRenderOptionsPreferencesGUIW::setUpBackground()
{
    olBackgroundTable(*m_form->backgroundTable).setUp();
    connect(m_form->addColor, SIGNAL(clicked()), this, SLOT(clickedAdd()));
    connect(m_form->deleteColor, SIGNAL(clicked()), this, SLOT(clickedDelete()));
    connect(m_form->chooseColor, SIGNAL(clicked()), this, SLOT(clickedChooseColor()));
}

/// Built when it is first needed: a picker is costly, and few sessions come to one.
QOLColorDialog &olRenderOptionsPreferencesGUIW::colorDialog()
{
    if (!m_colorDialog) {
        m_colorDialog = new QOLColorDialog(this); // owned by the page
        connect(m_colorDialog, SIGNAL(accepted()), this, SLOT(acceptedChooseColor()));
        connect(m_colorDialog, SIGNAL(rejected()), this, SLOT(rejectedChooseColor()));
    }
    return *m_colorDialog;
}
