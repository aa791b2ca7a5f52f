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
#include <QTimer>
#include <QToolBar>
#include <QWindow>

namespace
{

constexpr auto settings = "MainWindow";

class MainWindow : public WindowTest
{
protected:
    QLabel &frameRate = *window.statusBar()->findChild<QLabel *>(QStringLiteral("frameRate"));

    /// Drops the file and confirms the dialog that asks how to import it.
    void import(const QString &file)
    {
        delete window.findChild<olImportDialog *>();
        EXPECT_TRUE(drop({file}));
        const auto *dialog = window.findChild<olImportDialog *>();
        ASSERT_NE(dialog, nullptr);
        emit dialog->findChild<QDialogButtonBox *>()->accepted();
    }

    QString written(const char *name, const QByteArray &content)
    {
        QFile file(path(QLatin1String(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    static QByteArray facet(const QByteArray &a, const QByteArray &b, const QByteArray &c)
    {
        return "facet normal 0 0 0\nouter loop\nvertex " + a + "\nvertex " + b + "\nvertex " + c +
               "\nendloop\nendfacet\n";
    }
    const QByteArray triangle = "solid\n" + facet("0 0 0", "9 0 0", "0 9 0") + "endsolid\n";
    const QByteArray tetrahedron = "solid\n" + facet("0 0 0", "0 6 0", "6 0 0") + facet("0 0 0", "6 0 0", "0 0 6") +
                                   facet("0 0 0", "0 0 6", "0 6 0") + facet("6 0 0", "0 6 0", "0 0 6") + "endsolid\n";

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
    ASSERT_TRUE(preferences.openAt(QStringLiteral("MainWindow show button text")));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&preferences));
    QWidget *box = preferences.focusWidget();
    const auto click = [box] { QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2)); };
    click();
    auto *apply = preferences.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Apply);
    ASSERT_TRUE(QTest::qWaitFor([apply] { return apply->isEnabled(); }, 2000));
    QTest::mouseClick(apply, Qt::LeftButton);
    auto *restart = preferences.findChild<QWidget *>(QStringLiteral("message"))
                        ->findChild<QAbstractButton *>(QStringLiteral("messageAction"));
    ASSERT_TRUE(restart->isVisible());

    // With an edit that somebody wants to stay with, nothing happens.
    click();
    QTimer::singleShot(0, &window, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    QTest::mouseClick(restart, Qt::LeftButton);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.restartArguments(), QStringList());

    click();
    QTest::mouseClick(restart, Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.restartArguments(), (QStringList{"--preferences", "--sample"}));
    EXPECT_EQ(QSettings().value(QStringLiteral("preferencesDialog/page")).toString(), "MainWindow");
}

TEST_F(MainWindow, EditsArePreviewedInTheViewWhereThatIsAskedForAndCancelLeavesNoneThere)
{
    const QImage before = view.picture();
    const auto fov = [] { return olHostState::the().fov.get(); };
    olPreferencesDialog &preferences = window.openPreferences();
    ASSERT_TRUE(preferences.openAt(QStringLiteral("RenderOptions coordinate system")));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&preferences));
    const auto click = [](QWidget *box) {
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    };
    auto *asked = preferences.findChild<QCheckBox *>(QStringLiteral("preview"));
    EXPECT_FALSE(asked->isChecked());
    click(preferences.focusWidget());
    ASSERT_TRUE(preferences.openAt(QStringLiteral("Camera fov")));
    QTest::keyClick(preferences.focusWidget(), Qt::Key_PageUp);
    QTest::qWait(50);
    EXPECT_TRUE(isLike(before));

    click(asked);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isLike(before); }, 2000));
    EXPECT_GT(fov(), 45.0f);
    EXPECT_EQ(boost::any_cast<float>(record().get("Camera fov")), 45.0f);
    EXPECT_EQ(preferences.findChild<QPushButton *>(QStringLiteral("changes"))->text(), "2 Chan&ges...");
    const float shown = fov();
    QTest::keyClick(preferences.focusWidget(), Qt::Key_PageUp);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fov() > shown; }, 2000)) << "as it is edited";
    click(asked);
    EXPECT_TRUE(isLike(before));

    click(asked);
    EXPECT_FALSE(isLike(before));
    QTimer::singleShot(0, &window, [] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QTest::mouseClick(box->button(QMessageBox::Discard), Qt::LeftButton);
    });
    QTest::keyClick(&preferences, Qt::Key_Escape);
    EXPECT_FALSE(preferences.isVisible());
    EXPECT_TRUE(isLike(before));
    EXPECT_FALSE(asked->isChecked()) << "off by default, each time";

    window.openPreferences();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&preferences));
    click(asked);
    ASSERT_TRUE(preferences.openAt(QStringLiteral("Camera fov")));
    QTest::keyClick(preferences.focusWidget(), Qt::Key_PageUp);
    QTest::mouseClick(preferences.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_GT(fov(), 45.0f);
    EXPECT_EQ(boost::any_cast<float>(record().get("Camera fov")), fov());
    EXPECT_EQ(session.origin("Camera fov"), "stored");
}

