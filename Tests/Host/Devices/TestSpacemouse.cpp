#include "Devices/olSpacemouseLink.h"
#include "Kernel/olSpacemouse.h"
#include "State/olHostState.h"
#include "Support/RecordedLog.h"

#include <QElapsedTimer>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <memory>
#include <thread>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

constexpr auto daemonSocketVariable = "SPNAV_SOCKET";

/// Stands for the daemon of the 3D mouse, for one program that connects to it.
class Daemon
{
public:
    enum Reply { Answers, KeepsSilent, TakesNoCall };

    explicit Daemon(Reply reply) : m_listening(socket(AF_UNIX, SOCK_STREAM, 0))
    {
        const QByteArray file = QFile::encodeName(m_folder.filePath("spnav.sock"));
        qputenv(daemonSocketVariable, file);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, file.constData(), sizeof address.sun_path - 1);
        EXPECT_EQ(bind(m_listening, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
        listen(m_listening, 1);
        if (reply == TakesNoCall)
            fillTheLine(address);
        else
            m_greeter = std::thread([this, reply] { greet(reply); });
    }

    ~Daemon()
    {
        shutdown(m_listening, SHUT_RDWR);
        if (m_greeter.joinable())
            m_greeter.join();
        for (const int caller : m_callers)
            close(caller);
        hangUp();
        close(m_listening);
        qunsetenv(daemonSocketVariable);
    }
    Daemon(const Daemon &) = delete;
    Daemon &operator=(const Daemon &) = delete;

    void sendMotion(const std::array<std::int32_t, 6> &axes)
    {
        constexpr std::int32_t motion = 0;
        send({motion, axes[0], axes[1], axes[2], axes[3], axes[4], axes[5], 16});
    }

    void sendButton(std::int32_t button, bool pressed)
    {
        const std::int32_t pressOrRelease = pressed ? 1 : 2;
        send({pressOrRelease, button, 0, 0, 0, 0, 0, 0});
    }

    void hangUp()
    {
        if (m_client >= 0)
            close(m_client.exchange(-1));
    }

    /// Whether the other side has closed the connection.
    bool isLeft()
    {
        char bytes[64];
        ssize_t received = 0;
        while ((received = recv(m_client, bytes, sizeof bytes, MSG_DONTWAIT)) > 0) {
        }
        return received == 0;
    }

private:
    /// Whoever calls next has to wait.
    void fillTheLine(const sockaddr_un &address)
    {
        do
            m_callers.push_back(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0));
        while (connect(m_callers.back(), reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0);
    }

    void greet(Reply reply)
    {
        m_client = accept(m_listening, nullptr, nullptr);
        std::int32_t protocol = 0;
        if (reply == Answers && m_client >= 0 && read(m_client, &protocol, sizeof protocol) > 0) {
            EXPECT_EQ(write(m_client, &protocol, sizeof protocol), ssize_t(sizeof protocol));
        }
    }

    void send(const std::array<std::int32_t, 8> &event)
    {
        EXPECT_EQ(write(m_client, event.data(), sizeof event), ssize_t(sizeof event));
    }

    QTemporaryDir m_folder;
    int m_listening;
    std::atomic<int> m_client{-1};
    std::thread m_greeter;
    std::vector<int> m_callers;
};

/// On a host as new; the connection is closed again at the end.
class Spacemouse : public testing::Test
{
protected:
    Spacemouse() { host.reset(); }
    ~Spacemouse() override { olSpacemouse::terminate(); }

    bool connects()
    {
        return QTest::qWaitFor([this] { return host.spacemouseConnected.get(); }, 30000);
    }

    [[nodiscard]] unsigned buttons() const { return boost::any_cast<unsigned>(host.spacemouseButtons.any()); }

    olHostState &host = olHostState::the();
    RecordedLog recorded;
    QStringList &log = recorded.lines;
    std::unique_ptr<olSpacemouseLink> link = std::make_unique<olSpacemouseLink>();
};

TEST_F(Spacemouse, MotionAndButtonsAreSeenInTheHostsState)
{
    Daemon daemon(Daemon::Answers);
    olSpacemouse::init();
    ASSERT_TRUE(connects());

    daemon.sendMotion({10, -20, 30, -40, 50, -60});
    daemon.sendButton(0, true);
    daemon.sendButton(2, true);
    daemon.sendButton(0, false);
    EXPECT_TRUE(QTest::qWaitFor([this] { return buttons() == 4u; }, 30000));
    EXPECT_EQ(host.spacemouseMotion.get(), (std::vector<float>{10, -20, 30, -40, 50, -60}));

    olSpacemouse::terminate();
    EXPECT_TRUE(daemon.isLeft());
    EXPECT_EQ(host.spacemouseMotion.get(), std::vector<float>(6));
    EXPECT_EQ(buttons(), 0u);
}

TEST_F(Spacemouse, ASilentDaemonHoldsNobodyUpAndIsUsedLater)
{
    Daemon daemon(Daemon::KeepsSilent);
    QElapsedTimer timer;
    timer.start();
    olSpacemouse::init();
    olSpacemouse::init();
    EXPECT_LT(timer.elapsed(), 250);
    EXPECT_FALSE(host.spacemouseConnected);

    ASSERT_TRUE(connects());
    daemon.sendMotion({1, 2, 3, 4, 5, 6});
    EXPECT_TRUE(QTest::qWaitFor([this] { return host.spacemouseMotion.get().back() == 6; }, 30000));
}

TEST_F(Spacemouse, ADaemonThatTakesNoCallHoldsUpNoEnd)
{
    const Daemon daemon(Daemon::TakesNoCall);
    olSpacemouse::init();
    QElapsedTimer timer;
    timer.start();
    link.reset();
    EXPECT_LT(timer.elapsed(), 5000);
}

TEST_F(Spacemouse, ADaemonThatGoesIsNoticedAndItsSuccessorIsFound)
{
    {
        Daemon daemon(Daemon::Answers);
        olSpacemouse::init();
        ASSERT_TRUE(connects());
        daemon.sendMotion({1, 2, 3, 4, 5, 6});
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return !host.spacemouseConnected.get(); }, 30000));
    EXPECT_EQ(host.spacemouseMotion.get(), std::vector<float>(6));
    EXPECT_TRUE(host.spacemouseWanted);
    EXPECT_EQ(log.last(), "The daemon of the 3D mouse has gone.");

    Daemon successor(Daemon::Answers);
    olSpacemouse::init();
    EXPECT_TRUE(connects());
}

TEST_F(Spacemouse, WithoutADaemonTheLogSaysSo)
{
    if (QFile::exists("/var/run/spnav.sock"))
        GTEST_SKIP() << "this machine has a 3D mouse";
    olSpacemouse::init();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !log.isEmpty(); }, 30000));
    EXPECT_EQ(log, QStringList("There is no 3D mouse: its daemon, spacenavd, is not running."));
    EXPECT_TRUE(host.spacemouseWanted);
    EXPECT_FALSE(host.spacemouseConnected);
}

} // namespace
