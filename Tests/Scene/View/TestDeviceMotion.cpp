#include "State/olHostState.h"
#include "View/olDeviceMotion.h"
#include "View/olNavigator.h"

#include <Graphic3d_Camera.hxx>

#include <gtest/gtest.h>

namespace
{

/// A camera 100 in front of a scene of the size 50, looking a little down; what is selected is off to the right.
class DeviceMotion : public testing::Test
{
protected:
    DeviceMotion() : state(olHostState::the()), camera(new Graphic3d_Camera())
    {
        state.reset();
        camera->SetUp(gp_Dir(0, 0, 1));
        camera->SetEyeAndCenter(gp_Pnt(0, -100, 50), gp_Pnt(0, 0, 0));
        navigator.setCamera(camera);
        navigator.setScene(gp_Pnt(0, 0, 0), 50.0);
    }
    ~DeviceMotion() override { state.reset(); }

    void push(const std::vector<float> &cap, double seconds = 0.1)
    {
        state.spacemouseMotion = cap;
        olDeviceMotion::move(navigator, selected, seconds);
    }

    [[nodiscard]] gp_Vec wayFrom(const gp_Pnt &start) const { return {start, camera->Eye()}; }
    [[nodiscard]] double horizon() const { return camera->Direction().Crossed(camera->Up()).Z(); }

    olHostState &state;
    opencascade::handle<Graphic3d_Camera> camera;
    olNavigator navigator;
    const gp_Pnt selected{40, 0, 0};
    const gp_Pnt home{0, -100, 50};
};

TEST_F(DeviceMotion, MovesTheCameraOrTheObject)
{
    push({350, 0, 0, 0, 0, 0});
    EXPECT_NEAR(camera->Eye().X(), 2.5, 1e-6) << "half the scene in a second";
    state.spacemouseViewMode = 1;
    push({350, 0, 0, 0, 0, 0}, 0.2);
    EXPECT_NEAR(camera->Eye().X(), -2.5, 1e-6) << "the object to the right is the camera to the left";
    push({NAN, INFINITY, 0, 0, 0, 9e9f});
    push({1, 2});
    EXPECT_TRUE(std::isfinite(camera->Eye().X()));
}

TEST_F(DeviceMotion, AHelicopterGoesAlongTheGround)
{
    push({0, 0, 350, 0, 0, 0});
    EXPECT_LT(wayFrom(home).Z(), -0.1) << "else it goes where it looks";
    const gp_Pnt there = camera->Eye();
    state.spacemouseHelicopter = true;
    push({0, 0, 350, 0, 0, 0});
    EXPECT_NEAR(wayFrom(there).Z(), 0.0, 1e-9);
    EXPECT_GT(wayFrom(there).Y(), 1.0);
    const gp_Pnt farther = camera->Eye();
    push({0, 350, 0, 0, 0, 0});
    EXPECT_TRUE(wayFrom(farther).IsParallel(gp_Vec(0, 0, 1), 1e-6));
}

TEST_F(DeviceMotion, TurnsAroundItsPivot)
{
    const std::vector<float> turned{0, 0, 0, 0, 350, 0};
    push(turned);
    EXPECT_NEAR(camera->Eye().Distance(home), 0.0, 1e-9) << "around the camera";
    state.spacemousePivotMode = 1;
    const double toSelected = camera->Eye().Distance(selected);
    push(turned);
    EXPECT_GT(camera->Eye().Distance(home), 1.0);
    EXPECT_NEAR(camera->Eye().Distance(selected), toSelected, 1e-6);

    camera->SetEyeAndCenter(home, gp_Pnt(0, 0, 0));
    state.spacemousePivotMode = 2;
    push(turned);
    EXPECT_NEAR(camera->Eye().Distance(gp_Pnt(0, 0, 0)), home.Distance(gp_Pnt(0, 0, 0)), 1e-6) << "what is in focus";
}

TEST_F(DeviceMotion, TwoAxesKeepTheHorizonAndAFixedHeightTheHeight)
{
    push({0, 0, 0, 100, 100, 200});
    EXPECT_GT(std::abs(horizon()), 0.01);
    camera->SetEyeAndCenter(home, gp_Pnt(0, 0, 0));
    camera->SetUp(gp_Dir(0, 0, 1));
    state.spacemouseTwoAxis = true;
    push({0, 0, 0, 100, 100, 200});
    EXPECT_NEAR(horizon(), 0.0, 1e-9);

    state.spacemouseUseFixedHeight = true;
    state.spacemouseFixedHeight = 17.0f;
    push({0, 200, 0, 0, 0, 0});
    EXPECT_NEAR(camera->Eye().Z(), 17.0, 1e-6);
    state.cameraZUp = false;
    push({0, 200, 0, 0, 0, 0});
    EXPECT_NEAR(camera->Eye().Y(), 17.0, 1e-6);
}

TEST_F(DeviceMotion, SticksWalkAndLookAroundOutsideTheirIdleMiddle)
{
    state.joystickNavigation = true;
    state.joystickAxes = {0.1f, -0.1f, 0.1f, 0.1f};
    olDeviceMotion::move(navigator, selected, 0.1);
    EXPECT_NEAR(camera->Eye().Distance(home), 0.0, 1e-12);
    state.joystickAxes = {0.0f, -1.0f, 0.0f, 0.0f};
    olDeviceMotion::move(navigator, selected, 0.1);
    EXPECT_NEAR(gp_Vec(camera->Direction()).Dot(wayFrom(home)), 2.5, 1e-6) << "forward";
    state.joystickAxes = {0.0f, 0.0f, 1.0f, -1.0f};
    const gp_Dir before = camera->Direction();
    olDeviceMotion::move(navigator, selected, 0.1);
    EXPECT_GT(camera->Direction().X(), before.X()) << "to the right";
    EXPECT_GT(camera->Direction().Z(), before.Z()) << "up";
    EXPECT_NEAR(horizon(), 0.0, 1e-9);
}

} // namespace
