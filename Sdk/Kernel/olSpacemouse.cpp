#include "Kernel/olSpacemouse.h"

#include "State/olHostState.h"
#include "State/olJournal.h"

void olSpacemouse::init()
{
    olJournal::call("olSpacemouse::init");
    olHostState::the().spacemouseWanted = true;
}

void olSpacemouse::terminate()
{
    olJournal::call("olSpacemouse::terminate");
    olHostState::the().spacemouseWanted = false;
}
