#include "Support/BoxWatch.h"
#include "Support/Files.h"
#include "Support/PluginTest.h"

#include "Dialog/olChangesView.h"
#include "Dialog/olPreferencesDialog.h"
#include "Dialog/olSettingsTransfer.h"
#include "Editing/olPageIndex.h"
#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "Session/olPreferencesFile.h"
#include "Session/olPreferencesSession.h"
#include "State/olValue.h"
#include "Widgets/QOLCollapsibleFrame.h"
#include "Widgets/olTesselationSettings.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHelpEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QToolTip>
#include <QTreeWidget>

#include <algorithm>
#include <map>
#include <vector>

#include <unistd.h>

namespace
{

/// The dialog on all modules of the plug-in, at their defaults.
class DialogWithModules : public PluginTest
{
protected:
    DialogWithModules()
    {
        session.start();
        dialog = std::make_unique<olPreferencesDialog>(session);
        dialog->offerPreview();
        dialog->open("Camera");
        calls.take();
    }

    /// On the same modules at a site with that file.
    void openAtSite(const QByteArray &settings, const QString &page)
    {
        dialog.reset();
        const QString site = writtenFile(folder.filePath("site.json"), settings);
        sessionAtSite = std::make_unique<olPreferencesSession>(folder.filePath("locked.db"), QStringList{site});
        ASSERT_EQ(sessionAtSite->loadStore().error(), QString());
        sessionAtSite->start();
        dialog = std::make_unique<olPreferencesDialog>(*sessionAtSite);
        dialog->open(page);
    }

    [[nodiscard]] QString pending() const
    {
        QCoreApplication::processEvents();
        return dialog->findChild<QPushButton *>("changes")->text();
    }

    olChangesView *preview(const QByteArray &settings)
    {
        const QByteArray text = R"({"format": 1, "settings": {)" + settings + "}}";
        dialog->transfer().importFrom(writtenFile(folder.filePath("import.json"), text));
        return dialog->findChild<olChangesView *>();
    }

    void import(const QByteArray &settings)
    {
        auto *view = preview(settings);
        ASSERT_NE(view, nullptr);
        EXPECT_EQ(view->findChild<QTreeWidget *>("skipped")->topLevelItemCount(), 0);
        const auto untick = view->findChild<QTreeWidget *>("changes")->findItems(unticked, Qt::MatchExactly);
        for (QTreeWidgetItem *item : untick)
            item->setCheckState(0, Qt::Unchecked);
        view->accept();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QString unticked;
    QTemporaryDir folder;
    olPreferencesSession session{folder.filePath("preferences.db"), {}};
    std::unique_ptr<olPreferencesSession> sessionAtSite;
    std::unique_ptr<olPreferencesDialog> dialog;
};

} // namespace

TEST_F(DialogWithModules, LookingAtEveryPageLeavesNothingPending)
{
    for (olPreferencesEntry *entry : modules()) {
        ASSERT_NE(entry->page(), nullptr) << entry->name().toStdString();
        dialog->open(entry->name());
        EXPECT_EQ(pending(), "No Changes") << entry->name().toStdString();
    }
    dialog->restoreAll();
    EXPECT_EQ(pending(), "No Changes") << "everything has its default already";
    EXPECT_EQ(calls.take(), std::vector<std::string>());
}

TEST_F(DialogWithModules, NoTwoMnemonicsThatCanBePressedAtOneTimeAreAlike)
{
    const auto *buttons = dialog->findChild<QDialogButtonBox *>();
    for (const auto button : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel, QDialogButtonBox::Apply})
        EXPECT_FALSE(QKeySequence::mnemonic(buttons->button(button)->text()).isEmpty());
    for (olPreferencesEntry *entry : modules()) {
        dialog->open(entry->name());
        for (QOLCollapsibleFrame *frame : entry->page()->findChildren<QOLCollapsibleFrame *>())
            frame->setFolded(false);
        // With something pending the dialog offers the most.
        auto *box = entry->page()->findChild<QCheckBox *>();
        if (box && box->isEnabled() && entry->name() != "WebInterface")
            box->toggle();
        auto *tabs = entry->page()->findChild<QTabWidget *>();
        for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
            if (tabs)
                tabs->setCurrentIndex(tab);
            QCoreApplication::processEvents();
            std::map<QString, QString> owners;
            int onPage = 0;
            for (const QWidget *widget : dialog->findChildren<QWidget *>()) {
                QStringList texts{widget->property("text").toString(), widget->property("title").toString()};
                const auto *bar = qobject_cast<const QTabBar *>(widget);
                for (int index = 0; bar && index < bar->count(); ++index)
                    texts << bar->tabText(index);
                if (!widget->isVisible() || widget->inherits("QLineEdit"))
                    continue;
                for (const QString &text : texts) {
                    const QString key = QKeySequence::mnemonic(text).toString();
                    if (key.isEmpty())
                        continue;
                    onPage += entry->page()->isAncestorOf(widget) ? 1 : 0;
                    const auto [known, isNew] = owners.emplace(key, text);
                    EXPECT_TRUE(isNew) << entry->name().toStdString() << ", " << key.toStdString() << ": "
                                       << known->second.toStdString() << " and " << text.toStdString();
                }
            }
            EXPECT_EQ(onPage > 0, !olPageIndex(*entry->page()).controls().empty())
                << entry->name().toStdString() << ", tab " << tab << " has none";
        }
    }
    dialog->restoreAll();
}

