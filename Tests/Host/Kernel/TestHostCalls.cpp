#include "Display/olStarVRHandler.h"
#include "Embedded/olHostState.h"
#include "Embedded/olJournal.h"
#include "Kernel/OSGSelection.h"
#include "Kernel/olController.h"
#include "Kernel/olFileIO.h"
#include "Kernel/olGeometryOptimizer.h"
#include "Kernel/olLights.h"
#include "Kernel/olOSGWidget.h"
#include "Kernel/olScenegraph.h"
#include "Kernel/olSpacemouse.h"
#include "Kernel/olWebInterface.h"
#include "Utilities/olMessage.h"
#include "Widgets/exCursorProgress.h"

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
    olOSGWidget::setFov(-1, 60.0f);
    olOSGWidget::enableAntialiasing(true);
    olOSGWidget::setPostprocessAntialiasing(1u);
    olOSGWidget::setAntialiasing(0.2f, 1.0f, 1e-5);
    olOSGWidget::setNearFarPlaneLimit(false, 10.0f, 100000.0f);
    olOSGWidget::setNavMode(-1, olOSGWidget::TwoAxis);
    olOSGWidget::setInteractionMode(static_cast<olOSGWidget::InteractionMode>(7));
    exCursorProgress::setPreferredPosition(static_cast<exCursorProgress::Position>(true));
    olController::setWindowOpacity(0.1);
    olController::setJoystickNavigation(2, true);
    olOSGWidget::updateAllMGLW();
    EXPECT_EQ(calls, (Calls{"olOSGWidget::setFov(-1, 60)", "olOSGWidget::enableAntialiasing(1)",
                            "olOSGWidget::setPostprocessAntialiasing(1)", "olOSGWidget::setAntialiasing(0.2, 1, 1e-05)",
                            "olOSGWidget::setNearFarPlaneLimit(false, 10, 100000)", "olOSGWidget::setNavMode(-1, 3)",
                            "olOSGWidget::setInteractionMode(7)", "exCursorProgress::setPreferredPosition(1)",
                            "olController::setWindowOpacity(0.1)", "olController::setJoystickNavigation(2, true)",
                            "olOSGWidget::updateAllMGLW()"}));
}

TEST_F(HostCalls, WriteListsColoursNodesAndMessages)
{
    olOSGWidget::setAllGradientBackgrounds({{0, 0, 0}, {1, 1, 1}}, {1, 0});
    olOSGWidget::setAllGradientBackgrounds({}, {});
    olScenegraph::setPreselectionColor({0.1f, 0.3f, 0.9f});
    olGeometryOptimizer::setTessellationQuality({0.01f, 1.0f});
    olLights::changeLightType(olScenegraph::getHeadlight(), "DirectionalLight");
    olLights::changeLightType(osg::NullFC, "PointLight");
    olMessage message;
    message.set("useSimpleToolclips", true);
    message.set("say", QString("\"a\\b\"\n"));
    olController::call("updateToolclip", message, 0);
    EXPECT_EQ(calls, (Calls{"olOSGWidget::setAllGradientBackgrounds([(0, 0, 0), (1, 1, 1)], [1, 0])",
                            "olOSGWidget::setAllGradientBackgrounds([], [])",
                            "olScenegraph::setPreselectionColor((0.1, 0.3, 0.9))",
                            "olGeometryOptimizer::setTessellationQuality([0.01, 1])",
                            "olLights::changeLightType(headlight, \"DirectionalLight\")",
                            "olLights::changeLightType(null, \"PointLight\")",
                            "olController::call(\"updateToolclip\", {\"say\": qstring \"\\\"a\\\\b\\\"\\n\", "
                            "\"useSimpleToolclips\": bool true}, 0)"}));
}

TEST_F(HostCalls, GoUnderTheNamesThatTheirClassesHaveOutside)
{
    state.starVRHandler = true;
    state.webInterface = true;
    osg::Selection::setForceTransparentObjectSelection(true);
    olStarVRHandler::getHandler()->setFoveatedFovFactor(0.5f);
    olController::getWebInterface()->setDebugMode(true);
    olSpacemouse::terminate();
    EXPECT_EQ(calls, (Calls{"osg::Selection::setForceTransparentObjectSelection(true)",
                            "olStarVRHandler::setFoveatedFovFactor(0.5)", "olWebInterface::setDebugMode(true)",
                            "olSpacemouse::terminate()"}));
}

TEST_F(HostCalls, QuestionsAreNotWritten)
{
    olController::isOrloDesign();
    olController::getWebInterfacePipe();
    olOSGWidget::getNavPanningSpeed();
    olScenegraph::getHeadlight();
    exCursorProgress::getBaseSize();
    EXPECT_TRUE(calls.empty());
}

