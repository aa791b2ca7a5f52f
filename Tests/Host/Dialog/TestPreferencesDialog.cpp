#include "Dialog/olChangesView.h"
#include "Dialog/olDialogMemory.h"
#include "Dialog/olWindowPlace.h"
#include "DialogTest.h"
#include "Support/Files.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QHeaderView>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>

using PreferencesDialog = DialogTest;

TEST_F(PreferencesDialog, ApplyIsOfferedOnlyWhileThePageDiffersFromItsFilling)
{
    start();
    EXPECT_FALSE(canApply());
    EXPECT_FALSE(changes()->isVisible());

    module.page.samples->setFocus();
    QTest::keyClick(module.page.samples, Qt::Key_Up);
    EXPECT_TRUE(canApply());
    EXPECT_EQ(changes()->text(), "1 Chan&ge...");
    QTest::keyClick(module.page.samples, Qt::Key_Down);
    EXPECT_FALSE(canApply()) << "edited back is not changed";

    module.page.mode->setCurrentIndex(1);
    module.page.title->setText("Front");
    EXPECT_TRUE(canApply());
    EXPECT_EQ(changes()->text(), "2 Chan&ges...");
    QTest::mouseClick(button(QDialogButtonBox::Apply), Qt::LeftButton);
    EXPECT_FALSE(canApply());
    EXPECT_EQ(module.changed, (std::vector<std::string>{"Studio mode", "Studio title"}));
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(PreferencesDialog, TheListOfChangesNamesSettingOldAndNewValue)
{
    start();
    module.page.tabs->setCurrentIndex(1);
    module.page.shadows->setChecked(false);
    module.page.mode->setCurrentIndex(1);
    EXPECT_TRUE(canApply());
    QTest::mouseClick(changes(), Qt::LeftButton);
    auto *view = opened<olChangesView>();
    ASSERT_NE(view, nullptr);
    auto *list = view->findChild<QTreeWidget *>("changes");
    ASSERT_EQ(list->topLevelItemCount(), 2);
    const auto row = [list](int index) {
        const QTreeWidgetItem *item = list->topLevelItem(index);
        return QStringList{item->text(0), item->text(1), item->text(2)};
    };
    EXPECT_EQ(row(0), (QStringList{"Studio: Cast Shadows", "on", "off"}));
    EXPECT_EQ(row(1), (QStringList{"Studio: Mode", "Hasty", "Accurate"}));

    EXPECT_EQ(list->header()->length(), list->viewport()->width()) << "old and new are both in sight";

    QTest::mouseClick(view->findChild<QPushButton *>("copyAsText"), Qt::LeftButton);
    EXPECT_EQ(QApplication::clipboard()->text(), "Studio: Cast Shadows (Studio shadows): on -> off\n"
                                                 "Studio: Mode (Studio mode): Hasty -> Accurate\n");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_FALSE(view->isVisible());
    EXPECT_EQ(module.page.tabs->currentIndex(), 0) << "a change chosen is shown on its page";
    EXPECT_EQ(dialog->focusWidget(), module.page.mode);
}

TEST_F(PreferencesDialog, ChangesAreTakenBackOneByOneOrAllTogether)
{
    start();
    module.page.samples->setValue(9);
    module.page.mode->setCurrentIndex(1);
    module.page.title->setText("Front");
    ASSERT_TRUE(canApply());
    QTest::mouseClick(changes(), Qt::LeftButton);
    auto *view = opened<olChangesView>();
    ASSERT_NE(view, nullptr);
    auto *list = view->findChild<QTreeWidget *>("changes");
    const auto press = [view](const char *name) {
        QTest::mouseClick(view->findChild<QPushButton *>(name), Qt::LeftButton);
    };
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    press("takeBack");
    EXPECT_EQ(module.page.mode->currentIndex(), 0);
    EXPECT_EQ(module.page.samples->value(), 9);
    ASSERT_EQ(list->topLevelItemCount(), 2);
    EXPECT_EQ(list->currentItem()->text(0), "Studio: Title") << "the next one is at hand";
    press("takeAllBack");
    EXPECT_EQ(module.page.samples->value(), 4);
    EXPECT_EQ(module.page.title->text(), "");
    EXPECT_FALSE(view->isVisible()) << "nothing is left to work on";
    EXPECT_FALSE(canApply());
    EXPECT_EQ(module.page.questions, 0);
}

TEST_F(PreferencesDialog, LeavingWithEditsAloneAsksToApplyDiscardOrStay)
{
    start();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    dialog->open(QString());
    module.page.samples->setValue(9);
    boxes.next("Stay");
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(module.page.samples->value(), 9);

    boxes.next("Stay");
    EXPECT_FALSE(dialog->close());
    EXPECT_TRUE(dialog->isVisible());

    boxes.next("Discard");
    QTest::mouseClick(button(QDialogButtonBox::Cancel), Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(module.value<int>("Studio samples"), 4);
    dialog->open(QString());
    EXPECT_EQ(module.page.samples->value(), 4) << "the next opening fills the page again";

    module.page.samples->setValue(9);
    boxes.next("Apply");
    dialog->close();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(module.value<int>("Studio samples"), 9);
    EXPECT_EQ(module.applied, 1);
}

TEST_F(PreferencesDialog, EnterOnTheQuestionBeforeLeavingStaysAndTheQuestionNamesWhatWouldBeLost)
{
    start();
    module.page.samples->setValue(9);
    const BoxWatch watch([](QMessageBox &box) {
        EXPECT_TRUE(box.text().contains("Studio: Samples")) << box.text().toStdString();
        QTest::keyClick(&box, Qt::Key_Return);
    });
    QTest::mouseClick(button(QDialogButtonBox::Cancel), Qt::LeftButton);
    EXPECT_EQ(watch.count, 1);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(module.applied, 0);
    EXPECT_EQ(module.page.samples->value(), 9);
}

TEST_F(PreferencesDialog, EnterInAFieldAppliesNothingAndClosesNothing)
{
    start();
    for (QWidget *field :
         std::initializer_list<QWidget *>{module.page.samples, module.page.mode, module.page.shadows}) {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_TRUE(dialog->isVisible());
    }
    module.page.samples->setFocus();
    QTest::keyClicks(module.page.samples, "7");
    QTest::keyClick(module.page.samples, Qt::Key_Enter);
    EXPECT_TRUE(canApply());
    EXPECT_EQ(module.applied, 0);
    button(QDialogButtonBox::Ok)->setFocus();
    QTest::keyClick(button(QDialogButtonBox::Ok), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(module.applied, 1);
}

TEST_F(PreferencesDialog, AfterApplyTheFocusIsWhereOneWorked)
{
    start();
    for (const bool byMouse : {true, false}) {
        module.page.samples->setFocus();
        QTest::keyClick(module.page.samples, Qt::Key_Up);
        ASSERT_TRUE(canApply());
        QPushButton *apply = button(QDialogButtonBox::Apply);
        if (byMouse) {
            QTest::mouseClick(apply, Qt::LeftButton);
        } else {
            apply->setFocus();
            QTest::keyClick(apply, Qt::Key_Space);
        }
        EXPECT_FALSE(canApply());
        EXPECT_TRUE(module.page.samples->hasFocus()) << (byMouse ? "mouse" : "keys");
    }
}

TEST_F(PreferencesDialog, WhenStoringFailsTheEditsStayAndOkCanBePressedAgain)
{
    start();
    const QString inTheWay = writtenFile(folder.filePath("store"));
    module.page.samples->setValue(9);
    QTest::mouseClick(button(QDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(module.page.samples->value(), 9);
    EXPECT_EQ(module.value<int>("Studio samples"), 4);
    EXPECT_EQ(module.applied, 0);
    EXPECT_TRUE(canApply());
    EXPECT_TRUE(says(store));

    boxes.next("Apply");
    dialog->reject();
    EXPECT_TRUE(dialog->isVisible()) << "what could not be applied is not lost by leaving";

    QFile::remove(inTheWay);
    QTest::mouseClick(button(QDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(module.value<int>("Studio samples"), 9);
    EXPECT_EQ(module.applied, 1);
}

TEST_F(PreferencesDialog, AModuleThatGoesTakesItsPageAndItsEditsWithIt)
{
    auto other = std::make_unique<StudioModule>("Other");
    start();
    dialog->open("Other");
    EXPECT_EQ(listed(), (QStringList{"Studio", "Other"}));
    other->page.samples->setValue(9);
    EXPECT_TRUE(canApply());
    other.reset();
    EXPECT_FALSE(canApply());
    EXPECT_EQ(listed(), QStringList{"Studio"});
    EXPECT_TRUE(dialog->apply());
}

TEST_F(PreferencesDialog, TheWheelScrollsThePageUntilAControlIsFocused)
{
    start();
    search()->setFocus();
    auto *frame = dialog->findChild<QScrollArea *>();
    const auto turn = [](QWidget &control) {
        const QPointF middle = control.rect().center();
        QWheelEvent event(middle, control.mapToGlobal(middle.toPoint()), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        // Only what comes from outside goes on to the parents, and gives the focus.
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(&control, &event);
    };
    for (QWidget *control : std::initializer_list<QWidget *>{module.page.samples, module.page.mode}) {
        frame->verticalScrollBar()->setValue(0);
        turn(*control);
        EXPECT_GT(frame->verticalScrollBar()->value(), 0);
    }
    EXPECT_EQ(module.page.samples->value(), 4);
    EXPECT_EQ(module.page.mode->currentIndex(), 0);

    module.page.samples->setFocus();
    turn(*module.page.samples);
    EXPECT_EQ(module.page.samples->value(), 3);
}

TEST_F(PreferencesDialog, RemembersItsSizeAndPageAndNeverOutgrowsTheScreen)
{
    StudioModule other("Other");
    start();
    dialog->open("Other");
    dialog->setGeometry(41, 83, 611, 433);
    dialog->reject();
    dialog = std::make_unique<olPreferencesDialog>(*session);
    dialog->open(QString());
    EXPECT_EQ(dialog->geometry(), QRect(41, 83, 611, 433));
    EXPECT_TRUE(other.page.isVisible());
    EXPECT_TRUE(dialog->openAt("Studio title"));
    EXPECT_EQ(dialog->focusWidget()->window(), dialog.get());
    EXPECT_TRUE(dialog->focusWidget() == module.page.title || dialog->focusWidget() == other.page.title);
    EXPECT_FALSE(dialog->openAt("Studio seed")) << "no page has it";
    dialog->open("Other");
    EXPECT_LE(dialog->minimumSizeHint().width(), 400);
    EXPECT_LE(dialog->minimumSizeHint().height(), 300);

    dialog->reject();
    olDialogMemory memory = olDialogMemory::recall();
    memory.place = QRect(-300, -20, 5000, 4000);
    memory.keep();
    dialog.reset();
    memory.keep();
    dialog = std::make_unique<olPreferencesDialog>(*session);
    dialog->open(QString());
    EXPECT_TRUE(dialog->screen()->availableGeometry().contains(dialog->geometry().adjusted(0, -30, 0, 0)))
        << "also the title bar";
    EXPECT_FALSE(dialog->isModal());
}

TEST(WindowPlace, IsBesideItsNeighbourOrLeavesItWhatItCan)
{
    const QRect wide(0, 0, 2560, 1440);
    const QRect narrow(0, 27, 1366, 741);
    const QSize size(900, 700);
    const auto isApart = [](const QRect &left, const QRect &right) { return !left.intersects(right); };
    const QRect leftHalf(0, 0, 1280, 1440);
    const QRect rightHalf(1280, 0, 1280, 1440);
    for (const QRect &neighbour : {leftHalf, rightHalf}) {
        const QRect place = olWindowPlace::beside(neighbour, size, wide);
        EXPECT_TRUE(isApart(place, neighbour)) << neighbour.left();
        EXPECT_EQ(place.size(), size);
    }
    // A maximised window begins above the screen with some window managers.
    for (const QRect &maximised : {narrow, narrow.adjusted(-4, -24, 4, 4)}) {
        const QRect place = olWindowPlace::beside(maximised, size, narrow);
        EXPECT_TRUE(narrow.contains(place.adjusted(-4, -30, 4, 4)));
        EXPECT_GE(place.left(), narrow.width() * 3 / 8) << "the model is not covered whole";
    }
}

TEST_F(PreferencesDialog, WhatTheHostSaysAboutASaveIsReadBeforeTheDialogCloses)
{
    start();
    const auto *message = dialog->findChild<QWidget *>("message");
    module.page.samples->setValue(8);
    ASSERT_TRUE(dialog->apply());
    EXPECT_FALSE(message->isVisible());
    QFile file(store);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(file.size() / 2));
    file.close();

    module.page.samples->setValue(16);
    dialog->accept();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(message->isVisible());
    EXPECT_FALSE(canApply()) << "it was saved all the same";
    dialog->accept();
    EXPECT_FALSE(dialog->isVisible());
}
