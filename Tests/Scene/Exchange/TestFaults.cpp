#include "Scene/Exchange/ImportTest.h"

#include <TDocStd_Document.hxx>

#include <QFile>

#include <unistd.h>

namespace
{

using Fault = ImportTest;

/// A file that is none, or not whole, and what the one message says of it.
struct Broken {
    const char *name;
    QByteArray content;
    const char *reason;
};

QByteArray vrml(const char *body) { return QByteArray("#VRML V2.0 utf8\n") + body; }

QByteArray triangle(const char *indices)
{
    return vrml("Shape { geometry IndexedFaceSet { coord Coordinate { point [0 0 0, 1 0 0, 1 1 0] } coordIndex [") +
           indices + "] } }\n";
}

/// One triangle; what of it is announced wrongly is up to the row.
QByteArray gltf(const char *buffer, const char *points)
{
    return QByteArray(R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[{"mesh":0}],)"
                      R"("meshes":[{"primitives":[{"attributes":{"POSITION":0}}]}],"buffers":[{)") +
           buffer + R"(}],"bufferViews":[{"buffer":0,"byteLength":36}],"accessors":[{"bufferView":0,"count":)" +
           points + R"(,"componentType":5126,"type":"VEC3","min":[0,0,0],"max":[1,1,0]}]})";
}

QByteArray nodes(const char *all)
{
    return QByteArray(R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[)") + all + "]}";
}

QByteArray step(const QByteArray &instances)
{
    return "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('X'));\nENDSEC;\nDATA;\n" + instances +
           "\nENDSEC;\nEND-ISO-10303-21;\n";
}

QByteArray stl(const char *one, const char *two, const char *three)
{
    QByteArray text = "solid s\nfacet normal 0 0 1\nouter loop\n";
    for (const char *corner : {one, two, three})
        text += QByteArray("vertex ") + corner + '\n';
    return text + "endloop\nendfacet\nendsolid s\n";
}

/// Each group holds the one before twice.
QByteArray doubled(int times)
{
    QByteArray text = "DEF G0 Shape { geometry Box {} }\n";
    for (int index = 0; index < times; ++index) {
        const QByteArray before = 'G' + QByteArray::number(index);
        text = "DEF G" + QByteArray::number(index + 1) + " Group { children [ " + text + " USE " + before + " ] }\n";
    }
    return vrml(text.constData());
}

QByteArray doubledNodes(int times)
{
    QByteArray all;
    for (int index = 1; index <= times; ++index)
        all += R"({"children":[)" + QByteArray::number(index) + ',' + QByteArray::number(index) + "]},";
    return all + "{}";
}

const char points[] = "v 0 0 0\nv 1 0 0\nv 1 1 0\n";

