#include "Plugins/PageText.h"

#include "Editing/olPageIndex.h"
#include "State/olValue.h"
#include "Utilities/olPlatform.h"
#include "Utilities/olWithoutMnemonic.h"
#include "Widgets/QOLCollapsibleFrame.h"
#include "Widgets/QOLColorManipulator.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLWheelPrec.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDoubleValidator>
#include <QGroupBox>
#include <QHeaderView>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>
#include <cmath>

namespace
{

QByteArray quoted(const QString &text) { return QByteArray::fromStdString(olValue::quoted(text.toStdString())); }

QByteArray number(double value) { return std::isinf(value) ? QByteArray("any") : QByteArray::number(value, 'g', 10); }

QByteArray aligned(Qt::Alignment alignment)
{
    return " aligned " + QMetaEnum::fromType<Qt::Alignment>().valueToKeys(int(alignment)).replace("Align", "");
}

template <class Enum> QByteArray key(Enum value) { return QMetaEnum::fromType<Enum>().valueToKey(int(value)); }

/// A side that was not given stands as a dash.
QByteArray size(const QSize &size, int none)
{
    const auto side = [none](int pixels) { return pixels == none ? QByteArray("-") : number(pixels); };
    return side(size.width()) + " x " + side(size.height());
}

/// Whether the page hides it by a rule of its own; no page is on the screen here.
bool isHidden(const QWidget &widget)
{
    return widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide);
}

bool isInnerPart(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    return widget.property("olInnerPart").toBool() || widget.objectName().startsWith(QLatin1String("qt_")) ||
           widget.inherits("QTabBar") || widget.inherits("olFoldHeader") || qobject_cast<const QComboBox *>(parent) ||
           qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QAbstractScrollArea *>(parent) ||
           qobject_cast<const QOLSlider *>(parent) || qobject_cast<const QOLWheelPrec *>(parent) ||
           qobject_cast<const QOLColorManipulator *>(parent);
}

QString ownText(const QWidget &widget)
{
    for (const char *property : {"caption", "title", "text"}) {
        const QVariant text = widget.property(property);
        // What stands in a field is its value.
        if (text.isValid() && !qobject_cast<const QLineEdit *>(&widget) &&
            !qobject_cast<const QAbstractSpinBox *>(&widget))
            return text.toString();
    }
    return widget.isWindow() ? widget.windowTitle() : QString();
}

QByteArray tip(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return quoted(text);
    return "rich " + quoted(QTextDocumentFragment::fromHtml(text).toPlainText());
}

/// What a key on the handle adds in the middle of the range.
QByteArray stepOf(QOLSlider &slider, QAbstractSlider::SliderAction key)
{
    const double before = slider.value();
    slider.setValue((slider.minimum() + slider.maximum()) / 2);
    const double middle = slider.value();
    slider.findChild<QSlider *>()->triggerAction(key);
    const double step = slider.value() - middle;
    slider.setValue(before);
    return QByteArray::number(step, 'g', 4);
}

QByteArray ofText(const QWidget &widget)
{
    QByteArray line;
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        if (label->buddy())
            line += " for " + quoted(label->buddy()->accessibleName());
        if (label->wordWrap())
            line += ", wraps";
    }
    if (!widget.accessibleName().isEmpty())
        line += ", is read " + quoted(widget.accessibleName());
    const QVariant alignment = widget.property("alignment");
    if (alignment.isValid() && alignment.toInt() != int(Qt::AlignLeft | Qt::AlignVCenter) &&
        !qobject_cast<const QGroupBox *>(&widget))
        line += "," + aligned(Qt::Alignment(alignment.toInt()));
    if (!widget.toolTip().isEmpty())
        line += ", tip " + tip(widget.toolTip());
    const QString placeholder = widget.property("placeholderText").toString();
    if (!placeholder.isEmpty())
        line += ", placeholder " + quoted(placeholder);
    return line;
}

