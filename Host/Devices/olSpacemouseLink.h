#pragma once

#include "State/olHostValue.h"
#include "olHostExport.h"

#include <QSocketNotifier>
#include <QTimer>

#include <bitset>
#include <future>
#include <memory>
#include <thread>

union spnav_event;

/// The connection to the daemon that serves 3D mice, held while the host is told to use one. What the device does goes
/// into the host's state. Must go before the application object does, and there can be only one.
class ORLO_HOST_EXPORT olSpacemouseLink : private olHostObserver
{
public:
    olSpacemouseLink();
    ~olSpacemouseLink() override;
    olSpacemouseLink(const olSpacemouseLink &) = delete;
    olSpacemouseLink &operator=(const olSpacemouseLink &) = delete;

private:
    void stateChanged(const olHostValueBase &value) override;

    /// Looks for the daemon, in the background where it takes its time to answer; the log tells what came of it.
    /// Nothing happens while there is a connection.
    void open();

    /// Also gives up looking.
    void close();

    void finishOpening();
    void listen();
    void readEvents();
    void showEvent(const spnav_event &event);

    static constexpr int buttonCount = 32;

    bool m_wanted = false;
    std::thread m_opener;
    std::future<bool> m_opening;
    QTimer m_openingCheck;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::bitset<buttonCount> m_pressed;
};
