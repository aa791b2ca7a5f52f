#include "Model/RandomLines.h"

#include "State/olHostState.h"
#include "State/olPreferencesEntry.h"
#include "State/olValue.h"
#include "Widgets/QOLColorManipulator.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLWheelPrec.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

#include <iterator>

namespace
{

/// As scripts take a word: only quotes and backslashes are escaped.
QByteArray quoted(const QByteArray &word)
{
    return '"' + QByteArray(word).replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

QByteArray quoted(const std::string &word) { return quoted(QByteArray::fromStdString(word)); }

} // namespace

QByteArray RandomLines::next(const DrivenModule *&module)
{
    module = nullptr;
    const int dice = below(100);
    if (dice < 3)
        return host();
    // The modules that differ from each other get their fair share among the many formats.
    do
        module = &m_modules[std::size_t(below(int(m_modules.size())))];
    while (!module->entry->category().isEmpty() && below(3) != 0);

    const QByteArray name = quoted(module->name);
    if (dice < 30)
        return put(*module, false);
    if (dice < 35)
        return put(*module, true);
    if (dice < 40 && module->entry->home() == olHome::Record && !module->types.empty())
        return "remove " + quoted(keyOf(*module));
    if (dice < 43)
        return "defaults " + name + (below(2) == 0 ? " keep" : "");
    if (dice < 53)
        return "gui " + name;
    if (dice < 66)
        return "data " + name;
    if (dice < 80)
        return "apply " + name;
    if (dice < 82)
        return "newscene " + name;
    if (dice < 86)
        return "settled " + name;
    return module->controls.empty() ? "gui " + name : edit(*module);
}

const std::string &RandomLines::keyOf(const DrivenModule &module)
{
    return std::next(module.types.begin(), below(int(module.types.size())))->first;
}

QByteArray RandomLines::put(const DrivenModule &module, bool anyType)
{
    if (module.types.empty())
        return "put int \"Nobody's\" " + number(true);
    const std::string &key = keyOf(module);
    const std::vector<std::string> types = olValue::typeNames();
    const std::string type = anyType ? types[std::size_t(below(int(types.size())))] : module.types.at(key);
    const QByteArray command = module.entry->home() == olHome::Record ? "put " : "service put ";
    return command + QByteArray::fromStdString(type) + ' ' + quoted(key) + ' ' + json(type);
}

QByteArray RandomLines::host()
{
    std::vector<const olHostValueBase *> facts;
    for (const olHostValueBase *value : olHostState::the().values()) {
        if (value->isFact())
            facts.push_back(value);
    }
    const olHostValueBase &fact = *facts[std::size_t(below(int(facts.size())))];
    return QByteArray("host ") + fact.name() + ' ' + json(olValue::typeName(fact.any()));
}

QByteArray RandomLines::edit(const DrivenModule &module)
{
    const olPageControl &control = module.controls[std::size_t(below(int(module.controls.size())))];
    const QByteArray target = quoted(module.name) + ' ' + quoted(control.path().toUtf8());
    if (const auto *view = qobject_cast<const QAbstractItemView *>(control.widget)) {
        const int row = below(view->model()->rowCount() + 1);
        return "select " + target + ' ' + (row == 0 ? "none" : QByteArray::number(row - 1));
    }
    if (qobject_cast<const QPushButton *>(control.widget) || qobject_cast<const QToolButton *>(control.widget))
        return "click " + target;
    return "edit " + target + ' ' + valueFor(*control.widget);
}

QByteArray RandomLines::valueFor(const QWidget &control)
{
    if (qobject_cast<const QCheckBox *>(&control) || qobject_cast<const QGroupBox *>(&control))
        return json("bool");
    if (const auto *combo = qobject_cast<const QComboBox *>(&control))
        return QByteArray::number(below(qMax(1, combo->count())));
    if (const auto *spin = qobject_cast<const QSpinBox *>(&control))
        return QByteArray::number(spin->minimum() + below(qMin(spin->maximum() - spin->minimum(), 99999) + 1));
    if (qobject_cast<const QOLSlider *>(&control))
        return QByteArray::number(below(101) / 100.0);
    if (qobject_cast<const QOLWheelPrec *>(&control))
        return QByteArray::number(below(1000));
    if (qobject_cast<const QOLColorManipulator *>(&control))
        return json("color");
    return below(2) == 0 && qobject_cast<const QLineEdit *>(&control) ? number(false) : text();
}

QByteArray RandomLines::number(bool isWhole)
{
    switch (below(4)) {
    case 0:
        return QByteArray::number(below(6) - (isWhole ? 0 : 1));
    case 1:
        return isWhole ? "2147483647" : QByteArray::number(below(2) == 0 ? 1e30 : 0.015625);
    default:
        return QByteArray::number(below(100000)) + (isWhole ? "" : ".5");
    }
}

QByteArray RandomLines::text()
{
    static const QByteArray odd[] = {R"("")", R"("1e5")", R"("-,5")", R"("\"\\,=\n")", "\"\xc3\xbc\""};
    return below(3) == 0 ? odd[below(int(std::size(odd)))] : "\"text" + QByteArray::number(below(1000)) + '"';
}

QByteArray RandomLines::list(const std::string &elementType)
{
    QByteArray elements;
    for (int count = below(4); count > 0; --count)
        elements += (elements.isEmpty() ? "" : ", ") + json(elementType);
    return '[' + elements + ']';
}

QByteArray RandomLines::json(const std::string &type)
{
    if (type == "bool")
        return below(2) == 0 ? "false" : "true";
    if (type == "int" || type == "uint")
        return type == "int" && below(8) == 0 ? "-1" : number(true);
    if (type == "float" || type == "double")
        return below(12) == 0 ? QByteArray(below(2) == 0 ? R"("nan")" : R"("-inf")") : number(false);
    if (type == "color")
        return '[' + channel() + ", " + channel() + ", " + channel() + ']';
    if (type == "qstring" || type == "string")
        return text();
    return list(type == "strings" ? "string" : type == "floats" ? "float" : "color");
}
