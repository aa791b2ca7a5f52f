#include "Viewer/olMarkerPreferencesGUIW.h"

#include "Kernel/olController.h"
#include "ui_olMarkerPreferencesGUI.h"

#include <algorithm>

olMarkerPreferencesGUIW::olMarkerPreferencesGUIW()
{
    // Essentials selects in one way only; how that shows remains the user's choice.
    m_form->selectionModes->setVisible(!olController::isOrloEssentials());

    connect(m_form->wireframeColor, SIGNAL(colorChanged(float, float, float)),
            SLOT(changedSelectionColor(float, float, float)));
}

olMarkerPreferencesGUIW::~olMarkerPreferencesGUIW() = default;

void olMarkerPreferencesGUIW::changedSelectionColor(float red, float green, float blue)
{
    const auto channel = [](float value) { return qreal(std::clamp(value, 0.0f, 1.0f)); };
    m_form->wireframePreview->setColor(QColor::fromRgbF(channel(red), channel(green), channel(blue)));
}
