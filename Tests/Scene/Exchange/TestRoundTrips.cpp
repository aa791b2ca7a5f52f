#include "Scene/Exchange/ImportTest.h"

#include "Exchange/olDocumentContent.h"
#include "Exchange/olExportScene.h"
#include "Exchange/olFileNames.h"
#include "Exchange/olMeshTree.h"
#include "Exchange/olModelFormat.h"
#include "Model/olTriangles.h"
#include "State/olHostState.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopLoc_Location.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_LayerTool.hxx>
#include <XCAFDoc_MaterialTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <minizip/zip.h>

#include <QDir>
#include <QFile>

#include <unistd.h>

#include <utility>

namespace
{

using RoundTrip = ImportTest;

// Triangles without area, as they come about at the poles of a ball, are not kept.
constexpr double few = 60;
constexpr unsigned meshTriangles = 512;

// The curved surfaces stand off their exact place by no more than this, in millimetres.
constexpr double near = 0.2;

/// A small wedge of an inch in a container, in which the model goes by that name, and its item has more attributes.
void packWedge(const QString &file, const char *target, const char *more = "")
{
    const std::pair<const char *, QByteArray> parts[] = {
        {"[Content_Types].xml",
         R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
         R"(<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>)"
         R"(<Default Extension="model" ContentType="application/vnd.ms-package.3dmanufacturing-3dmodel+xml"/></Types>)"},
        {"_rels/.rels",
         QByteArray(R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
                    R"(<Relationship Id="r" Type="http://schemas.microsoft.com/3dmanufacturing/2013/01/3dmodel" )"
                    R"(Target=")") +
             target + R"("/></Relationships>)"},
        {"3D/3dmodel.model",
         QByteArray(
             R"(<model unit="inch" xmlns="http://schemas.microsoft.com/3dmanufacturing/core/2015/02" )"
             R"(xmlns:p="http://schemas.microsoft.com/3dmanufacturing/production/2015/06" )"
             R"(requiredextensions="p"><resources>)"
             R"(<object id="1" name="Wedge" type="model"><mesh><vertices><vertex x="0" y="0" z="0"/>)"
             R"(<vertex x="1" y="0" z="0"/><vertex x="0" y="1" z="0"/><vertex x="0" y="0" z="1"/></vertices><triangles>)"
             R"(<triangle v1="0" v2="2" v3="1"/><triangle v1="0" v2="1" v3="3"/><triangle v1="1" v2="2" v3="3"/>)"
             R"(<triangle v1="0" v2="3" v3="2"/></triangles></mesh></object></resources>)"
             R"(<build><item objectid="1" p:UUID="8c1d2c4e-0d9b-4b0c-9c43-2a1e0f4b7d11")") +
             more + "/></build></model>"}};
    const zipFile zip = zipOpen64(QFile::encodeName(file).constData(), APPEND_STATUS_CREATE);
    for (const auto &[name, content] : parts) {
        zipOpenNewFileInZip(zip, name, nullptr, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, Z_DEFAULT_COMPRESSION);
        zipWriteInFileInZip(zip, content.constData(), unsigned(content.size()));
        zipCloseFileInZip(zip);
    }
    ASSERT_EQ(zipClose(zip, nullptr), ZIP_OK);
}

/// Two triangles in one mesh, of which one is coloured corner by corner.
const char plyFile[] =
    "ply\nformat ascii 1.0\nelement vertex 4\nproperty float x\nproperty float y\nproperty float z\n"
    "property uchar red\nproperty uchar green\nproperty uchar blue\nelement face 2\n"
    "property list uchar int vertex_indices\nend_header\n0 0 0 255 0 0\n1 0 0 0 255 0\n1 1 0 0 0 255\n"
    "0 1 0 9 99 199\n3 0 1 2\n3 0 2 3\n";

const char daeFile[] =
    R"(<?xml version="1.0"?><COLLADA xmlns="http://www.collada.org/2005/11/COLLADASchema" version="1.4.1">)"
    R"(<asset><unit meter="0.001"/><up_axis>Z_UP</up_axis></asset><library_effects><effect id="e"><profile_COMMON>)"
    R"(<technique sid="t"><lambert><diffuse><color>0.2 0.4 0.6 1</color></diffuse></lambert></technique>)"
    R"(</profile_COMMON></effect></library_effects><library_materials><material id="m" name="blue">)"
    R"(<instance_effect url="#e"/></material></library_materials><library_geometries><geometry id="g" name="Flag">)"
    R"(<mesh><source id="p"><float_array id="a" count="9">0 0 0 1 0 0 0 1 0</float_array><technique_common>)"
    R"(<accessor source="#a" count="3" stride="3"><param name="X" type="float"/><param name="Y" type="float"/>)"
    R"(<param name="Z" type="float"/></accessor></technique_common></source><vertices id="v"><input )"
    R"(semantic="POSITION" source="#p"/></vertices><triangles count="1" material="s"><input semantic="VERTEX" )"
    R"(source="#v" offset="0"/><p>0 1 2</p></triangles></mesh></geometry></library_geometries>)"
    R"(<library_visual_scenes><visual_scene id="c"><node id="n" name="Mast"><node id="o" name="Left"><translate>)"
    R"(0 0 5</translate><instance_geometry url="#g"><bind_material><technique_common><instance_material symbol="s" )"
    R"(target="#m"/></technique_common></bind_material></instance_geometry></node><node id="q" name="Right">)"
    R"(<instance_geometry url="#g"><bind_material><technique_common><instance_material symbol="s" target="#m"/>)"
    R"(</technique_common></bind_material></instance_geometry></node></node></visual_scene></library_visual_scenes>)"
    R"(<scene><instance_visual_scene url="#c"/></scene></COLLADA>)";

const char wrlFile[] =
    "#VRML V2.0 utf8\n"
    "DEF Column Transform { translation 0 0 3 rotation 1 0 0 1.5 children [ DEF Post Shape { appearance Appearance { "
    "material Material { diffuseColor 0.3 0.2 0.1 transparency 0.5 } } geometry Cylinder {} } USE Post ] }\n"
    "DEF Sign Shape { appearance Appearance { material Material {} texture ImageTexture { url \"red.png\" } } geometry "
    "IndexedFaceSet { coord Coordinate { point [0 0 0, 1 0 0, 1 1 0] } texCoord TextureCoordinate { point [0 0, 1 0, "
    "1 1] } coordIndex [0 1 2 -1] } }\n"
    "DEF Rainbow Shape { geometry IndexedFaceSet { coord Coordinate { point [0 0 0, 1 0 0, 0 1 0] } color Color { "
    "color "
    "[1 0 0, 0 1 0, 0 0 1] } coordIndex [0 1 2 -1] } }\n";

const char objFile[] =
    "mtllib m.mtl\nv 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 0 1\nvt 0 0\nvt 1 0\nvt 1 1\ng Two words\nusemtl m\n"
    "f 1/1 2/2 3/3\ng Other\nusemtl clear\nf 1 2 4\ng Two words\nusemtl plain\nf 2 3 4\n"
    "usemtl clear\nf 1 3 4\n";

const char stlFile[] = "solid Upper part\nfacet normal 0 0 1\nouter loop\nvertex 0 0 1\nvertex 1 0 1\nvertex 0 1 1\n"
                       "endloop\nendfacet\nendsolid\nsolid lower\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\n"
                       "vertex 1 0 0\nvertex 0 1 0\nendloop\nendfacet\nendsolid\n";

/// What parts look like where they stand; corners with colours of their own tell that themselves.
QStringList coloursOf(const olScene::Document &document)
{
    QStringList colours;
    const olMeshTree tree(document);
    tree.eachPlaced([&](const olMeshTree::Node &node, const gp_Trsf &) {
        for (const olMeshTree::Piece &piece : tree.piecesOf(node.part)) {
            const Quantity_ColorRGBA base = piece.look.IsNull() ? Quantity_ColorRGBA() : piece.look->BaseColor();
            if (piece.colors.empty())
                colours << (piece.look.IsNull()
                                ? "none"
                                : QString::asprintf("%.2f %.2f %.2f %.2f", base.GetRGB().Red(), base.GetRGB().Green(),
                                                    base.GetRGB().Blue(), double(base.Alpha())));
        }
    });
    colours.sort();
    colours.removeDuplicates();
    return colours;
}

/// A part that stands twice in a group, made of steel, coloured in one place and hidden in the other; a line; and a
/// part without a name.
olScene::Document everythingOfSurfaces()
{
    const olScene::Document document = olScene::newDocument();
    const Handle(XCAFDoc_ShapeTool) shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    const Handle(XCAFDoc_ColorTool) colors = XCAFDoc_DocumentTool::ColorTool(document->Main());
    const TDF_Label part = shapes->AddShape(BRepPrimAPI_MakeBox(1, 2, 3).Shape(), Standard_False);
    TDataStd_Name::Set(part, "Block");
    XCAFDoc_DocumentTool::MaterialTool(document->Main())
        ->SetMaterial(part, new TCollection_HAsciiString("Steel"), new TCollection_HAsciiString("as cast"), 7850,
                      new TCollection_HAsciiString("density measure"),
                      new TCollection_HAsciiString("POSITIVE_RATIO_MEASURE"));
    colors->SetColor(part, Quantity_ColorRGBA(1, 0, 0, 1), XCAFDoc_ColorSurf);
    XCAFDoc_DocumentTool::LayerTool(document->Main())->SetLayer(part, TCollection_ExtendedString("Castings"));
    const TDF_Label group = shapes->NewShape();
    TDataStd_Name::Set(group, "Pair");
    gp_Trsf beside;
    beside.SetTranslation(gp_Vec(5, 0, 0));
    TDataStd_Name::Set(shapes->AddComponent(group, part, TopLoc_Location()), "Left");
    const TDF_Label right = shapes->AddComponent(group, part, TopLoc_Location(beside));
    TDataStd_Name::Set(right, "Right");
    colors->SetColor(right, Quantity_ColorRGBA(0, 1, 0, 0.5f), XCAFDoc_ColorSurf);
    const TDF_Label line =
        shapes->AddShape(BRepBuilderAPI_MakeEdge(gp_Pnt(0, 0, 9), gp_Pnt(9, 0, 9)).Shape(), Standard_False);
    TDataStd_Name::Set(line, "Line");
    colors->SetVisibility(line, Standard_False);
    const TDF_Label nameless = shapes->AddShape(BRepPrimAPI_MakeBox(gp_Pnt(0, 9, 0), 1, 1, 1).Shape(), Standard_False);
    nameless.ForgetAttribute(TDataStd_Name::GetID());
    shapes->UpdateAssemblies();
    for (const TDF_Label &label : {part, nameless})
        olTriangles::mesh(shapes->GetShape(label), {});
    return document;
}

/// What of a document is in a file of the format, in bits of the content.
unsigned keptOf(unsigned content, const olModelFormat &format)
{
    const bool isOfMeshes = format.holds(olModelFormat::Meshes);
    unsigned kept = content & format.content;
    if (isOfMeshes && (content & olModelFormat::Surfaces))
        kept |= olModelFormat::Meshes;
    return kept;
}

} // namespace

