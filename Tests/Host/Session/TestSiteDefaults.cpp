#include "Host/Store/StoreTest.h"
#include "Kernel/olPreferences.h"
#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesCategory.h"
#include "KernelServices/olPreferencesService.h"
#include "Session/olPreferencesSession.h"
#include "Session/olSiteDefaults.h"
#include "State/olHostState.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
#include "Utilities/olMessage.h"

#include <QFile>

#include <limits>
#include <memory>

namespace
{

/// What stands on the page of the modules below; a test edits it as a person would.
struct Page {
    float fov = 45;
    std::string path = "/tmp";
    int language = -1;
    bool vr = false;
};

class RecordModule : public olPreferences
{
public:
    RecordModule() : olPreferences(QStringLiteral("Module"), QString()) {}

    void setDefaults(olMessage &, bool flag) override
    {
        getData().set("Camera fov", 45.0f, flag);
        getData().set("Path", std::string("/tmp"), flag);
        getData().set("MainWindow user language", -1, flag);
    }
    void updateGUI() override
    {
        page.fov = boost::any_cast<float>(getData().get("Camera fov"));
        page.path = boost::any_cast<std::string>(getData().get("Path"));
        page.language = boost::any_cast<int>(getData().get("MainWindow user language"));
    }
    void updateData() override
    {
        take("Camera fov", page.fov);
        take("Path", page.path);
        take("MainWindow user language", page.language);
    }
    void applyPreferences() override
    {
        applied.clear();
        for (const char *key : {"Camera fov", "Path"}) {
            if (isChanged(key))
                applied.emplace_back(key + (' ' + olValue::toJson(getData().get(key))));
        }
    }

    Page page;
    std::vector<std::string> applied;

private:
    template <class T> void take(const char *key, const T &value)
    {
        if (boost::any_cast<T>(getData().get(key)) == value)
            addUnchanged(key);
        getData().set(key, value, true);
    }
};

class ServiceModule : public olPreferencesCategory
{
public:
    ServiceModule() : olPreferencesCategory(QStringLiteral("VR")) { registerCategory(); }

    void setDefaults(olMessage &, bool) override { service().setDefaultBool("Hands", false); }
    void updateGUI() override { page.vr = service().getBool("Hands", false); }
    void updateData() override { service().setBool("Hands", page.vr); }
    void applyPreferences() override { appliedChange = isChanged("Hands"); }

    static olPreferencesService &service() { return *olKernelServiceFactory::the<olPreferencesService>(); }

    Page page;
    bool appliedChange = false;
};

class Site : public StoreTest
{
protected:
    Site() { clear(); }
    ~Site() override { clear(); }

    static void clear()
    {
        const olMessage::Entries left = olPreferences::getData().entries();
        for (const auto &entry : left)
            olPreferences::getData().remove(entry.first);
        ServiceModule::service().clear();
        olHostState::the().displayLanguage = 0;
    }

    /// A run of the host at a site with that file, or with none where it is empty.
    void run(const QByteArray &site)
    {
        clear();
        QFile::remove(siteFile);
        if (!site.isEmpty())
            write(siteFile, site);
        session = std::make_unique<olPreferencesSession>(file, QStringList{siteFile, lesserFile});
        ASSERT_EQ(session->loadStore(), QString());
        session->start();
        notices = session->takeNotices();
    }

    void confirm() { ASSERT_EQ(session->confirm(olPreferencesRegistry::the().entries()), QString()); }

    template <class T> static T inRecord(const char *key)
    {
        return boost::any_cast<T>(olPreferences::getData().get(key));
    }

