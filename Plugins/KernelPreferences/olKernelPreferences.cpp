#include "olKernelPreferences.h"

#include "Viewer/olCameraPreferencesGUII.h"
#include "Viewer/olDevicesPreferencesGUII.h"
#include "Viewer/olHelpPreferencesGUII.h"
#include "Viewer/olMainWindowPreferencesGUII.h"
#include "Viewer/olMarkerPreferencesGUII.h"
#include "Viewer/olNavigatorPreferencesGUII.h"
#include "Viewer/olRenderOptionsPreferencesGUII.h"

namespace
{

/// Builds the module the first time it is called; the library's unloading destroys it.
template <class Module> void create() { static Module module; }

using Creation = void (*)();

/// In the order of registration, which is the order of the host's list and, reversed, of destruction.
constexpr Creation creations[] = {
    create<olCameraPreferencesGUII>, create<olDevicesPreferencesGUII>,   create<olMainWindowPreferencesGUII>,
    create<olMarkerPreferencesGUII>, create<olNavigatorPreferencesGUII>, create<olRenderOptionsPreferencesGUII>,
    create<olHelpPreferencesGUII>,
};

} // namespace

void initPreferencesPlugin()
{
    for (const Creation creation : creations)
        creation();
}
