#include "olControlDriver.h"

#include "Session/olNumberText.h"
#include "State/olListed.h"
#include "State/olValue.h"
#include "Widgets/QOLColorManipulator.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLWheelPrec.h"
#include "olToolError.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTextEdit>
#include <QToolButton>
#include <QValidator>

#include <cmath>

namespace
{

using Value = olScriptValue;

std::string json(bool value) { return value ? "true" : "false"; }
std::string json(const QString &text) { return olValue::quoted(text.toStdString()); }
std::string json(double value) { return olNumberText(value); }

[[noreturn]] void refuse(const Value &value, const QString &expected)
{
    throw olToolError(
        olToolError::tr("%1 cannot be entered: expected %2").arg(QString::fromUtf8(value.written), expected));
}

bool asBool(const Value &value)
{
    const auto flag = value.boolean();
    if (!flag)
        refuse(value, olToolError::tr("true or false"));
    return *flag;
}

double asNumber(const Value &value, double lowest, double highest, const QString &expected)
{
    const auto number = value.number();
    if (!number || *number < lowest || *number > highest)
        refuse(value, expected);
    return *number;
}

int asWholeNumber(const Value &value, int lowest, int highest)
{
    const QString expected = olWholeNumbersBetween(lowest, highest);
    const double number = asNumber(value, lowest, highest, expected);
    if (number != std::floor(number))
        refuse(value, expected);
    return int(number);
}

/// What a person would type: a number as it was written, a text without its quotes.
QString asTyped(const Value &value)
{
    if (const auto text = value.text())
        return *text;
    if (!value.number())
        refuse(value, olToolError::tr("a text or a number"));
    return QString::fromUtf8(value.written);
}

/// Replaces the text in one go, as pasting does; the marks of typing stay, as the host's fields look for them.
void type(QLineEdit &field, const QString &text)
{
    field.selectAll();
    field.insert(text);
}

/// Leaves the field with the Enter key.
void enter(QLineEdit &field)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&field, &press);
}

/// What the field makes of the text while it is typed is in it afterwards.
QValidator::State judged(const QLineEdit &field, QString &text)
{
    int cursor = text.size();
    return field.validator() ? field.validator()->validate(text, cursor) : QValidator::Acceptable;
}

// What one kind of control shows and takes.

std::string read(const QAbstractButton &button)
{
    return button.isCheckable() ? json(button.isChecked()) : std::string();
}

void write(QAbstractButton &button, const Value &value)
{
    if (!button.isCheckable())
        throw olToolError(olToolError::tr("a button is not edited but pressed, by click"));
    if (button.isChecked() == asBool(value))
        return;
    button.click();
    // A page may answer the click by taking it back, which is its good right; one of several that exclude each other
    // cannot be switched off by anybody.
    const bool isOneOfSeveral = button.autoExclusive() || (button.group() && button.group()->exclusive());
    if (isOneOfSeveral && button.isChecked() != asBool(value))
        refuse(value, olToolError::tr("true, as another one must be chosen instead"));
}

std::string read(const QGroupBox &group) { return json(group.isChecked()); }

void write(QGroupBox &group, const Value &value)
{
    if (group.isChecked() == asBool(value))
        return;
    group.setChecked(asBool(value));
    Q_EMIT group.clicked(asBool(value));
}

std::string read(const QComboBox &combo) { return json(combo.currentText()); }

int itemOf(const QComboBox &combo, const Value &value)
{
    if (value.number())
        return asWholeNumber(value, 0, combo.count() - 1);
    const auto text = value.text();
    const int item = text ? combo.findText(*text) : -1;
    if (item < 0) {
        QStringList texts;
        for (int index = 0; index < combo.count(); ++index)
            texts << QString::fromStdString(json(combo.itemText(index)));
        refuse(value, olToolError::tr("an item by its number or its text: %1").arg(olListed(texts)));
    }
    return item;
}

void write(QComboBox &combo, const Value &value)
{
    const int item = itemOf(combo, value);
    const QModelIndex index = combo.model()->index(item, combo.modelColumn(), combo.rootModelIndex());
    if (!index.flags().testFlag(Qt::ItemIsEnabled))
        throw olToolError(olToolError::tr("the item \"%1\" is disabled").arg(combo.itemText(item)));
    combo.setCurrentIndex(item);
    Q_EMIT combo.activated(item);
    Q_EMIT combo.textActivated(combo.itemText(item));
}

