#include "Viewer/olMainWindowPreferencesGUIW.h"

#include "ui_olMainWindowPreferencesGUI.h"

namespace
{

// A window that lets everything shine through could not be found again.
constexpr double lowestOpacity = 0.1;

} // namespace

olMainWindowPreferencesGUIW::olMainWindowPreferencesGUIW() : m_form(std::make_unique<Ui::olMainWindowPreferencesGUI>())
{
    m_form->setupUi(this);
    m_form->windowOpacity->setRange(lowestOpacity, 1.0);
    m_form->windowOpacity->setSteps(0.01, 0.1);
}

olMainWindowPreferencesGUIW::~olMainWindowPreferencesGUIW() = default;
