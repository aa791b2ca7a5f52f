#pragma once

#include "Kernel/olPreferences.h"

#include <QObject>

/// What every module is: one of the host's preferences, with the signals and the translations of a QObject.
///
/// The functions below do what the bases do. A module's table of virtual functions names each one that it inherits,
/// and every name from another library is looked up when the plug-in is loaded: here that is done once, not once for
/// each module.
class olModule : public QObject, public olPreferences
{
    Q_OBJECT

public:
    using olPreferences::olPreferences;
    ~olModule() override;

    void preferencesNewScene(olMessage &message) override { olPreferences::preferencesNewScene(message); }
    void preferencesLoaded(olMessage &message) override { olPreferences::preferencesLoaded(message); }
    void preferencesInitialApply(olMessage &message) override { olPreferences::preferencesInitialApply(message); }

    bool event(QEvent *event) override { return QObject::event(event); }
    bool eventFilter(QObject *watched, QEvent *event) override { return QObject::eventFilter(watched, event); }

protected:
    void timerEvent(QTimerEvent *event) override { QObject::timerEvent(event); }
    void childEvent(QChildEvent *event) override { QObject::childEvent(event); }
    void customEvent(QEvent *event) override { QObject::customEvent(event); }
    void connectNotify(const QMetaMethod &signal) override { QObject::connectNotify(signal); }
    void disconnectNotify(const QMetaMethod &signal) override { QObject::disconnectNotify(signal); }
};