std::string read(const QLineEdit &field) { return json(field.text()); }

void write(QLineEdit &field, const Value &value)
{
    QString text = asTyped(value);
    if (field.isReadOnly())
        throw olToolError(olToolError::tr("the field is only to be read"));
    if (judged(field, text) == QValidator::Invalid)
        refuse(value, olToolError::tr("what the field's validator lets through"));
    const QString before = field.text();
    type(field, text);
    if (field.text() != text) {
        field.setText(before);
        refuse(value, olToolError::tr("at most %1 characters").arg(field.maxLength()));
    }
    enter(field);
}

std::string read(const QSpinBox &spin) { return std::to_string(spin.value()); }

void write(QSpinBox &spin, const Value &value)
{
    spin.setValue(asWholeNumber(value, spin.minimum(), spin.maximum()));
    Q_EMIT spin.editingFinished();
}

std::string read(const QDoubleSpinBox &spin) { return json(spin.value()); }

void write(QDoubleSpinBox &spin, const Value &value)
{
    const QString expected = olNumbersBetween(spin.minimum(), spin.maximum());
    const double number = asNumber(value, spin.minimum(), spin.maximum(), expected);
    if (QString::number(number, 'f', spin.decimals()).toDouble() != number)
        refuse(value, olToolError::tr("%1 with at most %2 decimals").arg(expected).arg(spin.decimals()));
    spin.setValue(number);
    Q_EMIT spin.editingFinished();
}

std::string read(const QSlider &slider) { return std::to_string(slider.value()); }

void write(QSlider &slider, const Value &value)
{
    slider.setValue(asWholeNumber(value, slider.minimum(), slider.maximum()));
    Q_EMIT slider.sliderMoved(slider.value());
}

/// A host widget that holds a number is edited through its field, which knows what can be typed.
template <class Widget> void typeIntoFieldOf(Widget &widget, const Value &value)
{
    QString expected = olNumbersBetween(widget.minimum(), widget.maximum());
    if (widget.decimals() >= 0)
        expected = olToolError::tr("%1 with at most %2 decimals").arg(expected).arg(widget.decimals());
    if (!value.number() && !value.text())
        refuse(value, expected);
    QString text = asTyped(value);
    auto *field = widget.template findChild<QLineEdit *>();
    if (!field || judged(*field, text) != QValidator::Acceptable)
        refuse(value, expected);
    type(*field, text);
    enter(*field);
}

std::string read(const QOLSlider &slider) { return json(slider.value()); }
void write(QOLSlider &slider, const Value &value) { typeIntoFieldOf(slider, value); }

std::string read(const QOLWheelPrec &wheel) { return json(wheel.value()); }
void write(QOLWheelPrec &wheel, const Value &value) { typeIntoFieldOf(wheel, value); }

std::string read(const QOLColorManipulator &colors) { return olValue::toJson(colors.getColor()); }

void write(QOLColorManipulator &colors, const Value &value)
{
    const boost::any any = value.as("color");
    const auto *color = boost::any_cast<osg::Color3f>(&any);
    const auto inRange = [](float channel) { return channel >= 0.0f && channel <= 1.0f; };
    if (!color || !inRange(color->red()) || !inRange(color->green()) || !inRange(color->blue()))
        refuse(value, olToolError::tr("three numbers from 0 to 1, as [1, 0.5, 0]"));
    colors.setColor(*color);
}

QString asText(const Value &value)
{
    const auto text = value.text();
    if (!text)
        refuse(value, olToolError::tr("a text in double quotes"));
    return *text;
}

std::string read(const QPlainTextEdit &editor) { return json(editor.toPlainText()); }
std::string read(const QTextEdit &editor) { return json(editor.toPlainText()); }

/// Both kinds of editor; the text goes in over a selection, so that it can be undone like typing.
template <class Editor> void replaceText(Editor &editor, const Value &value)
{
    const QString text = asText(value);
    if (editor.isReadOnly())
        throw olToolError(olToolError::tr("the text is only to be read"));
    editor.selectAll();
    editor.insertPlainText(text);
}

void write(QPlainTextEdit &editor, const Value &value) { replaceText(editor, value); }
void write(QTextEdit &editor, const Value &value) { replaceText(editor, value); }

