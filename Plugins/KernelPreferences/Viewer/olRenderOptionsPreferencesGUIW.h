#pragma once

#include "Framework/olFormPage.h"

class QOLColorDialog;

namespace Ui
{
class olRenderOptionsPreferencesGUI;
}

/// The page of the render options, spread over tabs. Which of its controls are offered depends on the edition.
class olRenderOptionsPreferencesGUIW : public olFormPage<Ui::olRenderOptionsPreferencesGUI>
{
    Q_OBJECT

public:
    olRenderOptionsPreferencesGUIW();
    ~olRenderOptionsPreferencesGUIW() override;

public slots:
    void clickedAdd();
    void clickedDelete();
    void clickedChooseColor();
    void acceptedChooseColor();
    void rejectedChooseColor();

private:
    void fillSampleCombos();
    void hideWithheldControls();
    void adaptToEdition();
    void scaleSizes();
    void setUpBackground();
    QOLColorDialog &colorDialog();

    QOLColorDialog *m_colorDialog = nullptr;
};
