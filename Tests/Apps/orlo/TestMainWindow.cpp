#include "WindowTest.h"

#include "olFactsPanel.h"
#include "olHostStatePanel.h"
#include "olImportDialog.h"
#include "olRecentModels.h"
#include "olStartFault.h"

#include "Dialog/olPreferencesDialog.h"
#include "Exchange/olExportScene.h"
#include "Model/olScene.h"
#include "State/olHostState.h"
#include "Support/BoxWatch.h"
#include "Support/Files.h"
#include "Utilities/olLog.h"
#include "View/olViewport.h"
#include "Widgets/olTesselationSettings.h"

#include <TDocStd_Document.hxx>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>
#include <QWindow>

namespace
{

constexpr auto settings = "MainWindow";

class MainWindow : public WindowTest
{
protected:
    QLabel &frameRate = *window.statusBar()->findChild<QLabel *>("frameRate");

    /// Drops the file and confirms the dialog that asks how to import it.
    void import(const QString &file)
    {
        delete window.findChild<olImportDialog *>();
        EXPECT_TRUE(drop({file}));
        const auto *dialog = window.findChild<olImportDialog *>();
        ASSERT_NE(dialog, nullptr);
        emit dialog->findChild<QDialogButtonBox *>()->accepted();
    }

    static QByteArray facet(const QByteArray &a, const QByteArray &b, const QByteArray &c)
    {
        return "facet normal 0 0 0\nouter loop\nvertex " + a + "\nvertex " + b + "\nvertex " + c +
               "\nendloop\nendfacet\n";
    }
    const QByteArray triangle = "solid\n" + facet("0 0 0", "9 0 0", "0 9 0") + "endsolid\n";
    const QByteArray tetrahedron = "solid\n" + facet("0 0 0", "0 6 0", "6 0 0") + facet("0 0 0", "6 0 0", "0 0 6") +
                                   facet("0 0 0", "0 0 6", "0 6 0") + facet("6 0 0", "0 6 0", "0 0 6") + "endsolid\n";

    /// What the panel says beside that title, once it has measured.
    QString fact(const char *title)
    {
        const auto *panel = window.findChild<olFactsPanel *>();
        EXPECT_TRUE(QTest::qWaitFor([panel] { return !panel->isMeasuring(); }, 10000));
        for (const QLabel *label : panel->findChildren<QLabel *>()) {
            if (label->text() == QLatin1String(title))
                return static_cast<const QLabel *>(label->buddy())->text();
        }
        return {};
    }

    /// What the dialog says in the end.
    QString outcome()
    {
        const auto *text = window.findChild<olImportDialog *>()->findChild<QPlainTextEdit *>();
        EXPECT_TRUE(QTest::qWaitFor([text] { return text->isVisible(); }, 10000));
        EXPECT_EQ(window.findChild<olImportDialog *>()->findChild<QDialogButtonBox *>()->buttons().size(), 1)
            << "Close";
        return text->toPlainText();
    }
};

TEST_F(MainWindow, RestartsOnTheSamePageWithWhatWasOpen)
{
    action("Open the Sample").trigger();
    olPreferencesDialog &preferences = window.openPreferences();
    ASSERT_TRUE(preferences.openAt("MainWindow show button text"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&preferences));
    QWidget &box = *preferences.focusWidget();
    tick(box);
    auto *apply = preferences.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Apply);
    ASSERT_TRUE(QTest::qWaitFor([apply] { return apply->isEnabled(); }, 2000));
    QTest::mouseClick(apply, Qt::LeftButton);
    auto *restart = preferences.findChild<QWidget *>("message")->findChild<QAbstractButton *>("messageAction");
    ASSERT_TRUE(restart->isVisible());

    // With an edit that somebody wants to stay with, nothing happens.
    tick(box);
    BoxAnswers boxes({"Stay"});
    QTest::mouseClick(restart, Qt::LeftButton);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.restartArguments(), QStringList());

    tick(box);
    QTest::mouseClick(restart, Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.restartArguments(), (QStringList{"--preferences", "--sample"}));
    EXPECT_EQ(QSettings().value("preferencesDialog/page").toString(), "MainWindow");
}

