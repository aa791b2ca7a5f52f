#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/Formats/olVrmlText.h"
#include "Exchange/Formats/olVrmlWriter.h"
#include "Exchange/olMeshDocument.h"
#include "Exchange/olModelFormat.h"
#include "Exchange/olTextures.h"
#include "Model/olColoredMesh.h"
#include "Model/olPlainLook.h"

#include <Image_Texture.hxx>
#include <Message_ProgressRange.hxx>
#include <Poly_Triangulation.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TDF_Label.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <gp_GTrsf.hxx>
#include <gp_Mat.hxx>

#include <Inventor/SbColor.h>
#include <Inventor/SbMatrix.h>
#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/SoPrimitiveVertex.h>
#include <Inventor/VRMLnodes/SoVRMLAppearance.h>
#include <Inventor/VRMLnodes/SoVRMLCoordinate.h>
#include <Inventor/VRMLnodes/SoVRMLGroup.h>
#include <Inventor/VRMLnodes/SoVRMLImageTexture.h>
#include <Inventor/VRMLnodes/SoVRMLIndexedFaceSet.h>
#include <Inventor/VRMLnodes/SoVRMLIndexedLineSet.h>
#include <Inventor/VRMLnodes/SoVRMLLOD.h>
#include <Inventor/VRMLnodes/SoVRMLMovieTexture.h>
#include <Inventor/VRMLnodes/SoVRMLParent.h>
#include <Inventor/VRMLnodes/SoVRMLPixelTexture.h>
#include <Inventor/VRMLnodes/SoVRMLShape.h>
#include <Inventor/VRMLnodes/SoVRMLSwitch.h>
#include <Inventor/VRMLnodes/SoVRMLTransform.h>
#include <Inventor/actions/SoCallbackAction.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/fields/SoMFInt32.h>
#include <Inventor/fields/SoMFNode.h>
#include <Inventor/fields/SoMFString.h>
#include <Inventor/fields/SoSFImage.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoIndexedShape.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoTexture2.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <utility>
#include <vector>

using namespace olFormatTools;

olModelFormat olVrmlFormat();

