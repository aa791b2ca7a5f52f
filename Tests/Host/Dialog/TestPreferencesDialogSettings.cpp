#include "Dialog/olSettingMarks.h"
#include "DialogTest.h"

#include <QApplication>
#include <QClipboard>
#include <QFormLayout>
#include <QMenu>
#include <QPalette>
#include <QTest>
#include <QTreeWidget>

#include <vector>

namespace
{

class PreferencesDialogSettings : public DialogTest
{
protected:
    /// Names of the controls marked as a person's own, or as becoming that.
    [[nodiscard]] QStringList marked() const
    {
        QCoreApplication::processEvents();
        QStringList names;
        for (const auto &mark : module.page.findChild<olSettingMarks *>()->marks()) {
            if (mark.state == olSettingState::Yours || mark.state == olSettingState::Pending)
                names << mark.control.name;
        }
        return names;
    }
};

constexpr auto lockingSite = R"({"Studio samples": {"value": 16, "locked": true, "reason": "The farm needs it."},
                                  "Studio title": {"value": "Ours"}})";

} // namespace

TEST_F(PreferencesDialogSettings, MarksWhatDiffersFromItsDefaultAsItIsEdited)
{
    start();
    EXPECT_EQ(marked(), QStringList());
    module.page.mode->setCurrentIndex(1);
    EXPECT_EQ(marked(), QStringList{"Mode"});
    module.page.samples->setValue(9);
    EXPECT_EQ(marked(), (QStringList{"Samples", "Mode"}));
    EXPECT_EQ(module.page.samples->accessibleDescription(),
              "Changed, not applied yet. How often each pixel is computed");
    module.page.samples->setValue(4);
    EXPECT_EQ(marked(), QStringList{"Mode"});
    EXPECT_EQ(module.page.samples->accessibleDescription(), QString());
    EXPECT_FALSE(module.page.mode->accessibleDescription().isEmpty());
    EXPECT_TRUE(dialog->apply());
    EXPECT_EQ(marked(), QStringList{"Mode"}) << "applied, it still differs";
    EXPECT_EQ(module.page.mode->accessibleDescription(), "Set by you.");
    dialog->restorePage();
    EXPECT_EQ(marked(), QStringList{"Mode"}) << "going back is a change, too";
    ASSERT_TRUE(dialog->apply());
    EXPECT_EQ(marked(), QStringList());
    EXPECT_TRUE(module.page.mode->accessibleDescription().isEmpty());
}

