#pragma once

#include <QSocketNotifier>
#include <QTimer>

#include <future>
#include <memory>

/// The connection to the daemon that serves 3D mice. What the device does goes into the host's state.
class olSpacemouseLink
{
public:
    static olSpacemouseLink &the();

    /// Looks for the daemon, in the background where it takes its time to answer; the log tells what came of it.
    /// Nothing happens while there is a connection.
    void open();

    /// Also gives up looking.
    void close();

private:
    olSpacemouseLink();
    ~olSpacemouseLink();

    void finishOpening();
    void listen();
    void readEvents();

    bool m_wanted = false;
    std::future<bool> m_opening;
    QTimer m_openingCheck;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
