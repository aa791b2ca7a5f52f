#include "Scene/View/ViewTest.h"

#include "Kernel/olOSGWidget.h"
#include "State/olHostState.h"
#include "View/olGradient.h"
#include "View/olMouseStyle.h"
#include "View/olNavigator.h"

#include <Graphic3d_Camera.hxx>

#include <QSignalSpy>
#include <QTest>

namespace
{

/// A camera 100 in front of a scene of the size 50, in a picture 100 pixels high.
class Navigation : public testing::Test
{
protected:
    Navigation() : state(olHostState::the()), camera(new Graphic3d_Camera())
    {
        state.reset();
        camera->SetProjectionType(Graphic3d_Camera::Projection_Perspective);
        camera->SetUp(gp_Dir(0, 0, 1));
        camera->SetEyeAndCenter(gp_Pnt(0, -100, 0), gp_Pnt(0, 0, 0));
        camera->SetFOVy(90.0);
        navigator.setCamera(camera);
        navigator.setScene(gp_Pnt(0, 0, 0), 50.0);
        navigator.setPictureHeight(100);
    }
    ~Navigation() override { state.reset(); }

    [[nodiscard]] double distance() const { return camera->Eye().Distance(navigator.pivot()); }

    olHostState &state;
    opencascade::handle<Graphic3d_Camera> camera;
    olNavigator navigator;
};

TEST_F(Navigation, OrbitKeepsTheDistanceAndTwoAxesKeepTheHorizon)
{
    state.navMode = olOSGWidget::TwoAxis;
    navigator.orbit({30, 0});
    navigator.orbit({10, 25});
    EXPECT_NEAR(distance(), 100.0, 1e-6);
    EXPECT_LT(camera->Eye().X(), 0.0) << "the scene follows the mouse to the right";
    EXPECT_GT(camera->Eye().Z(), 0.0) << "dragged down, the scene is seen from above";
    const gp_Dir right = camera->Direction().Crossed(camera->Up());
    EXPECT_NEAR(right.Z(), 0.0, 1e-6);

    for (int i = 0; i < 50; ++i)
        navigator.orbit({0, 30});
    EXPECT_GT(camera->Up().Z(), 0.0) << "it stops at the pole";
    EXPECT_NEAR(distance(), 100.0, 1e-6);

    state.navMode = olOSGWidget::Trackball;
    for (int i = 0; i < 2; ++i)
        navigator.orbit({0, 30});
    EXPECT_LT(camera->Up().Z(), 0.0) << "a trackball goes on over it";
}

TEST_F(Navigation, LookingAroundLeavesTheEyeWhereItIs)
{
    for (const int mode : {int(olOSGWidget::Orientation), int(olOSGWidget::Fly)}) {
        state.navMode = mode;
        navigator.orbit({20, 10});
        EXPECT_NEAR(camera->Eye().Distance(gp_Pnt(0, -100, 0)), 0.0, 1e-6);
    }
    navigator.fly(1.0);
    EXPECT_NEAR(camera->Eye().Distance(gp_Pnt(0, -100, 0)), 12.5, 1e-6) << "a quarter of the scene in a second";
}

TEST_F(Navigation, PanningKeepsTheClickedPointUnderTheMouse)
{
    const gp_Pnt clicked(0, 0, 0);
    state.navPanningSpeed = 5.0f;
    navigator.pan({10, 0}, clicked);
    EXPECT_NEAR(camera->Eye().X(), -20.0, 1e-6) << "the picture is 200 high at that depth; the speed does not count";

    state.navUsePivotBasedPanning = true;
    navigator.pan({0, 10}, clicked);
    EXPECT_NEAR(camera->Eye().Z(), 5 * 0.2 * std::hypot(100.0, 20.0) * 1.0 * 10 / 10, 2.0);
}

TEST_F(Navigation, DollyFollowsItsAxisAndDirection)
{
    navigator.dolly({0, -10});
    EXPECT_LT(distance(), 100.0) << "up goes ahead";
    const double near = distance();
    navigator.dolly({50, 0});
    EXPECT_DOUBLE_EQ(distance(), near) << "only up and down count";
    state.navDollyAxis = 1;
    navigator.dolly({-10, 7});
    EXPECT_GT(distance(), near);

    state.navDollyAxis = 0;
    state.navInvertDollyAxis = true;
    const double far = distance();
    navigator.dolly({0, -10});
    EXPECT_GT(distance(), far);
    state.navInvertWheelDolly = true;
    navigator.wheel(-1.0);
    EXPECT_LT(distance(), 200.0);
}

TEST_F(Navigation, SpeedModesDifferInWhetherTheyPassThePivot)
{
    state.navSpeedMode = 1;
    for (int i = 0; i < 100; ++i)
        navigator.wheel(1.0);
    EXPECT_LT(camera->Eye().Y(), 0.0) << "limited: never through it";
    EXPECT_GT(camera->Eye().Y(), -1.0);

    state.navSpeedMode = 2;
    navigator.wheel(1.0);
    const double first = camera->Eye().Y();
    navigator.wheel(1.0);
    EXPECT_NEAR(camera->Eye().Y() - first, 50 * 0.15, 1e-6) << "linear: the same step everywhere";
    EXPECT_GT(camera->Eye().Y(), 0.0);
    state.navDollySpeed = 2.0f;
    const double second = camera->Eye().Y();
    navigator.wheel(1.0);
    EXPECT_NEAR(camera->Eye().Y() - second, 2 * 50 * 0.15, 1e-6);
}

TEST_F(Navigation, DollyingToThePivotLeavesTheMiddle)
{
    navigator.setPivot(gp_Pnt(100, 0, 0));
    state.navDollyToPivot = true;
    navigator.wheel(1.0);
    EXPECT_GT(camera->Eye().X(), 1.0);
}

TEST(MouseStyles, NavigateWithTheirOwnButtons)
{
    using olMouseStyle::Action;
    using olMouseStyle::actionFor;
    EXPECT_EQ(actionFor(0, Qt::MiddleButton, Qt::NoModifier), Action::Pan);
    EXPECT_EQ(actionFor(1, Qt::LeftButton, Qt::NoModifier), Action::None);
    EXPECT_EQ(actionFor(1, Qt::LeftButton, Qt::ShiftModifier | Qt::AltModifier), Action::Orbit);
    EXPECT_EQ(actionFor(2, Qt::MiddleButton, Qt::NoModifier), Action::Dolly);
    EXPECT_EQ(actionFor(77, Qt::RightButton, Qt::NoModifier), Action::Dolly) << "an unknown style is the first";
}

TEST(Gradient, ReadsItsStopsInAnyOrder)
{
    const olGradient gradient({{1, 1, 1}, {0, 0, 0}, {1, 0, 0}}, {1.0f, 0.0f, 0.5f, 9.0f});
    EXPECT_FLOAT_EQ(gradient.at(0.25f).red(), 0.5f);
    EXPECT_FLOAT_EQ(gradient.at(0.75f).green(), 0.5f);
    EXPECT_FLOAT_EQ(gradient.at(-3.0f).red(), 0.0f);
    EXPECT_FLOAT_EQ(gradient.at(3.0f).blue(), 1.0f);
    const olGradient step({{0, 0, 0}, {1, 1, 1}}, {0.5f, 0.5f});
    EXPECT_FLOAT_EQ(step.at(0.49f).red(), 0.0f);
    EXPECT_FLOAT_EQ(step.at(0.51f).red(), 1.0f);
}

using MouseInTheView = ViewTest;

TEST_F(MouseInTheView, AClickSelectsAndADragDoesNot)
{
    const QPoint middle(width / 2, height / 2);
    QSignalSpy selected(&view, &olViewport::selectionChanged);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, middle);
    EXPECT_EQ(view.selection().size(), 1);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ControlModifier, middle);
    EXPECT_TRUE(view.selection().isEmpty()) << "a second one with Control takes it back";
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, middle);
    const int told = selected.count();

    const QImage before = view.picture();
    press(middle, middle + QPoint(60, 20));
    release(middle + QPoint(60, 20));
    EXPECT_GT(difference(before, view.picture()), 0.02);
    EXPECT_EQ(selected.count(), told);

    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(4, height - 4));
    EXPECT_TRUE(view.selection().isEmpty()) << "a click beside the scene selects nothing";
}