const QVector<Broken> &brokenFiles()
{
    static const QVector<Broken> files{
        {"index.obj", QByteArray(points) + "f 1 2 4\n", "in line 4 a face refers to a point that is not there"},
        {"back.obj", QByteArray(points) + "f -1 -2 -4\n", "refers to a point"},
        {"corner.obj", QByteArray(points) + "f 1 2 3\nf 1 2", "in line 5 a face has fewer than three corners"},
        {"coordinate.obj", QByteArray(points) + "f 1 2 3\nv 0.5 1", "in line 5 a point lacks a coordinate"},
        {"end.obj", QByteArray(points) + "f 1 2 3\nv 0.5 1 2", "it ends within its points"},
        {"faceless.obj", points, "no geometry"},
        {"count.stl", QByteArray(80, ' ') + "\xff\xff\xff\xff" + QByteArray(50, '\0'), "cut off"},
        {"number.stl", "solid\nfacet normal 0 0 1\nouter loop\nvertex a b c\nendsolid\n", "Cannot read"},
        {"index.wrl", triangle("0,1,7,-1"), "refers to a point that is not there"},
        {"below.wrl", triangle("0,1,-9,-1"), "Cannot read"},
        {"open.wrl", vrml("Group { children [\n"), "damaged"},
        {"inline.wrl", vrml("Inline { url \"none.wrl\" }\n"), "no geometry"},
        {"old.wrl",
         "#VRML V1.0 ascii\nSeparator { Coordinate3 { point [0 0 0, 1 0 0, 1 1 0] } IndexedFaceSet { coordIndex [0, 1, "
         "7, -1] } }\n",
         "refers to a point that is not there"},
        {"itself.wrl", vrml("DEF A Group { children [ USE A ] }\n"), "Cannot read"},
        {"again.wrl", vrml("Inline { url \"again.wrl\" }\n"), "refers to itself through again.wrl"},
        {"doubled.wrl", doubled(30), "more than a million parts"},
        {"doubled.gltf", nodes(doubledNodes(30)), "more than a million parts"},
        {"nested.step", step("#1=SHAPE(" + QByteArray(100000, '(') + QByteArray(100000, ')') + ");"),
         "parentheses are nested too deeply"},
        {"line.igs", QByteArray(72, ' ') + "S      1\n" + "xyz" + QByteArray(69, ' ') + "D      1\n", "in line 2"},
        {"word.stl", stl("0 0 0", "1 0 0", "0 1.K5 0"), "damaged in line 6"},
        {"far.stl", stl("0 0 0", "1e21 0 0", "0 1 0"), "beyond all measure"},
        {"cycle.gltf", nodes(R"({"children":[1]},{"children":[0]})"), "nested too deeply"},
        {"required.gltf", R"({"asset":{"version":"2.0"},"extensionsRequired":["EXT_none"]})", "extension EXT_none"},
        {"part.gltf", gltf(R"("uri":"none.bin","byteLength":36)", "3"), "the file none.bin"},
        {"short.gltf", gltf(R"("uri":"part.gltf","byteLength":1e9)", "3"),
         "the file part.gltf that it refers to is cut"},
        {"count.gltf", gltf(R"("uri":"data:;base64,AAAA","byteLength":36)", "4000000000"), "announces more"},
        {"view.gltf", gltf(R"("uri":"data:;base64,AAAA","byteLength":3)", "3"), "beyond its end"},
        {"data.gltf", gltf(R"("uri":"data:application/octet-stream;base64,AAAA","byteLength":36)", "3"), "damaged"},
        {"bare.step", step({}), "Cannot read"},
        {"loop.step", step("#1=EDGE_LOOP('',( ));"), "#1 lacks what it is made of"},
        {"nowhere.step", step("#1=VERTEX_POINT('',$);"), "#1 lacks what it is made of"},
        {"open.step", step("#1=DIRECTION('',(1.,0.,0.);"), "cut off or damaged"},
        {"link.step", step("#1=SHAPE('#7',/* #6 */#9);"), "#1 refers to #9, which is not there"},
        {"bare.igs", QByteArray(72, ' ') + "S      1\n" + QByteArray(72, ' ') + "T      1\n", "Cannot read"},
    };
    return files;
}

} // namespace

TEST_F(Fault, OneMessageNamesTheFileAndTheReason)
{
    for (const Broken &broken : brokenFiles()) {
        SCOPED_TRACE(broken.name);
        const QString fault = faultOf(written(QLatin1String(broken.name), broken.content));
        EXPECT_TRUE(fault.contains(QLatin1String(broken.reason))) << qPrintable(fault);
        EXPECT_EQ(fault.count(QLatin1Char('\n')), 0);
    }
}

TEST_F(Fault, NoFormatIsReadFromEmptyForeignCutHugeOrLockedFiles)
{
    for (const char *suffix : {"step", "stp", "igs", "iges", "stl", "wrl", "vrml", "obj", "gltf", "glb"}) {
        SCOPED_TRACE(suffix);
        const QString end = QLatin1Char('.') + QLatin1String(suffix);
        EXPECT_TRUE(faultOf(path("none" + end)).contains("no such file"));
        EXPECT_TRUE(faultOf(written("empty" + end, {})).contains("empty"));
        EXPECT_FALSE(faultOf(written("noise" + end, QByteArray(5000, '\x7f'))).isEmpty());
        const QByteArray whole = contentOf(exported("whole" + end));
        EXPECT_FALSE(faultOf(written("cut" + end, whole.left(whole.size() * 2 / 3))).isEmpty());

        QFile file(path("whole" + end));
        file.setPermissions({});
        // Nothing is locked for the administrator.
        if (geteuid() != 0) {
            EXPECT_TRUE(faultOf(file.fileName()).contains("ermission"));
        }
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        // A file with a hole takes no place on the disk.
        if (file.resize(qint64(1) << 42)) {
            EXPECT_TRUE(faultOf(file.fileName()).contains("too large"));
        }
    }
}