TEST_F(MainWindow, EditsArePreviewedInTheViewWhereThatIsAskedForAndCancelLeavesNoneThere)
{
    const QImage before = view.picture();
    const auto fov = [] { return olHostState::the().fov.get(); };
    olPreferencesDialog &preferences = window.openPreferences();
    ASSERT_TRUE(preferences.openAt("RenderOptions coordinate system"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&preferences));
    auto &asked = *preferences.findChild<QCheckBox *>("preview");
    EXPECT_FALSE(asked.isChecked());
    tick(*preferences.focusWidget());
    ASSERT_TRUE(preferences.openAt("Camera fov"));
    QTest::keyClick(preferences.focusWidget(), Qt::Key_PageUp);
    QTest::qWait(50);
    EXPECT_TRUE(isLike(before));

    tick(asked);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isLike(before); }, 2000));
    EXPECT_GT(fov(), 45.0f);
    EXPECT_EQ(boost::any_cast<float>(record().get("Camera fov")), 45.0f);
    EXPECT_EQ(preferences.findChild<QPushButton *>("changes")->text(), "2 Chan&ges...");
    const float shown = fov();
    QTest::keyClick(preferences.focusWidget(), Qt::Key_PageUp);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fov() > shown; }, 2000)) << "as it is edited";
    tick(asked);
    EXPECT_TRUE(isLike(before));

    tick(asked);
    EXPECT_FALSE(isLike(before));
    const BoxWatch discard([](QMessageBox &box) { box.button(QMessageBox::Discard)->click(); });
    QTest::keyClick(&preferences, Qt::Key_Escape);
    EXPECT_FALSE(preferences.isVisible());
    EXPECT_TRUE(isLike(before));
    EXPECT_FALSE(asked.isChecked()) << "off by default, each time";

    window.openPreferences();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&preferences));
    tick(asked);
    ASSERT_TRUE(preferences.openAt("Camera fov"));
    QTest::keyClick(preferences.focusWidget(), Qt::Key_PageUp);
    QTest::mouseClick(preferences.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_GT(fov(), 45.0f);
    EXPECT_EQ(boost::any_cast<float>(record().get("Camera fov")), fov());
    EXPECT_EQ(session.origin("Camera fov"), "stored");
}

TEST_F(MainWindow, ThePreferencesFitBesideTheViewAsAPanelOnASmallScreen)
{
    olPreferencesDialog &preferences = window.openPreferences("Step");
    auto &box = control<QCheckBox>("Step", "keepSurfaceData");
    tick(box);
    const bool isTicked = box.isChecked();
    window.resize(1366, 700);
    action("Preferences as a Panel").trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !preferences.isWindow() && preferences.isVisible(); }, 2000));
    QTest::qWait(100);
    EXPECT_GE(view.width(), 1366 / 3) << "the model stays in sight";
    const auto *area = qobject_cast<QScrollArea *>(module("Step").page()->parentWidget()->parentWidget());
    ASSERT_NE(area, nullptr);
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << "nothing must be scrolled sideways";
    EXPECT_EQ(box.isChecked(), isTicked) << "what is edited stays";

    // A number field's Enter closes nothing.
    auto &deviation =
        *control<olTesselationSettings>("Step", "tesselation").control(olTesselationSettings::Control::ChordDeviation);
    deviation.setFocus();
    QTest::keyClick(&deviation, Qt::Key_Return);
    EXPECT_TRUE(preferences.isVisible());

    auto *dock = window.findChild<QDockWidget *>("preferencesDock");
    BoxAnswers boxes({"Stay"});
    dock->close();
    EXPECT_TRUE(dock->isVisible()) << "somebody stays with the edits";
    tick(box);
    dock->close();
    EXPECT_FALSE(dock->isVisible());
    EXPECT_FALSE(preferences.isVisible());
    window.openPreferences();
    EXPECT_TRUE(dock->isVisible());
    action("Preferences as a Panel").trigger();
    EXPECT_TRUE(preferences.isWindow());
    EXPECT_TRUE(preferences.isVisible());
}

