#include "Kernel/OSGSelection.h"

#include "State/olHostState.h"
#include "State/olJournal.h"

namespace osg
{

void Selection::setForceTransparentObjectSelection(bool force)
{
    olJournal::call("osg::Selection::setForceTransparentObjectSelection", force);
    olHostState::the().transparentObjectSelection = force;
}

} // namespace osg
