#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olMeshTree.h"
#include "Exchange/olModelFormat.h"
#include "Exchange/olTextureFiles.h"

#include <Image_Texture.hxx>
#include <Message_ProgressRange.hxx>
#include <Quantity_Color.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <gp_Mat.hxx>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPair>
#include <QVector>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <utility>
#include <vector>

using namespace olFormatTools;

olModelFormat olGltfFormat();

namespace
{

constexpr double meter = 0.001;

constexpr int binaryHead = 12;
constexpr int chunkHead = 8;

quint32 number(const QByteArray &bytes, int at) { return qFromLittleEndian<quint32>(bytes.constData() + at); }

/// Bytes of one element; 0 for what nobody knows.
double elementSize(const QJsonObject &accessor)
{
    static const QHash<int, int> components{{5120, 1}, {5121, 1}, {5122, 2}, {5123, 2}, {5125, 4}, {5126, 4}};
    static const QHash<QString, int> types{{QStringLiteral("SCALAR"), 1}, {QStringLiteral("VEC2"), 2},
                                           {QStringLiteral("VEC3"), 3},   {QStringLiteral("VEC4"), 4},
                                           {QStringLiteral("MAT2"), 4},   {QStringLiteral("MAT3"), 9},
                                           {QStringLiteral("MAT4"), 16}};
    return components.value(accessor.value(QLatin1String("componentType")).toInt()) *
           types.value(accessor.value(QLatin1String("type")).toString());
}

/// Numbers of a file can be larger than any integer, so they are compared as they stand.
double value(const QJsonObject &object, const char *key) { return object.value(QLatin1String(key)).toDouble(); }

olResult<> checkBuffer(const QJsonObject &buffer, const QDir &folder)
{
    const QString uri = buffer.value(QLatin1String("uri")).toString();
    if (uri.isEmpty() || uri.startsWith(QLatin1String("data:")))
        return {};
    const QString name = QFile::decodeName(QByteArray::fromPercentEncoding(uri.toUtf8()));
    const QFileInfo info(olFormatTools::fileIn(folder, name));
    if (!info.isFile() || !info.isReadable())
        return olFailure{olReason::tr("the file %1 that it refers to cannot be read").arg(name)};
    if (double(info.size()) < value(buffer, "byteLength"))
        return olFailure{olReason::tr("the file %1 that it refers to is cut off").arg(name)};
    return {};
}

/// Extensions whose content is read, or only says of looks what can be done without.
bool isKnown(const QString &extension)
{
    static const QStringList known{QStringLiteral("KHR_draco_mesh_compression"), QStringLiteral("KHR_lights_punctual"),
                                   QStringLiteral("KHR_node_visibility"), QStringLiteral("KHR_texture_transform"),
                                   QStringLiteral("KHR_xmp_json_ld")};
    static const QStringList looks{QStringLiteral("clearcoat"),    QStringLiteral("emissive_strength"),
                                   QStringLiteral("ior"),          QStringLiteral("pbrSpecularGlossiness"),
                                   QStringLiteral("sheen"),        QStringLiteral("specular"),
                                   QStringLiteral("transmission"), QStringLiteral("unlit"),
                                   QStringLiteral("variants"),     QStringLiteral("volume")};
    const QString start = QStringLiteral("KHR_materials_");
    return known.contains(extension) || (extension.startsWith(start) && looks.contains(extension.mid(start.size())));
}

/// What a file requires of its reader would be read, but wrongly; without the rest it is as it can be.
olResult<> checkExtensions(const QJsonObject &model, QStringList &remarks)
{
    const QJsonArray required = model.value(QLatin1String("extensionsRequired")).toArray();
    for (const QJsonValue &each : required) {
        if (!isKnown(each.toString()))
            return olFailure{olReason::tr("it requires the extension %1, which is not supported").arg(each.toString())};
    }
    QStringList unknown;
    const QJsonArray used = model.value(QLatin1String("extensionsUsed")).toArray();
    for (const QJsonValue &each : used) {
        if (!isKnown(each.toString()))
            unknown << each.toString();
    }
    if (!unknown.isEmpty())
        remarks << olReason::tr("Extensions that are not supported, so that something may be missing: %1.")
                       .arg(olFormatTools::listed(unknown));
    return {};
}

/// Nodes below nodes, which must come to an end; one may stand in several places, with all that is below it.
class Nodes
{
public:
    explicit Nodes(const QJsonArray &nodes) : m_below(std::size_t(nodes.size()))
    {
        for (const QJsonValue &node : nodes)
            m_children.push_back(node.toObject().value(QLatin1String("children")).toArray());
    }

