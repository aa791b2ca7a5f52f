#include "Framework/olPageLayout.h"

#include <QFormLayout>
#include <QLabel>
#include <QTabWidget>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace
{

/// The labels in front of fields, but for those on the tabs of a tab widget further down.
void collectLabels(const QWidget &place, std::vector<QLabel *> &labels)
{
    const QObjectList children = place.children();
    for (QObject *child : children) {
        if (const auto *form = qobject_cast<QFormLayout *>(child)) {
            for (int row = 0; row < form->rowCount(); ++row) {
                QLayoutItem *item = form->itemAt(row, QFormLayout::LabelRole);
                if (auto *label = item ? qobject_cast<QLabel *>(item->widget()) : nullptr)
                    labels.push_back(label);
            }
        } else if (const auto *widget = qobject_cast<QWidget *>(child)) {
            if (!qobject_cast<const QTabWidget *>(widget))
                collectLabels(*widget, labels);
        }
    }
}

} // namespace

void alignFields(QWidget &page)
{
    std::vector<QLabel *> labels;
    collectLabels(page, labels);
    int width = 0;
    for (const QLabel *label : labels)
        width = std::max(width, label->sizeHint().width());
    for (QLabel *label : labels)
        label->setMinimumWidth(width);

    const auto tabs = page.findChildren<QTabWidget *>();
    for (QTabWidget *tab : tabs) {
        for (int index = 0; index < tab->count(); ++index)
            alignFields(*tab->widget(index));
    }
}
