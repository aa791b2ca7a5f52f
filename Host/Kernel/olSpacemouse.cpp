#include "Kernel/olSpacemouse.h"

#include "Embedded/olHostState.h"
#include "Embedded/olJournal.h"
#include "Embedded/olSpacemouseLink.h"

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
