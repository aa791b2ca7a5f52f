#include "Exchange/Formats/olVrmlWriter.h"

#include "Exchange/Formats/olTextOutput.h"
#include "Exchange/olMeshTree.h"
#include "Exchange/olTextureFiles.h"
#include "Model/olPlainLook.h"

#include <Quantity_ColorRGBA.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <gp_Quaternion.hxx>
#include <gp_Vec.hxx>

#include <QCoreApplication>
#include <QFile>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <cstdint>

namespace
{

class Writer
{
public:
    Writer(const olScene::Document &document, const QString &file, QStringList &remarks)
        : m_tree(document), m_textures(file, remarks), m_out(file), m_remarks(remarks), m_partNames(m_tree.parts())
    {
    }

    bool write()
    {
        m_out << "#VRML V2.0 utf8\n";
        for (const olMeshTree::Node &node : m_tree.nodes())
            writeNode(node);
        if (m_changedNames > 0)
            m_remarks << QCoreApplication::translate("olExport",
                                                     "%1 names are written with other letters or a number, as names of "
                                                     "VRML have no blanks and stand for one thing.")
                             .arg(m_changedNames);
        if (m_split > 0)
            m_remarks << QCoreApplication::translate("olExport",
                                                     "%1 parts of several looks are groups of parts in the file.")
                             .arg(m_split);
        return m_out.finish();
    }

private:
    /// A name that VRML takes, and that nothing else in the file has.
    QString uniqueName(const QString &wanted)
    {
        // To refer to what has none; readers take it for none again.
        if (wanted.isEmpty())
            return QLatin1Char('_') + QString::number(++m_nameless);
        QString name = wanted;
        for (QChar &letter : name) {
            if (!letter.isLetterOrNumber() || letter.unicode() > 127)
                letter = QLatin1Char('_');
        }
        if (name.at(0).isDigit())
            name.prepend(QLatin1Char('n'));
        QString unique = name;
        for (int number = 2; m_names.contains(unique); ++number)
            unique = name + QLatin1Char('_') + QString::number(number);
        m_names.insert(unique);
        m_changedNames += int(unique != wanted);
        return unique;
    }

    void writeNode(const olMeshTree::Node &node)
    {
        gp_Vec axis(0, 0, 1);
        double angle = 0;
        node.where.GetRotation().GetVectorAndAngle(axis, angle);
        const gp_XYZ &move = node.where.TranslationPart();
        const QString partName = node.part < 0 ? QString() : m_tree.partName(node.part);
        // An instance that is called like its part needs no name of its own.
        if (!node.name.isEmpty() && node.name != partName)
            m_out << "DEF " << uniqueName(node.name) << " ";
        const bool isPlain = node.part < 0 && node.where.Form() == gp_Identity;
        if (isPlain)
            m_out << "Group { children [\n";
        else
            m_out << "Transform { translation " << move.X() << ' ' << move.Y() << ' ' << move.Z() << " rotation "
                  << axis.X() << ' ' << axis.Y() << ' ' << axis.Z() << ' ' << angle << " children [\n";
        if (node.part >= 0)
            writePart(node.part, partName);
        for (const olMeshTree::Node &below : node.below)
            writeNode(below);
        m_out << "] }\n";
    }

    void writePart(int part, const QString &wanted)
    {
        QString &name = m_partNames[part];
        if (!name.isEmpty()) {
            m_out << "USE " << name << "\n";
            return;
        }
        const std::vector<olMeshTree::Piece> pieces = m_tree.piecesOf(part);
        name = uniqueName(wanted);
        m_out << "DEF " << name << ' ';
        m_split += int(pieces.size() > 1);
        if (pieces.size() != 1)
            m_out << "Group { children [\n";
        for (const olMeshTree::Piece &piece : pieces)
            writePiece(piece);
        if (pieces.size() != 1)
            m_out << "] }\n";
    }

    void writeLook(const XCAFDoc_VisMaterial &look)
    {
        const auto color = [this](const char *field, const Quantity_Color &is) {
            double red = 0;
            double green = 0;
            double blue = 0;
            is.Values(red, green, blue, Quantity_TOC_sRGB);
            m_out << field << red << ' ' << green << ' ' << blue;
        };
        m_out << "appearance Appearance { material Material {";
        color(" diffuseColor ", look.BaseColor().GetRGB());
        m_out << " transparency " << 1.0f - look.BaseColor().Alpha();
        if (look.HasCommonMaterial()) {
            color(" specularColor ", look.CommonMaterial().SpecularColor);
            color(" emissiveColor ", look.CommonMaterial().EmissiveColor);
            m_out << " shininess " << look.CommonMaterial().Shininess;
        }
        m_out << " }";
        if (look.HasCommonMaterial()) {
            const QString texture = m_textures.placeOf(look.CommonMaterial().DiffuseTexture);
            if (!texture.isEmpty())
                m_out << " texture ImageTexture { url \"" << QFile::encodeName(texture) << "\" }";
        }
        m_out << " }\n";
    }

    template <class Values, class Write> void writeList(const char *start, const Values &values, const Write &write)
    {
        if (values.empty())
            return;
        m_out << start << " [\n";
        for (const auto &value : values) {
            write(value);
            m_out << ",\n";
        }
        m_out << "] }\n";
    }

    void writePiece(const olMeshTree::Piece &piece)
    {
        m_out << "Shape { ";
        if (!piece.look.IsNull())
            writeLook(*piece.look);
        m_out << "geometry IndexedFaceSet { solid FALSE ";
        writeList("coord Coordinate { point", piece.points,
                  [this](const gp_XYZ &point) { m_out << point.X() << ' ' << point.Y() << ' ' << point.Z(); });
        writeList("normal Normal { vector", piece.normals,
                  [this](const gp_Vec3f &normal) { m_out << normal.x() << ' ' << normal.y() << ' ' << normal.z(); });
        writeList("texCoord TextureCoordinate { point", piece.places,
                  [this](const gp_Vec2f &place) { m_out << place.x() << ' ' << place.y(); });
        writeList("color Color { color", piece.colors, [this](std::uint32_t color) {
            m_out << double(color & 0xff) / 255 << ' ' << double(color >> 8 & 0xff) / 255 << ' '
                  << double(color >> 16 & 0xff) / 255;
        });
        m_out << "coordIndex [\n";
        for (std::size_t corner = 0; corner < piece.corners.size(); ++corner)
            m_out << piece.corners[corner] << (corner % 3 == 2 ? ",-1,\n" : ",");
        m_out << "] } }\n";
    }

    olMeshTree m_tree;
    olTextureFiles m_textures;
    olTextOutput m_out;
    QStringList &m_remarks;
    QVector<QString> m_partNames;
    QSet<QString> m_names;
    int m_nameless = 0;
    int m_changedNames = 0;
    int m_split = 0;
};

} // namespace

bool olWriteVrml(const olScene::Document &document, const QString &file, QStringList &remarks)
{
    return Writer(document, file, remarks).write();
}
