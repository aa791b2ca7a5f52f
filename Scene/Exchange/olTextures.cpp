#include "Exchange/olTextures.h"

#include "Kernel/olTexSearch.h"

#include <NCollection_Buffer.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>

#include <QBuffer>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>

#include <cstring>

namespace
{

using Texture = Handle(Image_Texture);

/// Materials of OBJ may have options before the name: a word, and numbers or one further word.
QString withoutOptions(const QString &text)
{
    static const QRegularExpression option(
        QStringLiteral("^-(?:(?:o|s|t)(?:\\s+[-+.\\d][-+.\\deE]*){1,3}|(?:mm)\\s+\\S+\\s+\\S+|[a-zA-Z]+\\s+\\S+)\\s+"));
    QString name = text.trimmed();
    while (name.startsWith(QLatin1Char('-'))) {
        const QRegularExpressionMatch match = option.match(name);
        if (!match.hasMatch())
            break;
        name = name.mid(match.capturedLength());
    }
    return name;
}

class Search
{
public:
    Search(const olImportJob &job, QStringList &remarks)
        : m_folder(QFileInfo(job.file).absoluteDir()), m_directories(job.textureDirectories), m_remarks(remarks)
    {
    }

    void find(Texture &texture)
    {
        if (texture.IsNull())
            return;
        const Handle(NCollection_Buffer) &bytes = texture->DataBuffer();
        const QString name = bytes.IsNull() ? nameOf(texture) : QCoreApplication::translate("olImport", "in the file");
        if (!bytes.IsNull())
            return check(texture,
                         QByteArray::fromRawData(reinterpret_cast<const char *>(bytes->Data()), int(bytes->Size())),
                         name);
        const QString place = fileOf(name);
        if (place.isEmpty()) {
            remark(QCoreApplication::translate("olImport", "The texture %1 was not found.").arg(name));
            texture.Nullify();
            return;
        }
        texture = new Image_Texture(QFile::encodeName(place).constData());
        QFile file(place);
        if (file.open(QIODevice::ReadOnly))
            check(texture, file.readAll(), name);
    }

private:
    /// As the model has it; the reader puts the model's folder before it.
    [[nodiscard]] QString nameOf(const Texture &texture) const
    {
        QString name = QFile::decodeName(texture->FilePath().ToCString());
        for (const QString &folder :
             {m_folder.path() + QLatin1Char('/'), m_folder.canonicalPath() + QLatin1Char('/')}) {
            if (name.startsWith(folder))
                name = name.mid(folder.size());
        }
        return withoutOptions(name).replace(QLatin1Char('\\'), QLatin1Char('/'));
    }

    [[nodiscard]] QString fileOf(const QString &name) const
    {
        for (const QString &each :
             {name, QFile::decodeName(QByteArray::fromPercentEncoding(QFile::encodeName(name)))}) {
            const QString beside = m_folder.filePath(each);
            if (QFileInfo(beside).isFile())
                return beside;
        }
        return QString::fromStdString(olTexSearch::findIn(m_directories, name.toStdString()));
    }

    /// The view decodes pictures where a fault takes everything down, so they are looked at here.
    void check(Texture &texture, const QByteArray &bytes, const QString &name)
    {
        QBuffer buffer;
        buffer.setData(bytes);
        QImageReader reader(&buffer);
        const QSize size = reader.size();
        if (qMax(size.width(), size.height()) > longestSide) {
            remark(QCoreApplication::translate("olImport", "The texture %1 is too large, with %2 by %3 pixels.")
                       .arg(name)
                       .arg(size.width())
                       .arg(size.height()));
            texture.Nullify();
            return;
        }
        const QImage picture = reader.read();
        if (picture.isNull()) {
            remark(QCoreApplication::translate("olImport", "The texture %1 cannot be read: %2.")
                       .arg(name, reader.errorString()));
            texture.Nullify();
        } else if (picture.colorCount() > 0) {
            // The view shows palettes black.
            texture = olTextureOf(picture);
        }
    }

    void remark(const QString &text)
    {
        if (!m_remarks.contains(text))
            m_remarks << text;
    }

    static constexpr int longestSide = 16384;
    QDir m_folder;
    const std::vector<std::string> &m_directories;
    QStringList &m_remarks;
};

} // namespace

void olFindTextures(const olImportJob &job, const olScene::Document &document, QStringList &remarks)
{
    const Handle(XCAFDoc_VisMaterialTool) tool = XCAFDoc_DocumentTool::VisMaterialTool(document->Main());
    Search search(job, remarks);
    TDF_LabelSequence labels;
    tool->GetMaterials(labels);
    for (const TDF_Label &label : labels) {
        const Handle(XCAFDoc_VisMaterial) material = tool->GetMaterial(label);
        if (material.IsNull())
            continue;
        if (material->HasCommonMaterial()) {
            XCAFDoc_VisMaterialCommon common = material->CommonMaterial();
            search.find(common.DiffuseTexture);
            material->SetCommonMaterial(common);
        }
        if (material->HasPbrMaterial()) {
            XCAFDoc_VisMaterialPBR pbr = material->PbrMaterial();
            for (Texture *each : {&pbr.BaseColorTexture, &pbr.MetallicRoughnessTexture, &pbr.EmissiveTexture,
                                  &pbr.OcclusionTexture, &pbr.NormalTexture})
                search.find(*each);
            material->SetPbrMaterial(pbr);
        }
    }
}

Handle(Image_Texture) olTextureOf(const QByteArray &bytes)
{
    const Handle(NCollection_Buffer) buffer =
        new NCollection_Buffer(NCollection_BaseAllocator::CommonBaseAllocator(), std::size_t(bytes.size()));
    std::memcpy(buffer->ChangeData(), bytes.constData(), std::size_t(bytes.size()));
    // What is drawn with one picture is told from others by its name.
    return new Image_Texture(buffer, QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex().constData());
}

Handle(Image_Texture) olTextureOf(const QImage &picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    const bool isOpaque = !picture.hasAlphaChannel();
    picture.convertToFormat(isOpaque ? QImage::Format_RGB888 : QImage::Format_RGBA8888).save(&buffer, "PNG");
    return olTextureOf(bytes);
}
