#pragma once

#include <Standard_Handle.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

#include <QPointF>

class Graphic3d_Camera;

/// Moves the camera as mouse and wheel ask, in the way that the host's navigation state says. Distances on the screen
/// are pixels, x to the right and y down.
class olNavigator
{
public:
    void setCamera(const opencascade::handle<Graphic3d_Camera> &camera) { m_camera = camera; }

    /// What there is to look at: its middle, which becomes the pivot, and its size.
    void setScene(const gp_Pnt &middle, double size);

    /// The height of the picture in pixels, or its width where that is less.
    void setPictureHeight(int pixels) { m_height = pixels; }

    void setPivot(const gp_Pnt &pivot) { m_pivot = pivot; }
    [[nodiscard]] const gp_Pnt &pivot() const { return m_pivot; }

    /// Where up is in the scene.
    [[nodiscard]] static gp_Dir worldUp();

    /// Turns the camera: around the pivot, or in the modes that look around from where the camera stands, around its
    /// eye.
    void orbit(const QPointF &moved);

    /// Shifts the picture with the mouse. The clicked point decides how fast, unless the pivot does.
    void pan(const QPointF &moved, const gp_Pnt &clicked);

    void dolly(const QPointF &moved);

    /// One step of a wheel is 1; away from the user is positive and goes ahead.
    void wheel(double steps);

    /// Straight ahead, as flying does while the button is held.
    void fly(double seconds);

    // What all of these are made of; angles are radians.

    [[nodiscard]] const Graphic3d_Camera &camera() const { return *m_camera; }
    [[nodiscard]] double sceneSize() const { return m_sceneSize; }
    void shift(const gp_Vec &by);
    void turn(const gp_Pnt &around, const gp_Dir &axis, double angle);

    /// Keeps the horizon level and stops at the poles. A positive tilt raises the direction in which the camera looks.
    void turnUpright(const gp_Pnt &around, double heading, double tilt);

private:
    [[nodiscard]] double worldPerPixel(double distance) const;
    void moveAhead(double share);

    opencascade::handle<Graphic3d_Camera> m_camera;
    gp_Pnt m_pivot;
    double m_sceneSize = 1.0;
    int m_height = 1;
};
