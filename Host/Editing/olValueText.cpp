#include "Editing/olValueText.h"

#include "State/olValue.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QSpinBox>

#include <optional>
#include <string>
#include <vector>

namespace
{

constexpr int longest = 80;

QString translated(const char *text) { return QCoreApplication::translate("olValueText", text); }

/// Of the values that a box or the items of a combo can stand for.
std::optional<int> number(const boost::any &value)
{
    if (const auto *flag = boost::any_cast<bool>(&value))
        return *flag ? 1 : 0;
    if (const int *whole = boost::any_cast<int>(&value))
        return *whole;
    if (const unsigned *whole = boost::any_cast<unsigned>(&value))
        return int(*whole);
    return std::nullopt;
}

QString plain(const boost::any &value)
{
    if (value.empty())
        return translated("none");
    if (const auto *flag = boost::any_cast<bool>(&value))
        return *flag ? translated("on") : translated("off");
    QString text;
    if (const auto *bytes = boost::any_cast<std::string>(&value))
        text = QString::fromStdString(*bytes);
    else if (const auto *characters = boost::any_cast<QString>(&value))
        text = *characters;
    else if (const auto *list = boost::any_cast<std::vector<std::string>>(&value))
        for (const std::string &item : *list)
            text += (text.isEmpty() ? QString() : QStringLiteral(", ")) + QString::fromStdString(item);
    else
        text = QString::fromStdString(olValue::toJson(value));
    text = text.simplified();
    if (text.isEmpty() || text == QLatin1String("[]"))
        return translated("none");
    return text.size() > longest ? text.left(longest - 1) + QChar(0x2026) : text;
}

bool isChecked(const QWidget &box)
{
    const auto *button = qobject_cast<const QAbstractButton *>(&box);
    const auto *group = qobject_cast<const QGroupBox *>(&box);
    return (button && button->isChecked()) || (group && group->isChecked());
}

/// Some boxes stand for the opposite of their setting; where the box is now tells.
QString boxText(const QWidget &box, int value, int current)
{
    const bool isInverted = isChecked(box) != (current != 0);
    return (value != 0) != isInverted ? translated("on") : translated("off");
}

/// Combos stand for the index of their item or for its data; the item chosen now tells which. Empty where neither does.
QString itemText(const QComboBox &combo, int value, int current)
{
    if (combo.currentIndex() >= 0 && combo.currentData().isValid() && combo.currentData().toInt() == current)
        return combo.itemText(combo.findData(value));
    return combo.currentIndex() == current ? combo.itemText(value) : QString();
}

} // namespace

QString olValueText(const boost::any &value, const QWidget *control, const boost::any &current)
{
    const std::optional<int> shown = number(value);
    const std::optional<int> now = number(current);
    if (!control || !shown || !now)
        return plain(value);
    const auto *button = qobject_cast<const QAbstractButton *>(control);
    const auto *group = qobject_cast<const QGroupBox *>(control);
    if ((button && button->isCheckable()) || (group && group->isCheckable()))
        return boxText(*control, *shown, *now);
    if (const auto *combo = qobject_cast<const QComboBox *>(control)) {
        const QString item = itemText(*combo, *shown, *now);
        return item.isEmpty() ? plain(value) : item;
    }
    if (const auto *box = qobject_cast<const QSpinBox *>(control))
        return box->prefix() + plain(value) + box->suffix();
    return plain(value);
}
