#include "Devices/olSpacemouseLink.h"

#include "State/olHostState.h"
#include "Utilities/olLog.h"

#include <QCoreApplication>
#include <QString>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <system_error>
#include <thread>

#include <sys/socket.h>

// Behind all others: it brings in the macros of X11.
#include <spnav.h>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olSpacemouseLink)
};

/// How long the GUI thread waits for a daemon that is there and in good health, or for the news that there is none.
constexpr std::chrono::milliseconds patience{50};
constexpr std::chrono::milliseconds checkInterval{50};

/// A device that is moved all the time must not keep everything else waiting.
constexpr int eventsAtOnce = 64;

/// To be run in a thread of its own: a daemon that is busy or old lets its caller wait for it.
bool connectToDaemon()
{
    // A daemon that goes while it is greeted must not end the program.
    sigset_t brokenPipe;
    sigemptyset(&brokenPipe);
    sigaddset(&brokenPipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &brokenPipe, nullptr);
    return spnav_open() == 0;
}

/// Ends a wait for a daemon that does not take the call. One that took it and does not answer is given up by the
/// library itself.
void interrupt(std::thread &thread)
{
    // Without the flag by which the system would go on waiting.
    struct sigaction woken = {};
    woken.sa_handler = [](int) {};
    sigaction(SIGUSR1, &woken, nullptr);
    pthread_kill(thread.native_handle(), SIGUSR1);
}

bool isHungUp(int socket)
{
    char byte;
    const auto received = recv(socket, &byte, sizeof byte, MSG_PEEK | MSG_DONTWAIT);
    return received == 0 || (received < 0 && errno != EAGAIN && errno != EINTR);
}

} // namespace

olSpacemouseLink::olSpacemouseLink()
{
    m_openingCheck.setInterval(checkInterval);
    QObject::connect(&m_openingCheck, &QTimer::timeout, [this] {
        if (m_opening.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
            finishOpening();
    });
    olHostState::the().addObserver(*this);
}

olSpacemouseLink::~olSpacemouseLink()
{
    olHostState::the().removeObserver(*this);
    close();
    if (!m_opening.valid())
        return;
    while (m_opening.wait_for(patience) != std::future_status::ready)
        interrupt(m_opener);
    finishOpening();
}

void olSpacemouseLink::stateChanged(const olHostValueBase &value)
{
    const olHostValue<bool> &wanted = olHostState::the().spacemouseWanted;
    if (&value != &wanted)
        return;
    if (wanted)
        open();
    else
        close();
}

void olSpacemouseLink::open()
{
    m_wanted = true;
    if (m_notifier || m_opening.valid())
        return;

    std::packaged_task<bool()> task(&connectToDaemon);
    m_opening = task.get_future();
    try {
        m_opener = std::thread(std::move(task));
    } catch (const std::system_error &error) {
        m_opening = {};
        olLog::error(Words::tr("Cannot look for a 3D mouse: %1").arg(QString::fromLocal8Bit(error.what())));
        return;
    }

    // The usual cases are settled here. The wait has a second purpose: the thread starts by reading the environment,
    // which this thread might change next.
    if (m_opening.wait_for(patience) == std::future_status::ready)
        finishOpening();
    else
        m_openingCheck.start();
}

void olSpacemouseLink::finishOpening()
{
    m_openingCheck.stop();
    const bool opened = m_opening.get();
    m_opener.join();
    if (!m_wanted) {
        if (opened)
            spnav_close();
        return;
    }
    if (!opened) {
        olLog::info(Words::tr("There is no 3D mouse: its daemon, spacenavd, is not running."));
        return;
    }
    olLog::info(Words::tr("Connected to the daemon of the 3D mouse."));
    listen();
}

void olSpacemouseLink::listen()
{
    m_notifier = std::make_unique<QSocketNotifier>(spnav_fd(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { readEvents(); });
    olHostState::the().spacemouseConnected = true;
}

void olSpacemouseLink::showEvent(const spnav_event &event)
{
    olHostState &host = olHostState::the();
    if (event.type == SPNAV_EVENT_MOTION) {
        const spnav_event_motion &motion = event.motion;
        host.spacemouseMotion = {float(motion.x),  float(motion.y),  float(motion.z),
                                 float(motion.rx), float(motion.ry), float(motion.rz)};
    } else if (event.type == SPNAV_EVENT_BUTTON && event.button.bnum >= 0 && event.button.bnum < buttonCount) {
        m_pressed.set(std::size_t(event.button.bnum), event.button.press != 0);
        host.spacemouseButtons = unsigned(m_pressed.to_ulong());
    }
}

void olSpacemouseLink::readEvents()
{
    // Whoever observes the state may have the connection closed.
    spnav_event event;
    for (int count = 0; m_notifier && count < eventsAtOnce && spnav_poll_event(&event) != 0; ++count)
        showEvent(event);

    // No event and no daemon look the same to the library.
    if (m_notifier && isHungUp(spnav_fd())) {
        olLog::info(Words::tr("The daemon of the 3D mouse has gone."));
        close();
    }
}

void olSpacemouseLink::close()
{
    m_wanted = false;
    if (!m_notifier)
        return;
    // May be at work just now.
    m_notifier->setEnabled(false);
    m_notifier.release()->deleteLater();
    spnav_close();

    m_pressed.reset();
    olHostState &state = olHostState::the();
    state.spacemouseMotion.reset();
    state.spacemouseButtons.reset();
    state.spacemouseConnected = false;
}
