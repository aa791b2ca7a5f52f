#include "Framework/olModule.h"
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
#include "Support/CleanHost.h"
#include "Utilities/olMessage.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QSpinBox>

#include <ctime>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace
{

struct RecordPage : olPageWidget {
    QLineEdit *fov = new QLineEdit(this);
    QLineEdit *path = new QLineEdit(this);
    QSpinBox *language = new QSpinBox(this);
};

class RecordModule : public olModule<RecordPage>
{
public:
    RecordModule() : olModule(QString("Module"), QString())
    {
        page.language->setMinimum(-1);
        settings().add(olSetting<float>("Camera fov", 45.0f), page.fov);
        settings().add(olSetting<std::string>("Path", "/tmp"), page.path);
        settings().add(olSetting<int>("MainWindow user language", -1), page.language);
        handOverPage();
    }

    void applyPreferences() override
    {
        applied.clear();
        for (const char *key : {"Camera fov", "Path"}) {
            if (isChanged(key))
                applied.emplace_back(key + (' ' + olValue::toJson(getData().get(key))));
        }
    }

    RecordPage &page = olModule::page();
    std::vector<std::string> applied;
};

struct ServicePage : olPageWidget {
    QCheckBox *hands = new QCheckBox(this);
};

class ServiceModule : public olModule<ServicePage, olPreferencesCategory>
{
public:
    ServiceModule() : olModule(QString("VR"))
    {
        registerCategory();
        settings().add(olServiceSetting<bool>("Hands", false), page.hands);
        handOverPage();
    }

    void applyPreferences() override { appliedChange = isChanged("Hands"); }

    ServicePage &page = olModule::page();
    bool appliedChange = false;
};

class Site : public StoreTest
{
protected:
    Site() { cleanHost(); }
    ~Site() override { cleanHost(); }

    void SetUp() override
    {
        if (::geteuid() != 0)
            GTEST_SKIP() << "a site's file counts only where it is root's";
    }

    /// A run of the host at a site with that file, or with none where it is empty.
    void run(const QByteArray &site)
    {
        cleanHost();
        QFile::remove(siteFile);
        if (!site.isEmpty())
            write(siteFile, site);
        session = std::make_unique<olPreferencesSession>(file, QStringList{siteFile, lesserFile});
        ASSERT_EQ(session->loadStore().error(), QString());
        session->start();
        notices = session->takeNotices();
    }

    void confirm() { ASSERT_EQ(session->commit(olPreferencesRegistry::the().entries()).error(), QString()); }

    template <class T> static T inRecord(const char *key)
    {
        return boost::any_cast<T>(olPreferences::getData().get(key));
    }

    QString siteFile = folder.filePath("site.json");
    QString lesserFile = folder.filePath("lesser.json");
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
    EXPECT_EQ(module.page.fov->text(), "60");
    EXPECT_TRUE(vr.page.hands->isChecked());
    EXPECT_TRUE(olValue::equal(session->defaultValue("Camera fov"), 60.0f));
    EXPECT_FALSE(session->lockReason("Camera fov"));
    confirm();
    EXPECT_FALSE(QFile::exists(file));

    // The module's own default is a choice here.
    module.page.fov->setText("45");
    vr.page.hands->setChecked(false);
    confirm();
    EXPECT_EQ(stored().size(), 2u);
    run(site);
    EXPECT_EQ(module.page.fov->text(), "45");
    EXPECT_FALSE(vr.page.hands->isChecked());

    module.page.fov->setText("60");
    confirm();
    EXPECT_EQ(stored().count(key("Camera fov")), 0u);
}

TEST_F(Site, ALockedSettingKeepsItsValueWhateverPageAndStoreSay)
{
    save({{key("Camera fov"), 90.0f}, {{olHome::Service, "Hands"}, true}});
    const QByteArray site(R"({"Camera fov": {"value": 60, "locked": true, "reason": "One camera for all."},
                             "Hands": {"locked": true}, "Path": {"value": "/site"}})");
    run(site);
    EXPECT_EQ(module.page.fov->text(), "60");
    EXPECT_FALSE(vr.page.hands->isChecked()) << "locked without a value: at the module's default";
    EXPECT_EQ(session->lockReason("Camera fov").value(), "One camera for all.");
    EXPECT_FALSE(session->lockReason("Hands").value().isEmpty());

    module.page.fov->setText("120");
    module.page.path->setText("/mine");
    vr.page.hands->setChecked(true);
    confirm();
    EXPECT_EQ(inRecord<float>("Camera fov"), 60);
    EXPECT_EQ(module.applied, std::vector<std::string>{"Path \"/mine\""}) << "the lock counts as untouched";
    EXPECT_FALSE(olKernelServiceFactory::the<olPreferencesService>()->getBool("Hands", true));
    EXPECT_FALSE(vr.appliedChange);

    // As a tool would.
    olPreferences::getData().set("Camera fov", 10.0f, true);
    EXPECT_EQ(session->save().error(), QString());
    EXPECT_EQ(inRecord<float>("Camera fov"), 60);

    // What the person had chosen was only covered.
    run(QByteArray());
    EXPECT_EQ(module.page.fov->text(), "90");
    EXPECT_TRUE(vr.page.hands->isChecked());
    EXPECT_EQ(module.page.path->text(), "/mine");
}

