#include "Exchange/olAssimpReader.h"

#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olMeshDocument.h"
#include "Exchange/olTextures.h"
#include "Model/olColoredMesh.h"
#include "Model/olPlainLook.h"

#include <Image_Texture.hxx>
#include <Message_ProgressScope.hxx>
#include <Poly_Triangulation.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TDocStd_Document.hxx>
#include <assimp/DefaultIOSystem.h>
#include <assimp/GltfMaterial.h>
#include <assimp/Importer.hpp>
#include <assimp/MemoryIOWrapper.h>
#include <assimp/ProgressHandler.hpp>
#include <assimp/material.h>
#include <assimp/postprocess.h>
#include <assimp/scene.h>
#include <gp_GTrsf.hxx>
#include <gp_Mat.hxx>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

using namespace olFormatTools;

namespace
{

constexpr int deepest = 200;

QString textOf(const aiString &text) { return QString::fromUtf8(text.C_Str(), int(text.length)); }

/// Opens what lies beside the model, but no pipes and no devices, which may have no end.
class Files : public Assimp::DefaultIOSystem
{
public:
    Files(const QString &model, QStringList &remarks) : m_model(model), m_remarks(remarks) {}

    bool Exists(const char *name) const override { return !found(name).isEmpty(); }

    Assimp::IOStream *Open(const char *name, const char *mode) override
    {
        const QStringList files = found(name);
        if (files.isEmpty()) {
            noteMissing(QFileInfo(QFile::decodeName(name)).fileName());
            return nullptr;
        }
        if (files.size() == 1)
            return DefaultIOSystem::Open(QFile::encodeName(files.first()).constData(), mode);
        QByteArray all;
        for (const QString &each : files) {
            QFile file(each);
            if (file.open(QIODevice::ReadOnly))
                all += file.readAll() + '\n';
        }
        auto *bytes = new std::uint8_t[std::size_t(all.size())];
        std::memcpy(bytes, all.constData(), std::size_t(all.size()));
        return new Assimp::MemoryIOStream(bytes, std::size_t(all.size()), true);
    }

private:
    /// Of materials it is said before; where they are not there the library goes on to look for others.
    void noteMissing(const QString &name)
    {
        const QString remark = olReason::tr("The file %1 that it refers to was not found.").arg(name);
        if (!m_remarks.contains(remark) && !name.endsWith(QLatin1String(".mtl"), Qt::CaseInsensitive))
            m_remarks << remark;
    }

    /// The file, or the files: a line that names materials may name several.
    [[nodiscard]] QStringList found(const char *name) const
    {
        const QString whole = QFile::decodeName(name);
        const QString decoded = QFile::decodeName(QByteArray::fromPercentEncoding(name));
        for (const QString &each : {whole, QString(whole).replace(QLatin1Char('\\'), QLatin1Char('/')), decoded}) {
            if (QFileInfo(each).isFile())
                return {each};
        }
        const QDir folder = QFileInfo(m_model).absoluteDir();
        QStringList several;
        const QStringList words = QFileInfo(whole).fileName().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &word : words) {
            if (words.size() > 1 && QFileInfo(folder.filePath(word)).isFile())
                several << folder.filePath(word);
        }
        return several;
    }

    QString m_model;
    QStringList &m_remarks;
};

/// Takes the library's progress along.
class Progress : public Assimp::ProgressHandler
{
public:
    explicit Progress(const Message_ProgressRange &range) : m_scope(range, "File", steps) {}

    bool Update(float part) override
    {
        const double wanted = std::clamp(double(part), 0.0, 1.0) * steps;
        if (wanted > m_scope.Value())
            m_scope.Next(wanted - m_scope.Value());
        return true;
    }

private:
    static constexpr double steps = 1000;
    Message_ProgressScope m_scope;
};

gp_GTrsf transformationOf(const aiMatrix4x4 &matrix)
{
    return {gp_Mat(matrix.a1, matrix.a2, matrix.a3, matrix.b1, matrix.b2, matrix.b3, matrix.c1, matrix.c2, matrix.c3),
            gp_XYZ(matrix.a4, matrix.b4, matrix.c4)};
}

