#include "Plugins/SettingWalk.h"
#include "Session/olRecordedSettings.h"
#include "State/olHostState.h"
#include "State/olValue.h"
#include "Support/PluginTest.h"
#include "Support/Transcript.h"

#include <QByteArrayList>

#include <algorithm>
#include <string>
#include <vector>

namespace
{

using Calls = std::vector<std::string>;

/// Those of the calls that are not among the others.
QByteArray marked(const char *mark, const Calls &calls, const Calls &others)
{
    QByteArray text;
    for (const std::string &call : calls) {
        if (std::find(others.begin(), others.end(), call) == others.end())
            text += mark + QByteArray::fromStdString(call);
    }
    return text;
}

class CallsOfSettings : public PluginTest
{
protected:
    /// Everything on, so that each setting counts for something.
    void prepare(olEdition edition)
    {
        restart(edition);
        olHostState &host = olHostState::the();
        host.starVRHandler = true;
        host.webInterface = true;
        host.highQualityAntialiasing = true;
        for (olPreferencesEntry *module : modules()) {
            SettingWalk::setAll(*module, true);
            module->markClean();
        }
    }

    /// The host's values that are others after the module has applied with this setting changed.
    std::vector<const olHostValueBase *> setBy(olPreferencesEntry &module, const std::string &key)
    {
        std::vector<boost::any> before;
        for (const olHostValueBase *value : olHostState::the().values())
            before.push_back(value->any());
        appliedAlone(module, key);
        std::vector<const olHostValueBase *> changed;
        for (std::size_t index = 0; index < before.size(); ++index) {
            const olHostValueBase *value = olHostState::the().values()[index];
            if (!olValue::identical(before[index], value->any()))
                changed.push_back(value);
        }
        return changed;
    }

    /// One line a setting, under the name of its module, in an edition.
    QByteArrayList transcript(olEdition edition)
    {
        prepare(edition);
        QByteArrayList lines;
        for (olPreferencesEntry *module : modules()) {
            lines += module->name().toUtf8() + ": " + withNothingChanged(*module);
            for (const olOfferedDefault &offered : module->defaults())
                lines += "  " + QByteArray::fromStdString(offered.key) + ofSetting(*module, offered.key);
        }
        return lines;
    }

private:
    Calls applied(olPreferencesEntry &module)
    {
        // What a call before may have changed, and what one after it asks for.
        olHostState::the().displayType = 6;
        olHostState::the().highQualityAntialiasing = true;
        calls.take();
        module.applyPreferences();
        return calls.take();
    }

    /// Of all settings of the module this one alone counts as changed; with an empty key none does.
    Calls appliedAlone(olPreferencesEntry &module, const std::string &key)
    {
        for (const olOfferedDefault &offered : module.defaults())
            module.setChanged(offered.key, offered.key == key);
        return applied(module);
    }

    QByteArray withNothingChanged(olPreferencesEntry &module)
    {
        const Calls none = appliedAlone(module, {});
        for (const olOfferedDefault &offered : module.defaults())
            module.setChanged(offered.key, true);
        if (none == applied(module))
            return "applies all whatever has changed";
        return "nothing changed" + marked(" > ", none, {});
    }

    QByteArray ofSetting(olPreferencesEntry &module, const std::string &key)
    {
        const boost::any value = module.value(key);
        const Calls none = appliedAlone(module, {});
        const Calls before = appliedAlone(module, key);
        module.setValue(key, SettingWalk::another(value));
        QByteArray line = marked(" > ", appliedAlone(module, key), none);
        if (module.home() == olHome::Record) {
            module.removeValue(key);
            const Calls absent = appliedAlone(module, key);
            line += marked(" | absent - ", before, absent) + marked(" | absent + ", absent, before);
        }
        module.setValue(key, value);
        appliedAlone(module, {});
        return line;
    }
};

/// What is called when one setting alone has changed, beside what is called in any case, and which of these calls go
/// and come when it has no value at all. To bring the transcript up to date, read what differs and copy the file that
/// the failure names.
TEST_F(CallsOfSettings, EachSettingReachesItsOwnCallsAndNoOther)
{
    const QByteArrayList full = transcript(olEdition::Professional);
    QByteArray printed = full.join('\n') + "\n\nIn Essentials otherwise\n";
    for (const QByteArray &line : transcript(olEdition::Essentials)) {
        if (!full.contains(line))
            printed += line + '\n';
    }
    expectTranscript("Plugins/calls-of-settings", printed);
}

TEST_F(CallsOfSettings, ASettingIsOnlyRecordedWhereNothingGoesByTheValuesThatItSets)
{
    prepare(olEdition::Professional);
    int told = 0;
    for (olPreferencesEntry *module : modules()) {
        for (const olOfferedDefault &offered : module->defaults()) {
            const boost::any value = module->value(offered.key);
            setBy(*module, offered.key);
            const auto always = setBy(*module, offered.key);
            module->setValue(offered.key, SettingWalk::another(value));
            auto changed = setBy(*module, offered.key);
            changed.erase(std::remove_if(changed.begin(), changed.end(),
                                         [&always](const auto *one) {
                                             return std::find(always.begin(), always.end(), one) != always.end();
                                         }),
                          changed.end());
            module->setValue(offered.key, value);
            setBy(*module, offered.key);
            if (changed.empty())
                continue;
            ++told;
            EXPECT_EQ(olIsOnlyRecorded(offered.key), std::all_of(changed.begin(), changed.end(),
                                                                 [](const auto *one) { return one->isRecordedOnly(); }))
                << offered.key << " sets " << changed.front()->name();
        }
    }
    EXPECT_GT(told, 100);
}

} // namespace
