#include "Devices/olJoystickLink.h"
#include "Kernel/olController.h"
#include "State/olHostState.h"
#include "Support/RecordedLog.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <optional>

#include <fcntl.h>
#include <linux/joystick.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

/// A pipe in a folder of its own stands for the device file; whoever writes into it is the kernel.
class Joystick : public testing::Test
{
protected:
    Joystick() : file(QFile::encodeName(folder.filePath(QStringLiteral("js2"))))
    {
        host.reset();
        mkfifo(file.constData(), 0600);
        kernel = open(file.constData(), O_RDWR | O_CLOEXEC);
    }
    ~Joystick() override
    {
        unplug();
        host.reset();
    }

    void send(unsigned char type, unsigned char number, short value)
    {
        const js_event event{0, value, type, number};
        ASSERT_EQ(write(kernel, &event, sizeof event), ssize_t(sizeof event));
    }

    void unplug()
    {
        if (kernel >= 0)
            close(kernel);
        kernel = -1;
    }

    bool comesTo(const std::vector<float> &axes)
    {
        return QTest::qWaitFor([&] { return host.joystickAxes.get() == axes; }, 30000);
    }

    olHostState &host = olHostState::the();
    QTemporaryDir folder;
    QByteArray file;
    int kernel = -1;
    RecordedLog recorded;
    QStringList &log = recorded.lines;
    std::optional<olJoystickLink> link{folder.path()};
};

TEST_F(Joystick, ItsSticksAreInTheStateAndItsTriggersAndButtonsAreNot)
{
    olController::setJoystickNavigation(2, true);
    EXPECT_TRUE(host.joystickConnected);
    for (const unsigned char stick : {0, 1, 3, 4})
        send(JS_EVENT_AXIS | JS_EVENT_INIT, stick, 0);
    send(JS_EVENT_AXIS | JS_EVENT_INIT, 2, -32767);
    send(JS_EVENT_AXIS, 0, 32767);
    send(JS_EVENT_AXIS, 2, 32767);
    send(JS_EVENT_BUTTON, 3, 1);
    send(JS_EVENT_AXIS, 3, -32768);
    EXPECT_TRUE(comesTo({1, 0, -1, 0})) << "the third axis rests at its end: a trigger";

    olController::setJoystickNavigation(2, false);
    EXPECT_FALSE(host.joystickConnected);
    EXPECT_EQ(host.joystickAxes.get(), std::vector<float>(4)) << "let go, it rests";

    olController::setJoystickNavigation(2, true);
    link.reset();
    EXPECT_FALSE(host.joystickConnected) << "nobody is left to use it";
    olController::setJoystickNavigation(2, true);
    EXPECT_TRUE(host.joystickNavigation && !host.joystickConnected) << "only recorded";
}

TEST_F(Joystick, OneThatGoesRestsAndIsFoundAgain)
{
    olController::setJoystickNavigation(2, true);
    send(JS_EVENT_AXIS | JS_EVENT_INIT, 0, 0);
    send(JS_EVENT_AXIS, 0, 32767);
    ASSERT_TRUE(comesTo({1, 0, 0, 0}));
    unplug();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !host.joystickConnected; }, 30000));
    EXPECT_EQ(host.joystickAxes.get(), std::vector<float>(4));
    EXPECT_TRUE(log.last().contains(QStringLiteral("has gone")));

    kernel = open(file.constData(), O_RDWR | O_CLOEXEC);
    olController::setJoystickNavigation(2, true);
    EXPECT_TRUE(host.joystickConnected);
}

TEST_F(Joystick, WhereThereIsNoneTheLogSaysSo)
{
    olController::setJoystickNavigation(7, true);
    EXPECT_FALSE(host.joystickConnected);
    ASSERT_EQ(log.size(), 1);
    EXPECT_TRUE(log.first().contains(QStringLiteral("no joystick 7")));
}

} // namespace
