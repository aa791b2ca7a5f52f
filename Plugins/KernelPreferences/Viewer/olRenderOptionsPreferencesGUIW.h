#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

class QOLColorDialog;

namespace Ui
{
class olRenderOptionsPreferencesGUI;
}

/// The page of the render options, spread over tabs. Which of its controls are offered depends on the edition.
class olRenderOptionsPreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olRenderOptionsPreferencesGUIW();
    ~olRenderOptionsPreferencesGUIW() override;

    [[nodiscard]] const Ui::olRenderOptionsPreferencesGUI &form() const { return *m_form; }

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

    std::unique_ptr<Ui::olRenderOptionsPreferencesGUI> m_form;
    QOLColorDialog *m_colorDialog = nullptr;
};
