#include "Scene/Exchange/ImportTest.h"

#include "Exchange/olExportScene.h"
#include "Model/olTriangles.h"
#include "State/olHostState.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gp_Pln.hxx>

#include <QDir>

namespace
{

/// A model of boxes, wires and faces, built for one option.
class Model
{
public:
    Model() : m_document(olScene::newDocument()) {}

    TDF_Label part(const char *name, const TopoDS_Shape &shape)
    {
        const TDF_Label label = shapes()->AddShape(shape, Standard_False);
        TDataStd_Name::Set(label, name);
        return label;
    }

    /// The members stand so far apart.
    TDF_Label group(const char *name, const std::vector<TDF_Label> &members, double apart = 0)
    {
        gp_Trsf where;
        const TDF_Label label = shapes()->NewShape();
        TDataStd_Name::Set(label, name);
        for (const TDF_Label &member : members) {
            TDataStd_Name::Set(shapes()->AddComponent(label, member, TopLoc_Location(where)), name);
            where.SetTranslation(gp_Vec(where.TranslationPart()) + gp_Vec(apart, 0, 0));
        }
        shapes()->UpdateAssemblies();
        return label;
    }

    void hide(const TDF_Label &label)
    {
        XCAFDoc_DocumentTool::ColorTool(m_document->Main())->SetVisibility(label, Standard_False);
    }

    [[nodiscard]] Handle(XCAFDoc_ShapeTool) shapes() const
    {
        return XCAFDoc_DocumentTool::ShapeTool(m_document->Main());
    }
    [[nodiscard]] const olScene::Document &document() const { return m_document; }

private:
    olScene::Document m_document;
};

TopoDS_Shape box(double at) { return BRepPrimAPI_MakeBox(gp_Pnt(at, 0, 0), 10, 10, 10).Shape(); }

TopoDS_Shape edge(double at) { return BRepBuilderAPI_MakeEdge(gp_Pnt(at, 0, 20), gp_Pnt(at, 10, 20)).Shape(); }

/// Two squares side by side with a gap between them.
TopoDS_Shape squares(double gap)
{
    TopoDS_Compound both;
    BRep_Builder().MakeCompound(both);
    BRep_Builder().Add(both, BRepBuilderAPI_MakeFace(gp_Pln(), 0, 10, 0, 10).Shape());
    BRep_Builder().Add(both, BRepBuilderAPI_MakeFace(gp_Pln(), 10 + gap, 20, 0, 10).Shape());
    return both;
}

TopoDS_Compound wholeOf(const olScene::Document &document)
{
    TopoDS_Compound whole;
    BRep_Builder().MakeCompound(whole);
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(labels);
    for (const TDF_Label &label : labels)
        BRep_Builder().Add(whole, XCAFDoc_ShapeTool::GetShape(label));
    return whole;
}

int count(const olScene::Document &document, TopAbs_ShapeEnum kind, TopAbs_ShapeEnum notIn = TopAbs_SHAPE)
{
    int number = 0;
    for (TopExp_Explorer each(wholeOf(document), kind, notIn); each.More(); each.Next())
        ++number;
    return number;
}

Handle(Poly_Triangulation) firstMesh(const olScene::Document &document)
{
    TopLoc_Location location;
    return BRep_Tool::Triangulation(TopoDS::Face(TopExp_Explorer(wholeOf(document), TopAbs_FACE).Current()), location);
}

const char twoTriangles[] = "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nf 1 2 3\nf 1 4 3\n";

class ImportOption : public ImportTest
{
protected:
    olImportJob job(const char *name, const Model &model)
    {
        const QString file = path(name);
        EXPECT_EQ(olExportScene(model.document(), file).error().toStdString(), "");
        return olImportJob::of(file);
    }

    olImportJob job(const char *name, const QByteArray &content) { return olImportJob::of(written(name, content)); }
};

} // namespace

