#include "Exchange/Formats/olExportIges.h"

#include "Exchange/olImportReaders.h"
#include "Model/olLibraryMessages.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <IGESCAFControl_Writer.hxx>
#include <IGESControl_Controller.hxx>
#include <Interface_Static.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFPrs_DocumentExplorer.hxx>
#include <XCAFPrs_Style.hxx>

#include <QCoreApplication>
#include <QFile>

namespace
{

constexpr float barelyTransparent = 0.999f;

/// Takes the instances of a document apart.
class Bodies
{
public:
    Bodies(const olScene::Document &document, QStringList &remarks)
        : m_from(document),
          m_to(olScene::newDocument()),
          m_fromColors(XCAFDoc_DocumentTool::ColorTool(document->Main())),
          m_shapes(XCAFDoc_DocumentTool::ShapeTool(m_to->Main())),
          m_colors(XCAFDoc_DocumentTool::ColorTool(m_to->Main())),
          m_remarks(remarks)
    {
    }

    [[nodiscard]] olScene::Document take()
    {
        for (XCAFPrs_DocumentExplorer node(m_from, XCAFPrs_DocumentExplorerFlags_OnlyLeafNodes); node.More();
             node.Next())
            add(node.Current());
        return m_to;
    }

private:
    void add(const XCAFPrs_DocumentNode &node)
    {
        const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(node.RefLabel);
        // A copy of its own for each instance: the writer finds colours by shape, and knows one colour of each.
        const TopoDS_Shape body =
            BRepBuilderAPI_Transform(shape, node.Location.Transformation(), Standard_True).Shape();
        const TDF_Label label = m_shapes->AddShape(body, Standard_False);
        name(label, node);
        color(label, node.Style);

        TopTools_IndexedMapOfShape before;
        TopTools_IndexedMapOfShape after;
        TopExp::MapShapes(shape, before);
        TopExp::MapShapes(body, after);
        TDF_LabelSequence pieces;
        XCAFDoc_ShapeTool::GetSubShapes(node.RefLabel, pieces);
        for (const TDF_Label &piece : pieces) {
            const int index = before.FindIndex(XCAFDoc_ShapeTool::GetShape(piece));
            if (index > 0 && index <= after.Extent())
                colorPiece(piece, m_shapes->AddSubShape(label, after(index)));
        }
    }

    /// The name of the instance, else that of its part.
    static void name(const TDF_Label &label, const XCAFPrs_DocumentNode &node)
    {
        Handle(TDataStd_Name) name;
        if (node.Label.FindAttribute(TDataStd_Name::GetID(), name) ||
            node.RefLabel.FindAttribute(TDataStd_Name::GetID(), name))
            TDataStd_Name::Set(label, name->Get());
    }

    void color(const TDF_Label &label, const XCAFPrs_Style &style)
    {
        if (!style.Material().IsNull())
            set(label, style.Material()->BaseColor(), XCAFDoc_ColorSurf);
        else if (style.IsSetColorSurf())
            set(label, style.GetColorSurfRGBA(), XCAFDoc_ColorSurf);
        if (style.IsSetColorCurv())
            m_colors->SetColor(label, style.GetColorCurv(), XCAFDoc_ColorCurv);
    }

    void colorPiece(const TDF_Label &from, const TDF_Label &to)
    {
        for (const XCAFDoc_ColorType kind : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf, XCAFDoc_ColorCurv}) {
            Quantity_ColorRGBA color;
            if (!to.IsNull() && m_fromColors->GetColor(from, kind, color))
                set(to, color, kind);
        }
    }

    void set(const TDF_Label &label, const Quantity_ColorRGBA &color, XCAFDoc_ColorType kind)
    {
        m_colors->SetColor(label, color.GetRGB(), kind);
        if (color.Alpha() < barelyTransparent)
            m_remarks << QCoreApplication::translate("olExport", "%1 is opaque in the file; IGES knows no opacity.")
                             .arg(olNameOf(label));
    }

    olScene::Document m_from;
    olScene::Document m_to;
    Handle(XCAFDoc_ColorTool) m_fromColors;
    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_ColorTool) m_colors;
    QStringList &m_remarks;
};

} // namespace

bool olWriteIges(const olScene::Document &document, const QString &file, QStringList &remarks)
{
    const olScene::Document bodies = Bodies(document, remarks).take();
    const olExchangeLock lock;
    IGESControl_Controller::Init();
    Interface_Static::SetCVal("xstep.cascade.unit", "MM");
    // Solids stay solids; else they become loose faces, more of which lose their colour.
    Interface_Static::SetCVal("write.iges.brep.mode", "BRep");
    IGESCAFControl_Writer writer;
    return writer.Transfer(bodies) && writer.Write(QFile::encodeName(file).constData());
}
