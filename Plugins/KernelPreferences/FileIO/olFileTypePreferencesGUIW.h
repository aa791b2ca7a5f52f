#pragma once

#include "Framework/olFormPage.h"

namespace Ui
{
class olFileTypePreferencesGUI;
}

/// The page of a CAD format. At first it has what all formats have; the groups of single ones are hidden.
class olFileTypePreferencesGUIW : public olFormPage<Ui::olFileTypePreferencesGUI>
{
    Q_OBJECT

public:
    olFileTypePreferencesGUIW();
    ~olFileTypePreferencesGUIW() override;

    void showJtGroups();

    /// Merging geometries is an option of Rhino's loader: its box moves into the group.
    void showRhinoGroup();

    void showStlGroup();

    /// KBX is only written: its group takes the place of everything else.
    void showKbxGroup();

private:
    void orderTabKey();
};
