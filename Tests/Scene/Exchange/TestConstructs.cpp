#include "Scene/Exchange/ImportTest.h"

#include "Model/olColoredMesh.h"

#include <BRep_Tool.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>

#include <algorithm>
#include <cmath>
#include <functional>

namespace
{

using Construct = ImportTest;

/// A sound file with one construct, and what of it must be seen.
struct Sound {
    const char *name;
    QByteArray content;
    unsigned triangles;
    double size;
    const char *remark = "";
};

QByteArray vrml(const char *body) { return QByteArray("#VRML V2.0 utf8\n") + body; }

QByteArray facet(double at)
{
    const QByteArray z = QByteArray::number(at);
    return "facet normal 0 0 1\nouter loop\nvertex 0 0 " + z + "\nvertex 1 0 " + z + "\nvertex 0 1 " + z +
           "\nendloop\nendfacet\n";
}

QByteArray binary(int behind)
{
    QByteArray bytes(84, ' ');
    const float corners[12] = {0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0};
    bytes.replace(80, 4, QByteArray("\1\0\0\0", 4));
    bytes += QByteArray(reinterpret_cast<const char *>(corners), sizeof(corners)) + QByteArray(2, '\0');
    return bytes + QByteArray(behind, 'x');
}

/// One triangle of a metre, below nodes.
QByteArray gltf(const char *nodes, const char *mode = "", const char *extra = "")
{
    return QByteArray(R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[)") + nodes +
           R"(],"meshes":[{"primitives":[{"attributes":{"POSITION":0})" + mode +
           R"(}]}],"buffers":[{"byteLength":48,)"
           R"("uri":"data:application/gltf-buffer;base64,AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAAAAAAAAgD8AAAAAAACAPwAAgD8A)"
           R"(AAAA"}],"bufferViews":[{"buffer":0,"byteLength":48}],"accessors":[{"bufferView":0,"count":)" +
           (*mode ? "4" : "3") + R"(,"componentType":5126,"type":"VEC3","min":[0,0,0],"max":[1,1,0]}])" + extra + "}";
}

