#include "FileIO/olTesselationPreferencesGUIW.h"

#include "FileIO/olTesselationListViewItem.h"
#include "ui_olTesselationPreferencesGUI.h"

#include <QMessageBox>
#include <QSignalBlocker>

namespace
{

/// A middling one, for the user to change.
constexpr float newTolerance = 0.1f;

} // namespace

olTesselationPreferencesGUIW::olTesselationPreferencesGUIW()
{
    setQualities({});

    connect(m_form->qualities, SIGNAL(itemSelectionChanged()), this, SLOT(selectionChanged()));
    connect(m_form->qualities, SIGNAL(itemChanged(QTreeWidgetItem *, int)), this,
            SLOT(itemChanged(QTreeWidgetItem *, int)));
    connect(m_form->addQuality, SIGNAL(clicked()), this, SLOT(clickedAdd()));
    connect(m_form->removeQuality, SIGNAL(clicked()), this, SLOT(clickedRemove()));
}

olTesselationPreferencesGUIW::~olTesselationPreferencesGUIW() = default;

void olTesselationPreferencesGUIW::setQualities(const std::vector<float> &tolerances)
{
    // Not sorted by what the user sorted by before: a page that is only looked at keeps the list as it is.
    m_form->qualities->setSortingEnabled(false);
    m_form->qualities->header()->setSortIndicator(-1, Qt::AscendingOrder);
    m_form->qualities->clear();
    for (const float tolerance : tolerances)
        m_form->qualities->addTopLevelItem(std::make_unique<olTesselationListViewItem>(tolerance).release());
    m_form->qualities->setSortingEnabled(true);
}

std::vector<float> olTesselationPreferencesGUIW::qualities() const
{
    std::vector<float> tolerances;
    for (int row = 0; row < m_form->qualities->topLevelItemCount(); ++row) {
        const auto *item = static_cast<olTesselationListViewItem *>(m_form->qualities->topLevelItem(row));
        tolerances.push_back(item->tolerance());
    }
    return tolerances;
}

void olTesselationPreferencesGUIW::selectionChanged()
{
    m_form->removeQuality->setEnabled(!m_form->qualities->selectedItems().isEmpty());
}

void olTesselationPreferencesGUIW::itemChanged(QTreeWidgetItem *item, int)
{
    auto &row = static_cast<olTesselationListViewItem &>(*item);
    // Unsorted meanwhile, so that the row moves once, with its final value, and not while the user reads the message.
    m_form->qualities->setSortingEnabled(false);
    {
        const QSignalBlocker quiet(m_form->qualities);
        if (!row.takeText()) {
            QMessageBox::warning(this, tr("Tesselation"), tr("Only positive non zero values are allowed!"));
            row.showTolerance();
        }
    }
    m_form->qualities->setSortingEnabled(true);
}

void olTesselationPreferencesGUIW::clickedAdd()
{
    auto *row = std::make_unique<olTesselationListViewItem>(newTolerance).release();
    m_form->qualities->addTopLevelItem(row);
    m_form->qualities->setCurrentItem(row);
    m_form->qualities->editItem(row);
}

void olTesselationPreferencesGUIW::clickedRemove() { qDeleteAll(m_form->qualities->selectedItems()); }