TEST_F(ImportOption, DeviationAndAngleDecideOverTheTriangles)
{
    const olImportJob usual = olImportJob::of(exported("s.step"));
    const unsigned triangles = Outline(imported(usual)).triangles;
    olImportJob coarse = usual;
    coarse.options.chordDeviation = 2;
    coarse.options.normalTolerance = 60;
    EXPECT_LT(Outline(imported(coarse)).triangles, triangles / 4);
    olImportJob smooth = coarse;
    smooth.options.normalTolerance = 10;
    EXPECT_GT(Outline(imported(smooth)).triangles, 2 * Outline(imported(coarse)).triangles);
    olImportJob exact = coarse;
    exact.options.chordDeviation = 0.05;
    EXPECT_GT(Outline(imported(exact)).triangles, 2 * Outline(imported(coarse)).triangles);
    coarse.options.tessellation = false;
    EXPECT_EQ(Outline(imported(coarse)).triangles, triangles);
}

TEST_F(ImportOption, StitchingJoinsFacesWithinItsToleranceAndKeepsTheColours)
{
    Model model;
    model.part("Squares", squares(0.05));
    olImportJob gap = job("gap.step", model);
    EXPECT_EQ(count(imported(gap), TopAbs_EDGE), 8);
    const auto joined = [](const olScene::Document &document) {
        TopTools_IndexedMapOfShape edges;
        TopExp::MapShapes(wholeOf(document), TopAbs_EDGE, edges);
        return edges.Extent() == 7;
    };
    EXPECT_TRUE(joined(imported(gap)));
    gap.options.stitchingTolerance = 0.01;
    EXPECT_FALSE(joined(imported(gap)));
    gap.options.stitchingTolerance = 0.1;
    gap.options.stitching = false;
    EXPECT_FALSE(joined(imported(gap)));

    olImportJob sample = olImportJob::of(exported("s.igs"));
    const QStringList stitched = Outline(imported(sample)).colours;
    sample.options.stitching = false;
    EXPECT_EQ(stitched, Outline(imported(sample)).colours);
}

TEST_F(ImportOption, EachKindComesInNotAtAllWhereVisibleOrWhole)
{
    Model model;
    const TDF_Label hiddenBox = model.part("Hidden box", box(20));
    const TDF_Label hiddenEdge = model.part("Hidden edge", edge(20));
    model.part("Box", box(0));
    model.part("Edge", edge(0));
    model.hide(hiddenBox);
    model.hide(hiddenEdge);
    olImportJob kinds = job("kinds.step", model);
    const auto found = [&kinds](bool surfaces, bool hiddenSurfaces, bool curves, bool hiddenCurves) {
        kinds.options.importSurfaces = surfaces;
        kinds.options.importInvisibleSurfaces = hiddenSurfaces;
        kinds.options.importCurves = curves;
        kinds.options.importInvisibleCurves = hiddenCurves;
        const olScene::Document document = imported(kinds);
        return std::make_pair(count(document, TopAbs_FACE) / 6, count(document, TopAbs_EDGE, TopAbs_FACE));
    };
    EXPECT_EQ(found(true, false, false, false), std::make_pair(1, 0));
    EXPECT_TRUE(olImport(kinds).remarks.value(0).contains("Hidden box"));
    EXPECT_EQ(found(true, true, true, false), std::make_pair(2, 1));
    EXPECT_EQ(found(false, false, true, true), std::make_pair(0, 2));

    olImportJob meshes = job("meshes.obj", QByteArray(twoTriangles));
    EXPECT_EQ(Outline(imported(meshes)).triangles, 2u);
    meshes.options.importSurfaces = false;
    EXPECT_EQ(Outline(imported(meshes)).triangles, 2u);
    meshes.options.importMeshes = false;
    EXPECT_TRUE(olImport(meshes).document.error().contains("leave nothing of it (no meshes are imported)"));
    kinds.options.importSurfaces = true;
    kinds.options.importInvisibleSurfaces = kinds.options.importInvisibleCurves = kinds.options.importCurves = false;
    Model hidden;
    hidden.hide(hidden.part("Hidden box", box(20)));
    EXPECT_TRUE(olImport(job("hidden.step", hidden)).document.error().contains("(no invisible surfaces are"));
}