    olResult<> check()
    {
        constexpr double most = 1e6;
        for (std::size_t node = 0; node < m_below.size(); ++node) {
            const olResult<> measured = measure(node, 1);
            if (!measured.isOk())
                return measured;
            if (m_below[node].count > most)
                return olFailure{olReason::tr("it has more than a million parts")};
        }
        return {};
    }

private:
    struct Below {
        int levels = 0;
        double count = 1;
    };

    olResult<> measure(std::size_t node, int depth)
    {
        constexpr int deepest = 200;
        if (depth + m_below[node].levels > deepest)
            return olFailure{olReason::tr("its groups are nested too deeply")};
        if (m_below[node].levels > 0)
            return {};
        Below sum;
        for (const QJsonValue &each : m_children[node]) {
            const auto child = std::size_t(each.toInt(-1));
            if (child >= m_below.size())
                return olFailure{olReason::tr("the file is damaged: a node refers to one that is not there")};
            const olResult<> measured = measure(child, depth + 1);
            if (!measured.isOk())
                return measured;
            sum.levels = std::max(sum.levels, m_below[child].levels);
            sum.count += m_below[child].count;
        }
        m_below[node] = {sum.levels + 1, sum.count};
        return {};
    }

    std::vector<QJsonArray> m_children;
    std::vector<Below> m_below;
};

olResult<> checkContent(const QJsonObject &model, const QDir &folder, QStringList &remarks)
{
    for (const olResult<> &checked :
         {checkExtensions(model, remarks), Nodes(model.value(QLatin1String("nodes")).toArray()).check()}) {
        if (!checked.isOk())
            return checked;
    }
    const QJsonArray buffers = model.value(QLatin1String("buffers")).toArray();
    const QJsonArray views = model.value(QLatin1String("bufferViews")).toArray();
    for (const QJsonValue &buffer : buffers) {
        const olResult<> checked = checkBuffer(buffer.toObject(), folder);
        if (!checked.isOk())
            return checked;
    }
    for (const QJsonValue &each : views) {
        const QJsonObject view = each.toObject();
        const QJsonObject buffer = buffers.at(int(value(view, "buffer"))).toObject();
        if (value(view, "byteOffset") + value(view, "byteLength") > value(buffer, "byteLength"))
            return olFailure{olReason::tr("the file is damaged: a part of it lies beyond its end")};
    }
    const QJsonArray accessors = model.value(QLatin1String("accessors")).toArray();
    for (const QJsonValue &each : accessors) {
        const QJsonObject accessor = each.toObject();
        if (!accessor.contains(QLatin1String("bufferView")))
            continue;
        const QJsonObject view = views.at(accessor.value(QLatin1String("bufferView")).toInt(-1)).toObject();
        const double needed = value(accessor, "byteOffset") + value(accessor, "count") * elementSize(accessor);
        if (needed > value(view, "byteLength"))
            return olFailure{olReason::tr("the file is damaged: it announces more than it holds")};
    }
    return {};
}

olResult<> checkModel(const QByteArray &text, const QString &file, QStringList &remarks)
{
    QJsonParseError error{};
    const QJsonDocument model = QJsonDocument::fromJson(text, &error);
    if (error.error == QJsonParseError::NoError)
        return checkContent(model.object(), QFileInfo(file).absoluteDir(), remarks);
    // The parser has a limit of its own, which the reader does not share.
    return error.error == QJsonParseError::DocumentTooLarge ? olResult<>() : olFormatTools::cutOff();
}

olResult<> check(QFile &file, QStringList &remarks)
{
    const QByteArray head = file.read(binaryHead + chunkHead);
    if (!head.startsWith("glTF")) {
        file.seek(0);
        return head.trimmed().startsWith('{') ? checkModel(file.readAll(), file.fileName(), remarks)
                                              : olFailure{olReason::tr("this is no glTF file")};
    }
    if (head.size() < binaryHead + chunkHead || file.size() < number(head, 8) ||
        file.size() < qint64(binaryHead + chunkHead) + number(head, binaryHead))
        return olFormatTools::cutOff();
    return checkModel(file.read(number(head, binaryHead)), file.fileName(), remarks);
}

olResult<> read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
                QStringList &remarks)
{
    olAssimpReader::Conventions conventions;
    conventions.unit = 1000;
    conventions.isYUp = true;
    conventions.isLinear = true;
    conventions.hasOwnRoot = true;
    return olAssimpReader::read(job, conventions, document, progress, remarks);
}

