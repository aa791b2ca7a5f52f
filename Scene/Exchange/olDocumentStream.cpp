#include "Exchange/olDocumentStream.h"

#include "Model/olColoredMesh.h"
#include "Model/olMeshTools.h"

#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <BinTools.hxx>
#include <Image_Texture.hxx>
#include <NCollection_Buffer.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <Standard_ArrayStreamBuffer.hxx>
#include <Standard_Failure.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelIndexedMap.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDataStd_TreeNode.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>
#include <XCAFDoc.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_LayerTool.hxx>
#include <XCAFDoc_Material.hxx>
#include <XCAFDoc_MaterialTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <istream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <type_traits>
#include <vector>

#include <unistd.h>

namespace
{

using Mesh = Handle(Poly_Triangulation);

// Deeper than this no document is: what claims to be has been tampered with.
constexpr int deepest = 100;

constexpr XCAFDoc_ColorType colorKinds[] = {XCAFDoc_ColorGen, XCAFDoc_ColorSurf, XCAFDoc_ColorCurv};

enum class ShapeKind : std::uint8_t { Mesh, Compound, Exact };
enum class LabelKind : std::uint8_t { Part, Group, Placed };
enum class TextureKind : std::uint8_t { None, File, Bytes };

/// Collects bytes and hands them to the file in blocks.
class Output
{
public:
    explicit Output(int file) : m_file(file) { m_bytes.reserve(block); }

    void put(const void *bytes, std::size_t count)
    {
        if (m_bytes.size() + count > block)
            flush();
        const auto *from = static_cast<const char *>(bytes);
        if (count > block)
            return send(from, count);
        m_bytes.insert(m_bytes.end(), from, from + count);
    }
    template <class Value> void put(const Value &value)
    {
        static_assert(std::is_trivially_copyable_v<Value>);
        put(&value, sizeof(value));
    }
    void putText(const std::string &text)
    {
        put(std::uint64_t(text.size()));
        put(text.data(), text.size());
    }
    void flush()
    {
        send(m_bytes.data(), m_bytes.size());
        m_bytes.clear();
    }

private:
    void send(const char *bytes, std::size_t count) const
    {
        while (count > 0) {
            const ssize_t sent = ::write(m_file, bytes, count);
            if (sent < 0)
                throw std::system_error(errno, std::generic_category());
            bytes += sent;
            count -= std::size_t(sent);
        }
    }

    static constexpr std::size_t block = 1 << 20;
    int m_file;
    std::vector<char> m_bytes;
};

/// Hands bytes out and throws where there are no more.
class Input
{
public:
    Input(const unsigned char *bytes, std::size_t count) : m_at(bytes), m_end(bytes + count) {}

    const unsigned char *take(std::size_t count)
    {
        if (count > std::size_t(m_end - m_at))
            throw std::out_of_range("the result is cut off");
        const unsigned char *taken = m_at;
        m_at += count;
        return taken;
    }
    template <class Value> Value get()
    {
        static_assert(std::is_trivially_copyable_v<Value>);
        Value value;
        std::memcpy(&value, take(sizeof(value)), sizeof(value));
        return value;
    }
    std::string getText()
    {
        const auto size = get<std::uint64_t>();
        const unsigned char *text = take(size);
        return {text, text + size};
    }

    /// A number of things of which each takes at least one byte.
    std::uint32_t getCount()
    {
        const auto count = get<std::uint32_t>();
        if (count > std::size_t(m_end - m_at))
            throw std::out_of_range("the result counts more than it holds");
        return count;
    }

    /// One of so many.
    std::uint32_t getIndex(std::size_t end)
    {
        const auto index = get<std::uint32_t>();
        if (index >= end)
            throw std::out_of_range("the result refers to what is not there");
        return index;
    }

private:
    const unsigned char *m_at;
    const unsigned char *m_end;
};

/// The tools of one document.
struct Tools {
    explicit Tools(const olScene::Document &document)
        : shapes(XCAFDoc_DocumentTool::ShapeTool(document->Main())),
          colors(XCAFDoc_DocumentTool::ColorTool(document->Main())),
          layers(XCAFDoc_DocumentTool::LayerTool(document->Main())),
          looks(XCAFDoc_DocumentTool::VisMaterialTool(document->Main())),
          materials(XCAFDoc_DocumentTool::MaterialTool(document->Main()))
    {
    }

