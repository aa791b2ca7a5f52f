#pragma once

#include "Model/olScene.h"

#include <TDF_Label.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <gp_Trsf.hxx>
#include <gp_Vec2f.hxx>
#include <gp_Vec3f.hxx>
#include <gp_XYZ.hxx>

#include <QString>

#include <cstdint>
#include <functional>
#include <map>
#include <utility>
#include <vector>

/// A document as writers of triangles want it: nodes below nodes, and parts that nodes share. What looks different in
/// different places is a part for each look.
class olMeshTree
{
public:
    struct Node {
        /// Its own, else that of its part; of a group its own, else that of the group. May be empty.
        QString name;

        /// Within the node above, in millimetres.
        gp_Trsf where;

        /// A number from 0 up; negative for a group.
        int part = -1;
        std::vector<Node> below;
    };

    /// Triangles of one look.
    struct Piece {
        /// Null for none.
        Handle(XCAFDoc_VisMaterial) look;
        std::vector<gp_XYZ> points;

        /// One of each point.
        std::vector<gp_Vec3f> normals;

        /// In the look's texture; one of each point, or none at all.
        std::vector<gp_Vec2f> places;

        /// As olColoredMesh has them; one of each point, or none at all.
        std::vector<std::uint32_t> colors;

        /// Three points for each triangle, from 0 up.
        std::vector<int> corners;
    };

    explicit olMeshTree(const olScene::Document &document);

    [[nodiscard]] const std::vector<Node> &nodes() const { return m_nodes; }
    [[nodiscard]] int parts() const { return int(m_parts.size()); }
    [[nodiscard]] QString partName(int part) const;

    /// Empty for a part without triangles.
    [[nodiscard]] std::vector<Piece> piecesOf(int part) const;

    /// As the document calls it; empty for none.
    [[nodiscard]] QString lookName(const Handle(XCAFDoc_VisMaterial) & look) const;

    /// Visits what has a part, with its whole placement, in the order of the tree.
    void eachPlaced(const std::function<void(const Node &node, const gp_Trsf &where)> &visit) const;

private:
    struct Part {
        TDF_Label label;
        Handle(XCAFDoc_VisMaterial) look;
    };

    olScene::Document m_document;
    std::vector<Node> m_nodes;
    std::vector<Part> m_parts;
    std::map<const XCAFDoc_VisMaterial *, QString> m_lookNames;
};