TEST_F(ImportOption, HiddenInstancesComeInHiddenOrNotAtAll)
{
    for (const double apart : {20.0, 0.0}) {
        Model model;
        const TDF_Label part = model.part("Box", box(0));
        const TDF_Label group = model.group("Group", {part, part}, apart);
        TDF_LabelSequence members;
        XCAFDoc_ShapeTool::GetComponents(group, members);
        model.hide(members.Last());
        olImportJob instances = job("instances.step", model);
        EXPECT_EQ(count(imported(instances), TopAbs_SOLID), 1);
        instances.options.importInvisibleInstances = true;
        // Two in the same place cannot be told apart, and are written as one.
        EXPECT_EQ(count(imported(instances), TopAbs_SOLID), apart > 0 ? 2 : 1);
    }
}

TEST_F(ImportOption, MeshesOfOneLookBecomeOne)
{
    written("looks.mtl", "newmtl a\nKd 1 0 0\nnewmtl b\nKd 1 0 0\nnewmtl c\nKd 0 1 0\n");
    olImportJob merge = job("looks.obj", "mtllib looks.mtl\nv 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nusemtl a\nf 1 2 3\n"
                                         "usemtl b\nf 1 3 4\nusemtl c\nf 1 2 4\n");
    const olScene::Document merged = imported(merge);
    merge.options.mergeGeometries = false;
    const olScene::Document separate = imported(merge);
    EXPECT_EQ(count(merged, TopAbs_FACE), 2);
    EXPECT_EQ(count(separate, TopAbs_FACE), 3);
    EXPECT_EQ(olTriangles::count(merged), olTriangles::count(separate));
    EXPECT_EQ(Outline(merged).colours, Outline(separate).colours);
}

TEST_F(ImportOption, EmptyGroupsStayOrGo)
{
    olImportJob groups =
        job("groups.wrl", QByteArray("#VRML V2.0 utf8\nDEF Hollow Group { children [ DEF Inner Group { children [] } ] "
                                     "}\nShape { geometry Box {} }\n"));
    EXPECT_FALSE(Outline(imported(groups)).names.contains("Hollow"));
    groups.options.removeEmptyGroups = false;
    EXPECT_TRUE(Outline(imported(groups)).names.contains("Inner"));
}

TEST_F(ImportOption, TrianglesFaceTheSameWayAsTheirNeighbours)
{
    const auto height = [](const olScene::Document &document) {
        const Handle(Poly_Triangulation) mesh = firstMesh(document);
        double sum = 0;
        for (int index = 1; index <= mesh->NbTriangles(); ++index) {
            int n[3];
            mesh->Triangle(index).Get(n[0], n[1], n[2]);
            sum += gp_Vec(mesh->Node(n[0]), mesh->Node(n[1])).Crossed(gp_Vec(mesh->Node(n[0]), mesh->Node(n[2]))).Z();
        }
        return sum;
    };
    olImportJob normals = job("normals.obj", QByteArray(twoTriangles));
    EXPECT_EQ(height(imported(normals)), 2);
    normals.options.unifySurfaceNormals = false;
    EXPECT_EQ(height(imported(normals)), 0);
}

TEST_F(ImportOption, WithoutSurfacesOnlyTheTrianglesAreKept)
{
    olImportJob keep = olImportJob::of(exported("s.step"));
    const olScene::Document whole = imported(keep);
    keep.options.keepSurfaceData = false;
    const olScene::Document bare = imported(keep);
    EXPECT_EQ(olTriangles::count(bare), olTriangles::count(whole));
    EXPECT_EQ(Outline(bare).colours, Outline(whole).colours);
    EXPECT_GT(count(whole, TopAbs_EDGE), 0);
    EXPECT_EQ(count(bare, TopAbs_EDGE), 0);
}

