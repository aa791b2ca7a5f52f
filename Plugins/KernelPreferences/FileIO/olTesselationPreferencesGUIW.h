#pragma once

#include "Framework/olFormPage.h"

#include <vector>

class QTreeWidgetItem;

namespace Ui
{
class olTesselationPreferencesGUI;
}

/// The page of the tessellation settings, with the list of qualities that is edited in place.
class olTesselationPreferencesGUIW : public olFormPage<Ui::olTesselationPreferencesGUI>
{
    Q_OBJECT

public:
    olTesselationPreferencesGUIW();
    ~olTesselationPreferencesGUIW() override;

    /// The rows of the list from the top. What is set stands in the given order until the user sorts it.
    void setQualities(const std::vector<float> &tolerances);
    [[nodiscard]] std::vector<float> qualities() const;

public slots:
    void selectionChanged();
    void itemChanged(QTreeWidgetItem *item, int column);
    void clickedAdd();
    void clickedRemove();
};
