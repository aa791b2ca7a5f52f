#include "Dialog/olConsentBox.h"

#include "Session/olSettingDescription.h"

#include <QPushButton>

olConsentBox::olConsentBox(const olSettingWarning &question, QWidget *parent)
    : QMessageBox(Warning, question.title, question.text, NoButton, parent),
      m_accept(addButton(question.accept, AcceptRole))
{
    setInformativeText(question.informative);
    QPushButton *reject = addButton(question.reject, RejectRole);
    setDefaultButton(reject);
    setEscapeButton(reject);
}