QJsonArray arrayOf(std::initializer_list<double> values)
{
    QJsonArray array;
    for (const double value : values)
        array.append(value);
    return array;
}

/// In metres, with y up.
gp_XYZ turned(const gp_XYZ &point) { return gp_XYZ(point.X(), point.Z(), -point.Y()); }

class Writer
{
public:
    Writer(const olScene::Document &document, const QString &file, QStringList &remarks)
        : m_tree(document), m_textures(file, remarks), m_file(file), m_isBinary(isBinary(file))
    {
    }

    bool write()
    {
        for (int part = 0; part < m_tree.parts(); ++part)
            addMesh(part);
        QJsonArray top;
        for (const olMeshTree::Node &node : m_tree.nodes())
            top.append(addNode(node));
        QJsonObject model{{QStringLiteral("asset"), QJsonObject{{QStringLiteral("version"), QStringLiteral("2.0")},
                                                                {QStringLiteral("generator"), QStringLiteral("ORLO")}}},
                          {QStringLiteral("scene"), 0},
                          {QStringLiteral("scenes"), QJsonArray{QJsonObject{{QStringLiteral("nodes"), top}}}}};
        const QString bytesName = QFileInfo(m_file).completeBaseName() + QStringLiteral(".bin");
        QJsonObject buffer{{QStringLiteral("byteLength"), m_bytes.size()}};
        if (!m_isBinary)
            buffer.insert(QStringLiteral("uri"), QString::fromLatin1(QFile::encodeName(bytesName).toPercentEncoding()));
        const QVector<QPair<QString, QJsonArray>> lists{
            {QStringLiteral("nodes"), m_nodes},         {QStringLiteral("meshes"), m_meshes},
            {QStringLiteral("materials"), m_materials}, {QStringLiteral("textures"), m_textureNumbers},
            {QStringLiteral("images"), m_images},       {QStringLiteral("accessors"), m_accessors},
            {QStringLiteral("bufferViews"), m_views},   {QStringLiteral("buffers"), QJsonArray{buffer}}};
        for (const auto &[name, list] : lists) {
            if (!list.isEmpty())
                model.insert(name, list);
        }
        const QByteArray text = QJsonDocument(model).toJson(QJsonDocument::Compact);
        if (m_isBinary)
            return writeFile(m_file, packed(text));
        return writeFile(m_file, text) && writeFile(olFormatTools::fileIn(QFileInfo(m_file).dir(), bytesName), m_bytes);
    }

private:
    static bool isBinary(const QString &file)
    {
        return QFileInfo(file).suffix().compare(QLatin1String("glb"), Qt::CaseInsensitive) == 0;
    }

    static bool writeFile(const QString &name, const QByteArray &content)
    {
        QFile file(name);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
    }

    [[nodiscard]] QByteArray packed(QByteArray text) const
    {
        text.append((4 - text.size() % 4) % 4, ' ');
        QByteArray file("glTF");
        const auto put = [&file](quint32 value) {
            char bytes[4];
            qToLittleEndian(value, bytes);
            file.append(bytes, 4);
        };
        put(2);
        put(quint32(binaryHead + chunkHead + text.size() + chunkHead + m_bytes.size()));
        put(quint32(text.size()));
        file += "JSON" + text;
        put(quint32(m_bytes.size()));
        return file + QByteArray("BIN\0", 4) + m_bytes;
    }