TEST_F(PreferencesDialogSettings, TheMarkTellsPendingFromAppliedAndFromLockedAndOpensTheCard)
{
    start(R"({"Studio mode": {"locked": true}})");
    auto &page = module.page;
    auto *marks = page.findChild<olSettingMarks *>();
    const auto margin = [&](const QWidget &control, const QWidget &label) {
        QCoreApplication::processEvents();
        const QRect row(label.mapTo(&page, QPoint()) - QPoint(9, 0), QSize(9, control.height()));
        QImage picture(row.size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        marks->render(&picture, QPoint(), row, QWidget::RenderFlags());
        return picture;
    };
    const auto inTree = [this] {
        QCoreApplication::processEvents();
        auto *tree = dialog->findChild<QTreeWidget *>();
        const QRect row = tree->visualRect(tree->currentIndex());
        const int height = row.height();
        return tree->viewport()->grab({row.right() - height, row.top(), height, height}).toImage();
    };
    const auto seen = [&] { return std::vector<QImage>{margin(*page.samples, *page.samplesLabel), inTree()}; };
    // In how many lines of pixels they differ.
    const auto height = [](const QImage &mark, const QImage &nothing) {
        int height = 0;
        for (int y = 0; y < mark.height(); ++y) {
            const QRect line(0, y, mark.width(), 1);
            height += mark.copy(line) != nothing.copy(line) ? 1 : 0;
        }
        return height;
    };
    const std::vector<QImage> nothing = seen();
    page.samples->setValue(9);
    const std::vector<QImage> pending = seen();
    ASSERT_TRUE(dialog->apply());
    const std::vector<QImage> applied = seen();
    for (std::size_t place = 0; place < nothing.size(); ++place) {
        EXPECT_NE(pending[place], nothing[place]);
        EXPECT_LT(height(pending[place], nothing[place]), height(applied[place], nothing[place])) << "a bar";
    }

    // The mark is before the label, on the tab's page.
    QWidget *tab = page.samplesLabel->parentWidget();
    QTest::mouseClick(tab, Qt::LeftButton, Qt::NoModifier, page.samplesLabel->geometry().topLeft() + QPoint(-4, 4));
    auto *card = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_NE(card, nullptr);
    EXPECT_NE(card->findChild<QAction *>("copyKey"), nullptr);
    card->close();
    EXPECT_EQ(marks->markedAt(page.shadows->mapTo(&page, QPoint(-4, 4))), page.shadows) << "a default has one, too";
    const auto *modeLabel = qobject_cast<QFormLayout *>(tab->layout())->labelForField(page.mode);
    EXPECT_EQ(marks->markedAt(modeLabel->mapTo(&page, QPoint(-4, modeLabel->height() / 2))), page.mode);
}

TEST_F(PreferencesDialogSettings, TheMenuResetsOneSettingAndLeavesTheOtherEdits)
{
    start();
    module.page.samples->setValue(9);
    module.page.mode->setCurrentIndex(1);
    module.page.shadows->setChecked(false);
    QAction &resetSamples = menuAction(*module.page.samplesLabel, "reset"); // the label has the menu, too
    EXPECT_EQ(resetSamples.text(), "&Reset to Default: 4");
    resetSamples.trigger();
    EXPECT_EQ(module.page.samples->value(), 4);
    EXPECT_EQ(module.page.mode->currentIndex(), 1);

    QAction &resetShadows = menuAction(*module.page.shadows, "reset");
    EXPECT_EQ(resetShadows.text(), "&Reset to Default: on");
    resetShadows.trigger();
    EXPECT_TRUE(module.page.shadows->isChecked());
    EXPECT_EQ(module.page.questions, 0) << "showing a value is no click of the user's";

    EXPECT_FALSE(menuAction(*module.page.samples, "reset").isEnabled()) << "there is nothing to reset";
    EXPECT_EQ(module.value<int>("Studio samples"), 4);
    boxes.next("Discard");
    dialog->reject();
}

TEST_F(PreferencesDialogSettings, TheMenuIsACardThatTellsOriginAndTakesBack)
{
    start(R"({"Studio title": {"value": "Ours"}})");
    module.page.mode->setCurrentIndex(1);
    ASSERT_TRUE(dialog->apply());
    const auto origin = [](QWidget &control) { return menuAction(control, "origin").text(); };
    EXPECT_EQ(origin(*module.page.shadows), "The default");
    EXPECT_EQ(origin(*module.page.mode), "Set by you");
    module.page.tabs->setCurrentIndex(1);
    EXPECT_EQ(origin(*module.page.title), "Set by the site");
    module.page.title->setText("Mine");
    EXPECT_EQ(origin(*module.page.title), "Changed, not applied yet");

    menuAction(*module.page.title, "copyJson").trigger();
    EXPECT_TRUE(QApplication::clipboard()->text().contains(
        QStringLiteral(R"("Studio title": {"type": "qstring", "value": "Mine"})")));
    menuAction(*module.page.title, "takeBack").trigger();
    EXPECT_EQ(module.page.title->text(), "Ours");
    EXPECT_FALSE(canApply());
    EXPECT_FALSE(menuAction(*module.page.title, "takeBack").isEnabled());
}

TEST_F(PreferencesDialogSettings, TheMenuOpensByKeyboardAndCopiesTheKey)
{
    start();
    for (const auto &[key, modifier] :
         {std::pair{Qt::Key_Menu, Qt::NoModifier}, std::pair{Qt::Key_F10, Qt::ShiftModifier}}) {
        QApplication::clipboard()->clear();
        module.page.samples->setFocus();
        QTest::keyClick(module.page.samples, key, modifier);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        menu->findChild<QAction *>("copyKey")->trigger();
        menu->close();
        EXPECT_EQ(QApplication::clipboard()->text(), "Studio samples");
    }
    const QWidget &menu = *menuAction(*module.page.title, "copyKey").associatedWidgets().first();
    EXPECT_GT(menu.actions().size(), 4) << "a field keeps its own menu besides";
}

TEST_F(PreferencesDialogSettings, RestoringIsPendingUntilItIsApplied)
{
    StudioModule::getData().set("Studio samples", 9, true);
    StudioModule::getData().set("Studio scale", 2.125f, true);
    StudioModule::getData().set("Studio seed", 8, true);
    start();
    QTest::mouseClick(dialog->findChild<QPushButton *>("restorePage"), Qt::LeftButton);
    EXPECT_EQ(module.page.samples->value(), 4);
    EXPECT_EQ(module.page.scale->text(), "1.5");
    EXPECT_TRUE(canApply());
    EXPECT_EQ(changes()->text(), "3 Chan&ges...") << "the one without a control counts";
    EXPECT_EQ(module.value<int>("Studio seed"), 8);

    boxes.next("Discard");
    dialog->reject();
    dialog->open(QString());
    EXPECT_EQ(module.page.samples->value(), 9) << "Cancel takes it back";
    EXPECT_FALSE(canApply());

    dialog->restoreAll();
    EXPECT_EQ(module.value<int>("Studio samples"), 9);
    dialog->accept();
    EXPECT_EQ(module.value<int>("Studio samples"), 4);
    EXPECT_EQ(module.value<int>("Studio seed"), 7);
    EXPECT_EQ(module.value<float>("Studio scale"), 1.5f);
    EXPECT_EQ(module.page.questions, 0);
}

TEST_F(PreferencesDialogSettings, ADefaultThatAFieldRoundsIsRestoredExactly)
{
    start(R"({"Studio scale": {"value": 2.1234567}})");
    module.page.scale->setText("9");
    ASSERT_TRUE(dialog->apply());
    dialog->restorePage();
    EXPECT_EQ(module.page.scale->text(), "2.12346");
    ASSERT_TRUE(dialog->apply());
    EXPECT_EQ(marked(), QStringList());
    EXPECT_EQ(module.value<float>("Studio scale"), 2.1234567f);
    EXPECT_EQ(module.changed, std::vector<std::string>{"Studio scale"});
}

TEST_F(PreferencesDialogSettings, ALockedSettingIsDisabledWithItsLabelAndSaysWhy)
{
    start(lockingSite);
    EXPECT_EQ(module.page.samples->value(), 16);
    for (const QWidget *widget :
         std::initializer_list<const QWidget *>{module.page.samples, module.page.samplesLabel}) {
        EXPECT_FALSE(widget->isEnabled());
        EXPECT_TRUE(widget->toolTip().contains("The farm needs it."));
    }
    module.page.shadows->setChecked(false);
    EXPECT_FALSE(module.page.samples->isEnabled()) << "no rule of the page opens the lock";
    EXPECT_TRUE(module.page.title->isEnabled()) << "a site's default is no lock";
    EXPECT_EQ(marked(), QStringList{"Cast Shadows"}) << "the site's values are the defaults here";

    EXPECT_FALSE(menuAction(*module.page.samples, "reset").isEnabled());
    menuAction(*module.page.samples, "whyLocked").trigger();
    auto *locked = dialog->findChild<QPushButton *>("locked");
    EXPECT_TRUE(locked->isVisible()) << "by keyboard, which cannot reach what is disabled";
    ASSERT_EQ(locked->menu()->actions().size(), 1);
    EXPECT_TRUE(locked->menu()->actions().first()->text().contains("The farm needs it."));
    EXPECT_TRUE(locked->menu()->actions().first()->text().contains(siteFile)) << "whom to ask";
    module.page.tabs->setCurrentIndex(1);
    locked->menu()->actions().first()->trigger();
    EXPECT_EQ(module.page.tabs->currentIndex(), 0) << "it leads to the setting";
    auto *message = dialog->findChild<QWidget *>("message");
    EXPECT_TRUE(message->isVisible());
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::black));
    EXPECT_LT(message->palette().color(QPalette::Window).lightness(), 100) << "the desktop may turn dark meanwhile";
    QApplication::setPalette(light);
    QTest::mouseClick(message->findChild<QWidget *>("closeMessage"), Qt::LeftButton);
    EXPECT_FALSE(message->isVisible());

    module.page.samples->setValue(3);
    EXPECT_TRUE(canApply());
    EXPECT_EQ(changes()->text(), "1 Chan&ge...") << "what was edited before";
    EXPECT_EQ(module.page.samples->value(), 16) << "it is put back at once";
    module.page.samples->setValue(3);
    ASSERT_TRUE(dialog->apply());
    EXPECT_EQ(module.page.samples->value(), 16);
    EXPECT_EQ(module.value<int>("Studio samples"), 16);
    delete module.page.samplesLabel; // which nobody may touch any more
    dialog.reset();
    EXPECT_TRUE(module.page.samples->isEnabled()) << "the page goes back as it came";
    EXPECT_EQ(module.page.samples->toolTip(), "How often each <b>pixel</b> is computed");
}