    Handle(XCAFDoc_ShapeTool) shapes;
    Handle(XCAFDoc_ColorTool) colors;
    Handle(XCAFDoc_LayerTool) layers;
    Handle(XCAFDoc_VisMaterialTool) looks;
    Handle(XCAFDoc_MaterialTool) materials;
};

Mesh bareMeshOf(const TopoDS_Shape &shape)
{
    if (shape.ShapeType() != TopAbs_FACE)
        return {};
    TopLoc_Location location;
    const TopoDS_Face &face = TopoDS::Face(shape);
    return BRep_Tool::Surface(face, location).IsNull() ? BRep_Tool::Triangulation(face, location) : Mesh();
}

std::string textOf(const Handle(TCollection_HAsciiString) & text)
{
    return text.IsNull() ? std::string() : std::string(text->ToCString());
}

std::string textOf(const TCollection_ExtendedString &text)
{
    std::string utf8(std::size_t(text.LengthOfCString()) + 1, '\0');
    Standard_PCharacter start = utf8.data();
    utf8.resize(std::size_t(text.ToUTF8CString(start)));
    return utf8;
}

TCollection_ExtendedString extended(const std::string &text) { return {text.c_str(), Standard_True}; }

class Writer
{
public:
    Writer(const olScene::Document &document, Output &out) : m_from(document), m_out(out) {}

    void write()
    {
        TDF_LabelSequence labels;
        m_from.shapes->GetShapes(labels);
        for (const TDF_Label &label : labels)
            collect(label, 0);
        writeLooks();
        writeMaterials();
        for (int index = 1; index <= m_numbers.Extent(); ++index)
            note(m_numbers(index));
        writeMeshes();
        writeExact();
        m_out.put(std::uint32_t(m_numbers.Extent()));
        for (int index = 1; index <= m_numbers.Extent(); ++index)
            writeLabel(m_numbers(index));
        m_out.flush();
    }

private:
    /// What stands in a group comes before the group.
    void collect(const TDF_Label &label, int depth)
    {
        if (m_numbers.Contains(label))
            return;
        if (depth > deepest)
            throw std::length_error("the structure is too deep");
        TDF_Label referred;
        TDF_LabelSequence components;
        if (XCAFDoc_ShapeTool::GetReferredShape(label, referred))
            collect(referred, depth + 1);
        else
            XCAFDoc_ShapeTool::GetComponents(label, components);
        for (const TDF_Label &component : components) {
            if (XCAFDoc_ShapeTool::GetReferredShape(component, referred))
                collect(referred, depth + 1);
        }
        m_numbers.Add(label);
    }

    static LabelKind kindOf(const TDF_Label &label)
    {
        if (XCAFDoc_ShapeTool::IsReference(label))
            return LabelKind::Placed;
        const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(label);
        const bool isEmptyGroup =
            !shape.IsNull() && shape.ShapeType() == TopAbs_COMPOUND && !TopoDS_Iterator(shape).More();
        return XCAFDoc_ShapeTool::IsAssembly(label) || isEmptyGroup ? LabelKind::Group : LabelKind::Part;
    }

    void note(const TDF_Label &label)
    {
        if (kindOf(label) == LabelKind::Part)
            note(XCAFDoc_ShapeTool::GetShape(label));
    }

    /// Meshes and exact shapes are written before what refers to them.
    void note(const TopoDS_Shape &shape)
    {
        switch (shapeKind(shape)) {
        case ShapeKind::Mesh:
            if (m_meshNumbers.emplace(bareMeshOf(shape).get(), m_meshes.size()).second)
                m_meshes.push_back(bareMeshOf(shape));
            return;
        case ShapeKind::Compound:
            for (TopoDS_Iterator each(shape); each.More(); each.Next())
                note(each.Value());
            return;
        case ShapeKind::Exact:
            m_exact.push_back(shape);
            return;
        }
    }

