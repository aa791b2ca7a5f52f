#pragma once

#include "Framework/olPlainText.h"
#include "Widgets/QOLColorManipulator.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLWheelPrec.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSpinBox>

#include <string>
#include <type_traits>
#include <vector>

// How a value reaches a kind of control and comes back: one pair of functions for each kind, and for one with a few
// states a third that tells the values they stand for. What is special about a control is named where a module lists
// it, by one of the small wrappers.

/// A value that a control can stand for, and what it calls it.
template <class T> struct olChoice {
    T value;
    QString text;
};
template <class T> using olChoices = std::vector<olChoice<T>>;

/// Most controls have no list of what they can stand for.
template <class Control, class T> void tellChoices(const Control &, olChoices<T> &) {}

/// Whether a control of two states stands for the opposite of its setting. Hardly one does.
template <class Control> bool isInverted(const Control &) { return false; }

/// A combo box that stands for the data of its items. A value that no item has selects none; without a current item it
/// stores 0.
struct olByData {
    QComboBox *widget;
};
inline olByData byData(QComboBox *combo) { return {combo}; }

/// A combo box that stands for the numbers that its items read. A number that no item reads selects none; without a
/// current item it stores 0.
struct olByNumber {
    QComboBox *widget;
};
inline olByNumber byNumber(QComboBox *combo) { return {combo}; }

/// An editable combo box that stands for its text, which need not be that of an item.
struct olByText {
    QComboBox *widget;
};
inline olByText byText(QComboBox *combo) { return {combo}; }

/// A check box over a number: checked when it is not 0, stored as 0 or 1.
struct olZeroOrOne {
    QCheckBox *widget;
};
inline olZeroOrOne zeroOrOne(QCheckBox *box) { return {box}; }

/// A control whose signals are held back while it is shown: what it sets off when the user works it must not happen
/// when the page is filled.
template <class Control> struct olQuiet {
    Control control;
    QWidget *widget;
};

/// The widget behind a control, wrapped or plain.
template <class Control> QWidget *widgetOf(const Control &control)
{
    if constexpr (std::is_pointer_v<Control>)
        return control;
    else
        return control.widget;
}

template <class Control> olQuiet<Control> quiet(Control control) { return {control, widgetOf(control)}; }

inline void showOn(QCheckBox *box, bool value) { box->setChecked(value); }
inline void takeFrom(const QCheckBox *box, bool &value) { value = box->isChecked(); }

inline void showOn(QGroupBox *box, bool value) { box->setChecked(value); }
inline void takeFrom(const QGroupBox *box, bool &value) { value = box->isChecked(); }

inline void showOn(QComboBox *combo, int index) { combo->setCurrentIndex(index); }
inline void takeFrom(const QComboBox *combo, int &index) { index = combo->currentIndex(); }
inline void tellChoices(QComboBox *combo, olChoices<int> &choices)
{
    for (int index = 0; index < combo->count(); ++index)
        choices.push_back({index, combo->itemText(index)});
}

inline void showOn(const olByData &combo, int data) { combo.widget->setCurrentIndex(combo.widget->findData(data)); }
inline void takeFrom(const olByData &combo, int &data) { data = combo.widget->currentData().toInt(); }
inline void tellChoices(const olByData &combo, olChoices<int> &choices)
{
    for (int index = 0; index < combo.widget->count(); ++index)
        choices.push_back({combo.widget->itemData(index).toInt(), combo.widget->itemText(index)});
}

inline void showOn(const olByNumber &combo, int number)
{
    combo.widget->setCurrentIndex(combo.widget->findText(QString::number(number), Qt::MatchFixedString));
}
inline void takeFrom(const olByNumber &combo, int &number) { number = combo.widget->currentText().toInt(); }
inline void tellChoices(const olByNumber &combo, olChoices<int> &choices)
{
    for (int index = 0; index < combo.widget->count(); ++index)
        choices.push_back({combo.widget->itemText(index).toInt(), combo.widget->itemText(index)});
}

inline void showOn(const olByText &combo, const std::string &text)
{
    combo.widget->setCurrentText(QString::fromStdString(text));
}
inline void takeFrom(const olByText &combo, std::string &text) { text = combo.widget->currentText().toStdString(); }
inline void tellChoices(const olByText &combo, olChoices<std::string> &choices)
{
    for (int index = 0; index < combo.widget->count(); ++index)
        choices.push_back({combo.widget->itemText(index).toStdString(), combo.widget->itemText(index)});
}

template <class Number> void showOn(const olZeroOrOne &box, Number value) { box.widget->setChecked(value != 0); }
template <class Number> void takeFrom(const olZeroOrOne &box, Number &value)
{
    value = box.widget->isChecked() ? 1 : 0;
}
template <class Number> void tellChoices(const olZeroOrOne &, olChoices<Number> &choices)
{
    choices = {{0, olPlainText::of(false)}, {1, olPlainText::of(true)}};
}

inline void showOn(QSpinBox *box, int value) { box->setValue(value); }
inline void takeFrom(const QSpinBox *box, int &value) { value = box->value(); }

// A page is filled again and again with what it shows already, and setting a text costs more than looking at it.
inline void showText(QLineEdit *field, const QString &text)
{
    if (field->text() != text)
        field->setText(text);
}

// Numbers in fields stand with six significant digits and are read in the C locale, whatever the user's.
template <class Number> void showNumberOn(QLineEdit *field, Number value)
{
    showText(field, QString::number(double(value), 'g', 6));
}
inline void showOn(QLineEdit *field, float value) { showNumberOn(field, value); }
inline void showOn(QLineEdit *field, double value) { showNumberOn(field, value); }
inline void takeFrom(const QLineEdit *field, float &value) { value = field->text().toFloat(); }
inline void takeFrom(const QLineEdit *field, double &value) { value = field->text().toDouble(); }

inline void showOn(QLineEdit *field, const QString &text) { showText(field, text); }
inline void takeFrom(const QLineEdit *field, QString &text) { text = field->text(); }

inline void showOn(QLineEdit *field, const std::string &text) { showText(field, QString::fromStdString(text)); }
inline void takeFrom(const QLineEdit *field, std::string &text) { text = field->text().toStdString(); }

inline void showOn(QPlainTextEdit *editor, const std::string &text)
{
    editor->setPlainText(QString::fromStdString(text));
}
inline void takeFrom(const QPlainTextEdit *editor, std::string &text) { text = editor->toPlainText().toStdString(); }

inline void showOn(QOLSlider *slider, double value) { slider->setValue(value); }
template <class Number> void takeFrom(const QOLSlider *slider, Number &value) { value = Number(slider->value()); }

inline void showOn(QOLWheelPrec *wheel, double value) { wheel->setValue(value); }
template <class Number> void takeFrom(const QOLWheelPrec *wheel, Number &value) { value = Number(wheel->value()); }

inline void showOn(QOLColorManipulator *colour, const osg::Color3f &value) { colour->setColor(value); }
inline void takeFrom(const QOLColorManipulator *colour, osg::Color3f &value) { value = colour->getColor(); }

template <class Control, class T> void showOn(const olQuiet<Control> &quiet, const T &value)
{
    const QSignalBlocker blocker(quiet.widget);
    showOn(quiet.control, value);
}
template <class Control, class T> void takeFrom(const olQuiet<Control> &quiet, T &value)
{
    takeFrom(quiet.control, value);
}
template <class Control, class T> void tellChoices(const olQuiet<Control> &quiet, olChoices<T> &choices)
{
    tellChoices(quiet.control, choices);
}