TEST_F(MainWindow, AnImportIsMadeFinerForItselfOrForGood)
{
    const QString file = path("sample.step");
    ASSERT_EQ(olExportScene(window.scene().document(), file).error(), QString());
    const auto ask = [&] {
        delete window.findChild<olImportDialog *>();
        EXPECT_TRUE(drop({file}));
        return window.findChild<olImportDialog *>();
    };
    const auto stored = [] { return boost::any_cast<double>(record().get("STEPOptions chord deviation")); };
    olImportDialog *dialog = ask();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    auto *deviation = dialog->findChild<QDoubleSpinBox *>("chord deviation");
    ASSERT_NE(deviation, nullptr);
    const auto words = [&] {
        QStringList texts;
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            texts << label->text();
        return texts.join(QLatin1Char('|'));
    };
    EXPECT_TRUE(words().contains("% of the model")) << qPrintable(words());
    EXPECT_FALSE(words().contains("coarse"));
    deviation->setFocus();
    deviation->selectAll();
    QTest::keyClicks(deviation, "50");
    EXPECT_TRUE(words().contains("coarse")) << qPrintable(words());
    emit dialog->findChild<QDialogButtonBox *>()->accepted();
    EXPECT_EQ(stored(), 0.075) << "for this import alone";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window.findChild<olImportDialog *>(); }, 10000));

    dialog = ask();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    deviation = dialog->findChild<QDoubleSpinBox *>("chord deviation");
    EXPECT_EQ(deviation->value(), 0.075);
    deviation->setFocus();
    deviation->selectAll();
    QTest::keyClicks(deviation, "0.5");
    auto *curves = dialog->findChild<QComboBox *>("curves");
    EXPECT_EQ(curves->currentIndex(), 0);
    curves->setFocus();
    QTest::keyClick(curves, Qt::Key_Down);
    tick(*dialog->findChild<QCheckBox *>("keep"));
    emit dialog->findChild<QDialogButtonBox *>()->accepted();
    EXPECT_EQ(stored(), 0.5);
    EXPECT_EQ(olHostState::the().importRecord("STEP")->chordDeviation, 0.5);
    EXPECT_EQ(session.origin("STEPOptions chord deviation"), "stored");
    EXPECT_TRUE(boost::any_cast<bool>(record().get("STEPOptions import curves")));
    EXPECT_EQ(session.origin("STEPOptions import invisible curves"), "default");
    EXPECT_EQ(session.origin("STEPOptions stitching"), "default") << "what was not changed is not kept";
}

TEST_F(MainWindow, F1ShowsTheSettingsLineInTheDocuments)
{
    olPreferencesDialog &preferences = window.openPreferences();
    ASSERT_TRUE(preferences.openAt("Camera fov"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&preferences));
    QTest::keyClick(preferences.focusWidget(), Qt::Key_F1);
    const auto *document = preferences.findChild<QTextBrowser *>("document");
    ASSERT_NE(document, nullptr);
    EXPECT_TRUE(document->isVisible());
    const QString line = document->textCursor().selectedText();
    EXPECT_TRUE(line.startsWith("Camera fov")) << qPrintable(line);
    EXPECT_TRUE(line.contains("1 to 100")) << qPrintable(line);
    EXPECT_FALSE(document->toPlainText().contains("Navigator")) << "the section of the page alone";
}

TEST_F(MainWindow, SupportInformationIsOnTheClipboardWithoutSecrets)
{
    apply("Camera", "Camera fov", 33.0f);
    apply("WebInterface", "WebInterface white list", std::string("secret.host"));
    olLog::error("the disk hums");
    action("Copy Support Information").trigger();
    const QString text = QApplication::clipboard()->text();
    EXPECT_TRUE(text.contains(qVersion()));
    EXPECT_TRUE(text.contains("\"Camera fov\": {\"type\": \"float\", \"value\": 33}"));
    EXPECT_TRUE(text.contains("error: the disk hums"));
    EXPECT_FALSE(text.contains("secret.host"));
    EXPECT_TRUE(text.contains("WebInterface white list"));
    EXPECT_FALSE(text.contains("Eye")) << "a default is no news";
}

