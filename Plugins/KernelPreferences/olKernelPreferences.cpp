#include "olKernelPreferences.h"

#include "FileIO/olFileIOPreferencesGUII.h"
#include "FileIO/olMirraPreferencesGUII.h"
#include "FileIO/olOsbPreferencesGUII.h"
#include "FileIO/olTesselationPreferencesGUII.h"
#include "FileIO/olWrlPreferencesGUII.h"
#include "Kernel/olController.h"
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

/// The same where the edition is not the reduced one, which is asked at each call: a later call makes up for it.
template <class Module> void createOutsideEssentials()
{
    if (!olController::isOrloEssentials())
        create<Module>();
}

using Creation = void (*)();

/// In the order of registration, which is the order of the host's list and, reversed, of destruction.
constexpr Creation creations[] = {
    create<olCameraPreferencesGUII>,        create<olDevicesPreferencesGUII>,
    create<olFileIOPreferencesGUII>,        create<olMainWindowPreferencesGUII>,
    create<olMarkerPreferencesGUII>,        create<olMirraPreferencesGUII>,
    create<olNavigatorPreferencesGUII>,     create<olOsbPreferencesGUII>,
    create<olRenderOptionsPreferencesGUII>, createOutsideEssentials<olTesselationPreferencesGUII>,
    create<olWrlPreferencesGUII>,           create<olHelpPreferencesGUII>,
};

} // namespace

void initPreferencesPlugin()
{
    for (const Creation creation : creations)
        creation();
}
