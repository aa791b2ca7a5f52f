#include "Exchange/olReaderProtocol.h"

#include "Exchange/olDocumentStream.h"

#include <TDocStd_Document.hxx>

#include <QDataStream>

#include <cstdint>
#include <cstring>
#include <exception>

#include <unistd.h>

namespace
{

/// To be raised when either side says something new, so that only what belongs together works together.
constexpr quint32 version = 2;

/// The order of the fields, for both directions.
template <class Stream, class Job> void fields(Stream &stream, Job &job)
{
    auto &options = job.options;
    stream << job.file << job.loneFile << job.verify << job.optimize << job.centerInOrigin << job.putOnGround;
    stream << job.unit << job.isYUp;
    stream << options.stitching << options.stitchingTolerance << options.tessellation << options.keepSurfaceData;
    stream << options.chordDeviation << options.normalTolerance << options.mergeGeometries;
    stream << options.removeEmptyGroups << options.importSurfaces << options.importInvisibleSurfaces;
    stream << options.unifySurfaceNormals << options.importMeshes << options.importInvisibleMeshes;
    stream << options.importCurves << options.importInvisibleCurves << options.importInvisibleInstances;
    stream << options.importReferencedFiles;
}

/// Lets the order above read, too.
struct Unpacking {
    QDataStream &stream;

    template <class Value> Unpacking &operator<<(Value &value)
    {
        stream >> value;
        return *this;
    }
};

bool send(int file, const QByteArray &bytes)
{
    const auto size = std::uint64_t(bytes.size());
    return ::write(file, &size, sizeof(size)) == ssize_t(sizeof(size)) &&
           ::write(file, bytes.constData(), std::size_t(bytes.size())) == bytes.size();
}

} // namespace

QByteArray olReaderProtocol::packed(const olImportJob &job)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << version;
    fields(stream, job);
    stream << quint32(job.textureDirectories.size());
    for (const std::string &directory : job.textureDirectories)
        stream << QByteArray::fromStdString(directory);
    return bytes;
}

bool olReaderProtocol::unpack(const QByteArray &bytes, olImportJob &job)
{
    QDataStream stream(bytes);
    quint32 from = 0;
    stream >> from;
    if (from != version)
        return false;
    Unpacking unpacking{stream};
    fields(unpacking, job);
    quint32 directories = 0;
    stream >> directories;
    for (; directories > 0 && stream.status() == QDataStream::Ok; --directories) {
        QByteArray directory;
        stream >> directory;
        job.textureDirectories.push_back(directory.toStdString());
    }
    return stream.status() == QDataStream::Ok;
}

bool olReaderProtocol::write(const olImportResult &result, int file)
{
    QByteArray head;
    QDataStream stream(&head, QIODevice::WriteOnly);
    stream << result.document.error() << result.remarks << result.missingGuards << result.document.isOk();
    if (!send(file, head))
        return false;
    if (result.document.isOk())
        olDocumentStream::write(*result.document, file);
    return true;
}

bool olReaderProtocol::read(const unsigned char *bytes, std::size_t count, olImportResult &result)
{
    std::uint64_t size = 0;
    if (count < sizeof(size))
        return false;
    std::memcpy(&size, bytes, sizeof(size));
    bytes += sizeof(size);
    count -= sizeof(size);
    constexpr std::uint64_t longest = 1 << 26;
    if (size > count || size > longest)
        return false;
    const QByteArray head = QByteArray::fromRawData(reinterpret_cast<const char *>(bytes), int(size));
    QDataStream stream(head);
    QString error;
    bool hasDocument = false;
    stream >> error >> result.remarks >> result.missingGuards >> hasDocument;
    if (stream.status() != QDataStream::Ok || hasDocument != error.isEmpty())
        return false;
    if (!hasDocument) {
        result.document = olFailure{error};
        return true;
    }
    const olScene::Document document = olDocumentStream::read(bytes + size, count - size);
    if (!document.IsNull())
        result.document = document;
    return result.document.isOk();
}
