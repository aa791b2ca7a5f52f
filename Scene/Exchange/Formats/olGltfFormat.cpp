#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olModelFormat.h"
#include "Model/olPlainLook.h"

#include <Message_ProgressRange.hxx>
#include <RWGltf_CafWriter.hxx>
#include <TColStd_IndexedDataMapOfStringString.hxx>
#include <TDocStd_Document.hxx>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QtEndian>

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

QString bufferFault(const QJsonObject &buffer, const QDir &folder)
{
    const QString uri = buffer.value(QLatin1String("uri")).toString();
    if (uri.isEmpty() || uri.startsWith(QLatin1String("data:")))
        return {};
    const QString name = QUrl::fromPercentEncoding(uri.toUtf8());
    const QFileInfo info(folder.filePath(name));
    if (!info.isFile() || !info.isReadable())
        return olReason::tr("the file %1 that it refers to cannot be read").arg(name);
    return double(info.size()) < value(buffer, "byteLength")
               ? olReason::tr("the file %1 that it refers to is cut off").arg(name)
               : QString();
}

/// What a file may require of its reader. The rest would be read, but wrongly.
QString extensionFault(const QJsonObject &model)
{
    static const QStringList known{QStringLiteral("KHR_draco_mesh_compression"),
                                   QStringLiteral("KHR_lights_punctual"),
                                   QStringLiteral("KHR_materials_clearcoat"),
                                   QStringLiteral("KHR_materials_emissive_strength"),
                                   QStringLiteral("KHR_materials_ior"),
                                   QStringLiteral("KHR_materials_pbrSpecularGlossiness"),
                                   QStringLiteral("KHR_materials_sheen"),
                                   QStringLiteral("KHR_materials_specular"),
                                   QStringLiteral("KHR_materials_transmission"),
                                   QStringLiteral("KHR_materials_unlit"),
                                   QStringLiteral("KHR_materials_variants"),
                                   QStringLiteral("KHR_materials_volume"),
                                   QStringLiteral("KHR_node_visibility"),
                                   QStringLiteral("KHR_texture_transform"),
                                   QStringLiteral("KHR_xmp_json_ld")};
    const QJsonArray required = model.value(QLatin1String("extensionsRequired")).toArray();
    for (const QJsonValue &each : required) {
        if (!known.contains(each.toString()))
            return olReason::tr("it requires the extension %1, which is not supported").arg(each.toString());
    }
    return {};
}

/// Nodes below nodes, which must come to an end.
QString nestingFault(const QJsonObject &model)
{
    constexpr int deepest = 200;
    const QJsonArray nodes = model.value(QLatin1String("nodes")).toArray();
    std::vector<int> parents(std::size_t(nodes.size()), -1);
    for (int index = 0; index < nodes.size(); ++index) {
        const QJsonArray children = nodes.at(index).toObject().value(QLatin1String("children")).toArray();
        for (const QJsonValue &child : children) {
            const int number = child.toInt(-1);
            if (number < 0 || number >= nodes.size())
                return olReason::tr("the file is damaged: a node refers to one that is not there");
            parents[std::size_t(number)] = index;
        }
    }
    for (int node = 0; node < nodes.size(); ++node) {
        int depth = 0;
        for (int up = node; up >= 0; up = parents[std::size_t(up)]) {
            if (++depth > deepest)
                return olReason::tr("its groups are nested too deeply");
        }
    }
    return {};
}

QString contentFault(const QJsonObject &model, const QDir &folder)
{
    for (const QString &fault : {extensionFault(model), nestingFault(model)}) {
        if (!fault.isEmpty())
            return fault;
    }
    const QJsonArray buffers = model.value(QLatin1String("buffers")).toArray();
    const QJsonArray views = model.value(QLatin1String("bufferViews")).toArray();
    for (const QJsonValue &buffer : buffers) {
        const QString fault = bufferFault(buffer.toObject(), folder);
        if (!fault.isEmpty())
            return fault;
    }
    for (const QJsonValue &each : views) {
        const QJsonObject view = each.toObject();
        const QJsonObject buffer = buffers.at(int(value(view, "buffer"))).toObject();
        if (value(view, "byteOffset") + value(view, "byteLength") > value(buffer, "byteLength"))
            return olReason::tr("the file is damaged: a part of it lies beyond its end");
    }
    const QJsonArray accessors = model.value(QLatin1String("accessors")).toArray();
    for (const QJsonValue &each : accessors) {
        const QJsonObject accessor = each.toObject();
        if (!accessor.contains(QLatin1String("bufferView")))
            continue;
        const QJsonObject view = views.at(accessor.value(QLatin1String("bufferView")).toInt(-1)).toObject();
        const double needed = value(accessor, "byteOffset") + value(accessor, "count") * elementSize(accessor);
        if (needed > value(view, "byteLength"))
            return olReason::tr("the file is damaged: it announces more than it holds");
    }
    return {};
}

QString modelFault(const QByteArray &text, const QString &file)
{
    QJsonParseError error{};
    const QJsonDocument model = QJsonDocument::fromJson(text, &error);
    if (error.error == QJsonParseError::NoError)
        return contentFault(model.object(), QFileInfo(file).absoluteDir());
    // The parser has a limit of its own, which the reader does not share.
    return error.error == QJsonParseError::DocumentTooLarge ? QString()
                                                            : olReason::tr("the file is cut off or damaged");
}

QString check(QFile &file, QStringList &)
{
    const QByteArray head = file.read(binaryHead + chunkHead);
    if (!head.startsWith("glTF")) {
        file.seek(0);
        return head.trimmed().startsWith('{') ? modelFault(file.readAll(), file.fileName())
                                              : olReason::tr("this is no glTF file");
    }
    if (head.size() < binaryHead + chunkHead || file.size() < number(head, 8) ||
        file.size() < qint64(binaryHead + chunkHead) + number(head, binaryHead))
        return olReason::tr("the file is cut off or damaged");
    return modelFault(file.read(number(head, binaryHead)), file.fileName());
}

QString read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
             QStringList &remarks)
{
    olAssimpReader::Manner manner;
    manner.unit = 1000;
    manner.isYUp = true;
    manner.isLinear = true;
    manner.hasOwnRoot = true;
    return olAssimpReader::read(job, manner, document, progress, remarks);
}

bool write(const olScene::Document &document, const QString &file, QStringList &)
{
    const bool isBinary = QFileInfo(file).suffix().compare(QLatin1String("glb"), Qt::CaseInsensitive) == 0;
    RWGltf_CafWriter writer(path(file), isBinary);
    writer.ChangeCoordinateSystemConverter().SetInputLengthUnit(meter);
    writer.ChangeCoordinateSystemConverter().SetInputCoordinateSystem(RWMesh_CoordinateSystem_Zup);
    return writer.Perform(olPlainLook::asMaterials(document), TColStd_IndexedDataMapOfStringString(),
                          Message_ProgressRange());
}

} // namespace

olModelFormat olGltfFormat()
{
    return {"glTF",
            "GLTF",
            {QStringLiteral("gltf"), QStringLiteral("glb")},
            olModelFormat::Meshes | olModelFormat::Colors | olModelFormat::Opacity | olModelFormat::Textures |
                olModelFormat::Structure,
            check,
            read,
            write};
}
