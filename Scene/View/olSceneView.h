#pragma once

#include "Model/olScene.h"

#include <Standard_Handle.hxx>
#include <gp_Pnt.hxx>

#include <QPoint>
#include <QPointF>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class Graphic3d_Camera;

/// The scene as it is drawn: its parts, lights and camera, what is selected, and everything that the host's state says
/// about the picture. The OpenGL context must be current in every call, also when it is destroyed. Points on the screen
/// are the picture's pixels.
class olSceneView
{
public:
    enum class Eye { Middle, Left, Right };

    /// How a frame is drawn, beyond what the host's state says.
    struct Frame {
        Eye eye = Eye::Middle;
        bool isMoving = false; ///< The camera is on its way, and speed counts.
        bool isCoarse = false; ///< With fewer pixels and less exact light, and fewer triangles where there are many.
        bool isStill = false;  ///< One of the frames of which a still picture is made.
        int samples = 1;       ///< How many the graphics card shall take in each pixel, where it can.
        QPointF shift;         ///< By how much the picture is shifted, in pixels.
        double pixelRatio = 1; ///< How many of its pixels make one that a person would call a pixel.
    };

    /// The window is a real one of the top level. Null where the graphics do not serve; the error then says why.
    [[nodiscard]] static std::unique_ptr<olSceneView> create(quintptr window, const QSize &size, QString &error);
    ~olSceneView();

    void setDocument(const olScene::Document &document, const QSet<QString> &hidden);

    /// Which parts are not drawn; nothing else changes.
    void setHidden(const QSet<QString> &hidden);

    /// Takes over what the host's state says now of these parts of the picture, in the bits of olStateInPicture.
    void applyState(unsigned parts);

    /// Whether rays are traced; the host knows nothing of it.
    void setRaytracing(bool on);

    /// Whether faces of surfaces show their borders; the host knows nothing of it either.
    void setEdges(bool on);

    /// By how much each of the pictures is shifted whose mean a frame is, in pixels.
    [[nodiscard]] std::vector<QPointF> shifts(bool isMoving) const;

    /// How many triangles are drawn where speed does not count.
    [[nodiscard]] double triangles() const;

    /// Whether the graphics card can take so many samples in each pixel of a picture at rest, and nothing else is
    /// wanted that does the same.
    [[nodiscard]] bool canTake(int samples) const;

    /// Draws into the framebuffer that is bound.
    [[nodiscard]] bool draw(const Frame &frame);

    [[nodiscard]] const opencascade::handle<Graphic3d_Camera> &camera() const;

    /// The camera as it would look at the whole scene, or at what is selected.
    [[nodiscard]] opencascade::handle<Graphic3d_Camera> cameraForAll() const;
    [[nodiscard]] opencascade::handle<Graphic3d_Camera> cameraForSelection() const;

    /// The camera as it sees all of the scene as large as a picture of these proportions holds it.
    [[nodiscard]] opencascade::handle<Graphic3d_Camera> cameraFilling(double aspect) const;

    /// Looks at the scene from its front, top and right at once.
    void resetCamera();

    /// The middle and size of what there is, or of what is selected where `selected`.
    [[nodiscard]] gp_Pnt middle(bool selected) const;
    [[nodiscard]] double size() const;

    /// Shows what is under the mouse; true where that changed.
    bool hover(const QPoint &point);
    bool leave();

    /// What a click at the place under the mouse does: it selects, adds to the selection or takes from it, or it turns
    /// the view to a side of the cube; then the camera as it shall be is returned.
    opencascade::handle<Graphic3d_Camera> click(bool add);

    /// The place in the scene under the mouse.
    [[nodiscard]] std::optional<gp_Pnt> pointUnder(const QPoint &point);

    /// Where one of the pivots of the 3D mouse is: the middle of what is selected, else the origin.
    [[nodiscard]] gp_Pnt target() const;

    /// Parts that are drawn, as the explorer of the document names them. In the selection a part's level of detail is
    /// named by the part, "#" and its number.
    [[nodiscard]] std::vector<std::string> parts() const;
    [[nodiscard]] std::vector<std::string> selection() const;
    void select(const std::vector<std::string> &ids);

private:
    olSceneView();

    class Private;
    std::unique_ptr<Private> d;
};
