#pragma once

#include "Utilities/olExport.h"

#include <QSocketNotifier>
#include <QString>

#include <memory>
#include <vector>

/// A joystick or gamepad that the kernel offers as a device file. Its sticks go into the host's state.
class ORLO_SDK_EXPORT olJoystickLink
{
public:
    static olJoystickLink &the();

    /// Where the device files js0, js1 and so on are; at first /dev/input.
    void lookIn(const QString &folder) { m_folder = folder; }

    /// Uses the device of that number in place of any other; the log tells what came of it. Nothing happens while it
    /// is in use already.
    void open(int id);

    /// Lets go of the device; the sticks then rest.
    void close();

private:
    olJoystickLink() = default;
    ~olJoystickLink();

    void readEvents();
    void takeAxis(unsigned number, float value, bool isFirst);

    QString m_folder = QStringLiteral("/dev/input");
    int m_id = -1;
    int m_device = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    /// The kernel's numbers of the axes that belong to sticks, in their order.
    std::vector<unsigned> m_sticks;
};