    static ShapeKind shapeKind(const TopoDS_Shape &shape)
    {
        if (!bareMeshOf(shape).IsNull())
            return ShapeKind::Mesh;
        return shape.ShapeType() == TopAbs_COMPOUND ? ShapeKind::Compound : ShapeKind::Exact;
    }

    void writeMeshes()
    {
        m_out.put(std::uint32_t(m_meshes.size()));
        for (const Mesh &mesh : m_meshes)
            writeMesh(*mesh);
    }

    void writeMesh(const Poly_Triangulation &mesh)
    {
        const auto *colored = dynamic_cast<const olColoredMesh *>(&mesh);
        m_out.put(std::uint32_t(mesh.NbNodes()));
        m_out.put(std::uint32_t(mesh.NbTriangles()));
        m_out.put(std::uint8_t(mesh.HasNormals()));
        m_out.put(std::uint8_t(mesh.HasUVNodes()));
        m_out.put(std::uint8_t(colored != nullptr));
        for (int node = 1; node <= mesh.NbNodes(); ++node)
            m_out.put(mesh.Node(node));
        for (int node = 1; mesh.HasNormals() && node <= mesh.NbNodes(); ++node) {
            gp_Vec3f normal;
            mesh.Normal(node, normal);
            m_out.put(normal);
        }
        for (int node = 1; mesh.HasUVNodes() && node <= mesh.NbNodes(); ++node)
            m_out.put(mesh.UVNode(node));
        if (colored)
            m_out.put(colored->colors.data(), colored->colors.size() * sizeof(std::uint32_t));
        for (int triangle = 1; triangle <= mesh.NbTriangles(); ++triangle) {
            int nodes[3];
            mesh.Triangle(triangle).Get(nodes[0], nodes[1], nodes[2]);
            m_out.put(nodes);
        }
    }

    /// All in one, so that what shapes share stays shared.
    void writeExact()
    {
        std::ostringstream bytes;
        if (!m_exact.empty()) {
            TopoDS_Compound all;
            BRep_Builder().MakeCompound(all);
            for (const TopoDS_Shape &shape : m_exact)
                BRep_Builder().Add(all, shape);
            BinTools::Write(all, bytes);
        }
        m_out.put(std::uint32_t(m_exact.size()));
        m_out.putText(bytes.str());
    }

    void writeShape(const TopoDS_Shape &shape)
    {
        const ShapeKind kind = shapeKind(shape);
        m_out.put(kind);
        if (kind == ShapeKind::Exact)
            return m_out.put(m_nextExact++);
        m_out.put(std::uint8_t(shape.Orientation()));
        writeLocation(shape.Location());
        if (kind == ShapeKind::Mesh)
            return m_out.put(std::uint32_t(m_meshNumbers.at(bareMeshOf(shape).get())));
        m_out.put(std::uint32_t(shape.NbChildren()));
        for (TopoDS_Iterator each(shape, Standard_False, Standard_False); each.More(); each.Next())
            writeShape(each.Value());
    }

    void writeLocation(const TopLoc_Location &location)
    {
        m_out.put(std::uint8_t(location.IsIdentity()));
        if (location.IsIdentity())
            return;
        const gp_Trsf &move = location.Transformation();
        for (int row = 1; row <= 3; ++row) {
            for (int column = 1; column <= 4; ++column)
                m_out.put(move.Value(row, column));
        }
    }

    void writeLabel(const TDF_Label &label)
    {
        const LabelKind kind = kindOf(label);
        m_out.put(kind);
        if (kind == LabelKind::Placed) {
            writeInstance(label);
        } else if (kind == LabelKind::Group) {
            writeLook(label);
            TDF_LabelSequence components;
            XCAFDoc_ShapeTool::GetComponents(label, components);
            m_out.put(std::uint32_t(components.Length()));
            for (const TDF_Label &component : components)
                writeInstance(component);
        } else {
            writePart(label);
        }
    }

