#include "Exchange/Formats/olGltfFileCheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QtEndian>

namespace
{

constexpr int binaryHead = 12;
constexpr int chunkHead = 8;

QString reason(const char *text) { return QCoreApplication::translate("olImport", text); }

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
        return reason("the file %1 that it refers to cannot be read").arg(name);
    return double(info.size()) < value(buffer, "byteLength")
               ? reason("the file %1 that it refers to is cut off").arg(name)
               : QString();
}

QString contentFault(const QJsonObject &model, const QDir &folder)
{
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
            return reason("the file is damaged: a part of it lies beyond its end");
    }
    const QJsonArray accessors = model.value(QLatin1String("accessors")).toArray();
    for (const QJsonValue &each : accessors) {
        const QJsonObject accessor = each.toObject();
        if (!accessor.contains(QLatin1String("bufferView")))
            continue;
        const QJsonObject view = views.at(accessor.value(QLatin1String("bufferView")).toInt(-1)).toObject();
        const double needed = value(accessor, "byteOffset") + value(accessor, "count") * elementSize(accessor);
        if (needed > value(view, "byteLength"))
            return reason("the file is damaged: it announces more than it holds");
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
    return error.error == QJsonParseError::DocumentTooLarge ? QString() : reason("the file is cut off or damaged");
}

} // namespace

QString olGltfFault(QFile &file)
{
    const QByteArray head = file.read(binaryHead + chunkHead);
    if (!head.startsWith("glTF")) {
        file.seek(0);
        return head.trimmed().startsWith('{') ? modelFault(file.readAll(), file.fileName())
                                              : reason("this is no glTF file");
    }
    if (head.size() < binaryHead + chunkHead || file.size() < number(head, 8) ||
        file.size() < qint64(binaryHead + chunkHead) + number(head, binaryHead))
        return reason("the file is cut off or damaged");
    return modelFault(file.read(number(head, binaryHead)), file.fileName());
}
