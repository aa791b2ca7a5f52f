#pragma once

#include "State/olHostValue.h"

#include <gp_Pnt.hxx>
#include <gp_Vec.hxx>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class olNavigator;

/// Moves the camera as the 3D mouse and the joystick are deflected, in the way that the host's state says.
class olDeviceMotion : public QObject, private olHostObserver
{
    Q_OBJECT

public:
    olDeviceMotion();
    ~olDeviceMotion() override;

    /// Whether a device is deflected, so that the camera is on its way.
    [[nodiscard]] bool isMoving() const { return m_timer.isActive(); }

    /// One step of the way. `target` is the middle of what is selected, or the origin.
    static void move(olNavigator &navigator, const gp_Pnt &target, double seconds);

signals:
    /// A step is due; time has gone by since the last one.
    void due(double seconds);

    void stopped();

private:
    void stateChanged(const olHostValueBase &value) override;
    void step();

    QTimer m_timer;
    QElapsedTimer m_sinceStep;
};