QByteArray ofNumber(QWidget &widget)
{
    if (const auto *spin = qobject_cast<const QSpinBox *>(&widget))
        return ", from " + number(spin->minimum()) + " to " + number(spin->maximum()) + " by " +
               number(spin->singleStep()) +
               (spin->suffix().isEmpty() ? QByteArray() : ", suffix " + quoted(spin->suffix()));
    if (const auto *wheel = qobject_cast<const QOLWheelPrec *>(&widget))
        return ", from " + number(wheel->minimum()) + " to " + number(wheel->maximum()) + " by " +
               number(wheel->singleStep()) + ", decimals " + number(wheel->decimals());
    if (auto *slider = qobject_cast<QOLSlider *>(&widget))
        return ", from " + number(slider->minimum()) + " to " + number(slider->maximum()) + ", handle from " +
               number(slider->minValue()) + ", by " + stepOf(*slider, QAbstractSlider::SliderSingleStepAdd) + " and " +
               stepOf(*slider, QAbstractSlider::SliderPageStepAdd);
    const auto *field = qobject_cast<const QLineEdit *>(&widget);
    if (const auto *numbers = qobject_cast<const QDoubleValidator *>(field ? field->validator() : nullptr))
        return ", numbers from " + number(numbers->bottom()) + " to " + number(numbers->top());
    return field && field->validator() ? QByteArray(", validated") : QByteArray();
}

QByteArray ofItems(const QWidget &widget)
{
    QByteArrayList items;
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget)) {
        for (int row = 0; row < combo->count(); ++row) {
            const QVariant data = combo->itemData(row);
            items << quoted(combo->itemText(row)) + (data.isValid() ? " = " + data.toByteArray() : QByteArray());
        }
        return (combo->isEditable() ? ", editable with " + key(combo->insertPolicy()) : QByteArray()) + ", items " +
               items.join(", ");
    }
    if (const auto *tabs = qobject_cast<const QTabWidget *>(&widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            items << quoted(tabs->tabText(tab));
        return ", tabs " + items.join(", ");
    }
    return {};
}

QByteArray ofView(const QWidget &widget)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(&widget);
    if (!view)
        return {};
    const auto *table = qobject_cast<const QTableView *>(view);
    const auto *tree = qobject_cast<const QTreeView *>(view);
    const QHeaderView &header = table ? *table->horizontalHeader() : *tree->header();
    QByteArrayList columns;
    for (int column = 0; column < header.count(); ++column)
        columns << quoted(view->model()->headerData(column, Qt::Horizontal).toString()) + ' ' +
                       key(header.sectionResizeMode(column));
    QByteArray line = ", columns " + columns.join(", ") + aligned(header.defaultAlignment());
    if (header.stretchLastSection())
        line += ", the last stretched";
    line += ", " + key(view->selectionMode()) + ' ' + key(view->selectionBehavior()) + ", edited by " +
            QMetaEnum::fromType<QAbstractItemView::EditTriggers>().valueToKeys(int(view->editTriggers()));
    if (view->textElideMode() != Qt::ElideRight)
        line += ", " + key(view->textElideMode());
    if (table && table->verticalHeader()->isHidden())
        line += ", rows without numbers";
    if (tree && (tree->rootIsDecorated() || tree->itemsExpandable()))
        line += ", rows unfold";
    if (table ? table->isSortingEnabled() : tree->isSortingEnabled())
        line += ", sorted by the user";
    if (table && table->verticalHeader()->defaultSectionSize() != QTableView().verticalHeader()->defaultSectionSize())
        line += ", rows of " + number(table->verticalHeader()->defaultSectionSize());
    if (view->tabKeyNavigation())
        line += ", Tab goes on inside";
    return line;
}

/// Only what the page gave it: the size of the others follows from texts and fonts.
QByteArray ofSize(const QWidget &widget)
{
    const bool isHosts = widget.inherits("QOLPushButton") || widget.inherits("QOLCollapsibleFrame") ||
                         widget.inherits("QOLSlider") || widget.inherits("QOLColorManipulator") ||
                         widget.inherits("olNumberField") || widget.inherits("olTesselationSettings");
    QByteArray line;
    if (!isHosts && !widget.minimumSize().isNull())
        line += ", at least " + size(widget.minimumSize(), 0);
    if (!isHosts && widget.maximumSize() != QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX))
        line += ", at most " + size(widget.maximumSize(), QWIDGETSIZE_MAX);
    return line;
}