    int addNode(const olMeshTree::Node &from)
    {
        QJsonObject node;
        if (!from.name.isEmpty())
            node.insert(QStringLiteral("name"), from.name);
        if (from.where.Form() != gp_Identity)
            node.insert(QStringLiteral("matrix"), matrixOf(from.where));
        if (from.part >= 0 && m_meshNumbers[from.part] >= 0)
            node.insert(QStringLiteral("mesh"), m_meshNumbers[from.part]);
        QJsonArray below;
        for (const olMeshTree::Node &each : from.below)
            below.append(addNode(each));
        if (!below.isEmpty())
            node.insert(QStringLiteral("children"), below);
        m_nodes.append(node);
        return m_nodes.size() - 1;
    }

    static QJsonArray matrixOf(const gp_Trsf &where)
    {
        const gp_Mat turn = where.VectorialPart();
        const gp_XYZ x = turned(turn.Column(1));
        const gp_XYZ y = turned(turn.Column(3));
        const gp_XYZ z = turned(turn.Column(2)) * -1;
        const gp_XYZ move = turned(where.TranslationPart()) * meter;
        return arrayOf(
            {x.X(), x.Y(), x.Z(), 0, y.X(), y.Y(), y.Z(), 0, z.X(), z.Y(), z.Z(), 0, move.X(), move.Y(), move.Z(), 1});
    }

    void addMesh(int part)
    {
        QJsonArray primitives;
        for (const olMeshTree::Piece &piece : m_tree.piecesOf(part))
            primitives.append(primitiveOf(piece));
        m_meshNumbers.append(primitives.isEmpty() ? -1 : m_meshes.size());
        if (primitives.isEmpty())
            return;
        QJsonObject mesh{{QStringLiteral("primitives"), primitives}};
        const QString name = m_tree.partName(part);
        if (!name.isEmpty())
            mesh.insert(QStringLiteral("name"), name);
        m_meshes.append(mesh);
    }

    QJsonObject primitiveOf(const olMeshTree::Piece &piece)
    {
        QJsonObject attributes{{QStringLiteral("POSITION"), addPoints(piece.points)},
                               {QStringLiteral("NORMAL"), addVectors(piece.normals, 3, [](const gp_Vec3f &normal) {
                                    return std::array<float, 3>{normal.x(), normal.z(), -normal.y()};
                                })}};
        if (!piece.places.empty())
            attributes.insert(QStringLiteral("TEXCOORD_0"), addVectors(piece.places, 2, [](const gp_Vec2f &place) {
                                  return std::array<float, 2>{place.x(), 1 - place.y()};
                              }));
        if (!piece.colors.empty())
            attributes.insert(QStringLiteral("COLOR_0"), addVectors(piece.colors, 4, lightOf));
        const int start = m_bytes.size();
        for (const int corner : piece.corners)
            put(quint32(corner));
        QJsonObject primitive{
            {QStringLiteral("attributes"), attributes},
            {QStringLiteral("indices"), addAccessor(start, indices, 5125, 1, int(piece.corners.size()))}};
        if (!piece.look.IsNull())
            primitive.insert(QStringLiteral("material"), materialOf(piece.look, !piece.colors.empty()));
        return primitive;
    }

    static std::array<float, 4> lightOf(std::uint32_t color)
    {
        std::array<float, 4> light{};
        for (unsigned part = 0; part < 4; ++part) {
            const float value = float(color >> (8 * part) & 0xff) / 255;
            light[part] = part < 3 ? Quantity_Color::Convert_sRGB_To_LinearRGB(value) : value;
        }
        return light;
    }

    template <class Value> void put(Value value)
    {
        char bytes[sizeof(value)];
        qToLittleEndian(value, bytes);
        m_bytes.append(bytes, sizeof(bytes));
    }