TEST_F(DialogWithModules, WhatWritesToALockedControlIsLockedWithItAndWhatSlipsThroughIsPutBack)
{
    openAtSite(R"({"STEPOptions chord deviation": {"locked": true},
                   "RenderOptions background colors": {"locked": true}})",
               "Step");
    auto &block = control<olTesselationSettings>("Step", "tesselation");
    auto *quality = qobject_cast<QSlider *>(block.control(olTesselationSettings::Control::Quality));
    EXPECT_FALSE(quality->isEnabled());
    const QWidget &chordDeviation = *block.control(olTesselationSettings::Control::ChordDeviation);
    const double kept = chordDeviation.property("value").toDouble();
    quality->setValue(quality->maximum());
    QTest::qWait(1);
    EXPECT_EQ(pending(), "2 Chan&ges...") << "the two tolerances that are free, not the one that is locked";
    EXPECT_EQ(chordDeviation.property("value").toDouble(), kept);
    ASSERT_TRUE(dialog->apply());
    EXPECT_EQ(chordDeviation.property("value").toDouble(), kept);
    EXPECT_EQ(boost::any_cast<double>(record().get("STEPOptions chord deviation")), kept);

    dialog->open("Render Options");
    for (const char *button : {"addColor", "deleteColor", "chooseColor"})
        EXPECT_FALSE(control<QWidget>("Render Options", button).isEnabled()) << button;
    auto &table = control<QTableWidget>("Render Options", "backgroundTable");
    const int rows = table.rowCount();
    control<QAbstractButton>("Render Options", "addColor").setEnabled(true);
    table.insertRow(0);
    QTest::qWait(1);
    EXPECT_EQ(pending(), "No Changes");
    EXPECT_EQ(table.rowCount(), rows);
}

TEST_F(DialogWithModules, WhatIsRestoredGoesBackOnEveryPageAndOnlyOnOk)
{
    auto &service = *olKernelServiceFactory::the<olPreferencesService>();
    record().set("Camera fov", 60.5f, true);
    record().set("Navigator speed mode", 2, true);
    record().set("MainWindow show tool buttons text", true, true);
    record().set("texture search paths", std::vector<std::string>{"/a", "/b"}, true);
    record().set("Optimizer Teselation Quality", std::vector<float>{1.0f}, true);
    service.setFloat("VR Teleport Range", 5.0f);
    dialog->reject();
    dialog->open("FileIO");
    dialog->restoreAll();
    EXPECT_EQ(pending(), "6 Chan&ges...");
    EXPECT_EQ(boost::any_cast<float>(record().get("Camera fov")), 60.5f);
    EXPECT_EQ(service.getFloat("VR Teleport Range", 0.0f), 5.0f);
    EXPECT_EQ(calls.take(), std::vector<std::string>());

    ASSERT_TRUE(dialog->apply());
    EXPECT_EQ(pending(), "No Changes");
    for (const char *key :
         {"Camera fov", "Navigator speed mode", "MainWindow show tool buttons text", "Optimizer Teselation Quality"})
        EXPECT_TRUE(olValue::equal(record().get(key), session.defaultValue(key))) << key;
    EXPECT_EQ(service.getFloat("VR Teleport Range", 0.0f), 15000.0f);
    EXPECT_TRUE(record().get("texture search paths").empty());
    const std::vector<std::string> told = calls.take();
    EXPECT_NE(std::find(told.begin(), told.end(), "olOSGWidget::setFov(-1, 45)"), told.end());
}

