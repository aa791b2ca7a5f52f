#include "FileIO/olMirraPreferencesGUIW.h"

#include "Framework/olChooseDirectory.h"
#include "Utilities/olFile.h"
#include "Utilities/olPlatform.h"
#include "ui_olMirraPreferencesGUI.h"

olMirraPreferencesGUIW::olMirraPreferencesGUIW()
{
    m_form->setLocation->setIcon(olPlatform::getIcon(QLatin1String("FileOpen")));
    connect(m_form->setLocation, SIGNAL(clicked()), this, SLOT(clickedSetMirraLocation()));
}

olMirraPreferencesGUIW::~olMirraPreferencesGUIW() = default;

void olMirraPreferencesGUIW::clickedSetMirraLocation()
{
    const QString directory = olChooseDirectory(this, tr("Set Mirra Location"), m_form->location->text());
    if (!directory.isEmpty())
        m_form->location->setText(olFile::convertSeparators(directory));
}
