#include "View/olViewLights.h"

#include "State/olHostState.h"
#include "View/olNavigator.h"

#include <V3d_AmbientLight.hxx>
#include <V3d_DirectionalLight.hxx>
#include <V3d_PositionalLight.hxx>
#include <V3d_Viewer.hxx>

namespace
{

constexpr float faint = 0.35f;
constexpr float lampStrength = 0.4f;

enum HeadlightMode { AsSceneNeeds = 0 };

/// A scene without lights of its own needs one at the camera, and the lamp alone leaves too much in the dark.
bool headlightShines()
{
    const olHostState &state = olHostState::the();
    return state.headlight && (state.headlightMode == AsSceneNeeds || state.headlightEnabled);
}

Handle(Graphic3d_CLight) makeHeadlight(bool atPoint)
{
    Handle(Graphic3d_CLight) light;
    if (atPoint)
        light = new V3d_PositionalLight(gp_Pnt(0, 0, 0));
    else
        light = new V3d_DirectionalLight(gp_Dir(0, 0, -1));
    light->SetHeadlight(Standard_True);
    return light;
}

} // namespace

olViewLights::olViewLights(const Handle(V3d_Viewer) & viewer)
    : m_viewer(viewer), m_lamp(new V3d_PositionalLight(gp_Pnt(0, 0, 1000)))
{
    const Handle(V3d_AmbientLight) everywhere = new V3d_AmbientLight();
    everywhere->SetIntensity(faint);
    m_lamp->SetIntensity(lampStrength);
    for (const Handle(Graphic3d_CLight) & light : {Handle(Graphic3d_CLight)(everywhere), m_lamp}) {
        m_viewer->AddLight(light);
        m_viewer->SetLightOn(light);
    }
}

void olViewLights::apply()
{
    // A light cannot become one of another kind.
    if (!m_headlight.IsNull())
        m_viewer->DelLight(m_headlight);
    m_headlight.Nullify();
    if (!headlightShines())
        return;
    m_headlight = makeHeadlight(olHostState::the().headlightType.get() == "PointLight");
    m_viewer->AddLight(m_headlight);
    m_viewer->SetLightOn(m_headlight);
}

void olViewLights::placeLamp(const Bnd_Box &scene)
{
    if (scene.IsVoid())
        return;
    const gp_XYZ middle = (scene.CornerMin().XYZ() + scene.CornerMax().XYZ()) / 2;
    const double size = scene.CornerMin().Distance(scene.CornerMax());
    m_lamp->SetPosition(gp_Pnt(middle + olNavigator::worldUp().XYZ() * size * 0.45));
}