TEST_F(DialogWithModules, ShowingImportedValuesSetsOffNoPresetAndNoQuestion)
{
    import(R"("Interaction mode": {"type": "int", "value": 1}, "Navigator orbit mode": {"type": "bool", "value": true},
        "texture search paths": {"type": "strings", "value": ["/textures"]},
        "VR Teleport Range": {"type": "float", "value": 12.5}, "Camera fov": {"type": "float", "value": 60.123457})");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(pending(), "5 Chan&ges...") << "a preset would have changed more";
    EXPECT_TRUE(control<QWidget>("Navigator", "orbitDetectionArea").isEnabled()) << "the page's rules did run";
    EXPECT_EQ(calls.take(), std::vector<std::string>());

    ASSERT_TRUE(dialog->apply());
    EXPECT_EQ(pending(), "No Changes");
    EXPECT_EQ(boost::any_cast<float>(record().get("Camera fov")), 60.123457f);
    EXPECT_EQ(boost::any_cast<int>(record().get("Interaction mode")), 1);
    EXPECT_TRUE(olValue::equal(record().get("texture search paths"), std::vector<std::string>{"/textures"}));
    EXPECT_EQ(olKernelServiceFactory::the<olPreferencesService>()->getFloat("VR Teleport Range", 0.0f), 12.5f);
}

TEST_F(DialogWithModules, AnImportBringsWhatIsTickedAndAsksWhatThePageWouldAsk)
{
    const BoxAnswers boxes({"Do Not Enable", "Enable"});
    const QByteArray settings = R"("WebInterface enable web server2": {"type": "bool", "value": true},
        "Camera fov": {"type": "float", "value": 60}, "Powerwall width": {"type": "float", "value": 1})";
    unticked = "Camera: Field of View";
    import(settings);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(pending(), "1 Chan&ge...") << "neither what is not ticked nor what is not agreed to";
    import(settings);
    EXPECT_EQ(pending(), "2 Chan&ges...");

    auto *view =
        preview(R"("RenderOptions background colors": {"type": "colors", "value": [[1, 0, 0.2], [2, 0.2, -1]]})");
    ASSERT_NE(view, nullptr);
    const auto *list = view->findChild<QTreeWidget *>("changes");
    const QTreeWidgetItem &colors = *list->topLevelItem(0);
    EXPECT_EQ(colors.text(2), "#ff0033, #ff3300") << "as bright as a screen can be";
    const QImage swatches = colors.icon(2).pixmap(list->iconSize()).toImage();
    EXPECT_EQ(swatches.pixelColor(swatches.height() / 2, swatches.height() / 2), QColor(0xff0033));
    view->reject();
    dialog->restoreAll();
}

TEST_F(DialogWithModules, ASettingOfManyModulesWithoutAControlIsRestoredWithAllAndCountsOnce)
{
    record().set("BCADOptions use ATF", true, true);
    dialog->open("Catia V4");
    dialog->restorePage();
    EXPECT_EQ(pending(), "No Changes") << "it is none of any one page";
    dialog->restoreAll();
    EXPECT_EQ(pending(), "1 Chan&ge...");
    ASSERT_TRUE(dialog->apply());
    EXPECT_FALSE(boost::any_cast<bool>(record().get("BCADOptions use ATF")));
}

TEST_F(DialogWithModules, TheModulesMayGoWhileTheirPagesAreShown)
{
    dialog->open("Render Options");
    dialog->open("Virtual Reality");
    plugin.unload();
    QCoreApplication::processEvents();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->findChild<QTreeWidget *>()->topLevelItemCount(), 0);
    dialog->reject();
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(DialogWithModules, AnImportRefusesInTheWordsOfEveryOtherDoor)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "a site's file counts only where it is root's";
    openAtSite(R"({"Powerwall width": {"locked": true, "reason": "One wall for all."}})", "Camera");
    const QJsonArray rows = QJsonDocument::fromJson(contentOf(sourceOfTest("Tests/Apps/refusals.json"))).array();
    EXPECT_FALSE(rows.isEmpty());
    QString told;
    const BoxWatch questions([&told](QMessageBox &box) {
        told = box.text().replace('\n', ' ');
        box.reject();
    });
    for (const QJsonValue &row : rows) {
        const QString key = row["key"].toString();
        QJsonObject setting{{"type", row["type"]}, {"value", row["value"]}};
        if (row["kind"] == "length")
            setting["value"] = QString(row["length"].toInt(), QLatin1Char('x'));
        const bool asks = row["kind"] == "warning";
        told.clear();
        const auto *view = preview(QJsonDocument(QJsonObject{{key, setting}}).toJson().mid(1).chopped(2));
        if (!asks)
            told = view->findChild<QTreeWidget *>("skipped")->topLevelItem(0)->text(1);
        EXPECT_EQ(view->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled(), asks);
        dialog->findChild<olChangesView *>()->accept();
        EXPECT_EQ(told, row["words"].toString()) << key.toStdString();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(pending(), "No Changes");
}

