#pragma once

#include "Utilities/olExport.h"

#include <OpenSG/OSGColor.h>

#include <QWidget>

class QOLColorDialog;
class olColorSwatch;
class olRgbFields;

/// Edits a colour: a swatch that opens the colour dialog, and the three channels as numbers.
class ORLO_SDK_EXPORT QOLColorManipulator : public QWidget
{
    Q_OBJECT

public:
    explicit QOLColorManipulator(QWidget *parent = nullptr);

    /// Kept exactly, beyond 0 to 1 too. Signals colorChanged() where a channel differs.
    void setColor(const osg::Color3f &color);
    [[nodiscard]] osg::Color3f getColor() const;

Q_SIGNALS:
    /// Red, green, blue.
    void colorChanged(float red, float green, float blue);

private:
    void openDialog();
    void announce();

    olColorSwatch *m_swatch;
    olRgbFields *m_channels;
    QOLColorDialog *m_dialog = nullptr;
};