const QVector<Sound> &soundFiles()
{
    static const QByteArray shape = "Shape { geometry Box { size 1 1 1 } }";
    static const QVector<Sound> files{
        {"two.stl", "solid a\n" + facet(0) + "endsolid a\nsolid b\n" + facet(1) + "endsolid b\n", 2, 1},
        {"upper.stl", ("solid a\n" + facet(0) + "endsolid a\n").toUpper(), 1, 1},
        {"mark.stl", "\xef\xbb\xbf\n\nsolid a\n" + facet(0) + "endsolid a\n", 1, 1},
        {"comment.stl", "# made\nsolid a # name\n# more\n" + facet(0) + "endsolid a\n# end\n", 1, 1},
        {"word.stl", "solid a\n" + facet(0).replace("1 0 0", "1 0 oops") + "endsolid a\n", 1, 1, "place of numbers"},
        {"behind.stl", binary(7), 1, 1, "7 bytes behind its end"},
        {"zero.obj", "mtllib m.mtl\nusemtl m\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 1// 2// 3//\n", 1, 1, "m.mtl"},
        {"line.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\nl 1 2\n", 1, 1, "lines or points"},
        {"old.wrl", "#VRML V1.0 ascii\nSeparator { Cube { width 1 height 1 depth 1 } }\n", 12, 1},
        {"switch.wrl",
         vrml("Switch { whichChoice 1 choice [ Shape { geometry Box { size 9 9 9 } } Shape { geometry Box "
              "{ size 1 1 1 } } ] }"),
         12, 1},
        {"lod.wrl", vrml("LOD { level [ Shape { geometry Box { size 1 1 1 } } Shape { geometry Box {} } ] }"), 12, 1},
        {"anchor.wrl", vrml("Anchor { url \"x\" children [ Billboard { children [ " + shape + " ] } ] }"), 12, 1},
        {"proto.wrl", vrml("PROTO P [ field SFVec3f s 1 1 1 ] { Shape { geometry Box { size IS s } } } P { s 1 1 1 }"),
         12, 1},
        {"route.wrl",
         vrml("WorldInfo { title \"t\" } DEF T Transform { children [ " + shape +
              " ] } DEF I PositionInterpolator { key [0 1] keyValue [0 0 0, 1 1 1] } DEF C TimeSensor {} "
              "ROUTE C.fraction_changed TO I.set_fraction ROUTE I.value_changed TO T.set_translation"),
         12, 1},
        {"scale.wrl", vrml("Transform { scale 2 -3 1 children [ " + shape + " ] }"), 12, 3},
        {"field.wrl",
         vrml("Group { children [ Viewpoint { centerOfRotation 0 -1 0 viewAll TRUE position 0 0 9 } " + shape +
              " ] other [ 1 2 \"]\" ] }"),
         12, 1, "No Viewpoint has the field centerOfRotation"},
        {"grid.wrl", vrml("Shape { geometry ElevationGrid { xDimension 2 zDimension 2 height [0 0 0 0] } }"), 2, 1},
        {"extrusion.wrl",
         vrml("Shape { geometry Extrusion { crossSection [0 0, 1 0, 1 1, 0 1, 0 0] spine [0 0 0, 0 1 "
              "0] } }"),
         12, 1},
        {"inline.wrl", vrml("Inline { url [ \"none.wrl\" \"scale.wrl\" ] } Inline { url \"none.wrl\" }"), 12, 3,
         "none.wrl"},
        {"extern.wrl",
         vrml("EXTERNPROTO P [ field SFVec3f s eventIn SFBool b ] [ \"none.wrl#P\" ] P { s 1 1 1 }") + shape, 12, 1,
         "none.wrl"},
        {"prototypes.wrl",
         vrml("PROTO A [] { Sound {} } PROTO P [ field SFVec3f s 1 1 1 ] { Shape { geometry Box { size IS s } } }"
              "P { s 1 1 1 }"),
         12, 1},
        {"outside.wrl", vrml("EXTERNPROTO Q [ field SFVec3f s ] [ \"none.wrl\" \"prototypes.wrl#P\" ] Q { s 1 3 1 }"),
         12, 3},
        {"film.wrl",
         vrml("Shape { appearance Appearance { texture MovieTexture { url \"a.mpg\" } } geometry Box { size 1 1 1 } }"),
         12, 1, "a.mpg"},
        {"wires.wrl",
         vrml(
             "DEF Axis Shape { geometry IndexedLineSet { coord Coordinate { point [0 0 0, 1 0 0] } coordIndex [0 1 -1] "
             "} } Shape { geometry PointSet { coord Coordinate { point [0 0 0] } } }") +
             shape,
         12, 1, "Axis, 1 without a name"},
        {"old inline.wrl", "#VRML V1.0 ascii\nSeparator { Cube { width 1 } WWWInline { name \"old.wrl\" } }\n", 12, 2,
         "old.wrl"},
        {"curve.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\ng Arc\ncstype bezier\ndeg 2\ncurv 0 1 1 2 3\nend\n", 1, 1,
         "Arc"},
        {"picture.gltf", gltf(R"({"mesh":0})", "", R"(,"extensionsUsed":["EXT_texture_webp"])"), 1, 1000,
         "EXT_texture_webp"},
        {"wire.gltf",
         gltf(R"({"mesh":0,"children":[1]},{"mesh":1})")
             .replace(R"("meshes":[)",
                      R"("meshes":[{"name":"Wire","primitives":[{"mode":1,"attributes":{"POSITION":0}}]},)"),
         1, 1000, "Wire"},
        {"scaled.gltf", gltf(R"({"scale":[2,2,2],"mesh":0})"), 1, 2000},
        {"nested.gltf", gltf(R"({"scale":[2,1,1],"children":[1]},{"rotation":[0,0,0.7071068,0.7071068],"mesh":0})"), 1,
         2000},
        {"strip.gltf", gltf(R"({"mesh":0})", R"(,"mode":5)"), 2, 1000},
        {"fan.gltf", gltf(R"({"mesh":0})", R"(,"mode":6)"), 2, 1000},
        {"plain.ply",
         "ply\nformat ascii 1.0\nelement vertex 3\nproperty float x\nproperty float y\nproperty float "
         "z\nelement face 1\nproperty list uchar int vertex_indices\nend_header\n0 0 0\n1 0 0\n0 1 0\n3 0 "
         "1 2\n",
         1, 1},
        {"plain.off", "OFF\n3 1 0\n0 0 0\n1 0 0\n0 1 0\n3 0 1 2\n", 1, 1},
    };
    return files;
}