TEST_F(MainWindow, ThePreferencesFitBesideTheViewAsAPanelOnASmallScreen)
{
    olPreferencesDialog &preferences = window.openPreferences(QStringLiteral("Step"));
    auto &box = control<QCheckBox>("Step", "keepSurfaceData");
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
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

    auto *dock = window.findChild<QDockWidget *>(QStringLiteral("preferencesDock"));
    QTimer::singleShot(0, &window, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    dock->close();
    EXPECT_TRUE(dock->isVisible()) << "somebody stays with the edits";
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
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
    const QString file = path(QStringLiteral("sample.step"));
    ASSERT_EQ(olExportScene(window.scene().document(), file).error(), QString());
    const auto ask = [&] {
        delete window.findChild<olImportDialog *>();
        EXPECT_TRUE(drop({file}));
        return window.findChild<olImportDialog *>();
    };
    const auto stored = [] { return boost::any_cast<double>(record().get("STEPOptions chord deviation")); };
    olImportDialog *dialog = ask();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    auto *deviation = dialog->findChild<QDoubleSpinBox *>(QStringLiteral("chord deviation"));
    ASSERT_NE(deviation, nullptr);
    const auto words = [&] {
        QStringList texts;
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            texts << label->text();
        return texts.join(QLatin1Char('|'));
    };
    EXPECT_TRUE(words().contains(QStringLiteral("% of the model"))) << qPrintable(words());
    EXPECT_FALSE(words().contains(QStringLiteral("coarse")));
    deviation->setFocus();
    deviation->selectAll();
    QTest::keyClicks(deviation, QStringLiteral("50"));
    EXPECT_TRUE(words().contains(QStringLiteral("coarse"))) << qPrintable(words());
    emit dialog->findChild<QDialogButtonBox *>()->accepted();
    EXPECT_EQ(stored(), 0.075) << "for this import alone";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window.findChild<olImportDialog *>(); }, 10000));

    dialog = ask();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    deviation = dialog->findChild<QDoubleSpinBox *>(QStringLiteral("chord deviation"));
    EXPECT_EQ(deviation->value(), 0.075);
    deviation->setFocus();
    deviation->selectAll();
    QTest::keyClicks(deviation, QStringLiteral("0.5"));
    auto *curves = dialog->findChild<QComboBox *>(QStringLiteral("curves"));
    EXPECT_EQ(curves->currentIndex(), 0);
    curves->setFocus();
    QTest::keyClick(curves, Qt::Key_Down);
    auto *keep = dialog->findChild<QCheckBox *>(QStringLiteral("keep"));
    QTest::mouseClick(keep, Qt::LeftButton, Qt::NoModifier, QPoint(8, keep->height() / 2));
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
    ASSERT_TRUE(preferences.openAt(QStringLiteral("Camera fov")));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&preferences));
    QTest::keyClick(preferences.focusWidget(), Qt::Key_F1);
    const auto *document = preferences.findChild<QTextBrowser *>(QStringLiteral("document"));
    ASSERT_NE(document, nullptr);
    EXPECT_TRUE(document->isVisible());
    const QString line = document->textCursor().selectedText();
    EXPECT_TRUE(line.startsWith(QStringLiteral("Camera fov"))) << qPrintable(line);
    EXPECT_TRUE(line.contains(QStringLiteral("1 to 100"))) << qPrintable(line);
    EXPECT_FALSE(document->toPlainText().contains(QStringLiteral("Navigator"))) << "the section of the page alone";
}

