#pragma once

#include <Bnd_Box.hxx>
#include <Standard_Handle.hxx>

class Graphic3d_CLight;
class V3d_View;
class V3d_Viewer;

/// The lights of the scene: a faint one everywhere, a lamp above the scene, and the headlight at the camera.
class olViewLights
{
public:
    explicit olViewLights(const opencascade::handle<V3d_Viewer> &viewer);

    /// The headlight as the host's state wants it.
    void apply();

    /// Hangs the lamp above what there is to see.
    void placeLamp(const Bnd_Box &scene);

    [[nodiscard]] const opencascade::handle<Graphic3d_CLight> &lamp() const { return m_lamp; }

private:
    opencascade::handle<V3d_Viewer> m_viewer;
    opencascade::handle<Graphic3d_CLight> m_lamp;
    opencascade::handle<Graphic3d_CLight> m_headlight;
};
