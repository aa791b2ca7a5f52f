#include "Scene/Exchange/ImportTest.h"

#include "Exchange/olExportScene.h"
#include "Model/olLibraryMessages.h"
#include "Model/olTriangles.h"
#include "State/olHostState.h"

#include <BRepBndLib.hxx>
#include <Bnd_Box.hxx>
#include <Image_Texture.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <TopLoc_Location.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>
#include <XCAFPrs_DocumentExplorer.hxx>

#include <QImage>

namespace
{

QString colourText(const olScene::Document &document, const TDF_Label &label)
{
    Quantity_ColorRGBA color;
    const Handle(XCAFDoc_ColorTool) colors = XCAFDoc_DocumentTool::ColorTool(document->Main());
    const Handle(XCAFDoc_VisMaterialTool) materials = XCAFDoc_DocumentTool::VisMaterialTool(document->Main());
    const Handle(XCAFDoc_VisMaterial) material = materials->GetShapeMaterial(label);
    if (!material.IsNull())
        color = material->BaseColor();
    else if (!colors->GetColor(label, XCAFDoc_ColorSurf, color) && !colors->GetColor(label, XCAFDoc_ColorGen, color))
        return {};
    return QString::asprintf(" %.2f %.2f %.2f %.2f", color.GetRGB().Red(), color.GetRGB().Green(),
                             color.GetRGB().Blue(), double(color.Alpha()));
}

} // namespace

Outline::Outline(const olScene::Document &document) : triangles(olTriangles::count(document))
{
    const Handle(XCAFDoc_ShapeTool) shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    TDF_LabelSequence labels;
    shapes->GetShapes(labels);
    for (const TDF_Label &label : labels) {
        names << olNameOf(label);
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(label, components);
        for (const TDF_Label &component : components)
            names << olNameOf(component);
        if (!XCAFDoc_ShapeTool::IsSimpleShape(label))
            continue;
        ++parts;
        TDF_LabelSequence pieces;
        XCAFDoc_ShapeTool::GetSubShapes(label, pieces);
        pieces.Prepend(label);
        for (const TDF_Label &piece : pieces) {
            const QString colour = colourText(document, piece);
            if (!colour.isEmpty())
                colours << olNameOf(label) + colour;
        }
    }
    names.sort();
    names.removeDuplicates();
    colours.sort();
    colours.removeDuplicates();

    for (XCAFPrs_DocumentExplorer leaf(document, XCAFPrs_DocumentExplorerFlags_OnlyLeafNodes); leaf.More(); leaf.Next())
        ++leaves;

    Bnd_Box box;
    labels.Clear();
    shapes->GetFreeShapes(labels);
    for (const TDF_Label &label : labels)
        BRepBndLib::Add(XCAFDoc_ShapeTool::GetShape(label), box);
    if (!box.IsVoid())
        box.Get(low[0], low[1], low[2], high[0], high[1], high[2]);
}

ImportTest::ImportTest()
{
    olHostState::the().reset();
    m_scene.loadSample();
}

QString ImportTest::exported(const QString &name)
{
    const QString file = path(name);
    EXPECT_EQ(olExportScene(m_scene.document(), file).error().toStdString(), "");
    return file;
}

olScene::Document ImportTest::imported(const olImportJob &job)
{
    const olImportResult result = olImport(job);
    EXPECT_EQ(result.document.error().toStdString(), "");
    return result.document.isOk() ? *result.document : olScene::newDocument();
}

QStringList ImportTest::textures(const olScene::Document &document)
{
    QStringList names;
    const Handle(XCAFDoc_VisMaterialTool) tool = XCAFDoc_DocumentTool::VisMaterialTool(document->Main());
    TDF_LabelSequence labels;
    tool->GetMaterials(labels);
    for (const TDF_Label &label : labels) {
        const Handle(XCAFDoc_VisMaterial) material = tool->GetMaterial(label);
        Handle(Image_Texture) texture = material->CommonMaterial().DiffuseTexture;
        if (texture.IsNull())
            texture = material->PbrMaterial().BaseColorTexture;
        if (!texture.IsNull())
            names << QString::fromUtf8(texture->FilePath().ToCString());
    }
    return names;
}

QString ImportTest::redPicture(const QString &file)
{
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    EXPECT_TRUE(picture.save(file));
    return file;
}

QString ImportTest::faultOf(const QString &file)
{
    const olImportResult result = olImport(olImportJob::of(file));
    EXPECT_FALSE(result.document.isOk());
    EXPECT_TRUE(result.document.error().contains(file)) << qPrintable(result.document.error());
    return result.document.error();
}