TEST_F(RoundTrip, WhatAFormatCanHoldComesBackAndTheRestIsSaid)
{
    redPicture(path("red.png"));
    written("m.mtl", "newmtl m\nmap_Kd red.png\nnewmtl clear\nKd 0 0 1\nd 0.5\nnewmtl plain\nKd "
                     "0.1 0.2 0.3\n");
    const QVector<QPair<QString, QByteArray>> files{
        {"p.ply", plyFile}, {"o.off", "OFF\n3 1 0\n0 0 0\n1 0 0\n0 1 0\n3 0 1 2\n"},
        {"d.dae", daeFile}, {"w.wrl", wrlFile},
        {"o.obj", objFile}, {"s.stl", stlFile},
    };
    QVector<QPair<QString, olScene::Document>> models{{"made", everythingOfSurfaces()}};
    for (const auto &[name, content] : files)
        models.append({name, imported(written(name, content))});
    const QString packed = path("3.3mf");
    for (const char *target : {"3D/3dmodel.model", "/3D/3dmodel.model"}) {
        packWedge(packed, target);
        const Outline wedge(imported(packed));
        EXPECT_NEAR(wedge.high[0], 25.4, 1e-3) << target;
        EXPECT_TRUE(wedge.names.contains("Wedge")) << target;
    }
    models.append({"3.3mf", imported(packed)});
    packWedge(packed, "3D/3dmodel.model", R"( p:path="/3D/other.model")");
    EXPECT_TRUE(olImport(olImportJob::of(packed)).document.error().contains("production/2015/06"));
    for (const char *name : {"s.step", "s.igs", "s.glb"}) {
        const QString file = path(name);
        ASSERT_EQ(olExportScene(models.first().second, file).error(), QString());
        models.append({QLatin1String(name), imported(file)});
    }

    for (const auto &[name, model] : models) {
        const unsigned content = olDocumentContent(model);
        const Outline before(model);
        for (const char *suffix : {"step", "igs", "stl", "wrl", "obj", "gltf", "glb"}) {
            const QString file = path(name + QString(" out.") + suffix);
            SCOPED_TRACE(file.toStdString());
            const olModelFormat &format = *olModelFormat::ofFile(file);
            const olResult<QStringList> result = olExportScene(model, file);
            if (!(keptOf(content, format) &
                  (olModelFormat::Meshes | olModelFormat::Surfaces | olModelFormat::Curves))) {
                EXPECT_TRUE(result.error().contains("nothing that this format can hold"));
                continue;
            }
            ASSERT_EQ(result.error(), QString());
            const QString remarks = result->join(QLatin1Char(' '));
            EXPECT_TRUE((content & ~format.content) == 0 || !remarks.isEmpty());
            olImportJob job = olImportJob::of(file);
            job.options.importInvisibleSurfaces = job.options.importInvisibleCurves = true;
            job.options.importInvisibleInstances = job.options.importCurves = true;
            const olImportResult back = olImport(job);
            ASSERT_TRUE(back.document.isOk()) << qPrintable(back.document.error());
            EXPECT_EQ(back.remarks.join(QString()).toStdString(), "");
            EXPECT_EQ(keptOf(content, format) & ~olDocumentContent(*back.document), 0u) << qPrintable(remarks);
            const Outline after(*back.document);
            // In VRML names differ from each other; a group may have the name of the file.
            for (const QString &each : after.names)
                EXPECT_TRUE(before.names.contains(each) || file.contains(each) || qstrcmp(suffix, "wrl") == 0)
                    << qPrintable(each);
            if (!format.holds(olModelFormat::Meshes))
                continue;
            EXPECT_NEAR(after.triangles, before.triangles, few);
            for (int axis = 0; axis < 3 && !(content & olModelFormat::Curves); ++axis) {
                EXPECT_NEAR(after.low[axis], before.low[axis], near);
                EXPECT_NEAR(after.high[axis], before.high[axis], near);
            }
            if (format.holds(olModelFormat::Colors)) {
                EXPECT_EQ(coloursOf(*back.document).join(QLatin1Char('\n')).toStdString(),
                          coloursOf(model).join(QLatin1Char('\n')).toStdString());
            }
        }
    }
}

