#pragma once

#include "Utilities/olExport.h"

#include <QPushButton>

/// The host's push button: its icon grows with the font, and Enter presses it wherever it stands.
class ORLO_SDK_EXPORT QOLPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit QOLPushButton(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void fitIcon();
};
