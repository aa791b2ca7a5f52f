#include "Kernel/olWebInterface.h"

#include "Embedded/olHostState.h"
#include "Embedded/olJournal.h"

void olWebInterface::setDebugMode(bool enable)
{
    olJournal::call("olWebInterface::setDebugMode", enable);
    olHostState::the().webInterfaceDebugMode = enable;
}
