#include "Display/olStarVRHandler.h"
#include "Embedded/olHostState.h"
#include "Embedded/olJournal.h"
#include "Kernel/OSGSelection.h"
#include "Kernel/olController.h"
#include "Kernel/olLights.h"
#include "Kernel/olOSGWidget.h"
#include "Kernel/olScenegraph.h"
#include "Utilities/olMessage.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

using Calls = std::vector<std::string>;

class HostCalls : public ::testing::Test, private olJournalObserver
{
protected:
    HostCalls() : m_before(olJournal::observe(this))
    {
        state.reset();
        state.isPassive = true;
    }
    ~HostCalls() override
    {
        olJournal::observe(m_before);
        state.reset();
        state.isPassive = false;
    }

    void called(const std::string &call) override { calls.push_back(call); }

    olHostState &state = olHostState::the();
    Calls calls;

private:
    olJournalObserver *m_before;
};

TEST_F(HostCalls, WriteEachArgumentByItsDeclaredType)
{
    olOSGWidget::enableAntialiasing(true);
    olOSGWidget::setAntialiasing(0.2f, 1.0f, 1e-5);
    olOSGWidget::setNearFarPlaneLimit(false, 10.0f, 100000.0f);
    olOSGWidget::setNavMode(-1, olOSGWidget::TwoAxis);
    olController::setJoystickNavigation(2, true);
    osg::Selection::setForceTransparentObjectSelection(true);
    olOSGWidget::updateAllMGLW();
    olController::isOrloDesign();
    olOSGWidget::getNavPanningSpeed(); // questions are not written
    EXPECT_EQ(calls,
              (Calls{"olOSGWidget::enableAntialiasing(1)", "olOSGWidget::setAntialiasing(0.2, 1, 1e-05)",
                     "olOSGWidget::setNearFarPlaneLimit(false, 10, 100000)", "olOSGWidget::setNavMode(-1, 3)",
                     "olController::setJoystickNavigation(2, true)",
                     "osg::Selection::setForceTransparentObjectSelection(true)", "olOSGWidget::updateAllMGLW()"}));
}

TEST_F(HostCalls, WriteListsColoursNodesAndMessages)
{
    olOSGWidget::setAllGradientBackgrounds({{0, 0, 0}, {1, 1, 1}}, {1, 0});
    olOSGWidget::setAllGradientBackgrounds({}, {});
    olScenegraph::setPreselectionColor({0.1f, 0.3f, 0.9f});
    olLights::changeLightType(olScenegraph::getHeadlight(), "DirectionalLight");
    olLights::changeLightType(osg::NullFC, "PointLight");
    olMessage message;
    message.set("useSimpleToolclips", true);
    message.set("say", QString("\"a\\b\"\n"));
    olController::call("updateToolclip", message, 0);
    EXPECT_EQ(calls, (Calls{"olOSGWidget::setAllGradientBackgrounds([(0, 0, 0), (1, 1, 1)], [1, 0])",
                            "olOSGWidget::setAllGradientBackgrounds([], [])",
                            "olScenegraph::setPreselectionColor((0.1, 0.3, 0.9))",
                            "olLights::changeLightType(headlight, \"DirectionalLight\")",
                            "olLights::changeLightType(null, \"PointLight\")",
                            "olController::call(\"updateToolclip\", {\"say\": qstring \"\\\"a\\\\b\\\"\\n\", "
                            "\"useSimpleToolclips\": bool true}, 0)"}));
}

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