namespace
{

olResult<> check(QFile &file, QStringList &)
{
    const QByteArray head = file.read(64);
    if (!head.startsWith("#VRML V2") && !head.startsWith("#VRML V1"))
        return olFailure{olReason::tr("this is no VRML file")};
    return {};
}

/// The first fault that Coin finds in a file; it goes on reading all the same, or not.
QString &firstFault()
{
    static QString fault;
    return fault;
}

void noteFault(const SoError *error, void *)
{
    const QString text = QString::fromUtf8(error->getDebugString().getString());
    // Pictures are our own business.
    if (firstFault().isEmpty() && !text.contains(QLatin1String("texture file")))
        firstFault() = text;
}

void keepQuiet(const SoError *, void *) {}

void noteMissing(QStringList &remarks, const QString &file)
{
    const QString remark = olReason::tr("The file %1 that it refers to was not found.").arg(QFileInfo(file).fileName());
    if (!remarks.contains(remark))
        remarks << remark;
}

/// Coin, whose complaints belong to us.
void prepareCoin()
{
    static const bool isPrepared = [] {
        SoDB::init();
        // It opens textures by itself, of which one may be a pipe; here it finds none.
        QDir::setCurrent(QStringLiteral("/"));
        SoReadError::setHandlerCallback(noteFault, nullptr);
        SoDebugError::setHandlerCallback(keepQuiet, nullptr);
        return true;
    }();
    Q_UNUSED(isPrepared)
}

/// A node of Coin's, which counts its users.
template <class Node> class Held
{
public:
    explicit Held(Node *node) : m_node(node)
    {
        if (m_node)
            m_node->ref();
    }
    ~Held()
    {
        if (m_node)
            m_node->unref();
    }
    Held(const Held &) = delete;
    Held &operator=(const Held &) = delete;

    [[nodiscard]] Node *get() const { return m_node; }

private:
    Node *m_node;
};

/// What a shape looks like when it is taken apart into triangles.
struct Triangles {
    std::vector<gp_XYZ> points;
    std::vector<gp_XYZ> normals;
    std::vector<gp_XY> places;
    std::vector<std::uint32_t> colors;
    SbColor diffuse;
    SbColor specular;
    SbColor emissive;
    float shininess = 0;
    float transparency = 0;
    int others = 0;
};

std::uint32_t packed(const SbColor &color, float transparency)
{
    std::uint32_t all = 0;
    for (int part = 0; part < 4; ++part) {
        const float value = part < 3 ? color[part] : 1.0f - transparency;
        all |= std::uint32_t(value > 0 ? std::min(value, 1.0f) * 255.0f + 0.5f : 0.0f) << (8 * part);
    }
    return all;
}

void addCorner(Triangles &to, SoCallbackAction *action, const SoPrimitiveVertex &corner)
{
    const SbVec3f &point = corner.getPoint();
    const SbVec3f &normal = corner.getNormal();
    SbVec3f place;
    action->getTextureMatrix().multVecMatrix(SbVec3f(corner.getTextureCoords()[0], corner.getTextureCoords()[1], 0),
                                             place);
    SbColor ambient;
    action->getMaterial(ambient, to.diffuse, to.specular, to.emissive, to.shininess, to.transparency,
                        corner.getMaterialIndex());
    to.points.emplace_back(point[0], point[1], point[2]);
    to.normals.emplace_back(normal[0], normal[1], normal[2]);
    to.places.emplace_back(place[0], place[1]);
    to.colors.push_back(packed(to.diffuse, to.transparency));
}

void addTriangle(void *data, SoCallbackAction *action, const SoPrimitiveVertex *one, const SoPrimitiveVertex *two,
                 const SoPrimitiveVertex *three)
{
    auto &to = *static_cast<Triangles *>(data);
    const SbVec3f across = (two->getPoint() - one->getPoint()).cross(three->getPoint() - one->getPoint());
    // Corners come in the order of the file, which may be the wrong way round.
    const bool isTurned = across.dot(one->getNormal() + two->getNormal() + three->getNormal()) < 0;
    addCorner(to, action, *one);
    addCorner(to, action, isTurned ? *three : *two);
    addCorner(to, action, isTurned ? *two : *three);
}

void addLine(void *data, SoCallbackAction *, const SoPrimitiveVertex *, const SoPrimitiveVertex *)
{
    static_cast<Triangles *>(data)->others = 1;
}

void addPoint(void *data, SoCallbackAction *, const SoPrimitiveVertex *) { static_cast<Triangles *>(data)->others = 1; }

Handle(Poly_Triangulation) meshOf(const Triangles &from, const gp_Mat &matrix, bool hasTexture)
{
    const int nodes = int(from.points.size());
    const bool isColored = std::any_of(from.colors.begin(), from.colors.end(),
                                       [&](std::uint32_t color) { return color != from.colors[0]; });
    Handle(olColoredMesh) colored;
    if (isColored) {
        colored = new olColoredMesh(nodes, nodes / 3, hasTexture, Standard_True);
        colored->colors = from.colors;
    }
    const Handle(Poly_Triangulation) mesh = isColored
                                                ? Handle(Poly_Triangulation)(colored)
                                                : new Poly_Triangulation(nodes, nodes / 3, hasTexture, Standard_True);
    const gp_Mat forNormals = olMeshDocument::forNormals(matrix);
    const bool isMirrored = matrix.Determinant() < 0;
    for (int node = 1; node <= nodes; ++node) {
        const auto index = std::size_t(node - 1);
        mesh->SetNode(node, matrix * from.points[index]);
        const gp_XYZ normal = forNormals * from.normals[index];
        const double length = normal.Modulus();
        mesh->SetNormal(node, length > 0 ? gp_Vec3f(float(normal.X() / length), float(normal.Y() / length),
                                                    float(normal.Z() / length))
                                         : gp_Vec3f(0, 0, 1));
        if (hasTexture)
            mesh->SetUVNode(node, from.places[index]);
    }
    for (int first = 1; first <= nodes - 2; first += 3)
        mesh->SetTriangle(first / 3 + 1, isMirrored ? Poly_Triangle(first, first + 2, first + 1)
                                                    : Poly_Triangle(first, first + 1, first + 2));
    return mesh;
}

Quantity_Color colorOf(const SbColor &color)
{
    const auto part = [&color](int index) { return double(std::clamp(color[index], 0.0f, 1.0f)); };
    return {part(0), part(1), part(2), Quantity_TOC_sRGB};
}

Handle(XCAFDoc_VisMaterial) lookOf(const Triangles &from, const Handle(Image_Texture) & texture)
{
    XCAFDoc_VisMaterialCommon common = olPlainLook::bareLook(
        Quantity_ColorRGBA(colorOf(from.diffuse), 1.0f - std::clamp(from.transparency, 0.0f, 1.0f)));
    common.SpecularColor = colorOf(from.specular);
    common.EmissiveColor = colorOf(from.emissive);
    common.Shininess = std::clamp(from.shininess, 0.0f, 1.0f);
    common.DiffuseTexture = texture;
    const Handle(XCAFDoc_VisMaterial) look = new XCAFDoc_VisMaterial;
    look->SetCommonMaterial(common);
    return look;
}

/// Whether all indices of a shape are of points that are there; -1 ends a polygon.
bool refersToPoints(const SoMFInt32 &indices, int points)
{
    const int32_t *values = indices.getValues(0);
    return std::all_of(values, values + indices.getNum(),
                       [points](int32_t index) { return index >= -1 && index < points; });
}

bool hasItsPoints(SoNode *geometry)
{
    const auto count = [](SoNode *coordinates) {
        return coordinates && coordinates->isOfType(SoVRMLCoordinate::getClassTypeId())
                   ? static_cast<SoVRMLCoordinate *>(coordinates)->point.getNum()
                   : 0;
    };
    if (geometry->isOfType(SoVRMLIndexedFaceSet::getClassTypeId())) {
        auto *set = static_cast<SoVRMLIndexedFaceSet *>(geometry);
        return refersToPoints(set->coordIndex, count(set->coord.getValue()));
    }
    if (geometry->isOfType(SoVRMLIndexedLineSet::getClassTypeId())) {
        auto *set = static_cast<SoVRMLIndexedLineSet *>(geometry);
        return refersToPoints(set->coordIndex, count(set->coord.getValue()));
    }
    return true;
}

/// A texture that stands in the file pixel by pixel.
Handle(Image_Texture) pixelsOf(const SoSFImage &image)
{
    SbVec2s size;
    int parts = 0;
    const unsigned char *pixels = image.getValue(size, parts);
    if (!pixels || size[0] <= 0 || size[1] <= 0 || parts < 1 || parts > 4)
        return {};
    QImage picture(size[0], size[1], QImage::Format_RGBA8888);
    for (int row = 0; row < size[1]; ++row) {
        for (int column = 0; column < size[0]; ++column, pixels += parts) {
            const bool isGrey = parts < 3;
            const int alpha = parts % 2 == 0 ? pixels[parts - 1] : 255;
            picture.setPixel(column, size[1] - 1 - row,
                             qRgba(pixels[0], pixels[isGrey ? 0 : 1], pixels[isGrey ? 0 : 2], alpha));
        }
    }
    return olTextureOf(picture);
}

/// The field of a node that Coin has stumbled over because no such node has it; false where it was something else.
bool takeUnknownField(olVrmlText::Fields &fields)
{
    static const QRegularExpression unknown(QStringLiteral("Unknown field \"([^\"]+)\" in \"(?:VRML)?([^\"]+)\""));
    const QRegularExpressionMatch found = unknown.match(firstFault());
    return found.hasMatch() && fields.emplace(found.captured(2).toLatin1(), found.captured(1).toLatin1()).second;
}

/// The content of a file, and behind `links` what it refers to; null where it cannot be understood.
SoSeparator *readRoot(const QString &name, std::vector<QStringList> &links, bool &isOld, QStringList &remarks)
{
    prepareCoin();
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    const QByteArray whole = file.readAll();
    const QDir folder = QFileInfo(name).absoluteDir();
    isOld = whole.startsWith("#VRML V1");
    olVrmlText::Fields unknown;
    constexpr std::size_t mostUnknown = 100;
    do {
        firstFault().clear();
        // Numbers of links go on from those of the file that refers to this one.
        const olVrmlText text(whole, folder, int(links.size()), unknown);
        SoInput input;
        input.setBuffer(text.content().constData(), std::size_t(text.content().size()));
        SoSeparator *root = SoDB::readAll(&input);
        if (root && firstFault().isEmpty()) {
            links.insert(links.end(), text.links().begin(), text.links().end());
            for (const QString &missing : text.missing())
                noteMissing(remarks, missing);
            if (!text.passedOver().isEmpty())
                remarks << olReason::tr("Files that it refers to and that are left out: %1.")
                               .arg(listed(text.passedOver()));
            for (const auto &[node, field] : unknown)
                remarks << olReason::tr("No %1 has the field %2; it is passed over.")
                               .arg(QString::fromLatin1(node), QString::fromLatin1(field));
            return root;
        }
        if (root) {
            root->ref();
            root->unref();
        }
    } while (unknown.size() < mostUnknown && takeUnknownField(unknown));
    return nullptr;
}

olFailure faultOfText()
{
    static const QRegularExpression place(QStringLiteral("line (\\d+)"));
    const QString line = place.match(firstFault()).captured(1);
    const QString what = firstFault().section(QLatin1Char('\n'), 0, 0).section(QStringLiteral(": "), 1).trimmed();
    if (what.isEmpty())
        return damaged();
    return {line.isEmpty() ? olReason::tr("the file is damaged (%1)").arg(what)
                           : olReason::tr("the file is damaged: line %1 cannot be understood (%2)").arg(line, what)};
}

/// Builds a document from Coin's scene.
class Walk
{
public:
    Walk(const olImportJob &job, const olScene::Document &document, QStringList &remarks)
        : m_name(QFileInfo(job.file).completeBaseName()), m_target(document), m_remarks(remarks)
    {
        m_openFiles << QFileInfo(job.file).canonicalFilePath();
    }

