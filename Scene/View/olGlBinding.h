#pragma once

#include <Standard_Handle.hxx>

#include <QSize>
#include <QtGlobal>

class Graphic3d_GraphicDriver;
class V3d_View;

/// Lets the renderer draw with the OpenGL context that Qt made. That context must be current in every call.
namespace olGlBinding
{

/// Null where there is no X display.
[[nodiscard]] opencascade::handle<Graphic3d_GraphicDriver> makeDriver();

/// The window must be a real one, of the top level, on Qt's display. False where the context does not serve.
[[nodiscard]] bool attach(const opencascade::handle<V3d_View> &view, quintptr window, const QSize &size);

/// Whether the view resolves colours in floating point, or in 256 steps a channel.
void setFloatBuffers(const opencascade::handle<V3d_View> &view, bool isFloat);

/// How many samples the graphics card can take in each pixel; at most 1 where it cannot take several.
[[nodiscard]] int mostSamples(const opencascade::handle<V3d_View> &view);

/// Makes the framebuffer that is bound now the one into which the view draws. To be called before every frame: Qt may
/// have bound another since.
[[nodiscard]] bool drawIntoBoundFramebuffer(const opencascade::handle<V3d_View> &view);

} // namespace olGlBinding
