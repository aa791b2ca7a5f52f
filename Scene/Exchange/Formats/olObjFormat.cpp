#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/Formats/olTextOutput.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olDocumentContent.h"
#include "Exchange/olMeshTree.h"
#include "Exchange/olModelFormat.h"
#include "Exchange/olTextureFiles.h"
#include "Model/olPlainLook.h"

#include <Message_ProgressRange.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <gp_Mat.hxx>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <utility>
#include <vector>

using namespace olFormatTools;

olModelFormat olObjFormat();

namespace
{

/// What the material of parts without a look is called.
const QLatin1String nameless("DefaultMaterial");

bool isNumber(const QByteArray &text)
{
    char *end = nullptr;
    std::strtod(text.constData(), &end);
    return !text.isEmpty() && *end == '\0';
}

/// Counts points as they come, and compares with the count what faces refer to.
class Lines
{
public:
    olResult<> take(const QByteArray &line)
    {
        const QList<QByteArray> words = line.simplified().split(' ');
        const QByteArray &kind = words.first();
        if (kind == "v")
            return count(m_points, words, 3);
        if (kind == "vt")
            return count(m_textures, words, 1);
        if (kind == "vn")
            return count(m_normals, words, 3);
        if (kind == "f")
            return face(words);
        if (kind == "g" || kind == "o")
            m_group = QString::fromUtf8(line.trimmed().mid(1).trimmed());
        if (kind == "curv" || kind == "curv2" || kind == "surf")
            m_freeForms << m_group;
        if (kind == "mtllib")
            m_libraries << QFile::decodeName(line.trimmed().mid(7).trimmed());
        if (kind == "usemtl")
            m_materials.insert(QString::fromUtf8(line.trimmed().mid(7).trimmed()));
        return {};
    }

    [[nodiscard]] const QStringList &libraries() const { return m_libraries; }
    [[nodiscard]] const QSet<QString> &materials() const { return m_materials; }

    /// The groups that the curves and surfaces stand in which are no polygons.
    [[nodiscard]] const QStringList &freeForms() const { return m_freeForms; }
    [[nodiscard]] bool endsWithPoints() const { return m_points > m_highest; }

private:
    static olResult<> count(qint64 &number, const QList<QByteArray> &words, int needed)
    {
        ++number;
        for (int index = 1; index <= needed; ++index) {
            if (index >= words.size() || !isNumber(words.at(index)))
                return olFailure{olReason::tr("a point lacks a coordinate")};
        }
        return {};
    }

    olResult<> face(const QList<QByteArray> &words)
    {
        if (words.size() < 4)
            return olFailure{olReason::tr("a face has fewer than three corners")};
        for (int index = 1; index < words.size(); ++index) {
            const QList<QByteArray> corner = words.at(index).split('/');
            if (!refers(corner, 0, m_points) || !refers(corner, 1, m_textures) || !refers(corner, 2, m_normals))
                return olFailure{olReason::tr("a face refers to a point that is not there")};
        }
        return {};
    }

    /// Negative indices count from the last one back.
    bool refers(const QList<QByteArray> &corner, int which, qint64 count)
    {
        const bool isLeftOut = which > 0 && (which >= corner.size() || corner.at(which).isEmpty());
        if (isLeftOut)
            return true;
        bool isIndex = false;
        const qint64 index = corner.at(which).toLongLong(&isIndex);
        const qint64 absolute = index < 0 ? count + index + 1 : index;
        if (which == 0)
            m_highest = qMax(m_highest, absolute);
        return isIndex && absolute >= 1 && absolute <= count;
    }

    qint64 m_points = 0;
    qint64 m_textures = 0;
    qint64 m_normals = 0;
    qint64 m_highest = 0;
    QStringList m_libraries;
    QSet<QString> m_materials;
    QString m_group;
    QStringList m_freeForms;
};

/// The materials of a file of them; one that cannot be opened has none.
QSet<QString> materialsOf(const QString &name)
{
    QSet<QString> materials;
    QFile file(name);
    const bool isFile = QFileInfo(name).isFile() && file.open(QIODevice::ReadOnly);
    while (isFile && !file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith("newmtl"))
            materials.insert(QString::fromUtf8(line.mid(6).trimmed()));
    }
    return materials;
}