float screenOf(float light)
{
    return light <= 0.0031308f ? 12.92f * light : 1.055f * std::pow(light, 1.0f / 2.4f) - 0.055f;
}

/// Turns the library's scene into a document.
class Conversion
{
public:
    Conversion(const aiScene &scene, const olAssimpReader::Conventions &conventions, const olScene::Document &document,
               const QString &name)
        : m_scene(scene),
          m_conventions(conventions),
          m_document(document),
          m_name(name),
          m_turn(1, 0, 0, 0, 1, 0, 0, 0, 1)
    {
        if (conventions.isYUp)
            m_turn = gp_Mat(1, 0, 0, 0, 0, -1, 0, 1, 0);
    }

    /// False where the scene is nested too deeply to be told.
    bool run()
    {
        findSame();
        for (unsigned index = 0; index < m_scene.mNumMaterials; ++index)
            m_looks.push_back(addLook(*m_scene.mMaterials[index]));
        const gp_Mat scale(m_conventions.unit, 0, 0, 0, m_conventions.unit, 0, 0, 0, m_conventions.unit);
        const aiNode &root = *m_scene.mRootNode;
        std::vector<olMeshDocument::Member> members;
        // A root that the library made up only says where the rest stands.
        const bool isOwn = m_conventions.hasOwnRoot && textOf(root.mName) != QLatin1String("ROOT");
        if (root.mNumMeshes == 0 && !isOwn)
            addChildren(root, turned(root.mTransformation), scale, 0, members);
        else
            addNode(root, gp_GTrsf(), scale, 0, members);
        const bool isShared = std::any_of(members.begin(), members.end(), [this](const olMeshDocument::Member &member) {
            return member.where.IsIdentity() && m_uses[member.label.Tag()] > 1;
        });
        if (isShared)
            m_document.addGroup(m_name, members);
        else
            m_document.place(members);
        m_document.finish();
        return !m_isTooDeep;
    }

    /// The names of meshes that are no triangles.
    [[nodiscard]] QStringList leftOut() const
    {
        QStringList names;
        for (unsigned index = 0; index < m_scene.mNumMeshes; ++index) {
            if (!isOfTriangles(*m_scene.mMeshes[index]))
                names << ownName(m_scene.mMeshes[index]->mName);
        }
        return names;
    }

    /// Pictures that stand for something which is not drawn here.
    [[nodiscard]] QStringList unusedTextures() const
    {
        QStringList names;
        for (unsigned index = 0; index < m_scene.mNumMaterials; ++index) {
            for (int type = aiTextureType_NONE + 1; type <= AI_TEXTURE_TYPE_MAX; ++type) {
                aiString name;
                if (m_scene.mMaterials[index]->GetTexture(aiTextureType(type), 0, &name) == aiReturn_SUCCESS &&
                    m_usedTextures.count(name.C_Str()) == 0)
                    names << (m_scene.GetEmbeddedTexture(name.C_Str())
                                  ? QCoreApplication::translate("olImport", "in the file")
                                  : textOf(name));
            }
        }
        names.removeAll(QString());
        names.removeDuplicates();
        return names;
    }

private:
    /// The library makes a mesh of its own for each node, although files share them.
    void findSame()
    {
        std::map<QByteArray, unsigned> known;
        for (unsigned index = 0; index < m_scene.mNumMeshes; ++index)
            m_same.push_back(known.emplace(contentOf(*m_scene.mMeshes[index]), index).first->second);
    }

    static QByteArray contentOf(const aiMesh &mesh)
    {
        QCryptographicHash hash(QCryptographicHash::Md5);
        const auto add = [&hash](const void *from, std::size_t size) {
            hash.addData(static_cast<const char *>(from), int(size));
        };
        add(mesh.mName.C_Str(), mesh.mName.length);
        add(&mesh.mMaterialIndex, sizeof(mesh.mMaterialIndex));
        add(mesh.mVertices, mesh.mNumVertices * sizeof(aiVector3D));
        if (mesh.HasNormals())
            add(mesh.mNormals, mesh.mNumVertices * sizeof(aiVector3D));
        if (mesh.HasTextureCoords(0))
            add(mesh.mTextureCoords[0], mesh.mNumVertices * sizeof(aiVector3D));
        if (mesh.HasVertexColors(0))
            add(mesh.mColors[0], mesh.mNumVertices * sizeof(aiColor4D));
        for (unsigned face = 0; face < mesh.mNumFaces; ++face)
            add(mesh.mFaces[face].mIndices, mesh.mFaces[face].mNumIndices * sizeof(unsigned));
        return hash.result();
    }