TEST_F(MainWindow, SupportInformationIsOnTheClipboardWithoutSecrets)
{
    apply("Camera", "Camera fov", 33.0f);
    apply("WebInterface", "WebInterface white list", std::string("secret.host"));
    olLog::error(QStringLiteral("the disk hums"));
    action("Copy Support Information").trigger();
    const QString text = QApplication::clipboard()->text();
    EXPECT_TRUE(text.contains(QLatin1String(qVersion())));
    EXPECT_TRUE(text.contains(QStringLiteral("\"Camera fov\": {\"type\": \"float\", \"value\": 33}")));
    EXPECT_TRUE(text.contains(QStringLiteral("error: the disk hums")));
    EXPECT_FALSE(text.contains(QStringLiteral("secret.host")));
    EXPECT_TRUE(text.contains(QStringLiteral("WebInterface white list")));
    EXPECT_FALSE(text.contains(QStringLiteral("Eye"))) << "a default is no news";
}

TEST_F(MainWindow, FramesPerSecondAreInTheStatusBarWhereWanted)
{
    EXPECT_FALSE(frameRate.isVisible());
    apply(settings, "MainWindow show fps", true);
    EXPECT_TRUE(frameRate.isVisible());
    // Without sleep the view draws all the time.
    olHostState::the().sleepTime = 0;
    EXPECT_TRUE(QTest::qWaitFor([this] { return frameRate.text().endsWith(QLatin1String("frames/s")); }));
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
    EXPECT_EQ(value(QStringLiteral("fov")), QStringLiteral("30"));
    EXPECT_EQ(value(QStringLiteral("powerwallWidth")), QStringLiteral("99 (only recorded)"));
    apply("Step", "STEPOptions max chord length", 50.0);
    const QString lengths = value(QStringLiteral("maxChordLengths"));
    EXPECT_TRUE(lengths.contains(QStringLiteral("STEP 50")) && lengths.endsWith(QStringLiteral("(only recorded)")))
        << lengths.toStdString();
}

TEST_F(MainWindow, PanelsForIntegratorsAreOffUntilAskedForAndTheWindowIsRemembered)
{
    const auto panel = [](const olMainWindow &of, const char *name) {
        return of.findChild<QDockWidget *>(QLatin1String(name));
    };
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
    auto &dock = *window.findChild<QDockWidget *>(QStringLiteral("sceneDock"));
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
    const auto &tools = *window.findChild<QToolBar *>(QStringLiteral("viewTools"));
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
    QFile broken(path(QStringLiteral("broken.step")));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("ISO-10303-21;\nHEADER;\nnonsense");
    broken.close();
    const olScene::Document before = window.scene().document();
    import(broken.fileName());
    EXPECT_EQ(outcome().count(QStringLiteral("broken.step")), 1) << outcome().toStdString();
    EXPECT_EQ(window.findChild<olImportDialog *>()->windowTitle(), QStringLiteral("Import Failed"));
    EXPECT_EQ(window.statusBar()->currentMessage(), QStringLiteral("The import failed."));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Sample - ORLO"));
    EXPECT_EQ(window.scene().document(), before);

    import(written("triangle.stl", triangle));
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.scene().document() != before; }, 10000));
    EXPECT_EQ(window.scene().triangleCount(), 1u);
    EXPECT_EQ(tree.topLevelItemCount(), 1);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("triangle.stl - ORLO"));
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return window.statusBar()->currentMessage() == QLatin1String("triangle.stl was read."); }));
}

