#include "Exchange/Formats/olExportVrml.h"

#include "Model/olLibraryMessages.h"

#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelIndexedMap.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>
#include <gp_Quaternion.hxx>

#include <QFile>
#include <QSet>
#include <QStringList>
#include <QTextStream>

namespace
{

class Writer
{
public:
    Writer(const olScene::Document &document, QTextStream &out)
        : m_shapes(XCAFDoc_DocumentTool::ShapeTool(document->Main())),
          m_colors(XCAFDoc_DocumentTool::ColorTool(document->Main())),
          m_materials(XCAFDoc_DocumentTool::VisMaterialTool(document->Main())),
          m_out(out)
    {
        m_out.setCodec("UTF-8");
        m_out.setRealNumberPrecision(9);
    }

    void write()
    {
        m_out << "#VRML V2.0 utf8\n";
        TDF_LabelSequence labels;
        m_shapes->GetFreeShapes(labels);
        for (const TDF_Label &label : labels)
            writePlaced(label);
    }

private:
    /// A name that VRML takes, and that nothing else in the file has.
    QString uniqueName(const TDF_Label &label)
    {
        QString name = olNameOf(label);
        for (QChar &letter : name) {
            if (!letter.isLetterOrNumber() || letter.unicode() > 127)
                letter = QLatin1Char('_');
        }
        if (name.isEmpty() || name.at(0).isDigit())
            name.prepend(QLatin1Char('_'));
        QString unique = name;
        for (int number = 2; m_names.contains(unique); ++number)
            unique = name + QLatin1Char('_') + QString::number(number);
        m_names.insert(unique);
        return unique;
    }

    void writePlaced(const TDF_Label &label)
    {
        TDF_Label referred;
        if (!XCAFDoc_ShapeTool::GetReferredShape(label, referred))
            return writeShared(label);
        const gp_Trsf where = XCAFDoc_ShapeTool::GetLocation(label).Transformation();
        gp_Vec axis(0, 0, 1);
        double angle = 0;
        where.GetRotation().GetVectorAndAngle(axis, angle);
        const gp_XYZ &move = where.TranslationPart();
        // An instance that is called like its part needs no name of its own.
        if (olNameOf(label) != olNameOf(referred))
            m_out << "DEF " << uniqueName(label) << ' ';
        m_out << "Transform { translation " << move.X() << ' ' << move.Y() << ' ' << move.Z() << " rotation "
              << axis.X() << ' ' << axis.Y() << ' ' << axis.Z() << ' ' << angle << " children [\n";
        writeShared(referred);
        m_out << "] }\n";
    }

    void writeShared(const TDF_Label &label)
    {
        if (const int known = m_written.FindIndex(label)) {
            m_out << "USE " << m_writtenNames.at(known - 1) << '\n';
            return;
        }
        const QString name = uniqueName(label);
        if (XCAFDoc_ShapeTool::IsAssembly(label))
            writeGroup(label, name);
        else
            writePart(label, name);
        m_written.Add(label);
        m_writtenNames.append(name);
    }

    void writeGroup(const TDF_Label &label, const QString &name)
    {
        m_out << "DEF " << name << " Group { children [\n";
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(label, components);
        for (const TDF_Label &component : components)
            writePlaced(component);
        m_out << "] }\n";
    }

    void writePart(const TDF_Label &label, const QString &name)
    {
        // Faces of one colour make one shape; a part of one colour needs no group.
        QMap<QString, QVector<TopoDS_Face>> looks;
        const QString own = lookOf(label);
        for (TopExp_Explorer faces(XCAFDoc_ShapeTool::GetShape(label), TopAbs_FACE); faces.More(); faces.Next()) {
            TDF_Label piece;
            const bool hasOwn = m_shapes->FindSubShape(label, faces.Current(), piece);
            const QString look = hasOwn ? lookOf(piece) : QString();
            looks[look.isEmpty() ? own : look] << TopoDS::Face(faces.Current());
        }
        if (looks.size() == 1) {
            m_out << "DEF " << name << ' ';
            writeFaces(looks.firstKey(), looks.first());
            return;
        }
        m_out << "DEF " << name << " Group { children [\n";
        for (auto look = looks.cbegin(); look != looks.cend(); ++look)
            writeFaces(look.key(), look.value());
        m_out << "] }\n";
    }

    [[nodiscard]] QString lookOf(const TDF_Label &label) const
    {
        Quantity_ColorRGBA color;
        const Handle(XCAFDoc_VisMaterial) material = m_materials->GetShapeMaterial(label);
        if (!material.IsNull())
            color = material->BaseColor();
        else if (!m_colors->GetColor(label, XCAFDoc_ColorSurf, color) &&
                 !m_colors->GetColor(label, XCAFDoc_ColorGen, color))
            return {};
        double red = 0;
        double green = 0;
        double blue = 0;
        color.GetRGB().Values(red, green, blue, Quantity_TOC_sRGB);
        return QStringLiteral("diffuseColor %1 %2 %3 transparency %4")
            .arg(red)
            .arg(green)
            .arg(blue)
            .arg(1.0 - double(color.Alpha()));
    }

    void writeFaces(const QString &look, const QVector<TopoDS_Face> &faces)
    {
        m_out << "Shape { appearance Appearance { material Material { " << look
              << " } }\n geometry IndexedFaceSet { solid FALSE coord Coordinate { point [\n";
        TopLoc_Location location;
        for (const TopoDS_Face &face : faces) {
            const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, location);
            for (int node = 1; !mesh.IsNull() && node <= mesh->NbNodes(); ++node) {
                const gp_Pnt point = mesh->Node(node).Transformed(location.Transformation());
                m_out << point.X() << ' ' << point.Y() << ' ' << point.Z() << ",\n";
            }
        }
        m_out << "] } coordIndex [\n";
        int first = -1;
        for (const TopoDS_Face &face : faces) {
            const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, location);
            if (mesh.IsNull())
                continue;
            writeTriangles(*mesh, first, face.Orientation() == TopAbs_REVERSED);
            first += mesh->NbNodes();
        }
        m_out << "] } }\n";
    }

    void writeTriangles(const Poly_Triangulation &mesh, int first, bool isReversed)
    {
        for (int index = 1; index <= mesh.NbTriangles(); ++index) {
            int n[3];
            mesh.Triangle(index).Get(n[0], n[1], n[2]);
            if (isReversed)
                qSwap(n[1], n[2]);
            m_out << first + n[0] << ',' << first + n[1] << ',' << first + n[2] << ",-1,\n";
        }
    }

    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_ColorTool) m_colors;
    Handle(XCAFDoc_VisMaterialTool) m_materials;
    QTextStream &m_out;
    QSet<QString> m_names;
    TDF_LabelIndexedMap m_written;
    QStringList m_writtenNames;
};

} // namespace

bool olWriteVrml(const olScene::Document &document, const QString &name)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QTextStream out(&file);
    Writer(document, out).write();
    out.flush();
    return out.status() == QTextStream::Ok && file.flush();
}
