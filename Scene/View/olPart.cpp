#include "View/olPart.h"

#include "Model/olColoredMesh.h"
#include "Model/olLevelsOfDetail.h"
#include "Model/olMeshTools.h"
#include "Model/olPlainLook.h"
#include "Model/olTriangles.h"

#include <AIS_ColoredDrawer.hxx>
#include <AIS_DisplayMode.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Graphic3d_ArrayOfTriangles.hxx>
#include <Graphic3d_AspectFillArea3d.hxx>
#include <Graphic3d_Aspects.hxx>
#include <Graphic3d_Group.hxx>
#include <Prs3d_LineAspect.hxx>
#include <Prs3d_ShadingAspect.hxx>
#include <PrsMgr_Presentation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFPrs_DocumentNode.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

/// Behind those that the library knows.
constexpr int firstLevelMode = 100;

/// And behind those of levels.
constexpr int coarseMode = 1000;

/// Faces have about so many triangles all together while this lives, where that is possible.
class CoarseMeshes
{
public:
    CoarseMeshes(const TopoDS_Shape &shape, double triangles)
    {
        double area = 0;
        TopTools_IndexedMapOfShape faces;
        // Each once, as it has the same triangles in all its places.
        for (TopExp_Explorer each(shape, TopAbs_FACE); each.More(); each.Next())
            faces.Add(each.Current().Located({}).Oriented(TopAbs_FORWARD));
        for (int index = 1; index <= faces.Extent(); ++index) {
            const TopoDS_Face &face = TopoDS::Face(faces(index));
            TopLoc_Location location;
            const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, location);
            if (mesh.IsNull())
                continue;
            m_meshes.emplace_back(face, mesh);
            area += olMeshTools::areaOf(mesh);
        }
        // A cube of space that a surface passes has two triangles.
        const double edge = std::sqrt(2 * area / std::max(triangles, 1.0));
        for (const auto &[face, mesh] : m_meshes)
            BRep_Builder().UpdateFace(face, olMeshTools::coarser(mesh, edge), Standard_True);
        // What is so small that nothing would be left stays as it is.
        if (olTriangles::count(shape) == 0)
            restore();
    }
    ~CoarseMeshes() { restore(); }
    CoarseMeshes(const CoarseMeshes &) = delete;
    CoarseMeshes &operator=(const CoarseMeshes &) = delete;

private:
    void restore()
    {
        for (const auto &[face, mesh] : m_meshes)
            BRep_Builder().UpdateFace(face, mesh, Standard_True);
    }

    std::vector<std::pair<TopoDS_Face, Handle(Poly_Triangulation)>> m_meshes;
};

Handle(olColoredMesh) coloredMeshOf(const TopoDS_Face &face, TopLoc_Location &location)
{
    return Handle(olColoredMesh)::DownCast(BRep_Tool::Triangulation(face, location));
}

/// What is only cut out by its texture is not.
bool isSeenThrough(const Graphic3d_Aspects &aspects)
{
    switch (aspects.AlphaMode()) {
    case Graphic3d_AlphaMode_Blend:
    case Graphic3d_AlphaMode_MaskBlend:
        return true;
    case Graphic3d_AlphaMode_BlendAuto:
        return aspects.FrontMaterial().Transparency() > 0.0f;
    default:
        return false;
    }
}

/// The library computes with light, files say how screens show it.
Graphic3d_Vec4ub lightOf(std::uint32_t color)
{
    Graphic3d_Vec4ub light;
    for (int part = 0; part < 4; ++part) {
        const float value = float(color >> (8 * part) & 0xff) / 255.0f;
        light[part] =
            Standard_Byte((part < 3 ? Quantity_Color::Convert_sRGB_To_LinearRGB(value) : value) * 255.0f + 0.5f);
    }
    return light;
}

} // namespace

olPart::olPart(const XCAFPrs_DocumentNode &node)
    : XCAFPrs_AISObject(node.RefLabel),
      m_id(node.Id),
      m_style(node.Style),
      m_source(XCAFDoc_ShapeTool::GetShape(node.RefLabel)),
      m_levels(olLevelsOfDetail::count(m_source))
{
    // The scene is triangulated as its import wanted; displaying it must not do that again.
    Attributes()->SetAutoTriangulation(Standard_False);
    SetLocalTransformation(node.Location);
    TopLoc_Location location;
    for (TopExp_Explorer each(m_source, TopAbs_FACE); each.More(); each.Next()) {
        const TopoDS_Face &face = TopoDS::Face(each.Current());
        if (!coloredMeshOf(face, location).IsNull())
            m_colored.push_back(face);
    }
    m_triangles = olTriangles::count(m_source);
}

bool olPart::isFullyTransparent() const
{
    return m_style.IsSetColorSurf() && m_style.GetColorSurfRGBA().Alpha() <= 0.0f;
}

int olPart::displayModeOf(int level) { return level == 0 ? int(AIS_Shaded) : firstLevelMode + level; }

int olPart::levelOf(int displayMode)
{
    return displayMode > firstLevelMode && displayMode < coarseMode ? displayMode - firstLevelMode : 0;
}

int olPart::coarseDisplayMode() { return coarseMode; }

int olPart::levelFor(double pixels) const { return olLevelsOfDetail::forSize(pixels, m_levels); }