    int addPoints(const std::vector<gp_XYZ> &points)
    {
        const int start = m_bytes.size();
        float low[3] = {INFINITY, INFINITY, INFINITY};
        float high[3] = {-INFINITY, -INFINITY, -INFINITY};
        for (const gp_XYZ &point : points) {
            const gp_XYZ now = turned(point) * meter;
            for (int axis = 0; axis < 3; ++axis) {
                const auto value = float(now.Coord(axis + 1));
                low[axis] = std::min(low[axis], value);
                high[axis] = std::max(high[axis], value);
                put(value);
            }
        }
        const int number = addAccessor(start, vertices, 5126, 3, int(points.size()));
        QJsonObject accessor = m_accessors.last().toObject();
        accessor.insert(QStringLiteral("min"), arrayOf({low[0], low[1], low[2]}));
        accessor.insert(QStringLiteral("max"), arrayOf({high[0], high[1], high[2]}));
        m_accessors.replace(number, accessor);
        return number;
    }

    template <class Values, class Parts> int addVectors(const Values &values, int parts, const Parts &partsOf)
    {
        const int start = m_bytes.size();
        for (const auto &value : values) {
            for (const float part : partsOf(value))
                put(part);
        }
        return addAccessor(start, vertices, 5126, parts, int(values.size()));
    }

    /// Of the bytes from the start up to what there is now.
    int addAccessor(int start, int target, int component, int parts, int count)
    {
        m_views.append(QJsonObject{{QStringLiteral("buffer"), 0},
                                   {QStringLiteral("byteOffset"), start},
                                   {QStringLiteral("byteLength"), m_bytes.size() - start},
                                   {QStringLiteral("target"), target}});
        m_accessors.append(QJsonObject{
            {QStringLiteral("bufferView"), m_views.size() - 1},
            {QStringLiteral("componentType"), component},
            {QStringLiteral("count"), count},
            {QStringLiteral("type"), parts == 1 ? QStringLiteral("SCALAR") : QStringLiteral("VEC%1").arg(parts)}});
        return m_accessors.size() - 1;
    }

    int materialOf(const Handle(XCAFDoc_VisMaterial) & look, bool hasColors)
    {
        const auto [place, isNew] =
            m_materialNumbers.emplace(std::make_pair(look.get(), hasColors), m_materials.size());
        if (!isNew)
            return place->second;
        const XCAFDoc_VisMaterialPBR pbr = look->ConvertToPbrMaterial();
        const Quantity_Color &base = pbr.BaseColor.GetRGB();
        // Colours of corners are multiplied with it, and they are whole already.
        QJsonObject surface{{QStringLiteral("baseColorFactor"),
                             hasColors ? arrayOf({1, 1, 1, 1})
                                       : arrayOf({base.Red(), base.Green(), base.Blue(), pbr.BaseColor.Alpha()})},
                            {QStringLiteral("metallicFactor"), look->HasPbrMaterial() ? double(pbr.Metallic) : 0.0},
                            {QStringLiteral("roughnessFactor"), double(pbr.Roughness)}};
        const Handle(Image_Texture) &picture =
            look->HasPbrMaterial() ? pbr.BaseColorTexture : look->CommonMaterial().DiffuseTexture;
        setTexture(surface, "baseColorTexture", picture);
        setTexture(surface, "metallicRoughnessTexture", pbr.MetallicRoughnessTexture);
        QJsonObject material{{QStringLiteral("pbrMetallicRoughness"), surface}};
        setTexture(material, "normalTexture", pbr.NormalTexture);
        setTexture(material, "occlusionTexture", pbr.OcclusionTexture);
        setTexture(material, "emissiveTexture", pbr.EmissiveTexture);
        material.insert(
            QStringLiteral("emissiveFactor"),
            arrayOf({part(pbr.EmissiveFactor.x()), part(pbr.EmissiveFactor.y()), part(pbr.EmissiveFactor.z())}));
        setTransparency(material, *look);
        const QString name = m_tree.lookName(look);
        if (!name.isEmpty())
            material.insert(QStringLiteral("name"), name);
        m_materials.append(material);
        return m_materials.size() - 1;
    }