TEST_F(MouseInTheView, TheCameraGlidesOnlyWhereItShall)
{
    const QImage home = view.picture();
    QWheelEvent wheel(QPointF(50, 50), view.mapToGlobal(QPoint(50, 50)), QPoint(), QPoint(0, 480), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &wheel);
    EXPECT_GT(difference(home, view.picture()), 0.02);
    olHostState::the().animateNavCam = false;
    view.showAll();
    EXPECT_LT(difference(home, view.picture()), 0.002) << "at once";

    QApplication::sendEvent(&view, &wheel);
    olHostState::the().animateNavCam = true;
    for (const float duration : {10.0f, 200.0f}) {
        QApplication::sendEvent(&view, &wheel);
        olHostState::the().animateNavCamDuration = duration;
        view.showAll();
        EXPECT_GT(difference(home, view.picture()), 0.02) << "on its way";
        const bool isShort = duration < 100.0f;
        const auto isThere = [&] { return difference(home, view.picture()) < 0.002; };
        EXPECT_EQ(QTest::qWaitFor(isThere, isShort ? 20000 : 1000), isShort)
            << "the duration counts frames, of which a second has some sixty";
    }
}

TEST_F(MouseInTheView, AMouseThatRestedOrbitsAroundThePlaceUnderIt)
{
    const QPoint offside(185, 140);
    const QPoint goal = offside + QPoint(30, 0);
    olHostState &state = olHostState::the();
    state.navOrbitMode = true;
    const auto orbited = [&](int rest, int area, int time) {
        state.navOrbitDetectionArea = area;
        state.navOrbitDetectionTime = time;
        scene.loadSample();
        press(offside, goal, rest);
        release(goal);
        settle();
        return view.picture();
    };
    const QImage around = orbited(150, 40, 100);
    const QImage aroundPivot = orbited(0, 40, 100);
    EXPECT_GT(difference(around, aroundPivot), 0.02);
    EXPECT_LT(difference(orbited(150, 20, 100), aroundPivot), 0.002) << "it went too far at once";
    EXPECT_LT(difference(orbited(150, 40, 5000), aroundPivot), 0.002) << "it did not rest for long enough";
    state.navOrbitMode = false;
    EXPECT_LT(difference(orbited(150, 40, 100), aroundPivot), 0.002);
}

TEST_F(MouseInTheView, AnotherSceneReplacesTheFirst)
{
    const QImage full = view.picture();
    view.select(view.parts());
    scene.clear();
    EXPECT_TRUE(view.parts().isEmpty());
    EXPECT_TRUE(view.selection().isEmpty());
    EXPECT_GT(difference(full, view.picture()), 0.1);
    view.showAll();
    view.zoomToSelection();
    scene.loadSample();
    EXPECT_LT(difference(full, view.picture()), 0.002);
}

} // namespace
