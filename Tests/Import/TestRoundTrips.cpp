#include "Import/ImportTest.h"

#include "Embedded/olHostState.h"
#include "Viewport/olImporter.h"

#include <TDocStd_Document.hxx>

#include <QFile>
#include <QSignalSpy>

namespace
{

using RoundTrip = ImportTest;
using ImportOption = ImportTest;
using Fault = ImportTest;

// Triangles without area, as they come about at the poles of a ball, are not kept.
constexpr double few = 60;
constexpr unsigned meshTriangles = 512;

// The curved surfaces stand off their exact place by no more than this, in millimetres.
constexpr double near = 0.2;

} // namespace

TEST_F(RoundTrip, FormatsOfTrianglesBringAllPartsBack)
{
    const Outline sample(m_scene.document());
    for (const char *suffix : {"gltf", "glb", "obj", "wrl", "stl"}) {
        SCOPED_TRACE(suffix);
        const Outline read(imported(olImportJob::of(exported(QStringLiteral("s.") + QLatin1String(suffix)))));
        EXPECT_NEAR(read.triangles, sample.triangles, few);
        for (int axis = 0; axis < 3; ++axis) {
            EXPECT_NEAR(read.low[axis], sample.low[axis], near);
            EXPECT_NEAR(read.high[axis], sample.high[axis], near);
        }
        EXPECT_EQ(read.parts, qstrcmp(suffix, "stl") == 0 ? 1 : sample.parts);
    }
}

TEST_F(RoundTrip, NamesColoursAndOpacityComeBack)
{
    const Outline sample(m_scene.document());
    const Outline gltf(imported(olImportJob::of(exported(QStringLiteral("s.glb")))));
    EXPECT_EQ(gltf.names, sample.names);
    EXPECT_EQ(gltf.colours, sample.colours);

    QStringList colours = sample.colours;
    EXPECT_EQ(colours.removeAll(QStringLiteral("Scanned plate 0.35 0.55 0.30 1.00")), 1);
    const Outline step(imported(olImportJob::of(exported(QStringLiteral("s.step")))));
    EXPECT_EQ(step.colours, colours);
    EXPECT_TRUE(step.names.contains(QStringLiteral("Ball 3")));
    EXPECT_EQ(step.triangles, sample.triangles - meshTriangles);

    const Outline vrml(imported(olImportJob::of(exported(QStringLiteral("s.wrl")))));
    EXPECT_TRUE(vrml.colours.contains(QStringLiteral("Cover 0.55 0.85 0.95 0.35")));
    EXPECT_TRUE(vrml.names.contains(QStringLiteral("Ball_3")));
}

TEST_F(RoundTrip, TheHostSaysWhetherStlIsTextOrBinary)
{
    EXPECT_TRUE(contentOf(exported(QStringLiteral("text.stl"))).startsWith("solid"));
    olHostState::the().stlExportFormat = 1;
    const QByteArray binary = contentOf(exported(QStringLiteral("binary.stl")));
    EXPECT_EQ(binary.size(), 84 + 50 * int(m_scene.triangleCount()));
}

TEST_F(ImportOption, CoarserDeviationMakesFewerTriangles)
{
    olImportJob job = olImportJob::of(exported(QStringLiteral("s.step")));
    const unsigned fine = Outline(imported(job)).triangles;
    job.options.chordDeviation = 2;
    job.options.normalTolerance = 60;
    const unsigned coarse = Outline(imported(job)).triangles;
    EXPECT_LT(coarse, fine / 4);
    job.options.tessellation = false;
    EXPECT_EQ(Outline(imported(job)).triangles, fine);
}

TEST_F(ImportOption, StitchingTakesNoColourAway)
{
    olImportJob job = olImportJob::of(exported(QStringLiteral("s.igs")));
    const QStringList stitched = Outline(imported(job)).colours;
    job.options.stitching = false;
    EXPECT_EQ(stitched, Outline(imported(job)).colours);
}

TEST_F(ImportOption, KindsThatAreNotWantedStayOut)
{
    olImportJob job = olImportJob::of(exported(QStringLiteral("s.step")));
    job.options.importSurfaces = false;
    EXPECT_TRUE(olImport(job).error.contains(QStringLiteral("leave nothing")));

    job = olImportJob::of(exported(QStringLiteral("s.glb")));
    job.options.importMeshes = false;
    EXPECT_TRUE(olImport(job).error.contains(QStringLiteral("leave nothing")));
}

TEST_F(ImportOption, TheModelIsMovedToTheOriginAndTheGround)
{
    for (const char *name : {"s.step", "s.stl"}) {
        olImportJob job = olImportJob::of(exported(QLatin1String(name)));
        job.centerInOrigin = true;
        job.putOnGround = true;
        const Outline moved(imported(job));
        EXPECT_NEAR(moved.low[2], 0, near);
        EXPECT_NEAR(moved.low[0], -moved.high[0], near);
    }
}

TEST_F(ImportOption, WithoutSurfacesOnlyTheTrianglesAreKept)
{
    olImportJob job = olImportJob::of(exported(QStringLiteral("s.step")));
    const Outline whole(imported(job));
    job.options.keepSurfaceData = false;
    const Outline bare(imported(job));
    EXPECT_EQ(bare.triangles, whole.triangles);
    EXPECT_EQ(bare.colours, whole.colours);
}

TEST_F(Fault, TheSceneStaysWhenAFileCannotBeReadAndChangesWhenItCan)
{
    const olScene::Document before = m_scene.document();
    olImporter importer(m_scene);
    QSignalSpy finished(&importer, &olImporter::finished);
    importer.start(written(QStringLiteral("bad.step"), "no"));
    ASSERT_TRUE(finished.wait(60000));
    EXPECT_EQ(m_scene.document(), before);

    importer.start(exported(QStringLiteral("good.step")));
    importer.start(exported(QStringLiteral("other.igs")));
    while (importer.isRunning())
        ASSERT_TRUE(finished.wait(60000));
    EXPECT_EQ(finished.size(), 3);
    EXPECT_NE(m_scene.document(), before);

    const olScene::Document good = m_scene.document();
    importer.start(path(QStringLiteral("good.step")));
    importer.cancel();
    ASSERT_TRUE(finished.wait(60000));
    EXPECT_TRUE(finished.last().at(2).toBool());
    EXPECT_EQ(m_scene.document(), good);
}
