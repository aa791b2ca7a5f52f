#include "Kernel/olWebInterface.h"

#include "State/olHostState.h"
#include "State/olJournal.h"

void olWebInterface::setDebugMode(bool enable)
{
    olJournal::call("olWebInterface::setDebugMode", enable);
    olHostState::the().webInterfaceDebugMode = enable;
}