    olResult<> run(const QString &file)
    {
        bool isOld = false;
        const Held<SoSeparator> held(readRoot(file, m_links, isOld, m_remarks));
        SoSeparator *root = held.get();
        if (!root)
            return faultOfText();
        std::vector<olMeshDocument::Member> members;
        const gp_Mat one(1, 0, 0, 0, 1, 0, 0, 0, 1);
        if (isOld) {
            addFlat(root, members);
        } else {
            for (int index = 0; index < root->getNumChildren(); ++index)
                add(root->getChild(index), one, 0, members);
        }
        m_target.addGroup(m_name, members);
        m_target.finish();
        if (!m_leftOut.isEmpty())
            m_remarks
                << olReason::tr("Shapes of lines or points that are left out: %1.").arg(listedWithNameless(m_leftOut));
        return m_result;
    }

private:
    using Members = std::vector<olMeshDocument::Member>;

    static constexpr int deepest = 200;

    /// Our own files number what has no name.
    static QString nameOf(const SoNode *node)
    {
        static const QRegularExpression number(QStringLiteral("^_\\d+$"));
        const QString name = QString::fromUtf8(node->getName().getString());
        return number.match(name).hasMatch() ? QString() : name;
    }

    static gp_GTrsf transformationOf(SoNode *node)
    {
        if (!node->isOfType(SoVRMLTransform::getClassTypeId()))
            return {};
        auto *from = static_cast<SoVRMLTransform *>(node);
        SbMatrix matrix;
        matrix.setTransform(from->translation.getValue(), from->rotation.getValue(), from->scale.getValue(),
                            from->scaleOrientation.getValue(), from->center.getValue());
        return transformationOf(matrix);
    }

