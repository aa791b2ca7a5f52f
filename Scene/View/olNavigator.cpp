#include "View/olNavigator.h"

#include "Kernel/olOSGWidget.h"
#include "State/olHostState.h"

#include <Graphic3d_Camera.hxx>
#include <gp_Ax1.hxx>
#include <gp_Trsf.hxx>
#include <gp_Vec.hxx>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double pi = 3.141592653589793;

enum SpeedMode { Unconstrained = 0, Limited = 1, Linear = 2 };
enum DollyAxis { Vertical = 0, Horizontal = 1, Both = 2 };

/// Nearer than this share of the scene a limited dolly does not come to what it goes to.
constexpr double nearestShare = 0.001;

/// How much of its way a dolly goes when the mouse crosses the whole picture, or a wheel turns a step.
constexpr double sharePerPicture = 3.0;
constexpr double sharePerStep = 0.15;

/// The poles are left out, where left and right would swap.
constexpr double closestToPole = 1.0 * pi / 180.0;

/// Flying crosses the scene in this many seconds.
constexpr double secondsToCross = 4.0;

bool looksAround(int mode) { return mode == olOSGWidget::Fly || mode == olOSGWidget::Orientation; }

} // namespace

gp_Dir olNavigator::worldUp() { return olHostState::the().cameraZUp ? gp_Dir(0, 0, 1) : gp_Dir(0, 1, 0); }

void olNavigator::setScene(const gp_Pnt &middle, double size)
{
    m_pivot = middle;
    m_sceneSize = std::max(size, 1e-6);
}

double olNavigator::worldPerPixel(double distance) const
{
    const double halfAngle = m_camera->FOVy() * pi / 360.0;
    return 2.0 * distance * std::tan(halfAngle) / std::max(m_height, 1);
}

void olNavigator::turn(const gp_Pnt &around, const gp_Dir &axis, double angle)
{
    gp_Trsf rotation;
    rotation.SetRotation(gp_Ax1(around, axis), angle);
    m_camera->Transform(rotation);
}

void olNavigator::turnUpright(const gp_Pnt &around, double heading, double tilt)
{
    const gp_Dir up = worldUp();
    turn(around, up, heading);
    const double fromUp = m_camera->Direction().Angle(up);
    // The axis to the right: a positive tilt raises the direction in which the camera looks.
    tilt = std::clamp(tilt, fromUp - pi + closestToPole, fromUp - closestToPole);
    const gp_Vec right = gp_Vec(m_camera->Direction()).Crossed(gp_Vec(up));
    if (right.Magnitude() > gp::Resolution())
        turn(around, gp_Dir(right), tilt);
    if (!m_camera->Direction().IsParallel(up, closestToPole / 2))
        m_camera->SetUp(up);
    m_camera->OrthogonalizeUp();
}

void olNavigator::orbit(const QPointF &moved)
{
    const double perPixel = pi / std::max(m_height, 1);
    const double heading = -moved.x() * perPixel;
    const double tilt = -moved.y() * perPixel;
    const int mode = olHostState::the().navMode;
    if (looksAround(mode)) {
        // Looking around follows the mouse with the view, so the picture goes the other way.
        turnUpright(m_camera->Eye(), heading, tilt);
    } else if (mode == olOSGWidget::TwoAxis) {
        turnUpright(m_pivot, heading, tilt);
    } else {
        const gp_Dir up = m_camera->OrthogonalizedUp();
        const gp_Dir right = m_camera->Direction().Crossed(up);
        turn(m_pivot, up, heading);
        turn(m_pivot, right, tilt);
    }
}

void olNavigator::pan(const QPointF &moved, const gp_Pnt &clicked)
{
    const olHostState &state = olHostState::the();
    const bool byPivot = state.navUsePivotBasedPanning && state.navSpeedMode != Linear;
    double distance =
        state.navSpeedMode == Linear ? m_sceneSize : m_camera->Eye().Distance(byPivot ? m_pivot : clicked);
    distance = std::max(distance, m_sceneSize * nearestShare);
    // The factor would break the tie between the mouse and the point that was clicked.
    const double factor = byPivot || state.navSpeedMode == Linear ? double(state.navPanningSpeed) : 1.0;
    const double scale = worldPerPixel(distance) * factor;

    const gp_Dir up = m_camera->OrthogonalizedUp();
    const gp_Dir right = m_camera->Direction().Crossed(up);
    shift(gp_Vec(right) * (-moved.x() * scale) + gp_Vec(up) * (moved.y() * scale));
}

void olNavigator::dolly(const QPointF &moved)
{
    const olHostState &state = olHostState::the();
    const double vertical = state.navInvertDollyAxis ? moved.y() : -moved.y();
    double way = 0.0;
    if (state.navDollyAxis != Horizontal)
        way += vertical;
    if (state.navDollyAxis != Vertical)
        way += moved.x();
    moveAhead(sharePerPicture * way / std::max(m_height, 1));
}

void olNavigator::wheel(double steps)
{
    moveAhead(sharePerStep * (olHostState::the().navInvertWheelDolly ? -steps : steps));
}

void olNavigator::fly(double seconds)
{
    shift(gp_Vec(m_camera->Direction()) *
          (m_sceneSize / secondsToCross * seconds * double(olHostState::the().navDollySpeed)));
}

void olNavigator::moveAhead(double share)
{
    const olHostState &state = olHostState::the();
    share *= double(state.navDollySpeed);
    const gp_Pnt eye = m_camera->Eye();
    const gp_Vec toPivot(eye, m_pivot);
    const bool atPivot = toPivot.Magnitude() <= m_sceneSize * nearestShare;
    const gp_Vec ahead = state.navDollyToPivot && !atPivot ? toPivot.Normalized() : gp_Vec(m_camera->Direction());

    // How far it is to the place in the view's middle, or to the pivot, at that depth.
    double distance = std::max(toPivot.Dot(ahead), 0.0);
    double way = 0.0;
    switch (state.navSpeedMode) {
    case Linear:
        way = share * m_sceneSize;
        break;
    case Unconstrained:
        way = share * std::max(distance, 0.1 * m_sceneSize);
        break;
    default:
        // Each step is a share of what is left, so that the target is never reached nor passed.
        distance = std::max(distance, nearestShare * m_sceneSize);
        way = distance * (1.0 - std::exp(-share));
        if (share > 0.0)
            way = std::min(way, distance - nearestShare * m_sceneSize);
        break;
    }
    shift(ahead * way);
}

void olNavigator::shift(const gp_Vec &by)
{
    gp_Trsf translation;
    translation.SetTranslation(by);
    m_camera->Transform(translation);
}
