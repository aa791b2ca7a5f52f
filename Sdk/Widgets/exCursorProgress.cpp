#include "Widgets/exCursorProgress.h"

#include "State/olHostCalls.h"

namespace
{

using State = olHostState;

constexpr olHostCalls calls("exCursorProgress");

} // namespace

int exCursorProgress::getBaseSize() { return olHostState::the().progressBaseSize; }

exCursorProgress::Position exCursorProgress::getPreferredPosition()
{
    return static_cast<Position>(olHostState::the().progressPosition.get());
}

bool exCursorProgress::getPreferredVisibility() { return olHostState::the().progressVisible; }
void exCursorProgress::setPreferredSize(int pixels) { calls.set("setPreferredSize", &State::progressBaseSize, pixels); }
void exCursorProgress::setPreferredPosition(Position position)
{
    calls.set("setPreferredPosition", &State::progressPosition, int(position));
}
void exCursorProgress::setPreferredVisibility(bool visible)
{
    calls.set("setPreferredVisibility", &State::progressVisible, visible);
}
