#include "Kernel/olSpacemouse.h"

#include "Devices/olSpacemouseLink.h"
#include "State/olHostState.h"
#include "State/olJournal.h"

void olSpacemouse::init()
{
    olJournal::call("olSpacemouse::init");
    olHostState::the().spacemouseWanted = true;
    if (!olHostState::the().isPassive)
        olSpacemouseLink::the().open();
}

void olSpacemouse::terminate()
{
    olJournal::call("olSpacemouse::terminate");
    olHostState::the().spacemouseWanted = false;
    olSpacemouseLink::the().close();
}