    static bool isOfTriangles(const aiMesh &mesh)
    {
        return (mesh.mPrimitiveTypes & aiPrimitiveType_TRIANGLE) != 0 && trianglesIn(mesh) > 0;
    }

    /// Among those of a damaged file there may be faces of fewer corners.
    static bool isTriangle(const aiFace &face) { return face.mNumIndices == 3; }
    static int trianglesIn(const aiMesh &mesh)
    {
        return int(std::count_if(mesh.mFaces, mesh.mFaces + mesh.mNumFaces, isTriangle));
    }

    /// Names that the library makes up for what has none.
    [[nodiscard]] QString ownName(const aiString &text) const
    {
        static const QRegularExpression madeUp(
            QStringLiteral("^(?:(?:nodes|meshes|materials)[_[]\\d+\\]?|default|defaultobject|<\\w+>)$"));
        const QString name = textOf(text);
        const auto known = m_conventions.names.constFind(name);
        if (known != m_conventions.names.constEnd())
            return *known;
        return madeUp.match(name).hasMatch() ? QString() : name;
    }

    [[nodiscard]] gp_GTrsf turned(const aiMatrix4x4 &matrix) const
    {
        const gp_GTrsf whole = transformationOf(matrix);
        return {m_turn * whole.VectorialPart() * m_turn.Transposed(), m_turn * whole.TranslationPart()};
    }

    void addChildren(const aiNode &node, const gp_GTrsf &before, const gp_Mat &rest, int depth,
                     std::vector<olMeshDocument::Member> &members)
    {
        for (unsigned index = 0; index < node.mNumChildren; ++index)
            addNode(*node.mChildren[index], before, rest, depth, members);
    }

    void addNode(const aiNode &node, const gp_GTrsf &before, const gp_Mat &rest, int depth,
                 std::vector<olMeshDocument::Member> &members)
    {
        if (depth > deepest) {
            m_isTooDeep = true;
            return;
        }
        const olMeshDocument::Placement placement =
            olMeshDocument::placementOf(gp_GTrsf(rest, gp_XYZ()) * before * turned(node.mTransformation));
        const TDF_Label label = labelOf(node, placement.rest, depth);
        if (label.IsNull())
            return;
        ++m_uses[label.Tag()];
        members.push_back({label, placement.where, ownName(node.mName)});
    }

    TDF_Label labelOf(const aiNode &node, const gp_Mat &rest, int depth)
    {
        const TDF_Label part = partOf(node, rest);
        if (node.mNumChildren == 0)
            return part;
        std::vector<olMeshDocument::Member> members;
        addChildren(node, gp_GTrsf(), rest, depth + 1, members);
        if (!part.IsNull()) {
            ++m_uses[part.Tag()];
            members.insert(members.begin(), {part, TopLoc_Location(), ownName(node.mName)});
        }
        return m_document.addGroup(ownName(node.mName), members);
    }

    /// Nodes that have the same meshes in the same proportions share their part.
    TDF_Label partOf(const aiNode &node, const gp_Mat &rest)
    {
        std::vector<unsigned> meshes;
        for (unsigned index = 0; index < node.mNumMeshes; ++index) {
            if (isOfTriangles(*m_scene.mMeshes[node.mMeshes[index]]))
                meshes.push_back(m_same[node.mMeshes[index]]);
        }
        if (meshes.empty())
            return {};
        TDF_Label &part = m_parts[{meshes, olMeshDocument::proportionsOf(rest)}];
        if (!part.IsNull())
            return part;
        std::vector<olMeshDocument::Face> faces;
        for (const unsigned index : meshes) {
            const aiMesh &mesh = *m_scene.mMeshes[index];
            faces.push_back({triangulationOf(mesh, rest * m_turn), m_looks.at(mesh.mMaterialIndex)});
        }
        part = m_document.addPart(partName(node, meshes), faces);
        return part;
    }

