#include "Scene/Exchange/ImportTest.h"

#include "Exchange/olImporter.h"
#include "State/olHostState.h"

#include <TDocStd_Document.hxx>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMap>
#include <QTimer>

#include <algorithm>

namespace
{

constexpr int patience = 120000;

class Importer : public ImportTest
{
protected:
    Importer()
    {
        QObject::connect(&m_importer, &olImporter::finished,
                         [this](int import, const QVector<olImportReport> &reports) { m_ended[import] = reports; });
    }

    /// Until all that was started is through.
    void wait()
    {
        QElapsedTimer timer;
        timer.start();
        while (m_importer.isRunning() && timer.elapsed() < patience)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        ASSERT_FALSE(m_importer.isRunning());
    }

    std::vector<olImportJob> jobs(std::initializer_list<const char *> names)
    {
        std::vector<olImportJob> all;
        for (const char *name : names)
            all.push_back(olImportJob::of(exported(name)));
        return all;
    }

    olImporter m_importer{m_scene};
    QMap<int, QVector<olImportReport>> m_ended;
};

} // namespace

TEST_F(Importer, TheSceneStaysWhenAFileCannotBeReadAndChangesWhenItCan)
{
    const olScene::Document before = m_scene.document();
    const std::vector<olImportJob> good = jobs({"good.step"});
    const int bad = m_importer.start({olImportJob::of(written("bad.step", "no"))});
    wait();
    EXPECT_FALSE(m_ended.value(bad).first().outcome.isOk());
    EXPECT_EQ(m_scene.document(), before);

    const int given = m_importer.start(good);
    m_importer.cancel(given);
    wait();
    EXPECT_TRUE(m_ended.value(given).first().isCancelled);
    EXPECT_EQ(m_scene.document(), before);

    std::vector<olImportJob> mixed = jobs({"a.stl"});
    mixed.push_back(olImportJob::of(written("bad.obj", "f 1 2 3\n")));
    const int partly = m_importer.start(mixed);
    wait();
    EXPECT_TRUE(m_ended.value(partly).first().outcome.isOk());
    EXPECT_TRUE(m_ended.value(partly).last().outcome.error().contains("bad.obj"));
    EXPECT_TRUE(Outline(m_scene.document()).names.contains("a")) << "the good one is not lost";
}

TEST_F(Importer, FilesOfOneImportMakeOneSceneInTheirOrderHoweverManyAreReadAtOnce)
{
    const std::vector<olImportJob> files = jobs({"a.glb", "b.stl", "c.step", "d.igs", "e.obj", "f.wrl"});
    QVector<unsigned> triangles;
    for (const int tasks : {1, 4, 0, -1}) {
        olHostState::the().maxParallelImportTasks = tasks;
        const int import = m_importer.start(files);
        wait();
        ASSERT_EQ(m_ended.value(import).size(), int(files.size()));
        for (std::size_t index = 0; index < files.size(); ++index)
            EXPECT_EQ(m_ended.value(import).at(int(index)).file, files[index].file);
        triangles << m_scene.triangleCount();
    }
    unsigned alone = 0;
    for (const olImportJob &job : files)
        alone += Outline(imported(job)).triangles;
    EXPECT_EQ(triangles, QVector<unsigned>(4, alone));
}

TEST_F(Importer, TheGuiThreadGoesOnWhileFilesAreRead)
{
    olHostState::the().maxParallelImportTasks = 1;
    std::vector<olImportJob> files = jobs({"a.step"});
    files.front().options.chordDeviation = 0.02;
    files.front().options.normalTolerance = 5;
    qint64 longest = 0;
    QElapsedTimer since;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, [&] { longest = qMax(longest, since.restart()); });
    QVector<int> percents;
    QObject::connect(&m_importer, &olImporter::progressed, [&](int, int percent) { percents << percent; });
    tick.start(5);
    since.start();
    m_importer.start(files);
    wait();
    EXPECT_LT(longest, 1000);
    EXPECT_GT(percents.size(), 2);
    EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
}