TEST_F(DialogWithModules, AnImportTellsAValueThatOnlyCallsItselfByAnotherType)
{
    const auto *view = preview(R"("Powerwall width": {"type": "int", "value": 3})");
    EXPECT_EQ(view->findChild<QTreeWidget *>("skipped")->topLevelItem(0)->text(1), "is of the type int, not float");
}

TEST_F(DialogWithModules, WhatThePageWouldAskAboutIsAskedWhenAnotherProgramStoresIt)
{
    constexpr auto server = "WebInterface enable web server2";
    ASSERT_EQ(session.loadStore().error(), QString());
    olPreferencesStore other(session.store().file());
    const auto storeOutside = [&](bool isOn, float range) {
        EXPECT_TRUE(other
                        .save({{{olHome::Record, server}, {}, olStoreRows::Row::of(isOn)},
                               {{olHome::Service, "VR Teleport Range"}, {}, olStoreRows::Row::of(range)}})
                        .isOk());
        session.takeOver();
        const auto &service = *olKernelServiceFactory::the<olPreferencesService>();
        EXPECT_EQ(service.getFloat("VR Teleport Range", 0.0f), range) << "nothing else waits for that";
    };
    const auto isOn = [] { return boost::any_cast<bool>(record().get(server)); };
    const auto isStoredOn = [&] {
        const olPreferencesStore::Values values = other.load()->values;
        const auto stored = values.find({olHome::Record, server});
        return stored != values.end() && boost::any_cast<bool>(stored->second);
    };
    QStringList asked;
    QObject::connect(&session, &olPreferencesSession::consentWanted,
                     [&asked](const olOutsideChange &, const olSettingWarning &question) { asked << question.text; });
    dialog->open("WebInterface");

    storeOutside(true, 1.0f);
    ASSERT_EQ(asked.size(), 1);
    EXPECT_TRUE(asked.first().startsWith("Do you really want"));
    EXPECT_FALSE(isOn());
    EXPECT_EQ(pending(), "No Changes");
    control<QCheckBox>("WebInterface", "debugMode").toggle();
    ASSERT_TRUE(dialog->apply());
    EXPECT_FALSE(isOn());
    EXPECT_TRUE(isStoredOn()) << "while nobody has answered, what another program was agreed to stays there";
    session.answer(server, false);
    ASSERT_EQ(session.save().error(), QString());
    EXPECT_FALSE(isStoredOn());

    storeOutside(true, 2.0f);
    EXPECT_EQ(asked.size(), 2);
    calls.take();
    session.answer(server, true);
    EXPECT_TRUE(isOn());
    const std::vector<std::string> told = calls.take();
    EXPECT_NE(std::find(told.begin(), told.end(), "olController::enableWebInterface(true)"), told.end());
    EXPECT_TRUE(control<QCheckBox>("WebInterface", "enableWebServer").isChecked());

    storeOutside(false, 3.0f);
    EXPECT_FALSE(isOn()) << "switching off is nothing to ask about";
    storeOutside(true, 4.0f);
    storeOutside(false, 5.0f);
    session.answer(server, true);
    EXPECT_FALSE(isOn()) << "the question is no longer asked";
    EXPECT_EQ(asked.size(), 3);
}

TEST_F(DialogWithModules, ATipTellsRangeDefaultAndEffectBesidesWhatTheFormHas)
{
    const auto told = [this](QWidget &widget) {
        const QPoint place(3, 3);
        QHelpEvent asked(QEvent::ToolTip, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &asked);
        const QString text = QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
        QToolTip::hideText();
        return text;
    };
    auto &fov = control<QWidget>("Camera", "fieldOfView");
    const QString own = fov.toolTip();
    EXPECT_EQ(told(fov), own + "\nRange: 1 to 100°\nDefault: 45°\nTakes effect at once");
    EXPECT_EQ(told(control<QWidget>("Camera", "fieldOfViewLabel")), told(fov)) << "its label tells the same";
    EXPECT_EQ(fov.toolTip(), own);
    dialog->open("Step");
    EXPECT_TRUE(told(control<QWidget>("Step", "removeEmptyGroups")).endsWith("Takes effect at the next import"));
    dialog->open("WebInterface");
    EXPECT_EQ(told(control<QWidget>("WebInterface", "enableWebServer")).count("Default: off"), 1);
}