/// What of the looks is not there: whole files, or materials that none of the files has.
void remarkMissingLooks(const Lines &lines, const QDir &folder, QStringList &remarks)
{
    QSet<QString> known{nameless};
    QString gone;
    for (const QString &library : lines.libraries()) {
        // One file with blanks in its name, or several files.
        const QStringList names = QStringList(library) + library.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        bool isThere = false;
        for (const QString &name : names) {
            const QString file = olFormatTools::fileIn(folder, name);
            isThere = isThere || QFileInfo(file).isFile();
            known += materialsOf(file);
        }
        if (!isThere && !library.isEmpty())
            gone = library;
    }
    if (!gone.isEmpty() && known.size() == 1) {
        remarks << olReason::tr("The materials file %1 is not there; the model has no colors.").arg(gone);
        return;
    }
    QStringList missing = (lines.materials() - known).values();
    missing.sort();
    if (!lines.libraries().isEmpty() && !missing.isEmpty())
        remarks << olReason::tr("Materials that the materials file lacks: %1.").arg(olFormatTools::listed(missing));
}

olResult<> check(QFile &file, QStringList &remarks)
{
    Lines lines;
    bool endsWithLine = true;
    for (qint64 number = 1; !file.atEnd(); ++number) {
        QByteArray line = file.readLine();
        endsWithLine = line.endsWith('\n');
        while (line.endsWith("\\\n") || line.endsWith("\\\r\n"))
            line = line.left(line.lastIndexOf('\\')) + ' ' + file.readLine();
        if (line.contains('\0'))
            return olFailure{olReason::tr("this is no OBJ file")};
        const olResult<> taken = lines.take(line);
        if (!taken.isOk())
            return olFailure{
                olReason::tr("the file is cut off or damaged: in line %1 %2").arg(number).arg(taken.error())};
    }
    if (!endsWithLine && lines.endsWithPoints())
        return olFailure{olReason::tr("the file is cut off or damaged: it ends within its points")};
    if (lines.endsWithPoints())
        remarks << olReason::tr("The model ends with points that no face uses; the file may be cut off.");
    if (!lines.freeForms().isEmpty())
        remarks << olReason::tr("Free-form curves and surfaces that are left out: %1.")
                       .arg(olFormatTools::listedWithNameless(lines.freeForms()));
    remarkMissingLooks(lines, QFileInfo(file).absoluteDir(), remarks);
    return {};
}

/// Names end with their line, and blanks around them do not count.
QString lineOf(const QString &name) { return name.simplified(); }

class Writer
{
public:
    Writer(const olScene::Document &document, const QString &file, QStringList &remarks)
        : m_tree(document),
          m_textures(file, remarks),
          m_file(file),
          m_out(file),
          m_isColored(olDocumentContent(document) & olModelFormat::CornerColors)
    {
    }

    bool write()
    {
        const QString materials = QFileInfo(m_file).completeBaseName() + QStringLiteral(".mtl");
        m_out << "mtllib " << QFile::encodeName(materials) << "\n";
        m_tree.eachPlaced([this](const olMeshTree::Node &node, const gp_Trsf &where) { writePart(node, where); });
        return m_out.finish() && writeMaterials(olFormatTools::fileIn(QFileInfo(m_file).dir(), materials));
    }

private:
    void writePart(const olMeshTree::Node &node, const gp_Trsf &where)
    {
        const std::vector<olMeshTree::Piece> pieces = m_tree.piecesOf(node.part);
        if (pieces.empty())
            return;
        const QString own = lineOf(node.name);
        const QString name = own.isEmpty() ? QStringLiteral("default") : own;
        // Two groups of one name would go on as one.
        if (name == m_group)
            m_out << "g " << (own.isEmpty() ? "-" : "default") << "\n";
        m_group = name;
        m_out << "g " << name << "\n";
        for (const olMeshTree::Piece &piece : pieces)
            writePiece(piece, where);
    }

