#pragma once

#include "Utilities/olExport.h"

#include <QSpinBox>

/// The host's spin box: 0 to 2147483647 unless ranged otherwise, and deaf to the wheel until it has the focus, so that
/// scrolling a page changes nothing.
class ORLO_SDK_EXPORT QOLSpiner : public QSpinBox
{
    Q_OBJECT

public:
    explicit QOLSpiner(QWidget *parent = nullptr);

protected:
    void wheelEvent(QWheelEvent *event) override;
};
