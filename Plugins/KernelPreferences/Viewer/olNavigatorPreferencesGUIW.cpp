#include "Viewer/olNavigatorPreferencesGUIW.h"

#include "Framework/olPageLayout.h"
#include "Kernel/olController.h"
#include "Kernel/olOSGWidget.h"
#include "ui_olNavigatorPreferencesGUI.h"

#include <array>

namespace
{

// The indices of the items in the form.
enum SpeedMode { Limited = 1, Linear = 2 };
enum DollyAxis { VerticalOnly = 0, HorizontalAndVertical = 2 };

/// What choosing an interaction mode sets on the page.
struct Preset {
    bool invertDollyAxis;
    bool invertWheelDolly;
    SpeedMode speedMode;
    bool pivotBasedPanning;
    DollyAxis dollyAxis;
    bool dollyToPivot;
};

/// In the order of the items of the combo.
constexpr std::array<Preset, 3> presets = {{
    {false, false, Limited, false, VerticalOnly, false},
    {true, true, Linear, false, HorizontalAndVertical, true},
    {false, true, Limited, true, HorizontalAndVertical, false},
}};

} // namespace

olNavigatorPreferencesGUIW::olNavigatorPreferencesGUIW()
{
    if (olController::isOrloEssentials())
        hideRow(*m_form->autoCenter);

    // The first item that a combo gets becomes its current one, which must not choose a preset.
    fillCombos();
    connectRules();
    updateEnabling();
}

olNavigatorPreferencesGUIW::~olNavigatorPreferencesGUIW() = default;

void olNavigatorPreferencesGUIW::fillCombos()
{
    QComboBox *navigation = m_form->navigationMode;
    navigation->addItem(tr("Trackball"), olOSGWidget::Trackball);
    navigation->addItem(tr("TwoAxis"), olOSGWidget::TwoAxis);
    if (!olController::isOrloEssentials()) {
        navigation->addItem(tr("Fly"), olOSGWidget::Fly);
        navigation->addItem(tr("Orientation"), olOSGWidget::Orientation);
    }

    // Names of products, the same in every language.
    QComboBox *interaction = m_form->interactionMode;
    interaction->addItem(QLatin1String("ORLO"), olOSGWidget::Orlo);
    interaction->addItem(QLatin1String("Contura"), olOSGWidget::Contura);
    interaction->addItem(QLatin1String("Mirra"), olOSGWidget::Mirra);
}

void olNavigatorPreferencesGUIW::connectRules()
{
    connect(m_form->animateCamera, SIGNAL(toggled(bool)), SLOT(toggledAnimateCameraChange(bool)));
    connect(m_form->interactionMode, SIGNAL(currentIndexChanged(int)), SLOT(changedInteractionMode(int)));
    connect(m_form->pivotBasedPanning, SIGNAL(toggled(bool)), SLOT(toggledPivotBasedPanning(bool)));
    connect(m_form->speedMode, SIGNAL(currentIndexChanged(int)), SLOT(changedNavigationSpeedMode(int)));
    connect(m_form->orbitMode, SIGNAL(toggled(bool)), SLOT(toggledOrbitMode(bool)));
}

void olNavigatorPreferencesGUIW::updateEnabling()
{
    toggledAnimateCameraChange(m_form->animateCamera->isChecked());
    toggledOrbitMode(m_form->orbitMode->isChecked());
    updatePanning();
}

void olNavigatorPreferencesGUIW::toggledAnimateCameraChange(bool on)
{
    m_form->duration->setEnabled(on);
    m_form->durationLabel->setEnabled(on);
}

void olNavigatorPreferencesGUIW::changedInteractionMode(int index)
{
    if (index < 0 || index >= int(presets.size()))
        return;
    const Preset &preset = presets[size_t(index)];
    m_form->invertDollyAxis->setChecked(preset.invertDollyAxis);
    m_form->invertWheelDolly->setChecked(preset.invertWheelDolly);
    m_form->speedMode->setCurrentIndex(preset.speedMode);
    m_form->pivotBasedPanning->setChecked(preset.pivotBasedPanning);
    m_form->dollyAxis->setCurrentIndex(preset.dollyAxis);
    m_form->dollyToPivot->setChecked(preset.dollyToPivot);
    updatePanning();
}

void olNavigatorPreferencesGUIW::toggledPivotBasedPanning(bool) { updatePanning(); }

void olNavigatorPreferencesGUIW::changedNavigationSpeedMode(int) { updatePanning(); }

void olNavigatorPreferencesGUIW::toggledOrbitMode(bool on)
{
    m_form->orbitDetectionArea->setEnabled(on);
    m_form->orbitDetectionAreaLabel->setEnabled(on);
    m_form->orbitDetectionTime->setEnabled(on);
    m_form->orbitDetectionTimeLabel->setEnabled(on);
}

void olNavigatorPreferencesGUIW::updatePanning()
{
    const bool linear = m_form->speedMode->currentIndex() == Linear;
    const bool speed = linear || m_form->pivotBasedPanning->isChecked();
    m_form->panningSpeed->setEnabled(speed);
    m_form->panningSpeedLabel->setEnabled(speed);
    m_form->pivotBasedPanning->setEnabled(!linear);
}
