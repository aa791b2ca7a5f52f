#include "View/olMouseStyle.h"

#include "Kernel/olOSGWidget.h"

namespace
{

using olMouseStyle::Action;

Action plain(Qt::MouseButtons buttons)
{
    if (buttons & Qt::MiddleButton)
        return Action::Pan;
    if (buttons & Qt::RightButton)
        return Action::Dolly;
    return buttons & Qt::LeftButton ? Action::Orbit : Action::None;
}

} // namespace

Action olMouseStyle::actionFor(int style, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    switch (style) {
    case olOSGWidget::Contura:
        // A modeller's mouse selects and draws; it navigates while both keys are held.
        if (!(modifiers & Qt::ShiftModifier) || !(modifiers & Qt::AltModifier))
            return Action::None;
        return plain(buttons);
    case olOSGWidget::Mirra:
        if (buttons & Qt::MiddleButton)
            return Action::Dolly;
        if (buttons & Qt::RightButton)
            return Action::Pan;
        return plain(buttons);
    default:
        return plain(buttons);
    }
}
