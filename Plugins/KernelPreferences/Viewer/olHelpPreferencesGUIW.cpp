#include "Viewer/olHelpPreferencesGUIW.h"

#include "Framework/olChooseDirectory.h"
#include "Utilities/olPlatform.h"
#include "ui_olHelpPreferencesGUI.h"

namespace
{

constexpr int knowledgeNetwork = 0;
constexpr int simpleToolclips = 1;

} // namespace

olHelpPreferencesGUIW::olHelpPreferencesGUIW()
{
    const QSize iconSize(olPlatform::getMediumIconSizeX(), olPlatform::getMediumIconSizeY());
    m_form->browsePath->setIcon(olPlatform::getIcon(QLatin1String("FileOpen")));
    m_form->browsePath->setIconSize(iconSize);
    m_form->browsePath->setMinimumSize(iconSize);
    m_form->browsePath->setMaximumSize(iconSize);

    connect(m_form->location, SIGNAL(currentIndexChanged(int)), this, SLOT(indexChangedLocation(int)));
    connect(m_form->browsePath, SIGNAL(clicked()), this, SLOT(clickedGetHelpPath()));
    connect(m_form->popup, SIGNAL(currentIndexChanged(int)), this, SLOT(indexChangedPopup(int)));
    indexChangedLocation(m_form->location->currentIndex());
    indexChangedPopup(m_form->popup->currentIndex());
}

olHelpPreferencesGUIW::~olHelpPreferencesGUIW() = default;

void olHelpPreferencesGUIW::indexChangedLocation(int)
{
    const bool needsPath = m_form->location->currentIndex() != knowledgeNetwork;
    m_form->pathLabel->setVisible(needsPath);
    m_form->path->setVisible(needsPath);
    m_form->browsePath->setVisible(needsPath);
}

void olHelpPreferencesGUIW::clickedGetHelpPath()
{
    // Deliberately without a parent, and the caption is not translated.
    const QString directory = olChooseDirectory(nullptr, "Help Path", olPlatform::getDataDir());
    if (!directory.isEmpty())
        m_form->path->setText("file:///" + directory);
}

void olHelpPreferencesGUIW::indexChangedPopup(int)
{
    m_form->popup->setToolTip(m_form->popup->currentIndex() == simpleToolclips
                                  ? tr("Controls are explained by a short text.")
                                  : tr("Controls are explained by text and pictures, with the way to the help."));
}
