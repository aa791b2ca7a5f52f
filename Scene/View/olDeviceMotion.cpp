#include "View/olDeviceMotion.h"

#include "State/olHostState.h"
#include "View/olNavigator.h"

#include <Graphic3d_Camera.hxx>
#include <gp_Ax1.hxx>

#include <algorithm>
#include <cmath>

namespace
{

constexpr int stepMilliseconds = 16;

/// A program that was held up must not jump.
constexpr double longestStep = 0.1;

/// What the daemon of the 3D mouse reports for a cap that is moved as far as it goes, about.
constexpr double fullCap = 350.0;

/// Sticks hardly ever rest exactly in their middle.
constexpr double idleStick = 0.12;

/// At full deflection the scene is crossed in two seconds and a quarter turn takes one.
constexpr double crossingsPerSecond = 0.5;
constexpr double turnPerSecond = 1.5707963267948966;

enum ViewMode { MovesCamera = 0, MovesObject = 1 };
enum PivotMode { AroundCamera = 0, AroundSelection = 1, AroundFocus = 2 };
enum StickAxis { Sideways, Ahead, Heading, Tilt, StickAxes };

/// How fast something shall go and turn: 1 is as fast as it can. Axes are those of the picture: right, up, and out of
/// it.
struct Motion {
    gp_Vec shift;
    gp_Vec turn;
};

double deflection(float value) { return std::isfinite(value) ? std::clamp(double(value) / fullCap, -1.0, 1.0) : 0.0; }

Motion capMotion()
{
    const std::vector<float> &cap = olHostState::the().spacemouseMotion;
    if (cap.size() < 6)
        return {};
    // The daemon counts into the picture as positive.
    return {gp_Vec(deflection(cap[0]), deflection(cap[1]), -deflection(cap[2])),
            gp_Vec(deflection(cap[3]), deflection(cap[4]), -deflection(cap[5]))};
}

double stick(StickAxis axis)
{
    const double value = olHostState::the().joystickAxes.get()[axis];
    const double beyond = std::max(std::abs(value) - idleStick, 0.0) / (1.0 - idleStick);
    return std::copysign(beyond, value);
}

Motion stickMotion()
{
    const olHostState &state = olHostState::the();
    if (!state.joystickNavigation || state.joystickAxes.get().size() < StickAxes)
        return {};
    return {gp_Vec(stick(Sideways), 0, stick(Ahead)), gp_Vec(-stick(Tilt), -stick(Heading), 0)};
}

bool isRest(const Motion &motion) { return motion.shift.Magnitude() == 0.0 && motion.turn.Magnitude() == 0.0; }

/// The picture's axes in the scene.
struct Frame {
    explicit Frame(const Graphic3d_Camera &camera)
        : up(camera.OrthogonalizedUp()), back(camera.Direction().Reversed()), right(up.Crossed(back))
    {
    }

    gp_Vec up;
    gp_Vec back;
    gp_Vec right;
};

/// Without roll, and with what goes ahead and up taken along the ground and off it.
Frame levelled(const Frame &frame)
{
    Frame level = frame;
    level.up = gp_Vec(olNavigator::worldUp());
    const gp_Vec right = level.up.Crossed(frame.back);
    if (right.Magnitude() > 1e-6) {
        level.right = right.Normalized();
        level.back = level.right.Crossed(level.up);
    }
    return level;
}

gp_Pnt pivotFor(int mode, const olNavigator &navigator, const gp_Pnt &target)
{
    const Graphic3d_Camera &camera = navigator.camera();
    if (mode == AroundSelection)
        return target;
    if (mode != AroundFocus)
        return camera.Eye();
    const gp_Vec ahead(camera.Direction());
    const double distance = gp_Vec(camera.Eye(), navigator.pivot()).Dot(ahead);
    return camera.Eye().Translated(ahead * std::max(distance, 0.01 * navigator.sceneSize()));
}

void shiftBy(olNavigator &navigator, const gp_Vec &way, const Frame &frame, double seconds)
{
    const double scale = navigator.sceneSize() * crossingsPerSecond * seconds;
    navigator.shift((frame.right * way.X() + frame.up * way.Y() + frame.back * way.Z()) * scale);
}

void turnBy(olNavigator &navigator, const gp_Vec &turn, const gp_Pnt &pivot, bool upright, double seconds)
{
    const double scale = turnPerSecond * seconds;
    if (upright) {
        navigator.turnUpright(pivot, turn.Y() * scale, turn.X() * scale);
        return;
    }
    const Frame frame(navigator.camera());
    const gp_Vec axis = frame.right * turn.X() + frame.up * turn.Y() + frame.back * turn.Z();
    if (axis.Magnitude() > 0.0)
        navigator.turn(pivot, gp_Dir(axis), axis.Magnitude() * scale);
}

void keepHeight(olNavigator &navigator, double height)
{
    const gp_Vec up(olNavigator::worldUp());
    const double now = gp_Vec(navigator.camera().Eye().XYZ()).Dot(up);
    if (std::isfinite(height))
        navigator.shift(up * (height - now));
}

void moveWithCap(olNavigator &navigator, const gp_Pnt &target, double seconds)
{
    const olHostState &state = olHostState::the();
    Motion motion = capMotion();
    if (isRest(motion))
        return;
    if (state.spacemouseViewMode == MovesObject)
        motion = {motion.shift.Reversed(), motion.turn.Reversed()};
    const Frame frame(navigator.camera());
    shiftBy(navigator, motion.shift, state.spacemouseHelicopter ? levelled(frame) : frame, seconds);
    turnBy(navigator, motion.turn, pivotFor(state.spacemousePivotMode, navigator, target), state.spacemouseTwoAxis,
           seconds);
    if (state.spacemouseUseFixedHeight)
        keepHeight(navigator, double(state.spacemouseFixedHeight));
}

} // namespace

olDeviceMotion::olDeviceMotion()
{
    m_timer.setInterval(stepMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, &olDeviceMotion::step);
    olHostState::the().addObserver(*this);
}

olDeviceMotion::~olDeviceMotion() { olHostState::the().removeObserver(*this); }

void olDeviceMotion::stateChanged(const olHostValueBase &value)
{
    const olHostState &state = olHostState::the();
    if (&value != &state.spacemouseMotion && &value != &state.joystickAxes && &value != &state.joystickNavigation)
        return;
    const bool moves = !isRest(capMotion()) || !isRest(stickMotion());
    if (moves && !m_timer.isActive()) {
        m_sinceStep.start();
        m_timer.start();
    } else if (!moves && m_timer.isActive()) {
        m_timer.stop();
        emit stopped();
    }
}

void olDeviceMotion::step() { emit due(std::min(double(m_sinceStep.restart()) / 1000.0, longestStep)); }

void olDeviceMotion::move(olNavigator &navigator, const gp_Pnt &target, double seconds)
{
    moveWithCap(navigator, target, seconds);
    const Motion sticks = stickMotion();
    if (isRest(sticks))
        return;
    shiftBy(navigator, sticks.shift, Frame(navigator.camera()), seconds);
    turnBy(navigator, sticks.turn, navigator.camera().Eye(), true, seconds);
}
