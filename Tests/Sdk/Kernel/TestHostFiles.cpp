#include "Kernel/olPreferences.h"
#include "Kernel/olTexSearch.h"
#include "Support/Files.h"
#include "Utilities/olMessage.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace
{

using Paths = std::vector<std::string>;

class HostFiles : public ::testing::Test
{
protected:
    ~HostFiles() override
    {
        olPreferences::getData().remove(key);
        olTexSearch::set();
    }

    std::string path(const char *name) const { return folder.filePath(name).toStdString(); }
    std::string makeDirectory(const char *name) const
    {
        QDir().mkpath(folder.filePath(name));
        return path(name);
    }
    std::string makeFile(const char *name) const { return writtenFile(folder.filePath(name)).toStdString(); }
    static void search(const Paths &paths)
    {
        olPreferences::getData().set(key, paths);
        olTexSearch::set();
    }

    static constexpr auto key = "texture search paths";
    QTemporaryDir folder;
};

TEST_F(HostFiles, SearchListKeepsOrderAndDropsWhatIsMissingOrDouble)
{
    const std::string zebra = makeDirectory("zebra");
    const std::string apple = makeDirectory("\xc3\xa4pfel");
    const std::string file = makeFile("file");
    QFile::link(folder.filePath("zebra"), folder.filePath("link"));
    search({zebra, "", path("missing"), file, apple, zebra + "/", path("link")});
    EXPECT_EQ(olTexSearch::directories(), (Paths{zebra, apple}));

    olPreferences::getData().set(key, QString("wrong type"));
    olTexSearch::set();
    EXPECT_EQ(olTexSearch::directories(), Paths{});
}

TEST_F(HostFiles, TextureIsFoundInTheFirstDirectoryThatHasIt)
{
    const std::string first = makeDirectory("first");
    const std::string second = makeDirectory("second");
    makeDirectory("second/wood");
    const std::string oak = makeFile("second/oak.png");
    const std::string darkOak = makeFile("second/wood/oak.png");
    search({first, second});

    EXPECT_EQ(olTexSearch::find("oak.png"), oak);
    EXPECT_EQ(olTexSearch::find("wood/oak.png"), darkOak) << "the relative path goes before the bare name";
    EXPECT_EQ(olTexSearch::find("C:\\models\\textures\\oak.png"), oak);
    EXPECT_EQ(olTexSearch::find(darkOak), darkOak);
    EXPECT_EQ(olTexSearch::find("pine.png"), "");
    EXPECT_EQ(olTexSearch::find("wood"), "") << "a directory is no texture";
    EXPECT_EQ(olTexSearch::find(""), "");

    const std::string nearer = makeFile("first/oak.png");
    EXPECT_EQ(olTexSearch::find("oak.png"), nearer);
}

} // namespace