    QString siteFile = folder.filePath(QStringLiteral("site.json"));
    QString lesserFile = folder.filePath(QStringLiteral("lesser.json"));
    std::unique_ptr<olPreferencesSession> session;
    QStringList notices;
    RecordModule module;
    ServiceModule vr;
};

TEST_F(Site, GivesOtherDefaultsThatAPersonMayChangeAndThatAreNotStored)
{
    const QByteArray site(R"({"Camera fov": {"value": 60}, "Hands": {"value": true}})");
    run(site);
    EXPECT_EQ(notices, QStringList());
    EXPECT_EQ(module.page.fov, 60);
    EXPECT_TRUE(vr.page.vr);
    EXPECT_TRUE(olValue::equal(session->defaultValue("Camera fov"), 60.0f));
    EXPECT_FALSE(session->lockReason("Camera fov"));
    confirm();
    EXPECT_FALSE(QFile::exists(file));

    // The module's own default is a choice here.
    module.page.fov = 45;
    vr.page.vr = false;
    confirm();
    EXPECT_EQ(stored().size(), 2u);
    run(site);
    EXPECT_EQ(module.page.fov, 45);
    EXPECT_FALSE(vr.page.vr);

    module.page.fov = 60;
    confirm();
    EXPECT_EQ(stored().count(key("Camera fov")), 0u);
}

TEST_F(Site, ALockedSettingKeepsItsValueWhateverPageAndStoreSay)
{
    save({{key("Camera fov"), 90.0f}, {{olHome::Service, "Hands"}, true}});
    const QByteArray site(R"({"Camera fov": {"value": 60, "locked": true, "reason": "One camera for all."},
                             "Hands": {"locked": true}, "Path": {"value": "/site"}})");
    run(site);
    EXPECT_EQ(module.page.fov, 60);
    EXPECT_FALSE(vr.page.vr) << "locked without a value: at the module's default";
    EXPECT_EQ(session->lockReason("Camera fov").value(), QStringLiteral("One camera for all."));
    EXPECT_FALSE(session->lockReason("Hands").value().isEmpty());

    module.page.fov = 120;
    module.page.path = "/mine";
    vr.page.vr = true;
    confirm();
    EXPECT_EQ(inRecord<float>("Camera fov"), 60);
    EXPECT_EQ(module.applied, std::vector<std::string>{"Path \"/mine\""}) << "the lock counts as untouched";
    EXPECT_FALSE(ServiceModule::service().getBool("Hands", true));
    EXPECT_FALSE(vr.appliedChange);

    // As a tool would.
    olPreferences::getData().set("Camera fov", 10.0f, true);
    EXPECT_EQ(session->save(), QString());
    EXPECT_EQ(inRecord<float>("Camera fov"), 60);

    // What the person had chosen was only covered.
    run(QByteArray());
    EXPECT_EQ(module.page.fov, 90);
    EXPECT_TRUE(vr.page.vr);
    EXPECT_EQ(module.page.path, "/mine");
}

TEST_F(Site, AFaultIsReportedByLineAndNothingOfItsFileCounts)
{
    const std::vector<std::pair<const char *, int>> cases{
        {"\"Path\": {\"value\": \"a\"},\n}", 3},
        {"\"Path\": {\"value\": 7}}", 2},
        {"\n\n\"Path\": {\"value\": \"a\", \"lock\": true}}", 4},
        {"\"Path\": {\"value\": \"a\",\n \"value\": \"b\"}}", 3},
        {"\"Path\": {\"value\": \"a\"}} and more", 2},
        {"\"Path\": {\"reason\": \"none\"}}", 2},
        {"\"a{\\\"[\": {\"value\": [1, {\"Path\": 1}]},\n\"Path\": {\"value\": null}}", 3},
        {"\"Path\": {\"value\": \"a\"},\n\n\"Camera fov\": {\"value\": 61}}", 4},
        {"\"Path\": {\"value\": \"\xff\"}}", 2},
        {"", 2},
    };
    for (const auto &[rest, number] : cases) {
        run("{\"Camera fov\": {\"value\": 60, \"locked\": true}, \"MainWindow user language\": {\"value\": 2},\n" +
            QByteArray(rest));
        ASSERT_EQ(notices.size(), 1) << rest;
        const QString line = QStringLiteral("line %1:").arg(number);
        EXPECT_TRUE(notices.first().contains(siteFile) && notices.first().contains(line))
            << notices.first().toStdString();
        EXPECT_EQ(module.page.fov, 45) << rest;
        EXPECT_EQ(module.page.language, -1) << rest;
        EXPECT_FALSE(session->lockReason("Camera fov")) << rest;
    }
}

