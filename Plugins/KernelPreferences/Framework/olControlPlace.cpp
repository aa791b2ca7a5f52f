#include "Framework/olControlPlace.h"

#include "Framework/olPageWidget.h"
#include "Utilities/olWithoutMnemonic.h"
#include "Widgets/QOLCollapsibleFrame.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QGroupBox>
#include <QLabel>
#include <QStackedWidget>
#include <QTabWidget>

namespace
{

QString captionOf(const QWidget &place)
{
    if (const auto *stack = qobject_cast<const QStackedWidget *>(place.parentWidget())) {
        if (const auto *tabs = qobject_cast<const QTabWidget *>(stack->parentWidget()))
            return olWithoutMnemonic(tabs->tabText(tabs->indexOf(const_cast<QWidget *>(&place))));
    }
    if (const auto *frame = qobject_cast<const QOLCollapsibleFrame *>(&place))
        return frame->caption();
    if (const auto *group = qobject_cast<const QGroupBox *>(&place))
        return olWithoutMnemonic(group->title());
    return {};
}

/// Where the plug-in's own part of the window ends.
const QWidget &pageOf(const QWidget &control)
{
    const QWidget *page = &control;
    while (page->parentWidget() && !qobject_cast<const olPageWidget *>(page))
        page = page->parentWidget();
    return *page;
}

QString textOfLabel(const QWidget &control)
{
    const auto labels = pageOf(control).findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy() == &control)
            return olWithoutMnemonic(label->text());
    }
    return {};
}

QString ownText(const QWidget &control)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&control))
        return olWithoutMnemonic(button->text());
    const auto *group = qobject_cast<const QGroupBox *>(&control);
    return group && group->isCheckable() ? olWithoutMnemonic(group->title()) : QString();
}

/// Of the nearest frame, else of the nearest place that has one.
QString captionForTable(const QWidget &table)
{
    QString nearest;
    const QWidget *page = &pageOf(table);
    for (const QWidget *place = &table; place != page; place = place->parentWidget()) {
        const QString caption = captionOf(*place);
        if (!caption.isEmpty() && qobject_cast<const QOLCollapsibleFrame *>(place))
            return caption;
        if (nearest.isEmpty())
            nearest = caption;
    }
    return nearest;
}

QString labelOf(const QWidget &control)
{
    QString label = ownText(control);
    if (label.isEmpty())
        label = textOfLabel(control);
    if (label.isEmpty() && qobject_cast<const QAbstractItemView *>(&control))
        label = captionForTable(control);
    return label.isEmpty() ? control.accessibleName() : label;
}

} // namespace

olControlPlace olControlPlace::of(const QWidget &control)
{
    olControlPlace place{labelOf(control), {}};
    const QWidget *page = &pageOf(control);
    for (const QWidget *around = &control; around != page; around = around->parentWidget()) {
        const QString caption = around == &control ? QString() : captionOf(*around);
        if (!caption.isEmpty())
            place.captions.prepend(caption);
    }
    return place;
}
