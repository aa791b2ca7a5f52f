#include "Devices/olJoystickLink.h"

#include "State/olHostState.h"
#include "Utilities/olLog.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <linux/joystick.h>
#include <unistd.h>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olJoystickLink)
};

constexpr float fullDeflection = 32767.0f;

/// What is farther out than this when nobody touches it is a trigger and no stick.
constexpr float restingAtMost = 0.5f;

/// A device that is moved all the time must not keep everything else waiting.
constexpr int eventsAtOnce = 64;

} // namespace

olJoystickLink::olJoystickLink(QString folder) : m_folder(std::move(folder)) { olHostState::the().addObserver(*this); }

olJoystickLink::~olJoystickLink()
{
    olHostState::the().removeObserver(*this);
    close();
}

void olJoystickLink::stateChanged(const olHostValueBase &value)
{
    const olHostState &host = olHostState::the();
    // Its number is set before it.
    if (&value != &host.joystickNavigation)
        return;
    if (host.joystickNavigation)
        open(host.joystickId);
    else
        close();
}

void olJoystickLink::open(int id)
{
    if (m_device >= 0 && m_id == id)
        return;
    close();
    const QString file = QStringLiteral("%1/js%2").arg(m_folder).arg(id);
    m_device = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (m_device < 0) {
        olLog::info(
            Words::tr("There is no joystick %1: %2: %3.").arg(id).arg(file, QString::fromLocal8Bit(strerror(errno))));
        return;
    }
    m_id = id;
    m_notifier = std::make_unique<QSocketNotifier>(m_device, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { readEvents(); });
    olHostState::the().joystickConnected = true;
    olLog::info(Words::tr("Joystick %1 is in use.").arg(id));
}

void olJoystickLink::readEvents()
{
    // Whoever observes the state may have the device closed.
    for (int count = 0; m_device >= 0 && count < eventsAtOnce; ++count) {
        js_event event{};
        const ssize_t got = ::read(m_device, &event, sizeof event);
        if (got < 0 && (errno == EAGAIN || errno == EINTR))
            return;
        if (got != ssize_t(sizeof event)) {
            olLog::info(Words::tr("Joystick %1 has gone.").arg(m_id));
            close();
            return;
        }
        if ((event.type & ~JS_EVENT_INIT) == JS_EVENT_AXIS)
            takeAxis(event.number, float(event.value) / fullDeflection, event.type & JS_EVENT_INIT);
    }
}

void olJoystickLink::takeAxis(unsigned number, float value, bool isFirst)
{
    olHostValue<std::vector<float>> &axes = olHostState::the().joystickAxes;
    const auto known = std::find(m_sticks.begin(), m_sticks.end(), number);
    const auto place = std::size_t(known - m_sticks.begin());
    if (known == m_sticks.end()) {
        if (!isFirst || std::abs(value) > restingAtMost)
            return;
        m_sticks.push_back(number);
    }
    std::vector<float> moved = axes;
    if (place >= moved.size())
        return;
    moved[place] = std::clamp(value, -1.0f, 1.0f);
    axes = moved;
}

void olJoystickLink::close()
{
    if (m_device < 0)
        return;
    // May be at work just now.
    m_notifier->setEnabled(false);
    m_notifier.release()->deleteLater();
    ::close(m_device);
    m_device = -1;
    m_id = -1;
    m_sticks.clear();
    olHostState::the().joystickAxes.reset();
    olHostState::the().joystickConnected = false;
}
