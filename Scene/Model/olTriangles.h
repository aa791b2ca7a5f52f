#pragma once

#include "Model/olScene.h"

#include <vector>

class Message_ProgressRange;
class TopoDS_Shape;

/// The triangles of shapes: making and counting them.
class olTriangles
{
public:
    /// How finely curved surfaces are resolved: millimetres and degrees.
    struct Fineness {
        double chordDeviation = 0.075;
        double normalTolerance = 10.0;
    };

    /// Replaces the triangles that the shape's surfaces have. Faces without a surface keep theirs.
    static void mesh(const TopoDS_Shape &shape, const Fineness &fineness);

    /// The same, which can be watched and given up.
    static void mesh(const TopoDS_Shape &shape, const Fineness &fineness, const Message_ProgressRange &progress);

    /// The same face by face, until there are more triangles than `most`. Returns how many there are then.
    static unsigned mesh(const TopoDS_Shape &shape, const Fineness &fineness, unsigned most,
                         const Message_ProgressRange &progress);

    /// The first of many shapes, on all processors.
    static void mesh(const std::vector<TopoDS_Shape> &shapes, const Fineness &fineness,
                     const Message_ProgressRange &progress);

    [[nodiscard]] static unsigned count(const TopoDS_Shape &shape);

    /// Of all that stands in the document at the top, each instance counted.
    [[nodiscard]] static unsigned count(const olScene::Document &document);
};
