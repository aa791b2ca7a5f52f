#include "Support/BoxWatch.h"
#include "Support/PluginTest.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

namespace
{

using Texts = std::vector<std::string>;

const std::string refusal = "Tesselation: Only positive non zero values are allowed!";

/// Accepts every message box, and keeps what they said.
class AnsweredBoxes : public BoxWatch
{
public:
    AnsweredBoxes()
        : BoxWatch([this](QMessageBox &box) {
              said.push_back((box.windowTitle() + ": " + box.text()).toStdString());
              box.accept();
          })
    {
    }

    Texts said;
};

class Tesselation : public PluginTest
{
protected:
    Tesselation() { fill("Tesselation"); }

    static QTreeWidget &tree() { return control<QTreeWidget>("Tesselation", "qualities"); }
    static std::string text(int row) { return tree().topLevelItem(row)->text(0).toStdString(); }
    static Texts rows()
    {
        Texts texts;
        for (int row = 0; row < tree().topLevelItemCount(); ++row)
            texts.push_back(text(row));
        return texts;
    }
    static std::vector<float> taken()
    {
        module("Tesselation").updateData();
        return boost::any_cast<std::vector<float>>(record().get("Optimizer Teselation Quality"));
    }

    /// Types over a row as a user would, and leaves it in one of the ways there are.
    template <class Leave> static void type(int row, const char *typed, Leave &&leave)
    {
        show();
        tree().editItem(tree().topLevelItem(row));
        auto *editor = tree().findChild<QLineEdit *>();
        ASSERT_NE(editor, nullptr);
        editor->selectAll();
        QTest::keyClicks(editor, QString::fromLatin1(typed));
        leave(*editor);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(tree().findChild<QLineEdit *>(), nullptr);
    }
    static void sortByClick() { QTest::mouseClick(tree().header()->viewport(), Qt::LeftButton); }
    static void show()
    {
        QWidget &page = *module("Tesselation").page();
        page.show();
        page.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    }
};

TEST_F(Tesselation, RefusesWhatIsNotAboveZeroOnceAndPutsTheOldValueBack)
{
    AnsweredBoxes boxes;
    for (const char *refused : {"0", "-0.5", "coarse", "", "nan", "inf", "1e-60", "0,5"}) {
        tree().topLevelItem(2)->setText(0, QString::fromLatin1(refused));
        EXPECT_EQ(text(2), "0.1") << refused;
        EXPECT_EQ(std::exchange(boxes.said, {}), Texts{refusal}) << refused;
    }
    EXPECT_EQ(taken(), (std::vector<float>{0.01f, 0.05f, 0.1f, 0.5f, 1.0f}));
}

TEST_F(Tesselation, RefusesWhatIsTypedIntoARowWithoutAskingAgainWhenTheBoxTakesTheFocus)
{
    const auto enter = [](QLineEdit &editor) { QTest::keyClick(&editor, Qt::Key_Return); };
    const auto escape = [](QLineEdit &editor) { QTest::keyClick(&editor, Qt::Key_Escape); };
    const auto goElsewhere = [](QLineEdit &) { control<QLineEdit>("Tesselation", "offsetFactor").setFocus(); };
    AnsweredBoxes boxes;

    type(4, "-3", enter);
    EXPECT_EQ(std::exchange(boxes.said, {}), Texts{refusal});
    EXPECT_EQ(text(4), "1");
    type(4, "-3", goElsewhere);
    EXPECT_EQ(std::exchange(boxes.said, {}), Texts{refusal});
    EXPECT_EQ(text(4), "1");

    type(4, "2.50", enter);
    type(3, "7", escape);
    EXPECT_TRUE(boxes.said.empty());
    EXPECT_EQ(rows(), (Texts{"0.01", "0.05", "0.1", "0.5", "2.5"}));
}

TEST_F(Tesselation, AnEditedRowTakesItsPlaceOnceTheUserHasSorted)
{
    AnsweredBoxes boxes;
    show();
    // Compared as numbers: as texts 10 would come before 2.
    tree().topLevelItem(0)->setText(0, "10");
    tree().topLevelItem(1)->setText(0, "2");
    EXPECT_EQ(rows(), (Texts{"10", "2", "0.1", "0.5", "1"}));
    sortByClick();
    EXPECT_EQ(rows(), (Texts{"0.1", "0.5", "1", "2", "10"}));
    tree().topLevelItem(0)->setText(0, "3");
    EXPECT_EQ(rows(), (Texts{"0.5", "1", "2", "3", "10"}));
    tree().topLevelItem(1)->setText(0, "-1");
    EXPECT_EQ(rows(), (Texts{"0.5", "1", "2", "3", "10"}));
    EXPECT_EQ(taken(), (std::vector<float>{0.5f, 1.0f, 2.0f, 3.0f, 10.0f}));
    EXPECT_EQ(boxes.said, Texts{refusal});

    // Filling goes back to the order of the list.
    record().set("Optimizer Teselation Quality", std::vector<float>{2.0f, 1.0f}, true);
    module("Tesselation").updateGUI();
    EXPECT_EQ(rows(), (Texts{"2", "1"}));
}

TEST_F(Tesselation, RemovesAllSelectedRowsThroughItsSlots)
{
    QWidget *page = module("Tesselation").page();
    for (const int row : {0, 3})
        tree().topLevelItem(row)->setSelected(true);
    ASSERT_TRUE(QMetaObject::invokeMethod(page, "clickedRemove"));
    EXPECT_EQ(rows(), (Texts{"0.05", "0.1", "1"}));
    ASSERT_TRUE(QMetaObject::invokeMethod(page, "clickedAdd"));
    EXPECT_EQ(rows().size(), 4u);
}

} // namespace