TEST_F(MainWindow, FramesPerSecondAreInTheStatusBarWhereWanted)
{
    EXPECT_FALSE(frameRate.isVisible());
    apply(settings, "MainWindow show fps", true);
    EXPECT_TRUE(frameRate.isVisible());
    // Without sleep the view draws all the time.
    olHostState::the().sleepTime = 0;
    EXPECT_TRUE(QTest::qWaitFor([this] { return frameRate.text().endsWith(QLatin1String("frames/s")); }, 30000));
    EXPECT_GT(frameRate.text().section(QLatin1Char(' '), 0, 0).toDouble(), 0.0);
    apply(settings, "MainWindow show fps", false);
    EXPECT_FALSE(frameRate.isVisible());
}

TEST_F(MainWindow, TheHostStateSaysWhatIsOnlyRecorded)
{
    const auto *panel = window.findChild<olHostStatePanel *>()->findChild<QTreeWidget *>();
    const auto value = [panel](const QString &name) {
        return panel->findItems(name, Qt::MatchExactly).value(0)->text(1);
    };
    apply("Camera", "Camera fov", 30.0f);
    apply("Camera", "Powerwall width", 99.0f);
    EXPECT_EQ(value("fov"), "30");
    EXPECT_EQ(value("powerwallWidth"), "99 (only recorded)");
    apply("Step", "STEPOptions max chord length", 50.0);
    const QString lengths = value("maxChordLengths");
    EXPECT_TRUE(lengths.contains("STEP 50") && lengths.endsWith("(only recorded)")) << lengths.toStdString();
}

TEST_F(MainWindow, PanelsForIntegratorsAreOffUntilAskedForAndTheWindowIsRemembered)
{
    const auto panel = [](const olMainWindow &of, const char *name) { return of.findChild<QDockWidget *>(name); };
    for (const char *name : {"hostStateDock", "hostCallsDock"})
        EXPECT_FALSE(panel(window, name)->isVisible()) << name;
    EXPECT_TRUE(panel(window, "sceneDock")->isVisible());
    EXPECT_GT(view.width(), window.width() / 2);

    action("Host State").trigger();
    EXPECT_TRUE(panel(window, "hostStateDock")->isVisible());
    window.setGeometry(60, 80, 1111, 777);
    QTest::qWait(20);
    window.close();
    olMainWindow again(session);
    again.show();
    EXPECT_EQ(again.geometry(), QRect(60, 80, 1111, 777));
    EXPECT_TRUE(panel(again, "hostStateDock")->isVisible());
    EXPECT_FALSE(panel(again, "hostCallsDock")->isVisible());
}

TEST_F(MainWindow, OpacityNeverMakesTheWindowVanish)
{
    apply(settings, "MainWindow window opacity", 0.5);
    EXPECT_NEAR(window.windowHandle()->opacity(), 0.5, 0.01);
    apply(settings, "MainWindow window opacity", 0.0);
    EXPECT_NEAR(window.windowHandle()->opacity(), 0.1, 0.01);
}

TEST_F(MainWindow, WithoutDockingPanelsStayWhereTheyAre)
{
    auto &dock = *window.findChild<QDockWidget *>("sceneDock");
    dock.setFloating(true);
    apply(settings, "MainWindow disable docking", true);
    EXPECT_FALSE(dock.isFloating());
    EXPECT_EQ(dock.features(), QDockWidget::DockWidgetClosable);
    apply(settings, "MainWindow disable docking", false);
    EXPECT_TRUE(dock.features() & QDockWidget::DockWidgetFloatable);
    EXPECT_TRUE(dock.features() & QDockWidget::DockWidgetMovable);
}

