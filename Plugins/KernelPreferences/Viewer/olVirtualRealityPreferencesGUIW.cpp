#include "Viewer/olVirtualRealityPreferencesGUIW.h"

#include "ui_olVirtualRealityPreferencesGUI.h"

olVirtualRealityPreferencesGUIW::olVirtualRealityPreferencesGUIW()
{
    connect(m_form->renderMode, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &olVirtualRealityPreferencesGUIW::followRenderMode);
    followRenderMode();
}

olVirtualRealityPreferencesGUIW::~olVirtualRealityPreferencesGUIW() = default;

void olVirtualRealityPreferencesGUIW::followRenderMode()
{
    const bool isFoveated = m_form->renderMode->currentIndex() == 0;
    for (QWidget *widget :
         std::initializer_list<QWidget *>{m_form->foveatedFovFactorLabel, m_form->foveatedFovFactor,
                                          m_form->foveatedResolutionScaleLabel, m_form->foveatedResolutionScale,
                                          m_form->nonFoveatedResolutionScaleLabel, m_form->nonFoveatedResolutionScale})
        widget->setEnabled(isFoveated);
    for (QWidget *widget : std::initializer_list<QWidget *>{
             m_form->frontViewResolutionScaleLabel, m_form->frontViewResolutionScale,
             m_form->sideViewResolutionScaleLabel, m_form->sideViewResolutionScale, m_form->singleTexturePerEye})
        widget->setEnabled(!isFoveated);
}
