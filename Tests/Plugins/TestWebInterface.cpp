#include "State/olHostState.h"
#include "Support/BoxWatch.h"
#include "Support/PluginTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QSignalSpy>

namespace
{

constexpr auto enableKey = "WebInterface enable web server2";
constexpr auto stop = "olController::enableWebInterface(false)";
constexpr auto start = "olController::enableWebInterface(true)";

/// The two environment variables, unset where the value is null, until it goes out of scope.
class Environment
{
public:
    Environment(const char *mrvn, const char *own)
    {
        if (mrvn)
            qputenv("MRVN_ORLO_DISABLE_WEBINTERFACE", mrvn);
        if (own)
            qputenv("ORLO_DISABLE_WEBINTERFACE", own);
    }
    ~Environment()
    {
        qunsetenv("MRVN_ORLO_DISABLE_WEBINTERFACE");
        qunsetenv("ORLO_DISABLE_WEBINTERFACE");
    }
};

class WebInterface : public PluginTest
{
protected:
    using Calls = std::vector<std::string>;

    static olPreferencesEntry &webInterface() { return module("WebInterface"); }
    static QCheckBox &box(const char *name) { return control<QCheckBox>("WebInterface", name); }
    static QGroupBox &allowedHosts() { return control<QGroupBox>("WebInterface", "allowedHosts"); }
    static bool isEnabled(const char *name) { return control<QWidget>("WebInterface", name).isEnabled(); }

    Calls applied()
    {
        calls.take();
        webInterface().applyPreferences();
        return calls.take();
    }

    olHostState &host = olHostState::the();
};

/// What the record may hold under the key that switches the server on.
enum class Stored { Absent, WrongType, False, True };

void store(olMessage &record, Stored stored)
{
    record.remove(enableKey);
    if (stored == Stored::WrongType)
        record.set(enableKey, 1);
    else if (stored != Stored::Absent)
        record.set(enableKey, stored == Stored::True);
}

TEST_F(WebInterface, StartsByItsTruthTable)
{
    struct Variables {
        const char *mrvn;
        const char *own;
        bool forbid;
    };
    const Variables environments[] = {
        {nullptr, nullptr, false}, {"1", nullptr, true},  {nullptr, "1", true}, {"1", "1", true},
        {"1", "0", true},          {"0", "1", true},      {"0", "0", false},    {"", "", false},
        {"1 ", "01", false},       {"true", " 1", false}, {"11", "1\n", false},
    };
    testing::internal::CaptureStderr(); // the wrong types are reported there
    for (const Variables &variables : environments) {
        const Environment environment(variables.mrvn, variables.own);
        restart();
        // One bit each: node, viewer, analysis mode, pipe.
        for (unsigned bits = 0; bits < 16; ++bits) {
            for (const int port : {-1, 0, 1}) {
                for (const Stored stored : {Stored::Absent, Stored::WrongType, Stored::False, Stored::True}) {
                    host.renderServerNode = (bits & 1) != 0;
                    host.viewer = (bits & 2) != 0;
                    host.analysisMode = (bits & 4) != 0;
                    host.webInterfacePipe = (bits & 8) != 0 ? "pipe" : "";
                    host.webInterfacePort = port;
                    store(record(), stored);

                    Calls expected{stop};
                    const bool required = bits != 0 || port == 1;
                    if (!variables.forbid && (required || stored == Stored::True))
                        expected.push_back(start);
                    else if (!variables.forbid && stored == Stored::False)
                        expected.push_back(stop);
                    EXPECT_EQ(applied(), expected)
                        << "mrvn " << variables.mrvn << ", own " << variables.own << ", bits " << bits << ", port "
                        << port << ", stored " << int(stored);
                }
            }
        }
    }
    testing::internal::GetCapturedStderr();
}

TEST_F(WebInterface, ASwitchInTheEnvironmentCountsAtConstructionAlone)
{
    record().set(enableKey, true);
    {
        const Environment late(nullptr, "1");
        EXPECT_EQ(applied(), (Calls{stop, start}));
    }
    {
        const Environment early(nullptr, "1");
        restart();
    }
    record().set(enableKey, true);
    record().set("WebInterface debug mode", true);
    EXPECT_EQ(applied(), (Calls{stop})) << "there is no server to tell";
    host.webInterface = true;
    EXPECT_EQ(webInterface().page(), nullptr);
    EXPECT_EQ(applied(), (Calls{stop, "olWebInterface::setDebugMode(true)"}));
}

TEST_F(WebInterface, AsksBeforeTheServerIsSwitchedOnAndARefusalGoesBackSilently)
{
    for (const char *reply : {"Do Not Enable", "", "Enable"}) {
        restart();
        box("enableWebServer").setChecked(false);
        ASSERT_FALSE(isEnabled("port"));
        const QSignalSpy toggles(&box("enableWebServer"), &QCheckBox::toggled);
        const BoxAnswers answer(QStringList{reply});
        box("enableWebServer").setChecked(true);
        EXPECT_EQ(answer.count, 1);
        EXPECT_EQ(box("enableWebServer").isChecked(), qstrcmp(reply, "Enable") == 0);
        EXPECT_EQ(toggles.size(), 1) << "the user's own toggle alone";
        for (const char *name : {"port", "portLabel", "allowedHosts", "localhostOnly", "securePython"})
            EXPECT_TRUE(isEnabled(name)) << "so that the dependants stay enabled: " << name;
    }
}

TEST_F(WebInterface, OnARenderServerNodeThePageIsThereButNeitherAsksNorExcludes)
{
    // The process must be one before the library comes.
    plugin.unload();
    host.renderServerNode = true;
    ASSERT_TRUE(plugin.load(QStringLiteral(ORLO_PLUGIN_FILE)).isOk());
    ASSERT_NE(webInterface().page(), nullptr);

    const BoxWatch watch([](QMessageBox &box) { box.reject(); });
    box("enableWebServer").setChecked(false);
    EXPECT_FALSE(isEnabled("port")) << "the form's own links stay";
    box("enableWebServer").setChecked(true);
    box("localhostOnly").setChecked(true);
    allowedHosts().setChecked(true);
    QApplication::processEvents();
    EXPECT_EQ(watch.count, 0);
    EXPECT_TRUE(box("enableWebServer").isChecked());
    EXPECT_TRUE(box("localhostOnly").isChecked());
}

} // namespace