TEST_F(Fault, FacesThatCannotBeUnderstoodAreCounted)
{
    // One lies in a surface of which nothing is known.
    QByteArray step = contentOf(exported("whole.step"));
    const int plane = step.indexOf("PLANE('',#");
    step.replace(plane, step.indexOf(')', plane) - plane, "SURFACE(''");
    const olImportResult result = olImport(olImportJob::of(written("face.step", step)));
    ASSERT_TRUE(result.document.isOk()) << qPrintable(result.document.error());
    EXPECT_TRUE(result.remarks.join(QString()).contains("Faces that cannot be understood and are left out: 1."))
        << qPrintable(result.remarks.join(QLatin1Char(' ')));
}

TEST_F(Fault, WhatRefersToNothingIsRefusedBeforeItIsTakenOver)
{
    const QByteArray step = contentOf(exported("whole.step"));
    const int face = step.indexOf("ADVANCED_FACE('',(");
    const int surface = step.indexOf("),#", face) + 2;
    const int afterSurface = step.indexOf(',', surface);
    QByteArray without = step;
    without.replace(surface, afterSurface - surface, "$");
    EXPECT_TRUE(faultOf(written("surface.step", without)).contains("lacks what it is"));

    // A curve on a surface, of a kind that nobody knows.
    const int item = step.indexOf('#', step.indexOf("DEFINITIONAL_REPRESENTATION('',("));
    const QByteArray name = step.mid(item, step.indexOf(')', item) - item) + " = ";
    QByteArray odd = step;
    odd[step.indexOf(name) + name.size()] = 'X';
    EXPECT_TRUE(faultOf(written("curve.step", odd)).contains("lacks what it is"));

    // An entry of the directory has two lines: pointers to parameters, view and matrix, and to a colour.
    const QByteArray iges = contentOf(exported("whole.igs"));
    const int entry = iges.indexOf("D0000001") - 72;
    const int line = iges.indexOf("D0000002") - 72 - entry;
    ASSERT_GT(entry, 0);
    for (const int pointer : {entry + 8, entry + 40, entry + 48, entry + line + 16}) {
        QByteArray dangling = iges;
        dangling.replace(pointer, 8, pointer > entry + line ? "  -99999" : "   99999");
        const QString fault = faultOf(written("pointer.igs", dangling));
        EXPECT_TRUE(fault.contains("D1 refers to another")) << pointer - entry << qPrintable(fault);
    }
}

TEST_F(Fault, AnyByteAndAnyLineMayBeWrong)
{
    for (const char *name : {"whole.step", "whole.igs"}) {
        const QByteArray whole = contentOf(exported(name));
        constexpr int variants = 8;
        for (int variant = 0; variant < variants; ++variant) {
            const int at = whole.size() / (variants + 1) * (variant + 1);
            QByteArray damaged = whole;
            if (variant % 2 == 0)
                damaged[at] = damaged.at(at) == '$' ? '1' : '$';
            else
                damaged.remove(at, damaged.indexOf('\n', at) + 1 - at);
            olImportJob job = olImportJob::of(written(QString("damaged-") + name, damaged));
            // What was changed may be a radius, too.
            job.options.chordDeviation = 10;
            job.options.normalTolerance = 60;
            job.patience = 20000;
            const olImportResult result = olImport(job);
            // What was changed may be a name or a colour.
            EXPECT_TRUE(result.document.isOk() || result.document.error().startsWith("Cannot read")) << at;
            EXPECT_EQ(result.document.error().count(QLatin1Char('\n')), 0) << qPrintable(result.document.error());
        }
    }
}

TEST_F(Fault, OtherSuffixesHaveNoReaderAndTheMessageSaysWhichHave)
{
    for (const char *suffix : {"mrb", "kbx", "osb", "opb", "jt", "CATPart", "3dm", "prt", "dgn", "plmxml"}) {
        const QString file = written(QString("m.") + suffix, "content");
        EXPECT_EQ(faultOf(file),
                  QStringLiteral("Cannot read %1: there is no reader for .%2 files. These can be read: "
                                 "step, stp, iges, igs, stl, wrl, vrml, obj, gltf, glb, ply, 3mf, dae, off.")
                      .arg(file, suffix));
    }
    EXPECT_TRUE(faultOf(written("none", "content")).contains("without a suffix"));
}
