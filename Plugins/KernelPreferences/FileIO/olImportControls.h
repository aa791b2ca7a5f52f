#pragma once

#include "Framework/olControls.h"
#include "Widgets/olTesselationSettings.h"

#include <QCheckBox>
#include <QComboBox>

// The controls of the import page that stand for their settings in a way of their own.

/// A value inside the tessellation block, which is given to the block and read from its own control.
template <class Value> struct olTesselationValue {
    olTesselationSettings *block;
    QWidget *widget;
    void (olTesselationSettings::*set)(Value);
};
template <class Value>
olTesselationValue<Value> valueOf(olTesselationSettings *block, olTesselationSettings::Control control,
                                  void (olTesselationSettings::*set)(Value))
{
    return {block, block->control(control), set};
}
template <class Value> void showOn(const olTesselationValue<Value> &part, Value value)
{
    (part.block->*part.set)(value);
}
inline void takeFrom(const olTesselationValue<bool> &part, bool &value)
{
    value = part.widget->property("checked").toBool();
}
inline void takeFrom(const olTesselationValue<double> &part, double &value)
{
    value = part.widget->property("value").toDouble();
}

/// The choices of a combo box over two settings: whether a kind of entity is imported, and its invisible ones too.
enum olImportChoice { ImportNone, ImportVisible, ImportAll };

/// The first of the two.
struct olImported {
    QComboBox *widget;
};
inline olImported imported(QComboBox *choice) { return {choice}; }
inline void showOn(const olImported &choice, bool value)
{
    const bool all = choice.widget->currentIndex() == ImportAll;
    choice.widget->setCurrentIndex(!value ? ImportNone : all ? ImportAll : ImportVisible);
}
inline void takeFrom(const olImported &choice, bool &value) { value = choice.widget->currentIndex() != ImportNone; }

/// The second of the two, to be shown after the first: invisible ones of what is not imported are none.
struct olInvisibleImported {
    QComboBox *widget;
};
inline olInvisibleImported invisibleImported(QComboBox *choice) { return {choice}; }
inline void showOn(const olInvisibleImported &choice, bool value)
{
    if (choice.widget->currentIndex() != ImportNone)
        choice.widget->setCurrentIndex(value ? ImportAll : ImportVisible);
}
inline void takeFrom(const olInvisibleImported &choice, bool &value)
{
    value = choice.widget->currentIndex() == ImportAll;
}

/// A check box over the number of a mesh's levels of detail: checked when it is not 0, stored as 2 or 0.
struct olMeshLevels {
    QCheckBox *widget;
};
inline olMeshLevels meshLevels(QCheckBox *box) { return {box}; }
inline void showOn(const olMeshLevels &box, int levels) { box.widget->setChecked(levels != 0); }
inline void takeFrom(const olMeshLevels &box, int &levels) { levels = box.widget->isChecked() ? 2 : 0; }
inline void tellChoices(const olMeshLevels &, olChoices<int> &choices)
{
    choices = {{0, olPlainText::of(false)}, {2, olPlainText::of(true)}};
}