    void writeInstance(const TDF_Label &label)
    {
        TDF_Label referred;
        XCAFDoc_ShapeTool::GetReferredShape(label, referred);
        m_out.put(std::uint32_t(m_numbers.FindIndex(referred) - 1));
        writeLocation(XCAFDoc_ShapeTool::GetLocation(label));
        writeLook(label);
    }

    void writePart(const TDF_Label &label)
    {
        const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(label);
        writeShape(shape);
        writeLook(label);
        TDF_LabelSequence pieces;
        XCAFDoc_ShapeTool::GetSubShapes(label, pieces);
        m_out.put(std::uint32_t(pieces.Length()));
        if (pieces.IsEmpty())
            return;
        TopTools_IndexedMapOfShape map;
        TopExp::MapShapes(shape, map);
        for (const TDF_Label &piece : pieces) {
            m_out.put(std::uint32_t(map.FindIndex(XCAFDoc_ShapeTool::GetShape(piece))));
            writeLook(piece);
        }
    }

    void writeName(const TDF_Label &label)
    {
        Handle(TDataStd_Name) name;
        const bool isNamed = label.FindAttribute(TDataStd_Name::GetID(), name);
        m_out.put(std::uint8_t(isNamed));
        if (isNamed)
            m_out.putText(textOf(name->Get()));
    }

    void writeLook(const TDF_Label &label)
    {
        writeName(label);
        for (const XCAFDoc_ColorType kind : colorKinds) {
            Quantity_ColorRGBA color;
            const bool isSet = m_from.colors->GetColor(label, kind, color);
            m_out.put(std::uint8_t(isSet));
            if (isSet)
                writeColor(color);
        }
        m_out.put(std::uint8_t(m_from.colors->IsVisible(label)));
        TDF_LabelSequence layers;
        m_from.layers->GetLayers(label, layers);
        m_out.put(std::uint32_t(layers.Length()));
        for (const TDF_Label &layer : layers) {
            TCollection_ExtendedString name;
            m_from.layers->GetLayer(layer, name);
            m_out.putText(textOf(name));
            m_out.put(std::uint8_t(m_from.layers->IsVisible(layer)));
        }
        TDF_Label look;
        XCAFDoc_VisMaterialTool::GetShapeMaterial(label, look);
        m_out.put(std::int32_t(look.IsNull() ? -1 : m_lookNumbers.FindIndex(look) - 1));
        TDF_Label material;
        m_out.put(std::int32_t(materialOf(label, material) ? m_materialNumbers.FindIndex(material) - 1 : -1));
    }

    bool materialOf(const TDF_Label &label, TDF_Label &material) const
    {
        Handle(TDataStd_TreeNode) node;
        if (!label.FindAttribute(XCAFDoc::MaterialRefGUID(), node) || !node->HasFather())
            return false;
        material = node->Father()->Label();
        return m_materialNumbers.Contains(material);
    }

    void writeColor(const Quantity_ColorRGBA &color)
    {
        for (const double part : {color.GetRGB().Red(), color.GetRGB().Green(), color.GetRGB().Blue()})
            m_out.put(part);
        m_out.put(color.Alpha());
    }

    void writeTexture(const Handle(Image_Texture) & texture)
    {
        if (texture.IsNull())
            return m_out.put(TextureKind::None);
        const Handle(NCollection_Buffer) &bytes = texture->DataBuffer();
        m_out.put(bytes.IsNull() ? TextureKind::File : TextureKind::Bytes);
        if (bytes.IsNull()) {
            m_out.putText(texture->FilePath().ToCString());
            m_out.put(std::int64_t(texture->FileOffset()));
            m_out.put(std::int64_t(texture->FileLength()));
        } else {
            m_out.putText(texture->TextureId().ToCString());
            m_out.putText({reinterpret_cast<const char *>(bytes->Data()), bytes->Size()});
        }
    }

