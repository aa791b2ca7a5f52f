#include "Framework/olPageLayout.h"

#include "Widgets/QOLWheelPrec.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace
{

/// A label in front of a field, and how far the groups around it move it to the right.
struct FieldLabel {
    QLabel *widget;
    int inset;

    [[nodiscard]] int end() const { return inset + widget->sizeHint().width(); }
};

/// Boxes of choices above each other end alike.
int widthOfBoxes(const QFormLayout &form)
{
    constexpr int least = 22; // characters
    int width = 0;
    for (int row = 0; row < form.rowCount(); ++row) {
        QLayoutItem *item = form.itemAt(row, QFormLayout::FieldRole);
        const auto *box = item ? qobject_cast<QComboBox *>(item->widget()) : nullptr;
        if (!box)
            continue;
        // A font of ideographs takes one of those for the mean.
        const QFontMetrics metrics = box->fontMetrics();
        const int letter = std::min(metrics.averageCharWidth(), metrics.horizontalAdvance(QLatin1Char('x')));
        width = std::max({width, box->sizeHint().width(), least * letter});
    }
    return width;
}

/// A few digits or words in a field across the whole page would be far from its end and what stands behind it.
void keepNarrow(QFormLayout &form, int row, int boxWidth)
{
    QLayoutItem *item = form.itemAt(row, QFormLayout::FieldRole);
    QWidget *field = item ? item->widget() : nullptr;
    const auto *line = qobject_cast<QLineEdit *>(field);
    if (qobject_cast<QComboBox *>(field)) {
        field->setMinimumWidth(boxWidth);
    } else if (!qobject_cast<QAbstractSpinBox *>(field) && !qobject_cast<QOLWheelPrec *>(field) &&
               !(line && line->validator()))
        return;
    form.setAlignment(field, Qt::AlignLeft | Qt::AlignVCenter);
    // All fields alike, whatever a host shows in some besides the number.
    if (line)
        field->setMaximumWidth(field->sizeHint().width());
}

/// All of them but for those on the tabs of a tab widget further down.
void collectLabels(const QWidget &place, int inset, std::vector<FieldLabel> &labels)
{
    inset += place.contentsMargins().left();
    if (const QLayout *layout = place.layout())
        inset += layout->contentsMargins().left();
    for (QObject *child : place.children()) {
        if (auto *form = qobject_cast<QFormLayout *>(child)) {
            // In a language of long words a field goes below its label rather than out of the page.
            form->setRowWrapPolicy(QFormLayout::WrapLongRows);
            const int boxWidth = widthOfBoxes(*form);
            for (int row = 0; row < form->rowCount(); ++row) {
                QLayoutItem *item = form->itemAt(row, QFormLayout::LabelRole);
                keepNarrow(*form, row, boxWidth);
                if (auto *label = item ? qobject_cast<QLabel *>(item->widget()) : nullptr)
                    labels.push_back({label, inset});
            }
        } else if (const auto *widget = qobject_cast<QWidget *>(child)) {
            if (!qobject_cast<const QTabWidget *>(widget))
                collectLabels(*widget, inset, labels);
        }
    }
}

} // namespace

void alignFields(QWidget &page)
{
    std::vector<FieldLabel> labels;
    collectLabels(page, 0, labels);
    int end = 0;
    for (const FieldLabel &label : labels)
        end = std::max(end, label.end());
    for (const FieldLabel &label : labels)
        label.widget->setMinimumWidth(end - label.inset);

    const auto tabs = page.findChildren<QTabWidget *>();
    for (QTabWidget *tab : tabs) {
        for (int index = 0; index < tab->count(); ++index)
            alignFields(*tab->widget(index));
    }
}

void hideRow(QWidget &field)
{
    field.hide();
    auto *form = qobject_cast<QFormLayout *>(field.parentWidget()->layout());
    if (!form || form->indexOf(&field) < 0)
        qFatal("The field \"%s\" has no row of a form to be hidden with.", qPrintable(field.objectName()));
    int row = -1;
    QFormLayout::ItemRole role = QFormLayout::SpanningRole;
    form->getWidgetPosition(&field, &row, &role);
    delete form->takeRow(row).fieldItem;
}