Standard_Boolean olPart::AcceptDisplayMode(const Standard_Integer mode) const
{
    const int level = levelOf(mode);
    if (mode == coarseMode)
        return canBeCoarse();
    return level > 0 ? level < m_levels : XCAFPrs_AISObject::AcceptDisplayMode(mode);
}

void olPart::Compute(const Handle(PrsMgr_PresentationManager) & manager,
                     const Handle(Prs3d_Presentation) & presentation, const Standard_Integer mode)
{
    const int level = levelOf(mode);
    const olLevelsOfDetail::InUse used(m_source, level);
    std::optional<CoarseMeshes> coarse;
    if (mode == coarseMode)
        coarse.emplace(m_source, m_coarseTriangles);
    const bool isShaded = level > 0 || coarse || mode == int(AIS_Shaded);
    if (isShaded && !m_colored.empty()) {
        DispatchStyles(Standard_True);
        for (const TopoDS_Face &face : m_colored)
            CustomAspects(face)->SetHidden(true);
    }
    XCAFPrs_AISObject::Compute(manager, presentation, isShaded ? int(AIS_Shaded) : mode);
    for (const TopoDS_Face &face : m_colored) {
        if (isShaded)
            addColored(presentation, face);
    }
}

void olPart::addColored(const Handle(Prs3d_Presentation) & presentation, const TopoDS_Face &face)
{
    TopLoc_Location location;
    const Handle(olColoredMesh) mesh = coloredMeshOf(face, location);
    if (!mesh->HasNormals())
        mesh->ComputeNormals();
    const Handle(Graphic3d_AspectFillArea3d) aspect =
        new Graphic3d_AspectFillArea3d(*CustomAspects(face)->ShadingAspect()->Aspect());
    aspect->SetInteriorColor(Quantity_NOC_WHITE);
    const bool isTextured = mesh->HasUVNodes() && aspect->ToMapTexture();
    int content = Graphic3d_ArrayFlags_VertexNormal | Graphic3d_ArrayFlags_VertexColor;
    if (isTextured)
        content |= Graphic3d_ArrayFlags_VertexTexel;
    const Handle(Graphic3d_ArrayOfTriangles) array =
        new Graphic3d_ArrayOfTriangles(mesh->NbNodes(), 3 * mesh->NbTriangles(), content);
    const gp_Trsf where = location.Transformation();
    const bool isReversed = face.Orientation() == TopAbs_REVERSED;
    for (int node = 1; node <= mesh->NbNodes(); ++node) {
        const gp_Dir normal = mesh->Normal(node).Transformed(where);
        array->AddVertex(mesh->Node(node).Transformed(where), isReversed ? normal.Reversed() : normal,
                         isTextured ? mesh->UVNode(node) : gp_Pnt2d());
        array->SetVertexColor(node, lightOf(mesh->colors[std::size_t(node - 1)]));
    }
    for (int triangle = 1; triangle <= mesh->NbTriangles(); ++triangle) {
        int corner[3];
        mesh->Triangle(triangle).Get(corner[0], corner[1], corner[2]);
        array->AddEdges(corner[0], corner[isReversed ? 2 : 1], corner[isReversed ? 1 : 2]);
    }
    const bool isOpaque =
        std::all_of(mesh->colors.begin(), mesh->colors.end(), [](std::uint32_t color) { return color >> 24 == 0xff; });
    if (!isOpaque)
        aspect->SetAlphaMode(Graphic3d_AlphaMode_Blend);
    const Handle(Graphic3d_Group) group = presentation->NewGroup();
    group->SetGroupPrimitivesAspect(aspect);
    group->AddPrimitiveArray(array);
}

void olPart::setEdges(bool on)
{
    Attributes()->SetFaceBoundaryDraw(on);
    if (on)
        Attributes()->SetFaceBoundaryAspect(new Prs3d_LineAspect(Quantity_NOC_BLACK, Aspect_TOL_SOLID, 1.0));
}

bool olPart::isTransparent() const
{
    for (const Handle(PrsMgr_Presentation) & presentation : myPresentations) {
        for (const Handle(Graphic3d_Group) & group : presentation->Groups()) {
            const Handle(Graphic3d_Aspects) aspects = group->Aspects();
            if (!aspects.IsNull() && isSeenThrough(*aspects))
                return true;
        }
    }
    return false;
}

void olPart::DefaultStyle(XCAFPrs_Style &style) const
{
    style = m_style;
    if (style.Material().IsNull() && !style.IsSetColorSurf())
        style.SetColorSurf(olPlainLook::bare());
}

void olPart::setWritesDepth(bool writes)
{
    const Graphic3d_AlphaMode mode = writes ? Graphic3d_AlphaMode_MaskBlend : Graphic3d_AlphaMode_Blend;
    for (const Handle(PrsMgr_Presentation) & presentation : Presentations()) {
        for (const Handle(Graphic3d_Group) & group : presentation->Groups()) {
            const Handle(Graphic3d_Aspects) aspects = group->Aspects();
            if (aspects.IsNull() || !isSeenThrough(*aspects) ||
                writes == (aspects->AlphaMode() == Graphic3d_AlphaMode_MaskBlend))
                continue;
            aspects->SetAlphaMode(mode, 0.01f);
            group->SetGroupPrimitivesAspect(aspects);
        }
    }
}
