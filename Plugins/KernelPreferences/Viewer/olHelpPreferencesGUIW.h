#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

namespace Ui
{
class olHelpPreferencesGUI;
}

/// The page of the help settings.
class olHelpPreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olHelpPreferencesGUIW();
    ~olHelpPreferencesGUIW() override;

    [[nodiscard]] const Ui::olHelpPreferencesGUI &form() const { return *m_form; }

public slots:
    /// The path is only wanted for installed help.
    void indexChangedLocation(int);

    /// Lets the user choose the directory of the installed help.
    void clickedGetHelpPath();

    /// Tells over the box what the chosen kind of help looks like.
    void indexChangedPopup(int);

private:
    std::unique_ptr<Ui::olHelpPreferencesGUI> m_form;
};