double sizeOf(const Outline &outline)
{
    return std::max(
        {outline.high[0] - outline.low[0], outline.high[1] - outline.low[1], outline.high[2] - outline.low[2]});
}

using Visitor = std::function<void(const Handle(Poly_Triangulation) &)>;

void eachMesh(const olScene::Document &document, const Visitor &visit)
{
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(labels);
    for (const TDF_Label &label : labels) {
        for (TopExp_Explorer face(XCAFDoc_ShapeTool::GetShape(label), TopAbs_FACE); face.More(); face.Next()) {
            TopLoc_Location location;
            visit(BRep_Tool::Triangulation(TopoDS::Face(face.Current()), location));
        }
    }
}

/// Six times the volume that the triangles enclose, which is negative where they face inward.
double enclosed(const olScene::Document &document)
{
    double sum = 0;
    eachMesh(document, [&sum](const Handle(Poly_Triangulation) & mesh) {
        for (int index = 1; index <= mesh->NbTriangles(); ++index) {
            int n[3];
            mesh->Triangle(index).Get(n[0], n[1], n[2]);
            sum += mesh->Node(n[0]).XYZ().Dot(mesh->Node(n[1]).XYZ().Crossed(mesh->Node(n[2]).XYZ()));
        }
    });
    return sum;
}

/// A cube of which neighbouring faces share their corners.
const QByteArray cube = "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nv 0 0 1\nv 1 0 1\nv 1 1 1\nv 0 1 1\n"
                        "f 4 3 2 1\nf 5 6 7 8\nf 1 2 6 5\nf 2 3 7 6\nf 3 4 8 7\nf 4 1 5 8\n";

} // namespace

TEST_F(Construct, SoundFilesAreReadWholeAndWhatIsLeftOutIsSaid)
{
    for (const Sound &sound : soundFiles()) {
        SCOPED_TRACE(sound.name);
        const olImportResult result = olImport(olImportJob::of(written(QLatin1String(sound.name), sound.content)));
        ASSERT_TRUE(result.document.isOk()) << qPrintable(result.document.error());
        const Outline outline(*result.document);
        EXPECT_EQ(outline.triangles, sound.triangles);
        EXPECT_NEAR(sizeOf(outline), sound.size, 1e-3 * sound.size);
        const QString remarks = result.remarks.join(QLatin1Char(' '));
        EXPECT_TRUE(remarks.contains(QLatin1String(sound.remark))) << qPrintable(remarks);
        EXPECT_EQ(remarks.isEmpty(), *sound.remark == '\0') << qPrintable(remarks);
    }
}

TEST_F(Construct, MirroredPartsAreNotInsideOut)
{
    const char plain[] = "Shape { geometry Box {} }";
    for (const char *scale : {"1 1 1", "-1 1 1", "-1 -1 1", "-1 -1 -1"}) {
        const QByteArray content = vrml("Transform { scale ") + scale + " children [ " + plain + " ] }";
        EXPECT_NEAR(enclosed(imported(written("m.wrl", content))), 48, 1e-3) << scale;
    }
}