    /// The library numbers the pieces of a mesh.
    [[nodiscard]] QString partName(const aiNode &node, const std::vector<unsigned> &meshes) const
    {
        static const QRegularExpression number(QStringLiteral("-\\d+$"));
        QString name = textOf(m_scene.mMeshes[meshes.front()]->mName);
        if (meshes.size() > 1)
            name.remove(number);
        name = ownName(aiString(name.toStdString()));
        return name.isEmpty() ? ownName(node.mName) : name;
    }

    [[nodiscard]] Handle(Poly_Triangulation) triangulationOf(const aiMesh &mesh, const gp_Mat &matrix) const
    {
        const int nodes = int(mesh.mNumVertices);
        const int triangles = trianglesIn(mesh);
        const bool isColored = hasColors(mesh);
        Handle(olColoredMesh) colored;
        if (isColored)
            colored = new olColoredMesh(nodes, triangles, mesh.HasTextureCoords(0), mesh.HasNormals());
        const Handle(Poly_Triangulation) result =
            isColored ? Handle(Poly_Triangulation)(colored)
                      : new Poly_Triangulation(nodes, triangles, mesh.HasTextureCoords(0), mesh.HasNormals());
        const bool isMirrored = matrix.Determinant() < 0;
        const gp_Mat forNormals = olMeshDocument::forNormals(matrix);
        for (int node = 0; node < nodes; ++node) {
            const aiVector3D &point = mesh.mVertices[node];
            result->SetNode(node + 1, matrix * gp_XYZ(point.x, point.y, point.z));
            if (mesh.HasNormals()) {
                const aiVector3D &normal = mesh.mNormals[node];
                const gp_XYZ now = forNormals * gp_XYZ(normal.x, normal.y, normal.z);
                const double length = now.Modulus();
                result->SetNormal(node + 1, length > 0 ? gp_Vec3f(float(now.X() / length), float(now.Y() / length),
                                                                  float(now.Z() / length))
                                                       : gp_Vec3f(0, 0, 1));
            }
            if (mesh.HasTextureCoords(0))
                result->SetUVNode(node + 1, gp_Pnt2d(mesh.mTextureCoords[0][node].x, mesh.mTextureCoords[0][node].y));
        }
        if (isColored)
            colored->colors = colorsOf(mesh);
        int triangle = 0;
        for (unsigned face = 0; face < mesh.mNumFaces; ++face) {
            const unsigned *corner = mesh.mFaces[face].mIndices;
            if (!isTriangle(mesh.mFaces[face]))
                continue;
            result->SetTriangle(++triangle,
                                isMirrored ? Poly_Triangle(int(corner[0]) + 1, int(corner[2]) + 1, int(corner[1]) + 1)
                                           : Poly_Triangle(int(corner[0]) + 1, int(corner[1]) + 1, int(corner[2]) + 1));
        }
        return result;
    }

    /// White everywhere is no colour.
    static bool hasColors(const aiMesh &mesh)
    {
        if (!mesh.HasVertexColors(0))
            return false;
        return std::any_of(mesh.mColors[0], mesh.mColors[0] + mesh.mNumVertices,
                           [](const aiColor4D &color) { return !(color == aiColor4D(1, 1, 1, 1)); });
    }

    [[nodiscard]] std::vector<std::uint32_t> colorsOf(const aiMesh &mesh) const
    {
        aiColor4D base(1, 1, 1, 1);
        if (m_conventions.isLinear)
            m_scene.mMaterials[mesh.mMaterialIndex]->Get(AI_MATKEY_BASE_COLOR, base);
        std::vector<std::uint32_t> colors;
        colors.reserve(mesh.mNumVertices);
        for (unsigned index = 0; index < mesh.mNumVertices; ++index) {
            const aiColor4D color = mesh.mColors[0][index] * base;
            std::uint32_t packed = 0;
            for (unsigned part = 0; part < 4; ++part) {
                const float value = part < 3 && m_conventions.isLinear ? screenOf(color[part]) : color[part];
                // What is no number is black.
                packed |= std::uint32_t(value > 0 ? std::min(value, 1.0f) * 255.0f + 0.5f : 0.0f) << (8 * part);
            }
            colors.push_back(packed);
        }
        return colors;
    }

