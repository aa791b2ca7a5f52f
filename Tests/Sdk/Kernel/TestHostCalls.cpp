#include "Kernel/olOSGWidget.h"
#include "State/olHostState.h"
#include "Utilities/olLog.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace
{

TEST(HostState, NoTwoValuesShareAName)
{
    std::set<std::string> names;
    for (const olHostValueBase *value : olHostState::the().values())
        EXPECT_TRUE(names.insert(value->name()).second) << value->name();
}

class LoggedErrors : public olLogObserver
{
public:
    LoggedErrors() : m_before(olLog::observe(this)) {}
    ~LoggedErrors() override { olLog::observe(m_before); }

    void logged(olLogLevel level, const QString &text) override
    {
        if (level == olLogLevel::Error)
            errors << text;
    }

    QStringList errors;

private:
    olLogObserver *m_before;
};

TEST(HostCalls, PlanesThatNoCameraHasAreRefusedAloud)
{
    const olHostState &state = olHostState::the();
    LoggedErrors log;
    olOSGWidget::setNearFarPlaneLimit(true, 2.0f, 50.0f);
    for (const auto &[nearest, farthest] : {std::pair{0.0f, 0.0f}, std::pair{-1.0f, 5.0f}, std::pair{9.0f, 9.0f}}) {
        log.errors.clear();
        olOSGWidget::setNearFarPlaneLimit(true, nearest, farthest);
        EXPECT_EQ(log.errors.size(), 1);
        EXPECT_FALSE(state.limitNearFarPlane);
        EXPECT_EQ(state.nearPlane, 2.0f);
        EXPECT_EQ(state.farPlane, 50.0f);
    }
    log.errors.clear();
    olOSGWidget::setNearFarPlaneLimit(false, 0.0f, 0.0f);
    EXPECT_EQ(log.errors, QStringList()) << "without a limit they do not count";
    olOSGWidget::setNearFarPlaneLimit(true, 2.0f, 50.0f);
    EXPECT_TRUE(state.limitNearFarPlane);
}

} // namespace