    void writeLooks()
    {
        TDF_LabelSequence labels;
        m_from.looks->GetMaterials(labels);
        m_out.put(std::uint32_t(labels.Length()));
        for (const TDF_Label &label : labels) {
            m_lookNumbers.Add(label);
            writeName(label);
            const Handle(XCAFDoc_VisMaterial) look = m_from.looks->GetMaterial(label);
            m_out.put(std::uint8_t(look->HasCommonMaterial()));
            if (look->HasCommonMaterial()) {
                const XCAFDoc_VisMaterialCommon &common = look->CommonMaterial();
                for (const Quantity_Color *color :
                     {&common.AmbientColor, &common.DiffuseColor, &common.SpecularColor, &common.EmissiveColor})
                    writeColor(Quantity_ColorRGBA(*color));
                m_out.put(common.Shininess);
                m_out.put(common.Transparency);
                writeTexture(common.DiffuseTexture);
            }
            m_out.put(std::uint8_t(look->HasPbrMaterial()));
            if (look->HasPbrMaterial()) {
                const XCAFDoc_VisMaterialPBR &pbr = look->PbrMaterial();
                writeColor(pbr.BaseColor);
                m_out.put(pbr.EmissiveFactor);
                for (const float value : {pbr.Metallic, pbr.Roughness, pbr.RefractionIndex})
                    m_out.put(value);
                for (const auto *texture : {&pbr.BaseColorTexture, &pbr.MetallicRoughnessTexture, &pbr.EmissiveTexture,
                                            &pbr.OcclusionTexture, &pbr.NormalTexture})
                    writeTexture(*texture);
            }
            m_out.put(std::int32_t(look->AlphaMode()));
            m_out.put(look->AlphaCutOff());
            m_out.put(std::int32_t(look->FaceCulling()));
        }
    }

    void writeMaterials()
    {
        TDF_LabelSequence labels;
        m_from.materials->GetMaterialLabels(labels);
        m_out.put(std::uint32_t(labels.Length()));
        for (const TDF_Label &label : labels) {
            m_materialNumbers.Add(label);
            Handle(TCollection_HAsciiString) texts[4];
            double density = 0;
            m_from.materials->GetMaterial(label, texts[0], texts[1], density, texts[2], texts[3]);
            for (const Handle(TCollection_HAsciiString) & text : texts)
                m_out.putText(textOf(text));
            m_out.put(density);
        }
    }

    Tools m_from;
    Output &m_out;
    std::vector<Mesh> m_meshes;
    std::vector<TopoDS_Shape> m_exact;
    std::uint32_t m_nextExact = 0;
    std::map<const Poly_Triangulation *, std::size_t> m_meshNumbers;
    TDF_LabelIndexedMap m_numbers;
    TDF_LabelIndexedMap m_lookNumbers;
    TDF_LabelIndexedMap m_materialNumbers;
};

class Reader
{
public:
    Reader(Input in, const olScene::Document &document) : m_in(in), m_to(document) {}

