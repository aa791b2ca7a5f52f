#include "Editing/olControlBounds.h"

#include "Editing/olNumberText.h"
#include "Editing/olPageAccess.h"
#include "State/olValue.h"
#include "Widgets/QOLColorManipulator.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLWheelPrec.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

#include <algorithm>
#include <optional>
#include <vector>

namespace
{

QString translated(const char *text) { return QCoreApplication::translate("olControlBounds", text); }

/// What stands in a field for the value; nothing for one that does not go into a field.
std::optional<QString> fieldText(const boost::any &value)
{
    if (const auto *text = boost::any_cast<QString>(&value))
        return *text;
    if (const auto *text = boost::any_cast<std::string>(&value))
        return QString::fromStdString(*text);
    if (olValue::asNumber(value))
        return QString::fromStdString(olValue::toJson(value));
    return std::nullopt;
}

template <class Control> QString outside(const Control &control, double number, const QString &expected)
{
    return number >= control.minimum() && number <= control.maximum() ? QString() : expected;
}

template <class Control> QString outsideFraction(const Control &control, double number)
{
    return outside(control, number, olNumbersBetween(control.minimum(), control.maximum()));
}

template <class Control> QString outsideWhole(const Control &control, double number)
{
    return outside(control, number, olWholeNumbersBetween(control.minimum(), control.maximum()));
}

QString boundsOfNumber(const QWidget *control, double number)
{
    if (const auto *box = qobject_cast<const QSpinBox *>(control))
        return outsideWhole(*box, number);
    if (const auto *slider = qobject_cast<const QSlider *>(control))
        return outsideWhole(*slider, number);
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(control))
        return outsideFraction(*box, number);
    if (const auto *slider = qobject_cast<const QOLSlider *>(control))
        return outsideFraction(*slider, number);
    if (const auto *wheel = qobject_cast<const QOLWheelPrec *>(control))
        return outsideFraction(*wheel, number);
    return {};
}

QString expectationOf(const QValidator &validator)
{
    if (const auto *whole = qobject_cast<const QIntValidator *>(&validator))
        return olWholeNumbersBetween(whole->bottom(), whole->top());
    if (const auto *fraction = qobject_cast<const QDoubleValidator *>(&validator))
        return olNumbersBetween(fraction->bottom(), fraction->top());
    return translated("what the field's validator lets through");
}

QString boundsOfField(const QLineEdit &field, QString text)
{
    int cursor = text.size();
    if (field.validator() && field.validator()->validate(text, cursor) != QValidator::Acceptable)
        return expectationOf(*field.validator());
    if (text.size() > field.maxLength())
        return translated("at most %1 characters").arg(field.maxLength());
    return {};
}

QString boundsOfColor(const boost::any &value)
{
    const auto *color = boost::any_cast<osg::Color3f>(&value);
    const auto isInRange = [](float channel) { return channel >= 0.0f && channel <= 1.0f; };
    if (!color || (isInRange(color->red()) && isInRange(color->green()) && isInRange(color->blue())))
        return {};
    return translated("three numbers from 0 to 1");
}

/// The widget around the control through which its settings can be asked for.
const QWidget &pageOf(const QWidget &control)
{
    const QWidget *page = &control;
    while (page->parentWidget() && !page->findChild<QObject *>(QStringLiteral("olSettingAccess")))
        page = page->parentWidget();
    return *page;
}

/// The values that a control with a few states stands for: only the page knows whether an item is its index, its data
/// or its text. Empty for any other control, and where the page does not tell.
std::vector<boost::any> choicesOf(QWidget &control, const std::string &key, const std::string &type)
{
    std::vector<boost::any> choices;
    const auto add = [&] { choices.push_back(olPageAccess::value(pageOf(control), key, type)); };
    const QSignalBlocker quiet(&control);
    if (auto *combo = qobject_cast<QComboBox *>(&control)) {
        if (combo->isEditable())
            return {};
        const int before = combo->currentIndex();
        for (int item = 0; item < combo->count(); ++item) {
            combo->setCurrentIndex(item);
            add();
        }
        combo->setCurrentIndex(before);
    } else if (auto *box = qobject_cast<QCheckBox *>(&control)) {
        const Qt::CheckState before = box->checkState();
        for (const bool isChecked : {false, true}) {
            box->setChecked(isChecked);
            add();
        }
        box->setCheckState(before);
    }
    const bool isTold = std::none_of(choices.begin(), choices.end(), [](const auto &choice) { return choice.empty(); });
    return isTold ? choices : std::vector<boost::any>();
}

QString boundsOfChoice(QWidget &control, const std::string &key, const boost::any &value)
{
    const std::vector<boost::any> choices = choicesOf(control, key, olValue::typeName(value));
    const bool isAmong = std::any_of(choices.begin(), choices.end(),
                                     [&value](const boost::any &choice) { return olValue::equal(choice, value); });
    if (choices.empty() || isAmong)
        return {};
    QStringList texts;
    for (const boost::any &choice : choices)
        texts << QString::fromStdString(olValue::toJson(choice));
    return translated("one of %1").arg(texts.join(QStringLiteral(", ")));
}

} // namespace

QString olControlBounds(QWidget *control, const std::string &key, const boost::any &standard, const boost::any &value)
{
    if (!control || olValue::identical(value, standard))
        return {};
    if (const auto *field = qobject_cast<const QLineEdit *>(control)) {
        const std::optional<QString> text = fieldText(value);
        return text ? boundsOfField(*field, *text) : QString();
    }
    if (qobject_cast<const QOLColorManipulator *>(control))
        return boundsOfColor(value);
    const std::optional<double> number = olValue::asNumber(value);
    const QString bounds = number ? boundsOfNumber(control, *number) : QString();
    return bounds.isEmpty() ? boundsOfChoice(*control, key, value) : bounds;
}
