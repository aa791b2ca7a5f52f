#include "Support/PluginTest.h"

#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace
{

using Paths = std::vector<std::string>;

class FileIO : public PluginTest
{
protected:
    FileIO() { show({"/c", "/a", "/d", "/b"}); }

    static void show(const Paths &paths)
    {
        record().set("texture search paths", paths, true);
        module("FileIO").updateGUI();
    }
    static QTableWidget &table() { return control<QTableWidget>("FileIO", "searchPaths"); }
    static Paths rows()
    {
        Paths paths;
        for (int row = 0; row < table().rowCount(); ++row)
            paths.push_back(table().item(row, 0)->text().toStdString());
        return paths;
    }
};

TEST_F(FileIO, SearchPathsAreSortedByTheUserAndKeptInThatOrderOnlyWhenConfirmed)
{
    module("FileIO").page()->show();
    EXPECT_EQ(rows(), (Paths{"/c", "/a", "/d", "/b"}));
    QTest::mouseClick(table().horizontalHeader()->viewport(), Qt::LeftButton);
    EXPECT_EQ(rows(), (Paths{"/a", "/b", "/c", "/d"}));

    // Cancelled: the next filling shows what is searched, in its order.
    module("FileIO").updateGUI();
    EXPECT_EQ(rows(), (Paths{"/c", "/a", "/d", "/b"}));
    QTest::mouseClick(table().horizontalHeader()->viewport(), Qt::LeftButton);
    module("FileIO").updateData();
    EXPECT_EQ(boost::any_cast<Paths>(record().get("texture search paths")), (Paths{"/a", "/b", "/c", "/d"}));
}

TEST_F(FileIO, AnAddedSearchPathStandsLastUntilTheUserHasSorted)
{
    const QTemporaryDir directory(QStringLiteral("/tmp/added-XXXXXX"));
    const std::string added = directory.path().toStdString();
    const auto add = [&directory] {
        QTimer::singleShot(0, [&directory] {
            auto *chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(chooser, nullptr);
            chooser->selectFile(directory.path());
            ASSERT_TRUE(QMetaObject::invokeMethod(chooser, "accept"));
        });
        EXPECT_TRUE(QMetaObject::invokeMethod(module("FileIO").page(), "clickedAdd"));
    };

    module("FileIO").page()->show();
    add();
    EXPECT_EQ(rows(), (Paths{"/c", "/a", "/d", "/b", added}));

    module("FileIO").updateGUI();
    QTest::mouseClick(table().horizontalHeader()->viewport(), Qt::LeftButton);
    QTest::mouseClick(table().horizontalHeader()->viewport(), Qt::LeftButton);
    ASSERT_EQ(rows(), (Paths{"/d", "/c", "/b", "/a"}));
    add();
    EXPECT_EQ(rows(), (Paths{added, "/d", "/c", "/b", "/a"}));
}

TEST_F(FileIO, DeleteTakesEverySelectedRow)
{
    for (const int row : {0, 2, 3})
        table().item(row, 0)->setSelected(true);
    ASSERT_TRUE(QMetaObject::invokeMethod(module("FileIO").page(), "clickedSub"));
    EXPECT_EQ(rows(), Paths{"/a"});
}

} // namespace