    void read()
    {
        const std::uint32_t looks = m_in.getCount();
        for (std::uint32_t index = 0; index < looks; ++index)
            readLook();
        const std::uint32_t materials = m_in.getCount();
        for (std::uint32_t index = 0; index < materials; ++index)
            readMaterial();
        const std::uint32_t meshes = m_in.getCount();
        for (std::uint32_t index = 0; index < meshes; ++index)
            m_meshes.push_back(readMesh());
        readExact();
        const std::uint32_t labels = m_in.getCount();
        for (std::uint32_t index = 0; index < labels; ++index)
            m_labels.push_back(readLabel());
        m_to.shapes->UpdateAssemblies();
    }

private:
    Mesh readMesh()
    {
        const auto nodes = m_in.getCount();
        const auto triangles = m_in.getCount();
        const bool hasNormals = m_in.get<std::uint8_t>() != 0;
        const bool hasTexture = m_in.get<std::uint8_t>() != 0;
        const bool isColored = m_in.get<std::uint8_t>() != 0;
        const auto *points = m_in.take(nodes * sizeof(gp_Pnt));
        const auto *normals = m_in.take(hasNormals ? nodes * sizeof(gp_Vec3f) : 0);
        const auto *places = m_in.take(hasTexture ? nodes * sizeof(gp_Pnt2d) : 0);
        const auto *colors = m_in.take(isColored ? nodes * sizeof(std::uint32_t) : 0);
        const auto *corners = m_in.take(triangles * sizeof(int[3]));
        Handle(olColoredMesh) colored;
        if (isColored)
            colored = new olColoredMesh(int(nodes), int(triangles), hasTexture, hasNormals);
        const Mesh mesh =
            isColored ? Mesh(colored) : new Poly_Triangulation(int(nodes), int(triangles), hasTexture, hasNormals);
        for (std::uint32_t node = 0; node < nodes; ++node) {
            mesh->SetNode(int(node) + 1, at<gp_Pnt>(points, node));
            if (hasNormals)
                mesh->SetNormal(int(node) + 1, at<gp_Vec3f>(normals, node));
            if (hasTexture)
                mesh->SetUVNode(int(node) + 1, at<gp_Pnt2d>(places, node));
            if (isColored)
                colored->colors.push_back(at<std::uint32_t>(colors, node));
        }
        for (std::uint32_t triangle = 0; triangle < triangles; ++triangle)
            mesh->SetTriangle(int(triangle) + 1,
                              Poly_Triangle(at<int>(corners, 3 * triangle), at<int>(corners, 3 * triangle + 1),
                                            at<int>(corners, 3 * triangle + 2)));
        if (!olMeshTools::isWhole(mesh))
            throw std::out_of_range("a triangle refers to a point that is not there");
        return mesh;
    }

    template <class Value> static Value at(const unsigned char *bytes, std::size_t index)
    {
        Value value;
        std::memcpy(static_cast<void *>(&value), bytes + index * sizeof(Value), sizeof(Value));
        return value;
    }

    void readExact()
    {
        const auto count = m_in.getCount();
        const auto size = m_in.get<std::uint64_t>();
        const unsigned char *bytes = m_in.take(size);
        if (count == 0)
            return;
        Standard_ArrayStreamBuffer buffer(reinterpret_cast<const char *>(bytes), size);
        std::istream stream(&buffer);
        TopoDS_Shape all;
        BinTools::Read(all, stream);
        for (TopoDS_Iterator each(all); !all.IsNull() && each.More(); each.Next())
            m_exact.push_back(each.Value());
        if (m_exact.size() != count)
            throw std::out_of_range("shapes are missing");
    }

    TopoDS_Shape readShape(int depth)
    {
        if (depth > deepest)
            throw std::length_error("the structure is too deep");
        const auto kind = m_in.get<ShapeKind>();
        if (kind == ShapeKind::Exact)
            return m_exact[m_in.getIndex(m_exact.size())];
        const auto orientation = TopAbs_Orientation(std::min<int>(m_in.get<std::uint8_t>(), TopAbs_EXTERNAL));
        const TopLoc_Location location = readLocation();
        TopoDS_Shape shape;
        if (kind == ShapeKind::Mesh) {
            const std::uint32_t index = m_in.getIndex(m_meshes.size());
            TopoDS_Face &face = m_faces[index];
            if (face.IsNull())
                BRep_Builder().MakeFace(face, m_meshes[index]);
            shape = face;
        } else {
            TopoDS_Compound compound;
            BRep_Builder().MakeCompound(compound);
            const std::uint32_t count = m_in.getCount();
            for (std::uint32_t index = 0; index < count; ++index)
                BRep_Builder().Add(compound, readShape(depth + 1));
            shape = compound;
        }
        shape.Location(location);
        shape.Orientation(orientation);
        return shape;
    }

