#pragma once

#include "olHostExport.h"

#include <QMessageBox>

struct olSettingWarning;

/// The question that must be agreed to before a setting gets its value. Who presses Enter or Escape does not agree.
class ORLO_HOST_EXPORT olConsentBox : public QMessageBox
{
    Q_OBJECT

public:
    olConsentBox(const olSettingWarning &question, QWidget *parent);

    /// After it was closed.
    [[nodiscard]] bool isAgreed() const { return clickedButton() == m_accept; }

private:
    QPushButton *m_accept;
};
