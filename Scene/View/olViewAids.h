#pragma once

#include <Bnd_Box.hxx>
#include <Standard_Handle.hxx>
#include <TopLoc_Location.hxx>

#include <vector>

class AIS_InteractiveContext;
class AIS_InteractiveObject;
class AIS_Trihedron;
class AIS_ViewCube;
class Graphic3d_CLight;

/// What is drawn beside the scene: the coordinate system, the cube to turn the view with, and the things that stand for
/// cameras, lights and joints.
class olViewAids
{
public:
    explicit olViewAids(const opencascade::handle<AIS_InteractiveContext> &context);

    /// What belongs to the scene: the lamp that lights it and the places where its parts are joined.
    void setScene(const Bnd_Box &scene, const opencascade::handle<Graphic3d_CLight> &lamp,
                  const std::vector<TopLoc_Location> &joints);

    /// Shows and hides as the host's state wants. Without `handles` only the scene is to be seen.
    void apply(bool handles);

    /// How many pixels of the picture make one of those in which the cube and the axes have their size.
    void setPixelRatio(double ratio);

    /// Whether it is one of the things made here, and nothing of the scene.
    [[nodiscard]] bool contains(const opencascade::handle<AIS_InteractiveObject> &object) const;

private:
    void sizeLamp();
    void show(const opencascade::handle<AIS_InteractiveObject> &object, bool shown, bool pickable = false);

    opencascade::handle<AIS_InteractiveContext> m_context;
    opencascade::handle<AIS_ViewCube> m_cube;
    opencascade::handle<AIS_Trihedron> m_coordinateSystem;
    opencascade::handle<AIS_InteractiveObject> m_camera;
    opencascade::handle<AIS_InteractiveObject> m_light;
    std::vector<opencascade::handle<AIS_InteractiveObject>> m_joints;
    bool m_isZUp = true;
    double m_pixelRatio = 0;
};
