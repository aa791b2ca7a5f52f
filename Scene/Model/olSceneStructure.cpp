#include "Model/olSceneStructure.h"

#include "Model/olLevelsOfDetail.h"
#include "Model/olLibraryMessages.h"

#include <TDocStd_Document.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFPrs_DocumentExplorer.hxx>

namespace
{

QColor toColor(const Quantity_ColorRGBA &rgba)
{
    double red = 0;
    double green = 0;
    double blue = 0;
    rgba.GetRGB().Values(red, green, blue, Quantity_TOC_sRGB);
    return QColor::fromRgbF(red, green, blue, double(rgba.Alpha()));
}

QColor colorOf(const XCAFPrs_Style &style)
{
    if (!style.Material().IsNull())
        return toColor(style.Material()->BaseColor());
    if (style.IsSetColorSurf())
        return toColor(style.GetColorSurfRGBA());
    return style.IsSetColorCurv() ? toColor(Quantity_ColorRGBA(style.GetColorCurv())) : QColor();
}

/// An instance bears its own name, else that of the part it stands for.
QString nameOf(const XCAFPrs_DocumentNode &node)
{
    const QString own = olNameOf(node.Label);
    return own.isEmpty() ? olNameOf(node.RefLabel) : own;
}

std::vector<olSceneNode> levelsOf(const TopoDS_Shape &shape, const QString &part)
{
    const int count = olLevelsOfDetail::count(shape);
    std::vector<olSceneNode> levels;
    for (int level = 0; count > 1 && level < count; ++level) {
        const olLevelsOfDetail::InUse used(shape, level);
        olSceneNode node;
        node.id = part + QLatin1Char('#') + QString::number(level);
        node.kind = olSceneNode::Kind::Level;
        node.triangles = olTriangles::count(shape);
        levels.push_back(node);
    }
    return levels;
}

olSceneNode toNode(const XCAFPrs_DocumentNode &from)
{
    olSceneNode node;
    node.id = QString::fromLatin1(from.Id.ToCString());
    node.name = nameOf(from);
    if (from.IsAssembly) {
        node.kind = olSceneNode::Kind::Group;
        return node;
    }
    node.color = colorOf(from.Style);
    const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(from.RefLabel);
    node.triangles = olTriangles::count(shape);
    node.below = levelsOf(shape, node.id);
    return node;
}

} // namespace

std::vector<olSceneNode> olSceneStructure(const olScene::Document &document)
{
    olSceneNode top;
    std::vector<olSceneNode *> path{&top};
    for (XCAFPrs_DocumentExplorer explorer(document, XCAFPrs_DocumentExplorerFlags_None); explorer.More();
         explorer.Next()) {
        const auto depth = std::size_t(explorer.CurrentDepth());
        path.resize(depth + 1);
        std::vector<olSceneNode> &siblings = path.back()->below;
        siblings.push_back(toNode(explorer.Current()));
        path.push_back(&siblings.back());
    }
    return std::move(top.below);
}