    [[nodiscard]] TDF_Label addLook(const aiMaterial &material)
    {
        aiString name;
        material.Get(AI_MATKEY_NAME, name);
        // The library has one of its own for what has none.
        if (textOf(name) == QLatin1String(AI_DEFAULT_MATERIAL_NAME))
            return {};
        const Handle(XCAFDoc_VisMaterial) look = new XCAFDoc_VisMaterial;
        if (m_conventions.isLinear)
            setPhysical(*look, material);
        else
            setCommon(*look, material);
        if (ownName(name).isEmpty() && saysNothing(*look))
            return {};
        return m_document.addLook(look, ownName(name));
    }

    /// The library makes one up for what has none.
    static bool saysNothing(const XCAFDoc_VisMaterial &look)
    {
        XCAFDoc_VisMaterialPBR nothing;
        nothing.IsDefined = Standard_True;
        return look.HasPbrMaterial() && look.PbrMaterial().IsEqual(nothing) &&
               look.AlphaMode() == Graphic3d_AlphaMode_Opaque;
    }

    void setPhysical(XCAFDoc_VisMaterial &look, const aiMaterial &material)
    {
        XCAFDoc_VisMaterialPBR pbr;
        aiColor4D color(1, 1, 1, 1);
        if (material.Get(AI_MATKEY_BASE_COLOR, color) == aiReturn_SUCCESS)
            pbr.BaseColor = Quantity_ColorRGBA(
                Quantity_Color(part(color.r), part(color.g), part(color.b), Quantity_TOC_RGB), float(part(color.a)));
        material.Get(AI_MATKEY_METALLIC_FACTOR, pbr.Metallic);
        material.Get(AI_MATKEY_ROUGHNESS_FACTOR, pbr.Roughness);
        aiColor3D emissive(0, 0, 0);
        material.Get(AI_MATKEY_COLOR_EMISSIVE, emissive);
        pbr.EmissiveFactor = Graphic3d_Vec3(emissive.r, emissive.g, emissive.b);
        pbr.BaseColorTexture = textureOf(material, aiTextureType_BASE_COLOR);
        if (pbr.BaseColorTexture.IsNull())
            pbr.BaseColorTexture = textureOf(material, aiTextureType_DIFFUSE);
        pbr.MetallicRoughnessTexture = textureOf(material, aiTextureType_UNKNOWN);
        pbr.EmissiveTexture = textureOf(material, aiTextureType_EMISSIVE);
        pbr.OcclusionTexture = textureOf(material, aiTextureType_LIGHTMAP);
        pbr.NormalTexture = textureOf(material, aiTextureType_NORMALS);
        look.SetPbrMaterial(pbr);
        aiString mode;
        float cutOff = 0.5f;
        material.Get(AI_MATKEY_GLTF_ALPHAMODE, mode);
        material.Get(AI_MATKEY_GLTF_ALPHACUTOFF, cutOff);
        const QString alpha = textOf(mode);
        look.SetAlphaMode(alpha == QLatin1String("MASK")    ? Graphic3d_AlphaMode_Mask
                          : alpha == QLatin1String("BLEND") ? Graphic3d_AlphaMode_Blend
                                                            : Graphic3d_AlphaMode_Opaque,
                          cutOff);
        bool isTwoSided = false;
        material.Get(AI_MATKEY_TWOSIDED, isTwoSided);
        look.SetFaceCulling(isTwoSided ? Graphic3d_TypeOfBackfacingModel_DoubleSided
                                       : Graphic3d_TypeOfBackfacingModel_Auto);
    }