    /// Coin multiplies from the other side.
    static gp_GTrsf transformationOf(const SbMatrix &m)
    {
        return {gp_Mat(m[0][0], m[1][0], m[2][0], m[0][1], m[1][1], m[2][1], m[0][2], m[1][2], m[2][2]),
                gp_XYZ(m[3][0], m[3][1], m[3][2])};
    }

    /// What is seen below a node; a switch shows one of its nodes, and of levels of detail the finest counts.
    std::vector<SoNode *> childrenOf(SoNode *node)
    {
        std::vector<SoNode *> children;
        const auto addAll = [&children](const SoMFNode &from) {
            for (int index = 0; index < from.getNum(); ++index)
                children.push_back(from[index]);
        };
        if (node->isOfType(SoVRMLSwitch::getClassTypeId())) {
            auto *choice = static_cast<SoVRMLSwitch *>(node);
            const int which = choice->whichChoice.getValue();
            if (which >= 0 && which < choice->choice.getNum())
                children.push_back(choice->choice[which]);
        } else if (node->isOfType(SoVRMLLOD::getClassTypeId())) {
            auto *levels = static_cast<SoVRMLLOD *>(node);
            if (levels->level.getNum() > 0)
                children.push_back(levels->level[0]);
        } else if (SoSeparator *content = contentOf(node)) {
            for (int index = 0; index < content->getNumChildren(); ++index)
                children.push_back(content->getChild(index));
        } else if (node->isOfType(SoVRMLParent::getClassTypeId())) {
            addAll(static_cast<SoVRMLParent *>(node)->children);
        } else if (node->isOfType(SoGroup::getClassTypeId())) {
            auto *group = static_cast<SoGroup *>(node);
            for (int index = 0; index < group->getNumChildren(); ++index)
                children.push_back(group->getChild(index));
        }
        return children;
    }