TEST_F(HostCalls, ChangeTheFactsThatAreAskedFor)
{
    olOSGWidget::setDisplayType(6);
    olOSGWidget::enableRender(0);
    olOSGWidget::setHighQualityAntialiasing(true);
    olOSGWidget::setCamerasVisible(false);
    olOSGWidget::setLightsVisible(false);
    olOSGWidget::setJointsVisible(true);
    EXPECT_EQ(olOSGWidget::getDisplayType(), 6);
    EXPECT_FALSE(olOSGWidget::isRenderEnabled());
    EXPECT_TRUE(olOSGWidget::getHighQualityAntialiasing());
    EXPECT_FALSE(olOSGWidget::getCamerasVisible());
    EXPECT_FALSE(olOSGWidget::getLightsVisible());
    EXPECT_TRUE(olOSGWidget::getJointsVisible());

    exCursorProgress::setPreferredSize(48);
    exCursorProgress::setPreferredPosition(exCursorProgress::InCorner);
    exCursorProgress::setPreferredVisibility(false);
    EXPECT_EQ(exCursorProgress::getBaseSize(), 48);
    EXPECT_EQ(exCursorProgress::getPreferredPosition(), 1);
    EXPECT_FALSE(exCursorProgress::getPreferredVisibility());

    olOSGWidget::setNavUsePivotBasedPanning(true);
    olOSGWidget::setNavPanningSpeed(2.5f);
    olOSGWidget::setNavSpeedMode(2);
    olOSGWidget::setNavDollySpeed(0.5f);
    olOSGWidget::setNavDollyAxis(1);
    olOSGWidget::setNavDollyToPivot(true);
    olOSGWidget::setNavOrbitMode(true);
    olOSGWidget::setNavOrbitDetectionArea(41);
    olOSGWidget::setNavOrbitDetectionTime(101);
    EXPECT_TRUE(olOSGWidget::getNavUsePivotBasedPanning());
    EXPECT_EQ(olOSGWidget::getNavPanningSpeed(), 2.5f);
    EXPECT_EQ(olOSGWidget::getNavSpeedMode(), 2);
    EXPECT_EQ(olOSGWidget::getNavDollySpeed(), 0.5f);
    EXPECT_EQ(olOSGWidget::getNavDollyAxis(), 1);
    EXPECT_TRUE(olOSGWidget::getNavDollyToPivot());
    EXPECT_TRUE(olOSGWidget::getNavOrbitMode());
    EXPECT_EQ(olOSGWidget::getNavOrbitDetectionArea(), 41);
    EXPECT_EQ(olOSGWidget::getNavOrbitDetectionTime(), 101);
}

TEST_F(HostCalls, EachPresetKeepsItsOwnFourValues)
{
    olOSGWidget::setAntialiasingQualityLow(1, false, true, 4);
    olOSGWidget::setAntialiasingQualityMedium(2, true, false, 8);
    EXPECT_EQ(state.antialiasingLow.multisamples, 1);
    EXPECT_FALSE(state.antialiasingLow.pixelfilter);
    EXPECT_TRUE(state.antialiasingLow.supersampling);
    EXPECT_EQ(state.antialiasingLow.raytracingSamples, 4);
    EXPECT_EQ(state.antialiasingMedium.multisamples, 2);
    EXPECT_EQ(state.antialiasingMedium.raytracingSamples, 8);
    EXPECT_EQ(state.antialiasingUltra.raytracingSamples, 16);
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

TEST_F(HostCalls, ExactlyOneEditionIsTrue)
{
    const olEdition before = state.edition;
    for (const olEdition edition :
         {olEdition::Essentials, olEdition::Design, olEdition::Professional, olEdition::Enterprise}) {
        state.edition = edition;
        EXPECT_EQ(olController::isOrloEssentials(), edition == olEdition::Essentials);
        EXPECT_EQ(olController::isOrloDesign(), edition == olEdition::Design);
        EXPECT_EQ(olController::isOrloProfessional(), edition == olEdition::Professional);
        EXPECT_EQ(olController::isOrloEnterprise(), edition == olEdition::Enterprise);
    }
    state.edition = before;
}

TEST_F(HostCalls, OnlyTheKnownCommandWithItsArgumentActs)
{
    olMessage message;
    olController::call("updateToolclip", message, 0);
    message.set("useSimpleToolclips", 1);
    olController::call("updateToolclip", message, 0);
    EXPECT_FALSE(state.simpleToolclips) << "a number is no switch";

    message.set("useSimpleToolclips", true);
    olController::call("makeCoffee", message, 0);
    EXPECT_FALSE(state.simpleToolclips);
    olController::call("updateToolclip", message, 0);
    EXPECT_TRUE(state.simpleToolclips);
}

TEST_F(HostCalls, NoTwoValuesOfTheStateShareAName)
{
    std::set<std::string> names;
    for (const olHostValueBase *value : state.values())
        EXPECT_TRUE(names.insert(value->name()).second) << value->name();
}

} // namespace
