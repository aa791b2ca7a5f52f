#pragma once

#include <Bnd_Box.hxx>
#include <TopoDS_Shape.hxx>

#include <cstdint>
#include <vector>

class TopoDS_Face;

/// What can be said of a shape in numbers, in millimetres.
struct olShapeFacts {
    double area = 0;

    /// What its surfaces enclose; says something only where they are closed.
    double volume = 0;
    bool isClosed = false;
    unsigned triangles = 0;
};

/// Measures a shape face by face, so that nobody has to wait for the whole. Surfaces are measured themselves, not the
/// triangles that draw them.
class olShapeMeasuring
{
public:
    explicit olShapeMeasuring(TopoDS_Shape shape);

    /// Measures one more face; false where none is left.
    bool step();

    /// Of what was measured so far.
    [[nodiscard]] olShapeFacts facts() const;

private:
    bool addSurface(const TopoDS_Face &face);
    void addTriangles(const TopoDS_Face &face);

    TopoDS_Shape m_shape;
    std::vector<TopoDS_Shape> m_faces;
    std::size_t m_next = 0;
    olShapeFacts m_facts;
    bool m_areSolidsClosed = true;

    /// Each edge of a closed mesh is passed in both directions; then this is 0.
    std::uint64_t m_openEdges = 0;
};

/// The smallest box around what is drawn of a shape where it stands.
[[nodiscard]] Bnd_Box olDrawnBox(const TopoDS_Shape &shape);
