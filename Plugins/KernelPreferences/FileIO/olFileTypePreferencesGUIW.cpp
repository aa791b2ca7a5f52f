#include "FileIO/olFileTypePreferencesGUIW.h"

#include "ui_olFileTypePreferencesGUI.h"

olFileTypePreferencesGUIW::olFileTypePreferencesGUIW()
{
    m_form->tesselation->setConnections();
    m_form->tesselation->setQualityEnds(*m_form->lowestQuality, *m_form->highestQuality);
    for (QWidget *group : {m_form->jtLoader, m_form->jtBreps, m_form->rhino, m_form->stl, m_form->kbx})
        group->hide();
    orderTabKey();
}

olFileTypePreferencesGUIW::~olFileTypePreferencesGUIW() = default;

void olFileTypePreferencesGUIW::showJtGroups()
{
    m_form->jtLoader->show();
    m_form->jtBreps->show();
}

void olFileTypePreferencesGUIW::showRhinoGroup()
{
    m_form->rhinoLayout->insertWidget(1, m_form->mergeGeometries);
    setTabOrder(m_form->useLegacyRhinoLoader, m_form->mergeGeometries);
    m_form->rhino->show();
}

void olFileTypePreferencesGUIW::showStlGroup() { m_form->stl->show(); }

void olFileTypePreferencesGUIW::showKbxGroup()
{
    // The current version is stored as 0 whatever its year, so that files follow it when a newer one comes.
    QComboBox *versions = m_form->kbxVersion;
    versions->addItem(tr("KBX 2016/2017"), 0);
    versions->addItem(tr("KBX 2014/2015"), 2014);
    versions->addItem(tr("KBX 2013"), 2013);
    versions->addItem(tr("KBX 2012"), 2012);
    versions->addItem(tr("KBX 2011"), 2011);

    for (QWidget *group :
         {m_form->generalOptions, m_form->importOptions, m_form->tessellationOptions, m_form->fileSpecificOptions})
        group->hide();
    m_form->kbx->show();
}

void olFileTypePreferencesGUIW::orderTabKey()
{
    // The form can only name the block as a whole, which takes no focus itself.
    using Part = olTesselationSettings::Control;
    QWidget *before = m_form->meshes;
    for (const Part part : {Part::Tessellation, Part::Quality, Part::ChordDeviation, Part::NormalTolerance,
                            Part::MaxChordLength, Part::Stitching, Part::StitchingTolerance}) {
        QWidget *control = m_form->tesselation->control(part);
        setTabOrder(before, control);
        before = control;
    }
}