    static bool isGroup(SoNode *node)
    {
        return node->isOfType(SoVRMLParent::getClassTypeId()) || node->isOfType(SoVRMLSwitch::getClassTypeId()) ||
               node->isOfType(SoVRMLLOD::getClassTypeId()) || node->isOfType(SoGroup::getClassTypeId());
    }

    void add(SoNode *node, const gp_Mat &rest, int depth, Members &members)
    {
        if (!node || !m_result.isOk())
            return;
        if (depth > deepest || m_open.count(node) > 0) {
            m_result = olFailure{depth > deepest ? olReason::tr("its groups are nested too deeply")
                                                 : olReason::tr("a group in it holds itself")};
            return;
        }
        const olMeshDocument::Placement placement =
            olMeshDocument::placementOf(gp_GTrsf(rest, gp_XYZ()) * transformationOf(node));
        // A transformation of a single node only says where this node stands; it makes no group.
        SoNode *placed = onlyChild(node);
        m_open.insert(node);
        const TDF_Label label = labelOf(placed ? placed : node, placement.rest, depth);
        m_open.erase(node);
        if (label.IsNull())
            return;
        const QString own = nameOf(node);
        members.push_back({label, placement.where, own.isEmpty() && placed ? nameOf(placed) : own});
    }

    SoNode *onlyChild(SoNode *node)
    {
        if (!node->isOfType(SoVRMLTransform::getClassTypeId()))
            return nullptr;
        const std::vector<SoNode *> children = childrenOf(node);
        return children.size() == 1 && !children[0]->isOfType(SoVRMLTransform::getClassTypeId()) ? children[0]
                                                                                                 : nullptr;
    }

    /// A node that is used in several places is one part or group in all of them.
    TDF_Label labelOf(SoNode *node, const gp_Mat &rest, int depth)
    {
        const auto key = std::make_pair(node, olMeshDocument::proportionsOf(rest));
        const auto known = m_done.find(key);
        if (known != m_done.end())
            return known->second;
        TDF_Label label;
        if (node->isOfType(SoVRMLShape::getClassTypeId())) {
            label = partOf(static_cast<SoVRMLShape *>(node), rest);
        } else if (isGroup(node)) {
            Members members;
            m_open.insert(node);
            const QString file = fileOf(node);
            const std::vector<SoNode *> children = childrenOf(node);
            m_openFiles << file;
            for (SoNode *child : children)
                add(child, rest, depth + 1, members);
            m_openFiles.removeLast();
            m_open.erase(node);
            label = m_target.addGroup(nameOf(node), members);
        }
        m_done.emplace(key, label);
        return label;
    }

    TDF_Label partOf(SoVRMLShape *shape, const gp_Mat &rest)
    {
        SoNode *geometry = shape->geometry.getValue();
        if (!geometry)
            return {};
        if (!hasItsPoints(geometry)) {
            m_result = olFailure{olReason::tr("the file is damaged: a face refers to a point that is not there")};
            return {};
        }
        SoNode *node = shape->appearance.getValue();
        auto *appearance = node && node->isOfType(SoVRMLAppearance::getClassTypeId())
                               ? static_cast<SoVRMLAppearance *>(node)
                               : nullptr;
        const Handle(Image_Texture) texture = textureOf(appearance ? appearance->texture.getValue() : nullptr);
        Triangles triangles;
        SoCallbackAction action;
        listen(action, triangles);
        action.apply(shape);
        const bool hasLook = appearance && (appearance->material.getValue() || !texture.IsNull());
        return partOf(triangles, rest, nameOf(shape), texture, hasLook);
    }

    static void listen(SoCallbackAction &action, Triangles &triangles)
    {
        action.addTriangleCallback(SoShape::getClassTypeId(), addTriangle, &triangles);
        action.addLineSegmentCallback(SoShape::getClassTypeId(), addLine, &triangles);
        action.addPointCallback(SoShape::getClassTypeId(), addPoint, &triangles);
    }

