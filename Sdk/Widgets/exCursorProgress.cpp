#include "Widgets/exCursorProgress.h"

#include "State/olHostState.h"
#include "State/olJournal.h"

int exCursorProgress::getBaseSize() { return olHostState::the().progressBaseSize; }

exCursorProgress::Position exCursorProgress::getPreferredPosition()
{
    return static_cast<Position>(olHostState::the().progressPosition.get());
}

bool exCursorProgress::getPreferredVisibility() { return olHostState::the().progressVisible; }

void exCursorProgress::setPreferredSize(int pixels)
{
    olJournal::call("exCursorProgress::setPreferredSize", pixels);
    olHostState::the().progressBaseSize = pixels;
}

void exCursorProgress::setPreferredPosition(Position position)
{
    olJournal::call("exCursorProgress::setPreferredPosition", int(position));
    olHostState::the().progressPosition = position;
}

void exCursorProgress::setPreferredVisibility(bool visible)
{
    olJournal::call("exCursorProgress::setPreferredVisibility", visible);
    olHostState::the().progressVisible = visible;
}