TEST_F(Site, AFileThatIsNoSuchJsonIsReportedByLineAndNothingOfItCounts)
{
    const std::vector<std::pair<const char *, int>> cases{
        {"\"Path\": {\"value\": \"a\"},\n}", 3},
        {"\"Path\": {\"value\": \"a\",\n \"value\": \"b\"}}", 3},
        {"\"Path\": {\"value\": \"a\"}} and more", 2},
        {"\"Path\": {\"value\": \"a\"},\n\n\"Camera fov\": {\"value\": 61}}", 4},
        {"\"Path\": {\"value\": \"\xff\"}}", 2},
        {"", 2},
    };
    for (const auto &[rest, number] : cases) {
        run("{\"Camera fov\": {\"value\": 60, \"locked\": true}, \"MainWindow user language\": {\"value\": 2},\n" +
            QByteArray(rest));
        ASSERT_EQ(notices.size(), 1) << rest;
        const QString line = QStringLiteral(" line %1:").arg(number);
        EXPECT_TRUE(notices.first().contains(siteFile) && notices.first().contains(line))
            << notices.first().toStdString();
        EXPECT_EQ(module.page.fov->text(), "45") << rest;
        EXPECT_EQ(module.page.language->value(), -1) << rest;
        EXPECT_FALSE(session->lockReason("Camera fov")) << rest;
    }
}

TEST_F(Site, AnEntryWithAFaultIsReportedByLineAndKeepsItsLock)
{
    struct Case {
        const char *entry;
        float fov;
        bool isLocked;
    };
    const Case cases[] = {
        {R"({"value": "wide", "locked": true})", 45, true},
        {R"({"value": 60, "locked": "yes"})", 60, true},
        {R"({"value": 60, "lock": true, "locked": true})", 60, true},
        {R"({"value": 60, "locked": true, "reason": 5})", 60, true},
        {R"({"value": null})", 45, false},
        {R"({"value": [1, {"Path": 1}]})", 45, false},
        {R"({"reason": "none"})", 45, false},
        {R"(60)", 45, false},
    };
    for (const auto &[entry, fov, isLocked] : cases) {
        run("{\"Path\": {\"value\": \"/site\", \"locked\": true},\n\n\"Camera fov\": " + QByteArray(entry) + '}');
        ASSERT_EQ(notices.size(), 1) << entry;
        EXPECT_TRUE(notices.first().contains(siteFile + ", line 3: \"Camera fov\" ")) << notices.first().toStdString();
        EXPECT_EQ(session->check(), notices);
        EXPECT_EQ(module.page.fov->text().toFloat(), fov) << entry;
        EXPECT_EQ(session->lockReason("Camera fov").has_value(), isLocked) << entry;
        EXPECT_EQ(module.page.path->text(), "/site") << entry;
        EXPECT_TRUE(session->lockReason("Path")) << entry;
    }
}

TEST_F(Site, AFileCountsOnlyWhereRootAloneCanReadAndChangeWhatItSays)
{
    const QString inner = folder.filePath("orlo");
    const QString name = inner + "/site.json";
    const QString target = folder.filePath("target.json");
    const auto encoded = [](const QString &file) { return QFile::encodeName(file); };
    const auto rebuild = [&] {
        QDir(inner).removeRecursively();
        QDir().mkdir(inner);
        write(name, R"({"Camera fov": {"value": 60, "locked": true}})");
        EXPECT_EQ(::chmod(encoded(inner), 0755) | ::chmod(encoded(name), 0644), 0);
    };
    const auto link = [&](const QString &to) {
        QFile::remove(name);
        EXPECT_EQ(::symlink(encoded(to), encoded(name)), 0);
    };
    const auto faults = [&] {
        olSiteDefaults site({name});
        site.read();
        site.resolve([](const std::string &) { return 45.0f; }, [](auto &, auto &) { return QString(); });
        QStringList found = site.takeFaults();
        EXPECT_EQ(site.settings().size(), found.isEmpty() ? 1u : 0u) << found.join(' ').toStdString();
        return found.join(' ').remove("The site's preferences " + name + " are ignored: ").toStdString();
    };
    const std::string notRoots = "only root may own and write the file and its folder.";
    rebuild();
    EXPECT_EQ(faults(), "");
    const std::vector<std::pair<std::function<void()>, std::string>> cases{
        {[&] { ::chmod(encoded(name), 0664); }, notRoots},
        {[&] { ::chmod(encoded(name), 0646); }, notRoots},
        {[&] { EXPECT_EQ(::chown(encoded(name), 65534, 0), 0); }, notRoots},
        {[&] { ::chmod(encoded(inner), 0777); }, notRoots},
        {[&] { EXPECT_EQ(::chown(encoded(inner), 65534, 0), 0); }, notRoots},
        {[&] { link(target); }, "it cannot be read: No such file or directory."},
        {[&] { link(name); }, "it cannot be read: Too many levels of symbolic links."},
        {[&] { link(inner); }, "it is no regular file."},
        {[&] { QFile::remove(name), ::mkfifo(encoded(name), 0644); }, "it is no regular file."},
    };
    for (const auto &[damage, reason] : cases) {
        rebuild();
        damage();
        EXPECT_EQ(faults(), reason);
    }

    rebuild();
    EXPECT_TRUE(QFile::rename(name, target));
    link(target);
    EXPECT_EQ(faults(), "");
    ::chmod(encoded(folder.path()), 0777);
    EXPECT_EQ(faults(), notRoots) << "where the link leads, others can put a file of theirs";

    // As a user who may not look into the folder, or not into the file.
    rebuild();
    for (const auto &[locked, mode] : {std::pair{inner, 0700}, {name, 0600}}) {
        ::chmod(encoded(locked), mode_t(mode));
        EXPECT_EQ(::seteuid(65534), 0);
        EXPECT_EQ(faults(), "it cannot be read: Permission denied.");
        EXPECT_EQ(::seteuid(0), 0);
        ::chmod(encoded(locked), 0755);
    }
    QDir(inner).removeRecursively();
    olSiteDefaults none({name, siteFile + "/below/a/file"});
    none.read();
    EXPECT_EQ(none.takeFaults(), QStringList());
}