    void writePiece(const olMeshTree::Piece &piece, const gp_Trsf &where)
    {
        for (std::size_t index = 0; index < piece.points.size(); ++index) {
            gp_XYZ point = piece.points[index];
            where.Transforms(point);
            m_out << "v " << point.X() << ' ' << point.Y() << ' ' << point.Z();
            // Corners have colours in the whole file or nowhere in it.
            const std::uint32_t color = piece.colors.empty() ? 0xffffffffu : piece.colors[index];
            for (int part = 0; m_isColored && part < 3; ++part)
                m_out << ' ' << double(color >> (8 * part) & 0xff) / 255.0;
            m_out << "\n";
        }
        for (const gp_Vec2f &place : piece.places)
            m_out << "vt " << place.x() << ' ' << place.y() << "\n";
        const gp_Mat turn = where.VectorialPart();
        for (const gp_Vec3f &normal : piece.normals) {
            const gp_XYZ now = turn * gp_XYZ(normal.x(), normal.y(), normal.z());
            m_out << "vn " << now.X() << ' ' << now.Y() << ' ' << now.Z() << "\n";
        }
        m_out << "usemtl " << materialOf(piece.look) << "\n";
        for (std::size_t corner = 0; corner < piece.corners.size(); ++corner) {
            const qint64 index = piece.corners[corner] + 1;
            m_out << (corner % 3 == 0 ? "f " : " ") << m_points + index << '/';
            if (!piece.places.empty())
                m_out << m_places + index;
            m_out << '/' << m_points + index << (corner % 3 == 2 ? "\n" : "");
        }
        m_points += qint64(piece.points.size());
        m_places += qint64(piece.places.size());
    }

    /// A name of its own for each.
    QString materialOf(const Handle(XCAFDoc_VisMaterial) & look)
    {
        const auto known = m_known.find(look.get());
        if (known != m_known.end())
            return known->second;
        // Readers take no look of their own from a name that no material has.
        if (look.IsNull())
            return nameless;
        const QString own = lineOf(m_tree.lookName(look)).replace(QLatin1Char(' '), QLatin1Char('_'));
        QString name = own.isEmpty() ? QStringLiteral("material") : own;
        const QString wanted = name;
        for (int number = 2; m_names.contains(name); ++number)
            name = wanted + QLatin1Char('_') + QString::number(number);
        m_names.insert(name);
        m_known.emplace(look.get(), name);
        m_materials.emplace_back(look, name);
        return name;
    }

    bool writeMaterials(const QString &file)
    {
        olTextOutput out(file);
        const auto color = [&out](const char *kind, const Quantity_Color &is) {
            double red = 0;
            double green = 0;
            double blue = 0;
            is.Values(red, green, blue, Quantity_TOC_sRGB);
            out << kind << ' ' << red << ' ' << green << ' ' << blue << "\n";
        };
        for (const auto &[look, name] : m_materials) {
            out << "newmtl " << name << "\n";
            color("Kd", look->BaseColor().GetRGB());
            out << "d " << look->BaseColor().Alpha() << "\n";
            if (!look->HasCommonMaterial())
                continue;
            const XCAFDoc_VisMaterialCommon &common = look->CommonMaterial();
            color("Ks", common.SpecularColor);
            color("Ke", common.EmissiveColor);
            out << "Ns " << common.Shininess * olPlainLook::shiniest << "\n";
            const QString texture = m_textures.placeOf(common.DiffuseTexture);
            if (!texture.isEmpty())
                out << "map_Kd " << QFile::encodeName(texture) << "\n";
        }
        return out.finish();
    }

    olMeshTree m_tree;
    olTextureFiles m_textures;
    QString m_file;
    olTextOutput m_out;
    bool m_isColored;
    QString m_group;
    qint64 m_points = 0;
    qint64 m_places = 0;
    std::vector<std::pair<Handle(XCAFDoc_VisMaterial), QString>> m_materials;
    std::map<const XCAFDoc_VisMaterial *, QString> m_known;
    QSet<QString> m_names;
};

bool write(const olScene::Document &document, const QString &file, QStringList &remarks)
{
    return Writer(document, file, remarks).write();
}

} // namespace

olModelFormat olObjFormat()
{
    return {"OBJ",
            "OBJ",
            {QStringLiteral("obj")},
            olModelFormat::Meshes | olModelFormat::Colors | olModelFormat::Opacity | olModelFormat::Textures |
                olModelFormat::CornerColors | olModelFormat::Names,
            check,
            olAssimpReader::read,
            write};
}