    TDF_Label partOf(const Triangles &triangles, const gp_Mat &rest, const QString &name,
                     const Handle(Image_Texture) & texture, bool hasLook)
    {
        if (triangles.others > 0)
            m_leftOut << name;
        if (triangles.points.empty())
            return {};
        const TDF_Label look = hasLook ? m_target.addLook(lookOf(triangles, texture), QString()) : TDF_Label();
        return m_target.addPart(name, {{meshOf(triangles, rest, !texture.IsNull()), look}});
    }

    Handle(Image_Texture) textureOf(const SoNode *texture) const
    {
        if (!texture)
            return {};
        if (texture->isOfType(SoVRMLPixelTexture::getClassTypeId()))
            return pixelsOf(static_cast<const SoVRMLPixelTexture *>(texture)->image);
        if (texture->isOfType(SoTexture2::getClassTypeId())) {
            const auto *old = static_cast<const SoTexture2 *>(texture);
            if (old->filename.getValue().getLength() == 0)
                return pixelsOf(old->image);
            return new Image_Texture(QFile::encodeName(placeOf(old->filename.getValue())).constData());
        }
        if (texture->isOfType(SoVRMLMovieTexture::getClassTypeId())) {
            const SoMFString &films = static_cast<const SoVRMLMovieTexture *>(texture)->url;
            const QString remark = olReason::tr("The texture %1 is a film, which is left out.")
                                       .arg(films.getNum() > 0 ? QFile::decodeName(films[0].getString()) : QString());
            if (!m_remarks.contains(remark))
                m_remarks << remark;
        }
        if (!texture->isOfType(SoVRMLImageTexture::getClassTypeId()))
            return {};
        const SoMFString &urls = static_cast<const SoVRMLImageTexture *>(texture)->url;
        QStringList places;
        for (int index = 0; index < urls.getNum(); ++index)
            places << placeOf(urls[index]);
        const QString file = firstThere(places);
        return file.isEmpty() ? Handle(Image_Texture)() : new Image_Texture(QFile::encodeName(file).constData());
    }

    /// Of several places, the first where there is a file; else simply the first.
    static QString firstThere(const QStringList &places)
    {
        const auto there =
            std::find_if(places.begin(), places.end(), [](const QString &place) { return QFileInfo(place).isFile(); });
        return there != places.end() ? *there : places.value(0);
    }

    /// Beside the file that has the node; as it stands there where there is none.
    [[nodiscard]] QString placeOf(const SbString &url) const
    {
        const QString name = QFile::decodeName(url.getString());
        for (auto file = m_openFiles.rbegin(); file != m_openFiles.rend(); ++file) {
            const QString beside = QFileInfo(*file).dir().filePath(name);
            if (!file->isEmpty())
                return QFileInfo(beside).isFile() ? beside : name;
        }
        return name;
    }

    /// The file whose content stands in the place of the node; empty for all others.
    QString fileOf(SoNode *node) const
    {
        const int number = node->isOfType(SoVRMLGroup::getClassTypeId())
                               ? olVrmlText::numberOf(*static_cast<SoVRMLGroup *>(node))
                               : -1;
        return number < 0 || number >= int(m_links.size())
                   ? QString()
                   : QFileInfo(firstThere(m_links[std::size_t(number)])).canonicalFilePath();
    }

    /// What another file has in the place of the group; null where it stands for none.
    SoSeparator *contentOf(SoNode *node)
    {
        if (!node->isOfType(SoVRMLGroup::getClassTypeId()))
            return nullptr;
        const int number = olVrmlText::numberOf(*static_cast<SoVRMLGroup *>(node));
        if (number < 0 || number >= int(m_links.size()))
            return nullptr;
        const QString url = firstThere(m_links[std::size_t(number)]);
        const QFileInfo file(url);
        if (!file.isFile()) {
            noteMissing(m_remarks, url);
            return nullptr;
        }
        const QString name = file.canonicalFilePath();
        if (m_openFiles.contains(name)) {
            m_result = olFailure{olReason::tr("it refers to itself through %1").arg(file.fileName())};
            return nullptr;
        }
        if (SoSeparator *known = m_roots.value(name))
            return known;
        bool isOld = false;
        SoSeparator *content = readRoot(name, m_links, isOld, m_remarks);
        if (!content) {
            m_result = olFailure{olReason::tr("the file %1 that it refers to cannot be read").arg(file.fileName())};
            return nullptr;
        }
        m_roots.insert(name, content);
        return content;
    }