TEST_F(Construct, EdgesOfACubeAreSharpAndAFineRoundIsSmooth)
{
    eachMesh(imported(written("cube.obj", cube)), [](const Handle(Poly_Triangulation) & mesh) {
        EXPECT_EQ(mesh->NbNodes(), 24) << "each face has corners of its own";
        for (int node = 1; node <= mesh->NbNodes(); ++node) {
            const gp_Dir normal = mesh->Normal(node);
            EXPECT_NEAR(std::max({std::abs(normal.X()), std::abs(normal.Y()), std::abs(normal.Z())}), 1, 1e-6);
        }
    });
    QByteArray round;
    constexpr int sides = 24;
    for (int side = 0; side < sides; ++side) {
        const double angle = 2 * M_PI * side / sides;
        const QByteArray place = QByteArray::number(std::cos(angle)) + ' ' + QByteArray::number(std::sin(angle));
        round += "v " + place + " 0\nv " + place + " 1\n";
    }
    for (int side = 0; side < sides; ++side) {
        const int one = 2 * side + 1;
        const int two = 2 * ((side + 1) % sides) + 1;
        round += QStringLiteral("f %1 %2 %3 %4\n").arg(one).arg(two).arg(two + 1).arg(one + 1).toLatin1();
    }
    eachMesh(imported(written("round.obj", round)),
             [](const Handle(Poly_Triangulation) & mesh) { EXPECT_EQ(mesh->NbNodes(), 2 * sides); });
}

TEST_F(Construct, CornersKeepColoursOfTheirOwn)
{
    const QByteArray obj = "v 0 0 0 1 0 0\nv 1 0 0 0 1 0\nv 0 1 0 0 0 1\nf 1 2 3\n";
    const QByteArray wrl =
        vrml("Shape { geometry IndexedFaceSet { coord Coordinate { point [0 0 0, 1 0 0, 0 1 0] } color "
             "Color { color [1 0 0, 0 1 0, 0 0 1] } coordIndex [0 1 2 -1] } }");
    for (const QString &file : {written("c.obj", obj), written("c.wrl", wrl)}) {
        eachMesh(imported(file), [&file](const Handle(Poly_Triangulation) & mesh) {
            const Handle(olColoredMesh) colored = Handle(olColoredMesh)::DownCast(mesh);
            ASSERT_FALSE(colored.IsNull()) << qPrintable(file);
            std::vector<std::uint32_t> colors = colored->colors;
            std::sort(colors.begin(), colors.end());
            EXPECT_EQ(colors, (std::vector<std::uint32_t>{0xff0000ff, 0xff00ff00, 0xffff0000}));
        });
    }
}

TEST_F(Construct, TransparencyOfMaterialsComesWithItsKind)
{
    for (const char *mode : {"BLEND", "MASK"}) {
        QByteArray content = gltf(R"({"mesh":0})", "", ",\"materials\":[{\"alphaMode\":\"MODE\"}]");
        content.replace("MODE\"}", QByteArray(mode) + "\"}")
            .replace("\"POSITION\":0}", "\"POSITION\":0},\"material\":0");
        const olScene::Document document = imported(written("a.gltf", content));
        const Handle(XCAFDoc_VisMaterialTool) tool = XCAFDoc_DocumentTool::VisMaterialTool(document->Main());
        TDF_LabelSequence looks;
        tool->GetMaterials(looks);
        ASSERT_EQ(looks.Length(), 1);
        EXPECT_EQ(tool->GetMaterial(looks.First())->AlphaMode(),
                  qstrcmp(mode, "MASK") == 0 ? Graphic3d_AlphaMode_Mask : Graphic3d_AlphaMode_Blend);
    }
}

TEST_F(Construct, SignaturesBehindAStepFileArePassedOver)
{
    const QByteArray whole = contentOf(exported("s.step"));
    const QString signedFile = written("signed.step", whole + "SIGNATURE;\nMIIGRQYJKoZI#12(\nENDSEC;\n");
    EXPECT_EQ(Outline(imported(signedFile)).triangles, Outline(imported(path("s.step"))).triangles);
}
