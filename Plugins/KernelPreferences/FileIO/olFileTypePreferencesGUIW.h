#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

namespace Ui
{
class olFileTypePreferencesGUI;
}

/// The page of a CAD format. At first it has what all formats have; the groups of single ones are hidden.
class olFileTypePreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olFileTypePreferencesGUIW();
    ~olFileTypePreferencesGUIW() override;

    [[nodiscard]] const Ui::olFileTypePreferencesGUI &form() const { return *m_form; }

    void showJtGroups();

    /// Merging geometries is an option of Rhino's loader: its box moves into the group.
    void showRhinoGroup();

    void showStlGroup();

    /// KBX is only written: its group takes the place of everything else.
    void showKbxGroup();

private:
    void orderTabKey();

    std::unique_ptr<Ui::olFileTypePreferencesGUI> m_form;
};