TEST_F(DialogWithModules, ANoteSaysWhatHoldsForAllOrMostOfAPage)
{
    const auto note = [this](const char *page) {
        dialog->open(page);
        const auto *note = dialog->findChild<QLabel *>("pageNote");
        return note->isVisible() ? note->text() : QString();
    };
    EXPECT_EQ(note("Camera"), QString());
    EXPECT_TRUE(note("Catia V4").contains("reader"));
    EXPECT_TRUE(note("Step").contains("next import"));
    EXPECT_TRUE(note("STL").contains("next import")) << "but for what it writes";
    EXPECT_EQ(note("MainWindow"), QString());
}

TEST_F(DialogWithModules, UnitsStandInTheFieldsOfNumbers)
{
    const auto units = [this](const char *page) {
        dialog->open(page);
        QStringList texts;
        for (const QLabel *label : module(page).page()->findChildren<QLabel *>("unit"))
            texts << label->text();
        return texts;
    };
    EXPECT_EQ(units("Camera"), (QStringList{QString::fromUtf8("°"), "mm", "mm", "mm", "mm", "mm"}));
    EXPECT_EQ(units("Navigator"), (QStringList{"px", "ms"}));
    EXPECT_EQ(units("Step"), QStringList()) << "they stand behind the fields already";
    EXPECT_EQ(units("MainWindow"), QStringList{"= 100 %"});
    auto &opacity = *control<QWidget>("MainWindow", "windowOpacity").findChild<QLineEdit *>();
    opacity.selectAll();
    QTest::keyClicks(&opacity, "0.35");
    EXPECT_EQ(units("MainWindow"), QStringList{"= 35 %"});
}

TEST_F(DialogWithModules, AProfileHoldsAllSettingsOrThoseThatDifferOrThoseOfAModule)
{
    import(R"("Camera fov": {"type": "float", "value": 60}, "Powerwall width": {"type": "float", "value": 3})");
    ASSERT_TRUE(dialog->apply());
    const auto menus = dialog->findChildren<QMenu *>();
    const auto found =
        std::find_if(menus.begin(), menus.end(), [](const QMenu *menu) { return menu->title() == "&Profiles"; });
    ASSERT_NE(found, menus.end());
    QMenu &profiles = **found;
    const auto choose = [&profiles](const QString &text) {
        profiles.popup({});
        const QList<QAction *> actions = profiles.actions();
        const auto action =
            std::find_if(actions.begin(), actions.end(), [&text](const QAction *one) { return one->text() == text; });
        ASSERT_NE(action, actions.end()) << text.toStdString();
        profiles.close();
        (*action)->trigger();
    };
    const auto settingsOf = [this](const QString &name) {
        const auto kept = olPreferencesFile::read(folder.filePath("profiles/" + name + ".json"));
        EXPECT_EQ(kept.error(), QString());
        return kept.isOk() ? kept->settings : olSettingValues();
    };
    const auto saveAs = [&](const QString &name, const QString &which, QMessageBox::StandardButton answer) {
        const BoxWatch question([answer](QMessageBox &box) { box.button(answer)->click(); });
        QTimer::singleShot(0, dialog.get(), [&] {
            QWidget *box = QApplication::activeModalWidget();
            ASSERT_NE(box, nullptr);
            EXPECT_FALSE(box->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->isEnabled());
            QTest::keyClicks(box->findChild<QLineEdit *>(), name);
            box->findChild<QComboBox *>()->setCurrentText(which);
            QTest::keyClick(box, Qt::Key_Return);
        });
        choose("&Save As...");
        return settingsOf(name);
    };
    EXPECT_EQ(saveAs("all", "All Settings", QMessageBox::No).size(), olPreferencesSession::keys().size());
    EXPECT_EQ(saveAs("changed", "Changed Settings", QMessageBox::No).size(), 2u);
    EXPECT_EQ(saveAs("one", "Camera", QMessageBox::No).size(), 6u);
    EXPECT_EQ(saveAs("one", "Changed Settings", QMessageBox::No).size(), 6u) << "it was not to be replaced";
    EXPECT_EQ(saveAs("one", "Changed Settings", QMessageBox::Yes).size(), 2u);

    dialog->restoreAll();
    ASSERT_TRUE(dialog->apply());
    choose("changed");
    auto *view = dialog->findChild<olChangesView *>();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->findChild<QTreeWidget *>("changes")->topLevelItemCount(), 2);
    view->accept();
    EXPECT_EQ(pending(), "2 Chan&ges...");
}