TEST_F(Site, ALargeFileTakesNoLongerForEachOfItsEntries)
{
    const auto workFor = [this](int entries) {
        QByteArray site = "{\"Camera fov\": {\"value\": 60}";
        for (int index = 0; index < entries; ++index)
            site += ",\n\"Key " + QByteArray::number(index) + "\": {\"value\": 1, \"locked\": true}";
        const std::clock_t before = std::clock();
        run(site + '}');
        EXPECT_EQ(module.page.fov->text(), "60");
        return std::clock() - before;
    };
    const std::clock_t few = workFor(7500);
    EXPECT_LT(workFor(60000), few * 24) << "8 times as many entries";
}

TEST_F(Site, TheMoreImportantFileHoldsAndAFaultInItLeavesTheOther)
{
    write(lesserFile, R"({"Camera fov": {"value": 70, "locked": true}, "Path": {"value": "/lesser"}})");
    run(R"({"Camera fov": {"value": 60}})");
    EXPECT_EQ(module.page.fov->text(), "60");
    EXPECT_FALSE(session->lockReason("Camera fov"));
    EXPECT_EQ(module.page.path->text(), "/lesser");

    // A key that no module has here is no fault, but a check names it.
    run(R"({"Camera fvo": {"value": 60, "locked": true}})");
    EXPECT_EQ(notices, QStringList());
    EXPECT_EQ(session->check().size(), 1);
    EXPECT_TRUE(session->check().value(0).contains("Camera fvo"));

    run(R"({"Camera fov": {"value": 60})");
    EXPECT_EQ(notices.size(), 1);
    EXPECT_EQ(module.page.fov->text(), "70");
}

TEST_F(Site, TheLanguageStandsBeforeTheModulesUnlessThePersonChoseOne)
{
    run("{}");
    EXPECT_EQ(int(olHostState::the().displayLanguage), 0);
    write(siteFile, R"({"MainWindow user language": {"value": 2}})");
    session = std::make_unique<olPreferencesSession>(file, QStringList{siteFile});
    ASSERT_EQ(session->loadStore().error(), QString());
    EXPECT_EQ(int(olHostState::the().displayLanguage), 2);
    save({{key("MainWindow user language"), 1}});
    run(R"({"MainWindow user language": {"value": 2}})");
    EXPECT_EQ(int(olHostState::the().displayLanguage), 1);
    run(R"({"MainWindow user language": {"value": 2, "locked": true}})");
    EXPECT_EQ(int(olHostState::the().displayLanguage), 2);
}

TEST_F(Site, TheSystemsOwnFileComesFirstWhateverTheEnvironmentSays)
{
    const QString first = "/etc/xdg/orlo/site.json";
    const std::pair<const char *, const char *> environments[] = {
        {"/own", "/first:/second"}, {"/etc/xdg", "/first:/second"}, {"/own", "/first:/etc/xdg:/second:/own"}};
    for (const auto &[home, system] : environments) {
        qputenv("XDG_CONFIG_HOME", home);
        qputenv("XDG_CONFIG_DIRS", system);
        EXPECT_EQ(olSiteDefaults::systemFiles(),
                  (QStringList{first, "/first/orlo/site.json", "/second/orlo/site.json"}))
            << home << ' ' << system;
    }
    qputenv("XDG_CONFIG_DIRS", "/nowhere");
    EXPECT_EQ(olSiteDefaults::systemFiles().value(0), first);
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
        module.page.fov->setText(isLost ? "91" : "92");
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
    module.page.fov->setText("nan");
    confirm();
    const QByteArray before = bytesOf(file);
    confirm();
    EXPECT_EQ(bytesOf(file), before);
}

} // namespace