    static double part(float value) { return std::clamp(double(value), 0.0, 1.0); }

    static void setTransparency(QJsonObject &material, const XCAFDoc_VisMaterial &look)
    {
        const bool isMask = look.AlphaMode() == Graphic3d_AlphaMode_Mask;
        const bool isBlend = look.AlphaMode() == Graphic3d_AlphaMode_Blend ||
                             (look.AlphaMode() == Graphic3d_AlphaMode_BlendAuto && look.BaseColor().Alpha() < 1.0f);
        if (isMask)
            material.insert(QStringLiteral("alphaCutoff"), double(look.AlphaCutOff()));
        if (isMask || isBlend)
            material.insert(QStringLiteral("alphaMode"), isMask ? QStringLiteral("MASK") : QStringLiteral("BLEND"));
        if (look.FaceCulling() == Graphic3d_TypeOfBackfacingModel_DoubleSided)
            material.insert(QStringLiteral("doubleSided"), true);
    }

    void setTexture(QJsonObject &object, const char *key, const Handle(Image_Texture) & picture)
    {
        if (picture.IsNull())
            return;
        const auto [place, isNew] =
            m_pictureNumbers.emplace(QByteArray(picture->TextureId().ToCString()), m_textureNumbers.size());
        if (isNew && !addPicture(picture)) {
            place->second = -1;
        }
        if (place->second >= 0)
            object.insert(QLatin1String(key), QJsonObject{{QStringLiteral("index"), place->second}});
    }

    bool addPicture(const Handle(Image_Texture) & picture)
    {
        QJsonObject image;
        if (m_isBinary) {
            const QByteArray bytes = m_textures.contentOf(*picture);
            if (bytes.isEmpty())
                return false;
            m_views.append(QJsonObject{{QStringLiteral("buffer"), 0},
                                       {QStringLiteral("byteOffset"), m_bytes.size()},
                                       {QStringLiteral("byteLength"), bytes.size()}});
            m_bytes += bytes;
            m_bytes.append((4 - m_bytes.size() % 4) % 4, '\0');
            image = {{QStringLiteral("bufferView"), m_views.size() - 1},
                     {QStringLiteral("mimeType"),
                      bytes.startsWith('\xff') ? QStringLiteral("image/jpeg") : QStringLiteral("image/png")}};
        } else {
            const QString place = m_textures.placeOf(picture);
            if (place.isEmpty())
                return false;
            image = {{QStringLiteral("uri"), QString::fromLatin1(QFile::encodeName(place).toPercentEncoding("/"))}};
        }
        m_images.append(image);
        m_textureNumbers.append(QJsonObject{{QStringLiteral("source"), m_images.size() - 1}});
        return true;
    }

    static constexpr int vertices = 34962;
    static constexpr int indices = 34963;
    olMeshTree m_tree;
    olTextureFiles m_textures;
    QString m_file;
    bool m_isBinary;
    QByteArray m_bytes;
    QJsonArray m_nodes;
    QJsonArray m_meshes;
    QJsonArray m_materials;
    QJsonArray m_textureNumbers;
    QJsonArray m_images;
    QJsonArray m_accessors;
    QJsonArray m_views;
    QVector<int> m_meshNumbers;
    std::map<std::pair<const XCAFDoc_VisMaterial *, bool>, int> m_materialNumbers;
    std::map<QByteArray, int> m_pictureNumbers;
};

bool write(const olScene::Document &document, const QString &file, QStringList &remarks)
{
    return Writer(document, file, remarks).write();
}

} // namespace

olModelFormat olGltfFormat()
{
    return {"glTF",
            "GLTF",
            {QStringLiteral("gltf"), QStringLiteral("glb")},
            olModelFormat::Meshes | olModelFormat::Colors | olModelFormat::Opacity | olModelFormat::Textures |
                olModelFormat::CornerColors | olModelFormat::Structure | olModelFormat::Names |
                olModelFormat::UnitAndUp,
            check,
            read,
            write};
}
