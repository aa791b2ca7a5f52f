#include "Kernel/olController.h"
#include "Kernel/olOSGWidget.h"
#include "State/olHostState.h"
#include "State/olValue.h"
#include "Support/RecordedLog.h"
#include "Support/Transcript.h"

#include <QByteArray>
#include <QStringList>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace
{

/// Does something whenever a value is set, while it lives.
class Observer : public olHostObserver
{
public:
    explicit Observer(std::function<void(const olHostValueBase &)> told) : m_told(std::move(told))
    {
        olHostState::the().addObserver(*this);
    }
    ~Observer() override { olHostState::the().removeObserver(*this); }
    Observer(const Observer &) = delete;
    Observer &operator=(const Observer &) = delete;

private:
    void stateChanged(const olHostValueBase &value) override { m_told(value); }

    std::function<void(const olHostValueBase &)> m_told;
};

TEST(HostState, ShowsEachValueUnderItsNameAndBeginsAtItsDefault)
{
    std::set<std::string> names;
    std::string listed;
    for (const olHostValueBase *value : olHostState::the().values()) {
        EXPECT_TRUE(names.insert(value->name()).second) << value->name();
        listed += value->name() + (": " + olValue::toJson(value->any())) + '\n';
    }
    expectTranscript("Sdk/Kernel/host-state", QByteArray::fromStdString(listed));
}

TEST(HostState, EveryCallIsToldBeforeItReturnsAlsoOneThatChangesNothing)
{
    const olHostState &host = olHostState::the();
    std::vector<bool> told;
    const Observer server([&](const olHostValueBase &value) {
        if (&value == &host.webInterfaceWanted)
            told.push_back(host.webInterfaceWanted);
    });
    olController::enableWebInterface(false);
    olController::enableWebInterface(true);
    EXPECT_EQ(told, (std::vector<bool>{false, true}));
    olController::enableWebInterface(true);
    EXPECT_EQ(told.size(), 3u) << "a server starts anew";
}

TEST(HostState, ObserversMayComeAndGoWhileTheyAreTold)
{
    int count = 0;
    const auto counts = [&count](const olHostValueBase &) { ++count; };
    std::unique_ptr<Observer> guest;
    std::unique_ptr<Observer> neighbour;
    std::unique_ptr<Observer> newcomer;
    const Observer host([&](const olHostValueBase &) {
        guest.reset();
        neighbour.reset();
        if (!newcomer)
            newcomer = std::make_unique<Observer>(counts);
    });
    guest = std::make_unique<Observer>(counts);
    neighbour = std::make_unique<Observer>(counts);
    const Observer last(counts);
    olController::showFPS(true);
    EXPECT_EQ(count, 2) << "the last one and the newcomer, but nobody who is gone";
    olController::showFPS(false);
    EXPECT_EQ(count, 4);
}

TEST(HostCalls, PlanesThatNoCameraHasAreRefusedAloud)
{
    const olHostState &state = olHostState::the();
    RecordedLog log;
    olOSGWidget::setNearFarPlaneLimit(true, 2.0f, 50.0f);
    const std::tuple<float, float, bool, bool> refused[] = {
        {0.0f, 0.0f, true, true}, {-1.0f, 5.0f, true, false}, {9.0f, 9.0f, false, true}, {-5.0f, -1.0f, true, true}};
    for (const auto &[nearest, farthest, isAtNear, isAtFar] : refused) {
        log.errors.clear();
        olOSGWidget::setNearFarPlaneLimit(true, nearest, farthest);
        ASSERT_EQ(log.errors.size(), 1);
        const std::map<std::string, QString> &told = state.refusals;
        EXPECT_EQ(told.count("RenderOptions near plane"), std::size_t(isAtNear));
        EXPECT_EQ(told.count("RenderOptions far plane"), std::size_t(isAtFar));
        EXPECT_EQ(told.begin()->second, log.errors.first());
        EXPECT_TRUE(state.limitNearFarPlane) << "what was in force stays";
        EXPECT_EQ(state.nearPlane, 2.0f);
        EXPECT_EQ(state.farPlane, 50.0f);
    }
    log.errors.clear();
    olOSGWidget::setNearFarPlaneLimit(false, 0.0f, 0.0f);
    EXPECT_EQ(log.errors, QStringList()) << "without a limit they do not count";
    EXPECT_TRUE(state.refusals.get().empty());
    EXPECT_FALSE(state.limitNearFarPlane);
    olOSGWidget::setNearFarPlaneLimit(true, 0.0f, 50.0f);
    EXPECT_FALSE(state.limitNearFarPlane) << "a limit that cannot be does not begin";
    olOSGWidget::setNearFarPlaneLimit(true, 2.0f, 50.0f);
    EXPECT_TRUE(state.limitNearFarPlane);
    EXPECT_TRUE(state.refusals.get().empty());
}

} // namespace