TEST_F(ImportOption, FilesThatAFileRefersToAreReadOrLeftAlone)
{
    Model model;
    model.group("Whole", {model.part("Box", box(0)), model.part("Other", box(20))});
    const QString file = path("whole.stp");
    STEPCAFControl_Writer writer;
    const QString before = QDir::currentPath();
    ASSERT_TRUE(writer.Transfer(model.document(), STEPControl_AsIs, "piece-"));
    QDir::setCurrent(QFileInfo(file).path());
    const bool isWritten = writer.Write("whole.stp") == IFSelect_RetDone;
    QDir::setCurrent(before);
    ASSERT_TRUE(isWritten);
    olImportJob references = olImportJob::of(file);
    EXPECT_EQ(Outline(imported(references)).parts, 2);
    references.options.importReferencedFiles = false;
    EXPECT_NE(olImport(references).document.error(), QString());

    written("m.mtl", "newmtl green\nKd 0 1 0\n");
    references = job("m.obj", QByteArray("mtllib m.mtl\nusemtl green\n") + twoTriangles);
    EXPECT_TRUE(Outline(imported(references)).colours.join(QString()).contains("0.00 1.00 0.00"));
    references.options.importReferencedFiles = false;
    EXPECT_FALSE(Outline(imported(references)).colours.join(QString()).contains("0.00 1.00 0.00"));
    const auto remarks = [this](const QByteArray &uses) {
        return olImport(job("m.obj", "mtllib m.mtl\n" + uses + twoTriangles)).remarks.join(' ');
    };
    EXPECT_TRUE(remarks("usemtl green\nusemtl blue\n").contains("lacks: blue."));
    EXPECT_EQ(remarks("mtllib none.mtl\nusemtl green\n"), QString());
    QFile::remove(path("m.mtl"));
    EXPECT_TRUE(remarks({}).contains("m.mtl is not there"));
}

TEST_F(ImportOption, VerifyingDropsTrianglesWithoutAreaAndNamesFaultySurfaces)
{
    olImportJob flat = job("flat.obj", QByteArray(twoTriangles) + "f 1 2 2\n");
    flat.options.mergeGeometries = false;
    flat.verify = false;
    EXPECT_EQ(Outline(imported(flat)).triangles, 3u);
    flat.verify = true;
    EXPECT_EQ(Outline(imported(flat)).triangles, 2u);
}

TEST_F(ImportOption, OptimizingRepairsWhatTheCheckFindsFaulty)
{
    // A face whose border is left open.
    Model model;
    TopoDS_Shape open = box(0).EmptyCopied();
    TopExp_Explorer shell(box(0), TopAbs_SHELL);
    BRep_Builder().Add(open, shell.Current().Reversed());
    model.part("Inside out", open);
    olImportJob repair = job("repair.step", model);
    repair.options.stitching = false;
    repair.options.unifySurfaceNormals = false;
    const olImportResult asItIs = olImport(repair);
    repair.optimize = true;
    const olImportResult repaired = olImport(repair);
    ASSERT_TRUE(asItIs.document.isOk() && repaired.document.isOk());
    EXPECT_EQ(count(*asItIs.document, TopAbs_FACE), count(*repaired.document, TopAbs_FACE));
    EXPECT_TRUE(BRepCheck_Analyzer(wholeOf(*repaired.document)).IsValid());
}

TEST_F(ImportOption, TheModelIsMovedToTheOriginAndTheGround)
{
    constexpr double near = 0.2;
    for (const char *name : {"s.step", "s.stl"}) {
        olImportJob moved = olImportJob::of(exported(name));
        const Outline asItIs(imported(moved));
        EXPECT_LT(asItIs.low[2], -10);
        moved.putOnGround = true;
        const Outline onGround(imported(moved));
        EXPECT_NEAR(onGround.low[2], 0, near);
        EXPECT_NEAR(onGround.low[0], asItIs.low[0], near);
        moved.putOnGround = false;
        moved.centerInOrigin = true;
        const Outline centred(imported(moved));
        EXPECT_NEAR(centred.low[2], -centred.high[2], near);
        EXPECT_NEAR(centred.low[0], -centred.high[0], near);
    }
}

TEST_F(ImportOption, UnitAndUpCountWhereTheFormatDoesNotSayThem)
{
    constexpr double inch = 25.4;
    for (const char *name : {"s.stl", "s.obj", "s.wrl", "s.step", "s.glb"}) {
        SCOPED_TRACE(name);
        olImportJob job = olImportJob::of(exported(name));
        const Outline asItIs(imported(job));
        job.unit = inch;
        job.isYUp = true;
        const Outline meant(imported(job));
        const bool isOpen = QByteArray(name) != "s.step" && QByteArray(name) != "s.glb";
        EXPECT_EQ(meant.triangles, asItIs.triangles);
        EXPECT_EQ(meant.parts, asItIs.parts);
        EXPECT_EQ(meant.colours, asItIs.colours);
        const double factor = isOpen ? inch : 1.0;
        const double tolerance = 0.2 * factor;
        EXPECT_NEAR(meant.low[0], asItIs.low[0] * factor, tolerance);
        EXPECT_NEAR(meant.high[0], asItIs.high[0] * factor, tolerance);
        // What went up in the file goes up: y becomes z, and z what comes towards us.
        EXPECT_NEAR(meant.high[2], asItIs.high[isOpen ? 1 : 2] * factor, tolerance);
        EXPECT_NEAR(meant.low[1], isOpen ? -asItIs.high[2] * factor : asItIs.low[1], tolerance);
    }
}

