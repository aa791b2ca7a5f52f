#pragma once

#include "Utilities/olExport.h"

#include <OpenSG/OSGColor.h>

#include <QDialog>

class QColorDialog;
class olRgbFields;

/// The host's colour dialog: a picker and the three channels as numbers. One dialog may be shown again and again.
class ORLO_SDK_EXPORT QOLColorDialog : public QDialog
{
    Q_OBJECT

public:
    explicit QOLColorDialog(QWidget *parent = nullptr);

    /// Kept exactly until the user edits.
    void setColor(const osg::Color3f &color);

    /// What the dialog shows; after rejection too, so ask on accepted().
    [[nodiscard]] osg::Color3f getColor() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showInPicker();
    void takeFromPicker(const QColor &picked);

    QColorDialog *m_picker;
    olRgbFields *m_channels;
};
