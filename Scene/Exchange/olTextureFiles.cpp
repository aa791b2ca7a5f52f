#include "Exchange/olTextureFiles.h"

#include <NCollection_Buffer.hxx>

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

namespace
{

QByteArray bytesOf(const Image_Texture &texture)
{
    const Handle(NCollection_Buffer) &held = texture.DataBuffer();
    if (!held.IsNull())
        return {reinterpret_cast<const char *>(held->Data()), int(held->Size())};
    QFile file(QFile::decodeName(texture.FilePath().ToCString()));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    if (texture.FileOffset() < 0)
        return file.readAll();
    return file.seek(texture.FileOffset()) ? file.read(texture.FileLength()) : QByteArray();
}

bool isUsual(const QByteArray &bytes) { return bytes.startsWith("\x89PNG") || bytes.startsWith("\xff\xd8\xff"); }

} // namespace

olTextureFiles::olTextureFiles(const QString &modelFile, QStringList &remarks)
    : m_folder(QFileInfo(modelFile).path()),
      m_folderName(QFileInfo(modelFile).completeBaseName() + QStringLiteral("_textures")),
      m_remarks(remarks)
{
}

QByteArray olTextureFiles::contentOf(const Image_Texture &texture)
{
    const QByteArray bytes = bytesOf(texture);
    if (isUsual(bytes))
        return bytes;
    const QImage picture = QImage::fromData(bytes);
    QByteArray converted;
    QBuffer buffer(&converted);
    if (!picture.isNull() && buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, "PNG"))
        return converted;
    m_remarks << QCoreApplication::translate("olExport", "The texture %1 is not there any more; it is left out.")
                     .arg(QFileInfo(QFile::decodeName(texture.FilePath().ToCString())).fileName());
    return {};
}

QString olTextureFiles::placeOf(const Handle(Image_Texture) & texture)
{
    if (texture.IsNull())
        return {};
    const QString id = QString::fromUtf8(texture->TextureId().ToCString());
    const auto known = m_places.find(id);
    if (known != m_places.end())
        return known->second;
    QString &place = m_places[id];
    const QByteArray bytes = contentOf(*texture);
    if (bytes.isEmpty())
        return {};
    // Plain names of our own: formats and programs differ in what they make of others.
    const QString name = QStringLiteral("%1.%2").arg(
        QString::number(m_places.size()), bytes.startsWith('\xff') ? QStringLiteral("jpg") : QStringLiteral("png"));
    QDir(m_folder).mkdir(m_folderName);
    QFile file(m_folder + QLatin1Char('/') + m_folderName + QLatin1Char('/') + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        m_remarks << QCoreApplication::translate("olExport", "The texture %1 cannot be written: %2.")
                         .arg(name, file.errorString());
        return {};
    }
    place = m_folderName + QLatin1Char('/') + name;
    return place;
}