TEST_F(RoundTrip, NamesColoursAndOpacityComeBack)
{
    const Outline sample(m_scene.document());
    const Outline gltf(imported(exported("s.glb")));
    EXPECT_EQ(gltf.names, sample.names);
    EXPECT_EQ(gltf.colours, sample.colours);

    QStringList colours = sample.colours;
    EXPECT_EQ(colours.removeAll("Scanned plate 0.35 0.55 0.30 1.00"), 1);
    const Outline step(imported(exported("s.step")));
    EXPECT_EQ(step.colours, colours);
    EXPECT_TRUE(step.names.contains("Ball 3"));
    EXPECT_EQ(step.triangles, sample.triangles - meshTriangles);

    // A part of the same name stands elsewhere, and stays one of its own.
    for (const char *suffix : {"obj", "stl"}) {
        const Outline flat(imported(exported(QString("s.") + suffix)));
        EXPECT_TRUE(flat.names.contains("Ball 3")) << suffix;
        EXPECT_EQ(flat.parts, gltf.leaves) << suffix;
    }

    const Outline vrml(imported(exported("s.wrl")));
    EXPECT_TRUE(vrml.colours.contains("Cover 0.55 0.85 0.95 0.35"));
    EXPECT_TRUE(vrml.names.contains("Ball_3"));
}

