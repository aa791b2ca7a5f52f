#include "Scene/Exchange/ImportTest.h"

#include "Exchange/olExportScene.h"
#include "State/olHostState.h"

#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>

#include <QDir>
#include <QImage>

namespace
{

using RoundTrip = ImportTest;

// Triangles without area, as they come about at the poles of a ball, are not kept.
constexpr double few = 60;
constexpr unsigned meshTriangles = 512;

// The curved surfaces stand off their exact place by no more than this, in millimetres.
constexpr double near = 0.2;

int textures(const olScene::Document &document)
{
    const Handle(XCAFDoc_VisMaterialTool) tool = XCAFDoc_DocumentTool::VisMaterialTool(document->Main());
    TDF_LabelSequence labels;
    tool->GetMaterials(labels);
    int count = 0;
    for (const TDF_Label &label : labels) {
        const Handle(XCAFDoc_VisMaterial) look = tool->GetMaterial(label);
        count += int((look->HasCommonMaterial() && !look->CommonMaterial().DiffuseTexture.IsNull()) ||
                     (look->HasPbrMaterial() && !look->PbrMaterial().BaseColorTexture.IsNull()));
    }
    return count;
}

} // namespace

TEST_F(RoundTrip, TexturesComeBackAlthoughTheFirstOnesAreGone)
{
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(path(QStringLiteral("red.png"))));
    (void)written(QStringLiteral("m.mtl"), "newmtl m\nmap_Kd red.png\n");
    const olScene::Document model = imported(olImportJob::of(
        written(QStringLiteral("m.obj"),
                "mtllib m.mtl\nusemtl m\nvt 0 0\nvt 1 0\nvt 1 1\nv 0 0 0\nv 1 0 0\nv 1 1 0\nf 1/1 2/2 3/3\n")));
    ASSERT_EQ(textures(model), 1);
    for (const char *suffix : {"obj", "gltf", "glb"})
        EXPECT_EQ(olExportScene(model, path(QLatin1String("out.") + QLatin1String(suffix))).error, QString());
    QDir().remove(path(QStringLiteral("red.png")));
    for (const char *suffix : {"obj", "gltf", "glb"}) {
        const olImportResult result = olImport(olImportJob::of(path(QLatin1String("out.") + QLatin1String(suffix))));
        ASSERT_TRUE(result.isGood()) << qPrintable(result.error);
        EXPECT_EQ(textures(result.document), 1) << suffix << qPrintable(result.remarks.join(QLatin1Char(' ')));
    }
}

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