TEST_F(MainWindow, ButtonsShowTheirTextsWhereWanted)
{
    const auto &tools = *window.findChild<QToolBar *>("viewTools");
    const QWidget &button = *tools.widgetForAction(&action("Show All"));
    const int wide = (QTest::qWait(20), button.width());
    apply(settings, "MainWindow show button text", false);
    EXPECT_EQ(tools.toolButtonStyle(), Qt::ToolButtonIconOnly);
    QTest::qWait(20);
    EXPECT_LT(button.width(), wide);
}

TEST_F(MainWindow, MenusDoWhatTheySay)
{
    const QImage first = view.picture();
    for (const char *toggled : {"Stereo for Red and Cyan Glasses", "Trace Rays"}) {
        action(toggled).trigger();
        EXPECT_FALSE(isLike(first)) << toggled;
        action(toggled).trigger();
        EXPECT_TRUE(isLike(first)) << toggled;
    }
    view.select({idOf(node("Lifting eye"))});
    action("Zoom To").trigger();
    view.select({});
    EXPECT_FALSE(isLike(first));
    action("Show All").trigger();
    EXPECT_TRUE(isLike(first));

    QTest::keyClick(&window, Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(window.scene().isEmpty());
    action("Open the Sample").trigger();
    EXPECT_FALSE(window.scene().isEmpty());
    EXPECT_TRUE(isLike(first));

    QTest::keyClick(&window, Qt::Key_Comma, Qt::ControlModifier);
    auto *preferences = window.findChild<olPreferencesDialog *>();
    ASSERT_NE(preferences, nullptr);
    EXPECT_TRUE(preferences->isVisible());
    action("Quit").trigger();
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(preferences->isVisible()) << "it would keep the program running";
}

TEST_F(MainWindow, WhatIsDroppedIsReadOrRefusedOnceWithTheSceneKept)
{
    EXPECT_FALSE(drop({})) << "what is no file";
    const olScene::Document before = window.scene().document();
    import(writtenFile(path("broken.step"), "ISO-10303-21;\nHEADER;\nnonsense"));
    EXPECT_EQ(outcome().count("broken.step"), 1) << outcome().toStdString();
    EXPECT_EQ(window.findChild<olImportDialog *>()->windowTitle(), "Import Failed");
    EXPECT_EQ(window.statusBar()->currentMessage(), "The import failed.");
    EXPECT_EQ(window.windowTitle(), "Sample - ORLO");
    EXPECT_EQ(window.scene().document(), before);

    import(writtenFile(path("triangle.stl"), triangle));
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.scene().document() != before; }, 10000));
    EXPECT_EQ(window.scene().triangleCount(), 1u);
    EXPECT_EQ(tree.topLevelItemCount(), 1);
    EXPECT_EQ(window.windowTitle(), "triangle.stl - ORLO");
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return window.statusBar()->currentMessage() == "triangle.stl was read."; }, 30000));
}