TEST_F(RoundTrip, NamesOfFilesKeepTheirBytesAndTexturesComeBackAlthoughTheFirstAreGone)
{
    olKeepFileNames();
    const QString folder = path(QFile::decodeName("M\xe4rz"));
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_EQ(access((QFile::encodeName(path(".")) + "/M\xe4rz").constData(), F_OK), 0);
    const QString picture = redPicture(folder + QFile::decodeName("/\xf6.png"));
    writtenFile(folder + QFile::decodeName("/\xf6.mtl"), "newmtl m\nmap_Kd \xf6.png\n");
    const olScene::Document document = imported(
        writtenFile(folder + QFile::decodeName("/\xf6 \xc3\xb6.obj"),
                    "mtllib \xf6.mtl\nusemtl m\nvt 0 0\nvt 1 0\nvt 1 1\nv 0 0 0\nv 1 0 0\nv 1 1 0\nf 1/1 2/2 3/3\n"));
    EXPECT_EQ(textures(document).size(), 1);
    const QStringList ofMeshes{"obj", "gltf", "glb", "wrl", "stl"};
    const QStringList ofSurfaces{"step", "igs"};
    const auto out = [&folder](const QString &suffix) { return folder + QFile::decodeName("/\xfc.") + suffix; };
    for (const QString &suffix : ofMeshes)
        EXPECT_EQ(olExportScene(document, out(suffix)).error(), QString());
    for (const QString &suffix : ofSurfaces)
        EXPECT_EQ(olExportScene(m_scene.document(), out(suffix)).error(), QString());
    QFile::remove(picture);
    for (const QString &suffix : ofMeshes + ofSurfaces) {
        SCOPED_TRACE(suffix.toStdString());
        EXPECT_EQ(access(QFile::encodeName(out(suffix)).constData(), F_OK), 0);
        const olImportResult result = olImport(olImportJob::of(out(suffix)));
        ASSERT_TRUE(result.document.isOk()) << qPrintable(result.document.error());
        const bool holdsTextures = suffix != "stl" && !ofSurfaces.contains(suffix);
        EXPECT_EQ(textures(*result.document).size(), int(holdsTextures)) << qPrintable(result.remarks.join(' '));
    }
}

TEST_F(RoundTrip, TheHostSaysWhetherStlIsTextOrBinary)
{
    EXPECT_TRUE(contentOf(exported("text.stl")).startsWith("solid"));
    olHostState::the().stlExportFormat = 1;
    const QByteArray binary = contentOf(exported("binary.stl"));
    EXPECT_EQ(binary.size(), 84 + 50 * int(m_scene.triangleCount()));
}
