#pragma once

#include "Model/olScene.h"

#include <TopoDS_Shape.hxx>
#include <gp_Trsf.hxx>

#include <functional>
#include <memory>
#include <vector>

class BRepTools_ReShape;
class TDF_Label;

/// A part on its way from one document to another: its shape, and what became of the faces and edges that it had, so
/// that their names and colours can follow.
struct olChangedPart {
    TopoDS_Shape shape;
    std::vector<opencascade::handle<BRepTools_ReShape>> changes;

    /// Null for what the part no longer has.
    [[nodiscard]] TopoDS_Shape follow(const TopoDS_Shape &piece) const;
};

/// Copies a document with its structure, names, colours, materials and layers, and lets parts be changed and instances
/// be left out on the way. Instances that shared a part share it in the copy.
class olDocumentCopy
{
public:
    /// Asked once for each part; a part whose shape becomes null is left out with all its instances.
    std::function<void(const TDF_Label &label, olChangedPart &part)> changePart;

    /// Asked for each instance, and for what stands at the top.
    std::function<bool(const TDF_Label &instance)> isWanted;

    bool keepEmptyGroups = true;

    /// Where the whole goes.
    gp_Trsf placement;

    /// What distances between parts are multiplied by; `changePart` has to do the same within them.
    double scale = 1.0;

    [[nodiscard]] olScene::Document copy(const olScene::Document &source) const;

    /// Adds the copy to what the target has.
    void copyInto(const olScene::Document &source, const olScene::Document &target) const;

private:
    class Run;
};
