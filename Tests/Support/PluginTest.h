#pragma once

#include "Session/olPluginLoader.h"
#include "State/olEdition.h"
#include "State/olJournal.h"
#include "State/olPreferencesEntry.h"
#include "Utilities/olMessage.h"

#include <QString>
#include <QWidget>
#include <gtest/gtest.h>

#include <string>
#include <vector>

/// Collects the host calls while it lives.
class RecordedCalls : public olJournalObserver
{
public:
    RecordedCalls() : m_before(olJournal::observe(this)) {}
    ~RecordedCalls() override { olJournal::observe(m_before); }

    void called(const std::string &call) override { m_calls.push_back(call); }

    /// The calls since the last time they were taken.
    std::vector<std::string> take() { return std::exchange(m_calls, {}); }

private:
    olJournalObserver *m_before;
    std::vector<std::string> m_calls;
};

/// The plug-in under test, and a file of the sources that goes with it: those of this build, or others that the
/// environment names in ORLO_TEST_PLUGIN and ORLO_TEST_SOURCE.
QString pluginUnderTest();
QString sourceOfTest(const QString &file);

/// A test on the real plug-in, loaded into a host whose record, service and state are as new. Nothing of the start
/// sequence has run.
class PluginTest : public testing::Test
{
protected:
    explicit PluginTest(olEdition edition = olEdition::Professional);
    ~PluginTest() override;

    /// Unloads, makes the host new in that edition, and loads again.
    void restart(olEdition edition = olEdition::Professional);

    static olMessage &record();

    /// The module of that display name; the test fails and stops where there is none.
    static olPreferencesEntry &module(const char *name);
    static const std::vector<olPreferencesEntry *> &modules();

    static void writeDefaults()
    {
        for (olPreferencesEntry *entry : modules())
            entry->setDefaults(true);
    }

    /// Writes the defaults of that module and fills its page.
    static void fill(const char *name)
    {
        module(name).setDefaults(true);
        module(name).updateGUI();
    }

    /// Puts a value into the record, as if it had been edited, and applies its module.
    static void apply(const char *moduleName, const char *key, const boost::any &value);

    /// The named control of a module's page, also of a page that was not handed over.
    template <class Control> static Control &control(const char *moduleName, const char *objectName)
    {
        auto *found = module(moduleName).page()->findChild<Control *>(QString::fromLatin1(objectName));
        if (!found)
            throw std::runtime_error(std::string("no control ") + objectName + " on " + moduleName);
        return *found;
    }

    olPluginLoader plugin;
    RecordedCalls calls;
};
