#include "State/olHostState.h"

olHostState &olHostState::the()
{
    static olHostState state;
    return state;
}
