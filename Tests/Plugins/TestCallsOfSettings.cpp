#include "Plugins/SettingWalk.h"
#include "State/olHostState.h"
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
    /// One line a setting, under the name of its module, in an edition.
    QByteArrayList transcript(olEdition edition)
    {
        restart(edition);
        olHostState &host = olHostState::the();
        host.starVRHandler = true;
        host.webInterface = true;
        host.highQualityAntialiasing = true;
        QByteArrayList lines;
        for (olPreferencesEntry *module : modules()) {
            SettingWalk::setAll(*module, true);
            module->markClean();
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
    expectTranscript("calls-of-settings", printed);
}

} // namespace