    /// What shines in the shade follows from the colour: files say all kinds of things of it.
    void setCommon(XCAFDoc_VisMaterial &look, const aiMaterial &material)
    {
        aiColor3D diffuse(1, 1, 1);
        aiColor3D specular(0, 0, 0);
        aiColor3D emissive(0, 0, 0);
        float opacity = 1;
        float shininess = 0;
        material.Get(AI_MATKEY_COLOR_DIFFUSE, diffuse);
        material.Get(AI_MATKEY_COLOR_SPECULAR, specular);
        material.Get(AI_MATKEY_COLOR_EMISSIVE, emissive);
        material.Get(AI_MATKEY_OPACITY, opacity);
        material.Get(AI_MATKEY_SHININESS, shininess);
        XCAFDoc_VisMaterialCommon common =
            olPlainLook::bareLook(Quantity_ColorRGBA(colorOf(diffuse), float(part(opacity))));
        common.SpecularColor = colorOf(specular);
        common.EmissiveColor = colorOf(emissive);
        common.Shininess = float(part(shininess / olPlainLook::shiniest));
        common.DiffuseTexture = textureOf(material, aiTextureType_DIFFUSE);
        look.SetCommonMaterial(common);
    }

    static double part(float value) { return value > 0 ? std::min(double(value), 1.0) : 0.0; }

    static Quantity_Color colorOf(const aiColor3D &color)
    {
        return {part(color.r), part(color.g), part(color.b), Quantity_TOC_sRGB};
    }

    [[nodiscard]] Handle(Image_Texture) textureOf(const aiMaterial &material, aiTextureType type)
    {
        aiString name;
        if (material.GetTexture(type, 0, &name) != aiReturn_SUCCESS || name.length == 0)
            return {};
        m_usedTextures.insert(name.C_Str());
        const aiTexture *embedded = m_scene.GetEmbeddedTexture(name.C_Str());
        if (!embedded)
            return new Image_Texture(name.C_Str());
        // Those with a height are bare pixels, which none of our formats has.
        if (embedded->mHeight != 0)
            return {};
        return olTextureOf(QByteArray(reinterpret_cast<const char *>(embedded->pcData), int(embedded->mWidth)));
    }

    const aiScene &m_scene;
    const olAssimpReader::Conventions &m_conventions;
    olMeshDocument m_document;
    QString m_name;
    gp_Mat m_turn;
    std::vector<unsigned> m_same;
    std::vector<TDF_Label> m_looks;
    std::map<std::pair<std::vector<unsigned>, olMeshDocument::Proportions>, TDF_Label> m_parts;
    std::map<int, int> m_uses;
    std::set<std::string> m_usedTextures;
    bool m_isTooDeep = false;
};

} // namespace

olResult<> olAssimpReader::read(const olImportJob &job, const Conventions &conventions,
                                const olScene::Document &document, const Message_ProgressRange &progress,
                                QStringList &remarks)
{
    Assimp::Importer importer;
    importer.SetIOHandler(new Files(job.fileToRead(), remarks));
    Message_ProgressScope scope(progress, "File", 1);
    importer.SetProgressHandler(new Progress(scope.Next()));
    const aiScene *scene =
        importer.ReadFile(QFile::encodeName(job.fileToRead()).constData(),
                          aiProcess_Triangulate | aiProcess_SortByPType | aiProcess_JoinIdenticalVertices);
    if (!scene || !scene->mRootNode) {
        const QString fault = QString::fromUtf8(importer.GetErrorString()).section(QLatin1Char('\n'), 0, 0).trimmed();
        return fault.isEmpty() ? damaged() : olFailure{olReason::tr("the file is damaged (%1)").arg(fault)};
    }
    Conversion conversion(*scene, conventions, document, QFileInfo(job.file).completeBaseName());
    if (!conversion.run())
        return olFailure{olReason::tr("its groups are nested too deeply")};
    const QStringList leftOut = conversion.leftOut();
    if (!leftOut.isEmpty())
        remarks << olReason::tr("Meshes of lines or points that are left out: %1.").arg(listedWithNameless(leftOut));
    const QStringList unused = conversion.unusedTextures();
    if (!unused.isEmpty())
        remarks << olReason::tr("Textures of kinds that are not drawn here: %1.").arg(listed(unused));
    return {};
}

olResult<> olAssimpReader::read(const olImportJob &job, const olScene::Document &document,
                                const Message_ProgressRange &progress, QStringList &remarks)
{
    return read(job, Conventions(), document, progress, remarks);
}
