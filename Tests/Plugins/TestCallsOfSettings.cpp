#include "State/olHostState.h"
#include "State/olValue.h"
#include "Support/PluginTest.h"

#include <QFile>
#include <QTemporaryFile>

#include <algorithm>

namespace
{

/// Another value of the same type.
boost::any another(const boost::any &value)
{
    const std::string type = olValue::typeName(value);
    if (type == "bool")
        return !boost::any_cast<bool>(value);
    if (type == "int")
        return boost::any_cast<int>(value) + 1;
    if (type == "uint")
        return boost::any_cast<unsigned>(value) + 1;
    if (type == "float")
        return boost::any_cast<float>(value) + 0.5f;
    if (type == "double")
        return boost::any_cast<double>(value) + 0.5;
    const bool isText = type == "string" || type == "qstring";
    return olValue::fromJson(type, QByteArray(isText             ? "\"other\""
                                              : type == "color"  ? "[0.25, 0.5, 0.75]"
                                              : type == "colors" ? "[[0.25, 0.5, 0.75]]"
                                              : type == "floats" ? "[0.5]"
                                                                 : "[\"other\"]"));
}

class CallsOfSettings : public PluginTest
{
protected:
    /// Everything at its default and all that can be switched on, on: else many a setting would count for nothing.
    static void prepare(olPreferencesEntry &module)
    {
        module.setDefaults(true);
        for (const olOfferedDefault &offered : module.defaults()) {
            if (olValue::typeName(offered.value) == "bool")
                module.setValue(offered.key, true);
        }
    }

    std::vector<std::string> applied(olPreferencesEntry &module)
    {
        calls.take();
        module.applyPreferences();
        return calls.take();
    }
};

/// Those of the calls that are not among the others.
QByteArray marked(const char *mark, const std::vector<std::string> &calls, const std::vector<std::string> &others)
{
    QByteArray text;
    for (const std::string &call : calls) {
        if (std::find(others.begin(), others.end(), call) == others.end())
            text += mark + QByteArray::fromStdString(call);
    }
    return text;
}

/// What is called when a setting has another value, and which calls go and come when it has none at all.
/// To bring the transcript up to date, read what differs and copy the file that the failure names.
TEST_F(CallsOfSettings, EachSettingReachesItsOwnCallsAndNoOther)
{
    olHostState::the().starVRHandler = true;
    olHostState::the().webInterface = true;
    QByteArray transcript;
    for (olPreferencesEntry *module : modules()) {
        transcript += module->name().toUtf8() + '\n';
        prepare(*module);
        const auto before = applied(*module);
        for (const olOfferedDefault &offered : module->defaults()) {
            const boost::any value = module->value(offered.key);
            module->setValue(offered.key, another(value));
            transcript += "  " + QByteArray::fromStdString(offered.key);
            transcript += marked(" > ", applied(*module), before);
            if (module->home() == olHome::Record) {
                module->removeValue(offered.key);
                const auto absent = applied(*module);
                transcript += marked(" | absent - ", before, absent) + marked(" | absent + ", absent, before);
            }
            transcript += '\n';
            module->setValue(offered.key, value);
            applied(*module);
        }
    }
    QFile expected(sourceOfTest(QStringLiteral("Tests/Plugins/calls-of-settings.expected")));
    ASSERT_TRUE(expected.open(QIODevice::ReadOnly));
    if (expected.readAll() == transcript)
        return;
    QTemporaryFile printed;
    printed.setAutoRemove(false);
    ASSERT_TRUE(printed.open() && printed.write(transcript) == transcript.size());
    FAIL() << "diff " << expected.fileName().toStdString() << " with " << printed.fileName().toStdString();
}

} // namespace