TEST_F(Site, TheMoreImportantFileHoldsAndAFaultInItLeavesTheOther)
{
    write(lesserFile, R"({"Camera fov": {"value": 70, "locked": true}, "Path": {"value": "/lesser"}})");
    run(R"({"Camera fov": {"value": 60}})");
    EXPECT_EQ(module.page.fov, 60);
    EXPECT_FALSE(session->lockReason("Camera fov"));
    EXPECT_EQ(module.page.path, "/lesser");

    // A key that no module has here is no fault, but a check names it.
    run(R"({"Camera fvo": {"value": 60, "locked": true}})");
    EXPECT_EQ(notices, QStringList());
    EXPECT_EQ(session->check().faults, QStringList()) << "an edition may lack the module";
    EXPECT_TRUE(session->check().remarks.value(0).contains("Camera fvo"));

    run(R"({"Camera fov": {"value": "wide"}})");
    EXPECT_EQ(notices.size(), 1);
    EXPECT_EQ(module.page.fov, 70);
}

TEST_F(Site, TheLanguageStandsBeforeTheModulesUnlessThePersonChoseOne)
{
    write(siteFile, R"({"MainWindow user language": {"value": 2}})");
    session = std::make_unique<olPreferencesSession>(file, QStringList{siteFile});
    ASSERT_EQ(session->loadStore(), QString());
    EXPECT_EQ(int(olHostState::the().displayLanguage), 2);
    save({{key("MainWindow user language"), 1}});
    run(R"({"MainWindow user language": {"value": 2}})");
    EXPECT_EQ(int(olHostState::the().displayLanguage), 1);
    run(R"({"MainWindow user language": {"value": 2, "locked": true}})");
    EXPECT_EQ(int(olHostState::the().displayLanguage), 2);
}

TEST_F(Site, FilesAreLookedForInTheSystemsFoldersOnly)
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(QStringLiteral("own"))));
    qputenv("XDG_CONFIG_DIRS", "/first:/second");
    EXPECT_EQ(olSiteDefaults::systemFiles(),
              (QStringList{QStringLiteral("/first/orlo/site.json"), QStringLiteral("/second/orlo/site.json")}));
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("XDG_CONFIG_DIRS");
}

TEST_F(Site, AStoreThatIsLostOrDamagedWhileTheHostRunsGetsAllThatTheRunHolds)
{
    save({{key("Camera fov"), 90.0f}, {key("Path"), std::string("/mine")}, {key("unknown"), 1}});
    for (const bool isLost : {true, false}) {
        run(QByteArray());
        if (isLost)
            QFile::remove(file);
        else
            write(file, bytesOf(file).left(5000));
        module.page.fov = isLost ? 91 : 92;
        confirm();
        EXPECT_EQ(session->takeNotices().size(), isLost ? 0 : 1);
        Values values = stored();
        EXPECT_EQ(values.size(), 3u);
        EXPECT_TRUE(olValue::equal(values[key("Camera fov")], isLost ? 91.0f : 92.0f));
        EXPECT_EQ(setAside().size(), isLost ? 0 : 1);
    }
}

TEST_F(Site, ValuesThatEqualOnlyThemselvesAreNotStoredAgainAndAgain)
{
    run(QByteArray());
    module.page.fov = std::numeric_limits<float>::quiet_NaN();
    confirm();
    const QByteArray before = bytesOf(file);
    confirm();
    EXPECT_EQ(bytesOf(file), before);
}

} // namespace