TEST_F(ImportOption, TheTemporaryDirectoryIsUsedWhereOneIsGivenAndLeftClean)
{
    const QByteArray before = qgetenv("ORLO_FILEIO_TMP_DIR");
    const QString own = path("own");
    QDir().mkpath(own);
    qputenv("ORLO_FILEIO_TMP_DIR", own.toUtf8());
    olImportJob alone = olImportJob::of(exported("s.step"));
    EXPECT_EQ(alone.temporaryDirectory, own);
    alone.options.importReferencedFiles = false;
    imported(alone);
    EXPECT_TRUE(QDir(own).isEmpty());
    alone.temporaryDirectory = path("nowhere");
    EXPECT_TRUE(olImport(alone).document.error().contains("temporary directory"));
    qputenv("ORLO_FILEIO_TMP_DIR", path("nowhere").toUtf8());
    EXPECT_EQ(olImportJob::of(alone.file).temporaryDirectory, QDir::tempPath());
    qputenv("ORLO_FILEIO_TMP_DIR", before);
}

TEST_F(ImportOption, TexturesAreFoundBesideTheModelElseInTheSearchPathsElseNamed)
{
    const QByteArray corners = "vt 0 0\nvt 1 0\nvt 1 1\nv 0 0 0\nv 1 0 0\nv 1 1 0\nusemtl m\nf 1/1 2/2 3/3\n";
    written("t.mtl", "newmtl m\nmap_Kd -s 2 2 1 C:\\elsewhere\\red.png\n");
    const QByteArray vrml = "#VRML V2.0 utf8\nShape { appearance Appearance { texture ImageTexture { url \"x/red.png\" "
                            "} } geometry IndexedFaceSet { coord Coordinate { point [0 0 0, 1 0 0, 1 1 0] } texCoord "
                            "TextureCoordinate { point [0 0, 1 0, 1 1] } coordIndex [0 1 2 -1] } }\n";
    const QByteArray gltf =
        R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[{"mesh":0}],"meshes":[{"primitives":)"
        R"([{"attributes":{"POSITION":0,"TEXCOORD_0":1},"material":0}]}],"materials":[{"pbrMetallicRoughness":)"
        R"({"baseColorTexture":{"index":0}}}],"textures":[{"source":0}],"images":[{"uri":"x/red.png"}],"buffers":)"
        R"([{"byteLength":36,"uri":"data:application/octet-stream;base64,AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAACAPwAAgD8)"
        R"(AAAAA"}],"bufferViews":[{"buffer":0,"byteLength":36}],"accessors":[{"bufferView":0,"count":3,"componentType")"
        R"(:5126,"type":"VEC3","min":[0,0,0],"max":[1,1,0]},{"bufferView":0,"count":3,"componentType":5126,"type":)"
        R"("VEC2"}]})";
    QDir().mkpath(path("pictures"));
    const QString picture = redPicture(path("pictures/red.png"));
    for (olImportJob search : {job("t.obj", "mtllib t.mtl\n" + corners), job("t.wrl", vrml), job("t.gltf", gltf)}) {
        SCOPED_TRACE(search.file.toStdString());
        const olImportResult without = olImport(search);
        ASSERT_TRUE(without.document.isOk()) << qPrintable(without.document.error());
        EXPECT_EQ(textures(*without.document), QStringList());
        EXPECT_TRUE(without.remarks.join(QString()).contains("red.png was not found"));

        search.textureDirectories = {path("pictures").toStdString()};
        const olImportResult with = olImport(search);
        EXPECT_EQ(textures(*with.document), QStringList{picture});
        EXPECT_TRUE(with.remarks.isEmpty());
        EXPECT_TRUE(firstMesh(*with.document)->HasUVNodes());
    }
}
