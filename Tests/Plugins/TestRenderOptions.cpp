#include "Editing/olEditedPage.h"
#include "Editing/olPendingChanges.h"
#include "Support/PluginTest.h"

#include "Widgets/QOLColorDialog.h"

#include <QTableWidget>

namespace
{

using Cells = std::vector<std::string>;

class RenderOptions : public PluginTest
{
protected:
    RenderOptions() { fill("Render Options"); }

    static QTableWidget &table() { return control<QTableWidget>("Render Options", "backgroundTable"); }
    static QWidget &page() { return *module("Render Options").page(); }
    static void call(const char *slot) { ASSERT_TRUE(QMetaObject::invokeMethod(&page(), slot)); }

    static Cells column(int column)
    {
        Cells texts;
        for (int row = 0; row < table().rowCount(); ++row)
            texts.push_back(table().item(row, column)->text().toStdString());
        return texts;
    }

    template <class T> static T stored(const char *key)
    {
        module("Render Options").updateData();
        return boost::any_cast<T>(record().get(key));
    }
    static std::vector<float> storedPositions() { return stored<std::vector<float>>("RenderOptions background ints"); }

    static QOLColorDialog *dialog() { return page().findChild<QOLColorDialog *>(); }
};

TEST_F(RenderOptions, CellsThatHoldNoNumbersCountAsZero)
{
    table().item(0, 0)->setText("  0.5   nonsense");
    table().item(0, 1)->setText("top");
    table().item(1, 0)->setText(QString());
    table().item(1, 1)->setText(" 0.25 ");
    EXPECT_EQ((std::vector<osg::Color3f>{{0.5f, 0.0f, 0.0f}, {0.0f, 0.0f, 0.0f}}),
              stored<std::vector<osg::Color3f>>("RenderOptions background colors"));
    EXPECT_EQ((std::vector<float>{0.0f, 0.25f}), storedPositions());
}

TEST_F(RenderOptions, CellsAreReadInTheCLocaleWhateverTheUsers)
{
    QLocale::setDefault(QLocale(QLocale::German));
    module("Render Options").updateGUI();
    EXPECT_EQ((Cells{"0.207843 0.207843 0.207843", "0.749020 0.749020 0.749020"}), column(0));
    table().item(0, 1)->setText("0.5");
    EXPECT_EQ((std::vector<float>{0.5f, 0.0f}), storedPositions());
    QLocale::setDefault(QLocale::c());
}

TEST_F(RenderOptions, OneRowGoesAtATimeThoughSeveralAreSelected)
{
    table().selectAll();
    call("clickedDelete");
    EXPECT_EQ((Cells{"0.749020 0.749020 0.749020"}), column(0));
}

TEST_F(RenderOptions, TheColourGoesToTheRowThatIsSelectedWhenItIsAccepted)
{
    table().selectRow(0);
    call("clickedChooseColor");
    ASSERT_TRUE(dialog());
    EXPECT_EQ(osg::Color3f(0.207843f, 0.207843f, 0.207843f), dialog()->getColor());

    dialog()->setColor({0.25f, 0.5f, 1.0f});
    table().selectRow(1);
    dialog()->accept();
    EXPECT_FALSE(dialog()->isVisible());
    EXPECT_EQ((Cells{"0.207843 0.207843 0.207843", "0.250000 0.500000 1.000000"}), column(0));
    EXPECT_EQ((Cells{"1", "0"}), column(1));
}

TEST_F(RenderOptions, ResettingOneColumnLeavesTheOther)
{
    olPreferencesSession session{QString(), QStringList()};
    olPendingChanges changes(session);
    changes.page(module("Render Options"));
    table().item(0, 0)->setText("1 0 0");
    table().item(0, 1)->setText("0.9");
    const std::vector<osg::Color3f> colors{{0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f}};
    changes.put({{"RenderOptions background colors", colors}});
    EXPECT_EQ((Cells{"0.000000 1.000000 0.000000", "0.000000 0.000000 1.000000"}), column(0));
    EXPECT_EQ((Cells{"0.9", "0"}), column(1));
}

TEST_F(RenderOptions, WhatAnEditionHidesLeavesNoGap)
{
    restart(olEdition::Essentials);
    page().show();
    const auto gapBelow = [](const char *upper, const char *lower) {
        return control<QWidget>("Render Options", lower).y() -
               control<QWidget>("Render Options", upper).geometry().bottom();
    };
    EXPECT_EQ(gapBelow("postprocessAntialiasing", "disableOnCameraMovement"),
              gapBelow("disableOnCameraMovement", "auxiliaryNodes"));
}

} // namespace
