#pragma once

#include "Framework/olFormPage.h"

namespace Ui
{
class olHelpPreferencesGUI;
}

/// The page of the help settings.
class olHelpPreferencesGUIW : public olFormPage<Ui::olHelpPreferencesGUI>
{
    Q_OBJECT

public:
    olHelpPreferencesGUIW();
    ~olHelpPreferencesGUIW() override;

public slots:
    /// The path is only wanted for installed help.
    void indexChangedLocation(int);

    /// Lets the user choose the directory of the installed help.
    void clickedGetHelpPath();

    /// Tells over the box what the chosen kind of help looks like.
    void indexChangedPopup(int);
};
