#pragma once

#include "State/olHostValue.h"
#include "olHostExport.h"

#include <QSocketNotifier>
#include <QString>

#include <memory>
#include <vector>

/// A joystick or gamepad that the kernel offers as a device file, in use while the host is told to use one. Its sticks
/// go into the host's state. Must go before the application object does.
class ORLO_HOST_EXPORT olJoystickLink : private olHostObserver
{
public:
    /// The device files js0, js1 and so on are in the folder.
    explicit olJoystickLink(QString folder = QStringLiteral("/dev/input"));
    ~olJoystickLink() override;
    olJoystickLink(const olJoystickLink &) = delete;
    olJoystickLink &operator=(const olJoystickLink &) = delete;

private:
    void stateChanged(const olHostValueBase &value) override;

    /// Uses the device of that number in place of any other; the log tells what came of it. Nothing happens while it
    /// is in use already.
    void open(int id);

    /// Lets go of the device; the sticks then rest.
    void close();

    void readEvents();
    void takeAxis(unsigned number, float value, bool isFirst);

    QString m_folder;
    int m_id = -1;
    int m_device = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    /// The kernel's numbers of the axes that belong to sticks, in their order.
    std::vector<unsigned> m_sticks;
};
