#include "Kernel/OSGSelection.h"

#include "Embedded/olHostState.h"
#include "Embedded/olJournal.h"

namespace osg
{

void Selection::setForceTransparentObjectSelection(bool force)
{
    olJournal::call("osg::Selection::setForceTransparentObjectSelection", force);
    olHostState::the().transparentObjectSelection = force;
}

} // namespace osg
