#include "Viewer/olWebInterfacePreferencesGUIW.h"

#include "ui_olWebInterfacePreferencesGUI.h"

#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>

olWebInterfacePreferencesGUIW::olWebInterfacePreferencesGUIW() = default;

olWebInterfacePreferencesGUIW::~olWebInterfacePreferencesGUIW() = default;

void olWebInterfacePreferencesGUIW::connectSlots()
{
    connect(m_form->enableWebServer, SIGNAL(toggled(bool)), this, SLOT(toggledEnable(bool)));
    connect(m_form->localhostOnly, SIGNAL(toggled(bool)), this, SLOT(toggledLocalhostOnly(bool)));
    connect(m_form->allowedHosts, SIGNAL(toggled(bool)), this, SLOT(toggledAllowedHosts(bool)));
}

olWebInterfacePreferencesGUIW::Filling::Filling(olWebInterfacePreferencesGUIW &page) : m_page(page)
{
    m_page.m_isFilling = true;
}

olWebInterfacePreferencesGUIW::Filling::~Filling() { m_page.m_isFilling = false; }

void olWebInterfacePreferencesGUIW::toggledEnable(bool checked)
{
    if (!checked || m_isFilling || m_neverAsks || confirmsServer())
        return;
    // Deliberately without signals: the box goes back silently, so the controls that follow it stay enabled until it
    // is next toggled.
    const QSignalBlocker blocker(m_form->enableWebServer);
    m_form->enableWebServer->setChecked(false);
}

olWarning olWebInterfacePreferencesGUIW::enablingQuestion()
{
    return {tr("Enable Web Server"),
            tr("Do you really want to enable the Web Server?\n"
               "The Web Server allows the execution of Python commands from remote locations!"),
            tr("Choosing \"Enable\" enables the Web Server.\n"
               "You are advised to set up a local firewall to protect yourself from unauthorized "
               "access.\n\n"
               "Choosing \"Do Not Enable\" leaves the Web Server disabled."),
            tr("Enable"), tr("Do Not Enable")};
}

bool olWebInterfacePreferencesGUIW::confirmsServer()
{
    const olWarning question = enablingQuestion();
    QMessageBox box(QMessageBox::Warning, question.title, question.text, QMessageBox::NoButton, this);
    box.setInformativeText(question.informative);
    box.addButton(question.accept, QMessageBox::AcceptRole);
    QPushButton *doNotEnable = box.addButton(question.reject, QMessageBox::RejectRole);
    // Nobody opens a server by pressing Enter too fast.
    box.setDefaultButton(doNotEnable);
    box.setEscapeButton(doNotEnable);
    box.exec();
    return box.clickedButton() != doNotEnable;
}

void olWebInterfacePreferencesGUIW::toggledLocalhostOnly(bool checked)
{
    if (checked && !m_isFilling)
        m_form->allowedHosts->setChecked(false);
}

void olWebInterfacePreferencesGUIW::toggledAllowedHosts(bool checked)
{
    if (checked && !m_isFilling)
        m_form->localhostOnly->setChecked(false);
}
