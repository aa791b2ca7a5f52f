#include "WindowTest.h"

#include "Model/olScene.h"
#include "State/olHostState.h"
#include "View/olViewport.h"

#include <QTest>

namespace
{

constexpr auto marking = "Selection";

class SceneTree : public WindowTest
{
protected:
    /// Clicks through the middle column of the view until the part is hit; its name in the selection.
    QString clickOn(const QString &part)
    {
        for (int row = 4; row < view.height(); row += 4) {
            QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(view.width() / 2, row));
            if (view.selection().value(0).startsWith(part))
                return view.selection().value(0);
        }
        return {};
    }

    QStringList selectedNodes()
    {
        QStringList names;
        for (const QTreeWidgetItem *item : tree.selectedItems())
            names << item->text(0);
        return names;
    }
};

TEST_F(SceneTree, ShowsTheStructureAndFollowsTheScene)
{
    ASSERT_EQ(tree.topLevelItemCount(), 1);
    QTreeWidgetItem &ball = node("Ball 8");
    EXPECT_EQ(ball.parent()->text(0), "Bearing");
    EXPECT_EQ(ball.parent()->parent(), &node("Sample assembly"));
    EXPECT_TRUE(ball.parent()->icon(0).isNull());
    const QImage chip = ball.icon(0).pixmap(tree.iconSize()).toImage();
    EXPECT_EQ(chip.pixelColor(chip.rect().center()).name(), "#edd365") << "gold, as on the screen";
    EXPECT_EQ(node("Lifting eye").childCount(), 3);

    window.scene().clear();
    EXPECT_EQ(tree.topLevelItemCount(), 0);
    EXPECT_FALSE(tree.isVisible()) << "a line says that nothing is open";
}

TEST_F(SceneTree, TheSelectionIsTheSameInTreeAndView)
{
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, view.rect().center());
    ASSERT_EQ(tree.selectedItems().size(), 1);
    EXPECT_EQ(QStringList(idOf(*tree.selectedItems().first())), view.selection());

    const QRect place = (tree.scrollToItem(&node("Bearing")), tree.visualItemRect(&node("Bearing")));
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    EXPECT_EQ(view.selection().size(), 10) << "a group selects all that is in it";
    QTest::keyClick(&tree, Qt::Key_Down);
    EXPECT_EQ(view.selection(), QStringList(idOf(node("Shaft"))));

    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(4, view.height() - 4));
    EXPECT_TRUE(tree.selectedItems().isEmpty());
}

TEST_F(SceneTree, ScrollsToWhatWasPickedWhereItShall)
{
    const QString ball = idOf(node("Ball 8"));
    window.scene().setHiddenParts({});
    view.select({ball});
    view.zoomToSelection();
    for (const char *name : {"Cover", "Housing", "Outer race"})
        node(name).setCheckState(0, Qt::Unchecked);
    QTest::qWait(60);
    tree.collapseAll();
    apply(marking, "Selection auto scroll", false);
    ASSERT_EQ(clickOn(ball), ball);
    EXPECT_EQ(selectedNodes(), QStringList("Ball 8"));
    EXPECT_FALSE(isInSight(node("Ball 8")));
    EXPECT_FALSE(node("Bearing").isExpanded());

    apply(marking, "Selection auto scroll", true);
    ASSERT_EQ(clickOn(ball), ball);
    EXPECT_TRUE(isInSight(node("Ball 8")));
}

TEST_F(SceneTree, BoxesHideAndShowParts)
{
    const QImage all = view.picture();
    const int parts = view.parts().size();
    tree.setCurrentItem(&node("Bearing"));
    QTest::keyClick(&tree, Qt::Key_Space);
    QTest::qWait(20);
    EXPECT_EQ(node("Ball 3").checkState(0), Qt::Unchecked);
    EXPECT_EQ(node("Sample assembly").checkState(0), Qt::PartiallyChecked);
    EXPECT_EQ(view.parts().size(), parts - 10);
    EXPECT_FALSE(isLike(all));
    node("Ball 3").setCheckState(0, Qt::Checked);
    QTest::qWait(20);
    EXPECT_EQ(view.parts().size(), parts - 9);

    node("Sample assembly").setCheckState(0, Qt::Checked);
    QTest::qWait(20);
    tree.clearSelection();
    EXPECT_EQ(view.parts().size(), parts);
    EXPECT_TRUE(isLike(all));
}

TEST_F(SceneTree, PickingFindsThePartOrItsLevelOfDetail)
{
    const QString eye = idOf(node("Lifting eye"));
    view.select({eye});
    view.zoomToSelection();
    QTest::qWait(60);
    EXPECT_EQ(clickOn(eye), eye);
    EXPECT_EQ(selectedNodes(), QStringList("Lifting eye"));

    apply(marking, "LOD selection", false);
    EXPECT_EQ(clickOn(eye), eye + "#0") << "from near the finest is drawn";
    EXPECT_TRUE(selectedNodes() == QStringList("Level 1"));
    const QImage near = view.picture();
    view.select({});
    EXPECT_FALSE(isLike(near)) << "the level is marked";

    // From farther away another one is drawn, so that the mark of the first goes.
    const QImage plain = (view.showAll(), view.resize(320, 240), view.picture());
    view.select({eye + "#0"});
    EXPECT_TRUE(isLike(plain));
    view.select({eye + "#1"});
    const bool isMiddle = !isLike(plain);
    view.select({eye + "#2"});
    EXPECT_NE(isMiddle, !isLike(plain)) << "exactly one of them is drawn";
}

TEST_F(SceneTree, TheKeysOfTheViewDoNotTakeThoseOfTheTree)
{
    tree.expandAll();
    tree.setFocus();
    tree.setCurrentItem(&node("Shaft"));
    QTest::keyClick(&tree, Qt::Key_Home);
    EXPECT_EQ(tree.currentItem(), tree.topLevelItem(0));
    QTest::keyClick(&tree, Qt::Key_Down);
    const QImage before = view.picture();
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_FALSE(isLike(before)) << "Return zooms to what is selected";
}

} // namespace