/// The host's name of an icon.
QByteArray nameOf(const QIcon &icon)
{
    const auto picture = [](const QIcon &icon) { return icon.pixmap(32).toImage(); };
    for (const char *name : {"FileOpen", "FileSave", "Help", "Reset"}) {
        if (picture(olPlatform::getIcon(QLatin1String(name))) == picture(icon))
            return name;
    }
    return "of another kind";
}

QByteArray ofState(const QWidget &widget)
{
    QByteArray line;
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    if (button && !button->icon().isNull())
        line += ", icon " + nameOf(button->icon());
    if (const auto *tool = qobject_cast<const QToolButton *>(&widget); tool && tool->autoRaise())
        line += ", flat";
    if (const auto *editor = qobject_cast<const QPlainTextEdit *>(&widget); editor && editor->tabChangesFocus())
        line += ", Tab leaves it";
    const QByteArray holds = PageText::state(widget);
    if (!holds.isEmpty())
        line += ", holds " + holds;
    if (!widget.isEnabledTo(widget.parentWidget()))
        line += ", disabled";
    // Of the pages of a tab widget one is in front.
    if (isHidden(widget) && !qobject_cast<const QStackedWidget *>(widget.parentWidget()))
        line += ", hidden";
    return line;
}

void describe(QWidget &widget, int depth, QByteArrayList &lines)
{
    const QString text = ownText(widget);
    lines += QByteArray(2 * depth, ' ') + widget.metaObject()->className() +
             (text.isEmpty() ? QByteArray() : ' ' + quoted(text)) + ofText(widget) + ofItems(widget) +
             ofNumber(widget) + ofView(widget) + ofSize(widget) + ofState(widget);
    QList<QWidget *> parts = widget.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    if (const auto *tabs = qobject_cast<const QTabWidget *>(&widget)) {
        // In the order of the tabs, and those that were taken out behind them.
        parts = widget.findChild<QStackedWidget *>()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        const auto place = [tabs](QWidget *tab) { return unsigned(tabs->indexOf(tab)); };
        std::stable_sort(parts.begin(), parts.end(),
                         [&](auto *left, auto *right) { return place(left) < place(right); });
    }
    for (QWidget *part : parts) {
        if (!isInnerPart(*part))
            describe(*part, depth + 1, lines);
    }
}

QByteArray rowsOf(const QAbstractItemModel &model)
{
    QByteArrayList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QByteArrayList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells << quoted(model.index(row, column).data().toString());
        rows << '[' + cells.join(", ") + ']';
    }
    return '[' + rows.join(", ") + ']';
}

} // namespace

QByteArrayList PageText::form(QWidget &page)
{
    QByteArrayList lines;
    describe(page, 1, lines);
    return lines;
}

QByteArray PageText::state(const QWidget &widget)
{
    if (const auto *group = qobject_cast<const QGroupBox *>(&widget); group && group->isCheckable())
        return group->isChecked() ? "on" : "off";
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget); button && button->isCheckable())
        return button->isChecked() ? "on" : "off";
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget))
        return quoted(combo->currentText());
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        return quoted(field->text());
    if (const auto *editor = qobject_cast<const QPlainTextEdit *>(&widget))
        return quoted(editor->toPlainText());
    if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget))
        return rowsOf(*view->model());
    if (const auto *color = qobject_cast<const QOLColorManipulator *>(&widget))
        return QByteArray::fromStdString(olValue::toJson(color->getColor()));
    const QVariant value = widget.property("value");
    return value.isValid() ? number(value.toDouble()) : QByteArray();
}

QByteArray PageText::name(const QWidget &page, const QWidget &widget)
{
    const olPageIndex index(page);
    for (const olPageControl &control : index.controls()) {
        if (control.widget == &widget)
            return control.path().toUtf8();
    }
    const QString text = olWithoutMnemonic(ownText(widget));
    return widget.metaObject()->className() + (text.isEmpty() ? QByteArray() : ' ' + quoted(text));
}

QByteArrayList PageText::difference(const QByteArrayList &first, const QByteArrayList &second)
{
    QByteArrayList lines;
    for (const QByteArray &line : first) {
        if (!second.contains(line))
            lines += "- " + line;
    }
    for (const QByteArray &line : second) {
        if (!first.contains(line))
            lines += "+ " + line;
    }
    return lines;
}