    TopLoc_Location readLocation()
    {
        if (m_in.get<std::uint8_t>() != 0)
            return {};
        double v[12];
        for (double &value : v)
            value = m_in.get<double>();
        gp_Trsf move;
        move.SetValues(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], v[9], v[10], v[11]);
        return TopLoc_Location(move);
    }

    TDF_Label readLabel()
    {
        TDF_Label label;
        switch (m_in.get<LabelKind>()) {
        case LabelKind::Part:
            label = m_to.shapes->AddShape(readShape(0), Standard_False);
            readLookOf(label);
            readPieces(label);
            return label;
        case LabelKind::Group: {
            label = m_to.shapes->NewShape();
            readLookOf(label);
            const std::uint32_t count = m_in.getCount();
            for (std::uint32_t index = 0; index < count; ++index) {
                const TDF_Label referred = m_labels[m_in.getIndex(m_labels.size())];
                readLookOf(m_to.shapes->AddComponent(label, referred, readLocation()));
            }
            return label;
        }
        case LabelKind::Placed: {
            const TDF_Label referred = m_labels[m_in.getIndex(m_labels.size())];
            const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(referred).Moved(readLocation());
            label = m_to.shapes->AddShape(shape, Standard_False);
            readLookOf(label);
            return label;
        }
        }
        throw std::out_of_range("a label is of no kind");
    }

    void readPieces(const TDF_Label &label)
    {
        const std::uint32_t count = m_in.getCount();
        TopTools_IndexedMapOfShape map;
        if (count > 0)
            TopExp::MapShapes(XCAFDoc_ShapeTool::GetShape(label), map);
        for (std::uint32_t index = 0; index < count; ++index) {
            const auto number = m_in.getIndex(std::size_t(map.Extent()) + 1);
            TDF_Label piece;
            if (number > 0)
                m_to.shapes->AddSubShape(label, map(int(number)), piece);
            readLookOf(piece);
        }
    }

    std::string readName(bool &isNamed)
    {
        isNamed = m_in.get<std::uint8_t>() != 0;
        return isNamed ? m_in.getText() : std::string();
    }

    /// A null label has its look read over.
    void readLookOf(const TDF_Label &label)
    {
        bool isNamed = false;
        const std::string name = readName(isNamed);
        if (isNamed && !label.IsNull())
            TDataStd_Name::Set(label, extended(name));
        for (const XCAFDoc_ColorType kind : colorKinds) {
            if (m_in.get<std::uint8_t>() == 0)
                continue;
            const Quantity_ColorRGBA color = readColor();
            if (!label.IsNull())
                m_to.colors->SetColor(label, color, kind);
        }
        if (m_in.get<std::uint8_t>() == 0 && !label.IsNull())
            m_to.colors->SetVisibility(label, Standard_False);
        const std::uint32_t layers = m_in.getCount();
        for (std::uint32_t index = 0; index < layers; ++index) {
            const TCollection_ExtendedString layer = extended(m_in.getText());
            const bool isVisible = m_in.get<std::uint8_t>() != 0;
            if (label.IsNull())
                continue;
            m_to.layers->SetLayer(label, layer);
            TDF_Label target;
            if (!isVisible && m_to.layers->FindLayer(layer, target))
                m_to.layers->SetVisibility(target, Standard_False);
        }
        const auto look = std::size_t(m_in.get<std::int32_t>());
        if (look < m_looks.size() && !label.IsNull())
            m_to.looks->SetShapeMaterial(label, m_looks[look]);
        const auto material = std::size_t(m_in.get<std::int32_t>());
        if (material < m_materials.size() && !label.IsNull())
            m_to.materials->SetMaterial(label, m_materials[material]);
    }

    Quantity_ColorRGBA readColor()
    {
        float parts[4];
        for (int index = 0; index < 3; ++index)
            parts[index] = float(m_in.get<double>());
        parts[3] = m_in.get<float>();
        for (float &part : parts)
            part = part >= 0.0f ? std::min(part, 1.0f) : 0.0f;
        return Quantity_ColorRGBA(parts[0], parts[1], parts[2], parts[3]);
    }

