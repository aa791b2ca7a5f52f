#include "olKernelPreferences.h"

#include "FileIO/olCatiaV4FilePreferencesGUII.h"
#include "FileIO/olCatiaV5FilePreferencesGUII.h"
#include "FileIO/olDGNFilePreferencesGUII.h"
#include "FileIO/olDraftixFilePreferencesGUII.h"
#include "FileIO/olFileIOPreferencesGUII.h"
#include "FileIO/olGenericCADFilePreferencesGUII.h"
#include "FileIO/olIgesFilePreferencesGUII.h"
#include "FileIO/olJtFilePreferencesGUII.h"
#include "FileIO/olKBXFilePreferencesGUII.h"
#include "FileIO/olMirraPreferencesGUII.h"
#include "FileIO/olNXFilePreferencesGUII.h"
#include "FileIO/olOsbPreferencesGUII.h"
#include "FileIO/olPLMXMLPreferencesGUII.h"
#include "FileIO/olPartwrightFilePreferencesGUII.h"
#include "FileIO/olProEngineerFilePreferencesGUII.h"
#include "FileIO/olRhinoFilePreferencesGUII.h"
#include "FileIO/olSolidEdgeFilePreferencesGUII.h"
#include "FileIO/olSolidWorksFilePreferencesGUII.h"
#include "FileIO/olStepFilePreferencesGUII.h"
#include "FileIO/olStlFilePreferencesGUII.h"
#include "FileIO/olTesselationPreferencesGUII.h"
#include "FileIO/olWireFilePreferencesGUII.h"
#include "FileIO/olWrlPreferencesGUII.h"
#include "Kernel/olController.h"
#include "Viewer/olCameraPreferencesGUII.h"
#include "Viewer/olDevicesPreferencesGUII.h"
#include "Viewer/olHelpPreferencesGUII.h"
#include "Viewer/olMainWindowPreferencesGUII.h"
#include "Viewer/olMarkerPreferencesGUII.h"
#include "Viewer/olNavigatorPreferencesGUII.h"
#include "Viewer/olRenderOptionsPreferencesGUII.h"
#include "Viewer/olVirtualRealityPreferencesGUII.h"
#include "Viewer/olWebInterfacePreferencesGUII.h"

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

/// In the order of registration, which is the order of the host's list and, reversed, of destruction; one a line.
// clang-format off
constexpr Creation creations[] = {
    create<olCatiaV4FilePreferencesGUII>,
    create<olCatiaV5FilePreferencesGUII>,
    create<olWireFilePreferencesGUII>,
    create<olIgesFilePreferencesGUII>,
    create<olNXFilePreferencesGUII>,
    create<olStepFilePreferencesGUII>,
    create<olDraftixFilePreferencesGUII>,
    create<olPartwrightFilePreferencesGUII>,
    create<olSolidWorksFilePreferencesGUII>,
    create<olSolidEdgeFilePreferencesGUII>,
    create<olStlFilePreferencesGUII>,
    create<olProEngineerFilePreferencesGUII>,
    create<olJtFilePreferencesGUII>,
    create<olRhinoFilePreferencesGUII>,
    create<olGenericCADFilePreferencesGUII>,
    create<olKBXFilePreferencesGUII>,
    create<olDGNFilePreferencesGUII>,
    create<olPLMXMLPreferencesGUII>,
    create<olCameraPreferencesGUII>,
    create<olDevicesPreferencesGUII>,
    create<olFileIOPreferencesGUII>,
    create<olMainWindowPreferencesGUII>,
    create<olMarkerPreferencesGUII>,
    create<olMirraPreferencesGUII>,
    create<olNavigatorPreferencesGUII>,
    create<olOsbPreferencesGUII>,
    create<olRenderOptionsPreferencesGUII>,
    createOutsideEssentials<olTesselationPreferencesGUII>,
    create<olWebInterfacePreferencesGUII>,
    create<olWrlPreferencesGUII>,
    create<olHelpPreferencesGUII>,
    create<olVirtualRealityPreferencesGUII>,
};
// clang-format on

} // namespace

void initPreferencesPlugin()
{
    for (const Creation creation : creations)
        creation();
}
