#include "Display/olStarVRHandler.h"
#include "Embedded/olHostState.h"
#include "Kernel/olController.h"
#include "Kernel/olLights.h"
#include "Kernel/olScenegraph.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

class HostCalls : public ::testing::Test
{
protected:
    HostCalls()
    {
        state.reset();
        state.isPassive = true;
    }
    ~HostCalls() override
    {
        state.reset();
        state.isPassive = false;
    }

    olHostState &state = olHostState::the();
};

TEST_F(HostCalls, WhatMayBeAbsentIsNullUntilTheHostHasIt)
{
    EXPECT_EQ(olStarVRHandler::getHandler(), nullptr);
    EXPECT_EQ(olController::getWebInterface(), nullptr);
    EXPECT_TRUE(olScenegraph::getHeadlight() != osg::NullFC);

    state.headlight = false;
    EXPECT_TRUE(olScenegraph::getHeadlight() == osg::NullFC);
    olLights::changeLightType(olScenegraph::getHeadlight(), "PointLight");
    EXPECT_EQ(state.headlightType.get(), "DirectionalLight");

    olController::enableWebInterface(true);
    EXPECT_TRUE(state.webInterfaceWanted);
    EXPECT_EQ(olController::getWebInterface(), nullptr) << "starting the server does not make the object";
}

TEST_F(HostCalls, NoTwoValuesOfTheStateShareAName)
{
    std::set<std::string> names;
    for (const olHostValueBase *value : state.values())
        EXPECT_TRUE(names.insert(value->name()).second) << value->name();
}

} // namespace
