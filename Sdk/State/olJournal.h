#pragma once

#include "Utilities/olExport.h"

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGNodePtr.h>

#include <string>
#include <vector>

class QString;
class olMessage;

/// Is told every call that changes something in the host.
class ORLO_SDK_EXPORT olJournalObserver
{
public:
    virtual ~olJournalObserver();

    /// One call as text: `olOSGWidget::setFov(-1, 60)`.
    virtual void called(const std::string &call) = 0;
};

/// Tells one observer of the calls that change the host, each argument written by its declared type. Without an
/// observer a call costs one branch.
class ORLO_SDK_EXPORT olJournal
{
public:
    /// The observer must outlive its time in office; null ends it. Returns the one before.
    static olJournalObserver *observe(olJournalObserver *observer);

    template <class... Arguments> static void call(const char *function, const Arguments &...arguments)
    {
        if (s_observer)
            report(function, {text(arguments)...});
    }

    /// The same for a function of that type.
    template <class... Arguments>
    static void callOf(const char *type, const char *function, const Arguments &...arguments)
    {
        if (s_observer)
            report(std::string(type) + "::" + function, {text(arguments)...});
    }

    /// A call on an object that bears a name: `olImportOptions("JT")::write()`.
    template <class... Arguments>
    static void callOn(const char *type, const std::string &object, const char *function, const Arguments &...arguments)
    {
        if (s_observer)
            report(named(type, object) + "::" + function, {text(arguments)...});
    }

private:
    static void report(const std::string &function, const std::vector<std::string> &arguments);
    static std::string named(const char *type, const std::string &object);

    static std::string text(bool value);
    static std::string text(int value);
    static std::string text(unsigned value);
    static std::string text(float value);
    static std::string text(double value);
    static std::string text(const char *value);
    static std::string text(const std::string &value);
    static std::string text(const QString &value);
    static std::string text(const osg::Color3f &value);
    static std::string text(const std::vector<float> &value);
    static std::string text(const std::vector<std::string> &value);
    static std::string text(const std::vector<osg::Color3f> &value);
    static std::string text(const osg::NodePtr &value);
    static std::string text(const olMessage &value);

    static olJournalObserver *s_observer;
};