    Handle(Image_Texture) readTexture()
    {
        switch (m_in.get<TextureKind>()) {
        case TextureKind::None:
            return {};
        case TextureKind::File: {
            const std::string file = m_in.getText();
            const auto offset = m_in.get<std::int64_t>();
            const auto length = m_in.get<std::int64_t>();
            return offset < 0 ? new Image_Texture(file.c_str()) : new Image_Texture(file.c_str(), offset, length);
        }
        case TextureKind::Bytes: {
            const std::string id = m_in.getText();
            const std::string bytes = m_in.getText();
            const Handle(NCollection_Buffer) buffer =
                new NCollection_Buffer(NCollection_BaseAllocator::CommonBaseAllocator(), bytes.size());
            std::memcpy(buffer->ChangeData(), bytes.data(), bytes.size());
            return new Image_Texture(buffer, id.c_str());
        }
        }
        throw std::out_of_range("a texture is of no kind");
    }

    void readLook()
    {
        bool isNamed = false;
        const std::string name = readName(isNamed);
        const Handle(XCAFDoc_VisMaterial) look = new XCAFDoc_VisMaterial;
        if (m_in.get<std::uint8_t>() != 0) {
            XCAFDoc_VisMaterialCommon common;
            for (Quantity_Color *color :
                 {&common.AmbientColor, &common.DiffuseColor, &common.SpecularColor, &common.EmissiveColor})
                *color = readColor().GetRGB();
            common.Shininess = m_in.get<float>();
            common.Transparency = m_in.get<float>();
            common.DiffuseTexture = readTexture();
            look->SetCommonMaterial(common);
        }
        if (m_in.get<std::uint8_t>() != 0) {
            XCAFDoc_VisMaterialPBR pbr;
            pbr.BaseColor = readColor();
            pbr.EmissiveFactor = m_in.get<Graphic3d_Vec3>();
            for (float *value : {&pbr.Metallic, &pbr.Roughness, &pbr.RefractionIndex})
                *value = m_in.get<float>();
            for (auto *texture : {&pbr.BaseColorTexture, &pbr.MetallicRoughnessTexture, &pbr.EmissiveTexture,
                                  &pbr.OcclusionTexture, &pbr.NormalTexture})
                *texture = readTexture();
            look->SetPbrMaterial(pbr);
        }
        const int alpha = m_in.get<std::int32_t>();
        look->SetAlphaMode(Graphic3d_AlphaMode(std::clamp(alpha, int(Graphic3d_AlphaMode_BlendAuto), 3)),
                           m_in.get<float>());
        const int culling = m_in.get<std::int32_t>();
        look->SetFaceCulling(Graphic3d_TypeOfBackfacingModel(std::clamp(culling, 0, 3)));
        m_looks.push_back(m_to.looks->AddMaterial(look, name.c_str()));
    }

    void readMaterial()
    {
        Handle(TCollection_HAsciiString) texts[4];
        for (Handle(TCollection_HAsciiString) & text : texts)
            text = new TCollection_HAsciiString(m_in.getText().c_str());
        m_materials.push_back(m_to.materials->AddMaterial(texts[0], texts[1], m_in.get<double>(), texts[2], texts[3]));
    }

    Input m_in;
    Tools m_to;
    std::vector<Mesh> m_meshes;
    std::map<std::uint32_t, TopoDS_Face> m_faces;
    std::vector<TopoDS_Shape> m_exact;
    std::vector<TDF_Label> m_labels;
    std::vector<TDF_Label> m_looks;
    std::vector<TDF_Label> m_materials;
};

} // namespace

void olDocumentStream::write(const olScene::Document &document, int file)
{
    Output out(file);
    Writer(document, out).write();
}

olScene::Document olDocumentStream::read(const unsigned char *bytes, std::size_t count)
{
    try {
        const olScene::Document document = olScene::newDocument();
        Reader(Input(bytes, count), document).read();
        return document;
    } catch (const Standard_Failure &) {
        return {};
    } catch (const std::exception &) {
        return {};
    }
}