/// The rows of a table or an unfolded tree, each by its first cell.
void collectRows(const QAbstractItemModel &model, const QModelIndex &parent, QList<QModelIndex> &rows)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex first = model.index(row, 0, parent);
        rows << first;
        collectRows(model, first, rows);
    }
}

QList<QModelIndex> rowsOf(const QAbstractItemView &view)
{
    QList<QModelIndex> rows;
    if (view.model())
        collectRows(*view.model(), view.rootIndex(), rows);
    return rows;
}

std::string read(const QAbstractItemView &view)
{
    std::string table;
    const QList<QModelIndex> rows = rowsOf(view);
    for (const QModelIndex &first : rows) {
        std::string cells;
        for (int column = 0; column < view.model()->columnCount(first.parent()); ++column)
            cells += (cells.empty() ? "" : ", ") + json(first.siblingAtColumn(column).data().toString());
        table += (table.empty() ? "[" : ", [") + cells + ']';
    }
    return '[' + table + ']';
}

void write(QAbstractItemView &, const Value &)
{
    throw olToolError(olToolError::tr("a table or tree is not edited; select in it and press its buttons"));
}

/// Calls `use` with the control as the first of these kinds that it is; false where it is none of them.
template <class... Kinds, class Use> bool useAs(QWidget &control, Use &&use)
{
    const auto tried = [&](auto *typed) {
        if (typed)
            use(*typed);
        return typed != nullptr;
    };
    return (tried(qobject_cast<Kinds *>(&control)) || ...);
}

template <class Use> void useControl(QWidget &control, Use &&use)
{
    const bool used = useAs<QAbstractButton, QGroupBox, QComboBox, QLineEdit, QSpinBox, QDoubleSpinBox, QSlider,
                            QOLSlider, QOLWheelPrec, QOLColorManipulator, QPlainTextEdit, QTextEdit, QAbstractItemView>(
        control, std::forward<Use>(use));
    if (!used)
        throw olToolError(olToolError::tr("a control of its kind is not known"));
}

QAbstractItemView &viewOf(QWidget &control)
{
    auto *view = qobject_cast<QAbstractItemView *>(&control);
    if (!view)
        throw olToolError(olToolError::tr("it is neither a table nor a tree"));
    if (view->selectionMode() == QAbstractItemView::NoSelection)
        throw olToolError(olToolError::tr("nothing can be selected in it"));
    return *view;
}

} // namespace

namespace olControlDriver
{

std::string value(const QWidget &control)
{
    std::string text;
    useControl(const_cast<QWidget &>(control), [&text](const auto &typed) { text = read(typed); });
    return text;
}

void edit(QWidget &control, const olScriptValue &value)
{
    useControl(control, [&value](auto &typed) { write(typed, value); });
}

void click(QWidget &control)
{
    if (!useAs<QPushButton, QToolButton>(control, [](QAbstractButton &button) { button.click(); }))
        throw olToolError(olToolError::tr("it is no button"));
}

void select(QWidget &control, int row, std::optional<int> column)
{
    QAbstractItemView &view = viewOf(control);
    const QList<QModelIndex> rows = rowsOf(view);
    if (row < 0 || row >= rows.size())
        throw olToolError(
            olToolError::tr("there is no row %1: it has %2")
                .arg(row)
                .arg(rows.size() == 1 ? olToolError::tr("1 row") : olToolError::tr("%1 rows").arg(rows.size())));
    const QModelIndex cell = rows.at(row).siblingAtColumn(column.value_or(0));
    if (!cell.isValid()) {
        const int columns = view.model()->columnCount(rows.at(row).parent());
        throw olToolError(
            olToolError::tr("there is no column %1: it has %2")
                .arg(*column)
                .arg(columns == 1 ? olToolError::tr("1 column") : olToolError::tr("%1 columns").arg(columns)));
    }
    const bool manyCells = view.selectionMode() != QAbstractItemView::SingleSelection;
    if (column || !manyCells || view.selectionBehavior() != QAbstractItemView::SelectItems)
        return view.setCurrentIndex(cell);
    view.selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void selectNothing(QWidget &control)
{
    QAbstractItemView &view = viewOf(control);
    view.selectionModel()->clear();
}

} // namespace olControlDriver
