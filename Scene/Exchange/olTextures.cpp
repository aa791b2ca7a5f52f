#include "Exchange/olTextures.h"

#include "Kernel/olTexSearch.h"

#include <Image_Texture.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

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
        // A picture may also be a part of the model's own file.
        const bool isNamed = !texture.IsNull() && !texture->FilePath().IsEmpty() && texture->FileOffset() < 0;
        if (!isNamed)
            return;
        const QString name = nameOf(texture);
        const QString file = fileOf(name);
        if (file.isEmpty()) {
            const QString remark = QCoreApplication::translate("olImport", "The texture %1 was not found.").arg(name);
            if (!m_remarks.contains(remark))
                m_remarks << remark;
            texture.Nullify();
            return;
        }
        texture = new Image_Texture(QFile::encodeName(file).constData());
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
        const QString beside = m_folder.filePath(name);
        if (QFileInfo(beside).isFile())
            return beside;
        return QString::fromStdString(olTexSearch::findIn(m_directories, name.toStdString()));
    }

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