    /// Version 1 has no places for shapes of their own: what stands before a shape says how it looks and where it is.
    void addFlat(SoSeparator *root, Members &members)
    {
        m_flat = &members;
        Triangles triangles;
        m_triangles = &triangles;
        SoCallbackAction action;
        listen(action, triangles);
        m_textures = {nullptr};
        action.addPreCallback(
            SoSeparator::getClassTypeId(),
            [](void *walk, SoCallbackAction *, const SoNode *) {
                auto &textures = static_cast<Walk *>(walk)->m_textures;
                textures.push_back(textures.back());
                return SoCallbackAction::CONTINUE;
            },
            this);
        action.addPostCallback(
            SoSeparator::getClassTypeId(),
            [](void *walk, SoCallbackAction *, const SoNode *) {
                static_cast<Walk *>(walk)->m_textures.pop_back();
                return SoCallbackAction::CONTINUE;
            },
            this);
        action.addPreCallback(
            SoTexture2::getClassTypeId(),
            [](void *walk, SoCallbackAction *, const SoNode *texture) {
                static_cast<Walk *>(walk)->m_textures.back() = static_cast<const SoTexture2 *>(texture);
                return SoCallbackAction::CONTINUE;
            },
            this);
        action.addPreCallback(
            SoShape::getClassTypeId(),
            [](void *walk, SoCallbackAction *at, const SoNode *shape) {
                return static_cast<Walk *>(walk)->beginFlat(*at, *shape);
            },
            this);
        action.addPostCallback(
            SoShape::getClassTypeId(),
            [](void *walk, SoCallbackAction *at, const SoNode *shape) {
                static_cast<Walk *>(walk)->endFlat(*at, *shape);
                return SoCallbackAction::CONTINUE;
            },
            this);
        action.apply(root);
    }

    SoCallbackAction::Response beginFlat(SoCallbackAction &at, const SoNode &shape)
    {
        *m_triangles = Triangles();
        if (!shape.isOfType(SoIndexedShape::getClassTypeId()))
            return SoCallbackAction::CONTINUE;
        if (refersToPoints(static_cast<const SoIndexedShape &>(shape).coordIndex, at.getNumCoordinates()))
            return SoCallbackAction::CONTINUE;
        m_result = olFailure{olReason::tr("the file is damaged: a face refers to a point that is not there")};
        return SoCallbackAction::ABORT;
    }

    void endFlat(SoCallbackAction &at, const SoNode &shape)
    {
        const olMeshDocument::Placement placement = olMeshDocument::placementOf(transformationOf(at.getModelMatrix()));
        QString name = nameOf(&shape);
        for (int up = at.getCurPath()->getLength() - 1; name.isEmpty() && up >= 0; --up)
            name = nameOf(at.getCurPath()->getNode(up));
        const TDF_Label part = partOf(*m_triangles, placement.rest, name, textureOf(m_textures.back()), true);
        if (!part.IsNull())
            m_flat->push_back({part, placement.where, name});
    }

    QString m_name;
    olMeshDocument m_target;
    QStringList &m_remarks;
    olResult<> m_result;
    QStringList m_openFiles;
    QHash<QString, SoSeparator *> m_roots;
    std::vector<QStringList> m_links;
    QStringList m_leftOut;
    std::set<SoNode *> m_open;
    std::map<std::pair<SoNode *, olMeshDocument::Proportions>, TDF_Label> m_done;
    Members *m_flat = nullptr;
    Triangles *m_triangles = nullptr;
    std::vector<const SoTexture2 *> m_textures;
};

olResult<> read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &,
                QStringList &remarks)
{
    return Walk(job, document, remarks).run(job.file);
}

} // namespace

olModelFormat olVrmlFormat()
{
    return {"VRML",
            "WRL",
            {QStringLiteral("wrl"), QStringLiteral("vrml")},
            olModelFormat::Meshes | olModelFormat::Colors | olModelFormat::Opacity | olModelFormat::Textures |
                olModelFormat::CornerColors | olModelFormat::Structure | olModelFormat::Names,
            check,
            read,
            olWriteVrml};
}