TEST_F(MainWindow, AModelIsAddedOrReplacesInTheUnitThatIsChosenAndIsFoundAgain)
{
    const auto read = [this](const QByteArray &word, const char *into, int unit) {
        EXPECT_TRUE(drop({path(QString::fromLatin1(word))}));
        auto *dialog = window.findChildren<olImportDialog *>().last();
        for (QRadioButton *button : dialog->findChildren<QRadioButton *>())
            button->setChecked(button->text() == QLatin1String(into));
        dialog->findChildren<QComboBox *>().first()->setCurrentIndex(unit);
        const olScene::Document before = window.scene().document();
        emit dialog->findChild<QDialogButtonBox *>()->accepted();
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.scene().document() != before; }, 20000));
        QTest::qWait(20);
    };
    const auto fact = [this](const char *title) {
        const auto *panel = window.findChild<olFactsPanel *>();
        EXPECT_TRUE(QTest::qWaitFor([panel] { return !panel->isMeasuring(); }, 10000));
        for (const QLabel *label : panel->findChildren<QLabel *>()) {
            if (label->text() == QLatin1String(title))
                return static_cast<const QLabel *>(label->buddy())->text();
        }
        return QString();
    };
    written("triangle.stl", triangle);
    written("tetrahedron.stl", tetrahedron);
    constexpr int centimetres = 1;
    read("tetrahedron.stl", "&Replace the scene", centimetres);
    EXPECT_EQ(fact("Size:"), QString::fromUtf8("60 \u00d7 60 \u00d7 60 mm"));
    EXPECT_EQ(fact("Bounding box:"), QStringLiteral("(0, 0, 0) to (60, 60, 60)"));
    EXPECT_EQ(fact("Volume:"), QString::fromUtf8("36,000 mm\u00b3"));
    EXPECT_EQ(fact("Area:"), QString::fromUtf8("8,517.69 mm\u00b2"));
    EXPECT_EQ(fact("Triangles:"), QStringLiteral("4"));

    window.scene().setHiddenParts({idOf(node("tetrahedron"))});
    read("triangle.stl", "&Add to the scene", 0);
    EXPECT_EQ(tree.topLevelItemCount(), 2);
    EXPECT_EQ(node("tetrahedron").checkState(0), Qt::Unchecked) << "what is hidden stays so";
    EXPECT_EQ(window.windowTitle(), QStringLiteral("tetrahedron.stl and 1 more - ORLO"));
    EXPECT_EQ(fact("Parts:"), QStringLiteral("2"));
    EXPECT_TRUE(fact("Volume:").startsWith(QString::fromUtf8("36,000 mm\u00b3; one of the parts")));
    node("triangle").setSelected(true);
    EXPECT_EQ(fact("Volume:"), QStringLiteral("none: it is not closed"));
    EXPECT_EQ(fact("Area:"), QString::fromUtf8("40.5 mm\u00b2"));

    action("New Scene").trigger();
    EXPECT_EQ(window.windowTitle(), QStringLiteral("ORLO"));
    const QList<QAction *> recent = window.findChild<olRecentModels *>()->actions();
    ASSERT_EQ(recent.size(), 4) << "two models, a line and Clear";
    EXPECT_TRUE(recent.first()->text().startsWith(QLatin1String("&1  triangle.stl")));
    recent.first()->trigger();
    EXPECT_TRUE(window.findChild<olImportDialog *>()) << "asks as any import";
    QFile::remove(path(QStringLiteral("tetrahedron.stl")));
    window.findChild<olRecentModels *>()->actions().at(1)->trigger();
    const auto *box = window.findChild<QMessageBox *>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->icon(), QMessageBox::Critical);
    EXPECT_EQ(window.findChild<olRecentModels *>()->actions().size(), 3);
}

TEST_F(MainWindow, SurfacesAreMeasuredAndNotTheirTriangles)
{
    node("Seal").setSelected(true);
    const auto *panel = window.findChild<olFactsPanel *>();
    EXPECT_TRUE(QTest::qWaitFor([panel] { return !panel->isMeasuring(); }, 10000));
    QStringList texts;
    for (const QLabel *label : panel->findChildren<QLabel *>())
        texts << label->text();
    // A torus with radii of 24 and 4.
    EXPECT_TRUE(texts.contains(QString::fromUtf8("7,579.86 mm\u00b3"))) << texts.join(QLatin1Char('|')).toStdString();
    EXPECT_TRUE(texts.contains(QString::fromUtf8("3,789.93 mm\u00b2"))) << texts.join(QLatin1Char('|')).toStdString();
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
    const auto press = [](const char *text) {
        QTimer::singleShot(0, [text] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_TRUE(box->informativeText().startsWith(QStringLiteral("It is broken.")));
            for (QAbstractButton *button : box->buttons()) {
                if (button->text() == QLatin1String(text))
                    return button->click();
            }
            box->reject();
        });
    };
    const QString fault = QStringLiteral("It is broken.");
    press("&Defaults for This Run");
    EXPECT_EQ(olAskAboutStore(fault).kind, olStartRemedy::DefaultsForThisRun);
    press("&Quit");
    EXPECT_EQ(olAskAboutStore(fault).kind, olStartRemedy::Quit);
    press("&Quit");
    EXPECT_EQ(olAskAboutPlugin(fault).kind, olStartRemedy::Quit);
}

} // namespace