TEST_F(MainWindow, AModelIsAddedOrReplacesInTheUnitThatIsChosenAndIsFoundAgain)
{
    const auto read = [this](const QByteArray &word, const char *into, int unit) {
        EXPECT_TRUE(drop({path(word)}));
        auto *dialog = window.findChildren<olImportDialog *>().last();
        for (QRadioButton *button : dialog->findChildren<QRadioButton *>())
            button->setChecked(button->text() == QLatin1String(into));
        dialog->findChildren<QComboBox *>().first()->setCurrentIndex(unit);
        const olScene::Document before = window.scene().document();
        emit dialog->findChild<QDialogButtonBox *>()->accepted();
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.scene().document() != before; }, 20000));
        QTest::qWait(20);
    };
    writtenFile(path("triangle.stl"), triangle);
    writtenFile(path("tetrahedron.stl"), tetrahedron);
    constexpr int centimetres = 1;
    read("tetrahedron.stl", "&Replace the scene", centimetres);
    EXPECT_EQ(fact("Size:"), QString::fromUtf8("60 \u00d7 60 \u00d7 60 mm"));
    EXPECT_EQ(fact("Bounding box:"), "(0, 0, 0) to (60, 60, 60)");
    EXPECT_EQ(fact("Volume:"), QString::fromUtf8("36,000 mm\u00b3"));
    EXPECT_EQ(fact("Area:"), QString::fromUtf8("8,517.69 mm\u00b2"));
    EXPECT_EQ(fact("Triangles:"), "4");

    window.scene().setHiddenParts({idOf(node("tetrahedron"))});
    read("triangle.stl", "&Add to the scene", 0);
    EXPECT_EQ(tree.topLevelItemCount(), 2);
    EXPECT_EQ(node("tetrahedron").checkState(0), Qt::Unchecked) << "what is hidden stays so";
    EXPECT_EQ(window.windowTitle(), "tetrahedron.stl and 1 more - ORLO");
    EXPECT_EQ(fact("Parts:"), "2");
    EXPECT_TRUE(fact("Volume:").startsWith(QString::fromUtf8("36,000 mm\u00b3; one of the parts")));
    node("triangle").setSelected(true);
    EXPECT_EQ(fact("Volume:"), "none: it is not closed");
    EXPECT_EQ(fact("Area:"), QString::fromUtf8("40.5 mm\u00b2"));

    action("New Scene").trigger();
    EXPECT_EQ(window.windowTitle(), "ORLO");
    const QList<QAction *> recent = window.findChild<olRecentModels *>()->actions();
    ASSERT_EQ(recent.size(), 4) << "two models, a line and Clear";
    EXPECT_TRUE(recent.first()->text().startsWith(QLatin1String("&1  triangle.stl")));
    recent.first()->trigger();
    EXPECT_TRUE(window.findChild<olImportDialog *>()) << "asks as any import";
    QFile::remove(path("tetrahedron.stl"));
    window.findChild<olRecentModels *>()->actions().at(1)->trigger();
    const auto *box = window.findChild<QMessageBox *>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->icon(), QMessageBox::Critical);
    EXPECT_EQ(window.findChild<olRecentModels *>()->actions().size(), 3);
}

TEST_F(MainWindow, SurfacesAreMeasuredAndNotTheirTriangles)
{
    node("Seal").setSelected(true);
    // A torus with radii of 24 and 4.
    EXPECT_EQ(fact("Volume:"), "7,579.86 mm\u00b3");
    EXPECT_EQ(fact("Area:"), "3,789.93 mm\u00b2");
}

TEST_F(MainWindow, DevicesMoveTheCameraWhileTheyAreDeflected)
{
    const QImage before = view.picture();
    olHostState &state = olHostState::the();
    state.spacemouseMotion = {0, 0, 200, 0, 0, 0};
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isLike(before); }, 10000));
    state.spacemouseMotion.reset();
    const QImage moved = view.picture();
    QTest::qWait(100);
    EXPECT_TRUE(isLike(moved)) << "at rest it stays";

    state.joystickAxes = {0, 0, 1, 0};
    QTest::qWait(100);
    EXPECT_TRUE(isLike(moved)) << "nobody wants the joystick";
    state.joystickNavigation = true;
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isLike(moved); }, 10000));
    state.joystickNavigation = false;
}

TEST(StartFault, NamesTheFaultAndDoesWhatIsChosen)
{
    const QString fault = "It is broken.";
    const BoxAnswers boxes({"Defaults for This Run", "Quit", "Quit"});
    // Installed last, it is told first.
    const BoxWatch look([&fault](QMessageBox &box) { EXPECT_TRUE(box.informativeText().startsWith(fault)); });
    EXPECT_EQ(olAskAboutStore(fault).kind, olStartRemedy::DefaultsForThisRun);
    EXPECT_EQ(olAskAboutStore(fault).kind, olStartRemedy::Quit);
    EXPECT_EQ(olAskAboutPlugin(fault).kind, olStartRemedy::Quit);
    EXPECT_EQ(look.count, 3);
}

} // namespace
