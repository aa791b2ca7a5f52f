#pragma once

#include "Model/olScene.h"

#include <Poly_Triangulation.hxx>
#include <TDF_Label.hxx>
#include <TopLoc_Location.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <gp_GTrsf.hxx>
#include <gp_Mat.hxx>

#include <QString>

#include <array>
#include <vector>

class XCAFDoc_ShapeTool;
class XCAFDoc_VisMaterialTool;

/// Fills a document with meshes, as readers of formats of triangles find them.
class olMeshDocument
{
public:
    explicit olMeshDocument(const olScene::Document &document);

    /// Triangles of one look; no look is a null label.
    struct Face {
        Handle(Poly_Triangulation) mesh;
        TDF_Label look;
    };

    /// What stands where in a group.
    struct Member {
        TDF_Label label;
        TopLoc_Location where;
        QString name;
    };

    /// A placement as documents have it, and what of it is none: scales, mirrors and shears go into the points.
    struct Placement {
        TopLoc_Location where;
        gp_Mat rest;
    };

    [[nodiscard]] static Placement placementOf(const gp_GTrsf &whole);

    /// To be compared: what has the same geometry in the same proportions can be shared.
    using Proportions = std::array<float, 9>;
    [[nodiscard]] static Proportions proportionsOf(const gp_Mat &rest);

    /// Normals after a change of proportions; of unknown length.
    [[nodiscard]] static gp_Mat forNormals(const gp_Mat &rest);

    [[nodiscard]] TDF_Label addLook(const Handle(XCAFDoc_VisMaterial) & look, const QString &name);

    /// One part of at least one face. An empty name is none.
    TDF_Label addPart(const QString &name, const std::vector<Face> &faces);
    TDF_Label addGroup(const QString &name, const std::vector<Member> &members);

    /// Puts what was added at the top of the document where it belongs.
    void place(const std::vector<Member> &members);

    /// To be called when all groups are there.
    void finish();

private:
    static void name(const TDF_Label &label, const QString &name);

    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_VisMaterialTool) m_looks;
};
